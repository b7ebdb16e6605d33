// Averages of a grade list, half-years, and grades typed by hand.

#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/FktSpeziell.h"
#include "core/Zahlen.h"
#include "grading/Gesamtnoten.h"
#include "grading/Noteneintrag.h"

#include <QRandomGenerator>
#include <QtTest>

#include <cmath>

namespace {

using Notentexte = Reihe<QString, 31>;

/// "2 2|4|3": the grades of the three blocks, each from its first place on; "." leaves a place empty.
Notentexte Noten(const QString& Bloecke) {
    Notentexte Texte;
    const QStringList Teile = Bloecke.split(u'|');
    for (int b = 0; b < Teile.size(); ++b) {
        const QStringList Worte = Teile[b].split(u' ', Qt::SkipEmptyParts);
        for (int i = 0; i < Worte.size(); ++i)
            if (Worte[i] != QStringLiteral("."))
                Texte[10 * b + i + 1] = Worte[i];
    }
    return Texte;
}

// The second computation, written apart from the first: it collects pairs of grade and weight and knows the
// methods as one weighted mean of them, in double precision.

struct Gewichtet {
    double Note;
    double Gewicht;
};

double Notenwert(const QString& Text) {
    static const QRegularExpression Form(QStringLiteral("^([1-6])([+-]?)$"));
    const auto Treffer = Form.match(Text);
    if (!Treffer.hasMatch())
        return 0;
    double Wert = Treffer.captured(1).toDouble();
    if (Datenbank.GrenznotenBeruecksichtigen && !Treffer.captured(2).isEmpty())
        Wert += (Treffer.captured(2) == QStringLiteral("-") ? 1 : -1) *
                static_cast<double>(Datenbank.GrenznotenNotenAbstand);
    return Wert;
}

/// The mean that both texts must show: nothing, or a number that rounds to the text.
std::optional<double> Gegenrechnung(const Notentexte& Texte, const std::array<int, 3>& Bis,
                                    const Gesamtregeln& Regeln) {
    const std::array<double, 3> Gewicht{1.0, static_cast<double>(Regeln.GewichtungE),
                                        static_cast<double>(Regeln.GewichtungM)};
    std::array<std::vector<double>, 3> Bloecke;
    for (std::size_t b = 0; b < 3; ++b)
        for (int i = 1; i < Bis[b]; ++i)
            if (const double Wert = Notenwert(Texte[static_cast<int>(b) * 10 + i]); Wert > 0)
                Bloecke[b].push_back(Wert);
    if (Regeln.Methode == 3) {
        Bloecke[1].insert(Bloecke[1].end(), Bloecke[2].begin(), Bloecke[2].end());
        Bloecke[2].clear();
    }
    std::vector<Gewichtet> Paare;
    for (std::size_t b = 0; b < 3; ++b)
        for (const double Wert : Bloecke[b])
            Paare.push_back({Wert, Regeln.Methode == 1
                                       ? Gewicht[b]
                                       : Gewicht[b] / static_cast<double>(Bloecke[b].size())});
    double Zaehler = 0;
    double Nenner = 0;
    for (const Gewichtet& Paar : Paare) {
        Zaehler += Paar.Note * Paar.Gewicht;
        Nenner += Paar.Gewicht;
    }
    return Nenner > 1e-9 ? std::optional(Zaehler / Nenner) : std::nullopt;
}

/// Same text, or a tie that single precision may let fall to either side.
bool ZeigtWert(const QString& Text, const std::optional<double>& Wert, int Stellen) {
    if (!Wert)
        return Text.isEmpty();
    const double Schritt = std::pow(10.0, -Stellen);
    const auto Zahl = ZahlLesen(Text);
    return Zahl && std::fabs(*Zahl - *Wert) <= Schritt / 2 + 1e-5 && Text.section(u',', 1).size() == Stellen;
}

} // namespace

class GesamtnotenTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void workedCases_data();
    void workedCases();
    void noGradesGiveEmptyAveragesInEveryMethod_data();
    void noGradesGiveEmptyAveragesInEveryMethod();
    void boundaryNamesTheFirstGradeOfTheSecondHalf();
    void boundaryOneLeavesTheFirstHalfEmpty();
    void boundaryElevenPutsAllIntoTheFirstHalf();
    void signCountsOnlyWhileTheOptionIsOn();
    void marksAndWordsTakeNoPart();
    void typedSevenCountsAsSix();
    void weightZeroFromAFile();
    void unknownMethodIsTheFirst_data();
    void unknownMethodIsTheFirst();
    void formatIsReadFromTheSettings();
    void tieIsRoundedAwayFromZero();
    void agreesWithASecondComputation();
    void halfYearTitlesAndColours();
    void boundariesOfASubjectAreHeldInTheirRange_data();
    void boundariesOfASubjectAreHeldInTheirRange();

    void typedGradeMakesThePointsNegative_data();
    void typedGradeMakesThePointsNegative();
    void clearedGradeTakesThePointsAway();
    void oralGradeHasNoPoints();
    void sameTextChangesNothing();
    void reportGradesAreStored();
    void unknownRowChangesNothing();

  private:
    Testwelt Welt;
};

void GesamtnotenTest::workedCases_data() {
    QTest::addColumn<QString>("Bloecke");
    QTest::addColumn<int>("Methode");
    QTest::addColumn<QString>("Jahr");
    const QString Fall = QStringLiteral("2 2|4|3");
    QTest::newRow("every single grade") << Fall << 1 << QStringLiteral("2,7");
    QTest::newRow("averages of blocks") << Fall << 2 << QStringLiteral("3,0");
    QTest::newRow("E and M as one block") << Fall << 3 << QStringLiteral("2,8");
    QTest::newRow("one block, single") << QStringLiteral("||1 2") << 1 << QStringLiteral("1,5");
    QTest::newRow("one block, blocks") << QStringLiteral("||1 2") << 2 << QStringLiteral("1,5");
    QTest::newRow("one block, joint") << QStringLiteral("||1 2") << 3 << QStringLiteral("1,5");
}

void GesamtnotenTest::workedCases() {
    QFETCH(QString, Bloecke);
    QFETCH(int, Methode);
    QFETCH(QString, Jahr);
    const Durchschnitte Beide =
        DurchschnitteBerechnen(Noten(Bloecke), {}, {Methode, 1.0F, 0.5F, QStringLiteral("0.0")});
    QCOMPARE(Beide.Jahr, Jahr);
    QCOMPARE(Beide.Halbjahr, Jahr);
}

void GesamtnotenTest::noGradesGiveEmptyAveragesInEveryMethod_data() {
    QTest::addColumn<int>("Methode");
    for (const int Methode : {1, 2, 3})
        QTest::addRow("method %d", Methode) << Methode;
}

void GesamtnotenTest::noGradesGiveEmptyAveragesInEveryMethod() {
    QFETCH(int, Methode);
    QCOMPARE(DurchschnitteBerechnen(Noten(QString()), {}, {Methode, 1, 1, QStringLiteral("0.0")}),
             Durchschnitte());
}

void GesamtnotenTest::boundaryNamesTheFirstGradeOfTheSecondHalf() {
    const Notentexte Texte = Noten(QStringLiteral("1 1 6 6|2 6|3 6"));
    const Durchschnitte Beide = DurchschnitteBerechnen(Texte, {3, 2, 2}, {1, 1, 1, QStringLiteral("0.00")});
    QCOMPARE(Beide.Halbjahr, QStringLiteral("1,75"));
    QCOMPARE(Beide.Jahr, QStringLiteral("3,88"));
}

void GesamtnotenTest::boundaryOneLeavesTheFirstHalfEmpty() {
    const Durchschnitte Beide =
        DurchschnitteBerechnen(Noten(QStringLiteral("1 2 3")), {1, 6, 6}, {1, 1, 1, QStringLiteral("0.0")});
    QCOMPARE(Beide.Halbjahr, QString());
    QCOMPARE(Beide.Jahr, QStringLiteral("2,0"));
}

