// The grade list of a subject (view N1) and of a student (view N2).

#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Einstellungen.h"
#include "core/FktSpeziell.h"
#include "grading/Gesamtnoten.h"
#include "views/AnsichtN1.h"
#include "views/AnsichtN2.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {

const QString Buch = QStringLiteral(R"(Klasse 3b
    Klasse 3c
    Fach 50000 3b Mathe
    Fach 50001 3bc Religion
    Fach 50002 3b Deutsch
    Schueler 10000 3b Zech Tom
    Schueler 10001 3b adam Eva
    Schueler 10002 3c Huber Max
    Schueler 10003 3b Bauer Anna
    Note 10000 50000 N1=2 P1=33,5 N2=5 P2=-0,1 N11=4 N21=3 G1=1
    Note 10001 50000 Teilnahme=nein N1=6
    Note 10003 50000 N1=3 P1=20
    Note 10000 50001 N1=1 N8=5
    Note 10002 50001 N1=2
    Note 10003 50001 N1=4
    Note 10000 50002 N3=3)");

const QString HinweisZelle =
    QStringLiteral("Mit gedrückter Umschalt-Taste und den Cursortasten kann die Zelle gewechselt werden!");
const QString HinweisDurchschnitt =
    QStringLiteral("Die Durchschnittsnoten werden automatisch ermittelt und sind nicht änderbar!");
const QString HinweisZeugnis =
    QStringLiteral("Hier die Noten eingeben, die auf dem Zeugnis erscheinen sollen!");
const QString HinweisSchueler = QStringLiteral("Zur Aufnahme eines neuen Schülers in die Klasse hier den "
                                               "Namen des Schülers (Nachname Vorname) eingeben!");
const QString HinweisFach =
    QStringLiteral("Zum Anlegen eines neuen Faches hier den Namen des Fachs eingeben!");
const QString Frage = QStringLiteral("Sollen die errechneten Durchschnittsnoten als Zeugnisnoten übernommen "
                                     "werden?");

} // namespace

/// A view of this kind in a window, and what a user does with it.
template <class Art>
class Notenansicht : public QObject {
  public:
    void Zeigen(const QString& Zeilen, const char* Gittername, const char* Feldname) {
        TestbuchLaden(Zeilen);
        Fenster = std::make_unique<QWidget>();
        auto* Aufbau = new QVBoxLayout(Fenster.get());
        Ansicht = new Art;
        Aufbau->addWidget(Ansicht);
        Tabelle = Teil<Gitter>(Gittername);
        Feld = Teil<EingabeFeld>(Feldname);
        connect(Ansicht, &Art::HinweisGewuenscht, this, [this](const QString& Text) { Hinweis = Text; });
        connect(Ansicht, &Art::PassbildGewuenscht, this, [this] { ++Passbilder; });
        connect(Ansicht, &Art::AktualisierenGewuenscht, this, [this] { Ansicht->Fuellen(); });
        Fenster->resize(1280, 500);
        Fenster->show();
        QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
        Ansicht->Fuellen();
    }

    template <class Teilart>
    Teilart* Teil(const char* Name) {
        auto* Gefunden = Fenster->findChild<Teilart*>(QString::fromUtf8(Name));
        if (!Gefunden)
            qFatal("kein %s", Name);
        return Gefunden;
    }

    QPushButton* Knopf(const char* Name) { return Teil<QPushButton>(Name); }
    void Druecken(const char* Name) { QTest::mouseClick(Knopf(Name), Qt::LeftButton); }

    void Klicken(int Zeile, int Spalte) {
        const QPoint Ort = Tabelle->viewport()->mapFrom(Tabelle, Tabelle->CellRect(Zeile, Spalte).center());
        QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Ort);
    }

    void Taste(Qt::Key Welche, Qt::KeyboardModifiers Dazu = {}) {
        QTest::keyClick(QApplication::focusWidget(), Welche, Dazu);
    }

    void Tippen(const char* Text) {
        Feld->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(Text));
    }

    QPoint Ort() const { return {Tabelle->Row(), Tabelle->Col()}; }

    /// Column 0 of all rows, "Schüler,,Bauer Anna,...".
    QString Namen() const {
        QStringList Texte;
        for (int z = 0; z < Tabelle->Rows(); ++z)
            Texte.append(Tabelle->TextMatrix(z, 0));
        return Texte.join(u',');
    }

    QString Zelle(int Zeile, int Spalte) const { return Tabelle->TextMatrix(Zeile, Spalte); }

    Testwelt Welt;
    std::unique_ptr<Dialogschritte> Schritte;
    std::unique_ptr<QWidget> Fenster;
    Art* Ansicht = nullptr;
    Gitter* Tabelle = nullptr;
    EingabeFeld* Feld = nullptr;
    QString Hinweis;
    int Passbilder = 0;

  protected:
    void Anfangen() {
        Welt.Herstellen();
        for (int i = 1; i <= 13; ++i) {
            Probenbezeichnung[i] = QStringLiteral("Probe %1").arg(i);
            ExtemporalenBezeichnung[i] = QStringLiteral("Kurz %1").arg(i);
        }
        Schritte = std::make_unique<Dialogschritte>();
        Hinweis.clear();
        Passbilder = 0;
    }

    void Enden() {
        Schritte.reset();
        Fenster.reset();
        Welt.Aufraeumen();
    }
};

class AnsichtN1Test : public Notenansicht<AnsichtN1> {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Enden(); }

    void listShowsThoseWhoTakePartByName();
    void headersAreMergedAndNameTheTests();
    void coloursFollowHalfYearsAndHandSetGrades();
    void boundaryOneAndElevenMakeOneBlock_data();
    void boundaryOneAndElevenMakeOneBlock();
    void averagesStandBesideTheGrades();
    void all35ColumnsAreSeenAt1280();
    void withoutSubjectsNothingIsEnabled();
    void comboSelectsTheCurrentSubject();

    void typedGradeGoesToRecordAndAverages();
    void overwrittenGradeTurnsRedAndPointsNegative();
    void clearedGradeTakesThePointsAway();
    void gradeIsStoredAsTypedWithBlanks();
    void threeSecondsCommitByThemselves();
    void escapeDropsWhatWasTyped();
    void averagesCannotBeTyped();
    void renamedStudentIsRenamedInTheRecord();
    void renamedStudentTakesThePhotoAlong();
    void commitOnLeavingTheBox();
    void pastedTabsBecomeBlanks();

    void keysMoveAsTold_data();
    void keysMoveAsTold();
    void movedCellIsSelectedWhole();
    void headerIsNeverEntered();
    void clickOnANameEntersIt();
    void clickOnTheEntryRowGoesToTheName();
    void hintsFollowTheCell();
    void enteringACellSetsStudentAndTest();
    void deleteButtonFollowsTheCell();

    void takeoverRoundsAndOverwrites();
    void takeoverAsksFirst();

    void newStudentThroughTheEntryRow();
    void leavingTheEntryRowTakesTheStudentOnce_data();
    void leavingTheEntryRowTakesTheStudentOnce();
    void threeSecondsOnTheEntryRowAskForTheSubjects();
    void mergedSubjectAsksForTheClass();
    void mergedSubjectCancelledGoesOneRowUp();
    void newStudentButton();
    void newSubjectButtonSelectsIt();
    void typedSubjectOpensTheWizard();
    void deleteSubject();
    void deleteStudentEverywhere();
    void halfYearBoundariesChangeColoursAndAverages();
    void aClassWithoutALevelHasNoNamesOfTests();
    void aClassFieldThatCannotBeReadLeavesNoBoxBehind();
    void refillHidesTheBox();
    void everythingHasANameForScreenReaders();
};

