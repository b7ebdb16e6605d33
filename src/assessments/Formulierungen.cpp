#include "assessments/Formulierungen.h"

#include "assessments/Formulierungsdatei.h"
#include "core/Dateischutz.h"
#include "core/Datenbankdatei.h"
#include "core/Dokumentdateien.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"
#include "core/Oberflaeche.h"
#include "core/Originalschutz.h"
#include "core/Orte.h"
#include "core/Rettung.h"
#include "core/Speichern.h"

#include <optional>

namespace {

const QString Zeilenende = QStringLiteral("\r\n");
const QString DateiAnfang = QStringLiteral("Die BeurteilungsFormulierungen-Datei ");
const QString Muster = QStringLiteral("*.txt");

QString AktuellerPfad() {
    return EinstellungLesen(QStringLiteral("Formulierungen"), Unbenannt);
}

void PfadMerken(const QString& Pfad) {
    EinstellungSchreiben(QStringLiteral("Formulierungen"), Pfad);
}

QString Schaden(const QString& Pfad, const Formulierungsbefund& Befund) {
    const QStringList Zeilen{
        QStringLiteral("Fehler beim Einlesen der Beurteilungsvorlagen!"),
        DateiAnfang + Pfad + QStringLiteral(" ist beschädigt oder hat ungültige Daten!"),
        QString(),
        QStringLiteral("Fehlerindizien:"),
        QString(50, u'-'),
        QStringLiteral("fehlerhafte Zeile in der Datei :  ") + QString::number(Befund.Zeile),
        QStringLiteral("Der Fehler liegt im ") + QString::number(Befund.Bereich) +
            QStringLiteral(". Lernbereich."),
        QStringLiteral("fehlerhafte Zeile:"),
        QStringLiteral(" -------------------"),
        Befund.LetzteZeile,
    };
    return Zeilen.join(Zeilenende);
}

QString Befundtext(const QString& Pfad, const Formulierungsbefund& Befund) {
    switch (Befund.Was) {
    case Formulierungsbefund::Art::FalscherKopf:
        return DateiAnfang + Pfad + QStringLiteral(" hat ein ungültiges Format!");
    case Formulierungsbefund::Art::FalscheVersion:
        return DateiAnfang + Pfad + QStringLiteral(" ist nicht ladbar.") + Zeilenende +
               QStringLiteral("Um sie zu laden, benötigen Sie die Version ") + Befund.Version +
               QStringLiteral(" der Tafelquell!");
    case Formulierungsbefund::Art::Beschaedigt:
        return Schaden(Pfad, Befund);
    case Formulierungsbefund::Art::Gut:
        break;
    }
    return {};
}

/// What a file gives, and how it ended. Nothing if it could not even be opened. A failure on the way is
/// damage behind what was read.
std::optional<Formulierungsbefund> DateiInSpeicher(const QString& Pfad) {
    Dateifehler Fehler;
    QByteArray Anfang;
    const auto Inhalt = DateiLesen(Pfad, &Fehler, &Anfang);
    if (!Inhalt && Fehler.Grund != Dateifehler::Art::EinAusgabe)
        return {};
    auto Befund = FormulierungenLesen(Inhalt ? *Inhalt : Anfang, Lernbereiche, AnzLernbereiche);
    if (!Inhalt && Befund.Was == Formulierungsbefund::Art::Gut)
        Befund.Was = Formulierungsbefund::Art::Beschaedigt;
    return Befund;
}

std::optional<QString> LadepfadErfragen(const QString& Titel) {
    const Dateifilter Filter{QStringLiteral("Beurteilungsformulierungen (*.txt)"), Muster};
    const auto Wahl = Meldungen().Oeffnen({Titel, {Filter}, {}});
    return Wahl ? std::optional(Wahl->Pfad) : std::nullopt;
}

/// Writes the store and makes the path the current file; throws if that fails, with nothing changed.
void Schreiben(const QString& Pfad) {
    const QByteArray Bytes = FormulierungenBytes(Lernbereiche, AnzLernbereiche);
    const QString Kopie = OriginalSichern(Pfad);
    if (auto Fehler = DateiSchreiben(Pfad, Bytes))
        throw Schreibfehler(std::move(*Fehler));
    PfadMerken(Pfad);
    FormulierungenGeaendert = false;
    if (!Kopie.isEmpty())
        Berichten(
            QStringLiteral("Beim letzten Laden konnte nicht alles gelesen werden. Der bisherige Inhalt der "
                           "Datei ") +
            Pfad + QStringLiteral(" ist deshalb aufgehoben in ") + Kopie);
}

QString SpeichernUnterFragen() {
    return SpeicherpfadFragen({QStringLiteral("Beurteilungsformulierungen (Version 3.0)"), Muster},
                              AktuellerPfad());
}

/// After a failed load memory holds less than the file that was to be read, and less than the current file,
/// which a save would overwrite.
void LadenMerken(const QString& Pfad, bool Gelesen, bool Gut) {
    LadebefundMerken(Pfad, !Gelesen, Gut ? 0 : 1);
    if (!Gut)
        LadebefundMerken(AktuellerPfad(), /*Lesefehler*/ false, 1);
}

void Laden(const QString& Pfad) {
    if (!FormulierungenLaden(Pfad, false))
        FormulierungenWiederherstellen(Pfad);
}

} // namespace

