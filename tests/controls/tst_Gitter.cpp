// The grid: its face, its geometry with a fixed part, keys and mouse, sorting.

#include "common/Testprogramm.h"
#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "core/Laufzeitfehler.h"
#include "core/Zahlen.h"

#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QToolTip>
#include <QtTest>

class GitterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void textsDataAndColoursAreReadAsWritten();
    void readersOutsideGiveNothing();
    void writersOutsideThrowAndChangeNothing();
    void sizeChangesKeepWhatStays();
    void fillReplacesTheBodyInOneReset();
    void fillKeepsCurrentCellAndWidths();
    void currentCellIsTakenToTheLastOneWhenItVanishes();
    void settingAnotherCellTellsOnce();
    void settingTheSameCellTellsNothing();
    void valuesOutsideAreIgnored();
    void clickMakesTheCellCurrentThenTells();
    void clickOnAFixedCellMakesItCurrent();
    void clickOnTheCurrentCellTellsAgain();
    void enterDoesAsAClick();
    void releaseComesBeforeClickInGridCoordinates();
    void rightButtonMovesNothing();
    void doubleClickIsTold();
    void fixedRowAndColumnStayWhileScrolling();
    void scrolledCellIsClippedByTheFixedPart();
    void cellRectMatchesRowAtAndColAt();
    void mergedHeaderGivesTheWholeRectangle();
    void headerDataGivesHeaderTexts();
    void keysMoveAmongTheCellsThatAreNotFixed_data();
    void keysMoveAmongTheCellsThatAreNotFixed();
    void keysInAFixedColumnStayInIt();
    void tabLeavesTheGridAtItsEnd();
    void otherKeysAreTold();
    void currentCellIsScrolledIntoView();
    void topRowIsTheFirstBelowTheFixedOnes();
    void sharesFillTheWidthAndFollowIt();
    void sharesNeverGoBelowTheLeastWidth();
    void sortsTextByLocaleIgnoringCaseStably();
    void sortsNumbersDescendingStably();
    void sortTakesDataColoursAndHeightsAlong();
    void twipsAndPixels();
    void clippedTextHasAPlainToolTip();

  private:
    void Fuellen(int Zeilen, int Spalten);
    QPoint Mitte(int Zeile, int Spalte) const { return Ansicht(Tabelle->CellRect(Zeile, Spalte).center()); }
    /// A point of the grid in its viewport, where mouse events go.
    QPoint Ansicht(QPoint Ort) const { return Ort - Tabelle->viewport()->geometry().topLeft(); }
    QStringList Spalte(int Nummer) const;

    std::unique_ptr<Gitter> Tabelle;
    std::unique_ptr<QAbstractItemModelTester> Pruefer;
};

