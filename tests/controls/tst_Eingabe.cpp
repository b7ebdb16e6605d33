// The text box, the floating edit box over a grid, and the combo box.

#include "common/Testprogramm.h"
#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Zahlen.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDialog>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QtTest>

namespace {

/// Types any characters; QTest's own keyClicks knows ASCII only.
void Tippen(QWidget* Feld, const QString& Text) {
    for (const QChar Zeichen : Text)
        QTest::sendKeyEvent(QTest::Click, Feld, Qt::Key_unknown, QString(Zeichen), Qt::NoModifier);
}

} // namespace

class TextfeldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Fenster.reset(); }

    void textIsCleanedHoweverItComes_data();
    void textIsCleanedHoweverItComes();
    void droppedCharacterIsSaidInTheStatusLine();
    void droppedKeyKeepsTheUndo();
    void decomposedLettersBecomeComposed();
    void leavingIsToldOnce();
    void menuAndOtherWindowAreNoLeaving();
    void leavingThroughTheMenuBarIsToldOnce();
    void leavingComesBeforeTheNextBoxIsEntered();

  private:
    std::unique_ptr<QMainWindow> Fenster;
    Textfeld* Feld = nullptr;
    Textfeld* Anderes = nullptr;
};

void TextfeldTest::init() {
    Fenster = std::make_unique<QMainWindow>();
    auto* Mitte = new QWidget;
    auto* Reihe = new QHBoxLayout(Mitte);
    Feld = new Textfeld;
    Anderes = new Textfeld;
    Reihe->addWidget(Feld);
    Reihe->addWidget(Anderes);
    Fenster->setCentralWidget(Mitte);
    Fenster->statusBar();
    Fenster->menuBar()->addMenu(QStringLiteral("&Datei"))->addAction(QStringLiteral("Neu"));
    Fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
    Feld->setFocus();
    QTRY_VERIFY(Feld->hasFocus());
}

void TextfeldTest::textIsCleanedHoweverItComes_data() {
    QTest::addColumn<QString>("Roh");
    QTest::addColumn<QString>("Sauber");
    QTest::newRow("plain") << QStringLiteral("Müller €") << QStringLiteral("Müller €");
    QTest::newRow("tab") << QStringLiteral("a\tb") << QStringLiteral("a b");
    QTest::newRow("line breaks") << QStringLiteral("a\r\nb\nc") << QStringLiteral("a b c");
    QTest::newRow("no byte") << QStringLiteral("Wałęsa") << QStringLiteral("Wasa");
    QTest::newRow("decomposed") << QStringLiteral("Mu\u0308ller") << QStringLiteral("Müller");
    QTest::newRow("outside the plane") << QStringLiteral("a\U0001F600b") << QStringLiteral("ab");
}

void TextfeldTest::textIsCleanedHoweverItComes() {
    QFETCH(QString, Roh);
    QFETCH(QString, Sauber);
    Feld->setText(Roh);
    QCOMPARE(Feld->text(), Sauber);
    Feld->clear();
    Feld->insert(Roh);
    QCOMPARE(Feld->text(), Sauber);
    Feld->clear();
    QGuiApplication::clipboard()->setText(Roh);
    Feld->paste();
    QCOMPARE(Feld->text(), Sauber);
    Feld->clear();
    QInputMethodEvent Komposition;
    Komposition.setCommitString(Roh);
    QCoreApplication::sendEvent(Feld, &Komposition);
    QCOMPARE(Feld->text(), Sauber);
}

void TextfeldTest::droppedCharacterIsSaidInTheStatusLine() {
    Tippen(Feld, QStringLiteral("Wał"));
    QCOMPARE(Feld->text(), QStringLiteral("Wa"));
    QCOMPARE(Fenster->statusBar()->currentMessage(),
             QStringLiteral("Dieses Zeichen kann in den Dateien nicht gespeichert werden."));
}

void TextfeldTest::droppedKeyKeepsTheUndo() {
    Tippen(Feld, QStringLiteral("ab"));
    Tippen(Feld, QStringLiteral("ł"));
    QVERIFY(Feld->isUndoAvailable());
    Feld->undo();
    QCOMPARE(Feld->text(), QString());
}

