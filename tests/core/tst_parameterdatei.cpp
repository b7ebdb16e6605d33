#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Laufzeitfehler.h"
#include "core/Parameterdatei.h"
#include "core/Zahlen.h"

#include <QtTest>

/// "Tafelquell.ini": the distribution tables and the names of tests.
class Parameterdatei : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Welt.Aufraeumen(); }

    void Gelieferte_Datei_kommt_byte_fuer_byte_zurueck();
    void Werte_stehen_an_ihrem_Platz();
    void Gesamtzahlen_ausser_10_bis_200_entfallen_data();
    void Gesamtzahlen_ausser_10_bis_200_entfallen();
    void Gesamtzahl_ohne_erste_Grenze_hat_keine_Zeile();
    void Geschrieben_wird_auch_eine_kleine_Gesamtzahl();
    void Keine_Zahl_zaehlt_als_0();
    void Stufen_ausser_1_bis_13_entfallen();
    void Sechste_Zeile_einer_Verteilung_entfaellt();
    void Falscher_Kopf_wird_abgelehnt_und_laesst_die_Tabellen();
    void Version_2_wird_mit_den_Zeichen_ab_Stelle_18_abgelehnt();
    void Abgelehnte_Datei_wird_vor_dem_Schreiben_bewahrt();
    void Datei_mit_unlesbaren_Zahlen_wird_vor_dem_Schreiben_bewahrt();
    void Tabellen_ueberstehen_den_Wechsel_der_Systemsprache();
    void Fehlende_Datei_wirft();
    void Nicht_schreibbar_wirft_und_laesst_die_alte_Datei();
    void MaxNote_kommt_aus_den_Einstellungen_data();
    void MaxNote_kommt_aus_den_Einstellungen();

  private:
    QByteArray Datei() { return Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("programm/Tafelquell.ini"))); }
    void DateiSetzen(const QByteArray& Inhalt) {
        Welt.DateiAnlegen(QStringLiteral("programm/Tafelquell.ini"), Inhalt);
    }
    static QByteArray Geliefert() {
        return Testwelt::DateiInhalt(QStringLiteral(LIEFERDATEN "/Tafelquell.ini"));
    }
    Testwelt Welt;
};

void Parameterdatei::init() {
    Welt.Herstellen();
    EigeneVerteilung = {};
    GaussVerteilung = {};
    BLLVVerteilung = {};
    Probenbezeichnung = {};
    ExtemporalenBezeichnung = {};
    DateiSetzen(Geliefert());
}

void Parameterdatei::Gelieferte_Datei_kommt_byte_fuer_byte_zurueck() {
    LadeParameter();
    DateiSetzen("anderes");
    SpeichereParameter();
    QCOMPARE(Datei(), Geliefert());
}

void Parameterdatei::Werte_stehen_an_ihrem_Platz() {
    LadeParameter();
    QCOMPARE(EigeneVerteilung[0][0], 94.0F);
    QCOMPARE(EigeneVerteilung[4][4], 17.0F);
    QCOMPARE(GaussVerteilung[1][2], 52.0F);
    QCOMPARE(BLLVVerteilung[10][1], 7.5F);
    QCOMPARE(BLLVVerteilung[9][0], 0.0F);
    QVERIFY(BLLVVerteilung[200][4] > 0);
    QVERIFY(!Probenbezeichnung[1].isEmpty());
    QVERIFY(!ExtemporalenBezeichnung[13].isEmpty());
}

void Parameterdatei::Gesamtzahlen_ausser_10_bis_200_entfallen_data() {
    QTest::addColumn<int>("Gesamtzahl");
    QTest::addColumn<bool>("Genommen");
    QTest::newRow("5") << 5 << false;
    QTest::newRow("9") << 9 << false;
    QTest::newRow("10") << 10 << true;
    QTest::newRow("200") << 200 << true;
    QTest::newRow("201") << 201 << false;
    QTest::newRow("-1") << -1 << false;
}

