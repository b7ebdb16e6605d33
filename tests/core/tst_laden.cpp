#include "Buchdatei.h"

#include "common/Schlechtes.h"
#include "common/Testoberflaeche.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"

#include <QtTest>

namespace {

const QString Schadensanfang = QStringLiteral("Fehler beim Einlesen der Datenbank!\r\n");
const QString Warnungsanfang = QStringLiteral("Die Anzahl der Daten in der ");

} // namespace

/// What a load makes of good and odd files.
class Laden : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        OberflaecheSetzen(&Fenster);
        Fenster = {};
    }
    void cleanup() { Welt.Aufraeumen(); }

    void Alle_Felder_kommen_an();
    void Geladen_heisst_Pfad_gemerkt_Titel_gesetzt_und_unveraendert();
    void IDs_ausserhalb_ihres_Bereichs_bewegen_den_Zaehler_nicht_data();
    void IDs_ausserhalb_ihres_Bereichs_bewegen_den_Zaehler_nicht();
    void Titel_der_freien_Felder_kommen_aus_der_Kopfzeile();
    void Teilnahme_ist_ja_nur_bei_ja_oder_1_data();
    void Teilnahme_ist_ja_nur_bei_ja_oder_1();
    void Probe_ohne_Fach_entfaellt_stumm();
    void Unbekannter_Abschnitt_entfaellt_stumm();
    void Kurze_Zeile_warnt_und_behaelt_die_Felder_der_Zeile_davor();
    void Warnung_hat_ihren_genauen_Wortlaut();
    void Kopf_der_Schueler_mit_falscher_Feldzahl_warnt_als_Zeile_0();
    void Parameterzeile_mit_9_Feldern_behaelt_Feld_10_der_Zeile_davor();
    void Parameterzeile_mit_9_Feldern_und_leerem_Feld_10_davor_nimmt_die_Vorgaben();
    void Beurteilung_ueber_mehrere_Zeilen_und_mit_leerer_am_Ende();
    void Fuehrende_Leerzeilen_einer_Beurteilung_entfallen();
    void Zweite_Marke_desselben_Platzes_haengt_an();
    void Zeile_in_eckigen_Klammern_beendet_die_Beurteilungen();
    void Beurteilung_eines_unbekannten_Schuelers_entfaellt();
    void Wahrheitswerte_beider_Sprachen_data();
    void Wahrheitswerte_beider_Sprachen();
    void Fremdes_Dezimalzeichen_wird_durch_die_Pruefung_ersetzt();
    void Zeilenenden_LF_CR_und_gemischt_data();
    void Zeilenenden_LF_CR_und_gemischt();
    void Letzte_Zeile_ohne_Zeilenende_zaehlt();
    void Leere_Probe_hat_ihren_Platz_und_leere_Felder();
    void Erste_von_zwei_gleichen_IDs_gewinnt();
    void Version_2_laedt_ohne_Beurteilungen();
    void Version_2_leert_nur_die_ersten_beiden_Beurteilungen();
    void Version_2_nimmt_eine_leere_Zeile_als_Marke();

  private:
    QString Datei(const QByteArray& Inhalt) { return Welt.DateiAnlegen(QStringLiteral("buch.txt"), Inhalt); }
    Testwelt Welt;
    Testoberflaeche Fenster;
};

void Laden::Alle_Felder_kommen_an() {
    QVERIFY(LadeDatenbank(Datei(Kleinbuch())));
    QCOMPARE(Datenbank.AnzKlassen, 1);
    QCOMPARE(Datenbank.Klassen[0], (Klasse{QStringLiteral("2003/04"), QStringLiteral("7a")}));
    QCOMPARE(Datenbank.AnzFaecher, 1);
    const Fach& F = Datenbank.Faecher[0];
    QCOMPARE(F.ID, 50000);
    QCOMPARE(F.Name, QStringLiteral("Mathematik"));
    QCOMPARE(F.GrenzeM, QStringLiteral("6"));
    QCOMPARE(F.Proben[1].Name, QStringLiteral("Bruchrechnen"));
    QCOMPARE(F.Proben[1].Gesamtpunktzahl, QStringLiteral("40"));
    QCOMPARE(F.Proben[1].NGrenze[5], QStringLiteral("9"));
    QCOMPARE(Datenbank.AnzSchueler, 1);
    QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Anna Bauer"));
    QCOMPARE(Datenbank.Schueler[0].Feld[5], QStringLiteral("w"));
    QCOMPARE(Datenbank.AnzNoten, 1);
    QCOMPARE(Datenbank.Noten[0].N[1], QStringLiteral("2"));
    QCOMPARE(Datenbank.Noten[0].P[1], QStringLiteral("33"));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[0],
             QStringLiteral("Anna arbeitet zuverlässig.\r\nSie beteiligt sich rege am Unterricht."));
    QCOMPARE(Datenbank.GrenznotenNotenAbstand, 0.3F);
    QCOMPARE(Datenbank.NotenberechnenMethode, QStringLiteral("1"));
}

