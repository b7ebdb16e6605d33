#include "common/Testprogramm.h"
#include "core/Laufzeitfehler.h"
#include "core/Zahlen.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

namespace {

const QLocale Deutsch(QLocale::German, QLocale::Germany);
const QLocale Amerikanisch(QLocale::English, QLocale::UnitedStates);

struct Sprachfall {
    const char* Name;
    QLocale Sprache;
    QChar Dezimal;
};

/// The three locales of every test here; C is German, as the program has it.
const QList<Sprachfall>& Sprachen() {
    static const QList<Sprachfall> Alle{
        {"de", Deutsch, u','}, {"en_US", Amerikanisch, u'.'}, {"C", QLocale::c(), u','}};
    return Alle;
}

/// The text with the decimal sign of the locale in place of each "#".
QString Mit(QString Muster, QChar Dezimal) {
    return Muster.replace(u'#', Dezimal);
}

} // namespace

class TestZahlen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { SystemSpracheSetzen(Deutsch); }

    void eineSpracheOhneNamenIstDeutsch() {
        SystemSpracheSetzen(QLocale::c());
        QCOMPARE(SystemSprache().language(), QLocale::German);
        QCOMPARE(ZahlText(1.5), QStringLiteral("1,5"));
    }

    void liestZahlenDerSprache_data() {
        QTest::addColumn<QLocale>("Sprache");
        QTest::addColumn<QString>("Text");
        QTest::addColumn<bool>("IstZahl");
        QTest::addColumn<double>("Wert");
        struct Fall {
            const char* Muster;
            bool IstZahl;
            double Wert;
        };
        const QList<Fall> Faelle{
            {"0", true, 0},      {"12", true, 12},       {"12#5", true, 12.5},  {"-0#1", true, -0.1},
            {"+3", true, 3},     {"#5", true, 0.5},      {"5#", true, 5},       {" 3 ", true, 3},
            {"1e3", true, 1000}, {"2#5E-1", true, 0.25}, {"1e+2", true, 100},   {"007", true, 7},
            {"", false, 0},      {"   ", false, 0},      {"abc", false, 0},     {"ne", false, 0},
            {"-", false, 0},     {"+", false, 0},        {"#", false, 0},       {"e3", false, 0},
            {"1e", false, 0},    {"1e#5", false, 0},     {"1#2#3", false, 0},   {"1 000", false, 0},
            {"3-", false, 0},    {"--3", false, 0},      {"+-3", false, 0},     {"inf", false, 0},
            {"-inf", false, 0},  {"nan", false, 0},      {"NAN", false, 0},     {"0x10", false, 0},
            {"1e999", false, 0}, {"12a", false, 0},      {"\xd9\xa1", false, 0}};
        for (const Sprachfall& Sprache : Sprachen())
            for (const Fall& Einer : Faelle) {
                const QString Text = Mit(QString::fromUtf8(Einer.Muster), Sprache.Dezimal);
                QTest::addRow("%s '%s'", Sprache.Name, qPrintable(Text))
                    << Sprache.Sprache << Text << Einer.IstZahl << Einer.Wert;
            }
    }
    void liestZahlenDerSprache() {
        QFETCH(const QLocale, Sprache);
        QFETCH(const QString, Text);
        QFETCH(const bool, IstZahl);
        QFETCH(const double, Wert);
        SystemSpracheSetzen(Sprache);
        const std::optional<double> Zahl = ZahlLesen(Text);
        QCOMPARE(Zahl.has_value(), IstZahl);
        if (IstZahl)
            QCOMPARE(*Zahl, Wert);
    }

    void dasDezimalzeichenDerAnderenSpracheIstKeineZahl() {
        QVERIFY(!ZahlLesen(QStringLiteral("1.5")));
        QVERIFY(!ZahlLesen(QStringLiteral("1.234")));
        SystemSpracheSetzen(Amerikanisch);
        QVERIFY(!ZahlLesen(QStringLiteral("1,5")));
        QVERIFY(!ZahlLesen(QStringLiteral("1,234")));
    }

    void einTextVonMehrAls64ZeichenIstKeineZahl() {
        QCOMPARE(ZahlLesen(QString(64, u'0')), std::optional<double>(0));
        QVERIFY(!ZahlLesen(QString(65, u'0')));
    }

    void schreibtOhneGruppenUndOhneNullenAmEnde_data() {
        QTest::addColumn<double>("Zahl");
        QTest::addColumn<QString>("Muster");
        QTest::newRow("ganz") << 12.0 << "12";
        QTest::newRow("halb") << 12.5 << "12#5";
        QTest::newRow("tausend") << 1234.5 << "1234#5";
        QTest::newRow("hundert") << 100.0 << "100";
        QTest::newRow("negativ") << -0.1 << "-0#1";
        QTest::newRow("null") << 0.0 << "0";
        QTest::newRow("negative Null") << -0.0 << "0";
        QTest::newRow("Summe ohne Rest") << 0.1 + 0.2 << "0#3";
        QTest::newRow("Drittel") << 1.0 / 3 << "0#333333333333333";
    }
    void schreibtOhneGruppenUndOhneNullenAmEnde() {
        QFETCH(const double, Zahl);
        QFETCH(const QString, Muster);
        for (const Sprachfall& Sprache : Sprachen()) {
            SystemSpracheSetzen(Sprache.Sprache);
            QCOMPARE(ZahlText(Zahl), Mit(Muster, Sprache.Dezimal));
        }
    }

    void einfacheGenauigkeitZeigtHoechstensSiebenStellen_data() {
        QTest::addColumn<float>("Zahl");
        QTest::addColumn<QString>("Muster");
        QTest::newRow("0,3") << 0.3F << "0#3";
        QTest::newRow("0,1") << 0.1F << "0#1";
        QTest::newRow("Drittel") << 1.0F / 3 << "0#3333333";
        QTest::newRow("33,33333") << 100.0F / 3 << "33#33333";
        QTest::newRow("ganz") << 87.0F << "87";
        QTest::newRow("negative Null") << -0.0F << "0";
    }
    void einfacheGenauigkeitZeigtHoechstensSiebenStellen() {
        QFETCH(const float, Zahl);
        QFETCH(const QString, Muster);
        for (const Sprachfall& Sprache : Sprachen()) {
            SystemSpracheSetzen(Sprache.Sprache);
            QCOMPARE(ZahlText(Zahl), Mit(Muster, Sprache.Dezimal));
        }
    }

    void ganzeZahlenHabenKeineGruppen() {
        QCOMPARE(ZahlText(1234567), QStringLiteral("1234567"));
        QCOMPARE(ZahlText(-5), QStringLiteral("-5"));
    }

    void wasGeschriebenWurdeLiestSichAlsDasselbe() {
        std::mt19937 Zufall(4711); // a fixed seed: each run tries the same numbers
        std::uniform_int_distribution<int> Halbe(-400, 400);
        std::uniform_real_distribution<float> Beliebig(0, 200);
        for (const Sprachfall& Sprache : Sprachen()) {
            SystemSpracheSetzen(Sprache.Sprache);
            for (int i = 0; i < 2000; ++i) {
                const double Punkte = Halbe(Zufall) / 2.0;
                QCOMPARE(ZahlLesen(ZahlText(Punkte)), std::optional<double>(Punkte));
                const QString Text = ZahlText(Beliebig(Zufall));
                QCOMPARE(ZahlText(static_cast<float>(*ZahlLesen(Text))), Text);
            }
        }
    }

    void rundenGehtBeiGleichstandZurGeradenZahl_data() {
        QTest::addColumn<double>("Zahl");
        QTest::addColumn<int>("Ganz");
        QTest::newRow("0,5") << 0.5 << 0;
        QTest::newRow("1,5") << 1.5 << 2;
        QTest::newRow("2,5") << 2.5 << 2;
        QTest::newRow("3,5") << 3.5 << 4;
        QTest::newRow("-0,5") << -0.5 << 0;
        QTest::newRow("-1,5") << -1.5 << -2;
        QTest::newRow("-2,5") << -2.5 << -2;
        QTest::newRow("2,4999") << 2.4999 << 2;
        QTest::newRow("2,5001") << 2.5001 << 3;
        QTest::newRow("6") << 6.0 << 6;
    }
    void rundenGehtBeiGleichstandZurGeradenZahl() {
        QFETCH(const double, Zahl);
        QFETCH(const int, Ganz);
        QCOMPARE(Runden(Zahl), Ganz);
    }

    void rundenMeldetWasNichtPasst() {
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Runden(3e9));
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Runden(-3e9));
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Runden(std::nan("")));
        QCOMPARE(Runden(2147483647.0), std::numeric_limits<int>::max());
    }

    void formateRundenVonNullWeg_data() {
        QTest::addColumn<float>("Zahl");
        QTest::addColumn<QString>("Format");
        QTest::addColumn<QString>("Muster");
        const auto Zeile = [](float Zahl, const char* Format, const char* Muster) {
            QTest::addRow("%g %s", static_cast<double>(Zahl), Format)
                << Zahl << QString::fromLatin1(Format) << QString::fromLatin1(Muster);
        };
        Zeile(0.5F, "0", "1");
        Zeile(1.5F, "0", "2");
        Zeile(2.5F, "0", "3");
        Zeile(-2.5F, "0", "-3");
        Zeile(0.4F, "0", "0");
        Zeile(2.25F, "0.0", "2#3");
        Zeile(2.35F, "0.0", "2#4"); // the single lies a little below
        Zeile(2.45F, "0.0", "2#5");
        Zeile(2.0F, "0.0", "2#0");
        Zeile(0.04F, "0.0", "0#0");
        Zeile(0.05F, "0.0", "0#1");
        Zeile(-0.04F, "0.0", "0#0");
        Zeile(-0.3F, "0.0", "-0#3");
        Zeile(2.125F, "0.00", "2#13");
        Zeile(2.375F, "0.00", "2#38");
        Zeile(2.005F, "0.00", "2#01");
        Zeile(2.115F, "0.00", "2#12");
        Zeile(2.1149F, "0.00", "2#11");
        Zeile(2.994999F, "0.00", "2#99");
        Zeile(5.995F, "0.00", "6#00");
        Zeile(9.95F, "0.0", "10#0");
        Zeile(0.0F, "0.00", "0#00");
        Zeile(1234.5F, "0.00", "1234#50");
        Zeile(1e8F, "0.0", "100000000#0");
        Zeile(1e-20F, "0.00", "0#00");
    }
    void formateRundenVonNullWeg() {
        QFETCH(const float, Zahl);
        QFETCH(const QString, Format);
        QFETCH(const QString, Muster);
        for (const Sprachfall& Sprache : Sprachen()) {
            SystemSpracheSetzen(Sprache.Sprache);
            QCOMPARE(ZahlFormat(Zahl, Format), Mit(Muster, Sprache.Dezimal));
        }
    }

    void beideRundungenBleibenVerschieden() {
        QCOMPARE(Runden(2.5), 2);
        QCOMPARE(ZahlFormat(2.5F, QStringLiteral("0")), QStringLiteral("3"));
    }

    void jederDurchschnittRundetWieVonHand() {
        // All averages of up to 40 grades: sum / count, rounded by whole-number arithmetic.
        for (int Anzahl = 1; Anzahl <= 40; ++Anzahl)
            for (int Summe = Anzahl; Summe <= 6 * Anzahl; ++Summe) {
                const float Schnitt = static_cast<float>(Summe) / static_cast<float>(Anzahl);
                const int Hundertstel = (200 * Summe + Anzahl) / (2 * Anzahl);
                const QString Erwartet = QStringLiteral("%1,%2")
                                             .arg(Hundertstel / 100)
                                             .arg(Hundertstel % 100, 2, 10, QLatin1Char('0'));
                QCOMPARE(ZahlFormat(Schnitt, QStringLiteral("0.00")), Erwartet);
            }
    }

    void wahrheitswerteInDerSprache() {
        QCOMPARE(WahrheitText(true), QStringLiteral("Wahr"));
        QCOMPARE(WahrheitText(false), QStringLiteral("Falsch"));
        SystemSpracheSetzen(Amerikanisch);
        QCOMPARE(WahrheitText(true), QStringLiteral("True"));
        QCOMPARE(WahrheitText(false), QStringLiteral("False"));
        SystemSpracheSetzen(QLocale::c());
        QCOMPARE(WahrheitText(true), QStringLiteral("Wahr"));
    }

    void wahrIstWahrOderTrueInJederSchreibung() {
        for (const Sprachfall& Sprache : Sprachen()) {
            SystemSpracheSetzen(Sprache.Sprache);
            for (const char* Wahr : {"Wahr", "WAHR", "true", "True"})
                QVERIFY2(WahrheitLesen(QString::fromLatin1(Wahr)), Wahr);
            for (const char* Falsch : {"Falsch", "False", "", "1", "ja", " Wahr"})
                QVERIFY2(!WahrheitLesen(QString::fromLatin1(Falsch)), Falsch);
        }
    }
};

TESTKLASSE(TestZahlen)
#include "tst_zahlen.moc"