void GesamtnotenTest::boundaryElevenPutsAllIntoTheFirstHalf() {
    const Durchschnitte Beide = DurchschnitteBerechnen(Noten(QStringLiteral("1 1 1 1 1 1 1 1 1 6")),
                                                       {11, 6, 6}, {1, 1, 1, QStringLiteral("0.0")});
    QCOMPARE(Beide.Halbjahr, Beide.Jahr);
    QCOMPARE(Beide.Jahr, QStringLiteral("1,5"));
}

void GesamtnotenTest::signCountsOnlyWhileTheOptionIsOn() {
    const Notentexte Texte = Noten(QStringLiteral("3-"));
    const Gesamtregeln Regeln{1, 1, 1, QStringLiteral("0.0")};
    Datenbank.GrenznotenNotenAbstand = 0.3F;
    Datenbank.GrenznotenBeruecksichtigen = true;
    QCOMPARE(DurchschnitteBerechnen(Texte, {}, Regeln).Jahr, QStringLiteral("3,3"));
    Datenbank.GrenznotenBeruecksichtigen = false;
    QCOMPARE(DurchschnitteBerechnen(Texte, {}, Regeln).Jahr, QStringLiteral("3,0"));
}

void GesamtnotenTest::marksAndWordsTakeNoPart() {
    const Gesamtregeln Regeln{2, 1, 1, QStringLiteral("0.0")};
    QCOMPARE(DurchschnitteBerechnen(Noten(QStringLiteral("2 ne kr|ne|fehlt")), {}, Regeln).Jahr,
             QStringLiteral("2,0"));
}

void GesamtnotenTest::typedSevenCountsAsSix() {
    QCOMPARE(DurchschnitteBerechnen(Noten(QStringLiteral("7")), {}, {}).Jahr, QStringLiteral("6,0"));
}

void GesamtnotenTest::weightZeroFromAFile() {
    const Notentexte NurE = Noten(QStringLiteral("|2 3|"));
    for (const int Methode : {1, 2, 3})
        QCOMPARE(DurchschnitteBerechnen(NurE, {}, {Methode, 0, 1, QStringLiteral("0.0")}), Durchschnitte());
    const Notentexte Beide = Noten(QStringLiteral("2|6|"));
    for (const int Methode : {1, 2, 3})
        QCOMPARE(DurchschnitteBerechnen(Beide, {}, {Methode, 0, 0, QStringLiteral("0.0")}).Jahr,
                 QStringLiteral("2,0"));
}

void GesamtnotenTest::unknownMethodIsTheFirst_data() {
    QTest::addColumn<QString>("Text");
    QTest::addColumn<int>("Methode");
    const std::pair<const char*, int> Faelle[] = {{"1", 1}, {"2", 2}, {"3", 3},    {"", 1},
                                                  {"0", 1}, {"4", 1}, {"zwei", 1}, {"-2", 1}};
    for (const auto& [Text, Methode] : Faelle)
        QTest::addRow("\"%s\"", Text) << QString::fromLatin1(Text) << Methode;
}

void GesamtnotenTest::unknownMethodIsTheFirst() {
    QFETCH(QString, Text);
    Datenbank.NotenberechnenMethode = Text;
    QTEST(AktuelleGesamtregeln().Methode, "Methode");
}

void GesamtnotenTest::formatIsReadFromTheSettings() {
    EinstellungSchreiben(QStringLiteral("Notenformat"), QStringLiteral("0.00"));
    QCOMPARE(AktuelleGesamtregeln().Format, QStringLiteral("0.00"));
    QCOMPARE(Notenformat, QStringLiteral("0.00"));
}

void GesamtnotenTest::tieIsRoundedAwayFromZero() {
    // 2.25 is exact in single precision.
    QCOMPARE(DurchschnitteBerechnen(Noten(QStringLiteral("2 2 2 3")), {}, {}).Jahr, QStringLiteral("2,3"));
}