void Laden::Geladen_heisst_Pfad_gemerkt_Titel_gesetzt_und_unveraendert() {
    DatenGeaendert = true;
    const QString Pfad = Datei(Kleinbuch());
    QVERIFY(LadeDatenbank(Pfad));
    QCOMPARE(AutoDatei(), Pfad);
    QCOMPARE(Fenster.Titel, QStringLiteral("Tafelquell 3.1 - buch.txt"));
    QCOMPARE(DatenGeaendert, false);
    QCOMPARE(NaechsteSchuelerID, 10001);
    QCOMPARE(NaechsteFachID, 50001);
    QVERIFY(Fenster.Gerufen.contains(QStringLiteral("Jahrgang")));
}

void Laden::IDs_ausserhalb_ihres_Bereichs_bewegen_den_Zaehler_nicht_data() {
    QTest::addColumn<QString>("Alt");
    QTest::addColumn<QString>("Neu");
    QTest::addColumn<int>("Schueler");
    QTest::addColumn<int>("Fach");
    const QString S = QStringLiteral("\n10000\tAnna");
    const QString F = QStringLiteral("\n50000\tMathematik");
    QTest::newRow("Schueler 60000") << S << QStringLiteral("\n60000\tAnna") << 10000 << 50001;
    QTest::newRow("Schueler 50000") << S << QStringLiteral("\n50000\tAnna") << 10000 << 50001;
    QTest::newRow("Schueler 49999") << S << QStringLiteral("\n49999\tAnna") << 50000 << 50001;
    QTest::newRow("Schueler 17") << S << QStringLiteral("\n17\tAnna") << 10000 << 50001;
    QTest::newRow("Fach 90000") << F << QStringLiteral("\n90000\tMathematik") << 10001 << 50000;
    QTest::newRow("Fach 89999") << F << QStringLiteral("\n89999\tMathematik") << 10001 << 90000;
}

void Laden::IDs_ausserhalb_ihres_Bereichs_bewegen_den_Zaehler_nicht() {
    QFETCH(QString, Alt);
    QFETCH(QString, Neu);
    QVERIFY(LadeDatenbank(Datei(Ersetzt(Kleinbuch(), Alt, Neu))));
    QTEST(int(NaechsteSchuelerID), "Schueler");
    QTEST(int(NaechsteFachID), "Fach");
}

void Laden::Titel_der_freien_Felder_kommen_aus_der_Kopfzeile() {
    QVERIFY(LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\tDaten7\n"), QStringLiteral("\tBusfahrer\n")))));
    QCOMPARE(Datenbank.SchuelerFeldTitel[14], QStringLiteral("Busfahrer"));
    QCOMPARE(Datenbank.SchuelerFeldTitel[1], QStringLiteral("Strasse"));
}

void Laden::Teilnahme_ist_ja_nur_bei_ja_oder_1_data() {
    QTest::addColumn<QString>("Feld");
    QTest::addColumn<QString>("Teilnahme");
    QTest::newRow("ja") << QStringLiteral("ja") << QStringLiteral("ja");
    QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("ja");
    QTest::newRow("0") << QStringLiteral("0") << QStringLiteral("nein");
    QTest::newRow("x") << QStringLiteral("x") << QStringLiteral("nein");
    QTest::newRow("leer") << QString() << QStringLiteral("nein");
    QTest::newRow("Ja") << QStringLiteral("Ja") << QStringLiteral("nein");
}

void Laden::Teilnahme_ist_ja_nur_bei_ja_oder_1() {
    QFETCH(QString, Feld);
    QVERIFY(LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("10000\tja\t"), QStringLiteral("10000\t%1\t").arg(Feld)))));
    QTEST(Datenbank.Noten[0].Teilnahme, "Teilnahme");
}

