#include "Buchdatei.h"

#include "common/Grossbuch.h"
#include "common/Testbuch.h"
#include "common/Testoberflaeche.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Zahlen.h"

#include <QtTest>

/// Loading and saving the grade book file as a whole.
class Datenbankdatei : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void Beispiele_kommen_byte_fuer_byte_zurueck_data();
    void Beispiele_kommen_byte_fuer_byte_zurueck();
    void Leere_Datenbank_schreibt_alle_Abschnitte_und_die_Parameter();
    void Fach_ohne_Proben_schreibt_keine_Probenzeile();
    void Probe_nur_mit_Datum_wird_nicht_geschrieben_data();
    void Probe_nur_mit_Datum_wird_nicht_geschrieben();
    void Schueler_ohne_Bearbeitung_schreibt_leere_Spalten();
    void Beurteilung_kommt_mit_jeder_Zeile_zurueck_data();
    void Beurteilung_kommt_mit_jeder_Zeile_zurueck();
    void Zeile_einer_Beurteilung_die_als_Marke_gilt_wird_geschrieben_und_gemeldet_data();
    void Zeile_einer_Beurteilung_die_als_Marke_gilt_wird_geschrieben_und_gemeldet();
    void Beurteilung_eines_Schuelers_mit_sechsstelliger_Nummer_wird_gemeldet();
    void Alle_Bytes_der_Codeseite_kommen_zurueck();
    void Parameter_folgen_der_Sprache_des_Systems();
    void Volle_Felder_5001_Schueler_kommen_zurueck();
    void Speichern_nimmt_den_Fokus_und_merkt_den_Pfad();
    void Fremdschueler_kommen_ohne_Beurteilungen();
    void Fremdschueler_lassen_die_Datenbank_in_Ruhe();
    void Fremdschueler_aus_fremder_Datei_werden_abgelehnt_data();
    void Fremdschueler_aus_fremder_Datei_werden_abgelehnt();
    void Fremdschueler_aus_beschaedigter_Datei_melden_und_bleiben_leer();
    void Fremdschueler_aus_fehlender_Datei_melden();

  private:
    Testwelt Welt;
};

void Datenbankdatei::Beispiele_kommen_byte_fuer_byte_zurueck_data() {
    QTest::addColumn<QString>("Pfad");
    QTest::newRow("klein") << QStringLiteral(TESTDATEN "/klein.txt");
    QTest::newRow("schule") << QStringLiteral(TESTDATEN "/schule.txt");
    QTest::newRow("mitgeliefertes Beispiel") << QStringLiteral(LIEFERDATEN "/Beispiel.txt");
}

void Datenbankdatei::Beispiele_kommen_byte_fuer_byte_zurueck() {
    QFETCH(QString, Pfad);
    QVERIFY(LadeDatenbank(Pfad));
    const QString Ziel = Welt.Pfad(QStringLiteral("kopie.txt"));
    SpeichernDatenbank3(Ziel);
    QCOMPARE(Testwelt::DateiInhalt(Ziel), Testwelt::DateiInhalt(Pfad));
}

void Datenbankdatei::Leere_Datenbank_schreibt_alle_Abschnitte_und_die_Parameter() {
    QByteArray Erwartet = Kleinbuch();
    for (const QString& Zeile :
         {QStringLiteral("2003/04\t7a\n"), QStringLiteral("50000\tMathematik\t7a\t2003/04\t6\t6\t6\n"),
          QStringLiteral("1\t50000\t12.10.2003\tBruchrechnen\t\t40\t36\t31\t25\t18\t9\n"),
          QStringLiteral("10000\tAnna Bauer\t7a\t2003/04\t\t\t\t\tw\t\t\t\t\t\t\t\t\t\n"),
          QStringLiteral("#10000_1#\nAnna arbeitet zuverlässig.\nSie beteiligt sich rege am Unterricht.\n")})
        Erwartet = Ersetzt(Erwartet, Zeile, {});
    const qsizetype Note = Erwartet.indexOf("50000\t10000\tja");
    Erwartet.remove(Note, Erwartet.indexOf("\r\n", Note) + 2 - Note);
    QCOMPARE(DatenbankBytes(), Erwartet);
}