void TextfeldTest::decomposedLettersBecomeComposed() {
    Tippen(Feld, QStringLiteral("u\u0308x"));
    QCOMPARE(Feld->text(), QStringLiteral("üx"));
    QCOMPARE(Feld->cursorPosition(), 2);
}

void TextfeldTest::leavingIsToldOnce() {
    QSignalSpy Verlassen(Feld, &Textfeld::Verlassen);
    QSignalSpy Betreten(Feld, &Textfeld::Betreten);
    QTest::keyClick(Feld, Qt::Key_Tab);
    QCOMPARE(Verlassen.count(), 1);
    Feld->setFocus();
    QCOMPARE(Betreten.count(), 1);
    QTest::mouseClick(Anderes, Qt::LeftButton);
    QCOMPARE(Verlassen.count(), 2);
    Feld->setFocus();
    Fenster->centralWidget()->setFocus(Qt::OtherFocusReason);
    QCOMPARE(Verlassen.count(), 3);
}

void TextfeldTest::menuAndOtherWindowAreNoLeaving() {
    QSignalSpy Verlassen(Feld, &Textfeld::Verlassen);
    QSignalSpy Betreten(Feld, &Textfeld::Betreten);
    QMenu Kontext;
    Kontext.addAction(QStringLiteral("x"));
    Kontext.popup(Fenster->mapToGlobal(QPoint(5, 5)));
    QTRY_VERIFY(Kontext.isVisible());
    Kontext.close();
    QWidget Zweites;
    Zweites.show();
    Zweites.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&Zweites));
    Zweites.close();
    Fenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
    QTRY_VERIFY(Feld->hasFocus());
    QCOMPARE(Verlassen.count(), 0);
    QCOMPARE(Betreten.count(), 0);
}

void TextfeldTest::leavingThroughTheMenuBarIsToldOnce() {
    QSignalSpy Verlassen(Feld, &Textfeld::Verlassen);
    Fenster->menuBar()->setFocus(Qt::MenuBarFocusReason);
    QCOMPARE(Verlassen.count(), 0);
    Anderes->setFocus(Qt::OtherFocusReason);
    QCOMPARE(Verlassen.count(), 1);
}

void TextfeldTest::leavingComesBeforeTheNextBoxIsEntered() {
    QStringList Folge;
    connect(Feld, &Textfeld::Verlassen, this, [&] { Folge.append(QStringLiteral("verlassen")); });
    connect(Anderes, &Textfeld::Betreten, this, [&] { Folge.append(QStringLiteral("betreten")); });
    Anderes->setFocus();
    QCOMPARE(Folge, QStringList({QStringLiteral("verlassen"), QStringLiteral("betreten")}));
}

class EingabeFeldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Fenster.reset(); }

    void boxLiesOverTheCurrentCell();
    void boxLiesOverFixedCellsToo();
    void boxFollowsScrollingAndIsClipped();
    void boxFollowsAColumnWidth();
    void showingIsNoChange();
    void typingAndSettingFromOutsideAreChanges();
    void settingTheSameTextKeepsCaretAndUndo();
    void hidingIsNoLeaving();
    void clickOnAnotherCellIsLeaving();
    void ruleSeesEveryKeyFirst();
    void keyOnTheGridGoesIntoTheVisibleBox();
    void keyOnTheGridReopensTheHiddenBox();
    void doubleClickIsTold();
    void mouseIntoTheBoxIsNoLeaving();

  private:
    std::unique_ptr<QWidget> Fenster;
    Gitter* Tabelle = nullptr;
    EingabeFeld* Feld = nullptr;
};

void EingabeFeldTest::init() {
    Fenster = std::make_unique<QWidget>();
    auto* Reihe = new QHBoxLayout(Fenster.get());
    Tabelle = new Gitter;
    Reihe->addWidget(Tabelle);
    Feld = new EingabeFeld(Tabelle);
    Tabelle->setRows(60);
    Tabelle->setCols(20);
    Tabelle->setFixedRows(2);
    Tabelle->setFixedCols(1);
    Fenster->resize(400, 300);
    Fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
}

