#include "core/AutoDatei.h"

#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Oberflaeche.h"

namespace {

const QString Schluessel = QStringLiteral("AutoDatei");

} // namespace

QString AutoDatei() {
    return EinstellungLesen(Schluessel, Unbenannt);
}

void AutoDateiSetzen(const QString& Pfad) {
    EinstellungSchreiben(Schluessel, Pfad);
}

bool AutoLaden() {
    const QString Wert = EinstellungLesen(QStringLiteral("AutoLaden"), {}).toUpper();
    return Wert != QStringLiteral("FALSE") && Wert != QStringLiteral("FALSCH") && Wert != u'0';
}

void TitelAktualisieren() {
    AktuelleOberflaeche().TitelSetzen(Programmtitel + QStringLiteral(" - ") + DateiName(AutoDatei()));
}