namespace {

void N1Zeigen(AnsichtN1Test& Test, const QString& Zeilen = Buch) {
    Test.Zeigen(Zeilen, "tblN1Noten", "txtN1Eingabe");
}

/// Class 3b Mathe: rows 2 Bauer Anna, 3 Zech Tom, 4 entry row.
void MatheZeigen(AnsichtN1Test& Test) {
    AktFachID = 50000;
    N1Zeigen(Test);
}

} // namespace

void AnsichtN1Test::listShowsThoseWhoTakePartByName() {
    MatheZeigen(*this);
    QCOMPARE(Namen(), QStringLiteral("Schüler,,Bauer Anna,Zech Tom,"));
    QCOMPARE(Tabelle->Cols(), 35);
    QCOMPARE(Tabelle->RowData(2), 10003);
    QCOMPARE(Tabelle->RowData(3), 10000);
    QCOMPARE(Tabelle->RowData(4), 0);
    QCOMPARE(Zelle(3, 1), QStringLiteral("2"));
    QCOMPARE(Zelle(3, 11), QStringLiteral("4"));
    QCOMPARE(Zelle(3, 21), QStringLiteral("3"));
    QCOMPARE(Zelle(3, 32), QStringLiteral("1"));
    // A merged subject shows the students of all its classes.
    Teil<Kombinationsfeld>("cbN1KlasseFach")->setCurrentIndex(0);
    QCOMPARE(Teil<Kombinationsfeld>("cbN1KlasseFach")->currentText(), QStringLiteral("3b Deutsch"));
    Teil<Kombinationsfeld>("cbN1KlasseFach")->setCurrentIndex(2);
    QCOMPARE(Teil<Kombinationsfeld>("cbN1KlasseFach")->currentText(), QStringLiteral("3bc Religion"));
    QCOMPARE(Namen(), QStringLiteral("Schüler,,Bauer Anna,Huber Max,Zech Tom,"));
    QCOMPARE(AktFachID, 50001);
}

void AnsichtN1Test::headersAreMergedAndNameTheTests() {
    MatheZeigen(*this);
    QCOMPARE(Zelle(0, 1), QStringLiteral("Probe 3"));
    QCOMPARE(Zelle(0, 10), QStringLiteral("Probe 3"));
    QCOMPARE(Zelle(0, 11), QStringLiteral("Kurz 3"));
    QCOMPARE(Zelle(0, 30), QStringLiteral("Mündlich"));
    QCOMPARE(Zelle(0, 31), QStringLiteral("Halbjahr"));
    QCOMPARE(Zelle(1, 31), QStringLiteral("Ø"));
    QCOMPARE(Zelle(1, 32), QStringLiteral("Zeugnis"));
    QCOMPARE(Zelle(0, 34), QStringLiteral("Endjahr"));
    QCOMPARE(Zelle(1, 5), QStringLiteral(" 1.Hj"));
    QCOMPARE(Zelle(1, 6), QStringLiteral(" 2.Hj"));
    QCOMPARE(Tabelle->CellRect(0, 1), Tabelle->CellRect(0, 10));
    QCOMPARE(Tabelle->CellRect(1, 1), Tabelle->CellRect(1, 5));
    QCOMPARE(Tabelle->CellRect(0, 31), Tabelle->CellRect(0, 32));
}

void AnsichtN1Test::coloursFollowHalfYearsAndHandSetGrades() {
    MatheZeigen(*this);
    const QColor Blau(221, 239, 255);
    const QColor Gruen(221, 255, 221);
    for (const int Zeile : {2, 3}) {
        QCOMPARE(Tabelle->CellBackColor(Zeile, 0), QColor(238, 238, 238));
        for (const int Spalte : {1, 5, 11, 15, 21, 25, 31})
            QCOMPARE(Tabelle->CellBackColor(Zeile, Spalte), Blau);
        for (const int Spalte : {6, 10, 16, 20, 26, 30, 33})
            QCOMPARE(Tabelle->CellBackColor(Zeile, Spalte), Gruen);
        QCOMPARE(Tabelle->CellBackColor(Zeile, 32), QColor(204, 221, 255));
        QCOMPARE(Tabelle->CellBackColor(Zeile, 34), QColor(204, 255, 204));
    }
    QCOMPARE(Tabelle->CellBackColor(4, 0), QColor(238, 238, 238));
    QCOMPARE(Tabelle->CellBackColor(4, 1), QColor(Qt::white));
    QCOMPARE(Tabelle->CellForeColor(3, 1), QColor(Qt::black));
    QCOMPARE(Tabelle->CellForeColor(3, 2), QColor(255, 0, 0));
    QCOMPARE(Tabelle->CellForeColor(3, 21), QColor(Qt::black));
}

void AnsichtN1Test::boundaryOneAndElevenMakeOneBlock_data() {
    QTest::addColumn<QString>("Grenze");
    QTest::addColumn<QString>("Titel");
    QTest::newRow("1") << QStringLiteral("1") << QStringLiteral(" 2.Hj");
    QTest::newRow("11") << QStringLiteral("11") << QStringLiteral(" 1.Hj");
}

void AnsichtN1Test::boundaryOneAndElevenMakeOneBlock() {
    QFETCH(QString, Grenze);
    QFETCH(QString, Titel);
    MatheZeigen(*this);
    Datenbank.Faecher[0].GrenzeP = Grenze;
    Ansicht->Fuellen();
    for (int Spalte = 1; Spalte <= 10; ++Spalte)
        QCOMPARE(Zelle(1, Spalte), Titel);
}

void AnsichtN1Test::averagesStandBesideTheGrades() {
    MatheZeigen(*this);
    // (2 + 5 + 4 + 0.5 * 3) / 3.5
    QCOMPARE(Zelle(3, 31), QStringLiteral("3,6"));
    QCOMPARE(Zelle(3, 33), QStringLiteral("3,6"));
    QCOMPARE(Zelle(2, 31), QStringLiteral("3,0"));
}

void AnsichtN1Test::all35ColumnsAreSeenAt1280() {
    MatheZeigen(*this);
    QCoreApplication::processEvents();
    QCOMPARE(Tabelle->SichtbarerTeil(3, 34), Tabelle->CellRect(3, 34));
    QCOMPARE(Tabelle->SichtbarerTeil(3, 1), Tabelle->CellRect(3, 1));
    const QFontMetrics Mass(Tabelle->font());
    QVERIFY(Tabelle->ColWidth(5) >= Mass.horizontalAdvance(QStringLiteral("2-+")) + 6);
    QVERIFY(Tabelle->ColWidth(31) >= Mass.horizontalAdvance(QStringLiteral("2,75")) + 6);
    QVERIFY(Tabelle->ColWidth(32) >= Mass.horizontalAdvance(QStringLiteral("Zeugnis")) + 6);
}

