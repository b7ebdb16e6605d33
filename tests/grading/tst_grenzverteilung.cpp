#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "Massstab.h"
#include "core/Definitionen.h"
#include "grading/Grenzverteilung.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

Anteile Prozente(const QString& Texte) {
    Anteile Werte;
    for (int j = 0; j < 5; ++j)
        Werte[j] = Texte.section(u' ', j, j).toFloat();
    return Werte;
}

std::vector<QString> Liste(const QString& Texte) {
    std::vector<QString> Alle;
    for (const QString& Text : Texte.split(u' ', Qt::SkipEmptyParts))
        Alle.push_back(Text);
    return Alle;
}

/// "0 -> 19,5", "-" if nothing moves, "unplausibel".
QString Schritttext(const Grenzschritt& Schritt) {
    if (!Schritt.Plausibel)
        return u"unplausibel"_s;
    return Schritt.Index < 0 ? u"-"_s : u"%1 -> %2"_s.arg(Schritt.Index).arg(Schritt.Text);
}

} // namespace

class TestGrenzverteilung : public QObject {
    Q_OBJECT

    Testwelt Welt;

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void EigeneVerteilungRundetAufHalbePunkte_data() {
        QTest::addColumn<int>("Gesamt");
        QTest::addColumn<QString>("Verteilt");
        QTest::addColumn<QString>("Grenzen");
        QTest::newRow("87 percent of 30 is 26") << 30 << u"87 75 60 45 20"_s << u"26 22,5 18 13,5 6"_s;
        QTest::newRow("25 percent of 10 stays on 2,5") << 10 << u"90 75 50 40 25"_s << u"9 7,5 5 4 2,5"_s;
        QTest::newRow("a tie goes up") << 10 << u"97.5 72.5 50 42.5 22.5"_s << u"10 7,5 5 4,5 2,5"_s;
        QTest::newRow("a total above 200 is accepted")
            << 400 << u"90 80 60 40 20"_s << u"360 320 240 160 80"_s;
        QTest::newRow("the largest total") << 32767 << u"100 50 0 0 0"_s << u"32767 16383,5 0 0 0"_s;
        QTest::newRow("total 0 gives nothing") << 0 << u"90 80 60 40 20"_s << u""_s;
        QTest::newRow("negative total gives nothing") << -5 << u"90 80 60 40 20"_s << u""_s;
    }
    void EigeneVerteilungRundetAufHalbePunkte() {
        QFETCH(int, Gesamt);
        QFETCH(QString, Verteilt);
        QTEST(EigeneGrenzen(static_cast<qint16>(Gesamt), Prozente(Verteilt), 6).join(u' '), "Grenzen");
    }

    void EigeneVerteilungHatBeiFuenfNotenVierGrenzen() {
        QCOMPARE(EigeneGrenzen(40, Prozente(u"90 80 60 40 20"_s), 5).join(u' '), u"36 32 24 16"_s);
    }

    void TabelleGibtIhreZeile() {
        BLLVVerteilung[40] = Prozente(u"36 31.5 25 18 9"_s);
        QCOMPARE(TabellenGrenzen(40, 6).join(u' '), u"36 31,5 25 18 9"_s);
        QCOMPARE(TabellenGrenzen(40, 5).join(u' '), u"36 31,5 25 18"_s);
        BLLVVerteilung[40] = {};
    }

    void TabelleOhneZeileGibtNullen() {
        BLLVVerteilung[41] = {};
        QCOMPARE(TabellenGrenzen(41, 6).join(u' '), u"0 0 0 0 0"_s);
    }

    void TabelleGiltVonEinsBisZweihundert_data() {
        QTest::addColumn<int>("Gesamt");
        QTest::addColumn<int>("Anzahl");
        QTest::newRow("negative") << -1 << 0;
        QTest::newRow("0") << 0 << 0;
        QTest::newRow("1") << 1 << 5;
        QTest::newRow("200") << 200 << 5;
        QTest::newRow("201") << 201 << 0;
        QTest::newRow("largest") << 32767 << 0;
    }
    void TabelleGiltVonEinsBisZweihundert() {
        QFETCH(int, Gesamt);
        QTEST(static_cast<int>(TabellenGrenzen(static_cast<qint16>(Gesamt), 6).size()), "Anzahl");
    }

