#include "Buchdatei.h"

#include "common/Stoerung.h"
#include "common/Testoberflaeche.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Dokument.h"
#include "core/Einstellungen.h"

#include <QtTest>

#include <cerrno>

namespace {

const QString Speicherfrage = QStringLiteral("Möchten Sie die Änderungen in %1 speichern?");
const QString Ersetzfrage = QStringLiteral("Soll die bereits existierende Datei %1 ersetzt werden?");
const QString SpeichernTitel = QStringLiteral("Speichern unter...");
const QString Warnung2 = QStringLiteral("Die ältere Version 2.0 der Tafelquell unterstützt keine");
const QString Lesefehlertext = QStringLiteral("Die Datei %1 ließ sich beim Laden nicht vollständig lesen.");
const QString Kopiefrage =
    QStringLiteral("Zu Ihrer aktuellen Datenbank existiert eine Sicherheitskopie vom ");

} // namespace

/// The file commands and every question they ask.
class Dokument : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Welt.Aufraeumen(); }

    void Ohne_Aenderung_wird_nichts_gefragt();
    void Ja_speichert_in_die_Datei();
    void Nein_verwirft_die_Aenderung();
    void Abbrechen_laesst_alles();
    void Ja_ohne_Datei_fragt_nach_dem_Namen();
    void Ja_ohne_Datei_und_Abbruch_der_Wahl_bricht_ab();
    void Ja_ohne_Datei_und_bestehender_Name_fragt_nach_data();
    void Ja_ohne_Datei_und_bestehender_Name_fragt_nach();
    void Scheitern_des_Speicherns_bricht_die_Frage_ab();

    void Neu_beim_Start_setzt_Vorgaben();
    void Neu_im_Betrieb_behaelt_Parameter_und_Titel();
    void Neu_mit_Abbrechen_laesst_die_Daten();
    void Neu_ersetzt_ungueltige_Parameter();

    void Oeffnen_laedt_die_gewaehlte_Datei();
    void Oeffnen_mit_Abbrechen_in_der_Speicherfrage_laesst_Daten_und_Datei();
    void Oeffnen_ohne_Wahl_laesst_alles();
    void Oeffnen_einer_beschaedigten_Datei_bietet_die_Sicherheitskopie();

    void Speichern_ohne_Datei_fragt_nach_dem_Namen();
    void Speichern_hebt_Version_2_auf_3();
    void Speichern_unter_schreibt_Version_3_und_merkt_den_Pfad();
    void Speichern_unter_zeigt_beide_Formate();
    void Speichern_unter_mit_Version_2_und_Nein_schreibt_nichts();
    void Speichern_unter_mit_Version_2_und_Ja();
    void Speichern_unter_auf_bestehende_Datei_ohne_Ja_schreibt_nichts_data();
    void Speichern_unter_auf_bestehende_Datei_ohne_Ja_schreibt_nichts();

    void Gescheitertes_Schreiben_laesst_Merkmal_und_Pfad_data();
    void Gescheitertes_Schreiben_laesst_Merkmal_und_Pfad();
    void Nach_einem_Fehler_geht_Speichern_unter_anderem_Namen();
    void Zeichen_ohne_Byte_wird_gemeldet_und_nichts_geschrieben();
    void Nach_einem_Lesefehler_wird_die_Datei_nicht_ueberschrieben();
    void Lesefehler_in_Parameter_behaelt_die_Daten_und_schuetzt_die_Datei();

    void Sicherheitskopie_ohne_Datei_wird_erklaert();
    void Sicherheitskopie_ersetzt_eine_aeltere();
    void Wiederherstellen_ohne_Kopie_ist_stumm_data();
    void Wiederherstellen_ohne_Kopie_ist_stumm();
    void Wiederherstellen_mit_Ja_laedt_die_Kopie_und_bewahrt_das_Alte();
    void Wiederherstellen_mit_Nein_laesst_alles();
    void Wiederherstellen_ohne_Platz_fuer_das_Alte_ueberschreibt_es_nicht();

  private:
    QString Geladen();
    void LadenMitLesefehler(const QString& Pfad, int Nummer);
    QString Wahlpfad() { return Welt.Pfad(QStringLiteral("neu.txt")); }
    Testwelt Welt;
    Testoberflaeche Fenster;
};