void Parameterdatei::Gesamtzahlen_ausser_10_bis_200_entfallen() {
    QFETCH(int, Gesamtzahl);
    QFETCH(bool, Genommen);
    DateiSetzen("[Parameter f\xFCr Tafelquell 3.0]\r\n[BLLV-Verteilung]\r\nPunkte\r\n" +
                QByteArray::number(Gesamtzahl) + "\t9\t8\t7\t6\t5\r\n");
    LadeParameter();
    Reihe<Reihe<float, 5>, 201> Erwartet{};
    if (Genommen)
        for (int i = 0; i < 5; ++i)
            Erwartet[Gesamtzahl][i] = static_cast<float>(9 - i);
    QVERIFY(BLLVVerteilung == Erwartet);
}

void Parameterdatei::Gesamtzahl_ohne_erste_Grenze_hat_keine_Zeile() {
    BLLVVerteilung[20] = {};
    BLLVVerteilung[20][1] = 5;
    BLLVVerteilung[21][0] = 5;
    SpeichereParameter();
    QVERIFY(!Datei().contains("\r\n20\t"));
    QVERIFY(Datei().contains("\r\n21\t5\t0\t0\t0\t0\r\n"));
}

void Parameterdatei::Geschrieben_wird_auch_eine_kleine_Gesamtzahl() {
    BLLVVerteilung[5][0] = 4.5F;
    SpeichereParameter();
    QVERIFY(Datei().contains("\r\n5\t4,5\t"));
    LadeParameter();
    QCOMPARE(BLLVVerteilung[5][0], 4.5F); // not read, but what stood there stays
}

void Parameterdatei::Keine_Zahl_zaehlt_als_0() {
    DateiSetzen(
        "[Parameter f\xFCr Tafelquell 3.0]\r\n[Eigene Verteilung]\r\nWertung\r\n--\tx\t1.5\t2,5\t\r\n");
    LadeParameter();
    QCOMPARE(EigeneVerteilung[0][0], 0.0F);
    QCOMPARE(EigeneVerteilung[0][1], 0.0F);
    QCOMPARE(EigeneVerteilung[0][2], 2.5F);
    QCOMPARE(EigeneVerteilung[0][4], 0.0F);
}

void Parameterdatei::Datei_mit_unlesbaren_Zahlen_wird_vor_dem_Schreiben_bewahrt() {
    const QByteArray Beschaedigt = Geliefert().replace("\r\n10\t9\t", "\r\n10\tneun\t");
    QVERIFY(Beschaedigt != Geliefert());
    DateiSetzen(Beschaedigt);
    LadeParameter();
    SpeichereParameter();
    const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
    const QStringList Kopien = Zustand.entryList({QStringLiteral("Original-*")});
    QCOMPARE(Kopien.size(), 1);
    QCOMPARE(Testwelt::DateiInhalt(Zustand.filePath(Kopien.first())), Beschaedigt);
}

void Parameterdatei::Tabellen_ueberstehen_den_Wechsel_der_Systemsprache() {
    SystemSpracheSetzen(QLocale(QLocale::English, QLocale::UnitedStates));
    LadeParameter();
    QCOMPARE(BLLVVerteilung[10][1], 7.5F);
    QCOMPARE(GaussVerteilung[1][2], 52.0F);
    SpeichereParameter();
    QVERIFY(Datei().contains("\r\n10\t9\t7.5\t"));
    QCOMPARE(QDir(Welt.Pfad(QStringLiteral("zustand"))).entryList({QStringLiteral("Original-*")}),
             QStringList());

    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    LadeParameter();
    SpeichereParameter();
    QCOMPARE(Datei(), Geliefert());
}

void Parameterdatei::Stufen_ausser_1_bis_13_entfallen() {
    DateiSetzen(
        "[Parameter f\xFCr Tafelquell 3.0]\r\n[Probenbezeichnungen]\r\nKlasse\r\n0\tA\tB\r\n1\tProbe\tLZK\r\n"
        "13\tKlausur\tTest\r\n14\tC\tD\r\nx\tE\tF\r\n");
    LadeParameter();
    QCOMPARE(Probenbezeichnung[0], QString());
    QCOMPARE(Probenbezeichnung[1], QStringLiteral("Probe"));
    QCOMPARE(ExtemporalenBezeichnung[13], QStringLiteral("Test"));
}