void Datenbankdatei::Fach_ohne_Proben_schreibt_keine_Probenzeile() {
    TestbuchLaden(QStringLiteral("Fach 50000 7a Musik"));
    QVERIFY(DatenbankBytes().contains("\tNGrenze5\r\n[Sch\xFCler]\r\n"));
}

void Datenbankdatei::Probe_nur_mit_Datum_wird_nicht_geschrieben_data() {
    QTest::addColumn<int>("Feld");
    QTest::addColumn<bool>("Geschrieben");
    QTest::newRow("Datum") << 0 << false;
    QTest::newRow("Name") << 1 << true;
    QTest::newRow("Dateiname") << 2 << true;
    QTest::newRow("Gesamtpunktzahl") << 3 << true;
    QTest::newRow("NGrenze1") << 4 << true;
    QTest::newRow("NGrenze5") << 8 << true;
}

void Datenbankdatei::Probe_nur_mit_Datum_wird_nicht_geschrieben() {
    QFETCH(int, Feld);
    QFETCH(bool, Geschrieben);
    TestbuchLaden(QStringLiteral("Fach 50000 7a Musik"));
    Probe& Eine = Datenbank.Faecher[0].Proben[20];
    QString* const Felder[] = {&Eine.Datum,           &Eine.Name,       &Eine.Dateiname,
                               &Eine.Gesamtpunktzahl, &Eine.NGrenze[1], &Eine.NGrenze[2],
                               &Eine.NGrenze[3],      &Eine.NGrenze[4], &Eine.NGrenze[5]};
    *Felder[Feld] = QStringLiteral("x");
    QCOMPARE(DatenbankBytes().contains("\r\n20\t50000\t"), Geschrieben);
}

void Datenbankdatei::Schueler_ohne_Bearbeitung_schreibt_leere_Spalten() {
    TestbuchLaden(QStringLiteral("Schueler 10000 7a Bauer Anna"));
    QVERIFY(DatenbankBytes().contains("\r\n10000\tBauer Anna\t7a\t2003/04" + QByteArray(14, '\t') + "\r\n"));
    QVERIFY(!DatenbankBytes().contains("#10000_"));
}

void Datenbankdatei::Beurteilung_kommt_mit_jeder_Zeile_zurueck_data() {
    QTest::addColumn<QString>("Text");
    QTest::addColumn<QByteArray>("Zeilen");
    QTest::newRow("drei Zeilen") << QStringLiteral("a\r\nb\r\nc") << QByteArray("a\r\nb\r\nc\r\n");
    QTest::newRow("Zeilenende am Schluss") << QStringLiteral("a\r\n") << QByteArray("a\r\n\r\n");
    QTest::newRow("Leerzeile mittendrin") << QStringLiteral("a\r\n\r\nb") << QByteArray("a\r\n\r\nb\r\n");
    QTest::newRow("Raute am Anfang") << QStringLiteral("#a") << QByteArray("#a\r\n");
    QTest::newRow("Tabulator") << QStringLiteral("a\tb") << QByteArray("a\tb\r\n");
}

void Datenbankdatei::Beurteilung_kommt_mit_jeder_Zeile_zurueck() {
    QFETCH(QString, Text);
    QFETCH(QByteArray, Zeilen);
    TestbuchLaden(QStringLiteral("Schueler 10000 7a Bauer Anna"));
    Datenbank.Schueler[0].Beurteilung[11] = Text;
    const QString Pfad = Welt.Pfad(QStringLiteral("buch.txt"));
    SpeichernDatenbank3(Pfad);
    QVERIFY(Testwelt::DateiInhalt(Pfad).contains("\r\n#10000_12#\r\n" + Zeilen + "[Parameter]"));
    QVERIFY(LadeDatenbank(Pfad));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[11], Text);
}

void Datenbankdatei::Beurteilung_eines_Schuelers_mit_sechsstelliger_Nummer_wird_gemeldet() {
    TestbuchLaden(QStringLiteral("Schueler 150000 7a Bauer Anna"));
    SpeichernDatenbank3(Welt.Pfad(QStringLiteral("buch.txt"))); // without a text there is nothing to tell
    Datenbank.Schueler[0].Beurteilung[3] = QStringLiteral("liest gern");
    Welt.Boxen.ErwarteMeldung(QStringLiteral(
        "Die Datei ist gespeichert, aber die Beurteilung von Bauer Anna (7a) lässt sich nicht wieder laden, "
        "weil die Nummer 150000 des Schülers mehr als fünf Stellen hat."));
    SpeichernDatenbank3(Welt.Pfad(QStringLiteral("buch.txt")));
}

