// What a grid paints: colours that can be read on every palette, the fixed part, and only what changed; and
// that a screen reader never meets a cell that is gone.

#include "common/Testprogramm.h"
#include "controls/Gitter.h"
#include "controls/Zellfarben.h"

#include <QAccessible>
#include <QScrollBar>
#include <QToolTip>
#include <QtTest>

namespace {

QPalette Helle() {
    QPalette Palette;
    Palette.setColor(QPalette::Base, Qt::white);
    Palette.setColor(QPalette::Text, Qt::black);
    Palette.setColor(QPalette::Button, QColor(239, 239, 239));
    Palette.setColor(QPalette::ButtonText, Qt::black);
    return Palette;
}

QPalette Dunkle() {
    QPalette Palette;
    Palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    Palette.setColor(QPalette::Text, QColor(0xEF, 0xF0, 0xF1));
    Palette.setColor(QPalette::Button, QColor(0x31, 0x36, 0x3B));
    Palette.setColor(QPalette::ButtonText, QColor(0xEF, 0xF0, 0xF1));
    return Palette;
}

/// Counts the area that is painted in a viewport.
class Malzaehler : public QObject {
  public:
    explicit Malzaehler(QWidget* Feld) { Feld->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* Ereignis) override {
        if (Ereignis->type() == QEvent::Paint)
            Gemalt += static_cast<QPaintEvent*>(Ereignis)->region();
        return false;
    }
    QRegion Gemalt;
};

} // namespace

class MalenTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Tabelle.reset(); }

    void contrastOfKnownPairs();
    void darkPaletteStaysReadable_data();
    void darkPaletteStaysReadable();
    void lightPaletteTakesTheColoursAsTheyAre();
    void coloursAnswerAsSetUnderADarkPalette();
    void onlyTheChangedCellIsPainted();
    void currentCellRepaintsOnlyTwoCells();
    void scrollingPaintsOnlyWhatComesIntoSight();
    void fixedPartCoversWhatIsScrolledUnderIt();
    void screenReaderWalksWhileTheGridIsRefilled();
    void focusedGridHasACurrentCell();
    void colourIsSaidInWords();

  private:
    std::unique_ptr<Gitter> Tabelle;
};

void MalenTest::init() {
    Tabelle = std::make_unique<Gitter>();
    Tabelle->setCols(12);
    Tabelle->setRows(2);
    Tabelle->setFixedRows(2);
    Tabelle->setFixedCols(1);
    std::vector<Gitterzeile> Zeilen(60);
    for (Gitterzeile& Zeile : Zeilen)
        Zeile.Zellen.assign(12, {QStringLiteral("2-"), 0, 0});
    Tabelle->ZeilenSetzen(std::move(Zeilen));
    for (int s = 0; s < 12; ++s)
        Tabelle->setColWidth(s, 60);
    Tabelle->resize(500, 300);
    Tabelle->show();
    QVERIFY(QTest::qWaitForWindowExposed(Tabelle.get()));
    QCoreApplication::processEvents();
}

void MalenTest::contrastOfKnownPairs() {
    QCOMPARE(qRound(Kontrast(qRgb(0, 0, 0), qRgb(255, 255, 255))), 21);
    QCOMPARE(qRound(10 * Kontrast(qRgb(255, 0, 0), qRgb(255, 255, 255))), 40);
    QCOMPARE(Kontrast(qRgb(9, 9, 9), qRgb(9, 9, 9)), 1.0);
}

void MalenTest::darkPaletteStaysReadable_data() {
    QTest::addColumn<QRgb>("Text");
    QTest::addColumn<QRgb>("Grund");
    const std::pair<const char*, QRgb> Texte[] = {{"unset", 0U},
                                                  {"black", qRgb(0, 0, 0)},
                                                  {"red", qRgb(255, 0, 0)},
                                                  {"green", qRgb(0, 136, 0)},
                                                  {"blue", qRgb(0, 0, 255)},
                                                  {"grey", qRgb(128, 128, 128)}};
    const std::pair<const char*, QRgb> Gruende[] = {
        {"unset", 0U},
        {"white", qRgb(255, 255, 255)},
        {"name", qRgb(238, 238, 238)},
        {"first half", qRgb(221, 239, 255)},
        {"second half", qRgb(221, 255, 221)},
        {"report 1", qRgb(204, 221, 255)},
        {"report 2", qRgb(204, 255, 204)},
        {"yellow", qRgb(255, 255, 153)},
        {"rose", qRgb(255, 204, 204)},
        {"black", qRgb(0, 0, 0)},
    };
    for (const auto& [TextName, Text] : Texte)
        for (const auto& [GrundName, Grund] : Gruende)
            QTest::addRow("%s on %s", TextName, GrundName) << Text << Grund;
}

