#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/FktAllgemein.h"
#include "core/Laufzeitfehler.h"
#include "core/Orte.h"
#include "core/Zahlen.h"

#include <QDir>
#include <QtTest>

namespace {

const QLocale Amerikanisch(QLocale::English, QLocale::UnitedStates);

} // namespace

class TestFktAllgemein : public QObject {
    Q_OBJECT
    Testwelt Welt;

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void zahlAusTextGibtNullFuerAllesWasKeineZahlIst() {
        QCOMPARE(ZahlAusText(QStringLiteral("abc")), 0.0F);
        QCOMPARE(ZahlAusText({}), 0.0F);
        QCOMPARE(ZahlAusText(QStringLiteral("1e300")), 0.0F); // no single holds it
        QCOMPARE(ZahlAusText(QStringLiteral("inf")), 0.0F);
    }

    void dasKommaGiltNurAufEinemDeutschenSystem_data() {
        QTest::addColumn<QLocale>("Sprache");
        QTest::addColumn<float>("Komma");
        QTest::addColumn<float>("Punkt");
        QTest::newRow("de") << QLocale(QLocale::German, QLocale::Germany) << 12.5F << 0.0F;
        QTest::newRow("C") << QLocale::c() << 12.5F << 0.0F;
        QTest::newRow("en_US") << Amerikanisch << 0.0F << 12.5F;
    }
    void dasKommaGiltNurAufEinemDeutschenSystem() {
        QFETCH(const QLocale, Sprache);
        QFETCH(const float, Komma);
        QFETCH(const float, Punkt);
        SystemSpracheSetzen(Sprache);
        QCOMPARE(ZahlAusText(QStringLiteral("12,5")), Komma);
        QCOMPARE(ZahlAusText(QStringLiteral("12.5")), Punkt);
    }

    void ganzzahlRundetZurGeradenZahl_data() {
        QTest::addColumn<QString>("Text");
        QTest::addColumn<int>("Wert");
        const auto Zeile = [](const char* Text, int Wert) {
            QTest::newRow(Text) << QString::fromLatin1(Text) << Wert;
        };
        Zeile("3,7", 4);
        Zeile("2,5", 2);
        Zeile("3,5", 4);
        Zeile("-2,5", -2);
        Zeile("12", 12);
        Zeile("", 0);
        Zeile("abc", 0);
        Zeile("32767", 32767);
        Zeile("32767,4", 32767);
        Zeile("32767,5", 0);
        Zeile("32768", 0);
        Zeile("-32768", -32768);
        Zeile("-32769", 0);
        Zeile("1e30", 0);
    }
    void ganzzahlRundetZurGeradenZahl() {
        QFETCH(const QString, Text);
        QFETCH(const int, Wert);
        QCOMPARE(int(GanzzahlAusText(Text)), Wert);
    }

    void jederTabulatorWirdEinLeerzeichen() {
        QString Text = QStringLiteral("a\tb\t\tc");
        QString& Ergebnis = TabsErsetzen(Text);
        QCOMPARE(Text, QStringLiteral("a b  c"));
        QCOMPARE(&Ergebnis, &Text);
    }

    void nurBlanksFallenVomRandAb_data() {
        QTest::addColumn<QString>("Text");
        QTest::addColumn<QString>("Rest");
        QTest::newRow("leer") << QString() << QString();
        QTest::newRow("ohne") << QStringLiteral("a b") << QStringLiteral("a b");
        QTest::newRow("beide Seiten") << QStringLiteral("  a  b ") << QStringLiteral("a  b");
        QTest::newRow("nur Blanks") << QStringLiteral("   ") << QString();
        QTest::newRow("geschuetzte Leerzeichen")
            << QStringLiteral(" \u00A0a\u00A0 ") << QStringLiteral("\u00A0a\u00A0");
    }
    void nurBlanksFallenVomRandAb() {
        QFETCH(const QString, Text);
        QFETCH(const QString, Rest);
        QCOMPARE(OhneRandblanks(Text), Rest);
    }

    void dateinameStehtHinterDemLetztenTrenner_data() {
        QTest::addColumn<QString>("Pfad");
        QTest::addColumn<QString>("Name");
        QTest::newRow("ohne Trenner") << "Noten.txt"
                                      << "Noten.txt";
        QTest::newRow("Schraegstrich") << "/home/x/Noten.txt"
                                       << "Noten.txt";
        QTest::newRow("umgekehrter") << "C:\\Schule\\Noten.txt"
                                     << "Noten.txt";
        QTest::newRow("gemischt") << "/home/x\\Noten.txt"
                                  << "Noten.txt";
        QTest::newRow("Ordner") << "/home/x/"
                                << "";
        QTest::newRow("leer") << ""
                              << "";
    }
    void dateinameStehtHinterDemLetztenTrenner() {
        QFETCH(const QString, Pfad);
        QFETCH(const QString, Name);
        QCOMPARE(DateiName(Pfad), Name);
    }

    void eineDateiExistiertEinOrdnerNicht() {
        const QString Pfad = Welt.DateiAnlegen(QStringLiteral("da.txt"), "x");
        QVERIFY(DateiExistiert(Pfad));
        QVERIFY(!DateiExistiert(Welt.Pfad(QStringLiteral("fort.txt"))));
        QVERIFY(!DateiExistiert(Welt.Ordner()));
        QVERIFY(!DateiExistiert({}));
    }

    void zweiFehlerHinterlassenZweiBloeckeDerReiheNach() {
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Erster Fehler\nmit Größe"));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Zweiter Fehler"));
        Fehlermeldung(QStringLiteral("Erster Fehler\nmit Größe"));
        Fehlermeldung(QStringLiteral("Zweiter Fehler"));
        const QByteArray Sterne(63, '*');
        const QByteArray Striche(63, '=');
        const QByteArray Kopf =
            Sterne + "\r\nFehlermeldung vom 12.10.2003 um 10:30 Uhr:\r\n" + Striche + "\r\n";
        QCOMPARE(Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Fehlermeldungen.txt")),
                 Kopf +
                     "Erster Fehler\r\nmit Gr\xF6\xDF"
                     "e\r\n\r\n" +
                     Kopf + "Zweiter Fehler\r\n\r\n");
        QCOMPARE(Welt.Boxen.Gezeigt.first().Titel, QString());
        QCOMPARE(Welt.Boxen.Gezeigt.first().Auswahl, Knoepfe::Ok);
    }

    void datumUndZeitDesProtokollsFolgenDerSprache() {
        SystemSpracheSetzen(Amerikanisch);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("x"));
        Fehlermeldung(QStringLiteral("x"));
        const QByteArray Datei =
            Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Fehlermeldungen.txt"));
        QVERIFY2(Datei.contains("Fehlermeldung vom 10/12/2003 um 10:30 AM Uhr:\r\n"), Datei.constData());
    }

    void einFremderBuchstabeKostetNichtDenEintrag() {
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Bălan.txt fehlt"));
        Fehlermeldung(QStringLiteral("Bălan.txt fehlt"));
        QVERIFY(Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Fehlermeldungen.txt"))
                    .contains("Blan.txt fehlt\r\n"));
    }

    void einProtokollDasSichNichtSchreibenLaesstWirftNachDerMeldung() {
        QDir(Programmverzeichnis()).mkdir(QStringLiteral("Fehlermeldungen.txt"));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("x"));
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Fehlermeldung(QStringLiteral("x")));
        QVERIFY(Welt.Boxen.AllesGefragt());
    }
};

TESTKLASSE(TestFktAllgemein)
#include "tst_fktallgemein.moc"