void Datenbankdatei::Zeile_einer_Beurteilung_die_als_Marke_gilt_wird_geschrieben_und_gemeldet_data() {
    QTest::addColumn<QString>("Zeile");
    QTest::addColumn<bool>("Gemeldet");
    const auto Fall = [](const char* Zeile, bool Gemeldet) {
        QTest::newRow(Zeile) << QString::fromLatin1(Zeile) << Gemeldet;
    };
    Fall("#wichtig#", true);
    Fall("#10000_2#", true);
    Fall("#", true);
    Fall("[siehe oben]", true);
    Fall("[]", true);
    Fall("[", false);
    Fall("#1 und #2", false);
    Fall(" #wichtig#", false);
    Fall("siehe [oben]", false);
}

void Datenbankdatei::Zeile_einer_Beurteilung_die_als_Marke_gilt_wird_geschrieben_und_gemeldet() {
    QFETCH(QString, Zeile);
    QFETCH(bool, Gemeldet);
    TestbuchLaden(QStringLiteral("Schueler 10000 7a Bauer Anna"));
    Datenbank.Schueler[0].Beurteilung[3] = QStringLiteral("a\r\n") + Zeile + QStringLiteral("\r\nb");
    if (Gemeldet)
        Welt.Boxen.ErwarteMeldung(
            QStringLiteral("Die Datei ist gespeichert, aber die Beurteilung von Bauer Anna (7a) enthält die "
                           "Zeile \"%1\".")
                .arg(Zeile));
    const QString Pfad = Welt.Pfad(QStringLiteral("buch.txt"));
    SpeichernDatenbank3(Pfad);
    QVERIFY(Testwelt::DateiInhalt(Pfad).contains("\r\na\r\n" + Zeile.toLatin1() + "\r\nb\r\n"));
    QVERIFY(Welt.Boxen.AllesGefragt());
    SpeichernDatenbank2(Pfad); // has no assessments: nothing to tell
}

void Datenbankdatei::Alle_Bytes_der_Codeseite_kommen_zurueck() {
    QByteArray Alle;
    for (int Byte = 0; Byte < 256; ++Byte)
        if (Byte != '\t' && Byte != '\r' && Byte != '\n')
            Alle.append(static_cast<char>(Byte));
    QByteArray Bytes = Kleinbuch();
    Bytes.replace("Bruchrechnen", Alle);
    QVERIFY(LadeDatenbank(Welt.DateiAnlegen(QStringLiteral("buch.txt"), Bytes)));
    QCOMPARE(DatenbankBytes(), Bytes);
}

void Datenbankdatei::Parameter_folgen_der_Sprache_des_Systems() {
    SystemSpracheSetzen(QLocale(QLocale::English, QLocale::UnitedStates));
    QVERIFY(DatenbankBytes().endsWith("\tTrue\t0.5\tFalse\t0.3\t1\t1\t0.5\r\n"));
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Austria));
    QVERIFY(DatenbankBytes().endsWith("\tWahr\t0,5\tFalsch\t0,3\t1\t1\t0,5\r\n"));
}

void Datenbankdatei::Volle_Felder_5001_Schueler_kommen_zurueck() {
    GrossbuchFuellen(4);
    QCOMPARE(Datenbank.AnzSchueler, 5001);
    QCOMPARE(Datenbank.AnzNoten, 10001);
    QCOMPARE(Datenbank.AnzFaecher, 501);
    const QByteArray Bytes = DatenbankBytes();
    QVERIFY(LadeDatenbank(Welt.DateiAnlegen(QStringLiteral("gross.txt"), Bytes)));
    QVERIFY(DatenbankBytes() == Bytes); // too big to be shown by a comparison
}