void GitterTest::init() {
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    Tabelle = std::make_unique<Gitter>();
    Pruefer = std::make_unique<QAbstractItemModelTester>(
        Tabelle->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    Tabelle->resize(400, 300);
}

void GitterTest::cleanup() {
    Pruefer.reset();
    Tabelle.reset();
}

/// Two header rows and a name column; each cell says its place.
void GitterTest::Fuellen(int Zeilen, int Spalten) {
    const auto Platz = [](int Zeile, int Spalte) { return QStringLiteral("%1/%2").arg(Zeile).arg(Spalte); };
    Tabelle->setCols(Spalten);
    Tabelle->setRows(2);
    Tabelle->setFixedRows(2);
    Tabelle->setFixedCols(1);
    for (int z = 0; z < 2; ++z)
        for (int s = 0; s < Spalten; ++s)
            Tabelle->setTextMatrix(z, s, Platz(z, s));
    std::vector<Gitterzeile> Rumpf(static_cast<std::size_t>(Zeilen - 3));
    for (int z = 2; z < Zeilen - 1; ++z)
        for (int s = 0; s < Spalten; ++s)
            Rumpf[static_cast<std::size_t>(z - 2)].Zellen.push_back({Platz(z, s), 0, 0});
    Tabelle->ZeilenSetzen(std::move(Rumpf));
    for (int s = 0; s < Spalten; ++s)
        Tabelle->setTextMatrix(Zeilen - 1, s, Platz(Zeilen - 1, s));
    Tabelle->show();
    QVERIFY(QTest::qWaitForWindowActive(Tabelle.get()));
}

QStringList GitterTest::Spalte(int Nummer) const {
    QStringList Texte;
    for (int z = 0; z < Tabelle->Rows(); ++z)
        Texte.append(Tabelle->TextMatrix(z, Nummer));
    return Texte;
}

void GitterTest::textsDataAndColoursAreReadAsWritten() {
    Fuellen(5, 4);
    Tabelle->setRowData(3, 10007);
    Tabelle->setColData(2, 50001);
    Tabelle->setCellForeColor(3, 2, QColor(0, 136, 0));
    Tabelle->setCellBackColor(3, 2, QColor(221, 239, 255));
    QCOMPARE(Tabelle->TextMatrix(3, 2), QStringLiteral("3/2"));
    QCOMPARE(Tabelle->RowData(3), 10007);
    QCOMPARE(Tabelle->ColData(2), 50001);
    QCOMPARE(Tabelle->CellForeColor(3, 2), QColor(0, 136, 0));
    QCOMPARE(Tabelle->CellBackColor(3, 2), QColor(221, 239, 255));
    QCOMPARE(Tabelle->CellForeColor(3, 1), QColor(Qt::black));
    QCOMPARE(Tabelle->CellBackColor(3, 1), QColor(Qt::white));
}

void GitterTest::readersOutsideGiveNothing() {
    Fuellen(5, 4);
    for (const QPoint Ort : {QPoint(-1, 0), QPoint(0, -1), QPoint(5, 0), QPoint(0, 4)}) {
        QCOMPARE(Tabelle->TextMatrix(Ort.x(), Ort.y()), QString());
        QCOMPARE(Tabelle->CellForeColor(Ort.x(), Ort.y()), QColor());
        QCOMPARE(Tabelle->CellBackColor(Ort.x(), Ort.y()), QColor());
        QCOMPARE(Tabelle->CellRect(Ort.x(), Ort.y()), QRect());
    }
    QCOMPARE(Tabelle->RowData(5), 0);
    QCOMPARE(Tabelle->ColData(-1), 0);
    QCOMPARE(Tabelle->RowAt(10000), -1);
    QCOMPARE(Tabelle->ColAt(-5), -1);
}

void GitterTest::writersOutsideThrowAndChangeNothing() {
    Fuellen(3, 3);
    const QStringList Vorher = Spalte(1);
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setTextMatrix(3, 0, QStringLiteral("x")));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setTextMatrix(0, -1, QStringLiteral("x")));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setRowData(-1, 1));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setColData(3, 1));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setCellBackColor(0, 3, Qt::red));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setColWidth(3, 10));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->setRowHeight(3, 10));
    QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Tabelle->Sortieren(1, 0, 3, Sortierart::TextAufsteigend));
    QCOMPARE(Spalte(1), Vorher);
}

void GitterTest::sizeChangesKeepWhatStays() {
    Fuellen(4, 4);
    Tabelle->setCols(6);
    Tabelle->setRows(6);
    QCOMPARE(Tabelle->TextMatrix(3, 3), QStringLiteral("3/3"));
    QCOMPARE(Tabelle->TextMatrix(5, 5), QString());
    Tabelle->setCols(2);
    Tabelle->setRows(3);
    QCOMPARE(Spalte(1), QStringList({QStringLiteral("0/1"), QStringLiteral("1/1"), QStringLiteral("2/1")}));
    Tabelle->setCols(3);
    QCOMPARE(Tabelle->TextMatrix(2, 2), QString());
}

