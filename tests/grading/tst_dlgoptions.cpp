#include "Optionenwelt.h"
#include "common/Testprogramm.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Parameterdatei.h"
#include "grading/Optionen.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabBar>

#include <algorithm>

namespace {

const QString Gewichtsmeldung = QStringLiteral("Der Wert muß zwischen 0 und 3 liegen!");

} // namespace

class TestDlgOptions : public QObject {
    Q_OBJECT
    Optionenwelt O;

    /// The names of what gets the focus by this key, until it is back where it was.
    QStringList Fokusweg(Qt::Key Taste) const {
        QStringList Namen;
        QWidget* const Start = O.Dialog->focusWidget();
        do {
            Namen.append(O.Dialog->focusWidget()->objectName());
            QTest::keyClick(O.Dialog->focusWidget(), Taste);
        } while (O.Dialog->focusWidget() != Start && Namen.size() < 50);
        return Namen;
    }

  private Q_SLOTS:
    void init() { O.Herstellen(); }
    void cleanup() { O.Aufraeumen(); }

    void zeigtDieWerteInKraft() {
        Probenbezeichnung[7] = QStringLiteral("Schulaufgabe");
        ExtemporalenBezeichnung[13] = QStringLiteral("Ex");
        Datenbank.GewichtungE = 2.5F;
        O.Oeffnen();
        QCOMPARE(O.Dialog->objectName(), QStringLiteral("dlgOptions"));
        QCOMPARE(O.Dialog->windowTitle(), QStringLiteral("Optionen"));
        QCOMPARE(O.Box("txtProbenBezeichnung1_6")->text(), QStringLiteral("Schulaufgabe"));
        QCOMPARE(O.Box("txtProbenBezeichnung2_12")->text(), QStringLiteral("Ex"));
        QCOMPARE(O.Box("txtHalbjahreswechsel")->text(), QStringLiteral("24.02."));
        QCOMPARE(O.Box("txtEndjahreswechsel")->text(), QStringLiteral("12.09."));
        QCOMPARE(O.Box("txtGewichtungP")->text(), QStringLiteral("1"));
        QVERIFY(!O.Box("txtGewichtungP")->isEnabled());
        QCOMPARE(O.Box("txtGewichtungE")->text(), QStringLiteral("2,5"));
        QCOMPARE(O.Box("txtGewichtungM")->text(), QStringLiteral("0,5"));
        QCOMPARE(O.Box("txtPunkteabstand")->text(), QStringLiteral("0,5"));
        QVERIFY(O.Box("txtPunkteabstand")->isEnabled());
        QCOMPARE(O.Box("txtNotenabstand")->text(), QStringLiteral("0,3"));
        QVERIFY(!O.Box("txtNotenabstand")->isEnabled());
        QVERIFY(O.Teil<QRadioButton>("obNotensystem_0")->isChecked());
        QVERIFY(O.Teil<QRadioButton>("rbNotenformat_0")->isChecked());
        QVERIFY(O.Teil<QRadioButton>("rbNotenBerechnungsMethode_0")->isChecked());
        QCOMPARE(O.Teil<QTabWidget>("tabOptions")->currentIndex(), 0);
    }

    void fuenfSeitenInDieserReihenfolge() {
        O.Oeffnen();
        const auto* Seiten = O.Teil<QTabWidget>("tabOptions");
        QStringList Titel;
        for (int i = 0; i < Seiten->count(); ++i)
            Titel.append(Seiten->tabText(i));
        QCOMPARE(Titel.join(u'|'), QStringLiteral("Allgemeines|Notenberechnung|Tabellen-Verteilung|"
                                                  "Gauß-Verteilung|Eigene Verteilung"));
    }

    void eineFremdeMethodeWaehltKeine() {
        Datenbank.NotenberechnenMethode = QStringLiteral("7");
        O.Oeffnen();
        for (const char* Name :
             {"rbNotenBerechnungsMethode_0", "rbNotenBerechnungsMethode_1", "rbNotenBerechnungsMethode_2"})
            QVERIFY(!O.Teil<QRadioButton>(Name)->isChecked());
        O.Klick("btOK");
        QCOMPARE(Datenbank.NotenberechnenMethode, QStringLiteral("3"));
    }