void AnsichtN1Test::withoutSubjectsNothingIsEnabled() {
    N1Zeigen(*this, QStringLiteral("Klasse 3b\nSchueler 10000 3b Zech Tom"));
    QCOMPARE(Namen(), QStringLiteral("Schüler,,"));
    QVERIFY(!Tabelle->isEnabled());
    for (const char* Name :
         {"btN1FachLoeschen", "btN1NeuerSchueler", "btN1SchuelerLoeschen", "btN1HJGrenzenFestlegen"})
        QVERIFY2(!Knopf(Name)->isEnabled(), Name);
    QVERIFY(Knopf("btN1NeuesFach")->isEnabled());
}

void AnsichtN1Test::comboSelectsTheCurrentSubject() {
    AktFachID = 50001;
    N1Zeigen(*this);
    auto* Faecher = Teil<Kombinationsfeld>("cbN1KlasseFach");
    QCOMPARE(Faecher->currentText(), QStringLiteral("3bc Religion"));
    QCOMPARE(Faecher->AktDatum(), 50001);
    AktFachID = 12345;
    Ansicht->Fuellen();
    QCOMPARE(Faecher->currentIndex(), 0);
    QCOMPARE(AktFachID, 50002);
}

void AnsichtN1Test::typedGradeGoesToRecordAndAverages() {
    MatheZeigen(*this);
    Klicken(2, 21);
    Tippen("1");
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Noten[2].N[21], QStringLiteral("1"));
    QVERIFY(DatenGeaendert);
    QCOMPARE(Zelle(2, 21), QStringLiteral("1"));
    QCOMPARE(Zelle(2, 31), QStringLiteral("2,3")); // (3 + 0.5) / 1.5
    QCOMPARE(Ort(), QPoint(3, 21));
    QCOMPARE(Tabelle->CellForeColor(2, 21), QColor(Qt::black));
}

void AnsichtN1Test::overwrittenGradeTurnsRedAndPointsNegative() {
    MatheZeigen(*this);
    Klicken(2, 1);
    Tippen("5");
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Noten[2].N[1], QStringLiteral("5"));
    QCOMPARE(Datenbank.Noten[2].P[1], QStringLiteral("-20"));
    QCOMPARE(Tabelle->CellForeColor(2, 1), QColor(255, 0, 0));
    Ansicht->Fuellen();
    QCOMPARE(Tabelle->CellForeColor(2, 1), QColor(255, 0, 0));
}

void AnsichtN1Test::clearedGradeTakesThePointsAway() {
    MatheZeigen(*this);
    Klicken(2, 1);
    Feld->selectAll();
    Taste(Qt::Key_Delete);
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Noten[2].N[1], QString());
    QCOMPARE(Datenbank.Noten[2].P[1], QString());
    QCOMPARE(Zelle(2, 31), QString());
}

void AnsichtN1Test::gradeIsStoredAsTypedWithBlanks() {
    MatheZeigen(*this);
    Klicken(2, 22);
    Tippen(" kr ");
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Noten[2].N[22], QStringLiteral(" kr "));
}

void AnsichtN1Test::threeSecondsCommitByThemselves() {
    MatheZeigen(*this);
    Klicken(2, 21);
    Tippen("1");
    QCOMPARE(EingabeZaehler[9], qint16(6));
    for (int i = 0; i < 5; ++i)
        EingabezaehlerTick();
    QCOMPARE(Datenbank.Noten[2].N[21], QString());
    EingabezaehlerTick();
    QCOMPARE(Datenbank.Noten[2].N[21], QStringLiteral("1"));
    QCOMPARE(Zelle(2, 33), QStringLiteral("2,3"));
    QVERIFY(Feld->isVisible());
    QVERIFY(Feld->isUndoAvailable());
}

void AnsichtN1Test::escapeDropsWhatWasTyped() {
    MatheZeigen(*this);
    Klicken(2, 21);
    Tippen("1");
    Taste(Qt::Key_Escape);
    QVERIFY(!Feld->isVisible());
    QVERIFY(!Knopf("btN1SchuelerLoeschen")->isEnabled());
    for (int i = 0; i < 8; ++i)
        EingabezaehlerTick();
    QCOMPARE(Datenbank.Noten[2].N[21], QString());
    QVERIFY(!DatenGeaendert);
}

void AnsichtN1Test::averagesCannotBeTyped() {
    MatheZeigen(*this);
    for (const int Spalte : {31, 33}) {
        Klicken(3, Spalte);
        QTest::keyClicks(Feld, QStringLiteral("12"));
        Taste(Qt::Key_Backspace);
        QCOMPARE(Feld->text(), QStringLiteral("3,6"));
        Taste(Qt::Key_Return);
        QCOMPARE(Zelle(3, Spalte), QStringLiteral("3,6"));
    }
    QVERIFY(!DatenGeaendert);
}

void AnsichtN1Test::renamedStudentIsRenamedInTheRecord() {
    MatheZeigen(*this);
    Klicken(2, 0);
    Tippen("Bauer Anne");
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Schueler[3].Name, QStringLiteral("Bauer Anne"));
    QCOMPARE(Zelle(2, 0), QStringLiteral("Bauer Anne"));
    QVERIFY(DatenGeaendert);
}

void AnsichtN1Test::renamedStudentTakesThePhotoAlong() {
    EinstellungSchreiben(QStringLiteral("AutoDatei"), Welt.Pfad(QStringLiteral("noten.txt")));
    QVERIFY(QDir(Welt.Ordner()).mkpath(QStringLiteral("Passbilder/2003-04/3b")));
    Welt.DateiAnlegen(QStringLiteral("Passbilder/2003-04/3b/Bauer Anna.bmp"), "BM");
    MatheZeigen(*this);
    Klicken(2, 0);
    Tippen("Bauer Anne");
    Taste(Qt::Key_Return);
    QVERIFY(QFile::exists(Welt.Pfad(QStringLiteral("Passbilder/2003-04/3b/Bauer Anne.bmp"))));
    QVERIFY(!QFile::exists(Welt.Pfad(QStringLiteral("Passbilder/2003-04/3b/Bauer Anna.bmp"))));
}

void AnsichtN1Test::commitOnLeavingTheBox() {
    MatheZeigen(*this);
    Klicken(2, 23);
    Tippen("4");
    Klicken(3, 24);
    QCOMPARE(Datenbank.Noten[2].N[23], QStringLiteral("4"));
    Tippen("5");
    Teil<Kombinationsfeld>("cbN1KlasseFach")->setFocus();
    QCOMPARE(Datenbank.Noten[0].N[24], QStringLiteral("5"));
}

void AnsichtN1Test::pastedTabsBecomeBlanks() {
    MatheZeigen(*this);
    Klicken(2, 23);
    Feld->insert(QStringLiteral("a\tb"));
    QCOMPARE(Feld->text(), QStringLiteral("a b"));
    QCOMPARE(EingabeZaehler[9], qint16(6));
}

