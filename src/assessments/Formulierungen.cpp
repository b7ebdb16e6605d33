#include "assessments/Formulierungen.h"

#include "assessments/Formulierungsdatei.h"
#include "core/Dateischutz.h"
#include "core/Dokumentdateien.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Meldungen.h"
#include "core/NeuererStand.h"
#include "core/Oberflaeche.h"
#include "core/Orte.h"
#include "core/Rettung.h"

#include <optional>

namespace {

const QString Zeilenende = QStringLiteral("\r\n");
const QString DateiAnfang = QStringLiteral("Die BeurteilungsFormulierungen-Datei ");
const QString SpeichernTitel = QStringLiteral("Speichern unter...");

/// The last load failed: the store is emptied or cut, while the current file may still hold all. It is then
/// not overwritten without a copy of what stands in it.
bool SpeicherUnvollstaendig = false;

QString AktuellerPfad() {
    return EinstellungLesen(QStringLiteral("Formulierungen"), Unbenannt);
}

void PfadMerken(const QString& Pfad) {
    EinstellungSchreiben(QStringLiteral("Formulierungen"), Pfad);
}

/// Reports a failure; that the log cannot be written is one message more, and does not hide the first.
void Melden(const QString& Text) {
    try {
        Fehlermeldung(Text);
    } catch (const Laufzeitfehler& Fehler) {
        MeldungZeigen(Fehler.Text(), {}, Symbol::Fehler);
    }
}

QString Schadensbericht(const QString& Pfad, const Formulierungsbefund& Befund) {
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
        return Schadensbericht(Pfad, Befund);
    case Formulierungsbefund::Art::Gut:
        break;
    }
    return {};
}

/// What a file gives, and how it ended. Nothing if it could not even be opened. A failure on the way is
/// damage behind what was read.
std::optional<Formulierungsbefund> DateiInSpeicher(const QString& Pfad) {
    if (const auto Neuerer = NeuererStand(Pfad)) {
        FormulierungenGeaendert = true; // it is in no file yet
        return FormulierungenLesen(*Neuerer, Lernbereiche, AnzLernbereiche);
    }
    Dateifehler Fehler;
    QByteArray Anfang;
    const auto Inhalt = DateiLesen(Pfad, &Fehler, &Anfang);
    if (!Inhalt && !Fehler.Geoeffnet)
        return {};
    auto Befund = FormulierungenLesen(Inhalt ? *Inhalt : Anfang, Lernbereiche, AnzLernbereiche);
    if (!Inhalt && Befund.Was == Formulierungsbefund::Art::Gut)
        Befund.Was = Formulierungsbefund::Art::Beschaedigt;
    return Befund;
}

/// The save dialog with the question before an existing file is replaced. Nothing: cancelled.
std::optional<QString> SpeicherpfadErfragen(const Dateifilter& Filter, const QString& Vorgabe) {
    const auto Wahl = Meldungen().Speichern({SpeichernTitel, {Filter}, Vorgabe});
    if (!Wahl || !ErsetzenErlaubt(Wahl->Pfad))
        return {};
    return Wahl->Pfad;
}

std::optional<QString> LadepfadErfragen(const QString& Titel) {
    const Dateifilter Filter{QStringLiteral("Beurteilungsformulierungen (*.txt)"), QStringLiteral("*.txt")};
    const auto Wahl = Meldungen().Oeffnen({Titel, {Filter}, {}});
    return Wahl ? std::optional(Wahl->Pfad) : std::nullopt;
}

/// The bytes of the store; nothing, with a message, if it holds a character that no file can.
std::optional<QByteArray> SpeicherBytes() {
    try {
        return FormulierungenBytes(Lernbereiche, AnzLernbereiche);
    } catch (const Laufzeitfehler& Fehler) {
        Melden(Fehler.Text());
        return {};
    }
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
        SpeicherUnvollstaendig = !Gut;
    if (Gut && !Hinzufuegen)
        PfadMerken(Pfad);
    if (Gut)
        return true;
    Melden(Befund ? Befundtext(Pfad, *Befund)
                  : DateiAnfang + Pfad + QStringLiteral(" konnte nicht gefunden werden!"));
    return false;
}

bool FormulierungenSpeichern(const QString& Pfad) {
    AktuelleOberflaeche().FokusNehmen();
    const auto Bytes = SpeicherBytes();
    if (!Bytes || (SpeicherUnvollstaendig && !OriginalAufheben(Pfad)))
        return false;
    const Speicherausgang Ausgang = DokumentSchreiben(Pfad, *Bytes);
    if (Ausgang == Speicherausgang::SpeichernUnter)
        return FormulierungenSpeichernUnter();
    if (Ausgang == Speicherausgang::Abgebrochen)
        return false;
    PfadMerken(Pfad);
    SpeicherUnvollstaendig = false;
    FormulierungenGeaendert = false;
    return true;
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
    const auto Neuer =
        SpeicherpfadErfragen({QStringLiteral("Beurteilungsformulierungen"), QStringLiteral("*.txt")}, {});
    return Neuer && FormulierungenSpeichern(*Neuer);
}

void FormulierungenWiederherstellen(const QString& Pfad) {
    const auto Frage = [](const QString& Zeit) {
        return QStringLiteral(
                   "Zu Ihren aktuellen Beurteilungsformulierungen existiert eine Sicherheitskopie vom ") +
               Zeit + u'.' + Zeilenende +
               QStringLiteral("Möchten Sie wirklich alle seitdem gemachten Änderungen verwerfen und "
                              "Sicherheitskopie wiederherstellen?");
    };
    QString Grund;
    if (!SicherheitskopieZurueckholen(Pfad, Frage, &Grund))
        return;
    FormulierungenLaden(Pfad, false);
    AktuelleOberflaeche().AnsichtAktualisieren();
    const QString Erfolg =
        QStringLiteral(
            "Die Beurteilungsformulierungen wurden aus ihrer Sicherheitskopie wiederhergestellt!") +
        Zeilenende + QStringLiteral("Die ursprüngliche Datei wurde in ") +
        MitEndung(Pfad, QStringLiteral("_err.txt")) + QStringLiteral(" umbenannt!");
    Melden(Grund.isEmpty() ? Erfolg : Grund);
}

void FormulierungenNeu() {
    AktuelleOberflaeche().FokusNehmen();
    if (!FormulierungenAbfrage())
        return;
    LernbereicheLeeren(Lernbereiche, AnzLernbereiche);
    SpeicherUnvollstaendig = false;
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
    const Dateifilter Filter{QStringLiteral("Beurteilungsformulierungen (Version 3.0)"),
                             QStringLiteral("*.txt")};
    const auto Pfad = SpeicherpfadErfragen(Filter, AktuellerPfad());
    return Pfad && FormulierungenSpeichern(*Pfad);
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
