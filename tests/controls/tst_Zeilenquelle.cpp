// A grid whose rows come from a source when they are first looked at.

#include "common/Testprogramm.h"
#include "controls/Gitter.h"
#include "core/Zahlen.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QtTest>

class ZeilenquelleTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void eachRowIsAskedForOnceWhenItIsRead();
    void sizesAndRowDataAskForNoRow();
    void paintingAsksForWhatIsSeen();
    void scrollingAsksForWhatComesIntoSight();
    void everyCellReadsFromOutsideLikeAWrittenOne();
    void screenReadersFindTheTexts();
    void missingCellsAreEmptyAndTooManyAreDropped();
    void writingKeepsTheOtherCellsOfTheRow();
    void colourAndDatumOfAnUnseenRowCanBeWritten();
    void sortingTakesUnseenRowsAlong();
    void columnsAddedBeforeARowIsSeenAreEmpty();
    void aNewFillAsksAnew();
    void theEntryRowComesFromNoSource();
    void whoHearsOfAFillFindsTheColumnsAsTheyWere();

  private:
    void Fuellen(int Anzahl);

    std::unique_ptr<Gitter> Tabelle;
    std::unique_ptr<QAbstractItemModelTester> Pruefer;
    QList<int> Gefragt; ///< by the source, in this order
};

void ZeilenquelleTest::init() {
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    Tabelle = std::make_unique<Gitter>();
    Tabelle->resize(400, 300);
    Tabelle->setCols(3);
    Tabelle->setRows(2);
    Tabelle->setFixedRows(1);
    Tabelle->setFixedCols(1);
}

void ZeilenquelleTest::cleanup() {
    Pruefer.reset();
    Tabelle.reset();
}

/// Rows of three cells; row Nummer says "Nummer/Spalte", has the datum 100+Nummer and a red name.
void ZeilenquelleTest::Fuellen(int Anzahl) {
    Gefragt.clear();
    std::vector<qint32> Daten;
    for (int i = 0; i < Anzahl; ++i)
        Daten.push_back(100 + i);
    Tabelle->ZeilenSetzen(Daten, [this](int Nummer) {
        Gefragt.append(Nummer);
        std::vector<Gitterzelle> Zellen;
        for (int s = 0; s < 3; ++s)
            Zellen.push_back(
                {QStringLiteral("%1/%2").arg(Nummer).arg(s), s == 0 ? qRgb(255, 0, 0) : 0U, qRgb(1, 2, 3)});
        return Zellen;
    });
}

void ZeilenquelleTest::eachRowIsAskedForOnceWhenItIsRead() {
    Fuellen(5000);
    QCOMPARE(Tabelle->TextMatrix(4001, 2), QStringLiteral("4000/2"));
    QCOMPARE(Tabelle->TextMatrix(4001, 1), QStringLiteral("4000/1"));
    QCOMPARE(Gefragt, QList<int>{4000});
    QVERIFY(Tabelle->ZeileSteht(4001));
    QVERIFY(!Tabelle->ZeileSteht(4000));
    QVERIFY(!Tabelle->ZeileSteht(6000));
}

void ZeilenquelleTest::sizesAndRowDataAskForNoRow() {
    Fuellen(5000);
    QCOMPARE(Tabelle->Rows(), 5002);
    QCOMPARE(Tabelle->RowData(5000), 5099);
    QVERIFY(Tabelle->CellRect(3, 2).isValid());
    Tabelle->setCell(3, 1);
    QCOMPARE(Gefragt, QList<int>());
}

void ZeilenquelleTest::paintingAsksForWhatIsSeen() {
    Fuellen(5000);
    Tabelle->grab();
    QVERIFY(!Gefragt.isEmpty());
    QCOMPARE(Gefragt.first(), 0);
    QVERIFY(Gefragt.size() <= Tabelle->height() / Tabelle->RowHeight(1) + 1);
}

void ZeilenquelleTest::scrollingAsksForWhatComesIntoSight() {
    Fuellen(5000);
    Tabelle->setTopRow(3000);
    Tabelle->grab();
    QCOMPARE(Gefragt.first(), 2999);
    QVERIFY(!Tabelle->ZeileSteht(1));
}

void ZeilenquelleTest::everyCellReadsFromOutsideLikeAWrittenOne() {
    Fuellen(50);
    for (int z = 50; z >= 1; --z) {
        QCOMPARE(Tabelle->CellForeColor(z, 0), QColor(255, 0, 0));
        QCOMPARE(Tabelle->CellBackColor(z, 2), QColor(1, 2, 3));
        QCOMPARE(Tabelle->TextMatrix(z, 1), QStringLiteral("%1/1").arg(z - 1));
        QCOMPARE(Tabelle->RowData(z), 99 + z);
    }
}