void AnsichtN1Test::keysMoveAsTold_data() {
    QTest::addColumn<QPoint>("Von");
    QTest::addColumn<int>("Welche");
    QTest::addColumn<bool>("Umschalt");
    QTest::addColumn<QPoint>("Nach");
    QTest::newRow("up") << QPoint(3, 5) << int(Qt::Key_Up) << false << QPoint(2, 5);
    QTest::newRow("up stops below the headers") << QPoint(2, 5) << int(Qt::Key_Up) << false << QPoint(2, 5);
    QTest::newRow("down") << QPoint(2, 5) << int(Qt::Key_Down) << false << QPoint(3, 5);
    QTest::newRow("down into the entry row") << QPoint(3, 5) << int(Qt::Key_Down) << false << QPoint(4, 0);
    QTest::newRow("down stops") << QPoint(4, 0) << int(Qt::Key_Down) << false << QPoint(4, 0);
    QTest::newRow("shift left") << QPoint(2, 5) << int(Qt::Key_Left) << true << QPoint(2, 4);
    QTest::newRow("shift left to the name") << QPoint(2, 1) << int(Qt::Key_Left) << true << QPoint(2, 0);
    QTest::newRow("shift left stops") << QPoint(2, 0) << int(Qt::Key_Left) << true << QPoint(2, 0);
    QTest::newRow("shift right") << QPoint(2, 5) << int(Qt::Key_Right) << true << QPoint(2, 6);
    QTest::newRow("shift right stops") << QPoint(2, 34) << int(Qt::Key_Right) << true << QPoint(2, 34);
    QTest::newRow("plain left is the caret's") << QPoint(2, 5) << int(Qt::Key_Left) << false << QPoint(2, 5);
    QTest::newRow("return") << QPoint(2, 5) << int(Qt::Key_Return) << false << QPoint(3, 5);
    QTest::newRow("return stays on an empty entry row")
        << QPoint(4, 0) << int(Qt::Key_Return) << false << QPoint(4, 0);
}

void AnsichtN1Test::keysMoveAsTold() {
    QFETCH(QPoint, Von);
    QFETCH(int, Welche);
    QFETCH(bool, Umschalt);
    MatheZeigen(*this);
    Klicken(Von.x(), Von.y());
    Taste(static_cast<Qt::Key>(Welche), Umschalt ? Qt::ShiftModifier : Qt::NoModifier);
    QTEST(Ort(), "Nach");
    QVERIFY(Feld->isVisible());
    QCOMPARE(Feld->geometry(), Tabelle->CellRect(Tabelle->Row(), Tabelle->Col()));
}

void AnsichtN1Test::movedCellIsSelectedWhole() {
    MatheZeigen(*this);
    Klicken(2, 1);
    Taste(Qt::Key_Down);
    QCOMPARE(Feld->selectedText(), QStringLiteral("2"));
    QTest::keyClicks(Feld, QStringLiteral("6"));
    QCOMPARE(Feld->text(), QStringLiteral("6"));
}

void AnsichtN1Test::headerIsNeverEntered() {
    MatheZeigen(*this);
    Klicken(1, 3);
    QCOMPARE(Tabelle->Row(), 2);
    Klicken(0, 12);
    QCOMPARE(Tabelle->Row(), 2);
    QCOMPARE(Zelle(0, 12), QStringLiteral("Kurz 3"));
}

void AnsichtN1Test::clickOnANameEntersIt() {
    MatheZeigen(*this);
    Klicken(3, 0);
    QCOMPARE(Ort(), QPoint(3, 0));
    QCOMPARE(Feld->text(), QStringLiteral("Zech Tom"));
}

void AnsichtN1Test::clickOnTheEntryRowGoesToTheName() {
    MatheZeigen(*this);
    Klicken(4, 12);
    QCOMPARE(Ort(), QPoint(4, 0));
    QVERIFY(Feld->isVisible());
}

void AnsichtN1Test::hintsFollowTheCell() {
    MatheZeigen(*this);
    Klicken(2, 1);
    QCOMPARE(Hinweis, HinweisZelle);
    Klicken(2, 31);
    QCOMPARE(Hinweis, HinweisDurchschnitt);
    Klicken(2, 34);
    QCOMPARE(Hinweis, HinweisZeugnis);
    Klicken(4, 0);
    QCOMPARE(Hinweis, HinweisSchueler);
    Teil<Kombinationsfeld>("cbN1KlasseFach")->setFocus();
    QCOMPARE(Hinweis, QStringLiteral("Zur Aufnahme eines neuen Fachs hier die Klasse und den Fachnamen "
                                     "eingeben und Return drücken!"));
}

void AnsichtN1Test::enteringACellSetsStudentAndTest() {
    MatheZeigen(*this);
    Passbilder = 0;
    Klicken(3, 12);
    QCOMPARE(AktSchuelerID, 10000);
    QCOMPARE(AktProbe, 11);
    QCOMPARE(Passbilder, 1);
    Klicken(2, 25);
    QCOMPARE(AktSchuelerID, 10003);
    QCOMPARE(AktProbe, 11);
    Klicken(4, 0);
    QCOMPARE(AktSchuelerID, 0);
}

void AnsichtN1Test::deleteButtonFollowsTheCell() {
    MatheZeigen(*this);
    QVERIFY(!Knopf("btN1SchuelerLoeschen")->isEnabled());
    Klicken(2, 1);
    QVERIFY(Knopf("btN1SchuelerLoeschen")->isEnabled());
    Klicken(4, 0);
    QVERIFY(!Knopf("btN1SchuelerLoeschen")->isEnabled());
    QVERIFY(Knopf("btN1FachLoeschen")->isEnabled());
}

void AnsichtN1Test::takeoverRoundsAndOverwrites() {
    AktFachID = 50001;
    N1Zeigen(*this);
    Datenbank.Noten[3].N[8] = QStringLiteral("4"); // Zech: 1 and 4 are 2,5 in the year
    Datenbank.Noten[4].N[1] = QString();           // Huber has no grades
    Datenbank.Noten[4].Gesamt2 = QStringLiteral("6");
    Ansicht->Fuellen();
    QCOMPARE(Namen(), QStringLiteral("Schüler,,Bauer Anna,Huber Max,Zech Tom,"));
    Klicken(2, 34);
    Welt.Boxen.ErwarteFrage(Frage, Antwort::Ja);
    QTest::mouseDClick(Feld, Qt::LeftButton);
    QCOMPARE(Zelle(4, 33), QStringLiteral("2,5"));
    QCOMPARE(Zelle(4, 34), QStringLiteral("3"));
    QCOMPARE(Zelle(3, 34), QString());
    QCOMPARE(Zelle(2, 34), QStringLiteral("4"));
    QCOMPARE(Datenbank.Noten[3].Gesamt2, QStringLiteral("3"));
    QCOMPARE(Datenbank.Noten[4].Gesamt2, QString());
    QCOMPARE(Datenbank.Noten[5].Gesamt2, QStringLiteral("4"));
    QCOMPARE(Datenbank.Noten[3].Gesamt1, QString());
    QCOMPARE(Feld->text(), QStringLiteral("4"));
    QVERIFY(DatenGeaendert);
}