void Datenbankdatei::Speichern_nimmt_den_Fokus_und_merkt_den_Pfad() {
    Testoberflaeche Fenster;
    OberflaecheSetzen(&Fenster);
    DatenGeaendert = true;
    const QString Pfad = Welt.Pfad(QStringLiteral("buch.txt"));
    SpeichernDatenbank3(Pfad);
    QCOMPARE(Fenster.Gerufen, QStringList{QStringLiteral("Fokus")});
    QCOMPARE(Fenster.Titel, QStringLiteral("Tafelquell 3.1 - buch.txt"));
    QCOMPARE(AutoDatei(), Pfad);
    QCOMPARE(DatenGeaendert, false);
    OberflaecheSetzen(nullptr);
}

void Datenbankdatei::Fremdschueler_kommen_ohne_Beurteilungen() {
    FremdSchueler[0].Beurteilung[0].clear();
    QVERIFY(LadeFremdSchueler(QStringLiteral(TESTDATEN "/klein.txt")));
    QCOMPARE(AnzFremdSchueler, 1);
    QCOMPARE(FremdSchueler[0].ID, 10000);
    QCOMPARE(FremdSchueler[0].Name, QStringLiteral("Anna Bauer"));
    QCOMPARE(FremdSchueler[0].Feld[5], QStringLiteral("w"));
    QCOMPARE(FremdSchueler[0].Beurteilung[0], QString());
}

void Datenbankdatei::Fremdschueler_lassen_die_Datenbank_in_Ruhe() {
    TestbuchLaden(QStringLiteral("Klasse 3b"));
    const QByteArray Vorher = DatenbankBytes();
    QVERIFY(LadeFremdSchueler(QStringLiteral(TESTDATEN "/schule.txt")));
    QVERIFY(AnzFremdSchueler > 100);
    QCOMPARE(DatenbankBytes(), Vorher);
    QCOMPARE(NaechsteSchuelerID, ErsteSchuelerID);
    QCOMPARE(AutoDatei(), QStringLiteral("Unbenannt"));
}

void Datenbankdatei::Fremdschueler_aus_fremder_Datei_werden_abgelehnt_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::addColumn<QString>("Meldung");
    QTest::newRow("Text") << QByteArray("Hallo\r\n") << QStringLiteral("Die Datei ist keine NotenDatenbank!");
    QTest::newRow("Version") << QByteArray("[Tafelquell 4.0]\r\n")
                             << QStringLiteral(
                                    "Die Datei ist nicht ladbar.\rUm sie zu laden, benötigen Sie die "
                                    "Version 4.0 der Tafelquell!");
}

void Datenbankdatei::Fremdschueler_aus_fremder_Datei_werden_abgelehnt() {
    QFETCH(QByteArray, Inhalt);
    QFETCH(QString, Meldung);
    Welt.Boxen.ErwarteMeldung(Meldung);
    QVERIFY(!LadeFremdSchueler(Welt.DateiAnlegen(QStringLiteral("fremd.txt"), Inhalt)));
}

void Datenbankdatei::Fremdschueler_aus_beschaedigter_Datei_melden_und_bleiben_leer() {
    const QString Pfad =
        Welt.DateiAnlegen(QStringLiteral("fremd.txt"), Ersetzt(Kleinbuch(), QStringLiteral("[ZSchüler]\n"),
                                                               QStringLiteral("x\tEva\n[ZSchüler]\n")));
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die Anzahl der Daten in der 2.ten Zeile der Sektion [Schüler]"));
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Fehler beim Einlesen der Schüler aus einer Notendatenbank!\r\nDie Datei %1 ist "
                       "beschädigt oder hat ungültige Daten!\r\n\r\nFehlerindizien:\r\n")
            .arg(Pfad));
    QVERIFY(!LadeFremdSchueler(Pfad));
    QCOMPARE(AnzFremdSchueler, 0);
}

void Datenbankdatei::Fremdschueler_aus_fehlender_Datei_melden() {
    const QString Pfad = Welt.Pfad(QStringLiteral("fort.txt"));
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei ") + Pfad + QStringLiteral(" ist nicht vorhanden!"));
    QVERIFY(!LadeFremdSchueler(Pfad));
}

TESTKLASSE(Datenbankdatei)

#include "tst_datenbankdatei.moc"