bool FormulierungenLaden(const QString& Pfad, bool Hinzufuegen) {
    FormulierungenGeaendert = Hinzufuegen;
    if (!Hinzufuegen)
        LernbereicheLeeren(Lernbereiche, AnzLernbereiche);
    const auto Befund = DateiInSpeicher(Pfad);
    const bool Gut = Befund && Befund->Was == Formulierungsbefund::Art::Gut;
    if (!Hinzufuegen)
        LadenMerken(Pfad, Befund.has_value() || !DateiExistiert(Pfad), Gut);
    if (Gut && !Hinzufuegen)
        PfadMerken(Pfad);
    if (Gut)
        return true;
    Berichten(Befund ? Befundtext(Pfad, *Befund)
                     : DateiAnfang + Pfad + QStringLiteral(" konnte nicht gefunden werden!"));
    return false;
}

bool FormulierungenSpeichern(const QString& Pfad) {
    AktuelleOberflaeche().FokusNehmen();
    return SpeichernUndMelden(
        Pfad, Schreiben,
        {QStringLiteral("Die Formulierungen sind nicht gespeichert!"), SpeichernUnterFragen, Schreiben});
}

bool FormulierungenAbfrage() {
    AktuelleOberflaeche().FokusNehmen();
    if (!FormulierungenGeaendert)
        return true;
    const QString Pfad = AktuellerPfad();
    const Antwort Gegeben =
        FrageJaNeinAbbrechen(QStringLiteral("Möchten Sie die Formulierungs-Änderungen in ") + Pfad +
                             QStringLiteral(" speichern?"));
    if (Gegeben == Antwort::Nein)
        FormulierungenGeaendert = false;
    if (Gegeben != Antwort::Ja)
        return Gegeben == Antwort::Nein;
    if (Pfad != Unbenannt)
        return FormulierungenSpeichern(Pfad);
    const QString Neuer = SpeicherpfadFragen({QStringLiteral("Beurteilungsformulierungen"), Muster}, {});
    return !Neuer.isEmpty() && FormulierungenSpeichern(Neuer);
}

void FormulierungenWiederherstellen(const QString& Pfad) {
    const auto Frage = [](const QString& Zeit) {
        return QStringLiteral(
                   "Zu Ihren aktuellen Beurteilungsformulierungen existiert eine Sicherheitskopie vom ") +
               Zeit + u'.' + Zeilenende +
               QStringLiteral("Möchten Sie wirklich alle seitdem gemachten Änderungen verwerfen und "
                              "Sicherheitskopie wiederherstellen?");
    };
    const auto Fehler = SicherheitskopieZurueckholen(Pfad, Frage);
    if (!Fehler)
        return;
    FormulierungenLaden(Pfad, false);
    AktuelleOberflaeche().AnsichtAktualisieren();
    if (!Fehler->isEmpty()) {
        Berichten(*Fehler);
        return;
    }
    Berichten(QStringLiteral(
                  "Die Beurteilungsformulierungen wurden aus ihrer Sicherheitskopie wiederhergestellt!") +
              Zeilenende + QStringLiteral("Die ursprüngliche Datei wurde in ") +
              MitEndung(Pfad, QStringLiteral("_err.txt")) + QStringLiteral(" umbenannt!"));
}

void FormulierungenNeu() {
    AktuelleOberflaeche().FokusNehmen();
    if (!FormulierungenAbfrage())
        return;
    LernbereicheLeeren(Lernbereiche, AnzLernbereiche);
    FormulierungenGeaendert = false;
    PfadMerken(Unbenannt);
    AktuelleOberflaeche().FormulierungenFuellen();
}

void FormulierungenOeffnen() {
    AktuelleOberflaeche().FokusNehmen();
    if (!FormulierungenAbfrage())
        return;
    if (const auto Pfad = LadepfadErfragen(QStringLiteral("Öffnen"))) {
        RettungAnbietenFuer(*Pfad);
        RettungAnbietenFuer(*Pfad);
        Laden(*Pfad);
        AktuelleOberflaeche().LernbereicheFuellen();
    }
}

void FormulierungenHinzufuegen() {
    AktuelleOberflaeche().FokusNehmen();
    if (const auto Pfad = LadepfadErfragen(QStringLiteral("Hinzufügen"))) {
        RettungAnbietenFuer(*Pfad);
        FormulierungenLaden(*Pfad, true);
        AktuelleOberflaeche().LernbereicheFuellen();
    }
}

bool FormulierungenSpeichern() {
    AktuelleOberflaeche().FokusNehmen();
    const QString Pfad = AktuellerPfad();
    return Pfad == Unbenannt ? FormulierungenSpeichernUnter() : FormulierungenSpeichern(Pfad);
}

bool FormulierungenSpeichernUnter() {
    AktuelleOberflaeche().FokusNehmen();
    const QString Pfad = SpeichernUnterFragen();
    return !Pfad.isEmpty() && FormulierungenSpeichern(Pfad);
}

void FormulierungenSicherheitskopie() {
    AktuelleOberflaeche().FokusNehmen();
    if (FormulierungenAbfrage())
        SicherheitskopieAnlegen(
            AktuellerPfad(),
            QStringLiteral("Von Ihren Beurteilungsformulierungen wurde eine Sicherheitskopie erstellt!"));
}

void FormulierungenWiederherstellen() {
    AktuelleOberflaeche().FokusNehmen();
    FormulierungenWiederherstellen(AktuellerPfad());
}

void FormulierungenBeimStartLaden() {
    const QString Pfad = AktuellerPfad();
    Laden(Pfad == Unbenannt ? Programmverzeichnis() + QStringLiteral("/Formulierungen.txt") : Pfad);
}