    void GaussVerteilung_data() {
        QTest::addColumn<int>("Gesamt");
        QTest::addColumn<QString>("Punkte");
        QTest::addColumn<QString>("Verteilt");
        QTest::addColumn<QString>("Grenzen");
        const QString Zehn = u"20 19 18 17 16 15 14 13 12 11"_s;
        QTest::newRow("one student each") << 20 << Zehn << u"10 30 50 70 90"_s << u"20 18 16 14 12"_s;
        QTest::newRow("first share 0 lies on the total")
            << 20 << Zehn << u"0 30 50 70 90"_s << u"20 18 16 14 12"_s;
        QTest::newRow("share between two students waits for the next")
            << 20 << Zehn << u"11 30 50 70 90"_s << u"19 18 16 14 12"_s;
        QTest::newRow("equal points stay together, then half a point apart")
            << 20 << u"15 15 15 15"_s << u"10 30 50 70 90"_s << u"15 14,5 14 13,5 13"_s;
        QTest::newRow("no student: total and half points below")
            << 20 << u""_s << u"10 30 50 70 90"_s << u"20 19,5 19 18,5 18"_s;
        QTest::newRow("hand-set grades, empty and too many points take no part")
            << 20 << u"-15 21 200 10"_s << u"100 100 100 100 100"_s << u"10 9,5 9 8,5 8"_s;
        QTest::newRow("no number counts as 0 points")
            << 20 << u"krank 20"_s << u"50 60 70 80 90"_s << u"20 0"_s;
        QTest::newRow("points with fractions fall into the even bin")
            << 20 << u"12,25 12,75"_s << u"50 100 100 100 100"_s << u"13 12 11,5 11 10,5"_s;
        QTest::newRow("walk ends early: the rest keeps its values")
            << 20 << u"1"_s << u"100 100 100 100 100"_s << u"1 0,5 0"_s;
        QTest::newRow("share above 100 is never reached")
            << 20 << Zehn << u"10 30 150 160 170"_s << u"20 18"_s;
        QTest::newRow("a total above 200 is accepted")
            << 300 << u"250 260 270"_s << u"30 60 90 100 100"_s << u"270 260 250 249,5 249"_s;
        QTest::newRow("total 0 gives nothing") << 0 << Zehn << u"10 30 50 70 90"_s << u""_s;
    }
    void GaussVerteilung() {
        QFETCH(int, Gesamt);
        QFETCH(QString, Punkte);
        QFETCH(QString, Verteilt);
        QTEST(GaussGrenzen(static_cast<qint16>(Gesamt), Liste(Punkte), Prozente(Verteilt), 6).join(u' '),
              "Grenzen");
    }

    void GaussVerteilungHatBeiFuenfNotenVierGrenzen() {
        QCOMPARE(GaussGrenzen(20, {}, Prozente(u"10 30 50 70 90"_s), 5).join(u' '), u"20 19,5 19 18,5"_s);
    }

    void GaussVerteilungLeerePunkteZaehlenNicht() {
        const std::vector<QString> Punkte{QString(), u"  "_s, u"10"_s};
        QCOMPARE(GaussGrenzen(20, Punkte, Prozente(u"100 100 100 100 100"_s), 6).first(), u"10"_s);
    }

    void GaussAnteilWirdInEinfacherGenauigkeitGerechnet() {
        // 125 students, 2.4 percent: 3 students. In double precision it would be a little more than 3.
        std::vector<QString> Punkte(125, u"1"_s);
        Punkte[0] = Punkte[1] = Punkte[2] = u"20"_s;
        QCOMPARE(GaussGrenzen(20, Punkte, Prozente(u"2.4 100 100 100 100"_s), 6).first(), u"20"_s);
    }