void AnsichtN1Test::takeoverAsksFirst() {
    MatheZeigen(*this);
    Klicken(3, 32);
    Welt.Boxen.ErwarteFrage(Frage, Antwort::Nein);
    QTest::mouseDClick(Feld, Qt::LeftButton);
    QCOMPARE(Zelle(3, 32), QStringLiteral("1"));
    QVERIFY(!DatenGeaendert);
    // Elsewhere a double click asks nothing.
    Klicken(3, 31);
    QTest::mouseDClick(Feld, Qt::LeftButton);
    Klicken(3, 5);
    QTest::mouseDClick(Feld, Qt::LeftButton);
}

void AnsichtN1Test::newStudentThroughTheEntryRow() {
    MatheZeigen(*this);
    Klicken(4, 0);
    Tippen("Neu Nina");
    QString Klasse;
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler2"), [&Klasse](QDialog& Dialog) {
        Klasse = Dialog.findChild<QLabel*>(QStringLiteral("lbKlasse"))->text();
        QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
    });
    Taste(Qt::Key_Return);
    QCOMPARE(Klasse, QStringLiteral("3b"));
    QCOMPARE(Namen(), QStringLiteral("Schüler,,Bauer Anna,Neu Nina,Zech Tom,"));
    QCOMPARE(Datenbank.AnzSchueler, qint16(5));
    // The next student can be typed at once.
    QCOMPARE(Ort(), QPoint(5, 0));
    QVERIFY(Feld->isVisible());
    QCOMPARE(Feld->text(), QString());
}

void AnsichtN1Test::leavingTheEntryRowTakesTheStudentOnce_data() {
    QTest::addColumn<bool>("InDieListe");
    QTest::newRow("to another cell") << true;
    QTest::newRow("to the combo") << false;
}

void AnsichtN1Test::leavingTheEntryRowTakesTheStudentOnce() {
    QFETCH(const bool, InDieListe);
    MatheZeigen(*this);
    Klicken(4, 0);
    Tippen("Neu Nina");
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler2"), [](QDialog& Dialog) { Dialog.close(); });
    if (InDieListe)
        Klicken(2, 21);
    else
        QTest::mouseClick(Teil<Kombinationsfeld>("cbN1KlasseFach")->lineEdit(), Qt::LeftButton);
    QCOMPARE(Datenbank.AnzSchueler, qint16(5));
    QCOMPARE(Namen(), QStringLiteral("Schüler,,Bauer Anna,Neu Nina,Zech Tom,"));
    if (InDieListe)
        QCOMPARE(Ort(), QPoint(2, 21));
    Druecken("btN1NeuerSchueler");
    QCOMPARE(Datenbank.AnzSchueler, qint16(5));
    QCOMPARE(Feld->text(), QString());
}

void AnsichtN1Test::threeSecondsOnTheEntryRowAskForTheSubjects() {
    MatheZeigen(*this);
    Klicken(4, 0);
    Tippen("Neu Nina");
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler2"), [](QDialog& Dialog) {
        for (int i = 0; i < 8; ++i)
            EingabezaehlerTick(); // asks only once
        Dialog.close();
    });
    for (int i = 0; i < 8; ++i)
        EingabezaehlerTick();
    QCOMPARE(Datenbank.AnzSchueler, qint16(5));
    QCOMPARE(Datenbank.Schueler[4].Name, QStringLiteral("Neu Nina"));
}

void AnsichtN1Test::mergedSubjectAsksForTheClass() {
    AktFachID = 50001;
    N1Zeigen(*this);
    QStringList Klassen;
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler11"), [&Klassen](QDialog& Dialog) {
        auto* Wahl = Dialog.findChild<QComboBox*>(QStringLiteral("cbKlasse"));
        for (int i = 0; i < Wahl->count(); ++i)
            Klassen.append(Wahl->itemText(i));
        QTest::keyClicks(Dialog.findChild<QLineEdit*>(QStringLiteral("txtSchuelername")),
                         QStringLiteral("Neu Nina"));
        QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
    });
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler2"), [](QDialog& Dialog) { Dialog.close(); });
    Klicken(5, 0);
    QCOMPARE(Klassen, QStringList({QStringLiteral("3c"), QStringLiteral("3b")}));
    QVERIFY(Namen().contains(QStringLiteral("Neu Nina")));
    QCOMPARE(Tabelle->Row(), Tabelle->Rows() - 2);
}

void AnsichtN1Test::mergedSubjectCancelledGoesOneRowUp() {
    AktFachID = 50001;
    N1Zeigen(*this);
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler11"), [](QDialog& Dialog) { Dialog.reject(); });
    Klicken(5, 3);
    QCOMPARE(Ort(), QPoint(4, 0));
    QCOMPARE(Datenbank.AnzSchueler, qint16(4));
}

void AnsichtN1Test::newStudentButton() {
    MatheZeigen(*this);
    Druecken("btN1NeuerSchueler");
    QCOMPARE(Ort(), QPoint(4, 0));
    QVERIFY(Feld->isVisible());
    Taste(Qt::Key_Escape);
    Druecken("btN1NeuerSchueler");
    QVERIFY(Feld->isVisible());
}

void AnsichtN1Test::newSubjectButtonSelectsIt() {
    MatheZeigen(*this);
    Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [](QDialog& Dialog) {
        QTest::keyClicks(Dialog.findChild<QLineEdit*>(QStringLiteral("txtKlasse")), QStringLiteral("3b"));
        QTest::keyClicks(Dialog.findChild<QLineEdit*>(QStringLiteral("txtFach")), QStringLiteral("Kunst"));
        QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("btEnde")), Qt::LeftButton);
    });
    Druecken("btN1NeuesFach");
    QCOMPARE(Teil<Kombinationsfeld>("cbN1KlasseFach")->currentText(), QStringLiteral("3b Kunst"));
    QCOMPARE(Namen(), QStringLiteral("Schüler,,adam Eva,Bauer Anna,Zech Tom,"));
}

void AnsichtN1Test::typedSubjectOpensTheWizard() {
    MatheZeigen(*this);
    QStringList Vorgaben;
    Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [&Vorgaben](QDialog& Dialog) {
        for (const char* Name : {"txtKlasse", "txtFach"})
            Vorgaben.append(Dialog.findChild<QLineEdit*>(QString::fromLatin1(Name))->text());
        Dialog.reject();
    });
    auto* Faecher = Teil<Kombinationsfeld>("cbN1KlasseFach");
    Faecher->setFocus();
    Faecher->lineEdit()->selectAll();
    QTest::keyClicks(Faecher, QStringLiteral("4a Sport und Spiel"));
    Taste(Qt::Key_Return);
    QCOMPARE(Vorgaben, QStringList({QStringLiteral("4a"), QStringLiteral("Sport und Spiel")}));
    QCOMPARE(Faecher->currentText(), QStringLiteral("3b Mathe"));
}

void AnsichtN1Test::deleteSubject() {
    MatheZeigen(*this);
    Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie das Fach 3b Mathe wirklich löschen?"), Antwort::Ja);
    Druecken("btN1FachLoeschen");
    QCOMPARE(FachIndex(50000), qint16(-1));
    QCOMPARE(Teil<Kombinationsfeld>("cbN1KlasseFach")->count(), 2);
    QCOMPARE(Teil<Kombinationsfeld>("cbN1KlasseFach")->currentIndex(), 0);
}

