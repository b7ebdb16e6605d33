#include "Beurteilungsfenster.h"

#include "assessments/Formulierungsspeicher.h"
#include "common/Testprogramm.h"
#include "core/Definitionen.h"
#include "core/Uhr.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolButton>
#include <QtTest>

/// The left side: classes, periods, students and their texts.
class AnsichtBSchuelerTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    std::unique_ptr<Beurteilungsfenster> F;

    static QString& Text(int Schueler, int Zeitraum = 0) {
        return Datenbank.Schueler[Schueler].Beurteilung[Zeitraum];
    }
    static void Neu(std::unique_ptr<Beurteilungsfenster>& Fenster) {
        Fenster->Ansicht->Fuellen();
        QCoreApplication::processEvents();
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        F = std::make_unique<Beurteilungsfenster>();
    }
    void cleanup() {
        F.reset();
        Welt.Aufraeumen();
    }

    void EveryControlBearsItsName() {
        for (const char* Name : {"cbBKlasse", "cbBHalbjahr", "tblBeurteilungen", "txtBEingabe", "btBDatum",
                                 "txtBVorname", "obBMännlich", "obBWeiblich", "sbBFloskel", "tvBFloskel",
                                 "tblBFloskel", "txtBEingabe2", "picSmileyContainer", "picSmiley_0",
                                 "picSmiley_1", "picSmiley_2", "spSmileySelect", "fmFloskel"})
            F->Teil(Name);
        QCOMPARE(F->Teil("fmFloskel").property("title").toString(),
                 QStringLiteral("Beurteilungs-Formulierungen"));
        QCOMPARE(F->Feld<QPushButton>("btBDatum").toolTip(),
                 QStringLiteral("Fügt das aktuelle Datum in die Schülerbeurteilung ein"));
    }

    void EveryControlHasAnAccessibleName() {
        for (const char* Name : {"cbBKlasse", "cbBHalbjahr", "tblBeurteilungen", "txtBEingabe", "btBDatum",
                                 "txtBVorname", "obBMännlich", "obBWeiblich", "tvBFloskel", "tblBFloskel",
                                 "txtBEingabe2", "picSmiley_0", "picSmiley_1", "picSmiley_2"})
            QVERIFY2(
                !QAccessible::queryAccessibleInterface(&F->Teil(Name))->text(QAccessible::Name).isEmpty(),
                Name);
    }

    void TwelvePeriods() {
        QStringList Eintraege;
        const auto& Liste = F->Feld<Kombinationsfeld>("cbBHalbjahr");
        for (int i = 0; i < Liste.count(); ++i)
            Eintraege.append(Liste.itemText(i));
        QCOMPARE(Eintraege.join(u'|'),
                 QStringLiteral("1. Halbjahr|2. Halbjahr|Zwischenbeurteilungen 1|Zwischenbeurteilungen 2|"
                                "Zwischenbeurteilungen 3|Zwischenbeurteilungen 4|Zwischenbeurteilungen 5|"
                                "Schülerbeobachtungen 1|Schülerbeobachtungen 2|Schülerbeobachtungen 3|"
                                "Schülerbeobachtungen 4|Schülerbeobachtungen 5"));
    }

    void StudentsAreSortedAndTheEmptyRowIsLast() {
        QCOMPARE(F->Namen(),
                 (QStringList{QStringLiteral("Schüler"), QStringLiteral("Adler Max Emil"),
                              QStringLiteral("Bauer Anna"), QStringLiteral("Conrad Eva"), QString()}));
        QCOMPARE(F->Schueler().TextMatrix(0, 1), QStringLiteral("Beurteilung"));
        QCOMPARE(F->Schueler().RowData(1), 10001);
        QCOMPARE(F->Schueler().RowData(4), 0);
        QCOMPARE(F->Schueler().Row(), 1);
        for (int Zeile = 1; Zeile <= 4; ++Zeile)
            QCOMPARE(F->Schueler().CellBackColor(Zeile, 0), QColor(0xDD, 0xDD, 0xDD));
        QVERIFY(F->Text().isHidden());
    }

    void AClassWithOneStudentHasThreeRows() {
        F->Feld<Kombinationsfeld>("cbBKlasse").setListIndex(1);
        QCOMPARE(F->Namen(), (QStringList{QStringLiteral("Schüler"), QStringLiteral("Zorn Ida"), QString()}));
        QCOMPARE(AktKlasse, QStringLiteral("7b"));
        QCOMPARE(AktSchuelerID, 0);
    }

    void WithoutAClassTheGridIsDisabled() {
        Datenbank.AnzKlassen = 0;
        Neu(F);
        QVERIFY(!F->Schueler().isEnabled());
        QCOMPARE(F->Schueler().Rows(), 2);
    }

    void TheClassOfTheSelectedStudentComesUp() {
        AktSchuelerID = 10002;
        F->Feld<Kombinationsfeld>("cbBHalbjahr").setListIndex(3);
        Neu(F);
        QCOMPARE(F->Feld<Kombinationsfeld>("cbBKlasse").currentText(), QStringLiteral("7b"));
        QCOMPARE(F->Feld<Kombinationsfeld>("cbBHalbjahr").ListIndex(), 0);
        QCOMPARE(AktSchuelerID, 10002);
    }

    void StudentsOfOtherYearsAreNotShown() {
        Datenbank.Schueler[0].Jahr = QStringLiteral("2002/03");
        Neu(F);
        QVERIFY(!F->Namen().contains(QStringLiteral("Bauer Anna")));
    }

    void EnteringACellOpensTheEditorOverIt() {
        Text(0) = QStringLiteral("eins\r\nzwei");
        Neu(F);
        F->KlickAufSchueler(2);
        QVERIFY(F->Text().isVisible());
        QVERIFY(F->Text().hasFocus());
        QCOMPARE(F->Text().geometry(), F->Schueler().CellRect(2, 1));
        QCOMPARE(F->Text().toPlainText(), QStringLiteral("eins\nzwei"));
        QVERIFY(F->Feld<QPushButton>("btBDatum").isVisible());
        QCOMPARE(AktSchuelerID, 10000);
        QVERIFY(!DatenGeaendert);
        QVERIFY(GridEreignisseAktiv);
    }

    void TheNameColumnLeadsToTheText() {
        const QPoint Ort = F->Schueler().CellRect(2, 0).center() - F->Schueler().viewport()->pos();
        QTest::mouseClick(F->Schueler().viewport(), Qt::LeftButton, {}, Ort);
        QCOMPARE(F->Schueler().Col(), 1);
        QCOMPARE(F->Text().geometry(), F->Schueler().CellRect(2, 1));
    }

    void TheHeaderOpensNothing() {
        F->Schueler().Enter(0, 1);
        QVERIFY(F->Text().isHidden());
        QCOMPARE(AktSchuelerID, 0);
    }

    void NameAndGenderComeFromTheStudent() {
        F->KlickAufSchueler(1);
        QCOMPARE(F->Vorname().text(), QStringLiteral("Emil"));
        QVERIFY(F->Feld<QRadioButton>("obBMännlich").isChecked());
        F->KlickAufSchueler(2);
        QCOMPARE(F->Vorname().text(), QStringLiteral("Anna"));
        QVERIFY(F->Feld<QRadioButton>("obBWeiblich").isChecked()); // an empty field is a girl
        QCOMPARE(Datenbank.Schueler[0].Feld[5], QString());
        QVERIFY(!DatenGeaendert);
    }

    void EachKeystrokeIsInTheRecordAtOnce() {
        F->KlickAufSchueler(2);
        QString Getippt;
        for (const char* Zeichen : {"A", "b", " ", "x"}) {
            QTest::keyClicks(&F->Text(), QString::fromLatin1(Zeichen));
            Getippt += QString::fromLatin1(Zeichen);
            QCOMPARE(Text(0), Getippt);
            QCOMPARE(F->Schueler().TextMatrix(2, 1), Getippt);
        }
        QVERIFY(DatenGeaendert);
    }

    void LinesEndWithCrLfInTheRecord() {
        F->KlickAufSchueler(2);
        QTest::keyClicks(&F->Text(), QStringLiteral("a"));
        QTest::keyClick(&F->Text(), Qt::Key_Return);
        QTest::keyClick(&F->Text(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(&F->Text(), QStringLiteral("b"));
        QCOMPARE(Text(0), QStringLiteral("a\r\n\r\nb"));
        QCOMPARE(F->Schueler().TextMatrix(2, 1), QStringLiteral("a\r\n\r\nb"));
    }

    void RowAndBoxGrowWithTheText() {
        F->KlickAufSchueler(2);
        const int Vorher = F->Schueler().RowHeight(2);
        for (int i = 0; i < 40; ++i)
            QTest::keyClicks(&F->Text(), QStringLiteral("viele Worte "));
        QVERIFY(F->Schueler().RowHeight(2) > 2 * Vorher);
        QCOMPARE(F->Text().geometry(), F->Schueler().CellRect(2, 1));
        // The whole text has room in the box.
        const int Zeilen = F->Text().document()->firstBlock().layout()->lineCount();
        QVERIFY(Zeilen * F->Text().fontMetrics().lineSpacing() + 4 <= F->Text().height());
        QTest::keyClick(&F->Text(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&F->Text(), Qt::Key_Delete);
        QCOMPARE(F->Schueler().RowHeight(2), Vorher);
        QCOMPARE(Text(0), QString());
    }

    void TheBoxFollowsTheGrid() {
        Text(1) = QStringLiteral("lang ").repeated(900);
        Neu(F);
        F->KlickAufSchueler(1);
        F->Schueler().verticalScrollBar()->setValue(50);
        QCOMPARE(F->Text().geometry().topLeft(), F->Schueler().CellRect(1, 1).topLeft());
        F->Ansicht->resize(800, 500);
        QCoreApplication::processEvents();
        QCOMPARE(F->Text().geometry(), F->Schueler().CellRect(1, 1));
    }

    void TheGridFollowsTheCaretOfATallText() {
        Text(1) = QStringLiteral("lang ").repeated(1000);
        Neu(F);
        F->KlickAufSchueler(1);
        const auto Sichtbar = [this] {
            const QPoint Marke = F->Text().mapTo(&F->Schueler(), F->Text().cursorRect().center());
            return F->Schueler().viewport()->geometry().contains(Marke);
        };
        QVERIFY(F->Text().height() > F->Schueler().height());
        QTest::keyClick(&F->Text(), Qt::Key_End, Qt::ControlModifier);
        QVERIFY(Sichtbar());
        QTest::keyClick(&F->Text(), Qt::Key_Home, Qt::ControlModifier);
        QVERIFY(Sichtbar());
        for (int i = 0; i < 60; ++i)
            QTest::keyClick(&F->Text(), Qt::Key_Down);
        QVERIFY(Sichtbar());
    }

    void TypingOnTheGridGoesIntoTheBox() {
        F->Schueler().setFocus();
        F->Schueler().setCell(2, 1);
        QTest::keyClick(&F->Text(), Qt::Key_Escape);
        QVERIFY(F->Text().isHidden());
        QTest::keyClicks(&F->Schueler(), QStringLiteral("x"));
        QCOMPARE(Text(0), QStringLiteral("x"));
    }

    void ShiftUpAndDownMoveBetweenStudents() {
        F->KlickAufSchueler(2);
        QTest::keyClick(&F->Text(), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(F->Schueler().Row(), 3);
        QCOMPARE(AktSchuelerID, 10003);
        QVERIFY(F->Text().hasFocus());
        QTest::keyClick(&F->Text(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&F->Text(), Qt::Key_Down, Qt::ShiftModifier); // the last row: no further
        QCOMPARE(F->Schueler().Row(), 4);
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(&F->Text(), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(F->Schueler().Row(), 1);
        QVERIFY(!F->Text().textCursor().hasSelection());
    }

    void EscapeHidesTheEditor() {
        F->KlickAufSchueler(2);
        QTest::keyClicks(&F->Text(), QStringLiteral("bleibt"));
        QTest::keyClick(&F->Text(), Qt::Key_Escape);
        QVERIFY(F->Text().isHidden());
        QVERIFY(F->Feld<QPushButton>("btBDatum").isHidden());
        QCOMPARE(Text(0), QStringLiteral("bleibt"));
        QVERIFY(F->Schueler().hasFocus());
    }

    void TypingInTheEmptyRowChangesNoStudentButTheFlag() {
        F->KlickAufSchueler(4);
        QVERIFY(F->Text().isVisible());
        QTest::keyClicks(&F->Text(), QStringLiteral("x"));
        QVERIFY(DatenGeaendert);
        for (int i = 0; i < Datenbank.AnzSchueler; ++i)
            QCOMPARE(Text(i), QString());
        QCOMPARE(AktSchuelerID, 0);
    }

    void EachPeriodHasItsText() {
        Text(0, 0) = QStringLiteral("erstes");
        Text(2, 1) = QStringLiteral("andere Klasse");
        Neu(F);
        F->Feld<Kombinationsfeld>("cbBHalbjahr").setListIndex(1);
        QVERIFY(F->Text().isHidden());
        F->KlickAufSchueler(2);
        QCOMPARE(F->Text().toPlainText(), QString());
        QTest::keyClicks(&F->Text(), QStringLiteral("zweites"));
        QCOMPARE(Text(0, 0), QStringLiteral("erstes"));
        QCOMPARE(Text(0, 1), QStringLiteral("zweites"));
        F->Feld<Kombinationsfeld>("cbBHalbjahr").setListIndex(0);
        QCOMPARE(F->Schueler().TextMatrix(2, 1), QStringLiteral("erstes"));
        QCOMPARE(Text(2, 1), QStringLiteral("andere Klasse"));
    }

    void CharactersThatNoFileHoldsAreNotTaken() {
        F->KlickAufSchueler(2);
        QTest::keyClicks(&F->Text(), QStringLiteral("a"));
        QKeyEvent Polnisch(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("ł"));
        QCoreApplication::sendEvent(&F->Text(), &Polnisch);
        QInputMethodEvent Tippen(QString(), {});
        Tippen.setCommitString(QStringLiteral("ńb"));
        QCoreApplication::sendEvent(&F->Text(), &Tippen);
        QGuiApplication::clipboard()->setText(QStringLiteral("c\td\r\ne\u0142\u2028f"));
        F->Text().paste();
        QCOMPARE(Text(0), QStringLiteral("abc d\r\ne\r\nf"));
    }

    void KeysThatGiveMoreThanAPrintedCharacterAreCleanedToo() {
        F->KlickAufSchueler(2);
        for (const auto& Zeichen :
             {QStringLiteral("\u200C"), QStringLiteral("\U0001F600"), QStringLiteral("\uE000"),
              QStringLiteral("u\u0308"), QStringLiteral("x\u0142")}) {
            QKeyEvent Taste(QEvent::KeyPress, 0, Qt::NoModifier, Zeichen);
            QCoreApplication::sendEvent(&F->Text(), &Taste);
        }
        QCOMPARE(Text(0), QStringLiteral("üx"));
    }

    void AnAccentTypedBehindALetterJoinsIt() {
        F->KlickAufSchueler(2);
        QTest::keyClicks(&F->Text(), QStringLiteral("u"));
        for (const char16_t Akzent : {u'\u0308', u'\u0308'}) { // the second finds no letter to join
            QKeyEvent Taste(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(Akzent)));
            QCoreApplication::sendEvent(&F->Text(), &Taste);
        }
        QCOMPARE(Text(0), QStringLiteral("ü"));
    }

    void TheDateGoesToTheEnd_data() {
        QTest::addColumn<QString>("Vorher");
        QTest::addColumn<QString>("Nachher");
        QTest::newRow("empty") << QString() << QStringLiteral("12.10.2003:\r\n");
        QTest::newRow("text") << QStringLiteral("a") << QStringLiteral("a\r\n12.10.2003:\r\n");
    }
    void TheDateGoesToTheEnd() {
        QFETCH(QString, Vorher);
        QFETCH(QString, Nachher);
        Text(0) = Vorher;
        Neu(F);
        F->KlickAufSchueler(2);
        QTest::keyClick(&F->Text(), Qt::Key_Home, Qt::ControlModifier);
        QTest::mouseClick(&F->Teil("btBDatum"), Qt::LeftButton);
        QCOMPARE(Text(0), Nachher);
        QVERIFY(F->Text().MarkeAmEnde());
        QVERIFY(F->Text().hasFocus());
    }

    void SwitchingTheGenderIsStored() {
        F->KlickAufSchueler(2);
        QTest::mouseClick(&F->Teil("obBMännlich"), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(Datenbank.Schueler[0].Feld[5], QStringLiteral("m"));
        QVERIFY(DatenGeaendert);
        QCOMPARE(F->Zeilen().first(), QStringLiteral("Anna hilft seinen Freunden."));
        QTest::mouseClick(&F->Teil("obBWeiblich"), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(Datenbank.Schueler[0].Feld[5], QStringLiteral("w"));
        QCOMPARE(F->Zeilen().first(), QStringLiteral("Anna hilft ihren Freunden."));
    }

    void ClickingTheGenderThatIsOnConfirmsIt() {
        F->KlickAufSchueler(2);
        QTest::mouseClick(&F->Teil("obBWeiblich"), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(Datenbank.Schueler[0].Feld[5], QStringLiteral("w"));
    }

    void GenderInTheEmptyRowChangesNobody() {
        F->KlickAufSchueler(2);
        F->KlickAufSchueler(4);
        QTest::mouseClick(&F->Teil("obBMännlich"), Qt::LeftButton, {}, QPoint(8, 8));
        QVERIFY(!DatenGeaendert);
    }

    void TheClassComboGivesItsHintAndCreatesClassesWithoutAQuestion() {
        auto& Liste = F->Feld<Kombinationsfeld>("cbBKlasse");
        Liste.setFocus();
        QCOMPARE(F->Hinweis, QStringLiteral("Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung "
                                            "eingeben und Return drücken!"));
        Liste.lineEdit()->selectAll();
        QTest::keyClicks(Liste.lineEdit(), QStringLiteral("8c"));
        QTest::keyClick(Liste.lineEdit(), Qt::Key_Return);
        QCOMPARE(Datenbank.AnzKlassen, qint16(3));
        QCOMPARE(Liste.currentText(), QStringLiteral("8c"));
    }

    void TheMouseOverTheBarePanelClearsTheHint() {
        F->Hinweis = QStringLiteral("alt");
        // The place of the hidden button is bare.
        QTest::mouseMove(&F->Teil("Schuelerseite"), F->Teil("btBDatum").geometry().center());
        QTRY_COMPARE(F->Hinweis, QString());
    }

    void TheGridModelKeepsItsPromises() {
        QAbstractItemModelTester Schueler(F->Schueler().model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester Floskeln(F->Floskeln().model(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
        F->KlickAufSchueler(2);
        QTest::keyClicks(&F->Text(), QStringLiteral("x"));
        Neu(F);
    }
};

TESTKLASSE(AnsichtBSchuelerTest)
#include "tst_ansichtb.moc"