void EingabeFeldTest::boxLiesOverTheCurrentCell() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("2-"));
    QVERIFY(Feld->isVisible());
    QTRY_VERIFY(Feld->hasFocus());
    QCOMPARE(Feld->geometry(), Tabelle->CellRect(5, 2));
    QCOMPARE(Feld->text(), QStringLiteral("2-"));
    QCOMPARE(Feld->selectedText(), QString());
    QCOMPARE(Feld->cursorPosition(), 2);
}

void EingabeFeldTest::boxLiesOverFixedCellsToo() {
    for (const QPoint Ort : {QPoint(5, 0), QPoint(1, 3), QPoint(1, 0)}) {
        Tabelle->setCell(Ort.x(), Ort.y());
        Feld->Zeigen(QStringLiteral("x"));
        QCOMPARE(Feld->geometry(), Tabelle->CellRect(Ort.x(), Ort.y()));
        QVERIFY(Feld->mask().isEmpty());
    }
}

void EingabeFeldTest::boxFollowsScrollingAndIsClipped() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    const int Hoehe = Tabelle->RowHeight(5);
    Tabelle->verticalScrollBar()->setValue(Hoehe);
    QCOMPARE(Feld->geometry(), Tabelle->CellRect(5, 2));
    Tabelle->verticalScrollBar()->setValue(3 * Hoehe + 4);
    QCOMPARE(Feld->mask().boundingRect().height(), Hoehe - 4);
    Tabelle->verticalScrollBar()->setValue(10 * Hoehe);
    QVERIFY(!Tabelle->rect().intersects(Feld->geometry()));
    QVERIFY(Feld->isVisible());
    QVERIFY(Feld->hasFocus());
    Tabelle->verticalScrollBar()->setValue(0);
    QCOMPARE(Feld->geometry(), Tabelle->CellRect(5, 2));
    QVERIFY(Feld->mask().isEmpty());
}

void EingabeFeldTest::boxFollowsAColumnWidth() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    Tabelle->setColWidth(1, 31);
    Tabelle->setColWidth(2, 47);
    QCOMPARE(Feld->geometry(), Tabelle->CellRect(5, 2));
}

void EingabeFeldTest::showingIsNoChange() {
    QSignalSpy Geaendert(Feld, &EingabeFeld::Geaendert);
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    Feld->TextSetzen(QStringLiteral("y"));
    QCOMPARE(Geaendert.count(), 0);
}

void EingabeFeldTest::typingAndSettingFromOutsideAreChanges() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    QSignalSpy Geaendert(Feld, &EingabeFeld::Geaendert);
    Tippen(Feld, QStringLiteral("1"));
    QCOMPARE(Geaendert.count(), 1);
    Feld->setText(QStringLiteral("3"));
    QCOMPARE(Geaendert.count(), 2);
    Feld->selectAll();
    Feld->cut();
    QCOMPARE(Geaendert.count(), 3);
}

void EingabeFeldTest::settingTheSameTextKeepsCaretAndUndo() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QString());
    Tippen(Feld, QStringLiteral("12,5"));
    Feld->setCursorPosition(1);
    Feld->TextSetzen(QStringLiteral("12,5"));
    QCOMPARE(Feld->cursorPosition(), 1);
    QVERIFY(Feld->isUndoAvailable());
}

void EingabeFeldTest::hidingIsNoLeaving() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    QTRY_VERIFY(Feld->hasFocus());
    QSignalSpy Verlassen(Feld, &Textfeld::Verlassen);
    Feld->Verbergen();
    QVERIFY(!Feld->isVisible());
    QVERIFY(Tabelle->hasFocus());
    QCOMPARE(Verlassen.count(), 0);
}

void EingabeFeldTest::clickOnAnotherCellIsLeaving() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    int Zeile = 0;
    connect(Feld, &Textfeld::Verlassen, this, [&] { Zeile = Tabelle->Row(); });
    QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {},
                      Tabelle->CellRect(7, 2).center() - Tabelle->viewport()->pos());
    QCOMPARE(Zeile, 5); // told while the left cell is still the current one
    QCOMPARE(Tabelle->Row(), 7);
}