void GitterTest::fillReplacesTheBodyInOneReset() {
    Fuellen(5, 3);
    QSignalSpy Resets(Tabelle->model(), &QAbstractItemModel::modelReset);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    std::vector<Gitterzeile> Zeilen;
    Zeilen.push_back({10001, {{QStringLiteral("Bauer"), 0, 0}, {QStringLiteral("2"), qRgb(255, 0, 0), 0}}});
    Zeilen.push_back({10002, {{QStringLiteral("Zech"), 0, 0}}});
    Tabelle->ZeilenSetzen(std::move(Zeilen));
    QCOMPARE(Resets.count(), 1);
    QCOMPARE(Betreten.count(), 0);
    QCOMPARE(Spalte(0), QStringList({QStringLiteral("0/0"), QStringLiteral("1/0"), QStringLiteral("Bauer"),
                                     QStringLiteral("Zech"), QString()}));
    QCOMPARE(Tabelle->RowData(3), 10002);
    QCOMPARE(Tabelle->CellForeColor(2, 1), QColor(Qt::red));
    QCOMPARE(Tabelle->TextMatrix(2, 2), QString());
}

void GitterTest::fillKeepsCurrentCellAndWidths() {
    Fuellen(6, 3);
    Tabelle->setColWidth(1, 77);
    Tabelle->setRowHeight(0, 41);
    Tabelle->setCell(3, 2);
    Tabelle->ZeilenSetzen(std::vector<Gitterzeile>(3));
    QCOMPARE(Tabelle->Row(), 3);
    QCOMPARE(Tabelle->Col(), 2);
    QCOMPARE(Tabelle->ColWidth(1), 77);
    QCOMPARE(Tabelle->RowHeight(0), 41);
}

void GitterTest::currentCellIsTakenToTheLastOneWhenItVanishes() {
    Fuellen(6, 4);
    Tabelle->setCell(5, 3);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    Tabelle->setRows(4);
    Tabelle->setCols(2);
    QCOMPARE(Tabelle->Row(), 3);
    QCOMPARE(Tabelle->Col(), 1);
    QCOMPARE(Betreten.count(), 0);
}

void GitterTest::settingAnotherCellTellsOnce() {
    Fuellen(5, 4);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    Tabelle->setCell(3, 2);
    QCOMPARE(Betreten.count(), 1);
    Tabelle->setRow(4);
    Tabelle->setCol(0);
    QCOMPARE(Betreten.count(), 3);
    QCOMPARE(Tabelle->Row(), 4);
    QCOMPARE(Tabelle->Col(), 0);
}

void GitterTest::settingTheSameCellTellsNothing() {
    Fuellen(5, 4);
    Tabelle->setCell(3, 2);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    Tabelle->setCell(3, 2);
    Tabelle->setRow(3);
    Tabelle->setCol(2);
    QCOMPARE(Betreten.count(), 0);
}

void GitterTest::valuesOutsideAreIgnored() {
    Fuellen(5, 4);
    Tabelle->setCell(3, 2);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    Tabelle->setRow(5);
    Tabelle->setRow(-1);
    Tabelle->setCol(4);
    Tabelle->Enter(9, 9);
    QCOMPARE(Betreten.count(), 0);
    QCOMPARE(Tabelle->Row(), 3);
}

void GitterTest::clickMakesTheCellCurrentThenTells() {
    Fuellen(5, 4);
    QStringList Folge;
    connect(Tabelle.get(), &Gitter::ZelleBetreten, this, [&] { Folge.append(QStringLiteral("betreten")); });
    connect(Tabelle.get(), &Gitter::MausLosgelassen, this, [&] { Folge.append(QStringLiteral("los")); });
    connect(Tabelle.get(), &Gitter::Geklickt, this, [&] { Folge.append(QStringLiteral("klick")); });
    QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Mitte(3, 2));
    QCOMPARE(Folge,
             QStringList({QStringLiteral("betreten"), QStringLiteral("los"), QStringLiteral("klick")}));
    QCOMPARE(Tabelle->Row(), 3);
    QCOMPARE(Tabelle->Col(), 2);
}

void GitterTest::clickOnAFixedCellMakesItCurrent() {
    Fuellen(5, 4);
    QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Mitte(3, 0));
    QCOMPARE(Tabelle->Col(), 0);
    QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Mitte(1, 2));
    QCOMPARE(Tabelle->Row(), 1);
    QCOMPARE(Tabelle->Col(), 2);
}

void GitterTest::clickOnTheCurrentCellTellsAgain() {
    Fuellen(5, 4);
    Tabelle->setCell(3, 2);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Mitte(3, 2));
    QCOMPARE(Betreten.count(), 1);
}

