#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Definitionen.h"
#include "core/Laufzeitfehler.h"
#include "core/Orte.h"
#include "core/Zahlen.h"
#include "grading/Optionen.h"

#include <QDir>
#include <QtTest>

#include <random>

class TestOptionen : public QObject {
    Q_OBJECT
    Testwelt Welt;

    static Optionen Beispiel() {
        Optionen Werte = OptionenInKraft();
        for (auto& Zeile : Werte.BLLVVerteilung)
            Zeile = {};
        for (int Note = 0; Note < 5; ++Note) {
            Werte.BLLVVerteilung[10][Note] = 9.0F - static_cast<float>(Note);
            Werte.BLLVVerteilung[40][Note] = 36.5F - 5.0F * static_cast<float>(Note);
            for (int i = 0; i < 5; ++i) {
                Werte.EigeneVerteilung[i][Note] = 90.0F - 15.0F * static_cast<float>(Note);
                Werte.GaussVerteilung[i][Note] = 10.0F + 20.0F * static_cast<float>(Note);
            }
        }
        return Werte;
    }

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void dieTabelleZeigtJedesGesamtMitEinerGrenzeDerNoteEins() {
        Optionen Werte = Beispiel();
        Werte.BLLVVerteilung[9][0] = 8;
        Werte.BLLVVerteilung[20][1] = 8; // no boundary of grade 1: no row
        const auto Zeilen = TabellenZeilen(Werte, 6);
        QCOMPARE(Zeilen.size(), std::size_t(2));
        QCOMPARE(Zeilen[0].join(u' '), QStringLiteral("10 9 8 7 6 5"));
        QCOMPARE(Zeilen[1].join(u' '), QStringLiteral("40 36,5 31,5 26,5 21,5 16,5"));
        QCOMPARE(TabellenZeilen(Werte, 5)[0].join(u' '), QStringLiteral("10 9 8 7 6"));
    }

    void zehnIstDasKleinsteGesamtUnd200DasGroesste() {
        Optionen Werte = Beispiel();
        Werte.BLLVVerteilung[200][0] = 180;
        const auto Zeilen = TabellenZeilen(Werte, 6);
        QCOMPARE(Zeilen.front().front(), QStringLiteral("10"));
        QCOMPARE(Zeilen.back().front(), QStringLiteral("200"));
    }

    void einGesamtAusserhalbWirdNichtGespeichert() {
        Optionen Werte = Beispiel();
        const Optionen Vorher = Werte;
        TabellenAusZeilen({{QStringLiteral("9"), QStringLiteral("8"), QStringLiteral("7"),
                            QStringLiteral("6"), QStringLiteral("5"), QStringLiteral("4")},
                           {QStringLiteral("201"), QStringLiteral("8"), QStringLiteral("7"),
                            QStringLiteral("6"), QStringLiteral("5"), QStringLiteral("4")}},
                          6, Werte);
        QVERIFY(Werte == Vorher);
    }

    void gaussAnteileSindUnterschiedeDerSummen() {
        const Optionen Werte = Beispiel();
        QCOMPARE(GaussZeilen(Werte, 6).at(0).join(u' '), QStringLiteral("[--] 10 20 20 20 20 10"));
        QCOMPARE(GaussZeilen(Werte, 5).at(4).join(u' '), QStringLiteral("[++] 10 20 20 20 20"));
    }

    void eigeneZeilenZeigenDieProzentsaetze() {
        QCOMPARE(EigeneZeilen(Beispiel(), 6).at(2).join(u' '), QStringLiteral("[o] 90 75 60 45 30"));
        QCOMPARE(EigeneZeilen(Beispiel(), 5).at(3).join(u' '), QStringLiteral("[+] 90 75 60 45"));
    }