void Dokument::init() {
    Welt.Herstellen();
    Fenster = {};
    OberflaecheSetzen(&Fenster);
}

/// Loads a copy of the small book and changes it.
QString Dokument::Geladen() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Kleinbuch());
    if (!LadeDatenbank(Pfad))
        qFatal("lädt nicht");
    Datenbank.Schueler[0].Name = QStringLiteral("Anna Huber");
    DatenGeaendert = true;
    Fenster.Gerufen.clear();
    return Pfad;
}

/// Loads with an I/O error in the given call of read.
void Dokument::LadenMitLesefehler(const QString& Pfad, int Nummer) {
    QStringList Namen;
    {
        const Stoertafel Zaehlend(Stoerung{});
        QVERIFY(LadeDatenbank(Pfad));
        Namen = Stoertafel::Namen();
    }
    qsizetype Stelle = -1;
    for (int i = 0; i < Nummer; ++i)
        Stelle = Namen.indexOf(QStringLiteral("read"), Stelle + 1);
    QVERIFY(Stelle >= 0);
    const Stoertafel Tafel({Stoerung::Art::Fehler, static_cast<int>(Stelle) + 1, false, EIO});
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Fehler beim Einlesen der Datenbank!"));
    QVERIFY(!LadeDatenbank(Pfad));
}

void Dokument::Ohne_Aenderung_wird_nichts_gefragt() {
    Geladen();
    DatenGeaendert = false;
    QVERIFY(FrageSpeichern());
    QCOMPARE(Fenster.Gerufen, QStringList{QStringLiteral("Fokus")});
}

void Dokument::Ja_speichert_in_die_Datei() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Pfad), Antwort::Ja);
    QVERIFY(FrageSpeichern());
    QCOMPARE(Welt.Boxen.Gezeigt.first().Auswahl, Knoepfe::JaNeinAbbrechen);
    QCOMPARE(Welt.Boxen.Gezeigt.first().Titel, QString());
    QVERIFY(Testwelt::DateiInhalt(Pfad).contains("Anna Huber"));
    QCOMPARE(DatenGeaendert, false);
}

void Dokument::Nein_verwirft_die_Aenderung() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Pfad), Antwort::Nein);
    QVERIFY(FrageSpeichern());
    QCOMPARE(DatenGeaendert, false);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void Dokument::Abbrechen_laesst_alles() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Pfad), Antwort::Abbrechen);
    QVERIFY(!FrageSpeichern());
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Ja_ohne_Datei_fragt_nach_dem_Namen() {
    Geladen();
    AutoDateiSetzen(Unbenannt);
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Unbenannt), Antwort::Ja);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 1});
    QVERIFY(FrageSpeichern());
    QCOMPARE(Welt.Boxen.Wuensche.first().Filter,
             (QList<Dateifilter>{{QStringLiteral("Notendatenbank"), QStringLiteral("*.txt")}}));
    QCOMPARE(Welt.Boxen.Wuensche.first().Vorgabe, QString());
    QCOMPARE(AutoDatei(), Wahlpfad());
    QVERIFY(Testwelt::DateiInhalt(Wahlpfad()).startsWith("[Tafelquell 3.0]"));
}

void Dokument::Ja_ohne_Datei_und_Abbruch_der_Wahl_bricht_ab() {
    Geladen();
    AutoDateiSetzen(Unbenannt);
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Unbenannt), Antwort::Ja);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, {});
    QVERIFY(!FrageSpeichern());
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Ja_ohne_Datei_und_bestehender_Name_fragt_nach_data() {
    QTest::addColumn<Antwort>("Gegeben");
    QTest::addColumn<bool>("Gespeichert");
    QTest::newRow("Ja") << Antwort::Ja << true;
    QTest::newRow("Nein") << Antwort::Nein << false;
    QTest::newRow("Abbrechen") << Antwort::Abbrechen << false;
}

