#include "core/Dokument.h"

#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Dokumentdateien.h"
#include "core/Einstellungen.h"
#include "core/Meldungen.h"
#include "core/NeuesBuch.h"
#include "core/Oberflaeche.h"
#include "core/Rettung.h"
#include "core/Speichern.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Dokument", Text);
}

const QString Muster = QStringLiteral("*.txt");

/// Ja in the save prompt without a file yet: asks for one.
bool ErstmalsSpeichern() {
    const auto Wahl = Meldungen().Speichern({Tr("Speichern unter..."), {{Tr("Notendatenbank"), Muster}}, {}});
    if (!Wahl || Wahl->Pfad.isEmpty() || !ErsetzenErlaubt(Wahl->Pfad))
        return false;
    return SpeichernUndMelden(Wahl->Pfad, SpeichernDatenbank3);
}

bool VerlustErlaubt() {
    const QStringList Zeilen{
        Tr("Die ältere Version 2.0 der Tafelquell unterstützt keine Schülerbeurteilungen."),
        Tr("Wenn Sie die Daten in diesem Format speichern, gehen alle Schülerbeurteilungen verloren!"),
        Tr("Wollen Sie wirklich die Daten in diesem Format speichern?")};
    return FrageJaNein(Zeilen.join(u'\n'), Tr("Sicherheitsabfrage: Daten können verloren gehen!"));
}

} // namespace

bool FrageSpeichern() {
    AktuelleOberflaeche().FokusNehmen();
    if (!DatenGeaendert)
        return true;
    const QString Pfad = AutoDatei();
    switch (FrageJaNeinAbbrechen(Tr("Möchten Sie die Änderungen in ") + Pfad + Tr(" speichern?"))) {
    case Antwort::Ja:
        return Pfad == Unbenannt ? ErstmalsSpeichern() : SpeichernUndMelden(Pfad, SpeichernDatenbank3);
    case Antwort::Nein:
        DatenGeaendert = false;
        return true;
    default:
        return false;
    }
}

void NeueDatenbank() {
    Oberflaeche& Fenster = AktuelleOberflaeche();
    Fenster.FokusNehmen();
    if (!Fenster.Sichtbar()) {
        BuchLeeren();
    } else {
        if (FrageSpeichern())
            BuchLeeren();
        Fenster.AnsichtAktualisieren();
    }
    TitelAktualisieren();
    Fenster.JahrgangWaehlen();
}

namespace {

/// Loads the file and shows it; what a broken-off save of it has left is offered first.
void LadenUndZeigen(const QString& Pfad) {
    RettungAnbietenFuer(Pfad);
    if (!LadeDatenbank(Pfad))
        DatenbankWiederherstellen(Pfad);
    AktuelleOberflaeche().AnsichtAktualisieren();
}

} // namespace

void DatenbankOeffnen() {
    AktuelleOberflaeche().FokusNehmen();
    if (!FrageSpeichern())
        return;
    const auto Wahl = Meldungen().Oeffnen({Tr("Öffnen"), {{Tr("Notendatenbank (*.txt)"), Muster}}, {}});
    if (Wahl && !Wahl->Pfad.isEmpty())
        LadenUndZeigen(Wahl->Pfad);
}

void DatenbankOeffnen(const QString& Pfad) {
    AktuelleOberflaeche().FokusNehmen();
    if (FrageSpeichern())
        LadenUndZeigen(Pfad);
}

bool DatenbankSpeichern() {
    AktuelleOberflaeche().FokusNehmen();
    const QString Pfad = AutoDatei();
    return Pfad == Unbenannt ? DatenbankSpeichernUnter() : SpeichernUndMelden(Pfad, SpeichernDatenbank3);
}

bool DatenbankSpeichernUnter() {
    AktuelleOberflaeche().FokusNehmen();
    const auto Wahl = Meldungen().Speichern(
        {Tr("Speichern unter..."),
         {{Tr("Notendatenbank"), Muster}, {Tr("Notendatenbank (ältere Version 2.0)"), Muster}},
         AutoDatei()});
    if (!Wahl || Wahl->Pfad.isEmpty() || !ErsetzenErlaubt(Wahl->Pfad))
        return false;
    if (Wahl->FilterIndex != 2)
        return SpeichernUndMelden(Wahl->Pfad, SpeichernDatenbank3);
    return VerlustErlaubt() && SpeichernUndMelden(Wahl->Pfad, SpeichernDatenbank2);
}