void Laden::Probe_ohne_Fach_entfaellt_stumm() {
    QVERIFY(LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\n1\t50000\t"), QStringLiteral("\n1\t50001\t")))));
    QCOMPARE(Datenbank.Faecher[0].Proben[1], Probe());
}

void Laden::Unbekannter_Abschnitt_entfaellt_stumm() {
    QVERIFY(LadeDatenbank(Datei(Ersetzt(Kleinbuch(), QStringLiteral("[Noten]\n"),
                                        QStringLiteral("[Wetter]\nKopf\nwarm\n[Noten]\n")))));
    QCOMPARE(Datenbank.AnzNoten, 1);
}

void Laden::Kurze_Zeile_warnt_und_behaelt_die_Felder_der_Zeile_davor() {
    Welt.Boxen.ErwarteMeldung(Warnungsanfang + QStringLiteral("2.ten Zeile der Sektion [Klassen]"));
    QVERIFY(LadeDatenbank(Datei(Ersetzt(Kleinbuch(), QStringLiteral("\n2003/04\t7a\n"),
                                        QStringLiteral("\n2003/04\t7a\n2004/05\n")))));
    QCOMPARE(Datenbank.AnzKlassen, 2);
    QCOMPARE(Datenbank.Klassen[1], (Klasse{QStringLiteral("2004/05"), QStringLiteral("7a")}));
}

void Laden::Warnung_hat_ihren_genauen_Wortlaut() {
    Welt.Boxen.ErwarteMeldung(Warnungsanfang);
    QVERIFY(LadeDatenbank(Datei(
        Ersetzt(Kleinbuch(), QStringLiteral("\n2003/04\t7a\n"), QStringLiteral("\n2003/04\t7a\tx\n")))));
    const Meldungstext Box = Welt.Boxen.Gezeigt.first();
    QCOMPARE(Box.Titel, QStringLiteral("Warnung:"));
    QCOMPARE(Box.Text,
             QStringLiteral("Die Anzahl der Daten in der 1.ten Zeile der Sektion [Klassen] stimmt nicht!\r"
                            "Es sind 3 statt 2 Einträge in der Datenbank\r\r"
                            "Die Daten sind möglicherweise defekt und können ein Fehlverhalten des Programms "
                            "verursachen!\r"
                            "Es wird empfohlen, die Daten unter anderem Namen abzuspeichern!\r"
                            "Funktioniert das Programm trotzdem nicht mehr einwandfrei, wird empfohlen, \r"
                            "sich mit dem Author in Verbindung zu setzen!\r"));
}

void Laden::Kopf_der_Schueler_mit_falscher_Feldzahl_warnt_als_Zeile_0() {
    Welt.Boxen.ErwarteMeldung(Warnungsanfang + QStringLiteral("0.ten Zeile der Sektion [Schüler]"));
    QVERIFY(LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\tDaten7\n"), QStringLiteral("\tDaten7\tDaten8\n")))));
    QCOMPARE(Datenbank.SchuelerFeldTitel[14], QStringLiteral("Daten7"));
}

void Laden::Parameterzeile_mit_9_Feldern_behaelt_Feld_10_der_Zeile_davor() {
    // Field 10 of the grade row before it is N5.
    const QByteArray MitNote5 = Ersetzt(Kleinbuch(), QStringLiteral("10000\tja\t\t\t2\t\t\t\t"),
                                        QStringLiteral("10000\tja\t\t\t2\t\t\t\t3"));
    Welt.Boxen.ErwarteMeldung(Warnungsanfang + QStringLiteral("1.ten Zeile der Sektion [Parameter]"));
    QVERIFY(
        LadeDatenbank(Datei(Ersetzt(MitNote5, QStringLiteral("\t1\t1\t0,5\n"), QStringLiteral("\t1\t1\n")))));
    QCOMPARE(Datenbank.GewichtungM, 3.0F);
}

/// An empty text is no number: the rows stay, the parameters become the defaults.
void Laden::Parameterzeile_mit_9_Feldern_und_leerem_Feld_10_davor_nimmt_die_Vorgaben() {
    const QString Pfad =
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\t1\t1\t0,5\n"), QStringLiteral("\t1\t1\n")));
    Welt.Boxen.ErwarteMeldung(Warnungsanfang + QStringLiteral("1.ten Zeile der Sektion [Parameter]"));
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Pfad));
    QCOMPARE(Datenbank.AnzNoten, 1);
    QCOMPARE(Datenbank.GewichtungM, 0.5F);
    QCOMPARE(AutoDatei(), Pfad);
}

void Laden::Beurteilung_ueber_mehrere_Zeilen_und_mit_leerer_am_Ende() {
    QVERIFY(LadeDatenbank(Datei(
        Ersetzt(Kleinbuch(), QStringLiteral("Unterricht.\n"), QStringLiteral("Unterricht.\n\nEnde\n\n")))));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[0],
             QStringLiteral(
                 "Anna arbeitet zuverlässig.\r\nSie beteiligt sich rege am Unterricht.\r\n\r\nEnde\r\n"));
}

void Laden::Fuehrende_Leerzeilen_einer_Beurteilung_entfallen() {
    QVERIFY(LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("#10000_1#\n"), QStringLiteral("#10000_1#\n\n\n")))));
    QVERIFY(Datenbank.Schueler[0].Beurteilung[0].startsWith(QStringLiteral("Anna")));
}

void Laden::Zweite_Marke_desselben_Platzes_haengt_an() {
    QVERIFY(
        LadeDatenbank(Datei(Ersetzt(Kleinbuch(), QStringLiteral("[Parameter]\n"),
                                    QStringLiteral("#10000_2#\nZwei\n#10000_1#\n\nDrei\n[Parameter]\n")))));
    QCOMPARE(
        Datenbank.Schueler[0].Beurteilung[0],
        QStringLiteral("Anna arbeitet zuverlässig.\r\nSie beteiligt sich rege am Unterricht.\r\n\r\nDrei"));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[1], QStringLiteral("Zwei"));
}

void Laden::Zeile_in_eckigen_Klammern_beendet_die_Beurteilungen() {
    QVERIFY(LadeDatenbank(Datei(Ersetzt(Kleinbuch(), QStringLiteral("Sie beteiligt"),
                                        QStringLiteral("[siehe oben]\nverloren\nSie beteiligt")))));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QStringLiteral("Anna arbeitet zuverlässig."));
    QCOMPARE(Datenbank.AktJahr, QStringLiteral("2003/04"));
}