void Dokument::Ja_ohne_Datei_und_bestehender_Name_fragt_nach() {
    QFETCH(Antwort, Gegeben);
    Geladen();
    AutoDateiSetzen(Unbenannt);
    Welt.DateiAnlegen(QStringLiteral("neu.txt"), "alt");
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Unbenannt), Antwort::Ja);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 1});
    Welt.Boxen.ErwarteFrage(Ersetzfrage.arg(Wahlpfad()), Gegeben);
    QTEST(FrageSpeichern(), "Gespeichert");
    QTEST(Testwelt::DateiInhalt(Wahlpfad()) != "alt", "Gespeichert");
}

void Dokument::Scheitern_des_Speicherns_bricht_die_Frage_ab() {
    Geladen();
    const QString Ordner = Welt.Ordner();
    AutoDateiSetzen(Ordner);
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Ordner), Antwort::Ja);
    Welt.Boxen.ErwarteAuswahl(QString(), 2);
    QVERIFY(!FrageSpeichern());
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Neu_beim_Start_setzt_Vorgaben() {
    Fenster.IstSichtbar = false;
    Datenbank.AnzKlassen = 3;
    Datenbank.GewichtungM = 3;
    Datenbank.SchuelerFeldTitel[14] = QStringLiteral("Bus");
    DatenGeaendert = true;
    AutoDateiSetzen(QStringLiteral("/x/y.txt"));
    NeueDatenbank();
    QCOMPARE(Datenbank.AnzKlassen, 0);
    QCOMPARE(Datenbank.GewichtungM, 0.5F);
    QCOMPARE(Datenbank.SchuelerFeldTitel[14], QStringLiteral("Daten7"));
    QCOMPARE(Datenbank.AktJahr, QStringLiteral("2003/04"));
    QCOMPARE(AutoDatei(), Unbenannt);
    QCOMPARE(Fenster.Titel, QStringLiteral("Tafelquell 3.1 - Unbenannt"));
    QVERIFY(!Fenster.Gerufen.contains(QStringLiteral("Ansicht")));
    QCOMPARE(DatenGeaendert, false);
}

void Dokument::Neu_im_Betrieb_behaelt_Parameter_und_Titel() {
    const QString Pfad = Geladen();
    Datenbank.GrenznotenPunkteAbstand = 2;
    Datenbank.SchuelerFeldTitel[14] = QStringLiteral("Bus");
    Datenbank.AktJahr = QStringLiteral("1999/00");
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Pfad), Antwort::Nein);
    NeueDatenbank();
    QCOMPARE(Datenbank.AnzSchueler, 0);
    QCOMPARE(NaechsteSchuelerID, ErsteSchuelerID);
    QCOMPARE(NaechsteFachID, ErsteFachID);
    QCOMPARE(Datenbank.GrenznotenPunkteAbstand, 2.0F);
    QCOMPARE(Datenbank.SchuelerFeldTitel[14], QStringLiteral("Bus"));
    QCOMPARE(Datenbank.AktJahr, QStringLiteral("2003/04"));
    QCOMPARE(AutoDatei(), Unbenannt);
    QVERIFY(Fenster.Gerufen.contains(QStringLiteral("Ansicht")));
    QCOMPARE(Fenster.Gerufen.last(), QStringLiteral("Jahrgang"));
}

void Dokument::Neu_mit_Abbrechen_laesst_die_Daten() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Pfad), Antwort::Abbrechen);
    NeueDatenbank();
    QCOMPARE(Datenbank.AnzSchueler, 1);
    QCOMPARE(AutoDatei(), Pfad);
    QVERIFY(Fenster.Gerufen.contains(QStringLiteral("Ansicht")));
}

void Dokument::Neu_ersetzt_ungueltige_Parameter() {
    Datenbank.Halbjahreswechsel = QStringLiteral("Februar");
    NeueDatenbank();
    QCOMPARE(Datenbank.Halbjahreswechsel, QStringLiteral("24.02."));
}

void Dokument::Oeffnen_laedt_die_gewaehlte_Datei() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Kleinbuch());
    Welt.Boxen.ErwarteOeffnen(QStringLiteral("Öffnen"), Dateiwahl{Pfad, 1});
    DatenbankOeffnen();
    QCOMPARE(Welt.Boxen.Wuensche.first().Filter,
             (QList<Dateifilter>{{QStringLiteral("Notendatenbank (*.txt)"), QStringLiteral("*.txt")}}));
    QCOMPARE(Datenbank.AnzSchueler, 1);
    QCOMPARE(Fenster.Gerufen.first(), QStringLiteral("Fokus"));
    QCOMPARE(Fenster.Gerufen.last(), QStringLiteral("Ansicht"));
}