void MalenTest::darkPaletteStaysReadable() {
    QFETCH(QRgb, Text);
    QFETCH(QRgb, Grund);
    for (const bool Kopf : {false, true}) {
        const Zellfarben Paar = ZellfarbenFuer(Text, Grund, Dunkle(), Kopf);
        QVERIFY2(Kontrast(Paar.Text, Paar.Grund) >= 4.5,
                 qPrintable(QStringLiteral("%1").arg(Kontrast(Paar.Text, Paar.Grund))));
        QVERIFY(QColor(Paar.Grund).lightnessF() < 0.5F);
    }
}

void MalenTest::lightPaletteTakesTheColoursAsTheyAre() {
    const Zellfarben Gesetzt = ZellfarbenFuer(qRgb(255, 0, 0), qRgb(221, 239, 255), Helle(), false);
    QCOMPARE(Gesetzt, (Zellfarben{qRgb(255, 0, 0), qRgb(221, 239, 255)}));
    const Zellfarben Leer = ZellfarbenFuer(0, 0, Helle(), false);
    QCOMPARE(Leer, (Zellfarben{qRgb(0, 0, 0), qRgb(255, 255, 255)}));
    QCOMPARE(ZellfarbenFuer(0, 0, Helle(), true).Grund, qRgb(239, 239, 239));
}

void MalenTest::coloursAnswerAsSetUnderADarkPalette() {
    Tabelle->setPalette(Dunkle());
    Tabelle->setCellForeColor(3, 3, QColor(255, 0, 0));
    QCOMPARE(Tabelle->CellForeColor(3, 3), QColor(255, 0, 0));
    QCOMPARE(Tabelle->CellBackColor(3, 3), QColor(Qt::white));
    const QImage Bild = Tabelle->grab().toImage();
    const QPoint Ecke = Tabelle->CellRect(3, 3).topLeft() + QPoint(2, 2);
    QVERIFY(Bild.pixelColor(Ecke * Bild.devicePixelRatio()).lightnessF() < 0.5F);
}

void MalenTest::onlyTheChangedCellIsPainted() {
    const Malzaehler Zaehler(Tabelle->viewport());
    Tabelle->setTextMatrix(4, 3, QStringLiteral("5"));
    QTRY_VERIFY(!Zaehler.Gemalt.isEmpty());
    const QRect Zelle = Tabelle->CellRect(4, 3).translated(-Tabelle->viewport()->geometry().topLeft());
    QCOMPARE(Zaehler.Gemalt.boundingRect(), Zelle);
}

void MalenTest::currentCellRepaintsOnlyTwoCells() {
    Tabelle->setCell(4, 3);
    QCoreApplication::processEvents();
    const Malzaehler Zaehler(Tabelle->viewport());
    Tabelle->setCell(4, 4);
    QTRY_VERIFY(!Zaehler.Gemalt.isEmpty());
    const QRect Beide = (Tabelle->CellRect(4, 3) | Tabelle->CellRect(4, 4))
                            .translated(-Tabelle->viewport()->geometry().topLeft());
    QVERIFY(Beide.contains(Zaehler.Gemalt.boundingRect()));
}

void MalenTest::scrollingPaintsOnlyWhatComesIntoSight() {
    const int Hoehe = Tabelle->RowHeight(3);
    const Malzaehler Zaehler(Tabelle->viewport());
    Tabelle->verticalScrollBar()->setValue(Hoehe);
    QTRY_VERIFY(!Zaehler.Gemalt.isEmpty());
    const QRect Kopf(0, 0, Tabelle->viewport()->width(), 2 * Hoehe);
    QVERIFY((Zaehler.Gemalt - Kopf).boundingRect().height() <= 2 * Hoehe);
}

