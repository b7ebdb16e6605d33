#include "common/Testprogramm.h"
#include "core/Zahlen.h"
#include "grading/Verteilungsregeln.h"

#include <QtTest>

namespace {

const QLocale Deutsch(QLocale::German, QLocale::Germany);

QStringList Zeile(const char* Texte) {
    return QString::fromLatin1(Texte).split(u' ');
}

} // namespace

class TestVerteilungsregeln : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { SystemSpracheSetzen(Deutsch); }

    void werteBleibenZwischenIhrenNachbarn_data() {
        QTest::addColumn<int>("Art");
        QTest::addColumn<QStringList>("Texte");
        QTest::addColumn<int>("Spalte");
        QTest::addColumn<int>("Min");
        QTest::addColumn<int>("Max");
        QTest::addColumn<int>("Value");
        const auto Fall = [](const char* Name, Verteilungsart Art, const char* Texte, int Spalte, int Min,
                             int Max, int Value) {
            QTest::newRow(Name) << static_cast<int>(Art) << Zeile(Texte) << Spalte << Min << Max << Value;
        };
        const char* Punkte = "40 36,5 31 25 18 9";
        Fall("points, first: total at most", Verteilungsart::Punkte, Punkte, 1, 63, 80, 70);
        Fall("points, middle", Verteilungsart::Punkte, Punkte, 3, 37, 61, 48);
        Fall("points, last: down to 0", Verteilungsart::Punkte, Punkte, 5, 0, 35, 17);
        const char* Prozent = "[o] 90 75 60 45 20";
        Fall("percent, first: 100 at most", Verteilungsart::Prozent, Prozent, 1, 76, 100, 86);
        Fall("percent, middle", Verteilungsart::Prozent, Prozent, 2, 61, 89, 75);
        Fall("percent, last: down to 0", Verteilungsart::Prozent, Prozent, 5, 0, 44, 24);
        Fall("percent, four boundaries", Verteilungsart::Prozent, "[o] 90 75 60 45", 4, 0, 59, 14);
        Fall("shares go from 0 to 100", Verteilungsart::Anteil, "[o] 10 20 30 20 15 5", 3, 0, 100, 70);
    }
    void werteBleibenZwischenIhrenNachbarn() {
        QFETCH(const int, Art);
        QFETCH(const QStringList, Texte);
        QFETCH(const int, Spalte);
        QFETCH(const int, Min);
        QFETCH(const int, Max);
        QFETCH(const int, Value);
        const Leistenstand Stand = LeisteFuer(static_cast<Verteilungsart>(Art), Texte, Spalte);
        QCOMPARE(Stand.Min, Min);
        QCOMPARE(Stand.Max, Max);
        QCOMPARE(Stand.Value, Value);
        QCOMPARE(Zelltext(static_cast<Verteilungsart>(Art), Stand), Texte.at(Spalte));
    }

    void punkteGehenInHalbenSchritten() {
        Leistenstand Stand = LeisteFuer(Verteilungsart::Punkte, Zeile("40 36,5 31 25 18 9"), 1);
        Stand.Value -= 1;
        QCOMPARE(Zelltext(Verteilungsart::Punkte, Stand), QStringLiteral("37"));
        Stand.Value += 2;
        QCOMPARE(Zelltext(Verteilungsart::Punkte, Stand), QStringLiteral("36"));
        Stand.Value -= 9;
        QCOMPARE(Zelltext(Verteilungsart::Punkte, Stand), QStringLiteral("40,5"));
        SystemSpracheSetzen(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(Zelltext(Verteilungsart::Punkte, Stand), QStringLiteral("40.5"));
    }

    void anDenGrenzenStehtDerNachbarGenauEineEinheitEntfernt() {
        const QStringList Texte = Zeile("40 36,5 31 25 18 9");
        for (int Spalte = 1; Spalte <= 5; ++Spalte) {
            Leistenstand Stand = LeisteFuer(Verteilungsart::Punkte, Texte, Spalte);
            Stand.Value = Stand.Min; // the bar at its top: the highest value
            const double Hoechster = *ZahlLesen(Zelltext(Verteilungsart::Punkte, Stand));
            const double Links = *ZahlLesen(Texte.at(Spalte - 1));
            QCOMPARE(Hoechster, Spalte == 1 ? Links : Links - 0.5);
            Stand.Value = Stand.Max;
            const double Tiefster = *ZahlLesen(Zelltext(Verteilungsart::Punkte, Stand));
            QCOMPARE(Tiefster, Spalte == 5 ? 0.0 : *ZahlLesen(Texte.at(Spalte + 1)) + 0.5);
        }
    }

    void anteileSummierenSichAufHundert_data() {
        QTest::addColumn<QStringList>("Vorher");
        QTest::addColumn<int>("Spalte");
        QTest::addColumn<int>("Neu");
        QTest::addColumn<QStringList>("Nachher"); // empty: refused
        const char* Sechs = "[o] 10 20 30 20 15 5";
        const auto Fall = [](const char* Name, const char* Vorher, int Spalte, int Neu, const char* Nachher) {
            QTest::newRow(Name) << Zeile(Vorher) << Spalte << Neu
                                << (*Nachher ? Zeile(Nachher) : QStringList());
        };
        Fall("the last grade takes it up", Sechs, 1, 12, "[o] 12 20 30 20 15 3");
        Fall("lowering gives to the last grade", Sechs, 3, 20, "[o] 10 20 20 20 15 15");
        Fall("down to nothing for the last grade", Sechs, 2, 25, "[o] 10 25 30 20 15 0");
        Fall("no further", Sechs, 2, 26, "");
        Fall("the last grade is taken up by the first", Sechs, 6, 7, "[o] 8 20 30 20 15 7");
        Fall("down to nothing for the first grade", Sechs, 6, 15, "[o] 0 20 30 20 15 15");
        Fall("no further there either", Sechs, 6, 16, "");
        Fall("five grades", "[o] 10 20 40 20 10", 5, 11, "[o] 9 20 40 20 11");
        Fall("a row that did not sum to 100 does so", "[o] 10 20 30 20 15 0", 1, 11, "[o] 11 20 30 20 15 4");
        Fall("fractions of a file become whole", "[o] 10,5 20,5 30 20 15 4", 3, 31,
             "[o] 10,5 20,5 31 20 15 4");
    }
    void anteileSummierenSichAufHundert() {
        QFETCH(const QStringList, Vorher);
        QFETCH(const int, Spalte);
        QFETCH(const int, Neu);
        QFETCH(const QStringList, Nachher);
        QCOMPARE(AnteilGeaendert(Vorher, Spalte, Neu).value_or(QStringList()), Nachher);
    }
};

TESTKLASSE(TestVerteilungsregeln)
#include "tst_verteilungsregeln.moc"
