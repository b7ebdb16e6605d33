#include "Beurteilungsfenster.h"

#include "assessments/Formulierungsspeicher.h"
#include "assessments/Textmass.h"
#include "assessments/Ziehgut.h"
#include "common/Testprogramm.h"
#include "core/Definitionen.h"

#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>
#include <QtTest>

/// Drag and drop in the assessment view, by the events Qt sends.
class ZiehenTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    std::unique_ptr<Beurteilungsfenster> F;

    QWidget& Kasten() { return *F->Text().viewport(); }
    QWidget& Tabelle() { return *F->Floskeln().viewport(); }
    QWidget& Baum() { return *F->Baum().viewport(); }
    QWidget& Schueler() { return *F->Schueler().viewport(); }
    /// Middle of a character of the box, in its viewport.
    QPoint Zeichenort(int Stelle) {
        QTextCursor Marke = F->Text().textCursor();
        Marke.setPosition(Stelle);
        const QRect Davor = F->Text().cursorRect(Marke);
        return Davor.center() + QPoint(3, 0);
    }
    static QStringList Saetze(std::initializer_list<const char*> Texte) {
        QStringList Alle;
        for (const char* Text : Texte)
            Alle.append(QString::fromUtf8(Text));
        return Alle;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        F = std::make_unique<Beurteilungsfenster>();
        F->KlickAufSchueler(2); // Bauer Anna
        F->Floskeln().setCell(1, 0);
    }
    void cleanup() {
        F.reset();
        Welt.Aufraeumen();
    }

    void OnlyDragsOfThisProcessAreTaken() {
        const auto Eigenes = ZiehgutPacken(Ziehart::Formulierung);
        QVERIFY(IstZiehgut(*Eigenes, Ziehart::Formulierung));
        QVERIFY(!IstZiehgut(*Eigenes, Ziehart::Lernbereich));
        QMimeData Fremdes;
        Fremdes.setData(Eigenes->formats().first(), "1");
        QVERIFY(!IstZiehgut(Fremdes, Ziehart::Formulierung));
    }

    // A phrase into the assessment

    void ThePhraseGoesToTheWordUnderThePointer() {
        F->Text().setPlainText(QStringLiteral("Anna kann rechnen."));
        QVERIFY(F->Darueber(Kasten(), Ziehart::Formulierung, Zeichenort(7)));
        QCOMPARE(F->Text().textCursor().position(), 5);
        QVERIFY(F->Text().hasFocus());
        QCOMPARE(F->Hinweis, QStringLiteral("Formulierung in die Schülerbeurteilung einfügen"));
        F->Ablegen(Kasten(), Ziehart::Formulierung, Zeichenort(7));
        QCOMPARE(F->Text().toPlainText(), QStringLiteral("Anna sie liest. kann rechnen."));
        QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QStringLiteral("Anna sie liest. kann rechnen."));
        QCOMPARE(F->Hinweis, QString());
    }

    void RightOfALineThePhraseGoesToItsEnd() {
        F->Text().setPlainText(QStringLiteral("erste Zeile\nzweite"));
        F->Darueber(Kasten(), Ziehart::Formulierung, Zeichenort(3) + QPoint(250, 0));
        QCOMPARE(F->Text().textCursor().position(), 11);
        F->Darueber(Kasten(), Ziehart::Formulierung, Zeichenort(14) + QPoint(250, 0));
        QCOMPARE(F->Text().textCursor().position(), 18);
    }

    void RightOfAWrappedLineTheCaretStaysInIt() {
        F->Text().setPlainText(QStringLiteral("viele Worte ").repeated(20));
        const QTextLine Erste = F->Text().document()->firstBlock().layout()->lineAt(0);
        F->Darueber(Kasten(), Ziehart::Formulierung, QPoint(Kasten().width() - 3, 6));
        QCOMPARE(F->Text().textCursor().position(), Erste.textLength() - 1); // in front of its blank
    }

    void BelowTheTextThePhraseGoesToItsEnd() {
        F->Text().setPlainText(QStringLiteral("erste Zeile"));
        F->Ablegen(Kasten(), Ziehart::Formulierung, QPoint(2, Kasten().height() + 100));
        QCOMPARE(F->Text().toPlainText(), QStringLiteral("erste Zeile sie liest."));
    }

    void OnTheScreenTheCaretLandsWhereTheRulesSay() {
        // The wrapping rebuilt by the rules and the one on the screen give the same words and places.
        const QString Text =
            QStringLiteral("Die Schülerin arbeitet mit großer Ausdauer und Sorgfalt an allen "
                           "Aufgaben.\r\nSie hilft gern.\r\n\r\nIm zweiten Halbjahr las sie viel, "
                           "auch zu Hause, und trug ihre Texte sicher vor der ganzen Klasse vor.");
        F->Text().setPlainText(QString(Text).remove(u'\r'));
        const Schriftmass Mass(F->Text().font());
        const auto NachRegel = [&](int x, int y) {
            constexpr int Rand = 1; // of the text in the viewport
            const int Stelle =
                TextPositionBerechnen(Mass, Text, F->Text().width() * 15, (x - Rand) * 15, (y - Rand) * 15);
            // In the box a line break is one character.
            return Stelle - static_cast<int>(QStringView(Text).first(Stelle).count(u'\r'));
        };
        const auto Gleich = [&](int x, int y) { // up to the pixels that rounding moves a border
            const int Auf = F->Text().WortstelleBei({x, y});
            for (const int Dy : {0, -2, 2})
                for (const int Dx : {0, -3, 3})
                    if (Auf == NachRegel(x + Dx, y + Dy))
                        return true;
            return false;
        };
        int Verglichen = 0;
        int Einig = 0;
        for (int y = 4; y < Kasten().height() - 4; y += 5)
            for (int x = 4; x < Kasten().width() - 4; x += 7, ++Verglichen)
                Einig += Gleich(x, y);
        QVERIFY2(Einig >= Verglichen * 98 / 100,
                 qPrintable(QStringLiteral("%1 of %2 places").arg(Einig).arg(Verglichen)));
    }

    void AnAreaCannotBeDroppedOnAnAssessment() {
        QVERIFY(!F->Darueber(Kasten(), Ziehart::Lernbereich, QPoint(5, 5)));
    }

    // A phrase to another student

    void TheGridFollowsThePointer() {
        QVERIFY(!F->Darueber(Schueler(), Ziehart::Formulierung, F->SchuelerOrt(1)));
        QCOMPARE(F->Schueler().Row(), 1);
        QCOMPARE(AktSchuelerID, 10001);
        QVERIFY(F->Text().isVisible());
        QCOMPARE(F->Zeilen().at(1), QStringLiteral("er liest.")); // fitted to him
        F->Ablegen(Kasten(), Ziehart::Formulierung, QPoint(3, 3));
        QCOMPARE(Datenbank.Schueler[1].Beurteilung[0], QStringLiteral("er liest. "));
        QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QString());
    }

    void TheEmptyRowIsNoStudent() {
        F->Darueber(Schueler(), Ziehart::Formulierung, F->SchuelerOrt(4));
        QCOMPARE(F->Schueler().Row(), 3);
        F->Darueber(Schueler(), Ziehart::Formulierung, QPoint(20, Schueler().height() - 2));
        QCOMPARE(F->Schueler().Row(), 3);
    }

    void OverTheCurrentStudentAClosedEditorOpens() {
        QTest::keyClick(&F->Text(), Qt::Key_Escape);
        F->Schueler().setCol(0);
        QTest::keyClick(&F->Text(), Qt::Key_Escape);
        QVERIFY(F->Text().isHidden());
        F->Darueber(Schueler(), Ziehart::Formulierung, F->SchuelerOrt(2));
        QVERIFY(F->Text().isVisible());
        QCOMPARE(F->Schueler().Col(), 1);
    }

    void OverTheHeaderTheGridGoesUpRowByRow() {
        for (int i = 0; i < Datenbank.AnzSchueler; ++i)
            Datenbank.Schueler[i].Beurteilung[0] = QStringLiteral("lang ").repeated(900);
        F->Ansicht->Fuellen();
        QCoreApplication::processEvents();
        F->Schueler().setTopRow(3);
        QCOMPARE(F->Schueler().TopRow(), 3);
        F->Darueber(Schueler(), Ziehart::Formulierung, QPoint(200, 2)); // two events: two rows
        QCOMPARE(F->Schueler().Row(), 1);
        QCOMPARE(F->Schueler().TopRow(), 1);
        F->Darueber(Schueler(), Ziehart::Formulierung, QPoint(200, 2)); // the topmost stays
        QCOMPARE(F->Schueler().Row(), 1);
    }

    void WithoutStudentsNothingFollows() {
        Datenbank.AnzSchueler = 0;
        F->Ansicht->Fuellen();
        F->Darueber(Schueler(), Ziehart::Formulierung, QPoint(200, 60));
        QVERIFY(F->Text().isHidden());
    }

    // Within the table

    void APhraseMovesWithinItsTable_data() {
        QTest::addColumn<int>("Von");
        QTest::addColumn<int>("Nach");
        QTest::addColumn<QStringList>("Danach");
        const QStringList Alle =
            Saetze({"+ ***** hilft seinen Freunden.", "o er liest.", "- Er stört.", "? unbekannt"});
        QTest::newRow("down") << 0 << 2 << QStringList{Alle[1], Alle[2], Alle[0], Alle[3]};
        QTest::newRow("up") << 3 << 1 << QStringList{Alle[0], Alle[3], Alle[1], Alle[2]};
        QTest::newRow("onto the empty row: the last")
            << 0 << 4 << QStringList{Alle[1], Alle[2], Alle[3], Alle[0]};
    }
    void APhraseMovesWithinItsTable() {
        QFETCH(int, Von);
        QFETCH(int, Nach);
        QFETCH(QStringList, Danach);
        F->Floskeln().setCell(Von, 0);
        QVERIFY(F->Darueber(Tabelle(), Ziehart::Formulierung, F->FloskelOrt(Nach)));
        QCOMPARE(F->Hinweis, QStringLiteral("Anzeigereihenfolge der Formulierungen ändern"));
        F->Ablegen(Tabelle(), Ziehart::Formulierung, F->FloskelOrt(Nach));
        QCOMPARE(F->Gespeichert(0), Danach);
        QVERIFY(FormulierungenGeaendert);
        QCOMPARE(F->Hinweis, QString());
    }

    void DroppedOnItsOwnRowItWasAClick() {
        F->Ablegen(Tabelle(), Ziehart::Formulierung, F->FloskelOrt(1));
        QVERIFY(!FormulierungenGeaendert);
        QVERIFY(F->Teil("picSmileyContainer").isVisible());
    }

    void TheDropPlaceIsShown() {
        const auto Bild = [this] { return F->Floskeln().grab().toImage(); };
        const QImage Vorher = Bild();
        F->Darueber(Tabelle(), Ziehart::Formulierung, F->FloskelOrt(2));
        QVERIFY(Bild() != Vorher);
        QDragLeaveEvent Weg;
        QCoreApplication::sendEvent(&Tabelle(), &Weg);
        QCOMPARE(Bild(), Vorher);
        QCOMPARE(F->Hinweis, QString());
    }

    void AnAreaCannotBeDroppedOnTheTable() {
        F->Hinweis = QStringLiteral("alt");
        QVERIFY(!F->Darueber(Tabelle(), Ziehart::Lernbereich, F->FloskelOrt(1)));
        QCOMPARE(F->Hinweis, QString());
    }

    void NearTheEdgeTheTableScrolls() {
        for (int i = 0; i < 150; ++i)
            Lernbereiche[0].Formulierung[Lernbereiche[0].Anzahl++] = QStringLiteral("o mehr");
        F->Ansicht->FormulierungenFuellen();
        F->Darueber(Tabelle(), Ziehart::Formulierung, QPoint(20, Tabelle().height() - 3));
        const int Gerollt = F->Floskeln().verticalScrollBar()->value();
        QVERIFY(Gerollt > 0);
        F->Darueber(Tabelle(), Ziehart::Formulierung, QPoint(20, 3));
        QVERIFY(F->Floskeln().verticalScrollBar()->value() < Gerollt);
    }

    // To another area

    void APhraseMovesToAnotherArea() {
        QVERIFY(F->Darueber(Baum(), Ziehart::Formulierung, F->KnotenOrt(1)));
        QCOMPARE(F->Baum().Hervorgehoben(), 1);
        QCOMPARE(F->Hinweis, QStringLiteral("Formulierung in einen anderen Lernbereich verschieben"));
        F->Ablegen(Baum(), Ziehart::Formulierung, F->KnotenOrt(1));
        QCOMPARE(F->Gespeichert(1), Saetze({"o vier", "o er liest."}));
        QCOMPARE(Lernbereiche[0].Anzahl, 3);
        QCOMPARE(F->Zeilen().size(), 4);
        QCOMPARE(F->Baum().Hervorgehoben(), -1);
        QVERIFY(FormulierungenGeaendert);
        QCOMPARE(F->Knoten(), Saetze({"<A>", "B", "C", "**Neuer Lernbereich**"}));
    }

    void APhraseOnTheNewAreaCreatesIt() {
        F->Ablegen(Baum(), Ziehart::Formulierung, F->KnotenOrt(3));
        QCOMPARE(F->Knoten(), Saetze({"<A>", "B", "C", "Unbenannter Lernbereich", "**Neuer Lernbereich**"}));
        QCOMPARE(F->Gespeichert(3), Saetze({"o er liest."}));
        QCOMPARE(Lernbereiche[0].Anzahl, 3);
        QCOMPARE(AnzLernbereiche, qint16(4));
    }

    void OnItsOwnAreaNothingHappens() {
        QVERIFY(!F->Darueber(Baum(), Ziehart::Formulierung, F->KnotenOrt(0)));
        F->Ablegen(Baum(), Ziehart::Formulierung, F->KnotenOrt(0));
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(F->Baum().Hervorgehoben(), -1);
    }

    void BesideTheNodesNothingHappens() {
        F->Ablegen(Baum(), Ziehart::Formulierung, QPoint(5, Baum().height() - 3));
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
    }

    void AFullAreaRefusesThePhraseWithAMessage() {
        QStringList Zeilen;
        for (int i = 0; i < 200; ++i)
            Zeilen.append(QStringLiteral("o %1").arg(i));
        BereichAnlegen(QStringLiteral("D"), Zeilen);
        F->Ansicht->LernbereicheFuellen();
        F->Floskeln().setCell(1, 0);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Ein Lernbereich fasst höchstens 200 Formulierungen!"));
        F->Ablegen(Baum(), Ziehart::Formulierung, F->KnotenOrt(3));
        QTRY_VERIFY(Welt.Boxen.AllesGefragt());
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
        QCOMPARE(Lernbereiche[3].Anzahl, 200);
        QVERIFY(!FormulierungenGeaendert);
    }

    // Areas

    void AnAreaMovesWithinTheTree_data() {
        QTest::addColumn<int>("Von");
        QTest::addColumn<int>("Nach");
        QTest::addColumn<QStringList>("Danach");
        QTest::newRow("down") << 0 << 2 << Saetze({"<B>", "C", "A", "**Neuer Lernbereich**"});
        QTest::newRow("up") << 2 << 0 << Saetze({"<C>", "A", "B", "**Neuer Lernbereich**"});
    }
    void AnAreaMovesWithinTheTree() {
        QFETCH(int, Von);
        QFETCH(int, Nach);
        QFETCH(QStringList, Danach);
        F->KnotenDruecken(Von);
        QVERIFY(F->Darueber(Baum(), Ziehart::Lernbereich, F->KnotenOrt(Nach)));
        QCOMPARE(F->Hinweis, QStringLiteral("Anzeigereihenfolge der Lernbereiche ändern"));
        F->Ablegen(Baum(), Ziehart::Lernbereich, F->KnotenOrt(Nach));
        QCOMPARE(F->Knoten(), Danach);
        QVERIFY(!FormulierungenGeaendert);
    }

    void MovingAnAreaNowhereLeavesTheSelection_data() {
        QTest::addColumn<int>("Von");
        QTest::addColumn<int>("Nach");
        QTest::newRow("onto itself") << 1 << 1;
        QTest::newRow("onto the new area") << 1 << 3;
    }
    void MovingAnAreaNowhereLeavesTheSelection() {
        QFETCH(int, Von);
        QFETCH(int, Nach);
        F->KnotenDruecken(Von);
        QVERIFY(!F->Darueber(Baum(), Ziehart::Lernbereich, F->KnotenOrt(Nach)));
        F->Ablegen(Baum(), Ziehart::Lernbereich, F->KnotenOrt(Nach));
        QCOMPARE(F->Knoten(), Saetze({"A", "<B>", "C", "**Neuer Lernbereich**"}));
    }

    void ADragGivesBackTheSelectionThatThePressTook() {
        QStringList BeimZug;
        disconnect(&F->Baum(), &Lernbereichsbaum::ZiehenBegonnen, nullptr, nullptr);
        connect(&F->Baum(), &Lernbereichsbaum::ZiehenBegonnen, this, [&] { BeimZug = F->Knoten(); });
        F->KlickAufKnoten(2);
        F->KnotenDruecken(1);
        QCOMPARE(F->Knoten(), Saetze({"A", "<B>", "C", "**Neuer Lernbereich**"}));
        const QPoint Ort = F->KnotenOrt(1) + QPoint(QApplication::startDragDistance() + 1, 0);
        for (int i = 0; i < 2; ++i) {
            QMouseEvent Zug(QEvent::MouseMove, Ort, Baum().mapToGlobal(Ort), Qt::NoButton, Qt::LeftButton,
                            Qt::NoModifier);
            QCoreApplication::sendEvent(&Baum(), &Zug);
        }
        QCOMPARE(BeimZug, Saetze({"A", "B", "<C>", "**Neuer Lernbereich**"}));
        QCOMPARE(F->Baum().GezogenerKnoten(), 1);
    }

    void TheNewAreaCannotBeMoved() {
        F->KnotenDruecken(3);
        F->Ablegen(Baum(), Ziehart::Lernbereich, F->KnotenOrt(0));
        QCOMPARE(F->Knoten(), Saetze({"A", "B", "C", "<**Neuer Lernbereich**>"}));
    }

    void OverTheFrameTheHintGoes() {
        F->Hinweis = QStringLiteral("alt");
        QVERIFY(!F->Darueber(F->Teil("fmFloskel"), Ziehart::Formulierung, QPoint(3, 3)));
        QCOMPARE(F->Hinweis, QString());
    }

    // The start of a drag

    void MovingWithTheButtonDownBeginsADrag() {
        int Begonnen = 0;
        disconnect(&F->Floskeln(), &Formulierungstabelle::ZiehenBegonnen, nullptr, nullptr);
        connect(&F->Floskeln(), &Formulierungstabelle::ZiehenBegonnen, this, [&Begonnen] { ++Begonnen; });
        const QPoint Ort = F->FloskelOrt(1);
        const auto Bewegen = [this](QPoint Wohin) {
            QMouseEvent Zug(QEvent::MouseMove, Wohin, Tabelle().mapToGlobal(Wohin), Qt::NoButton,
                            Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&Tabelle(), &Zug);
        };
        QTest::mousePress(&Tabelle(), Qt::LeftButton, {}, Ort);
        Bewegen(Ort + QPoint(2, 0));
        QCOMPARE(Begonnen, 0);
        Bewegen(Ort + QPoint(QApplication::startDragDistance(), 0));
        QCOMPARE(Begonnen, 1);
        QTest::mouseRelease(&Tabelle(), Qt::LeftButton, {}, Ort);
        QVERIFY(F->Editor().isHidden());
    }

    void TheEmptyRowCannotBeDragged() {
        QTest::mousePress(&Tabelle(), Qt::LeftButton, {}, F->FloskelOrt(4));
        QVERIFY(F->Editor().isVisible()); // the press opened the editor
    }
};

TESTKLASSE(ZiehenTest)
#include "tst_ziehen.moc"