void AnsichtN1Test::deleteStudentEverywhere() {
    MatheZeigen(*this);
    Klicken(3, 4);
    Welt.Boxen.ErwarteFrage(QStringLiteral("Soll der Schüler wirklich gelöscht werden?"), Antwort::Ja);
    Druecken("btN1SchuelerLoeschen");
    QCOMPARE(SchuelerIndex(10000), qint16(-1));
    QCOMPARE(Namen(), QStringLiteral("Schüler,,Bauer Anna,"));
    QVERIFY(!Knopf("btN1SchuelerLoeschen")->isEnabled());
}

void AnsichtN1Test::halfYearBoundariesChangeColoursAndAverages() {
    MatheZeigen(*this);
    Klicken(3, 31);
    const QString Vorher = Feld->text();
    Schritte->Erwarte(QStringLiteral("dlgHJGrenzen"), [](QDialog& Dialog) {
        auto* Grenze = Dialog.findChild<QLineEdit*>(QStringLiteral("txtGrenzeP"));
        Grenze->selectAll();
        QTest::keyClicks(Grenze, QStringLiteral("2"));
        QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("btOK")), Qt::LeftButton);
    });
    Druecken("btN1HJGrenzenFestlegen");
    QCOMPARE(Zelle(1, 2), QStringLiteral(" 2.Hj"));
    QCOMPARE(Tabelle->CellBackColor(3, 2), QColor(221, 255, 221));
    QCOMPARE(Zelle(3, 31), QStringLiteral("3,0")); // (2 + 4 + 0.5 * 3) / 2.5
    QCOMPARE(Zelle(3, 33), QStringLiteral("3,6"));
    QVERIFY(Vorher != QStringLiteral("3,0"));
    QCOMPARE(Feld->text(), QStringLiteral("3,0")); // the box over the average
}

void AnsichtN1Test::aClassWithoutALevelHasNoNamesOfTests() {
    Zeigen(
        QStringLiteral("Klasse ab\nFach 50000 ab Kunst\nSchueler 10000 ab Zech Tom\nNote 10000 50000 N1=2"),
        "tblN1Noten", "txtN1Eingabe");
    QCOMPARE(Zelle(0, 1), QString());
    QCOMPARE(Zelle(0, 11), QString());
    QCOMPARE(Zelle(0, 21), QStringLiteral("Mündlich"));
}

void AnsichtN1Test::aClassFieldThatCannotBeReadLeavesNoBoxBehind() {
    Zeigen(QStringLiteral(
               "Fach 50000 3Fortgeschrittene Chor\nSchueler 10000 3b Zech Tom\nNote 10000 50000 N1=2"),
           "tblN1Noten", "txtN1Eingabe");
    Klicken(2, 1);
    QVERIFY(Feld->isVisible());
    Welt.Boxen.ErwarteMeldung(QString());
    Klicken(3, 0);
    QVERIFY(Welt.Boxen.AllesGefragt());
    QVERIFY(!Feld->isVisible());
}

void AnsichtN1Test::refillHidesTheBox() {
    MatheZeigen(*this);
    Klicken(2, 21);
    Tippen("1");
    Ansicht->Fuellen();
    QVERIFY(!Feld->isVisible());
    QCOMPARE(EingabeZaehler[9], qint16(0));
    QCOMPARE(Ort(), QPoint(2, 0));
    QVERIFY(GridEreignisseAktiv);
}

void AnsichtN1Test::everythingHasANameForScreenReaders() {
    MatheZeigen(*this);
    Klicken(2, 21);
    for (QWidget* Eines : Fenster->findChildren<QWidget*>()) {
        if (Eines->focusPolicy() == Qt::NoFocus || !Eines->isVisible() || Eines->focusProxy() ||
            Eines->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        const QAccessibleInterface* Lesbar = QAccessible::queryAccessibleInterface(Eines);
        QVERIFY2(Lesbar && !Lesbar->text(QAccessible::Name).isEmpty(),
                 qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(Eines->metaObject()->className()),
                                                        Eines->objectName())));
    }
}

class AnsichtN2Test : public Notenansicht<AnsichtN2> {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Anfangen(); }
    void cleanup() { Enden(); }

    void listShowsSubjectsInReverseRecordOrder();
    void selectionIsTakenUp();
    void choosingAClassFillsTheNames();
    void headerFollowsTheFirstRowColoursEachRow();
    void averagesFollowEachSubject();
    void typedGradeAndHandSetColour();
    void delayedCommitUsesItsOwnSlot();
    void renamedSubjectIsRenamedInTheRecord();
    void enteringACellSetsSubjectAndTest();
    void studentWithoutSubjectsShowsTheEntryRow();
    void takeoverGoesOverAllSubjects();
    void newSubjectThroughTheEntryRow();
    void cancelledNewSubjectAsksNoSecondTimeOnEsc();
    void newSubjectButton();
    void typedNameMakesAStudent();
    void typedClassMakesAClass();
    void typedNameBelongsToTheShownClass();
    void withoutAClassTheListIsEmptied();
    void newStudentButtonGoesToTheName();
    void newStudentButtonSelectsByTheLengthOfTheOtherClass();
    void newClassButtonSelectsTheText();
    void deleteButtons();
    void noToTheClassKeepsTheCell();
    void emptyBookDisables();
    void classWithoutStudents();
    void entryRowHint();
    void comboHints();
};

namespace {

void N2Zeigen(AnsichtN2Test& Test, const QString& Zeilen = Buch) {
    Test.Zeigen(Zeilen, "tblN2Noten", "txtN2Eingabe");
}

/// Zech Tom: rows 2 Deutsch, 3 Religion, 4 Mathe, 5 entry row.
void TomZeigen(AnsichtN2Test& Test) {
    AktSchuelerID = 10000;
    N2Zeigen(Test);
}

} // namespace

void AnsichtN2Test::listShowsSubjectsInReverseRecordOrder() {
    TomZeigen(*this);
    QCOMPARE(Namen(), QStringLiteral("Fach,,Deutsch,Religion,Mathe,"));
    QCOMPARE(Tabelle->RowData(3), 50001);
    QCOMPARE(Zelle(4, 1), QStringLiteral("2"));
    QCOMPARE(Zelle(0, 1), QStringLiteral("Probe 3"));
    QCOMPARE(Tabelle->CellForeColor(4, 2), QColor(255, 0, 0));
}

void AnsichtN2Test::selectionIsTakenUp() {
    AktSchuelerID = 10002;
    N2Zeigen(*this);
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Klasse")->currentText(), QStringLiteral("3c"));
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Name")->currentText(), QStringLiteral("Huber Max"));
    QCOMPARE(AktKlasse, QStringLiteral("3c"));
    AktSchuelerID = 0;
    AktKlasse = QStringLiteral("3b");
    Ansicht->Fuellen();
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Klasse")->currentText(), QStringLiteral("3b"));
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Name")->currentText(), QStringLiteral("adam Eva"));
    QCOMPARE(AktSchuelerID, 10001);
}

