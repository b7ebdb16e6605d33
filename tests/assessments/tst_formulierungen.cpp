#include "assessments/Formulierungen.h"

#include "Lernbereichsprobe.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Oberflaeche.h"
#include "core/Orte.h"
#include "core/Rettung.h"
#include "core/Systemaufrufe.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

namespace {

const QByteArray Kopfzeile("[Beurteilungsvorlagen f\xFCr Tafelquell 3.0]\r\n");
const QString Ersetzen = QStringLiteral("Soll die bereits existierende Datei ");
const QString Speichern = QStringLiteral("Speichern unter...");

/// Writes down what the commands ask of the main window.
class Mitschrift : public Oberflaeche {
  public:
    QStringList Aufrufe;
    void FokusNehmen() override { Aufrufe.append(QStringLiteral("Fokus")); }
    void AnsichtAktualisieren() override { Aufrufe.append(QStringLiteral("Ansicht")); }
    void LernbereicheFuellen() override { Aufrufe.append(QStringLiteral("Lernbereiche")); }
    void FormulierungenFuellen() override { Aufrufe.append(QStringLiteral("Formulierungen")); }
};

/// One of the calls that write fails once, at its n-th use.
class Fehlerstelle {
  public:
    Fehlerstelle(int Welcher, int Zeitpunkt) {
        Zaehler = Zeitpunkt;
        Tabelle = EchteAufrufe();
        switch (Welcher) {
        case 0:
            Tabelle.Open = [](const char* Pfad, int Schalter, mode_t Rechte) {
                return Dran() ? -1 : EchteAufrufe().Open(Pfad, Schalter, Rechte);
            };
            break;
        case 1:
            Tabelle.Pwrite = [](int Fd, const void* Puffer, size_t Laenge, off_t Stelle) -> ssize_t {
                return Dran() ? -1 : EchteAufrufe().Pwrite(Fd, Puffer, Laenge, Stelle);
            };
            break;
        case 2:
            Tabelle.Ftruncate = [](int Fd, off_t Laenge) {
                return Dran() ? -1 : EchteAufrufe().Ftruncate(Fd, Laenge);
            };
            break;
        case 3:
            Tabelle.Fsync = [](int Fd) { return Dran() ? -1 : EchteAufrufe().Fsync(Fd); };
            break;
        case 4:
            Tabelle.Rename = [](const char* Alt, const char* Neu) {
                return Dran() ? -1 : EchteAufrufe().Rename(Alt, Neu);
            };
            break;
        default:
            Tabelle.Read = [](int Fd, void* Puffer, size_t Laenge) -> ssize_t {
                return Dran() ? -1 : EchteAufrufe().Read(Fd, Puffer, Laenge);
            };
        }
        AufrufeSetzen(&Tabelle);
    }
    ~Fehlerstelle() { AufrufeSetzen(nullptr); }
    Q_DISABLE_COPY_MOVE(Fehlerstelle)

    bool Getroffen() const { return Zaehler <= 0; }

  private:
    static bool Dran() {
        errno = EIO;
        return --Zaehler == 0;
    }
    static inline int Zaehler = 0;
    Systemaufrufe Tabelle;
};

/// Boxes that are only noted down; a choice is given up.
class NurNein : public Meldungsdienst {
  public:
    QStringList Texte;
    Antwort Zeigen(const Meldungstext& Meldung) override {
        Texte.append(Meldung.Text);
        return Antwort::Ok;
    }
    int Waehlen(const Auswahlfrage& Frage) override {
        Texte.append(Frage.Text);
        return static_cast<int>(Frage.Knoepfe.size()) - 1;
    }
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch&) override { return {}; }
    std::optional<Dateiwahl> Speichern(const Dateiwunsch&) override { return {}; }
};

QString Setting() {
    return EinstellungLesen(QStringLiteral("Formulierungen"), QStringLiteral("(ohne)"));
}

void SettingSetzen(const QString& Pfad) {
    EinstellungSchreiben(QStringLiteral("Formulierungen"), Pfad);
}

QStringList Namen() {
    QStringList Alle;
    for (int i = 0; i < AnzLernbereiche; ++i)
        Alle.append(Lernbereiche[i].Name);
    return Alle;
}

QStringList Namensliste(const char* Namen) {
    return QString::fromLatin1(Namen).split(u'|', Qt::SkipEmptyParts);
}

} // namespace

class FormulierungenTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Mitschrift Fenster;

    QString Datei(const char* Name, const QByteArray& Zeilen) {
        return Welt.DateiAnlegen(QString::fromLatin1(Name), Kopfzeile + Zeilen);
    }

    /// A file with area "Alt" as the current one, a store with area "Neu", changed.
    QString GeaenderterSpeicher() {
        const QString Pfad = Datei("a.txt", "[Alt]\r\n");
        SettingSetzen(Pfad);
        BereichAnlegen(QStringLiteral("Neu"), {});
        FormulierungenGeaendert = true;
        return Pfad;
    }

    QString Frage(const QString& Pfad) {
        return QStringLiteral("Möchten Sie die Formulierungs-Änderungen in ") + Pfad +
               QStringLiteral(" speichern?");
    }

    /// The message in full, as it was shown last.
    QString LetzteMeldung() {
        return Welt.Boxen.Gezeigt.isEmpty() ? QString() : Welt.Boxen.Gezeigt.last().Text;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Fenster.Aufrufe.clear();
        OberflaecheSetzen(&Fenster);
    }
    void cleanup() { Welt.Aufraeumen(); }

    // Loading

    void LoadingReplacesStoreAndCurrentFile() {
        BereichAnlegen(QStringLiteral("Alt"), {});
        FormulierungenGeaendert = true;
        const QString Pfad = Datei("a.txt", "[A]\r\n[B]\r\n");
        QVERIFY(FormulierungenLaden(Pfad, false));
        QCOMPARE(Namen(), Namensliste("A|B"));
        QCOMPARE(Setting(), Pfad);
        QVERIFY(!FormulierungenGeaendert);
    }

    void AddingKeepsCurrentFileAndCountsAsChange() {
        BereichAnlegen(QStringLiteral("A"), {});
        SettingSetzen(QStringLiteral("/alt.txt"));
        QVERIFY(FormulierungenLaden(Datei("b.txt", "[A]\r\n"), true));
        QCOMPARE(Namen(), Namensliste("A|A"));
        QCOMPARE(Setting(), QStringLiteral("/alt.txt"));
        QVERIFY(FormulierungenGeaendert);
    }

    void AMissingFileIsReported() {
        BereichAnlegen(QStringLiteral("A"), {});
        const QString Pfad = Welt.Pfad(QStringLiteral("fehlt.txt"));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei ") + Pfad +
                                  QStringLiteral(" konnte nicht gefunden werden!"));
        QVERIFY(!FormulierungenLaden(Pfad, false));
        QCOMPARE(AnzLernbereiche, qint16(0));
        QVERIFY(!FormulierungenGeaendert);
    }

    void AWrongFirstLineIsReportedAndLeavesAnEmptyStore() {
        BereichAnlegen(QStringLiteral("A"), {});
        FormulierungenGeaendert = true;
        SettingSetzen(QStringLiteral("/alt.txt"));
        const QString Pfad = Welt.DateiAnlegen(QStringLiteral("x.txt"), "[Tafelquell 3.0]\r\n");
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei ") + Pfad +
                                  QStringLiteral(" hat ein ungültiges Format!"));
        QVERIFY(!FormulierungenLaden(Pfad, false));
        QCOMPARE(AnzLernbereiche, qint16(0));
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(Setting(), QStringLiteral("/alt.txt"));
    }

    void AWrongFirstLineWhenAddingLeavesTheStoreButMarksIt() {
        BereichAnlegen(QStringLiteral("A"), {});
        Welt.Boxen.ErwarteMeldung(QString());
        QVERIFY(!FormulierungenLaden(Welt.DateiAnlegen(QStringLiteral("x.txt"), "x\r\n"), true));
        QCOMPARE(Namen(), Namensliste("A"));
        QVERIFY(FormulierungenGeaendert);
    }

    void AnotherVersionIsNamed() {
        const QString Pfad =
            Welt.DateiAnlegen(QStringLiteral("x.txt"), "[Beurteilungsvorlagen f\xFCr Tafelquell 2.0]\r\n");
        Welt.Boxen.ErwarteMeldung(QString());
        QVERIFY(!FormulierungenLaden(Pfad, false));
        QCOMPARE(LetzteMeldung(),
                 QStringLiteral("Die BeurteilungsFormulierungen-Datei ") + Pfad +
                     QStringLiteral(" ist nicht ladbar.\r\nUm sie zu laden, benötigen Sie die "
                                    "Version 2.0 der Tafelquell!"));
    }

    void TheDamageReportTellsLineAndArea() {
        SettingSetzen(QStringLiteral("/alt.txt"));
        QByteArray Zeilen("[A]\r\n[B]\r\n");
        for (int i = 0; i < 200; ++i)
            Zeilen += "o x\r\n";
        const QString Pfad = Datei("x.txt", Zeilen + "o zu viel\r\n[C]\r\n");
        Welt.Boxen.ErwarteMeldung(QString());
        QVERIFY(!FormulierungenLaden(Pfad, false));
        QCOMPARE(LetzteMeldung(), QStringLiteral("Fehler beim Einlesen der Beurteilungsvorlagen!\r\n"
                                                 "Die BeurteilungsFormulierungen-Datei ") +
                                      Pfad +
                                      QStringLiteral(" ist beschädigt oder hat ungültige Daten!\r\n"
                                                     "\r\n"
                                                     "Fehlerindizien:\r\n"
                                                     "--------------------------------------------------\r\n"
                                                     "fehlerhafte Zeile in der Datei :  204\r\n"
                                                     "Der Fehler liegt im 2. Lernbereich.\r\n"
                                                     "fehlerhafte Zeile:\r\n"
                                                     " -------------------\r\n"
                                                     "o zu viel"));
        QCOMPARE(Namen(), Namensliste("A|B"));
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(Setting(), QStringLiteral("/alt.txt"));
    }

    void DamageWhileAddingKeepsWhatWasReadAndTheFlag() {
        BereichAnlegen(QStringLiteral("A"), {});
        QByteArray Zeilen;
        for (int i = 0; i < 99; ++i)
            Zeilen += "[x]\r\n";
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Fehler beim Einlesen"));
        QVERIFY(!FormulierungenLaden(Datei("x.txt", Zeilen), true));
        QCOMPARE(AnzLernbereiche, qint16(99));
        QVERIFY(LetzteMeldung().contains(QStringLiteral("Der Fehler liegt im 100. Lernbereich.")));
        QVERIFY(FormulierungenGeaendert);
    }

    void AnEmptyFileIsReportedAsDamagedInLine1() {
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Fehler beim Einlesen"));
        QVERIFY(!FormulierungenLaden(Welt.DateiAnlegen(QStringLiteral("leer.txt"), {}), false));
        QVERIFY(LetzteMeldung().contains(QStringLiteral("fehlerhafte Zeile in der Datei :  1\r\n"
                                                        "Der Fehler liegt im 0. Lernbereich.\r\n")));
    }

    void FailuresLandInTheLogFile() {
        Welt.Boxen.ErwarteMeldung(QString());
        FormulierungenLaden(Welt.Pfad(QStringLiteral("fehlt.txt")), false);
        const QByteArray Log =
            Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("programm/Fehlermeldungen.txt")));
        QVERIFY(Log.contains("fehlt.txt konnte nicht gefunden werden!"));
    }

    void ALogThatCannotBeWrittenIsOneMessageMore() {
        QDir().mkpath(Welt.Pfad(QStringLiteral("programm/Fehlermeldungen.txt")));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei "));
        Welt.Boxen.ErwarteMeldung(QString());
        QVERIFY(!FormulierungenLaden(Welt.Pfad(QStringLiteral("fehlt.txt")), false));
    }

    // Start

    void TheStartLoadsTheCurrentFile() {
        SettingSetzen(Datei("a.txt", "[A]\r\n"));
        FormulierungenBeimStartLaden();
        QCOMPARE(Namen(), Namensliste("A"));
    }

    void TheStartWithoutACurrentFileLoadsTheOneInTheProgramsFolder() {
        const QString Pfad = Datei("programm/Formulierungen.txt", "[A]\r\n");
        FormulierungenBeimStartLaden();
        QCOMPARE(Namen(), Namensliste("A"));
        QCOMPARE(Setting(), Pfad);
    }

    void TheStartOffersTheBackupOfADamagedFile() {
        SettingSetzen(Welt.DateiAnlegen(QStringLiteral("a.txt"), "kaputt"));
        Datei("a.bak", "[Kopie]\r\n");
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei "));
        Welt.Boxen.ErwarteFrage(QStringLiteral("Zu Ihren aktuellen"), Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Beurteilungsformulierungen wurden aus"));
        FormulierungenBeimStartLaden();
        QCOMPARE(Namen(), Namensliste("Kopie"));
    }

    void AtStartANewerContentFromARescueCopyIsShownAndNotSavedYet() {
        const QString Pfad = QFileInfo(Datei("a.txt", "[A]\r\n")).canonicalFilePath();
        const QByteArray Alt = Testwelt::DateiInhalt(Pfad);
        const QByteArray Neu = Kopfzeile + "[B]\r\n";
        const Rettungskopf Rettung{QFile::encodeName(Pfad),
                                   0,
                                   0,
                                   MarkeVon(Neu),
                                   false,
                                   MarkeVon(Alt),
                                   QDateTime(QDate(2003, 10, 12), QTime(10, 15)),
                                   "r",
                                   1};
        Zustandsverzeichnis();
        Welt.DateiAnlegen(QStringLiteral("zustand/r.1.rescue"), RettungskopfBytes(Rettung) + Neu);
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), 0);
        RettungenAnbieten();
        FormulierungenBeimStartLaden();
        QCOMPARE(Setting(), Pfad);
        QCOMPARE(Namen(), Namensliste("B"));
        QVERIFY(FormulierungenGeaendert);
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Alt);
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Neu);
    }

    // Prompt

    void ThePromptIsSilentWithoutChanges() {
        QVERIFY(FormulierungenAbfrage());
        QCOMPARE(Fenster.Aufrufe, Namensliste("Fokus"));
    }

    void ThePromptSavesToTheCurrentFile() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Ja);
        QVERIFY(FormulierungenAbfrage());
        QCOMPARE(Welt.Boxen.Gezeigt.first().Auswahl, Knoepfe::JaNeinAbbrechen);
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Neu]\r\n");
        QVERIFY(!FormulierungenGeaendert);
    }

    void ThePromptAnsweredNoForgetsTheChanges() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Nein);
        QVERIFY(FormulierungenAbfrage());
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Alt]\r\n");
    }

    void ThePromptCancelledChangesNothing() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Abbrechen);
        QVERIFY(!FormulierungenAbfrage());
        QVERIFY(FormulierungenGeaendert);
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Alt]\r\n");
    }

    void ThePromptWithoutAFileAsksForOne() {
        BereichAnlegen(QStringLiteral("Neu"), {});
        FormulierungenGeaendert = true;
        const QString Pfad = Welt.Pfad(QStringLiteral("neu.txt"));
        Welt.Boxen.ErwarteFrage(Frage(QStringLiteral("Unbenannt")), Antwort::Ja);
        Welt.Boxen.ErwarteSpeichern(Speichern, Dateiwahl{Pfad});
        QVERIFY(FormulierungenAbfrage());
        QCOMPARE(
            Welt.Boxen.Wuensche.first().Filter,
            (QList<Dateifilter>{{QStringLiteral("Beurteilungsformulierungen"), QStringLiteral("*.txt")}}));
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Neu]\r\n");
        QCOMPARE(Setting(), Pfad);
    }

    void ThePromptGoesNotOnWithoutAName() {
        FormulierungenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage(QStringLiteral("Unbenannt")), Antwort::Ja);
        Welt.Boxen.ErwarteSpeichern(Speichern, std::nullopt);
        QVERIFY(!FormulierungenAbfrage());
        QVERIFY(FormulierungenGeaendert);
    }

    void ThePromptGoesNotOnIfTheFileMayNotBeReplaced_data() {
        QTest::addColumn<Antwort>("Gegeben");
        QTest::newRow("Nein") << Antwort::Nein;
        QTest::newRow("Abbrechen") << Antwort::Abbrechen;
    }
    void ThePromptGoesNotOnIfTheFileMayNotBeReplaced() {
        QFETCH(Antwort, Gegeben);
        FormulierungenGeaendert = true;
        const QString Pfad = Datei("da.txt", "[Da]\r\n");
        Welt.Boxen.ErwarteFrage(Frage(QStringLiteral("Unbenannt")), Antwort::Ja);
        Welt.Boxen.ErwarteSpeichern(Speichern, Dateiwahl{Pfad});
        Welt.Boxen.ErwarteFrage(Ersetzen + Pfad + QStringLiteral(" ersetzt werden?"), Gegeben);
        QVERIFY(!FormulierungenAbfrage());
        QVERIFY(FormulierungenGeaendert);
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Da]\r\n");
    }

    void AFailedSaveKeepsTheFlagAndStopsTheCaller() {
        const QString Pfad = Welt.Pfad(QStringLiteral("kein/Ordner.txt"));
        SettingSetzen(Pfad);
        FormulierungenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Ja);
        Welt.Boxen.ErwarteAuswahl(QString(), 2);
        QVERIFY(!FormulierungenAbfrage());
        QVERIFY(FormulierungenGeaendert);
        QCOMPARE(Setting(), Pfad);
    }

    // New

    void NewEmptiesTheStore() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Nein);
        FormulierungenNeu();
        QCOMPARE(AnzLernbereiche, qint16(0));
        QCOMPARE(Lernbereiche[0].Anzahl, 0);
        QCOMPARE(Setting(), QStringLiteral("Unbenannt"));
        QCOMPARE(Fenster.Aufrufe.last(), QStringLiteral("Formulierungen"));
    }

    void NewCancelledLeavesAll() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Abbrechen);
        FormulierungenNeu();
        QCOMPARE(Namen(), Namensliste("Neu"));
        QCOMPARE(Setting(), Pfad);
    }

    // Open and add

    void OpenLoadsTheChosenFile() {
        const QString Pfad = Datei("b.txt", "[B]\r\n");
        Welt.Boxen.ErwarteOeffnen(QStringLiteral("Öffnen"), Dateiwahl{Pfad});
        FormulierungenOeffnen();
        QCOMPARE(Welt.Boxen.Wuensche.first().Filter,
                 (QList<Dateifilter>{
                     {QStringLiteral("Beurteilungsformulierungen (*.txt)"), QStringLiteral("*.txt")}}));
        QCOMPARE(Namen(), Namensliste("B"));
        QCOMPARE(Fenster.Aufrufe.first(), QStringLiteral("Fokus"));
        QCOMPARE(Fenster.Aufrufe.last(), QStringLiteral("Lernbereiche"));
    }

    void OpenAsksBeforeItDropsChanges() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Abbrechen);
        FormulierungenOeffnen();
        QCOMPARE(Namen(), Namensliste("Neu"));
    }

    void OpenCancelledInTheDialogLeavesAll() {
        BereichAnlegen(QStringLiteral("Alt"), {});
        Welt.Boxen.ErwarteOeffnen(QStringLiteral("Öffnen"), std::nullopt);
        FormulierungenOeffnen();
        QCOMPARE(Namen(), Namensliste("Alt"));
    }

    void OpenOfADamagedFileOffersItsBackupAndRefills() {
        const QString Pfad = Welt.DateiAnlegen(QStringLiteral("b.txt"), "kaputt");
        Datei("b.bak", "[Kopie]\r\n");
        Welt.Boxen.ErwarteOeffnen(QStringLiteral("Öffnen"), Dateiwahl{Pfad});
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei "));
        Welt.Boxen.ErwarteFrage(QStringLiteral("Zu Ihren aktuellen"), Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Beurteilungsformulierungen wurden aus"));
        FormulierungenOeffnen();
        QCOMPARE(Namen(), Namensliste("Kopie"));
        QCOMPARE(Fenster.Aufrufe.last(), QStringLiteral("Lernbereiche"));
    }

    void AddAsksForNoSaveAndOffersNoRestore() {
        GeaenderterSpeicher();
        const QString Pfad = Welt.DateiAnlegen(QStringLiteral("b.txt"), "kaputt");
        Datei("b.bak", "[Kopie]\r\n");
        Welt.Boxen.ErwarteOeffnen(QStringLiteral("Hinzufügen"), Dateiwahl{Pfad});
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei "));
        FormulierungenHinzufuegen();
        QCOMPARE(Namen(), Namensliste("Neu"));
        QCOMPARE(Fenster.Aufrufe.last(), QStringLiteral("Lernbereiche"));
    }

    void AfterAddThePromptNamesTheOldFile() {
        const QString Alt = Datei("a.txt", "[A]\r\n");
        FormulierungenLaden(Alt, false);
        Welt.Boxen.ErwarteOeffnen(QStringLiteral("Hinzufügen"), Dateiwahl{Datei("b.txt", "[B]\r\n")});
        FormulierungenHinzufuegen();
        Welt.Boxen.ErwarteFrage(Frage(Alt), Antwort::Ja);
        QVERIFY(FormulierungenAbfrage());
        QCOMPARE(Testwelt::DateiInhalt(Alt), Kopfzeile + "[A]\r\n[B]\r\n");
    }

    // Save, save as

    void SaveWritesEvenWithoutChanges() {
        const QString Pfad = GeaenderterSpeicher();
        FormulierungenGeaendert = false;
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Neu]\r\n");
        QCOMPARE(Fenster.Aufrufe.first(), QStringLiteral("Fokus"));
    }

    void SaveWithoutAFileIsSaveAs() {
        BereichAnlegen(QStringLiteral("Neu"), {});
        const QString Pfad = Welt.Pfad(QStringLiteral("neu.txt"));
        Welt.Boxen.ErwarteSpeichern(Speichern, Dateiwahl{Pfad});
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Setting(), Pfad);
    }

    void SaveAsMakesThePathTheCurrentOne() {
        const QString Alt = GeaenderterSpeicher();
        const QString Neu = Welt.Pfad(QStringLiteral("neu.txt"));
        Welt.Boxen.ErwarteSpeichern(Speichern, Dateiwahl{Neu});
        QVERIFY(FormulierungenSpeichernUnter());
        const Dateiwunsch Wunsch = Welt.Boxen.Wuensche.first();
        QCOMPARE(Wunsch.Vorgabe, Alt);
        QCOMPARE(Wunsch.Filter,
                 (QList<Dateifilter>{
                     {QStringLiteral("Beurteilungsformulierungen (Version 3.0)"), QStringLiteral("*.txt")}}));
        QCOMPARE(Setting(), Neu);
        QCOMPARE(Testwelt::DateiInhalt(Alt), Kopfzeile + "[Alt]\r\n");
        QCOMPARE(Testwelt::DateiInhalt(Neu), Kopfzeile + "[Neu]\r\n");
        QVERIFY(!FormulierungenGeaendert);
    }

    void SaveAsAsksBeforeItReplacesAFile_data() {
        QTest::addColumn<Antwort>("Gegeben");
        QTest::newRow("Ja") << Antwort::Ja;
        QTest::newRow("Nein") << Antwort::Nein;
        QTest::newRow("Abbrechen") << Antwort::Abbrechen;
    }
    void SaveAsAsksBeforeItReplacesAFile() {
        QFETCH(Antwort, Gegeben);
        GeaenderterSpeicher();
        const QString Pfad = Datei("da.txt", "[Da]\r\n");
        Welt.Boxen.ErwarteSpeichern(Speichern, Dateiwahl{Pfad});
        Welt.Boxen.ErwarteFrage(Ersetzen + Pfad + QStringLiteral(" ersetzt werden?"), Gegeben);
        QCOMPARE(FormulierungenSpeichernUnter(), Gegeben == Antwort::Ja);
        QCOMPARE(Testwelt::DateiInhalt(Pfad),
                 Kopfzeile + (Gegeben == Antwort::Ja ? "[Neu]\r\n" : "[Da]\r\n"));
        QCOMPARE(FormulierungenGeaendert, Gegeben != Antwort::Ja);
    }

    void SaveAsCancelledEndsQuietly() {
        GeaenderterSpeicher();
        Welt.Boxen.ErwarteSpeichern(Speichern, std::nullopt);
        QVERIFY(!FormulierungenSpeichernUnter());
        QVERIFY(FormulierungenGeaendert);
    }

    void AFailedSaveCanGoToAnotherName() {
        SettingSetzen(Welt.Pfad(QStringLiteral("kein/Ordner.txt")));
        BereichAnlegen(QStringLiteral("Neu"), {});
        const QString Neu = Welt.Pfad(QStringLiteral("neu.txt"));
        Welt.Boxen.ErwarteAuswahl(QString(), 0); // once more
        Welt.Boxen.ErwarteAuswahl(QString(), 1);
        Welt.Boxen.ErwarteSpeichern(Speichern, Dateiwahl{Neu});
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Neu), Kopfzeile + "[Neu]\r\n");
        QCOMPARE(Setting(), Neu);
    }

    /// The faults of the grade book's saves: each call in turn fails once, and old or new content is whole.
    void AFaultAtAnyCallLosesNothing_data() {
        QTest::addColumn<int>("Welcher");
        for (int Welcher = 0; Welcher < 6; ++Welcher)
            QTest::addRow("call %d", Welcher) << Welcher;
    }
    void AFaultAtAnyCallLosesNothing() {
        QFETCH(int, Welcher);
        for (int Zeitpunkt = 1; Zeitpunkt < 60; ++Zeitpunkt) {
            const QString Pfad = GeaenderterSpeicher();
            AnzLernbereiche = 1;
            bool Getroffen = false;
            {
                const Fehlerstelle Stelle(Welcher, Zeitpunkt);
                NurNein Boxen;
                MeldungsdienstSetzen(&Boxen);
                const bool Gespeichert = FormulierungenSpeichern();
                MeldungsdienstSetzen(&Welt.Boxen);
                QCOMPARE(FormulierungenGeaendert, !Gespeichert);
                Getroffen = Stelle.Getroffen();
                const QByteArray Inhalt = Testwelt::DateiInhalt(Pfad);
                const bool Alt = Inhalt == Kopfzeile + "[Alt]\r\n";
                const bool Neu = Inhalt == Kopfzeile + "[Neu]\r\n";
                const bool Gerettet = Boxen.Texte.join(u' ').contains(QStringLiteral("zustand"));
                QVERIFY2(Gespeichert ? Neu : Alt || Neu || Gerettet,
                         qPrintable(QStringLiteral("fault %1 lost the file").arg(Zeitpunkt)));
            }
            if (!Getroffen)
                return;
        }
    }

    void ACharacterThatNoFileCanHoldIsReportedAndNothingWritten() {
        const QString Pfad = GeaenderterSpeicher();
        Lernbereiche[0].Name = QStringLiteral("Łódź");
        Welt.Boxen.ErwarteMeldung(QString());
        QVERIFY(!FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Alt]\r\n");
        QVERIFY(FormulierungenGeaendert);
    }

    void AfterAFailedLoadTheFileIsNotOverwrittenWithoutACopy() {
        const QString Pfad = Datei("a.txt", "[Alt]\r\n+ viele\r\n");
        FormulierungenLaden(Pfad, false);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die BeurteilungsFormulierungen-Datei "));
        FormulierungenLaden(Welt.Pfad(QStringLiteral("fehlt.txt")), false);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Beim letzten Laden konnte nicht alles gelesen werden."));
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile);
        const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
        const QStringList Kopien = Zustand.entryList({QStringLiteral("*a.txt")}, QDir::Files);
        QCOMPARE(Kopien.size(), 1);
        QCOMPARE(Testwelt::DateiInhalt(Zustand.filePath(Kopien.first())), Kopfzeile + "[Alt]\r\n+ viele\r\n");
        QVERIFY(FormulierungenSpeichern()); // and from then on as ever
    }

    // Backup and restore

    void BackupCopiesTheFileOverAnOlderOne() {
        const QString Pfad = Datei("a.txt", "[A]\r\n");
        SettingSetzen(Pfad);
        Welt.DateiAnlegen(QStringLiteral("a.bak"), "alt und länger als die neue Kopie, viel länger als sie");
        Welt.Boxen.ErwarteMeldung(
            QStringLiteral("Von Ihren Beurteilungsformulierungen wurde eine Sicherheitskopie erstellt!"));
        FormulierungenSicherheitskopie();
        QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("a.bak"))), Kopfzeile + "[A]\r\n");
    }

    void BackupOfAnUnsavedStoreIsRefused_data() {
        QTest::addColumn<QString>("Pfad");
        QTest::newRow("Unbenannt") << QStringLiteral("Unbenannt");
        QTest::newRow("four characters") << QStringLiteral("a.tx");
        QTest::newRow("three characters") << QStringLiteral("abc");
    }
    void BackupOfAnUnsavedStoreIsRefused() {
        QFETCH(QString, Pfad);
        SettingSetzen(Pfad);
        Welt.Boxen.ErwarteMeldung(QStringLiteral(
            "Die Datei bitte erst speichern, bevor eine Sicherheitskopie angelegt werden kann!"));
        FormulierungenSicherheitskopie();
    }

    void BackupFirstAsksToSave() {
        const QString Pfad = GeaenderterSpeicher();
        Welt.Boxen.ErwarteFrage(Frage(Pfad), Antwort::Abbrechen);
        FormulierungenSicherheitskopie();
        QVERIFY(!QFile::exists(Welt.Pfad(QStringLiteral("a.bak"))));
    }

    void BackupThatFailsSaysSo() {
        SettingSetzen(Welt.Pfad(QStringLiteral("fehlt.txt")));
        Welt.Boxen.ErwarteMeldung(QString());
        FormulierungenSicherheitskopie();
        QVERIFY(!LetzteMeldung().startsWith(QStringLiteral("Von Ihren")));
        QVERIFY(!LetzteMeldung().isEmpty());
    }

    void RestoreBringsTheBackupAndKeepsTheFileAside() {
        const QString Pfad = Datei("a.txt", "[Neu]\r\n");
        const QString Kopie = Datei("a.bak", "[Kopie]\r\n");
        QFile Datei(Kopie);
        QVERIFY(Datei.open(QIODevice::ReadWrite));
        QVERIFY(Datei.setFileTime(QDateTime(QDate(2003, 10, 5), QTime(14, 30)),
                                  QFileDevice::FileModificationTime));
        Datei.close();
        SettingSetzen(Pfad);
        FormulierungenGeaendert = true; // no prompt all the same
        Welt.Boxen.ErwarteFrage(
            QStringLiteral(
                "Zu Ihren aktuellen Beurteilungsformulierungen existiert eine Sicherheitskopie vom "
                "05.10.2003 14:30.\r\nMöchten Sie wirklich alle seitdem gemachten Änderungen verwerfen "
                "und Sicherheitskopie wiederherstellen?"),
            Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(QString());
        FormulierungenWiederherstellen();
        QCOMPARE(Welt.Boxen.Gezeigt.first().Titel, QStringLiteral("Sicherheitsabfrage:"));
        QCOMPARE(Welt.Boxen.Gezeigt.first().Auswahl, Knoepfe::JaNein);
        QCOMPARE(LetzteMeldung(),
                 QStringLiteral("Die Beurteilungsformulierungen wurden aus ihrer Sicherheitskopie "
                                "wiederhergestellt!\r\nDie ursprüngliche Datei wurde in ") +
                     Welt.Pfad(QStringLiteral("a_err.txt")) + QStringLiteral(" umbenannt!"));
        QCOMPARE(Namen(), Namensliste("Kopie"));
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Kopie]\r\n");
        QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("a_err.txt"))), Kopfzeile + "[Neu]\r\n");
        QVERIFY(Fenster.Aufrufe.contains(QStringLiteral("Ansicht")));
        QVERIFY(!FormulierungenGeaendert);
    }

    void RestoreRefusedChangesNothing() {
        const QString Pfad = GeaenderterSpeicher();
        Datei("a.bak", "[Kopie]\r\n");
        Welt.Boxen.ErwarteFrage(QStringLiteral("Zu Ihren aktuellen"), Antwort::Nein);
        FormulierungenWiederherstellen();
        QCOMPARE(Namen(), Namensliste("Neu"));
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Alt]\r\n");
        QVERIFY(!QFile::exists(Welt.Pfad(QStringLiteral("a_err.txt"))));
    }

    void RestoreSaysNothingWithoutABackup_data() {
        QTest::addColumn<QString>("Pfad");
        QTest::newRow("no backup") << QStringLiteral("/nirgends/a.txt");
        QTest::newRow("Unbenannt") << QStringLiteral("Unbenannt");
        QTest::newRow("three characters") << QStringLiteral("abc");
        QTest::newRow("four characters") << QStringLiteral("abcd");
    }
    void RestoreSaysNothingWithoutABackup() {
        QFETCH(QString, Pfad);
        FormulierungenWiederherstellen(Pfad);
        QVERIFY(Welt.Boxen.Gezeigt.isEmpty());
    }

    void RestoreIgnoresFailuresOfCopying() {
        const QString Pfad = Welt.Pfad(QStringLiteral("a.txt")); // missing: nothing to copy aside
        SettingSetzen(Pfad);
        Datei("a.bak", "[Kopie]\r\n");
        Welt.Boxen.ErwarteFrage(QStringLiteral("Zu Ihren aktuellen"), Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Beurteilungsformulierungen wurden aus"));
        FormulierungenWiederherstellen();
        QCOMPARE(Namen(), Namensliste("Kopie"));
    }

    void RestoreThatFailsDoesNotClaimSuccess() {
        const QString Pfad = GeaenderterSpeicher();
        Datei("a.bak", "[Kopie]\r\n");
        QVERIFY(QDir().mkpath(Welt.Pfad(QStringLiteral("a_err.txt")))); // the copy cannot be made
        Welt.Boxen.ErwarteFrage(QStringLiteral("Zu Ihren aktuellen"), Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei"));
        FormulierungenWiederherstellen();
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kopfzeile + "[Alt]\r\n");
    }
};

TESTKLASSE(FormulierungenTest)
#include "tst_formulierungen.moc"
