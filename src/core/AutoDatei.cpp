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

void TitelAktualisieren() {
    AktuelleOberflaeche().TitelSetzen(Programmtitel + QStringLiteral(" - ") + DateiName(AutoDatei()));
}