void AnsichtN2Test::choosingAClassFillsTheNames() {
    TomZeigen(*this);
    Passbilder = 0;
    Teil<Kombinationsfeld>("cbN2Klasse")->setCurrentIndex(1);
    QCOMPARE(AktKlasse, QStringLiteral("3c"));
    QCOMPARE(AktSchuelerID, 10002);
    QVERIFY(Passbilder > 0);
    QCOMPARE(Namen(), QStringLiteral("Fach,,Religion,"));
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Name")->itemData(0).toInt(), 10002);
}

void AnsichtN2Test::headerFollowsTheFirstRowColoursEachRow() {
    TomZeigen(*this);
    Datenbank.Faecher[1].GrenzeP = QStringLiteral("9"); // Religion
    Datenbank.Faecher[2].GrenzeP = QStringLiteral("3"); // Deutsch, the first row
    Ansicht->Fuellen();
    QCOMPARE(Zelle(1, 2), QStringLiteral(" 1.Hj"));
    QCOMPARE(Zelle(1, 3), QStringLiteral(" 2.Hj"));
    const QColor Blau(221, 239, 255);
    const QColor Gruen(221, 255, 221);
    QCOMPARE(Tabelle->CellBackColor(2, 3), Gruen);
    QCOMPARE(Tabelle->CellBackColor(3, 3), Blau);
    QCOMPARE(Tabelle->CellBackColor(3, 8), Blau);
    QCOMPARE(Tabelle->CellBackColor(3, 9), Gruen);
    QCOMPARE(Tabelle->CellBackColor(4, 6), Gruen);
    QCOMPARE(Tabelle->CellBackColor(5, 0), QColor(238, 238, 238));
}

void AnsichtN2Test::averagesFollowEachSubject() {
    TomZeigen(*this);
    QCOMPARE(Zelle(3, 31), QStringLiteral("1,0"));
    QCOMPARE(Zelle(3, 33), QStringLiteral("3,0"));
    Datenbank.Faecher[1].GrenzeP = QStringLiteral("9");
    Ansicht->Fuellen();
    QCOMPARE(Zelle(3, 31), QStringLiteral("3,0"));
}

void AnsichtN2Test::typedGradeAndHandSetColour() {
    TomZeigen(*this);
    Klicken(4, 1);
    Tippen("6");
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Noten[0].N[1], QStringLiteral("6"));
    QCOMPARE(Datenbank.Noten[0].P[1], QStringLiteral("-33,5"));
    QCOMPARE(Tabelle->CellForeColor(4, 1), QColor(255, 0, 0));
    QCOMPARE(Ort(), QPoint(5, 0));
}

void AnsichtN2Test::delayedCommitUsesItsOwnSlot() {
    TomZeigen(*this);
    Klicken(2, 25);
    Tippen("2");
    QCOMPARE(EingabeZaehler[10], qint16(6));
    QCOMPARE(EingabeZaehler[9], qint16(0));
    for (int i = 0; i < 6; ++i)
        EingabezaehlerTick();
    QCOMPARE(Datenbank.Noten[6].N[25], QStringLiteral("2"));
}

void AnsichtN2Test::renamedSubjectIsRenamedInTheRecord() {
    TomZeigen(*this);
    Klicken(3, 0);
    Tippen("Ethik");
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Faecher[1].Name, QStringLiteral("Ethik"));
    Teil<Kombinationsfeld>("cbN2Klasse")->setCurrentIndex(1);
    QCOMPARE(Namen(), QStringLiteral("Fach,,Ethik,"));
}

void AnsichtN2Test::enteringACellSetsSubjectAndTest() {
    TomZeigen(*this);
    Klicken(3, 5);
    QCOMPARE(AktFachID, 50001);
    QCOMPARE(AktProbe, 4);
    QCOMPARE(AktSchuelerID, 10000);
    QVERIFY(Knopf("btN2FachLoeschen")->isEnabled());
    Klicken(5, 5);
    QCOMPARE(Ort(), QPoint(5, 0));
    QVERIFY(!Knopf("btN2FachLoeschen")->isEnabled());
    QCOMPARE(AktSchuelerID, 10000);
}

void AnsichtN2Test::studentWithoutSubjectsShowsTheEntryRow() {
    AktSchuelerID = 10001;
    N2Zeigen(*this);
    QCOMPARE(Namen(), QStringLiteral("Fach,,"));
    QVERIFY(Tabelle->isEnabled());
}

void AnsichtN2Test::takeoverGoesOverAllSubjects() {
    TomZeigen(*this);
    Klicken(2, 32);
    Welt.Boxen.ErwarteFrage(Frage, Antwort::Ja);
    QTest::mouseDClick(Feld, Qt::LeftButton);
    QCOMPARE(Datenbank.Noten[6].Gesamt1, QStringLiteral("3"));
    QCOMPARE(Datenbank.Noten[3].Gesamt1, QStringLiteral("1"));
    QCOMPARE(Datenbank.Noten[0].Gesamt1, QStringLiteral("4"));
    QCOMPARE(Datenbank.Noten[0].Gesamt2, QString());
}

void AnsichtN2Test::newSubjectThroughTheEntryRow() {
    TomZeigen(*this);
    Klicken(5, 0);
    Tippen("Kunst");
    QStringList Vorgaben;
    Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [&Vorgaben](QDialog& Dialog) {
        for (const char* Name : {"txtKlasse", "txtFach"})
            Vorgaben.append(Dialog.findChild<QLineEdit*>(QString::fromLatin1(Name))->text());
        QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("btEnde")), Qt::LeftButton);
    });
    Taste(Qt::Key_Return);
    QCOMPARE(Vorgaben, QStringList({QStringLiteral("3b"), QStringLiteral("Kunst")}));
    QCOMPARE(Namen(), QStringLiteral("Fach,,Kunst,Deutsch,Religion,Mathe,"));
}

void AnsichtN2Test::cancelledNewSubjectAsksNoSecondTimeOnEsc() {
    TomZeigen(*this);
    Klicken(5, 0);
    Tippen("Kunst");
    Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [](QDialog& Dialog) { Dialog.reject(); });
    Taste(Qt::Key_Return);
    QCOMPARE(Ort(), QPoint(5, 0));
    QCOMPARE(Feld->text(), QStringLiteral("Kunst"));
    QTest::keyClick(Feld, Qt::Key_Escape);
    Klicken(3, 4);
    QCOMPARE(Ort(), QPoint(3, 4));
    QCOMPARE(Datenbank.AnzFaecher, qint16(3));
}

void AnsichtN2Test::newSubjectButton() {
    TomZeigen(*this);
    Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [](QDialog& Dialog) { Dialog.reject(); });
    Druecken("btN2NeuesFach");
    QCOMPARE(Namen(), QStringLiteral("Fach,,Deutsch,Religion,Mathe,"));
}