void EingabeFeldTest::ruleSeesEveryKeyFirst() {
    QList<int> Tasten;
    Feld->setTastenregel([&](QKeyEvent* Taste) {
        Tasten.append(Taste->key());
        return Taste->key() != Qt::Key_B;
    });
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QString());
    for (const Qt::Key Taste : {Qt::Key_A, Qt::Key_B, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(Feld, Taste);
    QCOMPARE(Tasten, QList<int>({Qt::Key_A, Qt::Key_B, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape}));
    QCOMPARE(Feld->text(), QStringLiteral("b"));
    QVERIFY(Feld->hasFocus());
}

void EingabeFeldTest::keyOnTheGridGoesIntoTheVisibleBox() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QString());
    Tabelle->setFocus();
    QTest::keyClick(Tabelle, '3');
    QCOMPARE(Feld->text(), QStringLiteral("3"));
    QVERIFY(Feld->hasFocus());
}

void EingabeFeldTest::keyOnTheGridReopensTheHiddenBox() {
    connect(Tabelle, &Gitter::ZelleBetreten, Feld, [this] {
        Feld->Zeigen(QStringLiteral("5"));
        Feld->selectAll();
    });
    Tabelle->setCell(5, 2);
    Feld->Verbergen();
    QTest::keyClick(Tabelle, '3');
    QVERIFY(Feld->isVisible());
    QCOMPARE(Feld->text(), QStringLiteral("3"));
}

void EingabeFeldTest::doubleClickIsTold() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    QSignalSpy Doppelt(Feld, &EingabeFeld::Doppelgeklickt);
    QTest::mouseDClick(Feld, Qt::LeftButton);
    QCOMPARE(Doppelt.count(), 1);
}

void EingabeFeldTest::mouseIntoTheBoxIsNoLeaving() {
    Tabelle->setCell(5, 2);
    Feld->Zeigen(QStringLiteral("x"));
    QSignalSpy Verlassen(Feld, &Textfeld::Verlassen);
    QSignalSpy Klick(Tabelle, &Gitter::Geklickt);
    QTest::mouseClick(Feld, Qt::LeftButton);
    QCOMPARE(Verlassen.count(), 0);
    QCOMPARE(Klick.count(), 0);
}

class KombinationsfeldTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Fenster.reset(); }

    void fillingSelectsNothingAndTellsNothing();
    void sortedListKeepsTheLocalesOrder();
    void manyEntriesAtOnceAreAsEachAdded();
    void aFillReplacesWhatWasThere();
    void entriesAreFoundByTheirDatum();
    void plainQtInterfaceChangesTheEntries();
    void choosingByCodeIsKlick();
    void plainQtInterfaceIsKlickToo();
    void sameEntryChosenAgainByTheUserIsKlick();
    void openingTheListDoesNotLeaveTheTypedText();
    void typedTextWaitsBehindTheOpenList();
    void typedTextHasNoIndexAndStays();
    void textSetFromOutsideHasNoIndex();
    void nothingIsCompletedNorInserted();
    void returnOnTypedTextIsAnlegenAndNoDefaultButton();
    void returnOnAChosenEntryIsNothing();
    void leavingWithTypedTextIsAnlegenOnce();
    void leavingEmptySelectsTheFirst();
    void leavingWithAnEntryIsNothing();
    void textEqualToAnEntryIsStillTyped();
    void wheelNeedsTheFocus();
    void lineTakesOnlyWhatTheFilesHold();
    void emptyingTellsNothing();
    void notEditableOnesHaveNoLine();

  private:
    std::unique_ptr<QWidget> Fenster;
    Kombinationsfeld* Feld = nullptr;
    QPushButton* Vorgabe = nullptr;
};

void KombinationsfeldTest::init() {
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    Fenster = std::make_unique<QDialog>();
    auto* Reihe = new QHBoxLayout(Fenster.get());
    Feld = new Kombinationsfeld;
    Feld->setEditable(true);
    Vorgabe = new QPushButton(QStringLiteral("OK"));
    Vorgabe->setDefault(true);
    Reihe->addWidget(Feld);
    Reihe->addWidget(Vorgabe);
    Fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
    Feld->setFocus();
    Feld->Hinzufuegen(QStringLiteral("3b Mathe"), 50001);
    Feld->Hinzufuegen(QStringLiteral("3b Musik"), 50002);
}

