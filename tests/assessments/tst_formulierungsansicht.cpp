#include "Beurteilungsfenster.h"

#include "assessments/Formulierungen.h"
#include "assessments/Formulierungsspeicher.h"
#include "common/Testprogramm.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Uhr.h"

#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>
#include <QtTest>

/// The right side: phrase table, its editor, smileys, and the tree of areas.
class FormulierungsansichtTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    std::unique_ptr<Beurteilungsfenster> F;

    /// Clicks the phrase twice, slowly.
    void EditorOeffnen(int Zeile) {
        F->KlickAufFloskel(Zeile);
        UhrStellen(Jetzt().addMSecs(900));
        F->KlickAufFloskel(Zeile);
    }
    void EditorTextErsetzen(const char* Text) {
        QTest::keyClick(&F->Editor(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&F->Editor(), QString::fromUtf8(Text));
    }
    static QStringList Saetze(std::initializer_list<const char*> Texte) {
        QStringList Alle;
        for (const char* Text : Texte)
            Alle.append(QString::fromUtf8(Text));
        return Alle;
    }
    static QStringList VieleZeilen(int Anzahl) {
        QStringList Alle;
        for (int i = 0; i < Anzahl; ++i)
            Alle.append(QStringLiteral("o %1").arg(i));
        return Alle;
    }
    void NeuFuellen() {
        F->Ansicht->LernbereicheFuellen();
        QCoreApplication::processEvents();
    }
    QToolButton& Smiley(int Nummer) {
        return F->Feld<QToolButton>(qPrintable(QStringLiteral("picSmiley_%1").arg(Nummer)));
    }
    /// Number of the smiley that the frame lies around.
    int Umrahmter() {
        const QPoint Mitte = F->Teil("spSmileySelect").geometry().center();
        for (int Nummer = 0; Nummer < 3; ++Nummer)
            if (Smiley(Nummer).geometry().contains(Mitte))
                return Nummer;
        return -1;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        F = std::make_unique<Beurteilungsfenster>();
        F->KlickAufSchueler(2); // Bauer Anna, a girl
    }
    void cleanup() {
        F.reset();
        Welt.Aufraeumen();
    }

    // Filling

    void PhrasesReadAsWrittenForTheStudent() {
        QCOMPARE(F->Zeilen(),
                 Saetze({"Anna hilft ihren Freunden.", "sie liest.", "Sie stört.", "unbekannt", ""}));
        F->KlickAufSchueler(1);
        QCOMPARE(F->Zeilen(),
                 Saetze({"Emil hilft seinen Freunden.", "er liest.", "Er stört.", "unbekannt", ""}));
    }

    void MarksAreColours() {
        QCOMPARE(F->Floskeln().CellBackColor(0, 0), QColor(0xDD, 0xFF, 0xDD));
        QCOMPARE(F->Floskeln().CellBackColor(1, 0), QColor(0xFF, 0xFF, 0x99));
        QCOMPARE(F->Floskeln().CellBackColor(2, 0), QColor(0xFF, 0xCC, 0xCC));
        QCOMPARE(F->Floskeln().CellBackColor(3, 0), QColor(Qt::white));
        QCOMPARE(F->Floskeln().CellBackColor(4, 0), QColor(Qt::white));
    }

    void ShortAndEmptyLinesAreEmptyRows() {
        Lernbereiche[0].Formulierung[0] = QStringLiteral("+");
        Lernbereiche[0].Formulierung[1].clear();
        F->Ansicht->FormulierungenFuellen();
        QCOMPARE(F->Zeilen().mid(0, 2), Saetze({"", ""}));
        QCOMPARE(F->Floskeln().CellBackColor(0, 0), QColor(0xDD, 0xFF, 0xDD));
        QCOMPARE(F->Floskeln().CellBackColor(1, 0), QColor(Qt::white));
    }

    void TheTreeShowsTheAreasAndThePlaceForANewOne() {
        QCOMPARE(F->Knoten(), Saetze({"<A>", "B", "C", "**Neuer Lernbereich**"}));
    }

    void AnEmptyStoreShowsOnlyTheNewArea() {
        AnzLernbereiche = 0;
        Lernbereiche[0].Anzahl = 0;
        F->Ansicht->FormulierungenFuellen();
        QCOMPARE(F->Knoten(), Saetze({"<**Neuer Lernbereich**>"}));
        QCOMPARE(F->Zeilen(), Saetze({""}));
    }

    void AClickOnAnAreaShowsItsPhrases() {
        F->KlickAufKnoten(1);
        QCOMPARE(F->Knoten(), Saetze({"A", "<B>", "C", "**Neuer Lernbereich**"}));
        QCOMPARE(F->Zeilen(), Saetze({"vier", ""}));
        F->KlickAufKnoten(3);
        QCOMPARE(F->Zeilen(), Saetze({""}));
    }

    void TheArrowKeysSelectAreasToo() {
        F->Baum().setFocus();
        QTest::keyClick(&F->Baum(), Qt::Key_Down);
        QCOMPARE(F->Zeilen(), Saetze({"vier", ""}));
    }

    void RowsKeepTheirPlaceWhenRefilled() {
        F->Floskeln().setCell(2, 0);
        F->Ansicht->FormulierungenFuellen();
        QCOMPARE(F->Floskeln().Row(), 2);
        F->KlickAufKnoten(1);
        QCOMPARE(F->Floskeln().Row(), 0);
    }

    void LongPhrasesGetHigherRows() {
        Lernbereiche[0].Formulierung[0] = QStringLiteral("+ ") + QStringLiteral("viele Worte ").repeated(20);
        F->Ansicht->FormulierungenFuellen();
        QVERIFY(F->Floskeln().RowHeight(0) >= 2 * F->Floskeln().RowHeight(1));
        const int Vorher = F->Floskeln().RowHeight(0);
        F->Ansicht->resize(600, 620);
        QCoreApplication::processEvents();
        QVERIFY(F->Floskeln().RowHeight(0) > Vorher); // they follow the width
    }

    // Name

    void TheNameIsRefreshedTwoTicksAfterTyping() {
        F->Vorname().setFocus();
        QCOMPARE(F->Hinweis,
                 QStringLiteral("Hier steht der Name, wie er in der Formulierung verwendet werden soll"));
        F->Vorname().selectAll();
        QTest::keyClicks(&F->Vorname(), QStringLiteral("Anni"));
        EingabezaehlerTick();
        QCOMPARE(F->Zeilen().first(), QStringLiteral("Anna hilft ihren Freunden."));
        EingabezaehlerTick();
        QCOMPARE(F->Zeilen().first(), QStringLiteral("Anni hilft ihren Freunden."));
    }

    void LeavingTheNameRefreshesAtOnce() {
        F->Vorname().setFocus();
        F->Vorname().selectAll();
        QTest::keyClicks(&F->Vorname(), QStringLiteral("Anni"));
        F->Baum().setFocus();
        QCOMPARE(F->Zeilen().first(), QStringLiteral("Anni hilft ihren Freunden."));
        QCOMPARE(F->Hinweis, QString());
    }

    void WithoutANameTheAsterisksVanishUntilOneWrites() {
        F->KlickAufSchueler(4);
        QCOMPARE(F->Vorname().text(), QString());
        QCOMPARE(F->Zeilen().first(), QStringLiteral(" hilft ihren Freunden."));
        EditorOeffnen(0);
        QCOMPARE(F->Vorname().text(), QStringLiteral("*****"));
        QCOMPARE(F->Editor().toPlainText(), QStringLiteral("***** hilft ihren Freunden."));
        EingabezaehlerTick();
        EingabezaehlerTick();
        QVERIFY(F->Editor().isVisible()); // the pending refresh was cancelled
    }

    void EnteringAStudentLeavesNoPendingRefreshThatClosesTheEditor() {
        F->KlickAufSchueler(3);
        EditorOeffnen(0);
        EditorTextErsetzen("halb geschrieb");
        EingabezaehlerTick();
        EingabezaehlerTick();
        QVERIFY(F->Editor().isVisible());
        QCOMPARE(F->Editor().toPlainText(), QStringLiteral("halb geschrieb"));
    }

    // Clicks

    void ASlowSecondClickEdits() {
        F->KlickAufFloskel(1);
        QCOMPARE(F->Hinweis,
                 QStringLiteral("Zum Ändern der Formulierung noch einmal auf die Formulierung klicken!"));
        QVERIFY(F->Editor().isHidden());
        UhrStellen(Jetzt().addMSecs(865));
        F->KlickAufFloskel(1);
        QVERIFY(F->Editor().isVisible());
        QVERIFY(F->Editor().hasFocus());
        QCOMPARE(F->Editor().geometry(), F->Floskeln().CellRect(1, 0));
        QCOMPARE(F->Editor().toPlainText(), QStringLiteral("sie liest."));
        QVERIFY(F->Teil("picSmileyContainer").isHidden());
        QCOMPARE(F->Hinweis,
                 QStringLiteral("Schreiben/Ändern Sie die Formulierung so, wie wenn Sie sie für den "
                                "ausgewählten Schüler schreiben würden."));
    }

    void AFastSecondClickDoesNotEdit() {
        F->KlickAufFloskel(1);
        UhrStellen(Jetzt().addMSecs(864));
        F->KlickAufFloskel(1);
        QVERIFY(F->Editor().isHidden());
    }

    void ASlowClickOnAnotherRowDoesNotEdit() {
        F->KlickAufFloskel(1);
        UhrStellen(Jetzt().addSecs(5));
        F->KlickAufFloskel(2);
        QVERIFY(F->Editor().isHidden());
    }

    void ADoubleClickInsertsThePhrase() {
        F->DoppelklickAufFloskel(1);
        QCOMPARE(F->Text().toPlainText(), QStringLiteral("sie liest. "));
        QVERIFY(F->Text().hasFocus());
        QCOMPARE(F->Hinweis,
                 QStringLiteral("Mit Doppelklick auf eine Formulierung wird diese in die ausgewählte "
                                "Beurteilung eingefügt."));
        QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QStringLiteral("sie liest. "));
        UhrStellen(Jetzt().addSecs(5));
        F->KlickAufFloskel(1);
        QVERIFY(F->Editor().isHidden()); // it was no first click of two
    }

    void InsertingDependsOnTheCaret_data() {
        QTest::addColumn<QString>("Vorher");
        QTest::addColumn<int>("Marke");
        QTest::addColumn<QString>("Nachher");
        QTest::addColumn<int>("Danach");
        QTest::newRow("end of a text")
            << QStringLiteral("Ja.") << 3 << QStringLiteral("Ja. sie liest.") << 14;
        QTest::newRow("start") << QStringLiteral("Ja.") << 0 << QStringLiteral("sie liest. Ja.") << 11;
        QTest::newRow("middle") << QStringLiteral("ab") << 1 << QStringLiteral("asie liest. b") << 12;
        QTest::newRow("empty") << QString() << 0 << QStringLiteral("sie liest. ") << 11;
    }
    void InsertingDependsOnTheCaret() {
        QFETCH(QString, Vorher);
        QFETCH(int, Marke);
        QFETCH(QString, Nachher);
        QFETCH(int, Danach);
        F->Text().setPlainText(Vorher);
        F->Text().MarkeSetzen(Marke);
        F->DoppelklickAufFloskel(1);
        QCOMPARE(F->Text().toPlainText(), Nachher);
        QCOMPARE(F->Text().textCursor().position(), Danach);
    }

    void ADoubleClickWithoutAnOpenAssessmentInsertsNothing() {
        QTest::keyClick(&F->Text(), Qt::Key_Escape);
        F->DoppelklickAufFloskel(1);
        QVERIFY(F->Text().isHidden());
        QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QString());
    }

    void TheKeysDoWhatTheMouseDoes() {
        F->Floskeln().setFocus();
        F->Floskeln().setCell(1, 0);
        QTest::keyClick(&F->Floskeln(), Qt::Key_Return);
        QCOMPARE(F->Text().toPlainText(), QStringLiteral("sie liest. "));
        F->Floskeln().setFocus();
        QTest::keyClicks(&F->Floskeln(), QStringLiteral("-"));
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("- er liest."));
        QTest::keyClick(&F->Floskeln(), Qt::Key_F2);
        QVERIFY(F->Editor().hasFocus());
    }

    // Smileys

    void SmileysShowTheMarkOfTheCurrentPhrase() {
        QVERIFY(F->Teil("picSmileyContainer").isHidden());
        for (int Zeile = 0; Zeile < 3; ++Zeile) {
            F->KlickAufFloskel(Zeile);
            QVERIFY(F->Teil("picSmileyContainer").isVisible());
            QCOMPARE(Umrahmter(), Zeile);
        }
        F->KlickAufFloskel(3); // unknown: the frame stays
        QCOMPARE(Umrahmter(), 2);
        F->Baum().setFocus();
        QVERIFY(F->Teil("picSmileyContainer").isHidden());
        QCOMPARE(F->Hinweis, QString());
    }

    void SmileysTellTheirMark() {
        QCOMPARE(Smiley(0).toolTip(), QStringLiteral("positive Formulierung"));
        QCOMPARE(Smiley(1).toolTip(), QStringLiteral("neutrale Formulierung"));
        QCOMPARE(Smiley(2).toolTip(), QStringLiteral("negative Formulierung"));
        for (int Nummer = 0; Nummer < 3; ++Nummer)
            QVERIFY(!Smiley(Nummer).icon().isNull());
    }

    void AClickOnASmileyMarksThePhrase() {
        F->KlickAufFloskel(1);
        QTest::mouseClick(&Smiley(2), Qt::LeftButton);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("- er liest."));
        QCOMPARE(F->Floskeln().CellBackColor(1, 0), QColor(0xFF, 0xCC, 0xCC));
        QCOMPARE(Umrahmter(), 2);
        QVERIFY(FormulierungenGeaendert);
        QVERIFY(F->Teil("picSmileyContainer").isVisible());
    }

    void ASmileyOnTheEmptyRowIsQuietlyRefused() {
        F->Floskeln().setFocus();
        F->Floskeln().setCell(4, 0);
        QTest::mouseClick(&Smiley(0), Qt::LeftButton);
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
        QVERIFY(!FormulierungenGeaendert);
        QCOMPARE(F->Floskeln().CellBackColor(4, 0), QColor(Qt::white));
    }

    // Writing phrases

    void AChangedPhraseIsStoredInItsMasculineForm() {
        EditorOeffnen(0);
        EditorTextErsetzen("Anna malt seine und ihre Bilder, weil sie will.");
        QCOMPARE(F->Floskeln().TextMatrix(0, 0),
                 QStringLiteral("Anna malt seine und ihre Bilder, weil sie will."));
        QCOMPARE(Lernbereiche[0].Formulierung[0], QStringLiteral("+ ***** hilft seinen Freunden."));
        F->Baum().setFocus();
        QCOMPARE(Lernbereiche[0].Formulierung[0],
                 QStringLiteral("+ ***** malt seine und seine Bilder, weil er will."));
        QVERIFY(FormulierungenGeaendert);
        QVERIFY(F->Editor().isHidden());
    }

    void ForABoyOnlyTheNameIsReplaced() {
        F->KlickAufSchueler(1);
        EditorOeffnen(1);
        EditorTextErsetzen("Emil und sie ");
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("o ***** und sie"));
    }

    void BeforeAStudentIsEnteredAPhraseIsTakenBackFromTheFormItShows() {
        F.reset();
        AnzLernbereiche = 0;
        F = std::make_unique<Beurteilungsfenster>();
        QVERIFY(F->Feld<QRadioButton>("obBWeiblich").isChecked());
        QCOMPARE(F->Zeilen().at(2), QStringLiteral("Sie stört."));
        EditorOeffnen(2);
        EditorTextErsetzen("Sie lacht.");
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QCOMPARE(F->Gespeichert(0).at(2), QStringLiteral("- Er lacht."));
    }

    void EscapeStoresAndHides() {
        EditorOeffnen(2);
        EditorTextErsetzen("Sie liest nie.");
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QVERIFY(F->Editor().isHidden());
        QCOMPARE(Lernbereiche[0].Formulierung[2], QStringLiteral("- Er liest nie."));
        QVERIFY(F->Text().isVisible());
    }

    void AnUnchangedPhraseIsNoChange() {
        EditorOeffnen(0);
        F->Baum().setFocus();
        QVERIFY(!FormulierungenGeaendert);
    }

    void EmptyingAPhraseDoesNotDeleteIt() {
        EditorOeffnen(0);
        QTest::keyClick(&F->Editor(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&F->Editor(), Qt::Key_Delete);
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QCOMPARE(F->Zeilen().first(), QStringLiteral("Anna hilft ihren Freunden."));
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
        QVERIFY(!FormulierungenGeaendert);
    }

    void TheEditorAndItsRowGrow() {
        EditorOeffnen(1);
        const int Vorher = F->Floskeln().RowHeight(1);
        for (int i = 0; i < 30; ++i)
            QTest::keyClicks(&F->Editor(), QStringLiteral(" viele Worte"));
        QVERIFY(F->Floskeln().RowHeight(1) > 2 * Vorher);
        QCOMPARE(F->Editor().geometry(), F->Floskeln().CellRect(1, 0));
    }

    void APhraseIsOneLine() {
        EditorOeffnen(1);
        QGuiApplication::clipboard()->setText(QStringLiteral("a\r\nb\tc"));
        QTest::keyClick(&F->Editor(), Qt::Key_A, Qt::ControlModifier);
        F->Editor().paste();
        QTest::keyClick(&F->Editor(), Qt::Key_Return);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("o a b c"));
    }

    void APressOnTheEmptyRowBeginsANewPhrase() {
        F->KlickAufFloskel(4);
        QVERIFY(F->Editor().isVisible());
        QCOMPARE(F->Editor().toPlainText(), QString());
        QTest::keyClicks(&F->Editor(), QStringLiteral("Anna ist neu."));
        F->Baum().setFocus();
        QCOMPARE(F->Gespeichert(0).last(), QStringLiteral("o ***** ist neu."));
        QCOMPARE(F->Zeilen().size(), 6);
        QVERIFY(FormulierungenGeaendert);
    }

    void AnEmptyNewPhraseIsNone() {
        F->KlickAufFloskel(4);
        F->Baum().setFocus();
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
        QVERIFY(!FormulierungenGeaendert);
    }

    void TheFirstPhraseOfTheNewAreaCreatesIt() {
        F->KlickAufKnoten(3);
        F->KlickAufFloskel(0);
        QTest::keyClicks(&F->Editor(), QStringLiteral("erster"));
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QCOMPARE(F->Knoten(), Saetze({"A", "B", "C", "<Unbenannter Lernbereich>", "**Neuer Lernbereich**"}));
        QCOMPARE(F->Gespeichert(3), Saetze({"o erster"}));
        QCOMPARE(AnzLernbereiche, qint16(4));
        QCOMPARE(F->Zeilen(), Saetze({"erster", ""}));
    }

    void TheFirstPhraseOfAnEmptyStoreCreatesAnArea() {
        AnzLernbereiche = 0;
        Lernbereiche[0].Anzahl = 0;
        F->Ansicht->FormulierungenFuellen();
        F->KlickAufFloskel(0);
        QTest::keyClicks(&F->Editor(), QStringLiteral("erster"));
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QCOMPARE(F->Knoten(), Saetze({"<Unbenannter Lernbereich>", "**Neuer Lernbereich**"}));
        QCOMPARE(F->Gespeichert(0), Saetze({"o erster"}));
    }

    void A201stPhraseIsRefusedWithAMessage() {
        BereichAnlegen(QStringLiteral("D"), VieleZeilen(200));
        NeuFuellen();
        F->KlickAufKnoten(3);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Ein Lernbereich fasst höchstens 200 Formulierungen!"));
        F->Floskeln().setFocus();
        F->Floskeln().setCell(200, 0);
        QTest::keyClick(&F->Floskeln(), Qt::Key_F2);
        QVERIFY(F->Editor().isHidden());
        QCOMPARE(Lernbereiche[3].Anzahl, 200);
    }

    void AHundredthAreaIsRefusedWithAMessage() {
        for (int i = 3; i < 99; ++i)
            BereichAnlegen(QStringLiteral("X%1").arg(i), {});
        NeuFuellen();
        F->KlickAufKnoten(99);
        F->Baum().setCurrentItem(F->Baum().topLevelItem(99));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Es sind höchstens 99 Lernbereiche möglich!"));
        F->KlickAufFloskel(0);
        QVERIFY(F->Editor().isHidden());
        QCOMPARE(AnzLernbereiche, qint16(99));
    }

    void ALineThatWouldReadAsAnAreaStaysInTheEditor() {
        Lernbereiche[0].Formulierung[0] = QStringLiteral("[ alt");
        F->Ansicht->FormulierungenFuellen();
        EditorOeffnen(0);
        EditorTextErsetzen("neu]");
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Diese Formulierung darf nicht mit \"]\" enden"));
        F->Baum().setFocus();
        QTRY_VERIFY(F->Editor().hasFocus());
        QCOMPARE(F->Editor().toPlainText(), QStringLiteral("neu]"));
        QCOMPARE(Lernbereiche[0].Formulierung[0], QStringLiteral("[ alt"));
    }

    void ShiftUpAndDownStoreAndMoveOn() {
        EditorOeffnen(1);
        EditorTextErsetzen("eins");
        QTest::keyClick(&F->Editor(), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("o eins"));
        QCOMPARE(Lernbereiche[0].Formulierung[2], QStringLiteral("- Er stört."));
        QCOMPARE(F->Floskeln().Row(), 2);
        QCOMPARE(F->Editor().toPlainText(), QStringLiteral("Sie stört."));
        QTest::keyClick(&F->Editor(), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(F->Floskeln().Row(), 1);
        QTest::keyClick(&F->Editor(), Qt::Key_Up, Qt::ShiftModifier); // only from rows above 1
        QCOMPARE(F->Floskeln().Row(), 1);
        QVERIFY(F->Editor().isVisible());
    }

    void ClickingAnotherPhraseStoresInTheRightRow() {
        EditorOeffnen(1);
        EditorTextErsetzen("eins");
        F->KlickAufFloskel(2);
        QCOMPARE(F->Gespeichert(0).mid(0, 3),
                 Saetze({"+ ***** hilft seinen Freunden.", "o eins", "- Er stört."}));
        QCOMPARE(F->Floskeln().Row(), 2);
    }

    void ClickingAnotherAreaStoresInTheRightArea() {
        EditorOeffnen(1);
        EditorTextErsetzen("eins");
        F->KlickAufKnoten(1);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("o eins"));
        QCOMPARE(F->Gespeichert(1), Saetze({"o vier"}));
    }

    void ClickingAnotherStudentStoresForTheOneBefore() {
        EditorOeffnen(1);
        EditorTextErsetzen("Anna singt.");
        F->KlickAufSchueler(1);
        QCOMPARE(Lernbereiche[0].Formulierung[1], QStringLiteral("o ***** singt."));
        QCOMPARE(F->Zeilen().at(1), QStringLiteral("Emil singt."));
    }

    // Deleting

    void DeleteTakesThePhraseOutWithoutAQuestion_data() {
        QTest::addColumn<Qt::Key>("Taste");
        QTest::newRow("Backspace") << Qt::Key_Backspace;
        QTest::newRow("Delete") << Qt::Key_Delete;
    }
    void DeleteTakesThePhraseOutWithoutAQuestion() {
        QFETCH(Qt::Key, Taste);
        F->KlickAufFloskel(1);
        QTest::keyClick(&F->Floskeln(), Taste);
        QCOMPARE(F->Gespeichert(0), Saetze({"+ ***** hilft seinen Freunden.", "- Er stört.", "? unbekannt"}));
        QCOMPARE(F->Zeilen().size(), 4);
        QVERIFY(FormulierungenGeaendert);
    }

    void DeleteOnTheEmptyRowDoesNothing() {
        F->Floskeln().setFocus();
        F->Floskeln().setCell(4, 0);
        QTest::keyClick(&F->Floskeln(), Qt::Key_Delete);
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
    }

    void DeleteInTheEditorDeletesNoPhrase() {
        EditorOeffnen(1);
        QTest::keyClick(&F->Editor(), Qt::Key_Backspace);
        QTest::keyClick(&F->Editor(), Qt::Key_Delete);
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
    }

    void AReleaseWhosePressWentElsewhereDeletesNothing() {
        F->KlickAufFloskel(1);
        QTest::keyRelease(&F->Floskeln(), Qt::Key_Delete);
        F->Baum().setFocus();
        QTest::keyRelease(&F->Baum(), Qt::Key_Delete);
        QCOMPARE(Lernbereiche[0].Anzahl, 4);
        QCOMPARE(AnzLernbereiche, qint16(3));
    }

    void DeletingAnAreaAsks_data() {
        QTest::addColumn<Antwort>("Gegeben");
        QTest::newRow("Ja") << Antwort::Ja;
        QTest::newRow("Nein") << Antwort::Nein;
    }
    void DeletingAnAreaAsks() {
        QFETCH(Antwort, Gegeben);
        F->KlickAufKnoten(1);
        Welt.Boxen.ErwarteFrage(
            QStringLiteral("Wollen Sie wirklich den Lernbereich B mit allen darin enthaltenen "
                           "Formulierungen löschen?"),
            Gegeben);
        QTest::keyClick(&F->Baum(), Qt::Key_Delete);
        QCOMPARE(Welt.Boxen.Gezeigt.first().Titel, QStringLiteral("Sicherheitsabfrage"));
        if (Gegeben == Antwort::Ja)
            QCOMPARE(F->Knoten(), Saetze({"<A>", "C", "**Neuer Lernbereich**"}));
        else
            QCOMPARE(F->Knoten(), Saetze({"A", "<B>", "C", "**Neuer Lernbereich**"}));
        QCOMPARE(FormulierungenGeaendert, Gegeben == Antwort::Ja);
    }

    void TheNewAreaCannotBeDeleted() {
        F->KlickAufKnoten(3);
        QTest::keyClick(&F->Baum(), Qt::Key_Delete);
        QCOMPARE(AnzLernbereiche, qint16(3));
    }

    // Labels of the tree

    void F2RenamesAnAreaWithoutMarkingTheStore() {
        F->KlickAufKnoten(1);
        QTest::keyClick(&F->Baum(), Qt::Key_F2);
        auto* Feld = F->Baum().viewport()->findChild<QLineEdit*>();
        QVERIFY(Feld);
        QCOMPARE(Feld->text(), QStringLiteral("B"));
        Feld->selectAll();
        QTest::keyClicks(Feld, QStringLiteral("Biologie"));
        Feld->insert(QStringLiteral("ł")); // no file can hold it
        QTest::keyClick(Feld, Qt::Key_Return);
        QCoreApplication::processEvents(); // the label is taken after the key
        QCOMPARE(Lernbereiche[1].Name, QStringLiteral("Biologie"));
        QCOMPARE(F->Knoten(), Saetze({"A", "<Biologie>", "C", "**Neuer Lernbereich**"}));
        QVERIFY(!FormulierungenGeaendert); // so a rename alone is lost without a prompt
    }

    void ALabelIsClosedOnceWhicheverWayItIsLeft_data() {
        QTest::addColumn<QString>("Weg");
        QTest::addColumn<int>("Knoten");
        for (const int Nummer : {1, 3})
            for (const char* Weg : {"Return", "node", "Return, node", "box", "phrase"})
                QTest::addRow("%s, node %d", Weg, Nummer) << QString::fromLatin1(Weg) << Nummer;
    }
    void ALabelIsClosedOnceWhicheverWayItIsLeft() {
        QFETCH(QString, Weg);
        QFETCH(int, Knoten);
        QTest::failOnWarning(QRegularExpression(QStringLiteral("does not belong")));
        F->KlickAufKnoten(Knoten);
        QTest::keyClick(&F->Baum(), Qt::Key_F2);
        auto* Feld = F->Baum().viewport()->findChild<QLineEdit*>();
        QVERIFY(Feld);
        Feld->selectAll();
        QTest::keyClicks(Feld, QStringLiteral("Sport"));
        if (Weg.startsWith(u"Return"))
            QTest::keyClick(Feld, Qt::Key_Return);
        QCoreApplication::processEvents(); // the label is taken after the key
        if (Weg.endsWith(u"node"))
            F->KlickAufKnoten(0);
        if (Weg == u"box")
            F->Vorname().setFocus();
        if (Weg == u"phrase")
            F->Floskeln().setFocus();
        QCoreApplication::processEvents();
        QVERIFY(F->Knoten().join(u' ').contains(QStringLiteral("Sport")));
        QTRY_VERIFY(!F->Baum().viewport()->findChild<QLineEdit*>());
    }

    void ARenameIsLostWithoutAPrompt() {
        F->Baum().Beschriftet(1, QStringLiteral("Biologie"));
        QVERIFY(FormulierungenAbfrage());
    }

    void AnEmptyLabelBringsTheOldOneBack_data() {
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<QString>("Name");
        QTest::newRow("area") << 1 << QStringLiteral("B");
        QTest::newRow("new area") << 3 << QStringLiteral("**Neuer Lernbereich**");
    }
    void AnEmptyLabelBringsTheOldOneBack() {
        QFETCH(int, Nummer);
        QFETCH(QString, Name);
        F->KlickAufKnoten(Nummer);
        QTest::keyClick(&F->Baum(), Qt::Key_F2);
        auto* Feld = F->Baum().viewport()->findChild<QLineEdit*>();
        Feld->clear();
        QTest::keyClick(Feld, Qt::Key_Return);
        QCoreApplication::processEvents(); // the label is taken after the key
        QCOMPARE(F->Baum().Name(Nummer), Name);
        QCOMPARE(AnzLernbereiche, qint16(3));
    }

    void NamingTheNewAreaCreatesIt() {
        F->KlickAufKnoten(3);
        QTest::keyClick(&F->Baum(), Qt::Key_F2);
        auto* Feld = F->Baum().viewport()->findChild<QLineEdit*>();
        Feld->selectAll();
        QTest::keyClicks(Feld, QStringLiteral("Sport"));
        F->Vorname().setFocus(); // leaving commits
        QCOMPARE(F->Knoten(), Saetze({"A", "B", "C", "<Sport>", "**Neuer Lernbereich**"}));
        QCOMPARE(AnzLernbereiche, qint16(4));
        QCOMPARE(Lernbereiche[3].Name, QStringLiteral("Sport"));
        QVERIFY(FormulierungenGeaendert);
    }

    void AnUntouchedLabelCreatesNothing() {
        F->KlickAufKnoten(3);
        QTest::keyClick(&F->Baum(), Qt::Key_F2);
        QTest::keyClick(F->Baum().viewport()->findChild<QLineEdit*>(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(AnzLernbereiche, qint16(3));
    }

    void TheHundredthNameIsRefused() {
        for (int i = 3; i < 99; ++i)
            BereichAnlegen(QStringLiteral("X%1").arg(i), {});
        NeuFuellen();
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Es sind höchstens 99 Lernbereiche möglich!"));
        F->Baum().Beschriftet(99, QStringLiteral("neu"));
        QCOMPARE(AnzLernbereiche, qint16(99));
        QCOMPARE(F->Baum().Name(99), QStringLiteral("**Neuer Lernbereich**"));
    }

    void ASlowSecondClickOnALabelEditsIt() {
        F->KlickAufKnoten(1);
        QTest::mouseClick(F->Baum().viewport(), Qt::LeftButton, {}, F->KnotenOrt(1),
                          QApplication::doubleClickInterval() + 100);
        QTRY_VERIFY(F->Baum().viewport()->findChild<QLineEdit*>());
    }

    void ASlowSecondClickIsForgottenWhenTheUserHasGoneToAnotherBox() {
        const int Vorher = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(1);
        F->KlickAufKnoten(1);
        F->KlickAufKnoten(1);
        QApplication::setDoubleClickInterval(Vorher);
        F->Vorname().setFocus();
        bool Abgelaufen = false;
        QTimer::singleShot(5, this, [&Abgelaufen] { Abgelaufen = true; });
        QTRY_VERIFY(Abgelaufen);
        QVERIFY(F->Vorname().hasFocus());
        QVERIFY(!F->Baum().viewport()->findChild<QLineEdit*>());
    }

    void AKeyDoesNotWaitForASlowSecondClick() {
        F->KlickAufKnoten(1);
        F->KlickAufKnoten(1);
        QTest::keyClick(&F->Baum(), Qt::Key_F2);
        QVERIFY(F->Baum().viewport()->findChild<QLineEdit*>());
    }

    void TheMouseOverTheFrameClearsTheHint() {
        F->Hinweis = QStringLiteral("alt");
        QTest::mouseMove(&F->Teil("fmFloskel"), QPoint(3, F->Teil("fmFloskel").height() - 3));
        QTRY_COMPARE(F->Hinweis, QString());
    }
};

TESTKLASSE(FormulierungsansichtTest)
#include "tst_formulierungsansicht.moc"