void Dokument::Oeffnen_mit_Abbrechen_in_der_Speicherfrage_laesst_Daten_und_Datei() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteFrage(Speicherfrage.arg(Pfad), Antwort::Abbrechen);
    DatenbankOeffnen();
    QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Anna Huber"));
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Oeffnen_ohne_Wahl_laesst_alles() {
    const QString Pfad = Geladen();
    DatenGeaendert = false;
    Welt.Boxen.ErwarteOeffnen(QStringLiteral("Öffnen"), {});
    DatenbankOeffnen();
    QCOMPARE(AutoDatei(), Pfad);
    QCOMPARE(Datenbank.AnzSchueler, 1);
}

void Dokument::Oeffnen_einer_beschaedigten_Datei_bietet_die_Sicherheitskopie() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("kaputt.txt"), {});
    Welt.DateiAnlegen(QStringLiteral("kaputt.bak"), Kleinbuch());
    Welt.Boxen.ErwarteOeffnen(QStringLiteral("Öffnen"), Dateiwahl{Pfad, 1});
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Fehler beim Einlesen der Datenbank!"));
    Welt.Boxen.ErwarteFrage(Kopiefrage, Antwort::Ja);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die aktuelle Datenbank wurde aus ihrer Sicherheitskopie"));
    DatenbankOeffnen();
    QCOMPARE(Datenbank.AnzSchueler, 1);
    QCOMPARE(AutoDatei(), Pfad);
}

void Dokument::Speichern_ohne_Datei_fragt_nach_dem_Namen() {
    Geladen();
    AutoDateiSetzen(Unbenannt);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 1});
    QVERIFY(DatenbankSpeichern());
    QCOMPARE(AutoDatei(), Wahlpfad());
}

void Dokument::Speichern_hebt_Version_2_auf_3() {
    Geladen();
    const QString Pfad = Welt.Pfad(QStringLiteral("alt.txt"));
    SpeichernDatenbank2(Pfad);
    QVERIFY(LadeDatenbank(Pfad));
    QVERIFY(DatenbankSpeichern());
    QVERIFY(Testwelt::DateiInhalt(Pfad).startsWith("[Tafelquell 3.0]"));
}

void Dokument::Speichern_unter_schreibt_Version_3_und_merkt_den_Pfad() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 1});
    QVERIFY(DatenbankSpeichernUnter());
    QCOMPARE(AutoDatei(), Wahlpfad());
    QCOMPARE(DatenGeaendert, false);
    QCOMPARE(Fenster.Titel, QStringLiteral("Tafelquell 3.1 - neu.txt"));
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void Dokument::Speichern_unter_zeigt_beide_Formate() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, {});
    QVERIFY(!DatenbankSpeichernUnter());
    const Dateiwunsch Wunsch = Welt.Boxen.Wuensche.first();
    QCOMPARE(Wunsch.Vorgabe, Pfad);
    QCOMPARE(Wunsch.Filter, (QList<Dateifilter>{{QStringLiteral("Notendatenbank"), QStringLiteral("*.txt")},
                                                {QStringLiteral("Notendatenbank (ältere Version 2.0)"),
                                                 QStringLiteral("*.txt")}}));
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Speichern_unter_mit_Version_2_und_Nein_schreibt_nichts() {
    const QString Pfad = Geladen();
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 2});
    Welt.Boxen.ErwarteFrage(Warnung2, Antwort::Nein);
    QVERIFY(!DatenbankSpeichernUnter());
    QCOMPARE(Welt.Boxen.Gezeigt.first().Titel,
             QStringLiteral("Sicherheitsabfrage: Daten können verloren gehen!"));
    QCOMPARE(Welt.Boxen.Gezeigt.first().Text,
             QStringLiteral("Die ältere Version 2.0 der Tafelquell unterstützt keine Schülerbeurteilungen.\n"
                            "Wenn Sie die Daten in diesem Format speichern, gehen alle Schülerbeurteilungen "
                            "verloren!\nWollen Sie wirklich die Daten in diesem Format speichern?"));
    QVERIFY(!QFile::exists(Wahlpfad()));
    QCOMPARE(AutoDatei(), Pfad);
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Speichern_unter_mit_Version_2_und_Ja() {
    Geladen();
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 2});
    Welt.Boxen.ErwarteFrage(Warnung2, Antwort::Ja);
    QVERIFY(DatenbankSpeichernUnter());
    QVERIFY(Testwelt::DateiInhalt(Wahlpfad()).startsWith("[Tafelquell 2.0]"));
    QCOMPARE(AutoDatei(), Wahlpfad());
}