void GesamtnotenTest::agreesWithASecondComputation() {
    QRandomGenerator Zufall(20031012);
    const QStringList Vorrat{QStringLiteral("1"),
                             QStringLiteral("2"),
                             QStringLiteral("3"),
                             QStringLiteral("4"),
                             QStringLiteral("5"),
                             QStringLiteral("6"),
                             QStringLiteral("1-"),
                             QStringLiteral("2+"),
                             QStringLiteral("4-"),
                             QStringLiteral("ne"),
                             QStringLiteral("kr"),
                             QString(),
                             QString(),
                             QStringLiteral("Fehlt")};
    const std::array<float, 5> Gewichte{0.0F, 0.5F, 1.0F, 1.5F, 3.0F};
    for (int Fall = 0; Fall < 900; ++Fall) {
        Notentexte Texte;
        const int Dichte = Zufall.bounded(1, 5);
        for (int i = 1; i <= 30; ++i)
            if (Zufall.bounded(4) < Dichte)
                Texte[i] = Vorrat[Zufall.bounded(static_cast<int>(Vorrat.size()))];
        const Halbjahresbeginn Beginn{Zufall.bounded(1, 12), Zufall.bounded(1, 12), Zufall.bounded(1, 12)};
        const int Stellen = Zufall.bounded(1, 3);
        const Gesamtregeln Regeln{1 + Fall % 3, Gewichte[static_cast<std::size_t>(Zufall.bounded(5))],
                                  Gewichte[static_cast<std::size_t>(Zufall.bounded(5))],
                                  Stellen == 1 ? QStringLiteral("0.0") : QStringLiteral("0.00")};
        Datenbank.GrenznotenBeruecksichtigen = Zufall.bounded(2) == 1;
        Datenbank.GrenznotenNotenAbstand = 0.1F * static_cast<float>(Zufall.bounded(1, 6));
        const Durchschnitte Beide = DurchschnitteBerechnen(Texte, Beginn, Regeln);
        const auto Halbjahr = Gegenrechnung(Texte, {Beginn.P, Beginn.E, Beginn.M}, Regeln);
        const auto Jahr = Gegenrechnung(Texte, {11, 11, 11}, Regeln);
        const QString Wo = QStringLiteral("case %1, method %2: \"%3\" for %4, \"%5\" for %6")
                               .arg(Fall)
                               .arg(Regeln.Methode)
                               .arg(Beide.Halbjahr)
                               .arg(Halbjahr.value_or(0))
                               .arg(Beide.Jahr)
                               .arg(Jahr.value_or(0));
        QVERIFY2(ZeigtWert(Beide.Halbjahr, Halbjahr, Stellen), qPrintable(Wo));
        QVERIFY2(ZeigtWert(Beide.Jahr, Jahr, Stellen), qPrintable(Wo));
    }
}

void GesamtnotenTest::halfYearTitlesAndColours() {
    const Halbjahresbeginn Beginn{4, 1, 11};
    QStringList Titel;
    for (const int Spalte : {1, 3, 4, 10, 11, 20, 21, 30})
        Titel.append(Halbjahrestitel(Spalte, Beginn).trimmed());
    QCOMPARE(Titel.join(u' '), QStringLiteral("1.Hj 1.Hj 2.Hj 2.Hj 2.Hj 2.Hj 1.Hj 1.Hj"));
    QCOMPARE(Halbjahrestitel(1, Beginn), QStringLiteral(" 1.Hj"));
    QCOMPARE(Notenspaltenfarbe(0, Beginn), qRgb(238, 238, 238));
    QCOMPARE(Notenspaltenfarbe(3, Beginn), qRgb(221, 239, 255));
    QCOMPARE(Notenspaltenfarbe(4, Beginn), qRgb(221, 255, 221));
    QCOMPARE(Notenspaltenfarbe(31, Beginn), qRgb(221, 239, 255));
    QCOMPARE(Notenspaltenfarbe(32, Beginn), qRgb(204, 221, 255));
    QCOMPARE(Notenspaltenfarbe(33, Beginn), qRgb(221, 255, 221));
    QCOMPARE(Notenspaltenfarbe(34, Beginn), qRgb(204, 255, 204));
}

void GesamtnotenTest::boundariesOfASubjectAreHeldInTheirRange_data() {
    QTest::addColumn<QString>("Text");
    QTest::addColumn<int>("Grenze");
    const std::pair<const char*, int> Faelle[] = {{"1", 1}, {"6", 6}, {"11", 11}, {"12", 11},
                                                  {"0", 1}, {"", 1},  {"x", 1},   {"-5", 1}};
    for (const auto& [Text, Grenze] : Faelle)
        QTest::addRow("\"%s\"", Text) << QString::fromLatin1(Text) << Grenze;
}

