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
    const Parameterbefund Befund = ParameterLesen(*Bytes);
    const bool Abgelehnt = !Befund.Ablehnung.isEmpty();
    // The file is written at the end of the program; one of which memory has not all is kept before that.
    LadebefundMerken(Parameterpfad(), false, Abgelehnt ? 1 : Befund.Entfallen);
    if (Abgelehnt)
        MeldungZeigen(Befund.Ablehnung);
}

void SpeichereParameter() {
    OriginalSichern(Parameterpfad());
    if (const auto Fehler = DateiSchreiben(Parameterpfad(), ParameterBytes()))
        throw Laufzeitfehler(Fehler->Text);
}