void GitterTest::enterDoesAsAClick() {
    Fuellen(50, 4);
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    QSignalSpy Los(Tabelle.get(), &Gitter::MausLosgelassen);
    QSignalSpy Klick(Tabelle.get(), &Gitter::Geklickt);
    Tabelle->Enter(40, 2);
    QCOMPARE(Tabelle->Row(), 40);
    QCOMPARE(Betreten.count(), 1);
    QCOMPARE(Los.count(), 1);
    QCOMPARE(Klick.count(), 1);
    QCOMPARE(Los.first().at(1).toPoint(), Tabelle->CellRect(40, 2).center());
    QCOMPARE(Tabelle->SichtbarerTeil(40, 2), Tabelle->CellRect(40, 2));
    QVERIFY(Tabelle->hasFocus());
}

void GitterTest::releaseComesBeforeClickInGridCoordinates() {
    Fuellen(5, 4);
    QSignalSpy Los(Tabelle.get(), &Gitter::MausLosgelassen);
    QTest::mouseClick(Tabelle->viewport(), Qt::RightButton, {}, Mitte(1, 2));
    QCOMPARE(Los.count(), 1);
    QCOMPARE(Los.first().at(0).value<Qt::MouseButton>(), Qt::RightButton);
    const QPoint Ort = Los.first().at(1).toPoint();
    QCOMPARE(Tabelle->RowAt(Ort.y()), 1);
    QCOMPARE(Tabelle->ColAt(Ort.x()), 2);
}

void GitterTest::rightButtonMovesNothing() {
    Fuellen(5, 4);
    Tabelle->setCell(3, 1);
    QSignalSpy Klick(Tabelle.get(), &Gitter::Geklickt);
    QTest::mouseClick(Tabelle->viewport(), Qt::RightButton, {}, Mitte(2, 2));
    QCOMPARE(Tabelle->Row(), 3);
    QCOMPARE(Klick.count(), 0);
}

void GitterTest::doubleClickIsTold() {
    Fuellen(5, 4);
    QSignalSpy Doppelt(Tabelle.get(), &Gitter::Doppelgeklickt);
    QTest::mouseDClick(Tabelle->viewport(), Qt::LeftButton, {}, Mitte(3, 2));
    QCOMPARE(Doppelt.count(), 1);
}

void GitterTest::fixedRowAndColumnStayWhileScrolling() {
    Fuellen(100, 40);
    const QRect Kopf = Tabelle->CellRect(1, 0);
    const QRect Titel = Tabelle->CellRect(1, 5);
    const QRect Name = Tabelle->CellRect(20, 0);
    const QRect Zelle = Tabelle->CellRect(20, 5);
    Tabelle->verticalScrollBar()->setValue(100);
    Tabelle->horizontalScrollBar()->setValue(70);
    QCOMPARE(Tabelle->CellRect(1, 0), Kopf);
    QCOMPARE(Tabelle->CellRect(1, 5), Titel.translated(-70, 0));
    QCOMPARE(Tabelle->CellRect(20, 0), Name.translated(0, -100));
    QCOMPARE(Tabelle->CellRect(20, 5), Zelle.translated(-70, -100));
    // A click on the place of the header hits the header, not what was scrolled under it.
    QCOMPARE(Tabelle->RowAt(Kopf.center().y()), 1);
    QCOMPARE(Tabelle->ColAt(Kopf.center().x()), 0);
}

void GitterTest::scrolledCellIsClippedByTheFixedPart() {
    Fuellen(100, 4);
    const int Hoehe = Tabelle->RowHeight(2);
    Tabelle->verticalScrollBar()->setValue(Hoehe + Hoehe / 2);
    QCOMPARE(Tabelle->SichtbarerTeil(2, 1), QRect());
    QCOMPARE(Tabelle->SichtbarerTeil(3, 1).height(), Hoehe - Hoehe / 2);
    QCOMPARE(Tabelle->SichtbarerTeil(3, 1).bottom(), Tabelle->CellRect(3, 1).bottom());
    QCOMPARE(Tabelle->SichtbarerTeil(1, 1), Tabelle->CellRect(1, 1));
}