void Laden::Beurteilung_eines_unbekannten_Schuelers_entfaellt() {
    QVERIFY(
        LadeDatenbank(Datei(Ersetzt(Kleinbuch(), QStringLiteral("#10000_1#"), QStringLiteral("#10009_1#")))));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QString());
}

void Laden::Wahrheitswerte_beider_Sprachen_data() {
    QTest::addColumn<QString>("Wort");
    QTest::addColumn<bool>("Wahr");
    QTest::newRow("Wahr") << QStringLiteral("Wahr") << true;
    QTest::newRow("TRUE") << QStringLiteral("TRUE") << true;
    QTest::newRow("true") << QStringLiteral("true") << true;
    QTest::newRow("Falsch") << QStringLiteral("Falsch") << false;
    QTest::newRow("False") << QStringLiteral("False") << false;
    QTest::newRow("ja") << QStringLiteral("ja") << false;
    QTest::newRow("leer") << QString() << false;
}

void Laden::Wahrheitswerte_beider_Sprachen() {
    QFETCH(QString, Wort);
    QVERIFY(LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("12.09.\tWahr"), QStringLiteral("12.09.\t%1").arg(Wort)))));
    QTEST(Datenbank.GrenznotenBerechnen, "Wahr");
}

void Laden::Fremdes_Dezimalzeichen_wird_durch_die_Pruefung_ersetzt() {
    QVERIFY(LadeDatenbank(Datei(Ersetzt(Kleinbuch(), QStringLiteral("0,5\tFalsch\t0,3\t1\t1\t0,5"),
                                        QStringLiteral("0.7\tFalsch\t0.2\t1\t1.5\t0.5")))));
    QCOMPARE(Datenbank.GrenznotenPunkteAbstand, 0.5F);
    QCOMPARE(Datenbank.GrenznotenNotenAbstand, 0.3F);
    QCOMPARE(Datenbank.GewichtungE, 1.0F);
    QCOMPARE(Datenbank.GewichtungM, 1.0F);
}

void Laden::Zeilenenden_LF_CR_und_gemischt_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QByteArray LF = Kleinbuch();
    QTest::newRow("LF") << LF.replace("\r\n", "\n");
    QByteArray CR = Kleinbuch();
    QTest::newRow("CR") << CR.replace("\r\n", "\r");
    QByteArray Gemischt = Kleinbuch();
    const qsizetype Mitte = Gemischt.indexOf("\r\n", Gemischt.size() / 2);
    Gemischt.replace(Mitte, 2, "\r");
    QTest::newRow("gemischt") << Gemischt.replace(Gemischt.indexOf("\r\n"), 2, "\n");
}

void Laden::Zeilenenden_LF_CR_und_gemischt() {
    QFETCH(QByteArray, Inhalt);
    QVERIFY(LadeDatenbank(Datei(Inhalt)));
    QCOMPARE(DatenbankBytes(), Kleinbuch());
}

void Laden::Letzte_Zeile_ohne_Zeilenende_zaehlt() {
    QVERIFY(LadeDatenbank(Datei(Kleinbuch().chopped(2))));
    QCOMPARE(DatenbankBytes(), Kleinbuch());
}

void Laden::Leere_Probe_hat_ihren_Platz_und_leere_Felder() {
    Datenbank.Faecher[0].Proben[3].Name = QStringLiteral("von vorher");
    QVERIFY(LadeDatenbank(Datei(Kleinbuch())));
    QCOMPARE(Datenbank.Faecher[0].Proben[3], Probe());
    QCOMPARE(Datenbank.Noten[0].N[3], QString());
    QCOMPARE(Datenbank.Noten[0].P[3], QString());
}

void Laden::Erste_von_zwei_gleichen_IDs_gewinnt() {
    const QByteArray Bytes = Ersetzt(Kleinbuch(), QStringLiteral("[Proben]\n"),
                                     QStringLiteral("50000\tMusik\t7a\t2003/04\t6\t6\t6\n[Proben]\n"));
    QVERIFY(LadeDatenbank(Datei(Bytes)));
    QCOMPARE(Datenbank.Faecher[0].Proben[1].Name, QStringLiteral("Bruchrechnen"));
    QCOMPARE(Datenbank.Faecher[1].Proben[1], Probe());
}

void Laden::Version_2_laedt_ohne_Beurteilungen() {
    QVERIFY(LadeDatenbank(Datei(Kleinbuch())));
    const QString Pfad = Welt.Pfad(QStringLiteral("alt.txt"));
    SpeichernDatenbank2(Pfad);
    QVERIFY(!Testwelt::DateiInhalt(Pfad).contains("Beurteilungen"));
    QVERIFY(Testwelt::DateiInhalt(Pfad).startsWith("[Tafelquell 2.0]\r\n"));
    Datenbank.Schueler[0].Beurteilung.fill({});
    QVERIFY(LadeDatenbank(Pfad));
    QCOMPARE(Datenbank.AnzNoten, 1);
    for (const QString& Text : Datenbank.Schueler[0].Beurteilung)
        QCOMPARE(Text, QString());
}

