#include "Hauptfenster.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "controls/Ansicht.h"
#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "controls/Textfeld.h"
#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "frame/Zwischenablage.h"
#include "grading/Bildfeld.h"

#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

class TestZwischenablage : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

    static QClipboard& Ablage() { return *QGuiApplication::clipboard(); }

    /// A new control on the view on top, with the focus.
    template <class Art>
    Art* Neues() {
        auto* Feld = new Art(Fenster.Kind<Ansicht>("picAnsicht_1"));
        Feld->setFocusPolicy(Qt::StrongFocus);
        Feld->show();
        Feld->setFocus();
        return Feld;
    }

    /// The box over the label of the place for a new learning area, all selected.
    Textfeld* BeschriftungOeffnen() {
        Fenster.Reiter()->setCurrentIndex(4);
        auto* Baum = Fenster.Kind<QTreeWidget>("tvBFloskel");
        Baum->setFocus();
        Baum->setCurrentItem(Baum->topLevelItem(AnzLernbereiche));
        QTest::keyClick(Baum, Qt::Key_F2);
        auto* Feld = Baum->viewport()->findChild<Textfeld*>();
        Feld->selectAll();
        return Feld;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        Fenster.Starten();
        Ablage().setText(QStringLiteral("alt"));
    }
    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void KopierenNimmtDenMarkiertenTextDesTextfelds() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("Anna Bauer"));
        Feld->setSelection(0, 4);
        Fenster.Aktion("mnuEditCopy")->trigger();
        QCOMPARE(Ablage().text(), QStringLiteral("Anna"));
        QCOMPARE(Feld->text(), QStringLiteral("Anna Bauer"));
        QVERIFY(Feld->hasFocus());
    }

    void KopierenOhneMarkierungLeertDieAblage() {
        Neues<Textfeld>()->setText(QStringLiteral("Anna"));
        Fenster.Aktion("mnuEditCopy")->trigger();
        QCOMPARE(Ablage().text(), QString());
    }

    void KopierenAusEinemAnderenElementLeertDieAblage() {
        Fenster.Reiter()->setFocus();
        Fenster.Aktion("mnuEditCopy")->trigger();
        QCOMPARE(Ablage().text(), QString());
    }

    void AusschneidenNimmtDenMarkiertenTextHeraus() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("Anna Bauer"));
        Feld->setSelection(4, 6);
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Ablage().text(), QStringLiteral(" Bauer"));
        QCOMPARE(Feld->text(), QStringLiteral("Anna"));
    }

    void EinfuegenErsetztDieMarkierungUndFeuertWieTippen() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("Anna"));
        Feld->setSelection(1, 2);
        const QSignalSpy Geaendert(Feld, &QLineEdit::textEdited);
        Fenster.Aktion("mnuEditPaste")->trigger();
        QCOMPARE(Feld->text(), QStringLiteral("Aalta"));
        QCOMPARE(Geaendert.count(), 1);
    }

    void EinfuegenMachtAusTabulatorenLeerzeichen() {
        auto* Feld = Neues<Textfeld>();
        Ablage().setText(QStringLiteral("a\tb\u0219"));
        Fenster.Aktion("mnuEditPaste")->trigger();
        QCOMPARE(Feld->text(), QStringLiteral("a b"));
    }

    void EinFeldDasNurZeigtNimmtNichts() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("3,20"));
        Feld->setReadOnly(true);
        Feld->selectAll();
        Fenster.Aktion("mnuEditPaste")->trigger();
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Feld->text(), QStringLiteral("3,20"));
        QCOMPARE(Ablage().text(), QStringLiteral("3,20"));
    }

    void AusschneidenLeertEineTeilnahmeUndDerAbschlussSpeichertEs() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nSchueler 10000 7a Bauer Anna\n"
                                     "Note 10000 50000 Teilnahme=ja\n"));
        Fenster.Reiter()->setCurrentIndex(0);
        Fenster.Kind<Gitter>("tblSSchueler")->setCell(2, 1);
        auto* Feld = Fenster.Kind<EingabeFeld>("txtSEingabe");
        QCOMPARE(Feld->text(), QStringLiteral("ja"));
        Feld->selectAll();
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Feld->text(), QString());
        Fenster->FokusNehmen();
        QCOMPARE(Datenbank.Noten[NotenIndex(10000, 50000)].Teilnahme, QString());
        QVERIFY(DatenGeaendert);
        DatenGeaendert = false;
    }

    void DieTastenTunDasselbeWieDasMenue() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("Anna"));
        QTest::keyClick(Feld, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Ablage().text(), QString());
        Feld->selectAll();
        QTest::keyClick(Feld, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(Ablage().text(), QStringLiteral("Anna"));
        QCOMPARE(Feld->text(), QString());
        QTest::keyClick(Feld, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Feld->text(), QStringLiteral("Anna"));
    }

    void DieKnoepfeDerLeisteLassenDenFokusWoErIst() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("Anna"));
        Feld->selectAll();
        auto* Leiste = Fenster.Kind<QToolBar>("tbToolBar");
        QTest::mouseClick(Leiste->widgetForAction(Fenster.Aktion("Cut")), Qt::LeftButton);
        QCOMPARE(Ablage().text(), QStringLiteral("Anna"));
        QVERIFY(Feld->hasFocus());
    }

    void DasMenueWirktAuchPerTastaturAufDasFeld() {
        auto* Feld = Neues<Textfeld>();
        Feld->setText(QStringLiteral("Anna"));
        Feld->selectAll();
        QTest::keyClick(Feld, Qt::Key_B, Qt::AltModifier);
        QTRY_VERIFY(Fenster.Menue("mnuEdit")->isVisible());
        QTest::keyClick(Fenster.Menue("mnuEdit"), Qt::Key_U);
        QCOMPARE(Ablage().text(), QStringLiteral("Anna"));
        QCOMPARE(Feld->text(), QString());
    }

    void EinMenueSchliesstDieBeschriftungEinesLernbereichsNicht() {
        Textfeld* Feld = BeschriftungOeffnen();
        QTest::keyClick(Feld, Qt::Key_B, Qt::AltModifier);
        QTRY_VERIFY(Fenster.Menue("mnuEdit")->isVisible());
        QTest::keyClick(Fenster.Menue("mnuEdit"), Qt::Key_K);
        QCOMPARE(Ablage().text(), QStringLiteral("**Neuer Lernbereich**"));
        QVERIFY(Feld->hasFocus());
        QTest::keyClick(Feld, Qt::Key_B, Qt::AltModifier);
        QTRY_VERIFY(Fenster.Menue("mnuEdit")->isVisible());
        QTest::keyClick(Fenster.Menue("mnuEdit"), Qt::Key_U);
        QCOMPARE(Feld->text(), QString());
    }

    void EinMenuebefehlUebernimmtDieBeschriftungEinesLernbereichs() {
        Textfeld* Feld = BeschriftungOeffnen();
        QTest::keyClicks(Feld, QStringLiteral("Sport"));
        QTest::keyClick(Feld, Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(Fenster.Menue("mnuView")->isVisible());
        QTest::keyClick(Fenster.Menue("mnuView"), Qt::Key_S);
        QCOMPARE(Lernbereiche[AnzLernbereiche - 1].Name, QStringLiteral("Sport"));
        FormulierungenGeaendert = false;
    }

    void EinMehrzeiligesFeldGehtGenauso() {
        auto* Feld = Neues<QPlainTextEdit>();
        Feld->setPlainText(QStringLiteral("eins\nzwei"));
        Feld->selectAll();
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Ablage().text(), QStringLiteral("eins\nzwei"));
        QCOMPARE(Feld->toPlainText(), QString());
        Fenster.Aktion("mnuEditPaste")->trigger();
        QCOMPARE(Feld->toPlainText(), QStringLiteral("eins\nzwei"));
    }

    void EinKombinationsfeldGibtUndNimmtSeinenGanzenText() {
        auto* Feld = Neues<Kombinationsfeld>();
        Feld->setEditable(true);
        Feld->Hinzufuegen(QStringLiteral("7a"));
        Feld->setListIndex(0);
        QTest::keyClick(Feld, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Ablage().text(), QStringLiteral("7a"));
        Ablage().setText(QStringLiteral("8b"));
        QTest::keyClick(Feld, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Feld->currentText(), QStringLiteral("8b"));
        QCOMPARE(Feld->ListIndex(), -1);
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Ablage().text(), QStringLiteral("8b"));
        QCOMPARE(Feld->currentText(), QString());
    }

    void EinEingefuegterTextGiltBeimVerlassenAlsGetippt() {
        auto* Feld = Neues<Kombinationsfeld>();
        Feld->setEditable(true);
        Feld->Hinzufuegen(QStringLiteral("7a"));
        Feld->setListIndex(0);
        Ablage().setText(QStringLiteral("8b"));
        Fenster.Aktion("mnuEditPaste")->trigger();
        const QSignalSpy Anlegen(Feld, &Kombinationsfeld::Anlegen);
        Fenster->FokusNehmen();
        QCOMPARE(Anlegen.count(), 1);
        QCOMPARE(Anlegen.first().first().toString(), QStringLiteral("8b"));
    }

    void EinBildfeldGibtUndNimmtSeinBild() {
        auto* Feld = Neues<QLabel>();
        QPixmap Bild(3, 4);
        Bild.fill(Qt::red);
        Feld->setPixmap(Bild);
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Ablage().pixmap().size(), QSize(3, 4));
        QVERIFY(Feld->pixmap().isNull());
        Fenster.Aktion("mnuEditPaste")->trigger();
        QCOMPARE(Feld->pixmap().size(), QSize(3, 4));
    }

    void EinAngeklicktesDiagrammGibtSeinBildUndZeigtEinEingefuegtes() {
        auto* Diagramm = Fenster.Kind<Bildfeld>("picNoten");
        QTest::mouseClick(Diagramm, Qt::LeftButton);
        QVERIFY(Diagramm->hasFocus());
        const QImage Gemalt = Diagramm->grab().toImage();
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Ablage().image().convertedTo(Gemalt.format()), Gemalt);
        QCOMPARE(Diagramm->grab().toImage().pixelColor(Diagramm->width() / 2, 20), QColor(Qt::white));
        QPixmap Rot(20, 20);
        Rot.fill(Qt::red);
        Ablage().setPixmap(Rot);
        Fenster.Aktion("mnuEditPaste")->trigger();
        QCOMPARE(Diagramm->grab().toImage().pixelColor(10, 10), QColor(Qt::red));
    }

    void EineListeGibtIhrenEintragUndNimmtEinenNeuen() {
        auto* Feld = Neues<QListWidget>();
        Feld->addItems({QStringLiteral("eins"), QStringLiteral("zwei")});
        Feld->setCurrentRow(1);
        Fenster.Aktion("mnuEditCut")->trigger();
        QCOMPARE(Ablage().text(), QStringLiteral("zwei"));
        QCOMPARE(Feld->count(), 1);
        Fenster.Aktion("mnuEditPaste")->trigger();
        QCOMPARE(Feld->item(1)->text(), QStringLiteral("zwei"));
    }
};

TESTKLASSE(TestZwischenablage)
#include "tst_zwischenablage.moc"