void ZeilenquelleTest::screenReadersFindTheTexts() {
    Pruefer = std::make_unique<QAbstractItemModelTester>(
        Tabelle->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    Fuellen(50);
    QAccessibleInterface* Gitterschnittstelle = QAccessible::queryAccessibleInterface(Tabelle.get());
    QAccessibleInterface* Zelle = Gitterschnittstelle->tableInterface()->cellAt(40, 1);
    QCOMPARE(Zelle->text(QAccessible::Name), QStringLiteral("39/1"));
}

void ZeilenquelleTest::missingCellsAreEmptyAndTooManyAreDropped() {
    Tabelle->ZeilenSetzen({1, 2}, [](int Nummer) {
        return std::vector<Gitterzelle>(Nummer == 0 ? 1U : 9U, Gitterzelle{QStringLiteral("x")});
    });
    QCOMPARE(Tabelle->TextMatrix(1, 0), QStringLiteral("x"));
    QCOMPARE(Tabelle->TextMatrix(1, 2), QString());
    QCOMPARE(Tabelle->TextMatrix(2, 2), QStringLiteral("x"));
    QCOMPARE(Tabelle->Cols(), 3);
}

void ZeilenquelleTest::writingKeepsTheOtherCellsOfTheRow() {
    Fuellen(50);
    Tabelle->setTextMatrix(40, 1, QStringLiteral("neu"));
    QCOMPARE(Tabelle->TextMatrix(40, 1), QStringLiteral("neu"));
    QCOMPARE(Tabelle->TextMatrix(40, 2), QStringLiteral("39/2"));
    QCOMPARE(Gefragt, QList<int>{39});
}

void ZeilenquelleTest::colourAndDatumOfAnUnseenRowCanBeWritten() {
    Fuellen(50);
    Tabelle->setRowData(30, 7);
    Tabelle->setCellBackColor(30, 1, QColor(9, 9, 9));
    QCOMPARE(Tabelle->RowData(30), 7);
    QCOMPARE(Tabelle->CellBackColor(30, 1), QColor(9, 9, 9));
    QCOMPARE(Tabelle->TextMatrix(30, 1), QStringLiteral("29/1"));
}

void ZeilenquelleTest::sortingTakesUnseenRowsAlong() {
    Fuellen(12);
    Tabelle->setRowHeight(11, 55);
    Tabelle->Sortieren(0, 1, 12, Sortierart::TextAufsteigend);
    QCOMPARE(Tabelle->TextMatrix(1, 0), QStringLiteral("0/0"));
    QCOMPARE(Tabelle->TextMatrix(3, 0), QStringLiteral("10/0"));
    QCOMPARE(Tabelle->RowData(3), 110);
    QCOMPARE(Tabelle->RowHeight(3), 55);
    QCOMPARE(Tabelle->TextMatrix(4, 2), QStringLiteral("11/2"));
}

void ZeilenquelleTest::columnsAddedBeforeARowIsSeenAreEmpty() {
    Fuellen(12);
    Tabelle->TextMatrix(1, 0);
    Tabelle->setCols(5);
    for (const int Zeile : {1, 9}) {
        QCOMPARE(Tabelle->TextMatrix(Zeile, 2), QStringLiteral("%1/2").arg(Zeile - 1));
        QCOMPARE(Tabelle->TextMatrix(Zeile, 4), QString());
    }
    Tabelle->setCols(2);
    QCOMPARE(Tabelle->TextMatrix(10, 1), QStringLiteral("9/1"));
    QCOMPARE(Tabelle->TextMatrix(10, 2), QString());
}

void ZeilenquelleTest::aNewFillAsksAnew() {
    Fuellen(12);
    Tabelle->TextMatrix(5, 0);
    Fuellen(12);
    QVERIFY(!Tabelle->ZeileSteht(5));
    Tabelle->TextMatrix(5, 0);
    QCOMPARE(Gefragt, QList<int>{4});
    Tabelle->ZeilenSetzen({{3, {{QStringLiteral("fertig")}}}});
    QVERIFY(Tabelle->ZeileSteht(1));
    QCOMPARE(Tabelle->TextMatrix(1, 0), QStringLiteral("fertig"));
}

void ZeilenquelleTest::theEntryRowComesFromNoSource() {
    Fuellen(3);
    QVERIFY(Tabelle->ZeileSteht(4));
    QCOMPARE(Tabelle->TextMatrix(4, 0), QString());
    QCOMPARE(Tabelle->RowData(4), 0);
    QCOMPARE(Gefragt, QList<int>());
}

void ZeilenquelleTest::whoHearsOfAFillFindsTheColumnsAsTheyWere() {
    Tabelle->setColShares({0.5, 0.3, 0.2});
    Tabelle->setRowHeight(0, 44);
    Tabelle->show();
    Fuellen(3);
    const int Breite = Tabelle->ColWidth(1);
    QList<int> Breiten;
    QList<int> Hoehen;
    const QObject Lauscher;
    connect(Tabelle.get(), &Gitter::LageGeaendert, &Lauscher, [&] {
        Breiten.append(Tabelle->ColWidth(1));
        Hoehen.append(Tabelle->RowHeight(0));
    });
    Fuellen(3);
    QVERIFY(!Breiten.isEmpty());
    QCOMPARE(Breiten, QList<int>(Breiten.size(), Breite));
    QCOMPARE(Hoehen, QList<int>(Hoehen.size(), 44));
}

TESTKLASSE(ZeilenquelleTest)
#include "tst_Zeilenquelle.moc"