    void zeilenUndWerteSindHinUndZurueckDasselbe_data() {
        QTest::addColumn<QLocale>("Sprache");
        QTest::newRow("de") << QLocale(QLocale::German, QLocale::Germany);
        QTest::newRow("en_US") << QLocale(QLocale::English, QLocale::UnitedStates);
        QTest::newRow("C") << QLocale::c();
    }
    void zeilenUndWerteSindHinUndZurueckDasselbe() {
        QFETCH(const QLocale, Sprache);
        SystemSpracheSetzen(Sprache);
        std::mt19937 Zufall(2003);
        std::uniform_int_distribution<int> Schritt(1, 5);
        for (int Durchgang = 0; Durchgang < 50; ++Durchgang)
            for (const int HoechsteNote : {5, 6}) {
                Optionen Werte = Beispiel();
                for (auto* Tabelle : {&Werte.GaussVerteilung, &Werte.EigeneVerteilung})
                    for (auto& Zeile : *Tabelle)
                        for (int j = 0; j < 5; ++j)
                            Zeile[j] = static_cast<float>(Schritt(Zufall)) + (j > 0 ? Zeile[j - 1] : 0.0F);
                for (int j = 0; j < 5; ++j)
                    Werte.BLLVVerteilung[77][j] = static_cast<float>(Schritt(Zufall)) / 2;
                Optionen Zurueck = Werte;
                TabellenAusZeilen(TabellenZeilen(Werte, HoechsteNote), HoechsteNote, Zurueck);
                GaussAusZeilen(GaussZeilen(Werte, HoechsteNote), HoechsteNote, Zurueck);
                EigeneAusZeilen(EigeneZeilen(Werte, HoechsteNote), HoechsteNote, Zurueck);
                QVERIFY(Zurueck == Werte);
            }
    }

    void mitFuenfNotenBleibtDieFuenfteGrenzeStehen() {
        Optionen Werte = Beispiel();
        auto Zeilen = EigeneZeilen(Werte, 5);
        Zeilen[0][1] = QStringLiteral("95");
        EigeneAusZeilen(Zeilen, 5, Werte);
        QCOMPARE(Werte.EigeneVerteilung[0][0], 95.0F);
        QCOMPARE(Werte.EigeneVerteilung[0][4], 30.0F);
        auto Anteile = GaussZeilen(Werte, 5);
        Anteile[0][1] = QStringLiteral("15");
        GaussAusZeilen(Anteile, 5, Werte);
        QCOMPARE(Werte.GaussVerteilung[0][3], 75.0F);
        QCOMPARE(Werte.GaussVerteilung[0][4], 90.0F);
    }

    void eigeneProzentsaetzeWerdenGanzeZahlen() {
        Optionen Werte = Beispiel();
        auto Zeilen = EigeneZeilen(Werte, 6);
        Zeilen[1][2] = QStringLiteral("74,5");
        EigeneAusZeilen(Zeilen, 6, Werte);
        QCOMPARE(Werte.EigeneVerteilung[1][1], 74.0F);
    }

    void uebernehmenSpeichertDieParameterdateiUndFragtNichtNachDemSpeichern() {
        Optionen Neue = Beispiel();
        Neue.GewichtungE = 2.5F;
        Neue.Halbjahreswechsel = QStringLiteral("1.3.");
        Neue.Probenbezeichnung[7] = QStringLiteral("Schulaufgabe");
        OptionenUebernehmen(Neue);
        QVERIFY(OptionenInKraft() == Neue);
        QCOMPARE(Datenbank.GewichtungE, 2.5F);
        QCOMPARE(DatenGeaendert, false);
        const QByteArray Datei =
            Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini"));
        QVERIFY(Datei.contains("7\tSchulaufgabe\t"));
    }

    void einFehlschlagBeimSpeichernLaesstDieAltenWerteInKraft() {
        OptionenUebernehmen(Beispiel());
        const Optionen Vorher = OptionenInKraft();
        ProgrammverzeichnisSetzen(Welt.Pfad(QStringLiteral("gibt/es/nicht")));
        Optionen Neue = Vorher;
        Neue.GewichtungM = 3;
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, OptionenUebernehmen(Neue));
        QVERIFY(OptionenInKraft() == Vorher);
    }
};

TESTKLASSE(TestOptionen)
#include "tst_optionen.moc"