void GitterTest::cellRectMatchesRowAtAndColAt() {
    Fuellen(60, 20);
    Tabelle->verticalScrollBar()->setValue(137);
    Tabelle->horizontalScrollBar()->setValue(59);
    int Geprueft = 0;
    for (int z = 0; z < 60; ++z)
        for (int s = 0; s < 20; ++s)
            if (const QRect Teil = Tabelle->SichtbarerTeil(z, s); !Teil.isEmpty()) {
                QCOMPARE(Tabelle->RowAt(Teil.top()), z);
                QCOMPARE(Tabelle->RowAt(Teil.bottom()), z);
                QCOMPARE(Tabelle->ColAt(Teil.left()), s);
                QCOMPARE(Tabelle->ColAt(Teil.right()), s);
                ++Geprueft;
            }
    QVERIFY(Geprueft > 20);
}

void GitterTest::mergedHeaderGivesTheWholeRectangle() {
    Fuellen(5, 6);
    Tabelle->setMergeRow(0, true);
    for (const int s : {1, 2, 3})
        Tabelle->setTextMatrix(0, s, QStringLiteral("Teilnahme"));
    const QRect Ganz = Tabelle->CellRect(0, 1);
    QCOMPARE(Ganz, Tabelle->CellRect(0, 3));
    QCOMPARE(Ganz.width(), Tabelle->ColWidth(1) + Tabelle->ColWidth(2) + Tabelle->ColWidth(3));
    QCOMPARE(Tabelle->CellRect(0, 4).width(), Tabelle->ColWidth(4));
    // Neither over the fixed column nor in a row that is not set to merge.
    Tabelle->setTextMatrix(0, 0, QStringLiteral("Teilnahme"));
    QCOMPARE(Tabelle->CellRect(0, 0).width(), Tabelle->ColWidth(0));
    Tabelle->setTextMatrix(1, 1, QStringLiteral("gleich"));
    Tabelle->setTextMatrix(1, 2, QStringLiteral("gleich"));
    QCOMPARE(Tabelle->CellRect(1, 1).width(), Tabelle->ColWidth(1));
}

void GitterTest::headerDataGivesHeaderTexts() {
    Fuellen(4, 3);
    QCOMPARE(Tabelle->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("0/2 1/2"));
    QCOMPARE(Tabelle->model()->headerData(3, Qt::Vertical).toString(), QStringLiteral("3/0"));
}

void GitterTest::keysMoveAmongTheCellsThatAreNotFixed_data() {
    QTest::addColumn<QPoint>("Von");
    QTest::addColumn<int>("Taste");
    QTest::addColumn<QPoint>("Nach");
    QTest::newRow("up") << QPoint(3, 2) << int(Qt::Key_Up) << QPoint(2, 2);
    QTest::newRow("up stops below the header") << QPoint(2, 2) << int(Qt::Key_Up) << QPoint(2, 2);
    QTest::newRow("down") << QPoint(3, 2) << int(Qt::Key_Down) << QPoint(4, 2);
    QTest::newRow("down stops") << QPoint(49, 2) << int(Qt::Key_Down) << QPoint(49, 2);
    QTest::newRow("left stops at the names") << QPoint(3, 1) << int(Qt::Key_Left) << QPoint(3, 1);
    QTest::newRow("right") << QPoint(3, 1) << int(Qt::Key_Right) << QPoint(3, 2);
    QTest::newRow("tab wraps") << QPoint(3, 3) << int(Qt::Key_Tab) << QPoint(4, 1);
    QTest::newRow("backtab wraps") << QPoint(3, 1) << int(Qt::Key_Backtab) << QPoint(2, 3);
    QTest::newRow("home") << QPoint(3, 3) << int(Qt::Key_Home) << QPoint(3, 1);
    QTest::newRow("end") << QPoint(3, 1) << int(Qt::Key_End) << QPoint(3, 3);
    QTest::newRow("page up stops") << QPoint(5, 1) << int(Qt::Key_PageUp) << QPoint(2, 1);
}