void Laden::Version_2_leert_nur_die_ersten_beiden_Beurteilungen() {
    for (QString& Text : Datenbank.Schueler[0].Beurteilung)
        Text = QStringLiteral("alt");
    QByteArray Alt = Kleinbuch();
    Alt.replace("[Tafelquell 3.0]", "[Tafelquell 2.0]");
    Alt.remove(Alt.indexOf("[Beurteilungen]"), Alt.indexOf("[Parameter]") - Alt.indexOf("[Beurteilungen]"));
    QVERIFY(LadeDatenbank(Datei(Alt)));
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[1], QString());
    QCOMPARE(Datenbank.Schueler[0].Beurteilung[2], QStringLiteral("alt"));
}

void Laden::Version_2_nimmt_eine_leere_Zeile_als_Marke() {
    QByteArray Alt =
        Ersetzt(Kleinbuch(), QStringLiteral("[Proben]\n"), QStringLiteral("\nKopf\nverloren\n[Proben]\n"));
    Alt.replace("[Tafelquell 3.0]", "[Tafelquell 2.0]");
    Alt.remove(Alt.indexOf("[Beurteilungen]"), Alt.indexOf("[Parameter]") - Alt.indexOf("[Beurteilungen]"));
    QVERIFY(LadeDatenbank(Datei(Alt)));
    QCOMPARE(Datenbank.AnzFaecher, 1);
}

/// Files that cannot be loaded: the message, and what memory holds after it.
class LadenScheitert : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Welt.Aufraeumen(); }

    void Beschaedigte_Datei_meldet_und_leert_data();
    void Beschaedigte_Datei_meldet_und_leert();
    void Schadensbericht_hat_seinen_genauen_Wortlaut();
    void Fehler_in_Parameter_behaelt_die_Daten_mit_Vorgaben_data();
    void Fehler_in_Parameter_behaelt_die_Daten_mit_Vorgaben();
    void Fremde_Datei_laesst_den_Speicher_wie_er_war_data();
    void Fremde_Datei_laesst_den_Speicher_wie_er_war();
    void Version_4_wird_abgelehnt_und_genannt();
    void Fehlende_Datei_meldet_und_legt_neu_an();
    void Ordner_statt_Datei_gilt_als_nicht_gefunden();
    void Scheitern_im_laufenden_Programm_fragt_nicht_nach_Speichern();
    void Sehr_lange_Zeile_laedt_und_der_Bericht_bleibt_kurz_data();
    void Sehr_lange_Zeile_laedt_und_der_Bericht_bleibt_kurz();
    void Null_Bytes_stoeren_nicht();
    void UTF8_ohne_Kennung_ueberschreibt_das_Original_nicht_ohne_Kopie();
    void Ueberzaehlige_Felder_werden_vor_dem_Speichern_bewahrt();
    void Beurteilungszeilen_die_als_Abschnitt_gelten_werden_vor_dem_Speichern_bewahrt();
    void Was_hinter_einem_Fehler_in_Parameter_stand_wird_vor_dem_Speichern_bewahrt();
    void Bericht_steht_im_Fehlerprotokoll();
    void Nicht_schreibbares_Protokoll_aendert_am_Ergebnis_nichts();

  private:
    QString Datei(const QByteArray& Inhalt) { return Welt.DateiAnlegen(QStringLiteral("buch.txt"), Inhalt); }
    QString Protokoll() { return Welt.Pfad(QStringLiteral("programm/Fehlermeldungen.txt")); }
    Testwelt Welt;
    Testoberflaeche Fenster;
};

void LadenScheitert::init() {
    Welt.Herstellen();
    OberflaecheSetzen(&Fenster);
    Fenster = {};
    Datenbank.AnzKlassen = 1;
    Datenbank.Klassen[0] = {QStringLiteral("2003/04"), QStringLiteral("vorher")};
    NaechsteSchuelerID = 10500;
    DatenGeaendert = true;
}

