#include "core/Parameterdatei.h"

#include "core/Dateischutz.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Laufzeitfehler.h"
#include "core/Meldungen.h"
#include "core/Originalschutz.h"
#include "core/Orte.h"
#include "core/Parameterleser.h"

namespace {

QString Parameterpfad() {
    return Programmverzeichnis() + QStringLiteral("/Tafelquell.ini");
}

qint16 MaxNoteLesen() {
    constexpr qint16 Vorgabe = 6;
    const qint16 Wert =
        GanzzahlAusText(EinstellungLesen(QStringLiteral("MaxNote"), QString::number(Vorgabe)));
    return Wert == Vorgabe - 1 ? Wert : Vorgabe;
}

} // namespace

void LadeParameter() {
    MaxNote = MaxNoteLesen();
    Dateifehler Fehler;
    const auto Bytes = DateiLesen(Parameterpfad(), &Fehler);
    if (!Bytes)
        throw Laufzeitfehler(Fehler.Text);
    const QString Ablehnung = ParameterLesen(*Bytes);
    // The file is written at the end of the program; one that was refused is then kept beside it.
    LadebefundMerken(Parameterpfad(), false, Ablehnung.isEmpty() ? 0 : 1);
    if (!Ablehnung.isEmpty())
        MeldungZeigen(Ablehnung);
}

void SpeichereParameter() {
    OriginalSichern(Parameterpfad());
    if (const auto Fehler = DateiSchreiben(Parameterpfad(), ParameterBytes()))
        throw Laufzeitfehler(Fehler->Text);
}