void AnsichtN2Test::typedNameMakesAStudent() {
    TomZeigen(*this);
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler2"), [](QDialog& Dialog) { Dialog.close(); });
    auto* Namensfeld = Teil<Kombinationsfeld>("cbN2Name");
    Namensfeld->setFocus();
    Namensfeld->lineEdit()->selectAll();
    QTest::keyClicks(Namensfeld, QStringLiteral("Neu Nina"));
    Taste(Qt::Key_Return);
    QCOMPARE(Namensfeld->currentText(), QStringLiteral("Neu Nina"));
    QVERIFY(Namensfeld->currentIndex() >= 0);
    QCOMPARE(Namen(), QStringLiteral("Fach,,Mathe,Religion,Deutsch,"));
    QCOMPARE(Datenbank.Schueler[4].Klasse, QStringLiteral("3b"));
}

void AnsichtN2Test::typedClassMakesAClass() {
    TomZeigen(*this);
    AktSchuelerID = 0;
    Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie eine neue Klasse mit dem Namen 4a erstellen?"),
                            Antwort::Ja);
    auto* Klassen = Teil<Kombinationsfeld>("cbN2Klasse");
    Klassen->setFocus();
    Klassen->lineEdit()->selectAll();
    QTest::keyClicks(Klassen, QStringLiteral("4a"));
    Taste(Qt::Key_Return);
    QCOMPARE(Klassen->currentText(), QStringLiteral("4a"));
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Name")->count(), 0);
    QVERIFY(!Tabelle->isEnabled());
}

/// "abc" is no class and stays in the combo, while the students of 3b are still listed.
void AnsichtN2Test::typedNameBelongsToTheShownClass() {
    TomZeigen(*this);
    Teil<Kombinationsfeld>("cbN2Klasse")->setEditText(QStringLiteral("abc"));
    Schritte->Erwarte(QStringLiteral("dlgNeuerSchueler2"), [](QDialog& Dialog) { Dialog.close(); });
    auto* Namensfeld = Teil<Kombinationsfeld>("cbN2Name");
    Namensfeld->setFocus();
    Namensfeld->lineEdit()->selectAll();
    QTest::keyClicks(Namensfeld, QStringLiteral("Neu Nina"));
    Taste(Qt::Key_Return);
    QCOMPARE(Datenbank.Schueler[4].Klasse, QStringLiteral("3b"));
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Klasse")->currentText(), QStringLiteral("3b"));
    QCOMPARE(Namensfeld->currentText(), QStringLiteral("Neu Nina"));
    QCOMPARE(Namensfeld->AktDatum(), Datenbank.Schueler[4].ID);
}

/// Rows of a student who is no longer chosen would take no grade.
void AnsichtN2Test::withoutAClassTheListIsEmptied() {
    TomZeigen(*this);
    Teil<Kombinationsfeld>("cbN2Klasse")->setEditText(QStringLiteral("abc"));
    Welt.Boxen.ErwarteFrage(QStringLiteral("Soll der Schüler wirklich gelöscht werden?"), Antwort::Ja);
    Druecken("btN2SchuelerLoeschen");
    QCOMPARE(Namen(), QStringLiteral("Fach,,"));
    QVERIFY(!Tabelle->isEnabled());
}

void AnsichtN2Test::newStudentButtonGoesToTheName() {
    TomZeigen(*this);
    Druecken("btN2NeuerSchueler");
    QVERIFY(Teil<Kombinationsfeld>("cbN2Name")->hasFocus());
}

void AnsichtN2Test::newStudentButtonSelectsByTheLengthOfTheOtherClass() {
    TomZeigen(*this);
    auto* KlasseS = new QComboBox(Fenster.get());
    KlasseS->setObjectName(QStringLiteral("cbSKlasse"));
    KlasseS->addItem(QStringLiteral("10a"));
    Druecken("btN2NeuerSchueler");
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Name")->lineEdit()->selectedText(), QStringLiteral("Zec"));
}

void AnsichtN2Test::newClassButtonSelectsTheText() {
    TomZeigen(*this);
    Druecken("btN2NeueKlasse");
    QVERIFY(Teil<Kombinationsfeld>("cbN2Klasse")->hasFocus());
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Klasse")->lineEdit()->selectedText(), QStringLiteral("3b"));
}

void AnsichtN2Test::deleteButtons() {
    TomZeigen(*this);
    Klicken(3, 1);
    Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie das Fach Religion wirklich löschen?"), Antwort::Ja);
    Druecken("btN2FachLoeschen");
    QCOMPARE(Namen(), QStringLiteral("Fach,,Deutsch,Mathe,"));
    Welt.Boxen.ErwarteFrage(QStringLiteral("Soll der Schüler wirklich gelöscht werden?"), Antwort::Ja);
    Druecken("btN2SchuelerLoeschen");
    QCOMPARE(SchuelerIndex(10000), qint16(-1));
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Name")->currentText(), QStringLiteral("adam Eva"));
    Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie die Klasse 3b wirklich löschen?"), Antwort::Ja);
    Druecken("btN2KlasseLoeschen");
    QCOMPARE(Teil<Kombinationsfeld>("cbN2Klasse")->currentText(), QStringLiteral("3c"));
}

void AnsichtN2Test::noToTheClassKeepsTheCell() {
    TomZeigen(*this);
    Klicken(3, 1);
    Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie die Klasse 3b wirklich löschen?"), Antwort::Nein);
    Druecken("btN2KlasseLoeschen");
    QCOMPARE(Tabelle->Row(), 3);
    QVERIFY(Knopf("btN2FachLoeschen")->isEnabled());
}

void AnsichtN2Test::emptyBookDisables() {
    N2Zeigen(*this, QString());
    QVERIFY(!Tabelle->isEnabled());
    QVERIFY(!Teil<Kombinationsfeld>("cbN2Name")->isEnabled());
    for (const char* Name :
         {"btN2KlasseLoeschen", "btN2NeuerSchueler", "btN2SchuelerLoeschen", "btN2FachLoeschen"})
        QVERIFY2(!Knopf(Name)->isEnabled(), Name);
}

void AnsichtN2Test::classWithoutStudents() {
    N2Zeigen(*this, QStringLiteral("Klasse 3b"));
    QVERIFY(Teil<Kombinationsfeld>("cbN2Name")->isEnabled());
    QVERIFY(!Tabelle->isEnabled());
    QVERIFY(!Knopf("btN2SchuelerLoeschen")->isEnabled());
    QVERIFY(Knopf("btN2NeuerSchueler")->isEnabled());
}

void AnsichtN2Test::entryRowHint() {
    TomZeigen(*this);
    Klicken(5, 0);
    QCOMPARE(Hinweis, HinweisFach);
}

void AnsichtN2Test::comboHints() {
    TomZeigen(*this);
    Teil<Kombinationsfeld>("cbN2Klasse")->setFocus();
    QCOMPARE(Hinweis, QStringLiteral("Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung eingeben "
                                     "und Return drücken!"));
    Teil<Kombinationsfeld>("cbN2Name")->setFocus();
    QCOMPARE(Hinweis, QStringLiteral("Zur Aufnahme eines neuen Schülers hier den Namen (Nachname Vorname) "
                                     "eingeben und Return drücken!"));
}

TESTKLASSE(AnsichtN1Test)
TESTKLASSE(AnsichtN2Test)
#include "tst_Notenlisten.moc"