void LadenScheitert::Beschaedigte_Datei_meldet_und_leert_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::addColumn<int>("Zeile");
    QTest::addColumn<int>("Satz");
    QTest::addColumn<QString>("Abschnitt");
    const QByteArray Gut = Kleinbuch();
    const auto Mit = [&](const char* Alt, const char* Neu) {
        return Ersetzt(Gut, QString::fromLatin1(Alt), QString::fromLatin1(Neu));
    };
    QByteArray Viele = "[Tafelquell 3.0]\r\n[Sch\xFCler]\r\nID" + QByteArray(17, '\t') + "\r\n";
    for (int i = 0; i < 5002; ++i)
        Viele += QByteArray::number(10000 + i) + QByteArray(17, '\t') + "\r\n";
    QTest::newRow("leer") << QByteArray() << 1 << 0 << QString();
    QTest::newRow("5002 Schueler") << Viele << 5005 << 5002 << QStringLiteral("[Schüler]");
    QTest::newRow("Probe 25") << Mit("\n1\t50000\t", "\n25\t50000\t") << 10 << 1
                              << QStringLiteral("[Proben]");
    QTest::newRow("71. Feld") << Mit("\n2003/04\t7a",
                                     QByteArray("\n2003/04\t7a" + QByteArray(69, '\t')).constData())
                              << 4 << 1 << QStringLiteral("[Klassen]");
    QTest::newRow("71. Feld in fremdem Abschnitt")
        << Buch(QStringLiteral("[Wetter]\nKopf\n") + QString(70, u'\t') + u'\n') << 4 << 1
        << QStringLiteral("[Wetter]");
    QTest::newRow("71. Feld vor dem ersten Abschnitt")
        << Buch(QString(70, u'\t') + u'\n') << 2 << 1 << QString();
    QTest::newRow("ID keine Zahl") << Mit("\n10000\tAnna", "\nabc\tAnna") << 13 << 1
                                   << QStringLiteral("[Schüler]");
    QTest::newRow("ID leer") << Mit("\n50000\tMathematik", "\n\tMathematik") << 7 << 1
                             << QStringLiteral("[Fächer]");
    QTest::newRow("ID zu gross") << Mit("\n10000\tAnna", "\n2147483648\tAnna") << 13 << 1
                                 << QStringLiteral("[Schüler]");
    QTest::newRow("ID mit Vorzeichen")
        << Mit("\n10000\tAnna", "\n-10000\tAnna") << 13 << 1 << QStringLiteral("[Schüler]");
    QTest::newRow("Marke ohne Zahl") << Mit("#10000_1#", "#Achtung#") << 21 << 1
                                     << QStringLiteral("[Beurteilungen]");
    QTest::newRow("Marke aus einem Zeichen")
        << Mit("#10000_1#", "#") << 21 << 1 << QStringLiteral("[Beurteilungen]");
    QTest::newRow("Marke mit sechsstelliger ID")
        << Mit("#10000_1#", "#100001_1#") << 21 << 1 << QStringLiteral("[Beurteilungen]");
    QTest::newRow("Platz 13 einer Beurteilung")
        << Mit("#10000_1#", "#10000_13#") << 22 << 2 << QStringLiteral("[Beurteilungen]");
}

void LadenScheitert::Beschaedigte_Datei_meldet_und_leert() {
    QFETCH(QByteArray, Inhalt);
    QFETCH(int, Zeile);
    QFETCH(int, Satz);
    QFETCH(QString, Abschnitt);
    const QString Pfad = Datei(Inhalt);
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Pfad));
    const QString Text = Welt.Boxen.Gezeigt.last().Text;
    QVERIFY2(Text.contains(QStringLiteral("in der Datei:       %1\r\n").arg(Zeile)), qPrintable(Text));
    QVERIFY2(Text.contains(QStringLiteral("in der Sektion:   %1\r\n").arg(Satz)), qPrintable(Text));
    QVERIFY2(
        Text.contains(QStringLiteral("Sektion:                                       %1\r\n").arg(Abschnitt)),
        qPrintable(Text));
    QCOMPARE(Datenbank.AnzSchueler + Datenbank.AnzKlassen + Datenbank.AnzFaecher + Datenbank.AnzNoten, 0);
    QCOMPARE(NaechsteSchuelerID, ErsteSchuelerID);
    QCOMPARE(DatenGeaendert, false);
    QCOMPARE(AutoDatei(), Unbenannt);
    QCOMPARE(Fenster.Titel, QStringLiteral("Tafelquell 3.1 - Unbenannt"));
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Inhalt);
}

void LadenScheitert::Schadensbericht_hat_seinen_genauen_Wortlaut() {
    const QString Pfad =
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\n10000\tAnna"), QStringLiteral("\nx\tAnna")));
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Pfad));
    QCOMPARE(Welt.Boxen.Gezeigt.last().Titel, QString());
    QCOMPARE(Welt.Boxen.Gezeigt.last().Text,
             QStringLiteral("Fehler beim Einlesen der Datenbank!\r\nDie Datei ") + Pfad +
                 QStringLiteral(" ist beschädigt oder hat ungültige Daten!\r\n\r\nFehlerindizien:\r\n"
                                "--------------------------------------------------\r\n"
                                "fehlerhafte Zeile in der Datei:       13\r\n"
                                "fehlerhafte Zeile in der Sektion:   1\r\n"
                                "Sektion:                                       [Schüler]\r\n\r\n"
                                "fehlerhafte Zeile: \r\n----------------------------\r\n"
                                "x\tAnna Bauer\t7a\t2003/04\t\t\t\t\tw\t\t\t\t\t\t\t\t\t\r\n"));
}

void LadenScheitert::Fehler_in_Parameter_behaelt_die_Daten_mit_Vorgaben_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    const auto Mit = [](const char* Alt, const char* Neu) {
        return Ersetzt(Kleinbuch(), QString::fromLatin1(Alt), QString::fromLatin1(Neu));
    };
    QTest::newRow("Zahl ist Wort") << Mit("Wahr\t0,5", "Wahr\tabc");
    QTest::newRow("Zahl ist leer") << Mit("1\t0,5\n", "1\t\n");
    QTest::newRow("Halbjahreswechsel ist kein Datum") << Mit("24.02.", "Februar");
    QTest::newRow("29.02. gibt es in keinem gewoehnlichen Jahr") << Mit("24.02.", "29.02.");
    QTest::newRow("Endjahreswechsel leer") << Mit("12.09.", "");
}