void GesamtnotenTest::boundariesOfASubjectAreHeldInTheirRange() {
    QFETCH(QString, Text);
    QFETCH(int, Grenze);
    Fach Eines;
    Eines.GrenzeP = Eines.GrenzeE = Eines.GrenzeM = Text;
    QCOMPARE(HalbjahresbeginnVon(Eines), (Halbjahresbeginn{Grenze, Grenze, Grenze}));
}

namespace {

void BuchAnlegen() {
    TestbuchLaden(QStringLiteral("Fach 50000 7a Mathe\n"
                                 "Schueler 10000 7a Bauer Anna\n"
                                 "Note 10000 50000 N1=2 P1=33,5 N2=3 P2=0 N3=4 P3=-7 N21=1 G1=2\n"));
}

} // namespace

void GesamtnotenTest::typedGradeMakesThePointsNegative_data() {
    QTest::addColumn<int>("Nummer");
    QTest::addColumn<QString>("Punkte");
    QTest::newRow("points") << 1 << QStringLiteral("-33,5");
    QTest::newRow("0 points") << 2 << QStringLiteral("-0,1");
    QTest::newRow("negative already") << 3 << QStringLiteral("-7");
    QTest::newRow("no points") << 20 << QStringLiteral("-0,1");
}

void GesamtnotenTest::typedGradeMakesThePointsNegative() {
    QFETCH(int, Nummer);
    BuchAnlegen();
    QVERIFY(NoteEintragen(10000, 50000, Nummer, QStringLiteral("5+")));
    QCOMPARE(Datenbank.Noten[0].N[Nummer], QStringLiteral("5+"));
    QTEST(Datenbank.Noten[0].P[Nummer], "Punkte");
    QVERIFY(DatenGeaendert);
}

void GesamtnotenTest::clearedGradeTakesThePointsAway() {
    BuchAnlegen();
    QVERIFY(NoteEintragen(10000, 50000, 1, QString()));
    QCOMPARE(Datenbank.Noten[0].N[1], QString());
    QCOMPARE(Datenbank.Noten[0].P[1], QString());
}

void GesamtnotenTest::oralGradeHasNoPoints() {
    BuchAnlegen();
    const auto Punkte = Datenbank.Noten[0].P;
    QVERIFY(NoteEintragen(10000, 50000, 30, QStringLiteral("2")));
    QCOMPARE(Datenbank.Noten[0].N[30], QStringLiteral("2"));
    QVERIFY(Datenbank.Noten[0].P == Punkte);
}

void GesamtnotenTest::sameTextChangesNothing() {
    BuchAnlegen();
    QVERIFY(!NoteEintragen(10000, 50000, 1, QStringLiteral("2")));
    QVERIFY(!ZeugnisnoteEintragen(10000, 50000, true, QStringLiteral("2")));
    QCOMPARE(Datenbank.Noten[0].P[1], QStringLiteral("33,5"));
    QVERIFY(!DatenGeaendert);
}

void GesamtnotenTest::reportGradesAreStored() {
    BuchAnlegen();
    QVERIFY(ZeugnisnoteEintragen(10000, 50000, true, QStringLiteral("1")));
    QVERIFY(ZeugnisnoteEintragen(10000, 50000, false, QStringLiteral("4")));
    QCOMPARE(Datenbank.Noten[0].Gesamt1, QStringLiteral("1"));
    QCOMPARE(Datenbank.Noten[0].Gesamt2, QStringLiteral("4"));
    QVERIFY(DatenGeaendert);
}

void GesamtnotenTest::unknownRowChangesNothing() {
    BuchAnlegen();
    QVERIFY(!NoteEintragen(10001, 50000, 1, QStringLiteral("5")));
    QVERIFY(!ZeugnisnoteEintragen(10000, 50001, true, QStringLiteral("5")));
    QVERIFY(!DatenGeaendert);
}

TESTKLASSE(GesamtnotenTest)
#include "tst_Gesamtnoten.moc"