void GitterTest::keysMoveAmongTheCellsThatAreNotFixed() {
    QFETCH(QPoint, Von);
    QFETCH(int, Taste);
    QFETCH(QPoint, Nach);
    Fuellen(50, 4);
    Tabelle->setFocus();
    Tabelle->setCell(Von.x(), Von.y());
    QTest::keyClick(Tabelle.get(), static_cast<Qt::Key>(Taste));
    QCOMPARE(QPoint(Tabelle->Row(), Tabelle->Col()), Nach);
}

void GitterTest::keysInAFixedColumnStayInIt() {
    Fuellen(5, 4);
    Tabelle->setFocus();
    Tabelle->setCell(4, 0);
    QTest::keyClick(Tabelle.get(), Qt::Key_Up);
    QCOMPARE(QPoint(Tabelle->Row(), Tabelle->Col()), QPoint(3, 0));
    QTest::keyClick(Tabelle.get(), Qt::Key_Right);
    QCOMPARE(Tabelle->Col(), 1);
}

void GitterTest::tabLeavesTheGridAtItsEnd() {
    QWidget Fenster;
    auto* Eines = new Gitter(&Fenster);
    auto* Danach = new QLineEdit(&Fenster);
    Eines->setRows(2);
    Eines->setCols(2);
    Fenster.show();
    QVERIFY(QTest::qWaitForWindowActive(&Fenster));
    Eines->setFocus();
    Eines->setCell(1, 1);
    QTest::keyClick(Eines, Qt::Key_Tab);
    QVERIFY(Danach->hasFocus());
    QCOMPARE(Eines->Row(), 1);
}

void GitterTest::otherKeysAreTold() {
    Fuellen(5, 4);
    Tabelle->setFocus();
    QSignalSpy Gedrueckt(Tabelle.get(), &Gitter::TasteGedrueckt);
    QSignalSpy Los(Tabelle.get(), &Gitter::TasteLosgelassen);
    QTest::keyClick(Tabelle.get(), Qt::Key_Escape);
    QTest::keyClick(Tabelle.get(), Qt::Key_Return);
    QTest::keyClick(Tabelle.get(), Qt::Key_Down);
    QCOMPARE(Gedrueckt.count(), 2);
    QCOMPARE(Los.count(), 3);
}

void GitterTest::currentCellIsScrolledIntoView() {
    Fuellen(100, 40);
    for (const QPoint Ort : {QPoint(99, 39), QPoint(2, 1), QPoint(50, 20), QPoint(2, 39)}) {
        Tabelle->setCell(Ort.x(), Ort.y());
        QCOMPARE(Tabelle->SichtbarerTeil(Ort.x(), Ort.y()), Tabelle->CellRect(Ort.x(), Ort.y()));
    }
}

void GitterTest::topRowIsTheFirstBelowTheFixedOnes() {
    Fuellen(100, 4);
    QCOMPARE(Tabelle->TopRow(), 2);
    Tabelle->setTopRow(30);
    QCOMPARE(Tabelle->TopRow(), 30);
    QCOMPARE(Tabelle->SichtbarerTeil(30, 1), Tabelle->CellRect(30, 1));
    Tabelle->setTopRow(200);
    QCOMPARE(Tabelle->TopRow(), 30);
}

void GitterTest::sharesFillTheWidthAndFollowIt() {
    Fuellen(3, 3);
    Tabelle->setColShares({0.5, 0.3, 0.2});
    for (const int Breite : {400, 333, 701}) {
        Tabelle->resize(Breite, 300);
        QCoreApplication::processEvents();
        QCOMPARE(Tabelle->ColWidth(0) + Tabelle->ColWidth(1) + Tabelle->ColWidth(2),
                 Tabelle->viewport()->width());
        QCOMPARE(Tabelle->ColWidth(0), Tabelle->viewport()->width() / 2);
    }
}