void MalenTest::fixedPartCoversWhatIsScrolledUnderIt() {
    const auto Streifen = [this] {
        const QRect Kopf = Tabelle->CellRect(0, 0) | Tabelle->CellRect(1, 0);
        return Tabelle->grab(Kopf).toImage();
    };
    Tabelle->setTextMatrix(1, 0, QStringLiteral("Name"));
    Tabelle->setCell(2, 1);
    const QImage Vorher = Streifen();
    Tabelle->verticalScrollBar()->setValue(Tabelle->RowHeight(3) * 7 / 2);
    Tabelle->horizontalScrollBar()->setValue(33);
    QCOMPARE(Streifen(), Vorher);
}

/// Asks for every cell there is, and for those that were there before.
void MalenTest::screenReaderWalksWhileTheGridIsRefilled() {
    QAccessible::setActive(true);
    Tabelle->setFocus();
    QAccessibleInterface* Lesbar = QAccessible::queryAccessibleInterface(Tabelle.get());
    QVERIFY(Lesbar && Lesbar->tableInterface());
    // Offscreen has no accessibility bus: what it would pass on is passed on here.
    connect(Tabelle->model(), &QAbstractItemModel::modelReset, this, [this, Lesbar] {
        QAccessibleTableModelChangeEvent Ereignis(Tabelle.get(),
                                                  QAccessibleTableModelChangeEvent::ModelReset);
        Lesbar->tableInterface()->modelChange(&Ereignis);
    });
    for (const int Zeilen : {40, 3, 0, 60, 1}) {
        Tabelle->setCell(Tabelle->Rows() - 1, 5);
        QList<QAccessibleInterface*> Zellen;
        for (int i = 0; i < Lesbar->childCount(); ++i)
            if (QAccessibleInterface* Zelle = Lesbar->child(i))
                Zellen.append(Zelle);
        Tabelle->ZeilenSetzen(std::vector<Gitterzeile>(static_cast<std::size_t>(Zeilen)));
        for (int i = 0; i < Lesbar->childCount(); ++i)
            if (QAccessibleInterface* Zelle = Lesbar->child(i); Zelle && Zelle->isValid())
                Zelle->text(QAccessible::Name);
        if (QAccessibleInterface* Aktuelle = Lesbar->focusChild())
            QVERIFY(Aktuelle->isValid());
        QVERIFY(Lesbar->tableInterface()->cellAt(0, 0));
        QCOMPARE(Lesbar->tableInterface()->rowCount(), Tabelle->Rows());
    }
    Tabelle->setTextMatrix(1, 2, QStringLiteral("Deutsch"));
    QCOMPARE(Lesbar->tableInterface()->columnDescription(2), QStringLiteral("Deutsch"));
}

void MalenTest::focusedGridHasACurrentCell() {
    QSignalSpy Betreten(Tabelle.get(), &Gitter::ZelleBetreten);
    Tabelle->clearFocus();
    Tabelle->setFocus();
    QCOMPARE(QPoint(Tabelle->Row(), Tabelle->Col()), QPoint(2, 1));
    QCOMPARE(Betreten.count(), 0);
}

void MalenTest::colourIsSaidInWords() {
    Tabelle->setColorMeaning(Qt::red, QStringLiteral("von Hand"));
    Tabelle->setCellForeColor(3, 2, Qt::red);
    QAccessibleInterface* Lesbar = QAccessible::queryAccessibleInterface(Tabelle.get());
    QCOMPARE(Lesbar->tableInterface()->cellAt(3, 2)->text(QAccessible::Description),
             QStringLiteral("von Hand"));
    QCOMPARE(Lesbar->tableInterface()->cellAt(3, 3)->text(QAccessible::Description), QString());
    QHelpEvent Hilfe(QEvent::ToolTip, Tabelle->visualRect(Tabelle->model()->index(3, 2)).center(),
                     Tabelle->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(Tabelle->viewport(), &Hilfe);
    QCOMPARE(QToolTip::text(), QStringLiteral("von Hand"));
    QToolTip::hideText();
}

TESTKLASSE(MalenTest)
#include "tst_Malen.moc"