    void Besser_data() {
        QTest::addColumn<QString>("Gesamt");
        QTest::addColumn<QString>("Grenzen");
        QTest::addColumn<int>("Noten");
        QTest::addColumn<QString>("Schritt");
        QTest::newRow("equal gaps: the better grade wins")
            << u"25"_s << u"20;15;10;5;"_s << 5 << u"0 -> 19,5"_s;
        QTest::newRow("largest gap wins") << u"25"_s << u"20;18;10;5;"_s << 5 << u"1 -> 17,5"_s;
        QTest::newRow("gap below the last boundary takes part")
            << u"25"_s << u"20;18;16;14;"_s << 5 << u"3 -> 13,5"_s;
        QTest::newRow("gap above the first takes no part") << u"200"_s << u"4;3;2;1;"_s << 5 << u"0 -> 3,5"_s;
        QTest::newRow("no gap above half a point") << u"25"_s << u"2;1,5;1;0,5;"_s << 5 << u"-"_s;
        QTest::newRow("six grades") << u"40"_s << u"36;31;25;18;10"_s << 6 << u"4 -> 9,5"_s;
        QTest::newRow("not plausible") << u"40"_s << u"36;36;25;18;10"_s << 6 << u"unplausibel"_s;
        QTest::newRow("no total") << u""_s << u"36;31;25;18;10"_s << 6 << u"unplausibel"_s;
    }
    void Besser() {
        QFETCH(QString, Gesamt);
        QFETCH(QString, Grenzen);
        QFETCH(int, Noten);
        QTEST(Schritttext(BesserSchritt(Massstab(Gesamt, Grenzen), Noten)), "Schritt");
    }

    void Schlechter_data() {
        QTest::addColumn<QString>("Gesamt");
        QTest::addColumn<QString>("Grenzen");
        QTest::addColumn<int>("Noten");
        QTest::addColumn<QString>("Schritt");
        QTest::newRow("top gap wins by half a point") << u"25"_s << u"20;15;10;5;"_s << 5 << u"0 -> 20,5"_s;
        QTest::newRow("larger gap below") << u"21"_s << u"20;15;10;5;"_s << 5 << u"3 -> 5,5"_s;
        QTest::newRow("a gap equal to the top gap replaces it")
            << u"24"_s << u"20;15,5;11;6,5;"_s << 5 << u"3 -> 7"_s;
        QTest::newRow("of equal gaps the worse grade wins")
            << u"21"_s << u"20;15;10;6;"_s << 5 << u"2 -> 10,5"_s;
        QTest::newRow("gap below the last boundary takes no part")
            << u"25"_s << u"24;23;22;21;"_s << 5 << u"0 -> 24,5"_s;
        QTest::newRow("no gap above half a point") << u"2"_s << u"2;1,5;1;0,5;"_s << 5 << u"-"_s;
        QTest::newRow("first boundary on the total") << u"25"_s << u"25;24,5;24;23;"_s << 5 << u"3 -> 23,5"_s;
        QTest::newRow("six grades") << u"40"_s << u"36;31;25;18;9"_s << 6 << u"4 -> 9,5"_s;
        QTest::newRow("not plausible") << u"40"_s << u"36;31;25;18;0"_s << 6 << u"unplausibel"_s;
    }
    void Schlechter() {
        QFETCH(QString, Gesamt);
        QFETCH(QString, Grenzen);
        QFETCH(int, Noten);
        QTEST(Schritttext(SchlechterSchritt(Massstab(Gesamt, Grenzen), Noten)), "Schritt");
    }

    void WiederholtesBesserGleichtDieBaenderAus() {
        Probenmassstab Mass = Massstab(u"10"_s, u"4;3;2;1"_s);
        int Schritte = 0;
        for (Grenzschritt Einer = BesserSchritt(Mass, 5); Einer.Index >= 0; Einer = BesserSchritt(Mass, 5)) {
            Mass.NGrenze[Einer.Index] = Einer.Text;
            QVERIFY(++Schritte < 100);
        }
        QCOMPARE(Mass.NGrenze[0] + u' ' + Mass.NGrenze[1] + u' ' + Mass.NGrenze[2] + u' ' + Mass.NGrenze[3],
                 u"2 1,5 1 0,5"_s);
    }
};

TESTKLASSE(TestGrenzverteilung)
#include "tst_grenzverteilung.moc"
