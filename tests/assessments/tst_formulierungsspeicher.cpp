#include "assessments/Formulierungsspeicher.h"

#include "Lernbereichsprobe.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include <QtTest>

namespace {

QStringList Zeilen(int Bereich) {
    QStringList Alle;
    for (int i = 0; i < Lernbereiche[Bereich].Anzahl; ++i)
        Alle.append(Lernbereiche[Bereich].Formulierung[i]);
    return Alle;
}

QStringList Namen() {
    QStringList Alle;
    for (int i = 0; i < AnzLernbereiche; ++i)
        Alle.append(Lernbereiche[i].Name);
    return Alle;
}

QStringList Worte(const char* Text) {
    return QString::fromLatin1(Text).split(u'|', Qt::SkipEmptyParts);
}

QStringList VieleZeilen(int Anzahl) {
    QStringList Alle;
    for (int i = 0; i < Anzahl; ++i)
        Alle.append(QStringLiteral("o %1").arg(i));
    return Alle;
}

void VieleBereiche(int Anzahl) {
    for (int i = 0; i < Anzahl; ++i)
        BereichAnlegen(QStringLiteral("Bereich %1").arg(i + 1), {});
}

} // namespace

class FormulierungsspeicherTest : public QObject {
    Q_OBJECT

    Testwelt Welt;

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        BereichAnlegen(QStringLiteral("A"), Worte("+ eins|o zwei|- drei"));
        BereichAnlegen(QStringLiteral("B"), Worte("o vier"));
        BereichAnlegen(QStringLiteral("C"), {});
    }
    void cleanup() { Welt.Aufraeumen(); }

    void ANewPhraseIsAlwaysNeutral() {
        QCOMPARE(FormulierungAblegen(0, 3, QStringLiteral("neu")), Ablehnung::Keine);
        QCOMPARE(Zeilen(0), Worte("+ eins|o zwei|- drei|o neu"));
        QVERIFY(FormulierungenGeaendert);
    }

    void AChangedPhraseKeepsMarkAndSeparator() {
        Lernbereiche[0].Formulierung[2] = QStringLiteral("-_drei");
        FormulierungAblegen(0, 2, QStringLiteral("anders"));
        QCOMPARE(Lernbereiche[0].Formulierung[2], QStringLiteral("-_anders"));
        QVERIFY(FormulierungenGeaendert);
    }

    void TheSameTextIsNoChange() {
        FormulierungAblegen(0, 1, QStringLiteral("zwei"));
        QVERIFY(!FormulierungenGeaendert);
    }

    void APhraseForTheAreaBehindTheLastBringsItToLife() {
        Lernbereiche[4].Anzahl = 9;
        QCOMPARE(FormulierungAblegen(3, 0, QStringLiteral("neu")), Ablehnung::Keine);
        QCOMPARE(Namen(), Worte("A|B|C|Unbenannter Lernbereich"));
        QCOMPARE(Zeilen(3), Worte("o neu"));
        QCOMPARE(Lernbereiche[4].Anzahl, 0);
    }

    void The201stPhraseIsRefused() {
        BereichAnlegen(QStringLiteral("D"), VieleZeilen(200));
        QCOMPARE(FormulierungAblegen(3, 200, QStringLiteral("neu")), Ablehnung::FormulierungenVoll);
        QCOMPARE(Zeilen(3), VieleZeilen(200));
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(PlatzPruefen(3), Ablehnung::FormulierungenVoll);
    }

    void The200thPhraseIsTaken() {
        BereichAnlegen(QStringLiteral("D"), VieleZeilen(199));
        QCOMPARE(FormulierungAblegen(3, 199, QStringLiteral("199")), Ablehnung::Keine);
        QCOMPARE(Zeilen(3), VieleZeilen(200));
    }

    void TheHundredthAreaIsRefusedHoweverItBegins() {
        VieleBereiche(96);
        QCOMPARE(AnzLernbereiche, qint16(99));
        QCOMPARE(FormulierungAblegen(99, 0, QStringLiteral("neu")), Ablehnung::LernbereicheVoll);
        QCOMPARE(LernbereichBenennen(99, QStringLiteral("neu")), Ablehnung::LernbereicheVoll);
        QCOMPARE(FormulierungUmziehen(0, 0, 99), Ablehnung::LernbereicheVoll);
        QCOMPARE(AnzLernbereiche, qint16(99));
        QCOMPARE(Lernbereiche[99].Anzahl, 0);
        QCOMPARE(Zeilen(0), Worte("+ eins|o zwei|- drei"));
        QVERIFY(!FormulierungenGeaendert);
    }

    void The99thAreaIsTaken() {
        VieleBereiche(95);
        QCOMPARE(LernbereichBenennen(98, QStringLiteral("neu")), Ablehnung::Keine);
        QCOMPARE(AnzLernbereiche, qint16(99));
    }

    void ALineThatWouldReadAsAnAreaIsRefused() {
        Lernbereiche[0].Formulierung[0] = QStringLiteral("[ eins");
        QCOMPARE(FormulierungAblegen(0, 0, QStringLiteral("eins]")), Ablehnung::Bereichszeile);
        QCOMPARE(Lernbereiche[0].Formulierung[0], QStringLiteral("[ eins"));
        QCOMPARE(FormulierungAblegen(0, 1, QStringLiteral("[zwei]")), Ablehnung::Keine);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("o [zwei]"));
    }

    void DeletingAPhraseMovesTheFollowingUp() {
        FormulierungLoeschen(0, 0);
        QCOMPARE(Zeilen(0), Worte("o zwei|- drei"));
        QVERIFY(FormulierungenGeaendert);
    }

    void MovingAPhraseKeepsTheTargetsNumber_data() {
        QTest::addColumn<int>("Von");
        QTest::addColumn<int>("Nach");
        QTest::addColumn<QStringList>("Danach");
        QTest::newRow("down") << 0 << 2 << Worte("o zwei|- drei|+ eins");
        QTest::newRow("up") << 2 << 0 << Worte("- drei|+ eins|o zwei");
        QTest::newRow("by one") << 1 << 2 << Worte("+ eins|- drei|o zwei");
    }
    void MovingAPhraseKeepsTheTargetsNumber() {
        QFETCH(int, Von);
        QFETCH(int, Nach);
        QFETCH(QStringList, Danach);
        FormulierungVerschieben(0, Von, Nach);
        QCOMPARE(Zeilen(0), Danach);
        QVERIFY(FormulierungenGeaendert);
    }

    void APhraseMovesToTheEndOfAnotherAreaWithItsMark() {
        QCOMPARE(FormulierungUmziehen(0, 2, 1), Ablehnung::Keine);
        QCOMPARE(Zeilen(0), Worte("+ eins|o zwei"));
        QCOMPARE(Zeilen(1), Worte("o vier|- drei"));
        QVERIFY(FormulierungenGeaendert);
    }

    void APhraseMovedOntoTheNewAreaCreatesIt() {
        QCOMPARE(FormulierungUmziehen(0, 0, 3), Ablehnung::Keine);
        QCOMPARE(Namen(), Worte("A|B|C|Unbenannter Lernbereich"));
        QCOMPARE(Zeilen(3), Worte("+ eins"));
        QCOMPARE(Zeilen(0), Worte("o zwei|- drei"));
        QCOMPARE(Lernbereiche[4].Anzahl, 0);
    }

    void MovingIntoAFullAreaIsRefused() {
        BereichAnlegen(QStringLiteral("D"), VieleZeilen(200));
        QCOMPARE(FormulierungUmziehen(0, 0, 3), Ablehnung::FormulierungenVoll);
        QCOMPARE(Zeilen(0), Worte("+ eins|o zwei|- drei"));
        QCOMPARE(Zeilen(3), VieleZeilen(200));
        QVERIFY(!FormulierungenGeaendert);
    }

    void MovingOutOfAFullAreaWorks() {
        BereichAnlegen(QStringLiteral("D"), VieleZeilen(200));
        QCOMPARE(FormulierungUmziehen(3, 199, 2), Ablehnung::Keine);
        QCOMPARE(Zeilen(3), VieleZeilen(199));
        QCOMPARE(Zeilen(2), Worte("o 199"));
    }

    void AMarkOverwritesTheFirstCharacter_data() {
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<QString>("Zeile");
        QTest::newRow("positive") << 0 << QStringLiteral("+ drei");
        QTest::newRow("neutral") << 1 << QStringLiteral("o drei");
        QTest::newRow("negative") << 2 << QStringLiteral("- drei");
    }
    void AMarkOverwritesTheFirstCharacter() {
        QFETCH(int, Nummer);
        QFETCH(QString, Zeile);
        QVERIFY(FormulierungMarkieren(0, 2, Nummer));
        QCOMPARE(Lernbereiche[0].Formulierung[2], Zeile);
        QVERIFY(FormulierungenGeaendert);
    }

    void WithoutAStoredCharacterThereIsNothingToMark() {
        Lernbereiche[0].Formulierung[1].clear();
        QVERIFY(!FormulierungMarkieren(0, 1, 0));
        QVERIFY(!FormulierungMarkieren(0, 3, 0));
        QVERIFY(!FormulierungMarkieren(0, 200, 0));
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(Lernbereiche[0].Anzahl, 3);
    }

    void RenamingAnAreaLeavesTheFlagAlone() {
        QCOMPARE(LernbereichBenennen(1, QStringLiteral("neu")), Ablehnung::Keine);
        QCOMPARE(Namen(), Worte("A|neu|C"));
        QVERIFY(!FormulierungenGeaendert);
    }

    void NamingTheNewAreaCreatesIt() {
        Lernbereiche[4].Anzahl = 9;
        QCOMPARE(LernbereichBenennen(3, QStringLiteral("neu")), Ablehnung::Keine);
        QCOMPARE(Namen(), Worte("A|B|C|neu"));
        QCOMPARE(Lernbereiche[4].Anzahl, 0);
        QVERIFY(FormulierungenGeaendert);
    }

    void DeletingAnAreaTakesItsPhrasesAlong() {
        LernbereichLoeschen(0);
        QCOMPARE(Namen(), Worte("B|C"));
        QCOMPARE(Zeilen(0), Worte("o vier"));
        QCOMPARE(Lernbereiche[2].Anzahl, 0);
        QVERIFY(FormulierungenGeaendert);
    }

    void MovingAnArea_data() {
        QTest::addColumn<int>("Von");
        QTest::addColumn<int>("Nach");
        QTest::addColumn<QStringList>("Danach");
        QTest::newRow("down") << 0 << 2 << Worte("B|C|A");
        QTest::newRow("up") << 2 << 0 << Worte("C|A|B");
        QTest::newRow("onto itself") << 1 << 1 << Worte("A|B|C");
        QTest::newRow("onto the new area") << 0 << 3 << Worte("A|B|C");
        QTest::newRow("the new area itself") << 3 << 0 << Worte("A|B|C");
        QTest::newRow("onto nothing") << 0 << -1 << Worte("A|B|C");
        QTest::newRow("nothing") << -1 << 0 << Worte("A|B|C");
    }
    void MovingAnArea() {
        QFETCH(int, Von);
        QFETCH(int, Nach);
        QFETCH(QStringList, Danach);
        QCOMPARE(LernbereichVerschieben(Von, Nach), Danach != Worte("A|B|C"));
        QCOMPARE(Namen(), Danach);
        QCOMPARE(Zeilen(static_cast<int>(Danach.indexOf(QStringLiteral("A")))),
                 Worte("+ eins|o zwei|- drei"));
        QVERIFY(!FormulierungenGeaendert);
    }

    void MarksHaveTheirColours() {
        QCOMPARE(Markenfarbe(QStringLiteral("+ x")), std::optional(qRgb(0xDD, 0xFF, 0xDD)));
        QCOMPARE(Markenfarbe(QStringLiteral("o")), std::optional(qRgb(0xFF, 0xFF, 0x99)));
        QCOMPARE(Markenfarbe(QStringLiteral("- x")), std::optional(qRgb(0xFF, 0xCC, 0xCC)));
        QCOMPARE(Markenfarbe(QStringLiteral("x +")), std::optional<QRgb>());
        QCOMPARE(Markenfarbe(QString()), std::optional<QRgb>());
        for (int Nummer = 0; Nummer < AnzMarken; ++Nummer)
            QCOMPARE(MarkeMitFarbe(Marke(Nummer).Farbe), std::optional(Nummer));
        QCOMPARE(MarkeMitFarbe(qRgb(255, 255, 255)), std::optional<int>());
    }

    void ARefusalIsToldInGerman() {
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Es sind höchstens 99 Lernbereiche möglich!"));
        QVERIFY(!Angenommen(Ablehnung::LernbereicheVoll));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Ein Lernbereich fasst höchstens 200 Formulierungen!"));
        QVERIFY(!Angenommen(Ablehnung::FormulierungenVoll));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Diese Formulierung darf nicht mit \"]\" enden"));
        QVERIFY(!Angenommen(Ablehnung::Bereichszeile));
        QVERIFY(Angenommen(Ablehnung::Keine));
    }
};

TESTKLASSE(FormulierungsspeicherTest)
#include "tst_formulierungsspeicher.moc"