void Dokument::Speichern_unter_auf_bestehende_Datei_ohne_Ja_schreibt_nichts_data() {
    QTest::addColumn<Antwort>("Gegeben");
    QTest::newRow("Nein") << Antwort::Nein;
    QTest::newRow("Abbrechen") << Antwort::Abbrechen;
}

void Dokument::Speichern_unter_auf_bestehende_Datei_ohne_Ja_schreibt_nichts() {
    QFETCH(Antwort, Gegeben);
    Geladen();
    Welt.DateiAnlegen(QStringLiteral("neu.txt"), "alt");
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 1});
    Welt.Boxen.ErwarteFrage(Ersetzfrage.arg(Wahlpfad()), Gegeben);
    QVERIFY(!DatenbankSpeichernUnter());
    QCOMPARE(Testwelt::DateiInhalt(Wahlpfad()), QByteArray("alt"));
}

void Dokument::Gescheitertes_Schreiben_laesst_Merkmal_und_Pfad_data() {
    QTest::addColumn<int>("Nummer");
    QTest::newRow("voll") << ENOSPC;
    QTest::newRow("Ein-/Ausgabe") << EIO;
    QTest::newRow("schreibgeschuetzt") << EROFS;
}

void Dokument::Gescheitertes_Schreiben_laesst_Merkmal_und_Pfad() {
    QFETCH(int, Nummer);
    const QString Pfad = Geladen();
    Fenster.Titel = QStringLiteral("vorher");
    for (int Stelle = 1; Stelle < 200; ++Stelle) {
        // Rescue copies left by the run before would be looked through first.
        QDir(Welt.Pfad(QStringLiteral("zustand"))).removeRecursively();
        const Stoertafel Tafel({Stoerung::Art::Fehler, Stelle, true, Nummer});
        Welt.Boxen.ErwarteAuswahl(QString(), 2);
        DatenGeaendert = true;
        const bool Gespeichert = DatenbankSpeichern();
        if (!Stoertafel::Getroffen()) {
            QVERIFY(Gespeichert);
            Welt.Boxen.Vergessen();
            return;
        }
        if (Gespeichert) { // the fault struck behind the last step that matters
            Welt.Boxen.Vergessen();
            continue;
        }
        QCOMPARE(DatenGeaendert, true);
        QCOMPARE(AutoDatei(), Pfad);
        QCOMPARE(Fenster.Titel, QStringLiteral("vorher"));
    }
    QFAIL("kein Lauf ohne Störung");
}

void Dokument::Nach_einem_Fehler_geht_Speichern_unter_anderem_Namen() {
    Geladen();
    AutoDateiSetzen(Welt.Ordner()); // a folder can never be written
    Welt.Boxen.ErwarteAuswahl(QString(), 0);
    Welt.Boxen.ErwarteAuswahl(QString(), 1);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, {});
    Welt.Boxen.ErwarteAuswahl(QString(), 1);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Wahlpfad(), 1});
    QVERIFY(DatenbankSpeichern());
    QCOMPARE(AutoDatei(), Wahlpfad());
    QCOMPARE(DatenGeaendert, false);
}

void Dokument::Zeichen_ohne_Byte_wird_gemeldet_und_nichts_geschrieben() {
    const QString Pfad = Geladen();
    Datenbank.Schueler[0].Name = QStringLiteral("Ștefan");
    Welt.Boxen.ErwarteMeldung(QString());
    QVERIFY(!DatenbankSpeichern());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
    QCOMPARE(DatenGeaendert, true);
}