void GitterTest::sharesNeverGoBelowTheLeastWidth() {
    Fuellen(3, 3);
    Tabelle->setColShares({0.5, 0.3, 0.2}, 900);
    QCOMPARE(Tabelle->ColWidth(0), 450);
    QVERIFY(Tabelle->horizontalScrollBar()->maximum() > 0);
    Tabelle->resize(1200, 300);
    QCoreApplication::processEvents();
    QCOMPARE(Tabelle->ColWidth(0), Tabelle->viewport()->width() / 2);
    QCOMPARE(Tabelle->horizontalScrollBar()->maximum(), 0);
}

void GitterTest::sortsTextByLocaleIgnoringCaseStably() {
    const QStringList Namen{QStringLiteral("Zander"), QStringLiteral("Österle"), QStringLiteral("apfel"),
                            QStringLiteral("Äpfel"),  QStringLiteral("Apfel"),   QStringLiteral("Müller")};
    Tabelle->setRows(8);
    Tabelle->setCols(1);
    for (int i = 0; i < 6; ++i) {
        Tabelle->setTextMatrix(i + 1, 0, Namen[i]);
        Tabelle->setRowData(i + 1, i);
    }
    Tabelle->Sortieren(0, 1, 6, Sortierart::TextAufsteigend);
    QList<int> Daten;
    for (int i = 1; i <= 6; ++i)
        Daten.append(Tabelle->RowData(i));
    QCOMPARE(Daten, QList<int>({2, 4, 3, 5, 1, 0}));
    QCOMPARE(Tabelle->TextMatrix(0, 0), QString());
    QCOMPARE(Tabelle->TextMatrix(7, 0), QString());
}

void GitterTest::sortsNumbersDescendingStably() {
    const QStringList Punkte{QStringLiteral("9"), QStringLiteral("10,5"), QString(), QStringLiteral("-3"),
                             QStringLiteral("9")};
    Tabelle->setRows(5);
    Tabelle->setCols(1);
    for (int i = 0; i < 5; ++i) {
        Tabelle->setTextMatrix(i, 0, Punkte[i]);
        Tabelle->setRowData(i, i);
    }
    Tabelle->Sortieren(0, 0, 4, Sortierart::ZahlAbsteigend);
    QList<int> Daten;
    for (int i = 0; i < 5; ++i)
        Daten.append(Tabelle->RowData(i));
    QCOMPARE(Daten, QList<int>({1, 0, 4, 2, 3}));
}

void GitterTest::sortTakesDataColoursAndHeightsAlong() {
    Fuellen(5, 2);
    Tabelle->setTextMatrix(2, 0, QStringLiteral("b"));
    Tabelle->setTextMatrix(3, 0, QStringLiteral("a"));
    Tabelle->setCellForeColor(3, 1, Qt::blue);
    Tabelle->setRowHeight(3, 55);
    Tabelle->Sortieren(0, 2, 3, Sortierart::TextAufsteigend);
    QCOMPARE(Tabelle->TextMatrix(2, 1), QStringLiteral("3/1"));
    QCOMPARE(Tabelle->CellForeColor(2, 1), QColor(Qt::blue));
    QCOMPARE(Tabelle->RowHeight(2), 55);
    Tabelle->Sortieren(0, 3, 3, Sortierart::TextAufsteigend);
    Tabelle->Sortieren(0, 3, 2, Sortierart::TextAufsteigend);
    QCOMPARE(Tabelle->TextMatrix(2, 1), QStringLiteral("3/1"));
}

void GitterTest::twipsAndPixels() {
    QCOMPARE(Gitter::TwipsInPixel(2150), 143);
    QCOMPARE(Gitter::TwipsInPixel(0), 0);
    QCOMPARE(Gitter::PixelInTwips(10), 150.0);
}

void GitterTest::clippedTextHasAPlainToolTip() {
    Fuellen(5, 4);
    Tabelle->setTextMatrix(3, 2, QStringLiteral("<b>ein langer Name</b>"));
    Tabelle->setColWidth(2, 30);
    QHelpEvent Hilfe(QEvent::ToolTip, Mitte(3, 2), Tabelle->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(Tabelle->viewport(), &Hilfe);
    QCOMPARE(QToolTip::text(), QStringLiteral("&lt;b&gt;ein langer Name&lt;/b&gt;"));
    QToolTip::hideText();
}

TESTKLASSE(GitterTest)
#include "tst_Gitter.moc"
