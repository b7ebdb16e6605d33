#include "common/Testprogramm.h"
#include "core/Datum.h"
#include "core/Zahlen.h"

#include <QtTest>

namespace {

const QLocale Deutsch(QLocale::German, QLocale::Germany);
const QLocale Amerikanisch(QLocale::English, QLocale::UnitedStates);

} // namespace

class TestDatum : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { SystemSpracheSetzen(Deutsch); }

    void liestDatumsangaben_data() {
        QTest::addColumn<QLocale>("Sprache");
        QTest::addColumn<QString>("Text");
        QTest::addColumn<QDate>("Tag"); // invalid: no date
        const auto Zeile = [](const char* Name, const QLocale& Sprache, const char* Text, const QDate& Tag) {
            QTest::addRow("%s '%s'", Name, Text) << Sprache << QString::fromLatin1(Text) << Tag;
        };
        for (const auto& [Name, Sprache] : {std::pair("de", Deutsch), std::pair("C", QLocale::c())}) {
            Zeile(Name, Sprache, "12.10.2003", QDate(2003, 10, 12));
            Zeile(Name, Sprache, "1.2.03", QDate(2003, 2, 1));
            Zeile(Name, Sprache, "01.02.2003", QDate(2003, 2, 1));
            Zeile(Name, Sprache, "24.02.", QDate(1999, 2, 24));
            Zeile(Name, Sprache, "24.02", QDate(1999, 2, 24));
            Zeile(Name, Sprache, "24. 2. 2003", QDate(2003, 2, 24));
            Zeile(Name, Sprache, " 24-2-2003 ", QDate(2003, 2, 24));
            Zeile(Name, Sprache, "24/2/2003", QDate(2003, 2, 24));
            Zeile(Name, Sprache, "24 2 2003", QDate(2003, 2, 24));
            Zeile(Name, Sprache, "1.2.29", QDate(2029, 2, 1));
            Zeile(Name, Sprache, "1.2.30", QDate(1930, 2, 1));
            Zeile(Name, Sprache, "1.2.99", QDate(1999, 2, 1));
            Zeile(Name, Sprache, "1.2.3", QDate(2003, 2, 1));
            Zeile(Name, Sprache, "2003-10-12", QDate(2003, 10, 12));
            Zeile(Name, Sprache, "02.24.2003", QDate(2003, 2, 24)); // only the other order is a date
            Zeile(Name, Sprache, "29.02.2004", QDate(2004, 2, 29));
            Zeile(Name, Sprache, "29.02.", QDate());
            Zeile(Name, Sprache, "31.04.2003", QDate());
            Zeile(Name, Sprache, "0.1.2003", QDate());
        }
        Zeile("en_US", Amerikanisch, "10/12/2003", QDate(2003, 10, 12));
        Zeile("en_US", Amerikanisch, "10.12.03", QDate(2003, 10, 12));
        Zeile("en_US", Amerikanisch, "2/24", QDate(1999, 2, 24));
        Zeile("en_US", Amerikanisch, "24.02.", QDate(1999, 2, 24)); // a German book on an American system
        Zeile("en_US", Amerikanisch, "2003-10-12", QDate(2003, 10, 12));
        Zeile("en_US", Amerikanisch, "2/29", QDate());
        for (const auto& [Name, Sprache] : {std::pair("de", Deutsch), std::pair("en_US", Amerikanisch)})
            for (const char* Text : {"", "  ", "morgen", "12", "12.", "1.2.3.4", ".1.2.2003", "-1.2.2003",
                                     "1.2.123", "1.2.12345", "123.2.2003", "1.2.2003x", "12.Okt.2003",
                                     "24.021999", "1,2,2003", "99999999999.1.2003"})
                Zeile(Name, Sprache, Text, QDate());
    }
    void liestDatumsangaben() {
        QFETCH(const QLocale, Sprache);
        QFETCH(const QString, Text);
        QFETCH(const QDate, Tag);
        SystemSpracheSetzen(Sprache);
        QCOMPARE(DatumLesen(Text, 1999).value_or(QDate()), Tag);
    }

    void kurzeFormHatVierstelligesJahr_data() {
        QTest::addColumn<QLocale>("Sprache");
        QTest::addColumn<QString>("Oktober");
        QTest::addColumn<QString>("Februar");
        QTest::newRow("de") << Deutsch << "12.10.2003"
                            << "01.02.2003";
        QTest::newRow("C") << QLocale::c() << "12.10.2003"
                           << "01.02.2003";
        QTest::newRow("en_US") << Amerikanisch << "10/12/2003"
                               << "2/1/2003";
        QTest::newRow("en_GB") << QLocale(QLocale::English, QLocale::UnitedKingdom) << "12/10/2003"
                               << "01/02/2003";
        QTest::newRow("sv_SE") << QLocale(QLocale::Swedish, QLocale::Sweden) << "2003-10-12"
                               << "2003-02-01";
    }
    void kurzeFormHatVierstelligesJahr() {
        QFETCH(const QLocale, Sprache);
        QFETCH(const QString, Oktober);
        QFETCH(const QString, Februar);
        SystemSpracheSetzen(Sprache);
        QCOMPARE(DatumKurz(QDate(2003, 10, 12)), Oktober);
        QCOMPARE(DatumKurz(QDate(2003, 2, 1)), Februar);
    }

    void jedeSpracheLiestIhreEigeneKurzform() {
        const QDate Tage[]{QDate(2003, 2, 1), QDate(2003, 12, 11), QDate(1935, 10, 9), QDate(2029, 5, 31)};
        const auto Alle =
            QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
        for (const QLocale& Sprache : Alle) {
            SystemSpracheSetzen(Sprache);
            for (const QDate& Tag : Tage)
                QVERIFY2(DatumLesen(DatumKurz(Tag), 1999) == Tag,
                         qPrintable(Sprache.name() + DatumKurz(Tag)));
        }
    }

    void uhrzeitInDerFormDerSprache() {
        QCOMPARE(ZeitKurz(QTime(9, 5)), QStringLiteral("09:05"));
        SystemSpracheSetzen(Amerikanisch);
        QCOMPARE(ZeitKurz(QTime(21, 5)), QStringLiteral("9:05 PM"));
        SystemSpracheSetzen(QLocale::c());
        QCOMPARE(ZeitKurz(QTime(21, 5)), QStringLiteral("21:05"));
    }

    void schuljahrWechseltAm15August_data() {
        QTest::addColumn<QDate>("Tag");
        QTest::addColumn<QString>("Jahr");
        QTest::newRow("Tag davor") << QDate(2003, 8, 14) << "2002/03";
        QTest::newRow("Wechseltag") << QDate(2003, 8, 15) << "2003/04";
        QTest::newRow("Neujahr") << QDate(2004, 1, 1) << "2003/04";
        QTest::newRow("Silvester") << QDate(2003, 12, 31) << "2003/04";
        QTest::newRow("Jahrhundert") << QDate(1999, 9, 1) << "1999/00";
        QTest::newRow("2000") << QDate(2000, 3, 1) << "1999/00";
        QTest::newRow("1981") << QDate(1981, 9, 1) << "1981/82";
        QTest::newRow("2080") << QDate(2080, 9, 1) << "2080/81";
    }
    void schuljahrWechseltAm15August() {
        QFETCH(const QDate, Tag);
        QFETCH(const QString, Jahr);
        for (const QLocale& Sprache : {Deutsch, Amerikanisch, QLocale::c()}) {
            SystemSpracheSetzen(Sprache);
            QCOMPARE(Schuljahr(Tag), Jahr);
        }
    }

    void dieListeHat35Schuljahre() {
        int Anzahl = 0;
        for (int Jahr = 1900; Jahr < 2100; ++Jahr)
            Anzahl += IstSchuljahr(SchuljahrAb(Jahr)) ? 1 : 0;
        QCOMPARE(Anzahl, 35);
        QVERIFY(IstSchuljahr(QStringLiteral("1995/96")));
        QVERIFY(IstSchuljahr(QStringLiteral("1999/00")));
        QVERIFY(IstSchuljahr(QStringLiteral("2029/30")));
        for (const char* Falsch :
             {"1994/95", "2030/31", "2003/05", "2003/4", "2003", "", "2003/04 ", " 2003/04"})
            QVERIFY2(!IstSchuljahr(QString::fromLatin1(Falsch)), Falsch);
    }
};

TESTKLASSE(TestDatum)
#include "tst_datum.moc"