void Dokument::Nach_einem_Lesefehler_wird_die_Datei_nicht_ueberschrieben() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Kleinbuch());
    LadenMitLesefehler(Pfad, 1);
    QCOMPARE(Datenbank.AnzSchueler, 0);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Pfad, 1});
    Welt.Boxen.ErwarteFrage(Ersetzfrage.arg(Pfad), Antwort::Ja);
    Welt.Boxen.ErwarteMeldung(Lesefehlertext.arg(Pfad));
    QVERIFY(!DatenbankSpeichernUnter());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
    QVERIFY(LadeDatenbank(Pfad)); // once it could be read, it may be written again
    QVERIFY(DatenbankSpeichern());
}

/// All bytes come, but not the end of the file: the failure lies in [Parameter], and the path is kept.
void Dokument::Lesefehler_in_Parameter_behaelt_die_Daten_und_schuetzt_die_Datei() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Kleinbuch());
    LadenMitLesefehler(Pfad, 2);
    QCOMPARE(Datenbank.AnzSchueler, 1);
    QCOMPARE(Datenbank.AnzNoten, 1);
    QCOMPARE(AutoDatei(), Pfad);
    Welt.Boxen.ErwarteMeldung(Lesefehlertext.arg(Pfad));
    QVERIFY(!DatenbankSpeichern());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void Dokument::Sicherheitskopie_ohne_Datei_wird_erklaert() {
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die Datei bitte erst speichern, bevor eine Sicherheitskopie angelegt werden kann!"));
    SicherheitskopieErstellen();
    QVERIFY(!QFile::exists(Welt.Pfad(QStringLiteral("buch.bak"))));
}

void Dokument::Sicherheitskopie_ersetzt_eine_aeltere() {
    Geladen();
    DatenGeaendert = false;
    const QString Kopie = Welt.DateiAnlegen(QStringLiteral("buch.bak"), "alt");
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Von Ihrer Datenbank wurde eine Sicherheitskopie erstellt!"));
    SicherheitskopieErstellen();
    QCOMPARE(Testwelt::DateiInhalt(Kopie), Kleinbuch());
}

void Dokument::Wiederherstellen_ohne_Kopie_ist_stumm_data() {
    QTest::addColumn<QString>("Pfad");
    QTest::newRow("Unbenannt") << Unbenannt;
    QTest::newRow("vier Zeichen") << QStringLiteral("/a.b");
    QTest::newRow("ohne Kopie") << QStringLiteral("/nirgends/buch.txt");
}

void Dokument::Wiederherstellen_ohne_Kopie_ist_stumm() {
    QFETCH(QString, Pfad);
    DatenbankWiederherstellen(Pfad);
    QVERIFY(Welt.Boxen.Gezeigt.isEmpty());
}

void Dokument::Wiederherstellen_mit_Ja_laedt_die_Kopie_und_bewahrt_das_Alte() {
    const QString Pfad = Geladen();
    const QString Kopie =
        Welt.DateiAnlegen(QStringLiteral("buch.bak"),
                          Ersetzt(Kleinbuch(), QStringLiteral("Anna Bauer"), QStringLiteral("Anna Alt")));
    QFile Datei(Kopie);
    QVERIFY(Datei.open(QIODevice::ReadWrite));
    QVERIFY(
        Datei.setFileTime(QDateTime(QDate(2003, 10, 5), QTime(8, 15)), QFileDevice::FileModificationTime));
    Datei.close();
    const QString Altes = Welt.Pfad(QStringLiteral("buch_err.txt"));
    Welt.Boxen.ErwarteFrage(Kopiefrage, Antwort::Ja);
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die aktuelle Datenbank wurde aus ihrer Sicherheitskopie wiederhergestellt!\nDie "
                       "ursprüngliche Datei wurde in %1 umbenannt!")
            .arg(Altes));
    DatenbankWiederherstellen(Pfad);
    QCOMPARE(Welt.Boxen.Gezeigt.first().Titel, QStringLiteral("Sicherheitsabfrage:"));
    QCOMPARE(Welt.Boxen.Gezeigt.first().Text,
             Kopiefrage + QStringLiteral(
                              "05.10.2003 08:15 Uhr.\nMöchten Sie wirklich alle seitdem gemachten Änderungen "
                              "verwerfen und Ihre Daten aus dieser\nSicherheitskopie wiederherstellen?"));
    QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Anna Alt"));
    QCOMPARE(Testwelt::DateiInhalt(Altes), Kleinbuch());
    QCOMPARE(AutoDatei(), Pfad);
}

