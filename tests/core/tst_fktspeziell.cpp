#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "core/Zahlen.h"

#include <QtTest>

namespace {

/// KlassenTeile up to its end mark.
QStringList Teile() {
    QStringList Ergebnis;
    for (int i = 0; !KlassenTeile[i].isEmpty(); ++i)
        Ergebnis.append(KlassenTeile[i]);
    return Ergebnis;
}

} // namespace

class TestFktSpeziell : public QObject {
    Q_OBJECT
    Testwelt Welt;

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void suchenFindetDenErstenOderKeinen() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nFach 50001 7a Deutsch\n"
                                     "Schueler 10000 7a Bauer Anna\nSchueler 10001 7a Chr Ben\n"
                                     "Note 10000 50000 Teilnahme=ja\nNote 10000 50001 Teilnahme=ja\n"
                                     "Note 10001 50001 Teilnahme=nein\n"));
        QCOMPARE(int(FachIndex(50001)), 1);
        QCOMPARE(int(FachIndex(50002)), -1);
        QCOMPARE(int(SchuelerIndex(10001)), 1);
        QCOMPARE(int(SchuelerIndex(0)), -1);
        QCOMPARE(int(NotenIndex(10000, 50001)), 1);
        QCOMPARE(int(NotenIndex(10001, 50001)), 2);
        QCOMPARE(int(NotenIndex(10001, 50000)), -1);
        Datenbank.Faecher[1].ID = 50000;
        Datenbank.Schueler[1].ID = 10000;
        QCOMPARE(int(FachIndex(50000)), 0);
        QCOMPARE(int(SchuelerIndex(10000)), 0);
    }

    void hinterDemZaehlerWirdNichtGesucht() {
        Datenbank.Schueler[0].ID = 10000;
        Datenbank.Faecher[0].ID = 50000;
        Datenbank.Noten[0] = {};
        QCOMPARE(int(SchuelerIndex(10000)), -1);
        QCOMPARE(int(FachIndex(50000)), -1);
        QCOMPARE(int(NotenIndex(0, 0)), -1);
    }

    void ersteZahlNimmtHoechstensZweiZiffern_data() {
        QTest::addColumn<QString>("Text");
        QTest::addColumn<int>("Zahl");
        const auto Zeile = [](const char* Text, int Zahl) {
            QTest::addRow("'%s'", Text) << QString::fromUtf8(Text) << Zahl;
        };
        Zeile("7a", 7);
        Zeile("10b", 10);
        Zeile("b10a", 10);
        Zeile("3bc Mathe 2", 3);
        Zeile("123", 12);
        Zeile("1a2", 1);
        Zeile("05", 5);
        Zeile("Klasse", 0);
        Zeile("", 0);
        Zeile("x9", 9);
        Zeile("\xd9\xa1 5", 5); // only these ten are digits
    }
    void ersteZahlNimmtHoechstensZweiZiffern() {
        QFETCH(const QString, Text);
        QFETCH(const int, Zahl);
        QCOMPARE(int(ErsteZahl(Text)), Zahl);
    }

    void derWertEinerNote_data() {
        QTest::addColumn<QString>("Note");
        QTest::addColumn<float>("Schlicht");
        QTest::addColumn<float>("Beruecksichtigt"); // with a distance of 0.3
        const auto Zeile = [](const char* Note, float Schlicht, float Beruecksichtigt) {
            QTest::addRow("'%s'", Note) << QString::fromLatin1(Note) << Schlicht << Beruecksichtigt;
        };
        Zeile("2", 2, 2);
        Zeile(" 2 ", 2, 2);
        Zeile("3-", 3, 3.3F);
        Zeile("3+", 3, 2.7F);
        Zeile("3-+", 3, 3);
        Zeile("3+-", 3, 3);
        Zeile("6-", 6, 6.3F);
        Zeile("7", 6, 6);
        Zeile("99-", 6, 6.3F);
        Zeile("-3", 0, 0.3F);
        Zeile("+", 0, -0.3F);
        Zeile("-", 0, 0.3F);
        Zeile("+3", 3, 2.7F);
        Zeile("ne", 0, 0);
        Zeile("kr", 0, 0);
        Zeile("", 0, 0);
        Zeile("gut", 0, 0);
    }
    void derWertEinerNote() {
        QFETCH(const QString, Note);
        QFETCH(const float, Schlicht);
        QFETCH(const float, Beruecksichtigt);
        Datenbank.GrenznotenNotenAbstand = 0.3F;
        Datenbank.GrenznotenBeruecksichtigen = false;
        QCOMPARE(NoteAlsZahl(Note), Schlicht);
        Datenbank.GrenznotenBeruecksichtigen = true;
        QCOMPARE(NoteAlsZahl(Note), Beruecksichtigt);
    }

    void notenMitNachkommaFolgenDerSprache() {
        QCOMPARE(NoteAlsZahl(QStringLiteral("2,5")), 2.5F);
        QCOMPARE(NoteAlsZahl(QStringLiteral("2.5")), 0.0F);
        SystemSpracheSetzen(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(NoteAlsZahl(QStringLiteral("2.5")), 2.5F);
        SystemSpracheSetzen(QLocale::c());
        QCOMPARE(NoteAlsZahl(QStringLiteral("2,5")), 2.5F);
    }

    void einNameWirdHinUndZurueckGedreht_data() {
        QTest::addColumn<QString>("Name");
        QTest::addColumn<QString>("Gedreht");
        QTest::newRow("zwei Woerter") << "Bauer Anna"
                                      << "Anna Bauer";
        QTest::newRow("drei Woerter") << "von Bauer Anna"
                                      << "Anna von Bauer";
        QTest::newRow("ein Wort") << "Bauer"
                                  << "Bauer";
        QTest::newRow("geschuetztes Leerzeichen am Rand")
            << QStringLiteral("Bauer Anna\u00A0") << QStringLiteral("Anna\u00A0 Bauer");
        QTest::newRow("leer") << ""
                              << "";
    }
    void einNameWirdHinUndZurueckGedreht() {
        QFETCH(const QString, Name);
        QFETCH(const QString, Gedreht);
        NamenUmgekehrt = false;
        QCOMPARE(NameDrehen(Name), Gedreht);
        QCOMPARE(NameDrehen(u' ' + Name + u' '), Gedreht);
        NamenUmgekehrt = true;
        QCOMPARE(NameDrehen(Gedreht), Name);
    }

    void einKlassenfeldWirdInKlassenZerlegt_data() {
        QTest::addColumn<QString>("Feld");
        QTest::addColumn<QStringList>("Klassen");
        const auto Zeile = [](const char* Feld, const char* Klassen) {
            QTest::addRow("'%s'", Feld)
                << QString::fromLatin1(Feld) << QString::fromLatin1(Klassen).split(u' ', Qt::SkipEmptyParts);
        };
        Zeile("3bc", "3c 3b");
        Zeile("A1ab", "A1b A1a");
        Zeile("10ab", "10b 10a");
        Zeile("7a", "7a");
        Zeile("10", "10");
        Zeile("a", "a");
        Zeile("abc", "ac ab");
        Zeile("3bc Mathe", "3c 3b");
        Zeile("", "");
        Zeile(" 3bc", "");
        Zeile("3abcdefghij", "3j 3i 3h 3g 3f 3e 3d 3c 3b 3a");
    }
    void einKlassenfeldWirdInKlassenZerlegt() {
        QFETCH(const QString, Feld);
        QFETCH(const QStringList, Klassen);
        KlassenTeile.fill(QStringLiteral("alt"));
        KlassenTrennen(Feld);
        QCOMPARE(Teile(), Klassen);
    }

    void mehrAlsZehnBuchstabenWerfenUndAendernNichts() {
        KlassenTrennen(QStringLiteral("3bc"));
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, KlassenTrennen(QStringLiteral("3abcdefghijk")));
        QCOMPARE(Teile(), QStringList({QStringLiteral("3c"), QStringLiteral("3b")}));
    }
};

TESTKLASSE(TestFktSpeziell)
#include "tst_fktspeziell.moc"