void KombinationsfeldTest::fillingSelectsNothingAndTellsNothing() {
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    QCOMPARE(Feld->Hinzufuegen(QStringLiteral("4a Kunst"), 50003), 2);
    QCOMPARE(Feld->ListIndex(), -1);
    QCOMPARE(Feld->Datum(2), 50003);
    QCOMPARE(Feld->Datum(9), 0);
    QCOMPARE(Feld->AktDatum(), 0);
    QCOMPARE(Feld->itemData(1).toInt(), 50002);
    QCOMPARE(Klick.count(), 0);
}

void KombinationsfeldTest::sortedListKeepsTheLocalesOrder() {
    Feld->Leeren();
    Feld->setSortiert(true);
    for (const QString& Name : {QStringLiteral("Zander"), QStringLiteral("apfel"), QStringLiteral("Österle"),
                                QStringLiteral("Apfel"), QStringLiteral("Muster")})
        Feld->Hinzufuegen(Name);
    QStringList Namen;
    for (int i = 0; i < Feld->count(); ++i)
        Namen.append(Feld->itemText(i));
    QCOMPARE(Namen, QStringList({QStringLiteral("apfel"), QStringLiteral("Apfel"), QStringLiteral("Muster"),
                                 QStringLiteral("Österle"), QStringLiteral("Zander")}));
}

void KombinationsfeldTest::manyEntriesAtOnceAreAsEachAdded() {
    const QStringList Texte{QStringLiteral("zwei"), QStringLiteral("Äpfel"), QStringLiteral("b"),
                            QStringLiteral("B"),    QStringLiteral("adam"),  QStringLiteral("b")};
    for (const bool Sortiert : {false, true}) {
        Kombinationsfeld Einzeln;
        Kombinationsfeld Zugleich;
        std::vector<Listeneintrag> Eintraege;
        Einzeln.setSortiert(Sortiert);
        Zugleich.setSortiert(Sortiert);
        for (int i = 0; i < Texte.size(); ++i) {
            Einzeln.Hinzufuegen(Texte[i], i);
            Eintraege.push_back({Texte[i], i});
        }
        Zugleich.Fuellen(Eintraege);
        QCOMPARE(Zugleich.count(), Einzeln.count());
        for (int i = 0; i < Einzeln.count(); ++i) {
            QCOMPARE(Zugleich.itemText(i), Einzeln.itemText(i));
            QCOMPARE(Zugleich.Datum(i), Einzeln.Datum(i));
        }
    }
}

void KombinationsfeldTest::aFillReplacesWhatWasThere() {
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Feld->setListIndex(0);
    Feld->setEditText(QStringLiteral("getippt"));
    Klick.clear();
    Feld->Fuellen({{QStringLiteral("neu"), 7}});
    QCOMPARE(Feld->count(), 1);
    QCOMPARE(Feld->ListIndex(), -1);
    QCOMPARE(Feld->currentText(), QString());
    QCOMPARE(Klick.count(), 0);
    Feld->setListIndex(0);
    QCOMPARE(Klick.count(), 1);
    QCOMPARE(Feld->currentText(), QStringLiteral("neu"));
    QCOMPARE(Feld->AktDatum(), 7);
    Feld->Fuellen({});
    QCOMPARE(Feld->count(), 0);
    QCOMPARE(Feld->currentText(), QString());
}

void KombinationsfeldTest::entriesAreFoundByTheirDatum() {
    Feld->Fuellen({{QStringLiteral("a"), 5}, {QStringLiteral("b"), 7}, {QStringLiteral("c"), 5}});
    QCOMPARE(Feld->IndexMitDatum(7), 1);
    QCOMPARE(Feld->IndexMitDatum(5), 2); // the last one
    QCOMPARE(Feld->IndexMitDatum(6), -1);
}