    void dasNotenformatGiltSofortUndBleibtBeiAbbrechen() {
        O.Oeffnen();
        O.Klick("rbNotenformat_1");
        QCOMPARE(Notenformat, QStringLiteral("0.00"));
        QCOMPARE(EinstellungLesen(QStringLiteral("Notenformat"), {}), QStringLiteral("0.00"));
        O.Klick("btAbbruch");
        QCOMPARE(Notenformat, QStringLiteral("0.00"));
        O.Oeffnen();
        QVERIFY(O.Teil<QRadioButton>("rbNotenformat_1")->isChecked());
        O.Klick("rbNotenformat_0");
        QCOMPARE(Notenformat, QStringLiteral("0.0"));
    }

    void dasOeffnenSchreibtKeineEinstellung() {
        O.Oeffnen();
        QCOMPARE(EinstellungLesen(QStringLiteral("Notenformat"), QStringLiteral("keine")),
                 QStringLiteral("keine"));
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), QStringLiteral("keine")),
                 QStringLiteral("keine"));
    }

    void einAnderesNotensystemBautAllesNeuAufUndBleibtBeiAbbrechen() {
        O.Oeffnen();
        O.Tippen("txtProbenBezeichnung1_0", QStringLiteral("Getippt"));
        O.Seite(4);
        O.Leiste("ScrollbarE")->setValue(O.Leiste("ScrollbarE")->value() + 1);
        O.Seite(0);
        O.Klick("obNotensystem_1");
        QCOMPARE(int(MaxNote), 5);
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), {}), QStringLiteral("5"));
        QCOMPARE(O.Box("txtProbenBezeichnung1_0")->text(), Probenbezeichnung[1]);
        QCOMPARE(O.Tabelle("tblBLLVVerteilung")->Cols(), 5);
        QCOMPARE(O.Tabelle("tblGaussVerteilung")->Cols(), 6);
        QCOMPARE(O.Tabelle("tblEigeneVerteilung")->Cols(), 5);
        QCOMPARE(O.Zeile(O.Tabelle("tblEigeneVerteilung"), 2), QStringLiteral("[--]|90|75|60|45"));
        O.Klick("btAbbruch");
        QCOMPARE(int(MaxNote), 5);
    }

    void dasselbeNotensystemLaesstGetipptesStehen() {
        O.Oeffnen();
        O.Tippen("txtProbenBezeichnung1_0", QStringLiteral("Getippt"));
        O.Klick("obNotensystem_0");
        QCOMPARE(O.Box("txtProbenBezeichnung1_0")->text(), QStringLiteral("Getippt"));
    }

    void mitDerDrittenMethodeGibtEsKeinMuendlichesGewicht() {
        O.Oeffnen();
        O.Seite(1);
        O.Klick("rbNotenBerechnungsMethode_2");
        QVERIFY(!O.Box("txtGewichtungM")->isVisible());
        QVERIFY(!O.Teil<QLabel>("lbGewichtungM")->isVisible());
        QCOMPARE(O.Teil<QLabel>("lbGewichtungE")->text(),
                 QStringLiteral("Gewichtung der Lernzielkontrollen und mündlichen Noten"));
        O.Klick("rbNotenBerechnungsMethode_1");
        QVERIFY(O.Box("txtGewichtungM")->isVisible());
        QCOMPARE(O.Teil<QLabel>("lbGewichtungE")->text(),
                 QStringLiteral("Gewichtung der Lernzielkontrollen"));
    }

    void einAbstandIstNurMitSeinemHakenFrei() {
        O.Oeffnen();
        O.Seite(1);
        O.Klick("cbGrenznotenBerechnen");
        QVERIFY(!O.Box("txtPunkteabstand")->isEnabled());
        O.Klick("cbGrenznotenBeruecksichtigen");
        QVERIFY(O.Box("txtNotenabstand")->isEnabled());
    }

    void eineBoxWirdBeimVerlassenGeprueft() {
        O.Oeffnen();
        O.Seite(1);
        O.Welt.Boxen.ErwarteMeldung(Gewichtsmeldung);
        O.Tippen("txtGewichtungE", QStringLiteral("0"));
        QTest::keyClick(O.Box("txtGewichtungE"), Qt::Key_Tab);
        QCOMPARE(O.Box("txtGewichtungE")->text(), QStringLiteral("1"));
        O.Tippen("txtGewichtungM", QStringLiteral("1,50"));
        QTest::keyClick(O.Box("txtGewichtungM"), Qt::Key_Tab);
        QCOMPARE(O.Box("txtGewichtungM")->text(), QStringLiteral("1,5"));
        QVERIFY(O.Welt.Boxen.AllesGefragt());
    }

    void einKlickDerEineSchlechteBoxVerlaesstZaehlt_data() {
        QTest::addColumn<QString>("Knopf");
        QTest::addColumn<bool>("Gewaehlt");
        QTest::newRow("radio button") << QStringLiteral("rbNotenBerechnungsMethode_1") << true;
        QTest::newRow("check box") << QStringLiteral("cbGrenznotenBerechnen") << false;
    }
    /// The message takes the release of the mouse button.
    void einKlickDerEineSchlechteBoxVerlaesstZaehlt() {
        QFETCH(const QString, Knopf);
        QFETCH(const bool, Gewaehlt);
        O.Oeffnen();
        O.Seite(1);
        auto* Geklickt = O.Teil<QAbstractButton>(qPrintable(Knopf));
        O.Welt.Boxen.ErwarteMeldung(Gewichtsmeldung);
        O.Tippen("txtGewichtungE", QStringLiteral("0"));
        QTest::mousePress(Geklickt, Qt::LeftButton, {}, QPoint(8, Geklickt->height() / 2));
        QVERIFY(O.Welt.Boxen.AllesGefragt());
        QTRY_VERIFY(!Geklickt->isDown());
        QCOMPARE(Geklickt->isChecked(), Gewaehlt);
    }

    void einDatumWirdBeimVerlassenGeprueft() {
        O.Oeffnen();
        O.Welt.Boxen.ErwarteMeldung(QStringLiteral("Der Wert ist nicht plausibel!"));
        O.Tippen("txtHalbjahreswechsel", QStringLiteral("29.02."));
        QTest::keyClick(O.Box("txtHalbjahreswechsel"), Qt::Key_Tab);
        QCOMPARE(O.Box("txtHalbjahreswechsel")->text(), QStringLiteral("24.02."));
    }

    void okPrueftDieBoxMitDemFokusUndNimmtWasDannDrinSteht_data() {
        QTest::addColumn<bool>("Maus");
        QTest::newRow("mouse") << true;
        QTest::newRow("Return") << false;
    }

    void okPrueftDieBoxMitDemFokusUndNimmtWasDannDrinSteht() {
        QFETCH(const bool, Maus);
        O.Oeffnen();
        O.Seite(1);
        O.Tippen("txtGewichtungE", QStringLiteral("9"));
        O.Welt.Boxen.ErwarteMeldung(Gewichtsmeldung);
        if (Maus)
            O.Klick("btOK");
        else
            QTest::keyClick(O.Box("txtGewichtungE"), Qt::Key_Return);
        QVERIFY(O.Welt.Boxen.AllesGefragt());
        QCOMPARE(O.Box("txtGewichtungE")->text(), QStringLiteral("1"));
        QVERIFY(!O.Dialog->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(Datenbank.GewichtungE, 1.0F);
    }

    void escapeVerlaesstOhnePruefung() {
        O.Oeffnen();
        O.Seite(1);
        O.Tippen("txtGewichtungE", QStringLiteral("9"));
        QTest::keyClick(O.Box("txtGewichtungE"), Qt::Key_Escape);
        QVERIFY(!O.Dialog->isVisible());
        QCOMPARE(Datenbank.GewichtungE, 1.0F);
    }

    void okSpeichertAlleWerte() {
        O.Oeffnen();
        QGuiApplication::clipboard()->setText(QStringLiteral("Probe\tmit Tab"));
        O.Tippen("txtProbenBezeichnung1_0", QStringLiteral("weg"));
        O.Box("txtProbenBezeichnung1_0")->selectAll();
        QTest::keySequence(O.Box("txtProbenBezeichnung1_0"), QKeySequence::Paste);
        O.Tippen("txtProbenBezeichnung2_12", QStringLiteral("Kurzarbeit"));
        O.Tippen("txtHalbjahreswechsel", QStringLiteral("1.3."));
        O.Tippen("txtEndjahreswechsel", QStringLiteral("31.7."));
        O.Seite(1);
        O.Klick("rbNotenBerechnungsMethode_1");
        O.Tippen("txtGewichtungE", QStringLiteral("1,5"));
        O.Tippen("txtGewichtungM", QStringLiteral("3"));
        O.Tippen("txtPunkteabstand", QStringLiteral("0,25"));
        O.Klick("cbGrenznotenBerechnen");
        O.Klick("cbGrenznotenBeruecksichtigen");
        O.Tippen("txtNotenabstand", QStringLiteral("0,4"));
        O.Seite(2);
        QTest::keyClick(O.Leiste("ScrollbarB"), Qt::Key_Up, Qt::ShiftModifier);
        O.Seite(3);
        QTest::keyClick(O.Leiste("ScrollbarG"), Qt::Key_Up, Qt::ShiftModifier);
        O.Seite(4);
        QTest::keyClick(O.Leiste("ScrollbarE"), Qt::Key_Up, Qt::ShiftModifier);
        O.Klick("btOK");

        QVERIFY(!O.Dialog->isVisible());
        QCOMPARE(O.Dialog->result(), int(QDialog::Accepted));
        QCOMPARE(Probenbezeichnung[1], QStringLiteral("Probe mit Tab"));
        QCOMPARE(ExtemporalenBezeichnung[13], QStringLiteral("Kurzarbeit"));
        QCOMPARE(Datenbank.Halbjahreswechsel, QStringLiteral("1.3."));
        QCOMPARE(Datenbank.Endjahreswechsel, QStringLiteral("31.7."));
        QCOMPARE(Datenbank.NotenberechnenMethode, QStringLiteral("2"));
        QCOMPARE(Datenbank.GewichtungE, 1.5F);
        QCOMPARE(Datenbank.GewichtungM, 3.0F);
        QCOMPARE(Datenbank.GrenznotenBerechnen, false);
        QCOMPARE(Datenbank.GrenznotenPunkteAbstand, 0.25F);
        QCOMPARE(Datenbank.GrenznotenBeruecksichtigen, true);
        QCOMPARE(Datenbank.GrenznotenNotenAbstand, 0.4F);
        QCOMPARE(BLLVVerteilung[10][0], 9.5F);
        QCOMPARE(GaussVerteilung[0][0], 11.0F);
        QCOMPARE(GaussVerteilung[0][4], 96.0F);
        QCOMPARE(EigeneVerteilung[0][0], 91.0F);
        QCOMPARE(DatenGeaendert, false);
        QVERIFY(Testwelt::DateiInhalt(O.Parameterdatei()).contains("\tKurzarbeit\r\n"));
    }

    void abbrechenAendertNichts() {
        O.Oeffnen();
        const Optionen Vorher = OptionenInKraft();
        const QByteArray Datei = Testwelt::DateiInhalt(O.Parameterdatei());
        O.Tippen("txtProbenBezeichnung1_0", QStringLiteral("x"));
        O.Seite(4);
        QTest::keyClick(O.Leiste("ScrollbarE"), Qt::Key_Up, Qt::ShiftModifier);
        O.Klick("btAbbruch");
        QVERIFY(!O.Dialog->isVisible());
        QCOMPARE(O.Dialog->result(), int(QDialog::Rejected));
        QVERIFY(OptionenInKraft() == Vorher);
        QCOMPARE(Testwelt::DateiInhalt(O.Parameterdatei()), Datei);
    }

    void einFehlschlagBeimSpeichernWirdGemeldetUndDerDialogBleibt() {
        O.Oeffnen();
        const Optionen Vorher = OptionenInKraft();
        QVERIFY(QFile::remove(O.Parameterdatei()));
        QVERIFY(QDir().mkdir(O.Parameterdatei()));
        O.Tippen("txtProbenBezeichnung1_0", QStringLiteral("x"));
        O.Welt.Boxen.ErwarteMeldung({});
        O.Klick("btOK");
        QVERIFY(O.Welt.Boxen.AllesGefragt());
        QVERIFY(O.Dialog->isVisible());
        QVERIFY(OptionenInKraft() == Vorher);
    }

    void strgTabGehtVonSeiteZuSeite() {
        O.Oeffnen();
        const auto* Seiten = O.Teil<QTabWidget>("tabOptions");
        for (const int Erwartet : {1, 2, 3, 4, 0}) {
            QTest::keyClick(O.Dialog->focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
            QCOMPARE(Seiten->currentIndex(), Erwartet);
        }
    }

    void tabGehtDurchJedeSeite_data() {
        QTest::addColumn<int>("Seite");
        QTest::addColumn<QString>("Reihenfolge");
        QString Allgemeines = QStringLiteral("obNotensystem_0|rbNotenformat_0|txtHalbjahreswechsel|"
                                             "txtEndjahreswechsel");
        for (int i = 0; i < 13; ++i)
            Allgemeines += QStringLiteral("|txtProbenBezeichnung1_%1|txtProbenBezeichnung2_%1").arg(i);
        QTest::newRow("general") << 0 << Allgemeines;
        QTest::newRow("averages") << 1
                                  << QStringLiteral(
                                         "rbNotenBerechnungsMethode_0|txtGewichtungE|txtGewichtungM|"
                                         "cbGrenznotenBerechnen|txtPunkteabstand|"
                                         "cbGrenznotenBeruecksichtigen");
        QTest::newRow("table") << 2 << QStringLiteral("ScrollbarB");
        QTest::newRow("Gauss") << 3 << QStringLiteral("ScrollbarG");
        QTest::newRow("own") << 4 << QStringLiteral("ScrollbarE");
    }
    void tabGehtDurchJedeSeite() {
        QFETCH(const int, Seite);
        QFETCH(const QString, Reihenfolge);
        O.Oeffnen();
        O.Seite(Seite);
        QStringList Kreis =
            QStringLiteral("qt_tabwidget_tabbar|%1|btOK|btAbbruch").arg(Reihenfolge).split(u'|');
        O.Teil<QTabBar>("qt_tabwidget_tabbar")->setFocus();
        QCOMPARE(Fokusweg(Qt::Key_Tab), Kreis);
        std::reverse(Kreis.begin() + 1, Kreis.end());
        QCOMPARE(Fokusweg(Qt::Key_Backtab), Kreis);
    }

    void jedesBedienelementHatEinenNamen() {
        O.Oeffnen();
        O.Seite(4);
        const auto Alle = O.Dialog->findChildren<QWidget*>();
        for (QWidget* Eines : Alle) {
            const bool Wichtig = qobject_cast<Textfeld*>(Eines) || qobject_cast<QAbstractButton*>(Eines) ||
                                 qobject_cast<Gitter*>(Eines);
            if (!Wichtig || Eines->objectName().startsWith(QStringLiteral("qt_")) ||
                Eines->objectName().startsWith(QStringLiteral("Scroll")))
                continue;
            const QString Name = QAccessible::queryAccessibleInterface(Eines)->text(QAccessible::Name);
            QVERIFY2(!Name.isEmpty() || Eines->objectName().isEmpty(), qPrintable(Eines->objectName()));
        }
        QCOMPARE(O.Leiste("ScrollbarE")->accessibleName(), QStringLiteral("[--], Note 1"));
    }

    void derDialogStehtUeberDemFensterDasIhnRief() {
        QWidget Fenster;
        Fenster.move(2, 60);
        Fenster.show();
        {
            const dlgOptions Kind(&Fenster);
            QCOMPARE(Kind.pos(), Fenster.pos() + QPoint(15, 0));
        }
        Fenster.move(5000, 5000);
        {
            const dlgOptions Kind(&Fenster);
            QVERIFY(Kind.screen()->availableGeometry().contains(Kind.geometry()));
        }
        QTimer::singleShot(0, &Fenster, [] {
            auto* Offen = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(Offen);
            Offen->findChild<QPushButton*>(QStringLiteral("btOK"))->click();
        });
        QVERIFY(OptionenZeigen(&Fenster));
    }

    /// Pictures for the eye, in the folder that the variable names.
    void bilderAllerSeiten() {
        const QString Ordner = qEnvironmentVariable("TAFELQUELL_BILDER");
        if (Ordner.isEmpty())
            return;
        LadeParameter();
        O.Oeffnen();
        for (int i = 0; i < 5; ++i) {
            O.Seite(i);
            QVERIFY(O.Dialog->grab().save(QStringLiteral("%1/dlgOptions_%2_x%3.png")
                                              .arg(Ordner)
                                              .arg(i)
                                              .arg(O.Dialog->devicePixelRatio())));
        }
    }
};

TESTKLASSE(TestDlgOptions)
#include "tst_dlgoptions.moc"