void Parameterdatei::Sechste_Zeile_einer_Verteilung_entfaellt() {
    QByteArray Bytes = "[Parameter f\xFCr Tafelquell 3.0]\r\n[Gau\xDF-Verteilung]\r\nWertung\r\n";
    for (int i = 1; i <= 6; ++i)
        Bytes += "o\t" + QByteArray::number(i) + "\t0\t0\t0\t0\r\n";
    DateiSetzen(Bytes);
    LadeParameter();
    QCOMPARE(GaussVerteilung[4][0], 5.0F);
    QCOMPARE(EigeneVerteilung[0][0], 0.0F);
}

void Parameterdatei::Falscher_Kopf_wird_abgelehnt_und_laesst_die_Tabellen() {
    EigeneVerteilung[0][0] = 1;
    DateiSetzen("[Parameter fuer Tafelquell 3.0]\r\n");
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die Parameter-Datei TAFELQUELL.INI hat ein ungültiges Format!"));
    LadeParameter();
    QCOMPARE(EigeneVerteilung[0][0], 1.0F);
    DateiSetzen({});
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die Parameter-Datei TAFELQUELL.INI hat ein ungültiges Format!"));
    LadeParameter();
}

void Parameterdatei::Version_2_wird_mit_den_Zeichen_ab_Stelle_18_abgelehnt() {
    DateiSetzen("[Parameter f\xFCr Tafelquell 2.0]\r\n");
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei TAFELQUELL.INI ist nicht ladbar.\rUm sie zu laden, "
                                             "benötigen Sie die Version fel der Tafelquell!"));
    LadeParameter();
    QCOMPARE(BLLVVerteilung[10][0], 0.0F);
}

void Parameterdatei::Abgelehnte_Datei_wird_vor_dem_Schreiben_bewahrt() {
    const QByteArray Fremd = "[Parameter f\xFCr Tafelquell 4.0]\r\nneues\r\n";
    DateiSetzen(Fremd);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei TAFELQUELL.INI ist nicht ladbar."));
    LadeParameter();
    SpeichereParameter();
    const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
    const QStringList Kopien = Zustand.entryList({QStringLiteral("Original-*")});
    QCOMPARE(Kopien.size(), 1);
    QCOMPARE(Testwelt::DateiInhalt(Zustand.filePath(Kopien.first())), Fremd);
}

void Parameterdatei::Fehlende_Datei_wirft() {
    QVERIFY(QFile::remove(Welt.Pfad(QStringLiteral("programm/Tafelquell.ini"))));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, LadeParameter());
}

void Parameterdatei::Nicht_schreibbar_wirft_und_laesst_die_alte_Datei() {
    LadeParameter();
    Probenbezeichnung[1] = QStringLiteral("Ș");
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, SpeichereParameter());
    QCOMPARE(Datei(), Geliefert());
}

void Parameterdatei::MaxNote_kommt_aus_den_Einstellungen_data() {
    QTest::addColumn<QString>("Wert");
    QTest::addColumn<int>("Note");
    QTest::newRow("5") << QStringLiteral("5") << 5;
    QTest::newRow("6") << QStringLiteral("6") << 6;
    QTest::newRow("unsinnig") << QStringLiteral("99") << 6;
    QTest::newRow("keine Zahl") << QStringLiteral("x") << 6;
}

void Parameterdatei::MaxNote_kommt_aus_den_Einstellungen() {
    QFETCH(QString, Wert);
    EinstellungSchreiben(QStringLiteral("MaxNote"), Wert);
    LadeParameter();
    QTEST(int(MaxNote), "Note");
}

TESTKLASSE(Parameterdatei)

#include "tst_parameterdatei.moc"