void KombinationsfeldTest::plainQtInterfaceChangesTheEntries() {
    const QAbstractItemModelTester Pruefer(Feld->model(),
                                           QAbstractItemModelTester::FailureReportingMode::QtTest);
    Feld->clear();
    Feld->addItem(QStringLiteral("b"), 2);
    Feld->insertItem(0, QStringLiteral("a"));
    Feld->setItemData(0, 1);
    Feld->setItemText(1, QStringLiteral("c"));
    QCOMPARE(Feld->findText(QStringLiteral("c")), 1);
    QCOMPARE(Feld->findData(1), 0);
    QCOMPARE(Feld->Datum(1), 2);
    Feld->removeItem(0);
    QCOMPARE(Feld->count(), 1);
    QCOMPARE(Feld->itemText(0), QStringLiteral("c"));
}

void KombinationsfeldTest::choosingByCodeIsKlick() {
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Feld->setListIndex(1);
    QCOMPARE(Klick.count(), 1);
    QCOMPARE(Feld->AktDatum(), 50002);
    Feld->setListIndex(1);
    QCOMPARE(Klick.count(), 1);
    Feld->setListIndex(-1);
    QCOMPARE(Klick.count(), 1);
    QCOMPARE(Feld->currentText(), QStringLiteral("3b Musik"));
}

void KombinationsfeldTest::plainQtInterfaceIsKlickToo() {
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Feld->setProperty("currentIndex", 1);
    QCOMPARE(Klick.count(), 1);
    QCOMPARE(Feld->property("currentText").toString(), QStringLiteral("3b Musik"));
}

void KombinationsfeldTest::sameEntryChosenAgainByTheUserIsKlick() {
    Feld->setListIndex(0);
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Feld->showPopup();
    QTest::keyClick(Feld->view(), Qt::Key_Return);
    QTRY_COMPARE(Klick.count(), 1);
    Feld->showPopup();
    QTest::keyClick(Feld->view(), Qt::Key_Down);
    QTest::keyClick(Feld->view(), Qt::Key_Return);
    QTRY_COMPARE(Klick.count(), 2);
    QCOMPARE(Feld->ListIndex(), 1);
}

void KombinationsfeldTest::openingTheListDoesNotLeaveTheTypedText() {
    Tippen(Feld, QStringLiteral("9z"));
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Feld->showPopup();
    QTRY_VERIFY(Feld->view()->isVisible());
    QCOMPARE(Anlegen.count(), 0);
    QTest::keyClick(Feld->view(), Qt::Key_Down);
    QTest::keyClick(Feld->view(), Qt::Key_Return);
    QTRY_COMPARE(Klick.count(), 1);
    QCOMPARE(Anlegen.count(), 0);
    QVERIFY(Feld->ListIndex() >= 0);
}

void KombinationsfeldTest::typedTextWaitsBehindTheOpenList() {
    Tippen(Feld, QStringLiteral("9z"));
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    Feld->showPopup();
    QTRY_VERIFY(Feld->view()->isVisible());
    QTest::keyClick(Feld->view(), Qt::Key_Escape);
    QTRY_VERIFY(!Feld->view()->isVisible());
    QCOMPARE(Feld->currentText(), QStringLiteral("9z"));
    QCOMPARE(Anlegen.count(), 0);
    Feld->clearFocus();
    QCOMPARE(Anlegen.count(), 1);
}

void KombinationsfeldTest::typedTextHasNoIndexAndStays() {
    Feld->setListIndex(1);
    QTest::keyClick(Feld, Qt::Key_End);
    Tippen(Feld, QStringLiteral("x"));
    QCOMPARE(Feld->currentIndex(), -1);
    QCOMPARE(Feld->currentText(), QStringLiteral("3b Musikx"));
    QTest::keyClick(Feld, Qt::Key_Home);
    Tippen(Feld, QStringLiteral("1"));
    QCOMPARE(Feld->currentText(), QStringLiteral("13b Musikx"));
    QCOMPARE(Feld->lineEdit()->cursorPosition(), 1);
}

void KombinationsfeldTest::textSetFromOutsideHasNoIndex() {
    Feld->setListIndex(1);
    Feld->lineEdit()->setText(QStringLiteral("9c"));
    QCOMPARE(Feld->currentIndex(), -1);
    QCOMPARE(Feld->currentText(), QStringLiteral("9c"));
}

void KombinationsfeldTest::nothingIsCompletedNorInserted() {
    Tippen(Feld, QStringLiteral("3"));
    QCOMPARE(Feld->currentText(), QStringLiteral("3"));
    QTest::keyClick(Feld, Qt::Key_Return);
    QCOMPARE(Feld->count(), 2);
}