void LadenScheitert::Fehler_in_Parameter_behaelt_die_Daten_mit_Vorgaben() {
    QFETCH(QByteArray, Inhalt);
    const QString Pfad = Datei(Inhalt);
    Datenbank.GewichtungM = 4;
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Pfad));
    QCOMPARE(Datenbank.AnzSchueler, 1);
    QCOMPARE(Datenbank.AnzNoten, 1);
    QCOMPARE(Datenbank.GewichtungM, 0.5F);
    QCOMPARE(Datenbank.Halbjahreswechsel, QStringLiteral("24.02."));
    QCOMPARE(AutoDatei(), Pfad);
    QCOMPARE(DatenGeaendert, false);
}

void LadenScheitert::Fremde_Datei_laesst_den_Speicher_wie_er_war_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    const QByteArray Gut = Kleinbuch();
    QTest::newRow("anderer Text") << QByteArray("Liebe Eltern,\r\n");
    QTest::newRow("Kleinschreibung") << QByteArray("[tafelquell 3.0]\r\n");
    QTest::newRow("UTF-8 mit Kennung") << InUtf8MitMarke(Gut);
    QTest::newRow("UTF-16") << InUtf16(Gut);
    QTest::newRow("Null-Bytes am Anfang") << QByteArray(QByteArray(16, '\0') + Gut);
}

void LadenScheitert::Fremde_Datei_laesst_den_Speicher_wie_er_war() {
    QFETCH(QByteArray, Inhalt);
    const QString Pfad = Datei(Inhalt);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei ") + Pfad +
                              QStringLiteral("ist keine NotenDatenbank!"));
    QVERIFY(!LadeDatenbank(Pfad));
    QCOMPARE(Datenbank.AnzKlassen, 1);
    QCOMPARE(Datenbank.Klassen[0].Name, QStringLiteral("vorher"));
    QCOMPARE(NaechsteSchuelerID, 10500); // or an ID would be given out twice
    QCOMPARE(AutoDatei(), Unbenannt);
    QCOMPARE(DatenGeaendert, false);
    QCOMPARE(Datenbank.GewichtungM, 0.5F);
}

void LadenScheitert::Version_4_wird_abgelehnt_und_genannt() {
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die Datei ist nicht ladbar.\rUm sie zu laden, benötigen Sie die "
                       "Version 4.0 der Tafelquell!"));
    QVERIFY(!LadeDatenbank(Datei(QByteArrayLiteral("[Tafelquell 4.0]\r\n"))));
    QCOMPARE(Datenbank.AnzKlassen, 1);
    QCOMPARE(AutoDatei(), Unbenannt);
}

void LadenScheitert::Fehlende_Datei_meldet_und_legt_neu_an() {
    const QString Pfad = Welt.Pfad(QStringLiteral("fort.txt"));
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die zuletzt benutzte Notendatenbank ") + Pfad +
        QStringLiteral(" konnte nicht gefunden werden!\r\nEs wird eine neue Datenbank angelegt."));
    QVERIFY(!LadeDatenbank(Pfad));
    QCOMPARE(Datenbank.AnzKlassen, 0);
    QCOMPARE(AutoDatei(), Unbenannt);
    QCOMPARE(Welt.Boxen.Gezeigt.size(), 1);
}

void LadenScheitert::Ordner_statt_Datei_gilt_als_nicht_gefunden() {
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die zuletzt benutzte Notendatenbank ") + Welt.Ordner());
    QVERIFY(!LadeDatenbank(Welt.Ordner()));
    QCOMPARE(Datenbank.AnzKlassen, 0);
}

void LadenScheitert::Scheitern_im_laufenden_Programm_fragt_nicht_nach_Speichern() {
    Fenster.IstSichtbar = true;
    Datenbank.GrenznotenPunkteAbstand = 2;
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\n10000\tAnna"), QStringLiteral("\nx\tAnna")))));
    QCOMPARE(Welt.Boxen.Gezeigt.size(), 1);
    QCOMPARE(Datenbank.GrenznotenPunkteAbstand, 2.0F);
    QVERIFY(Fenster.Gerufen.contains(QStringLiteral("Ansicht")));
}

void LadenScheitert::Sehr_lange_Zeile_laedt_und_der_Bericht_bleibt_kurz_data() {
    QTest::addColumn<int>("Laenge");
    QTest::newRow("40 MB") << LangeZeile;
    QTest::newRow("300 MB") << SehrLangeZeile;
}