void Dokument::Wiederherstellen_mit_Nein_laesst_alles() {
    const QString Pfad = Geladen();
    Welt.DateiAnlegen(QStringLiteral("buch.bak"), {});
    Welt.Boxen.ErwarteFrage(Kopiefrage, Antwort::Nein);
    DatenbankWiederherstellen(Pfad);
    QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Anna Huber"));
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void Dokument::Wiederherstellen_ohne_Platz_fuer_das_Alte_ueberschreibt_es_nicht() {
    const QString Pfad = Geladen();
    Welt.DateiAnlegen(QStringLiteral("buch.bak"), "[Tafelquell 3.0]\r\n");
    QVERIFY(QDir().mkpath(Welt.Pfad(QStringLiteral("buch_err.txt")))); // the copy cannot be made
    Welt.Boxen.ErwarteFrage(Kopiefrage, Antwort::Ja);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei"));
    DatenbankWiederherstellen(Pfad);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

/// Defaults and repair of the [Parameter] values.
class Parametervorgaben : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void Werte_ausser_Bereich_werden_ersetzt_data();
    void Werte_ausser_Bereich_werden_ersetzt();
    void Tage_ausser_Bereich_werden_ersetzt_data();
    void Tage_ausser_Bereich_werden_ersetzt();
    void Methode_3_ueberlebt_nicht_data();
    void Methode_3_ueberlebt_nicht();
    void Ein_leerer_Titel_setzt_alle_zurueck();
    void Jahr_ausser_der_Liste_wird_das_laufende();
    void Kein_Datum_wirft();
    void Vorgaben();

  private:
    Testwelt Welt;
};

void Parametervorgaben::Werte_ausser_Bereich_werden_ersetzt_data() {
    QTest::addColumn<float>("Wert");
    QTest::addColumn<QString>("Feld");
    QTest::addColumn<float>("Danach");
    const auto Zeile = [](const char* Feld, float Wert, float Danach) {
        QTest::addRow("%s %g", Feld, static_cast<double>(Wert))
            << Wert << QString::fromLatin1(Feld) << Danach;
    };
    Zeile("PunkteAbstand", 0, 0.5F);
    Zeile("PunkteAbstand", 0.25F, 0.25F);
    Zeile("PunkteAbstand", 10, 10);
    Zeile("PunkteAbstand", 10.5F, 0.5F);
    Zeile("PunkteAbstand", -1, 0.5F);
    Zeile("PunkteAbstand", qQNaN(), 0.5F);
    Zeile("NotenAbstand", 0, 0.3F);
    Zeile("NotenAbstand", 0.5F, 0.5F);
    Zeile("NotenAbstand", 0.6F, 0.3F);
    Zeile("GewichtungE", 0, 0);
    Zeile("GewichtungE", 5, 5);
    Zeile("GewichtungE", 5.5F, 1);
    Zeile("GewichtungE", -0.5F, 1);
    Zeile("GewichtungM", 0, 0);
    Zeile("GewichtungM", 6, 1);
    Zeile("GewichtungM", -1, 1);
}

void Parametervorgaben::Werte_ausser_Bereich_werden_ersetzt() {
    QFETCH(float, Wert);
    QFETCH(QString, Feld);
    float& Ziel = Feld == QStringLiteral("PunkteAbstand")  ? Datenbank.GrenznotenPunkteAbstand
                  : Feld == QStringLiteral("NotenAbstand") ? Datenbank.GrenznotenNotenAbstand
                  : Feld == QStringLiteral("GewichtungE")  ? Datenbank.GewichtungE
                                                           : Datenbank.GewichtungM;
    Ziel = Wert;
    PruefeParameter();
    QTEST(Ziel, "Danach");
}

void Parametervorgaben::Tage_ausser_Bereich_werden_ersetzt_data() {
    QTest::addColumn<QString>("Halbjahr");
    QTest::addColumn<QString>("Ende");
    QTest::addColumn<QString>("HalbjahrDanach");
    QTest::addColumn<QString>("EndeDanach");
    const QString H = QStringLiteral("24.02.");
    const QString E = QStringLiteral("12.09.");
    const auto T = [](const char* Text) { return QString::fromLatin1(Text); };
    QTest::newRow("beide gut") << T("15.02.") << T("1.8.") << T("15.02.") << T("1.8.");
    QTest::newRow("Grenzen innen") << T("1.1.") << T("31.12.") << T("1.1.") << T("31.12.");
    QTest::newRow("1.7. passt zu beiden") << T("01.07.") << T("01.07.") << T("01.07.") << T("01.07.");
    QTest::newRow("Grenzen aussen") << T("2.7.") << T("30.6.") << H << E;
    QTest::newRow("mit fremdem Jahr") << T("24.02.2004") << T("12.09.2004") << H << E;
}

void Parametervorgaben::Tage_ausser_Bereich_werden_ersetzt() {
    QFETCH(QString, Halbjahr);
    QFETCH(QString, Ende);
    Datenbank.Halbjahreswechsel = Halbjahr;
    Datenbank.Endjahreswechsel = Ende;
    PruefeParameter();
    QTEST(Datenbank.Halbjahreswechsel, "HalbjahrDanach");
    QTEST(Datenbank.Endjahreswechsel, "EndeDanach");
}

void Parametervorgaben::Methode_3_ueberlebt_nicht_data() {
    QTest::addColumn<QString>("Methode");
    QTest::addColumn<QString>("Danach");
    QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("1");
    QTest::newRow("2") << QStringLiteral("2") << QStringLiteral("2");
    QTest::newRow("3") << QStringLiteral("3") << QStringLiteral("1");
    QTest::newRow("leer") << QString() << QStringLiteral("1");
}

void Parametervorgaben::Methode_3_ueberlebt_nicht() {
    QFETCH(QString, Methode);
    Datenbank.NotenberechnenMethode = Methode;
    PruefeParameter();
    QTEST(Datenbank.NotenberechnenMethode, "Danach");
}

void Parametervorgaben::Ein_leerer_Titel_setzt_alle_zurueck() {
    Datenbank.SchuelerFeldTitel[1] = QStringLiteral("Weg");
    Datenbank.SchuelerFeldTitel[9].clear();
    PruefeParameter();
    QCOMPARE(Datenbank.SchuelerFeldTitel[1], QStringLiteral("Strasse"));
    QCOMPARE(Datenbank.SchuelerFeldTitel[9], QStringLiteral("Daten2"));
}

void Parametervorgaben::Jahr_ausser_der_Liste_wird_das_laufende() {
    Datenbank.AktJahr = QStringLiteral("1994/95");
    PruefeParameter();
    QCOMPARE(Datenbank.AktJahr, QStringLiteral("2003/04"));
}

void Parametervorgaben::Kein_Datum_wirft() {
    Datenbank.Endjahreswechsel = QStringLiteral("29.02.");
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, PruefeParameter());
}

void Parametervorgaben::Vorgaben() {
    Datenbank.GewichtungM = 7;
    SetzeParameterDefaults();
    QCOMPARE(Datenbank.Halbjahreswechsel, QStringLiteral("24.02."));
    QCOMPARE(Datenbank.GrenznotenBerechnen, true);
    QCOMPARE(Datenbank.GrenznotenBeruecksichtigen, false);
    QCOMPARE(Datenbank.GewichtungE, 1.0F);
    QCOMPARE(Datenbank.GewichtungM, 0.5F);
    QCOMPARE(Datenbank.SchuelerFeldTitel[7], QStringLiteral("Geburtstag"));
    QCOMPARE(Datenbank.SchuelerFeldTitel[8], QStringLiteral("Daten1"));
}

TESTKLASSE(Dokument)
TESTKLASSE(Parametervorgaben)

#include "tst_dokument.moc"