void KombinationsfeldTest::returnOnTypedTextIsAnlegenAndNoDefaultButton() {
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    QSignalSpy Knopf(Vorgabe, &QPushButton::clicked);
    Tippen(Feld, QStringLiteral("4a Kunst"));
    QTest::keyClick(Feld, Qt::Key_Return);
    QCOMPARE(Anlegen.count(), 1);
    QCOMPARE(Anlegen.first().first().toString(), QStringLiteral("4a Kunst"));
    QCOMPARE(Knopf.count(), 0);
    QCOMPARE(Feld->currentText(), QStringLiteral("4a Kunst"));
}

void KombinationsfeldTest::returnOnAChosenEntryIsNothing() {
    Feld->setListIndex(1);
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    QTest::keyClick(Feld, Qt::Key_Return);
    QCOMPARE(Anlegen.count(), 0);
    QCOMPARE(Klick.count(), 0);
}

void KombinationsfeldTest::leavingWithTypedTextIsAnlegenOnce() {
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    Tippen(Feld, QStringLiteral("4a Kunst"));
    QTest::keyClick(Feld, Qt::Key_Tab);
    QCOMPARE(Anlegen.count(), 1);
}

void KombinationsfeldTest::leavingEmptySelectsTheFirst() {
    Feld->setListIndex(1);
    Feld->lineEdit()->selectAll();
    QTest::keyClick(Feld, Qt::Key_Delete);
    QCOMPARE(Feld->currentIndex(), -1);
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Vorgabe->setFocus();
    QCOMPARE(Feld->currentIndex(), 0);
    QCOMPARE(Klick.count(), 1);
}

void KombinationsfeldTest::leavingWithAnEntryIsNothing() {
    Feld->setListIndex(1);
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    Vorgabe->setFocus();
    QCOMPARE(Anlegen.count(), 0);
    QCOMPARE(Feld->currentIndex(), 1);
}

void KombinationsfeldTest::textEqualToAnEntryIsStillTyped() {
    QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
    Tippen(Feld, QStringLiteral("3b Musik"));
    QCOMPARE(Feld->currentIndex(), -1);
    Vorgabe->setFocus();
    QCOMPARE(Anlegen.count(), 1);
}

void KombinationsfeldTest::wheelNeedsTheFocus() {
    Feld->setListIndex(0);
    const auto Drehen = [this] {
        QWheelEvent Rad(QPointF(5, 5), Feld->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Feld, &Rad);
    };
    Vorgabe->setFocus();
    Drehen();
    QCOMPARE(Feld->currentIndex(), 0);
    Feld->setFocus();
    Drehen();
    QCOMPARE(Feld->currentIndex(), 1);
}

void KombinationsfeldTest::lineTakesOnlyWhatTheFilesHold() {
    Tippen(Feld, QStringLiteral("4ał"));
    QCOMPARE(Feld->currentText(), QStringLiteral("4a"));
}

void KombinationsfeldTest::emptyingTellsNothing() {
    Feld->setListIndex(1);
    QSignalSpy Klick(Feld, &Kombinationsfeld::Klick);
    Feld->Leeren();
    QCOMPARE(Feld->count(), 0);
    QCOMPARE(Feld->currentText(), QString());
    QCOMPARE(Feld->ListIndex(), -1);
    QCOMPARE(Klick.count(), 0);
}

void KombinationsfeldTest::notEditableOnesHaveNoLine() {
    Kombinationsfeld Wahl;
    QSignalSpy Klick(&Wahl, &Kombinationsfeld::Klick);
    Wahl.Hinzufuegen(QStringLiteral("Probe 1"), 1);
    QVERIFY(!Wahl.isEditable());
    QCOMPARE(Wahl.ListIndex(), -1);
    Wahl.setListIndex(0);
    QCOMPARE(Klick.count(), 1);
    Wahl.Leeren();
    QCOMPARE(Wahl.ListIndex(), -1);
}

TESTKLASSE(TextfeldTest)
TESTKLASSE(EingabeFeldTest)
TESTKLASSE(KombinationsfeldTest)
#include "tst_Eingabe.moc"