void LadenScheitert::Sehr_lange_Zeile_laedt_und_der_Bericht_bleibt_kurz() {
    QFETCH(int, Laenge);
    if (Laenge == SehrLangeZeile)
        NUR_IN_DER_LANGEN_FORM();
    const QByteArray Lang(Laenge, 'x');
    QByteArray Bytes = "[Tafelquell 3.0]\r\n[Klassen]\r\nJahr\tName\r\n" + Lang + "\r\n";
    Welt.Boxen.ErwarteMeldung(Warnungsanfang);
    QVERIFY(LadeDatenbank(Datei(Bytes)));
    QCOMPARE(Datenbank.Klassen[0].Jahr.size(), Lang.size());
    Bytes += QByteArray(80, '\t') + Lang;
    Welt.Boxen.ErwarteMeldung(Warnungsanfang);
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Datei(Bytes)));
    QVERIFY(Welt.Boxen.Gezeigt.last().Text.size() < 3000);
    Datenbank.Klassen[0] = {};
}

void LadenScheitert::Null_Bytes_stoeren_nicht() {
    QByteArray Bytes = Kleinbuch();
    Bytes.replace("Bruchrechnen", QByteArray("Bruch\0rechnen", 13));
    QVERIFY(LadeDatenbank(Datei(Bytes)));
    QCOMPARE(Datenbank.Faecher[0].Proben[1].Name.size(), 13);
    QCOMPARE(DatenbankBytes(), Bytes);
}

void LadenScheitert::UTF8_ohne_Kennung_ueberschreibt_das_Original_nicht_ohne_Kopie() {
    const QByteArray UTF8 = InUtf8(Kleinbuch());
    const QString Pfad = Datei(UTF8);
    QVERIFY(LadeDatenbank(Pfad)); // [Fächer] and [Schüler] are sections nobody knows
    QCOMPARE(Datenbank.AnzSchueler, 0);
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Beim Laden dieser Datei konnten einige Zeilen nicht zugeordnet werden"));
    SpeichernDatenbank3(Pfad);
    const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
    const QStringList Kopien = Zustand.entryList({QStringLiteral("Original-*")});
    QCOMPARE(Kopien.size(), 1);
    QCOMPARE(Testwelt::DateiInhalt(Zustand.filePath(Kopien.first())), UTF8);
    SpeichernDatenbank3(Pfad); // once is enough
}

void LadenScheitert::Ueberzaehlige_Felder_werden_vor_dem_Speichern_bewahrt() {
    const QString Pfad =
        Datei(Ersetzt(Kleinbuch(), QStringLiteral("\n2003/04\t7a\n"), QStringLiteral("\n2003/04\t7a\tx\n")));
    Welt.Boxen.ErwarteMeldung(Warnungsanfang);
    QVERIFY(LadeDatenbank(Pfad));
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Beim Laden dieser Datei"));
    SpeichernDatenbank3(Pfad);
}

/// The line in brackets is a marker and the one behind it its header: both are gone, and no row follows.
void LadenScheitert::Beurteilungszeilen_die_als_Abschnitt_gelten_werden_vor_dem_Speichern_bewahrt() {
    const QString Pfad = Datei(Ersetzt(Kleinbuch(), QStringLiteral("[Parameter]\n"),
                                       QStringLiteral("[siehe oben]\nund unten\n[Parameter]\n")));
    QVERIFY(LadeDatenbank(Pfad));
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Beim Laden dieser Datei"));
    SpeichernDatenbank3(Pfad);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

/// The file stays the current one, so the next save goes over it.
void LadenScheitert::Was_hinter_einem_Fehler_in_Parameter_stand_wird_vor_dem_Speichern_bewahrt() {
    const QByteArray Bytes = Ersetzt(Kleinbuch(), QStringLiteral("Sie beteiligt"),
                                     QStringLiteral("[Parameter]\nKopf\nSie beteiligt"));
    const QString Pfad = Datei(Bytes);
    Welt.Boxen.ErwarteMeldung(Warnungsanfang + QStringLiteral("1.ten Zeile der Sektion [Parameter]"));
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Pfad));
    QCOMPARE(AutoDatei(), Pfad);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Beim Laden dieser Datei"));
    SpeichernDatenbank3(Pfad);
    const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
    const QStringList Kopien = Zustand.entryList({QStringLiteral("Original-*")});
    QCOMPARE(Kopien.size(), 1);
    QCOMPARE(Testwelt::DateiInhalt(Zustand.filePath(Kopien.first())), Bytes);
}

void LadenScheitert::Bericht_steht_im_Fehlerprotokoll() {
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Datei({})));
    QVERIFY(Testwelt::DateiInhalt(Protokoll()).contains("Fehler beim Einlesen der Datenbank!\r\n"));
}

void LadenScheitert::Nicht_schreibbares_Protokoll_aendert_am_Ergebnis_nichts() {
    QVERIFY(QDir().mkpath(Protokoll())); // a folder in its place
    Welt.Boxen.ErwarteMeldung(Schadensanfang);
    QVERIFY(!LadeDatenbank(Datei({})));
    QCOMPARE(Datenbank.AnzKlassen, 0);
    QCOMPARE(AutoDatei(), Unbenannt);
}

TESTKLASSE(Laden)
TESTKLASSE(LadenScheitert)

#include "tst_laden.moc"
