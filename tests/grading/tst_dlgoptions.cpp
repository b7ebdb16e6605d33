#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "controls/Gitter.h"
#include "controls/Textfeld.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Orte.h"
#include "core/Parameterdatei.h"
#include "core/Zahlen.h"
#include "grading/Optionen.h"
#include "grading/Verteilungsleiste.h"
#include "grading/dlgOptions.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabWidget>
#include <QWheelEvent>
#include <QtTest>

namespace {

const QString Gewichtsmeldung = QStringLiteral("Der Wert muß zwischen 0 und 3 liegen!");

} // namespace

class TestDlgOptions : public QObject {
    Q_OBJECT
    Testwelt Welt;
    std::unique_ptr<dlgOptions> Dialog;

    template <class T>
    T* Teil(const char* Name) {
        T* Gefunden = Dialog->findChild<T*>(QString::fromUtf8(Name));
        if (!Gefunden)
            qFatal("no control %s", Name);
        return Gefunden;
    }
    Gitter* Tabelle(const char* Name) { return Teil<Gitter>(Name); }
    QScrollBar* Leiste(const char* Name) { return Teil<QScrollBar>(Name); }
    Textfeld* Box(const char* Name) { return Teil<Textfeld>(Name); }

    void Oeffnen() {
        Dialog = std::make_unique<dlgOptions>();
        Dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(Dialog.get()));
    }
    void Seite(int Nummer) { Teil<QTabWidget>("tabOptions")->setCurrentIndex(Nummer); }
    void Klick(const char* Knopf) {
        auto* Ziel = Teil<QAbstractButton>(Knopf);
        QTest::mouseClick(Ziel, Qt::LeftButton, {}, Ziel->rect().center());
    }
    void Tippen(const char* Name, const QString& Text) {
        Box(Name)->setFocus();
        Box(Name)->selectAll();
        if (Text.isEmpty())
            QTest::keyClick(Box(Name), Qt::Key_Delete);
        else
            QTest::keyClicks(Box(Name), Text);
    }
    static QString Zeile(Gitter* Tabelle, int Nummer) {
        QStringList Texte;
        for (int Spalte = 0; Spalte < Tabelle->Cols(); ++Spalte)
            Texte.append(Tabelle->TextMatrix(Nummer, Spalte));
        return Texte.join(u'|');
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        QVERIFY(QFile::copy(QStringLiteral(LIEFERDATEN "/Tafelquell.ini"),
                            Programmverzeichnis() + QStringLiteral("/Tafelquell.ini")));
        LadeParameter();
        for (auto& Zeilen : BLLVVerteilung)
            Zeilen = {};
        for (int Note = 0; Note < 5; ++Note) {
            BLLVVerteilung[10][Note] = 9.0F - static_cast<float>(Note);
            BLLVVerteilung[40][Note] = 36.5F - 5.0F * static_cast<float>(Note);
        }
        for (int i = 0; i < 5; ++i) {
            const float Prozente[]{90, 75, 60, 45, 20};
            const float Summen[]{10, 30, 60, 80, 95};
            for (int Note = 0; Note < 5; ++Note) {
                EigeneVerteilung[i][Note] = Prozente[Note];
                GaussVerteilung[i][Note] = Summen[Note];
            }
        }
    }
    void cleanup() {
        Dialog.reset();
        Welt.Aufraeumen();
    }

    void zeigtDieWerteInKraft() {
        Probenbezeichnung[7] = QStringLiteral("Schulaufgabe");
        ExtemporalenBezeichnung[13] = QStringLiteral("Ex");
        Datenbank.GewichtungE = 2.5F;
        Oeffnen();
        QCOMPARE(Dialog->objectName(), QStringLiteral("dlgOptions"));
        QCOMPARE(Dialog->windowTitle(), QStringLiteral("Optionen"));
        QCOMPARE(Box("txtProbenBezeichnung1_6")->text(), QStringLiteral("Schulaufgabe"));
        QCOMPARE(Box("txtProbenBezeichnung2_12")->text(), QStringLiteral("Ex"));
        QCOMPARE(Box("txtHalbjahreswechsel")->text(), QStringLiteral("24.02."));
        QCOMPARE(Box("txtEndjahreswechsel")->text(), QStringLiteral("12.09."));
        QCOMPARE(Box("txtGewichtungP")->text(), QStringLiteral("1"));
        QVERIFY(!Box("txtGewichtungP")->isEnabled());
        QCOMPARE(Box("txtGewichtungE")->text(), QStringLiteral("2,5"));
        QCOMPARE(Box("txtGewichtungM")->text(), QStringLiteral("0,5"));
        QCOMPARE(Box("txtPunkteabstand")->text(), QStringLiteral("0,5"));
        QVERIFY(Box("txtPunkteabstand")->isEnabled());
        QCOMPARE(Box("txtNotenabstand")->text(), QStringLiteral("0,3"));
        QVERIFY(!Box("txtNotenabstand")->isEnabled());
        QVERIFY(Teil<QRadioButton>("obNotensystem_0")->isChecked());
        QVERIFY(Teil<QRadioButton>("rbNotenformat_0")->isChecked());
        QVERIFY(Teil<QRadioButton>("rbNotenBerechnungsMethode_0")->isChecked());
        QCOMPARE(Teil<QTabWidget>("tabOptions")->currentIndex(), 0);
    }

    void fuenfSeitenInDieserReihenfolge() {
        Oeffnen();
        const auto* Seiten = Teil<QTabWidget>("tabOptions");
        QStringList Titel;
        for (int i = 0; i < Seiten->count(); ++i)
            Titel.append(Seiten->tabText(i));
        QCOMPARE(Titel.join(u'|'), QStringLiteral("Allgemeines|Notenberechnung|Tabellen-Verteilung|"
                                                  "Gauß-Verteilung|Eigene Verteilung"));
    }

    void eineFremdeMethodeWaehltKeine() {
        Datenbank.NotenberechnenMethode = QStringLiteral("7");
        Oeffnen();
        for (const char* Name :
             {"rbNotenBerechnungsMethode_0", "rbNotenBerechnungsMethode_1", "rbNotenBerechnungsMethode_2"})
            QVERIFY(!Teil<QRadioButton>(Name)->isChecked());
        Klick("btOK");
        QCOMPARE(Datenbank.NotenberechnenMethode, QStringLiteral("3"));
    }

    void dieTabellenHabenZweiKopfzeilenUndIhreWerte() {
        Oeffnen();
        const QString Mindest = QStringLiteral("|Mindestpunktzahl für die Note");
        QCOMPARE(Zeile(Tabelle("tblBLLVVerteilung"), 0),
                 QStringLiteral("Gesamtpunktzahl") + Mindest.repeated(5));
        QCOMPARE(Zeile(Tabelle("tblBLLVVerteilung"), 1), QStringLiteral("|1|2|3|4|5"));
        QCOMPARE(Zeile(Tabelle("tblBLLVVerteilung"), 2), QStringLiteral("10|9|8|7|6|5"));
        QCOMPARE(Zeile(Tabelle("tblBLLVVerteilung"), 3), QStringLiteral("40|36,5|31,5|26,5|21,5|16,5"));
        QCOMPARE(Tabelle("tblBLLVVerteilung")->Rows(), 4);
        const QString Anteil = QStringLiteral("|Prozentualer Anteil der Schüler mit Note");
        QCOMPARE(Zeile(Tabelle("tblGaussVerteilung"), 0), Anteil.repeated(6));
        QCOMPARE(Zeile(Tabelle("tblGaussVerteilung"), 1), QStringLiteral("Verteilung|1|2|3|4|5|6"));
        QCOMPARE(Zeile(Tabelle("tblGaussVerteilung"), 4), QStringLiteral("[o]|10|20|30|20|15|5"));
        const QString Prozent =
            QStringLiteral("|Prozentualer Anteil der Gesamtpunktzahl ist Notengrenze der Note");
        QCOMPARE(Zeile(Tabelle("tblEigeneVerteilung"), 0), Prozent.repeated(5));
        QCOMPARE(Zeile(Tabelle("tblEigeneVerteilung"), 1), QStringLiteral("Verteilung|1|2|3|4|5"));
        QCOMPARE(Zeile(Tabelle("tblEigeneVerteilung"), 6), QStringLiteral("[++]|90|75|60|45|20"));
        QCOMPARE(Tabelle("tblEigeneVerteilung")->Rows(), 7);
    }

    void eineSeiteMitTabelleZeigtDieLeisteUeberDerErstenZelle_data() {
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<QString>("Gitter");
        QTest::addColumn<QString>("Bar");
        QTest::newRow("B") << 2 << "tblBLLVVerteilung"
                           << "ScrollbarB";
        QTest::newRow("G") << 3 << "tblGaussVerteilung"
                           << "ScrollbarG";
        QTest::newRow("E") << 4 << "tblEigeneVerteilung"
                           << "ScrollbarE";
    }
    void eineSeiteMitTabelleZeigtDieLeisteUeberDerErstenZelle() {
        QFETCH(const int, Nummer);
        QFETCH(const QString, Gitter);
        QFETCH(const QString, Bar);
        Oeffnen();
        const QByteArray Name = Gitter.toUtf8();
        const QByteArray Barname = Bar.toUtf8();
        QVERIFY(!Leiste(Barname)->isVisible());
        auto* Reiter = Teil<QTabWidget>("tabOptions")->tabBar();
        QTest::mouseClick(Reiter, Qt::LeftButton, {}, Reiter->tabRect(Nummer).center());
        QCOMPARE(Tabelle(Name)->Row(), 2);
        QCOMPARE(Tabelle(Name)->Col(), 1);
        QVERIFY(Leiste(Barname)->isVisible());
        QVERIFY(Leiste(Barname)->hasFocus());
        const QRect Zelle = Tabelle(Name)->CellRect(2, 1);
        QCOMPARE(Leiste(Barname)->geometry().topLeft(), Zelle.topLeft());
        QCOMPARE(Leiste(Barname)->height(), Zelle.height());
    }

    void dieTastenDerLeiste_data() {
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<QByteArray>("Gitter");
        QTest::addColumn<QByteArray>("Bar");
        QTest::addColumn<QString>("Hoeher"); // text of the cell after one step up
        QTest::addColumn<QString>("Tiefer");
        QTest::addColumn<int>("LetzteZeile");
        QTest::addColumn<int>("LetzteSpalte");
        QTest::newRow("B") << 2 << QByteArray("tblBLLVVerteilung") << QByteArray("ScrollbarB") << "9,5"
                           << "8,5" << 3 << 5;
        QTest::newRow("G") << 3 << QByteArray("tblGaussVerteilung") << QByteArray("ScrollbarG") << "11"
                           << "9" << 6 << 6;
        QTest::newRow("E") << 4 << QByteArray("tblEigeneVerteilung") << QByteArray("ScrollbarE") << "91"
                           << "89" << 6 << 5;
    }
    void dieTastenDerLeiste() {
        QFETCH(const int, Nummer);
        QFETCH(const QByteArray, Gitter);
        QFETCH(const QByteArray, Bar);
        QFETCH(const QString, Hoeher);
        QFETCH(const QString, Tiefer);
        QFETCH(const int, LetzteZeile);
        QFETCH(const int, LetzteSpalte);
        Oeffnen();
        Seite(Nummer);
        auto* Gitterteil = Tabelle(Gitter);
        auto* Balken = Leiste(Bar);
        const auto Stelle = [&] { return QPoint(Gitterteil->Row(), Gitterteil->Col()); };
        const QString Anfang = Gitterteil->TextMatrix(2, 1);

        QTest::keyClick(Balken, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Gitterteil->TextMatrix(2, 1), Hoeher);
        QTest::keyClick(Balken, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Gitterteil->TextMatrix(2, 1), Anfang);
        QTest::keyClick(Balken, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Gitterteil->TextMatrix(2, 1), Tiefer);
        QCOMPARE(Stelle(), QPoint(2, 1));

        QTest::keyClick(Balken, Qt::Key_Up);
        QTest::keyClick(Balken, Qt::Key_Left);
        QCOMPARE(Stelle(), QPoint(2, 1)); // no way into the headings
        for (int i = 0; i < 10; ++i)
            QTest::keyClick(Balken, Qt::Key_Down);
        QCOMPARE(Stelle(), QPoint(LetzteZeile, 1));
        for (int i = 0; i < 10; ++i)
            QTest::keyClick(Balken, Qt::Key_Right);
        QCOMPARE(Stelle(), QPoint(LetzteZeile, LetzteSpalte));
        QCOMPARE(Balken->geometry().topLeft(), Gitterteil->CellRect(LetzteZeile, LetzteSpalte).topLeft());
        QTest::keyClick(Balken, Qt::Key_Up);
        QTest::keyClick(Balken, Qt::Key_Left);
        QCOMPARE(Stelle(), QPoint(LetzteZeile - 1, LetzteSpalte - 1));
        QVERIFY(Balken->hasFocus());
    }

    void andereTastenTunNichts() {
        Oeffnen();
        Seite(2);
        for (const Qt::Key Taste : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                                    Qt::Key_Return, Qt::Key_Escape, Qt::Key_5, Qt::Key_Plus})
            QTest::keyClick(Leiste("ScrollbarB"), Taste);
        QCOMPARE(Tabelle("tblBLLVVerteilung")->TextMatrix(2, 1), QStringLiteral("9"));
        QVERIFY(Dialog->isVisible());
    }

    void grenzenKoennenIhreNachbarnNichtErreichen() {
        Oeffnen();
        Seite(2);
        auto* Punkte = Tabelle("tblBLLVVerteilung");
        Punkte->Enter(3, 2);
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(Leiste("ScrollbarB"), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Punkte->TextMatrix(3, 2), QStringLiteral("36"));
        for (int i = 0; i < 60; ++i)
            QTest::keyClick(Leiste("ScrollbarB"), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Punkte->TextMatrix(3, 2), QStringLiteral("27"));
        Punkte->Enter(3, 1);
        Leiste("ScrollbarB")->setValue(Leiste("ScrollbarB")->minimum());
        QCOMPARE(Punkte->TextMatrix(3, 1), QStringLiteral("40")); // the total itself
    }

    void dieLetzteEigeneGrenzeGehtBisNull() {
        Oeffnen();
        Seite(4);
        Tabelle("tblEigeneVerteilung")->Enter(4, 5);
        Leiste("ScrollbarE")->setValue(Leiste("ScrollbarE")->maximum());
        QCOMPARE(Tabelle("tblEigeneVerteilung")->TextMatrix(4, 5), QStringLiteral("0"));
        Tabelle("tblEigeneVerteilung")->Enter(4, 1);
        Leiste("ScrollbarE")->setValue(Leiste("ScrollbarE")->minimum());
        QCOMPARE(Tabelle("tblEigeneVerteilung")->TextMatrix(4, 1), QStringLiteral("100"));
    }

    void einAnteilNimmtDerLetztenNoteBisNichtsMehrDaIst() {
        Oeffnen();
        Seite(3);
        auto* Anteile = Tabelle("tblGaussVerteilung");
        auto* Balken = Leiste("ScrollbarG");
        Anteile->Enter(4, 2);
        QCOMPARE(Balken->minimum(), 0);
        QCOMPARE(Balken->maximum(), 100);
        QCOMPARE(Balken->value(), 80);
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(Balken, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Zeile(Anteile, 4), QStringLiteral("[o]|10|25|30|20|15|0"));
        QTest::keyClick(Balken, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Zeile(Anteile, 4), QStringLiteral("[o]|10|25|30|20|15|0"));
        QCOMPARE(Balken->value(), 75); // stepped back
    }

    void derAnteilDerLetztenNoteAendertDenDerErsten() {
        Oeffnen();
        Seite(3);
        Tabelle("tblGaussVerteilung")->Enter(4, 6);
        QTest::keyClick(Leiste("ScrollbarG"), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Zeile(Tabelle("tblGaussVerteilung"), 4), QStringLiteral("[o]|9|20|30|20|15|6"));
    }

    void dieLeisteWandertMitDerTabelle() {
        for (int Gesamt = 10; Gesamt <= 200; ++Gesamt)
            BLLVVerteilung[Gesamt] = BLLVVerteilung[10];
        Oeffnen();
        Seite(2);
        auto* Punkte = Tabelle("tblBLLVVerteilung");
        Punkte->Enter(5, 2);
        const QPoint Vorher = Leiste("ScrollbarB")->pos();
        Punkte->setTopRow(4);
        QCOMPARE(Leiste("ScrollbarB")->pos(), Punkte->CellRect(5, 2).topLeft());
        QVERIFY(Leiste("ScrollbarB")->pos() != Vorher);
        Punkte->setTopRow(100);
        QVERIFY(!Punkte->rect().intersects(Leiste("ScrollbarB")->geometry()));
        QVERIFY(Leiste("ScrollbarB")->hasFocus()); // a key brings the cell back
        QTest::keyClick(Leiste("ScrollbarB"), Qt::Key_Right);
        QCOMPARE(Leiste("ScrollbarB")->pos(), Punkte->CellRect(5, 3).topLeft());
    }

    void dasRadAendertKeinenWert() {
        Oeffnen();
        Seite(4);
        auto* Balken = Leiste("ScrollbarE");
        const QPointF Mitte = Balken->rect().center();
        QWheelEvent Rad(Mitte, Balken->mapToGlobal(Mitte), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Balken, &Rad);
        QCOMPARE(Tabelle("tblEigeneVerteilung")->TextMatrix(2, 1), QStringLiteral("90"));
    }

    void dieMausAendertUmEinenSchritt() {
        Oeffnen();
        Seite(4);
        auto* Balken = Leiste("ScrollbarE");
        QTest::mouseClick(Balken, Qt::LeftButton, {}, QPoint(Balken->width() / 2, Balken->height() - 2));
        QCOMPARE(Tabelle("tblEigeneVerteilung")->TextMatrix(2, 1), QStringLiteral("89"));
    }

    void ueberEinerUeberschriftStehtKeineLeiste() {
        Oeffnen();
        Seite(4);
        Tabelle("tblEigeneVerteilung")->Enter(1, 2);
        QVERIFY(!Leiste("ScrollbarE")->isVisible());
        Tabelle("tblEigeneVerteilung")->Enter(3, 2);
        QVERIFY(Leiste("ScrollbarE")->isVisible());
    }

    void eineLeereTabelleIstKeinFehler() {
        for (auto& Zeilen : BLLVVerteilung)
            Zeilen = {};
        Oeffnen();
        Seite(2);
        QCOMPARE(Tabelle("tblBLLVVerteilung")->Rows(), 2);
        QVERIFY(!Leiste("ScrollbarB")->isVisible());
        Klick("btOK");
        QVERIFY(!Dialog->isVisible());
    }

    void dasNotenformatGiltSofortUndBleibtBeiAbbrechen() {
        Oeffnen();
        Klick("rbNotenformat_1");
        QCOMPARE(Notenformat, QStringLiteral("0.00"));
        QCOMPARE(EinstellungLesen(QStringLiteral("Notenformat"), {}), QStringLiteral("0.00"));
        Klick("btAbbruch");
        QCOMPARE(Notenformat, QStringLiteral("0.00"));
        Oeffnen();
        QVERIFY(Teil<QRadioButton>("rbNotenformat_1")->isChecked());
        Klick("rbNotenformat_0");
        QCOMPARE(Notenformat, QStringLiteral("0.0"));
    }

    void dasOeffnenSchreibtKeineEinstellung() {
        Oeffnen();
        QCOMPARE(EinstellungLesen(QStringLiteral("Notenformat"), QStringLiteral("keine")),
                 QStringLiteral("keine"));
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), QStringLiteral("keine")),
                 QStringLiteral("keine"));
    }

    void einAnderesNotensystemBautAllesNeuAufUndBleibtBeiAbbrechen() {
        Oeffnen();
        Tippen("txtProbenBezeichnung1_0", QStringLiteral("Getippt"));
        Seite(4);
        Leiste("ScrollbarE")->setValue(Leiste("ScrollbarE")->value() + 1);
        Seite(0);
        Klick("obNotensystem_1");
        QCOMPARE(int(MaxNote), 5);
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), {}), QStringLiteral("5"));
        QCOMPARE(Box("txtProbenBezeichnung1_0")->text(), Probenbezeichnung[1]);
        QCOMPARE(Tabelle("tblBLLVVerteilung")->Cols(), 5);
        QCOMPARE(Tabelle("tblGaussVerteilung")->Cols(), 6);
        QCOMPARE(Tabelle("tblEigeneVerteilung")->Cols(), 5);
        QCOMPARE(Zeile(Tabelle("tblEigeneVerteilung"), 2), QStringLiteral("[--]|90|75|60|45"));
        Klick("btAbbruch");
        QCOMPARE(int(MaxNote), 5);
    }

    void dasselbeNotensystemLaesstGetipptesStehen() {
        Oeffnen();
        Tippen("txtProbenBezeichnung1_0", QStringLiteral("Getippt"));
        Klick("obNotensystem_0");
        QCOMPARE(Box("txtProbenBezeichnung1_0")->text(), QStringLiteral("Getippt"));
    }

    void mitDerDrittenMethodeGibtEsKeinMuendlichesGewicht() {
        Oeffnen();
        Seite(1);
        Klick("rbNotenBerechnungsMethode_2");
        QVERIFY(!Box("txtGewichtungM")->isVisible());
        QVERIFY(!Teil<QLabel>("lbGewichtungM")->isVisible());
        QCOMPARE(Teil<QLabel>("lbGewichtungE")->text(),
                 QStringLiteral("Gewichtung der Lernzielkontrollen und mündlichen Noten"));
        Klick("rbNotenBerechnungsMethode_1");
        QVERIFY(Box("txtGewichtungM")->isVisible());
        QCOMPARE(Teil<QLabel>("lbGewichtungE")->text(), QStringLiteral("Gewichtung der Lernzielkontrollen"));
    }

    void einAbstandIstNurMitSeinemHakenFrei() {
        Oeffnen();
        Seite(1);
        Klick("cbGrenznotenBerechnen");
        QVERIFY(!Box("txtPunkteabstand")->isEnabled());
        Klick("cbGrenznotenBeruecksichtigen");
        QVERIFY(Box("txtNotenabstand")->isEnabled());
    }

    void eineBoxWirdBeimVerlassenGeprueft() {
        Oeffnen();
        Seite(1);
        Welt.Boxen.ErwarteMeldung(Gewichtsmeldung);
        Tippen("txtGewichtungE", QStringLiteral("0"));
        QTest::keyClick(Box("txtGewichtungE"), Qt::Key_Tab);
        QCOMPARE(Box("txtGewichtungE")->text(), QStringLiteral("1"));
        Tippen("txtGewichtungM", QStringLiteral("1,50"));
        QTest::keyClick(Box("txtGewichtungM"), Qt::Key_Tab);
        QCOMPARE(Box("txtGewichtungM")->text(), QStringLiteral("1,5"));
        QVERIFY(Welt.Boxen.AllesGefragt());
    }

    void einDatumWirdBeimVerlassenGeprueft() {
        Oeffnen();
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Der Wert ist nicht plausibel!"));
        Tippen("txtHalbjahreswechsel", QStringLiteral("29.02."));
        QTest::keyClick(Box("txtHalbjahreswechsel"), Qt::Key_Tab);
        QCOMPARE(Box("txtHalbjahreswechsel")->text(), QStringLiteral("24.02."));
    }

    void okPrueftDieBoxMitDemFokusUndBleibtDannOffen_data() {
        QTest::addColumn<bool>("Maus");
        QTest::newRow("mouse") << true;
        QTest::newRow("Return") << false;
    }
    void okPrueftDieBoxMitDemFokusUndBleibtDannOffen() {
        QFETCH(const bool, Maus);
        Oeffnen();
        Seite(1);
        Tippen("txtGewichtungE", QStringLiteral("9"));
        Welt.Boxen.ErwarteMeldung(Gewichtsmeldung);
        const auto Bestaetigen = [&] {
            if (Maus)
                Klick("btOK");
            else
                QTest::keyClick(Box("txtGewichtungE"), Qt::Key_Return);
        };
        Bestaetigen();
        QVERIFY(Welt.Boxen.AllesGefragt());
        QVERIFY(Dialog->isVisible());
        QCOMPARE(Box("txtGewichtungE")->text(), QStringLiteral("1"));
        QCoreApplication::processEvents();
        Bestaetigen();
        QVERIFY(!Dialog->isVisible());
        QCOMPARE(Datenbank.GewichtungE, 1.0F);
    }

    void escapeVerlaesstOhnePruefung() {
        Oeffnen();
        Seite(1);
        Tippen("txtGewichtungE", QStringLiteral("9"));
        QTest::keyClick(Box("txtGewichtungE"), Qt::Key_Escape);
        QVERIFY(!Dialog->isVisible());
        QCOMPARE(Datenbank.GewichtungE, 1.0F);
    }

    void okSpeichertAlleWerte() {
        Oeffnen();
        QGuiApplication::clipboard()->setText(QStringLiteral("Probe\tmit Tab"));
        Tippen("txtProbenBezeichnung1_0", QStringLiteral("weg"));
        Box("txtProbenBezeichnung1_0")->selectAll();
        QTest::keySequence(Box("txtProbenBezeichnung1_0"), QKeySequence::Paste);
        Tippen("txtProbenBezeichnung2_12", QStringLiteral("Kurzarbeit"));
        Tippen("txtHalbjahreswechsel", QStringLiteral("1.3."));
        Tippen("txtEndjahreswechsel", QStringLiteral("31.7."));
        Seite(1);
        Klick("rbNotenBerechnungsMethode_1");
        Tippen("txtGewichtungE", QStringLiteral("1,5"));
        Tippen("txtGewichtungM", QStringLiteral("3"));
        Tippen("txtPunkteabstand", QStringLiteral("0,25"));
        Klick("cbGrenznotenBerechnen");
        Klick("cbGrenznotenBeruecksichtigen");
        Tippen("txtNotenabstand", QStringLiteral("0,4"));
        Seite(2);
        QTest::keyClick(Leiste("ScrollbarB"), Qt::Key_Up, Qt::ShiftModifier);
        Seite(3);
        QTest::keyClick(Leiste("ScrollbarG"), Qt::Key_Up, Qt::ShiftModifier);
        Seite(4);
        QTest::keyClick(Leiste("ScrollbarE"), Qt::Key_Up, Qt::ShiftModifier);
        Klick("btOK");

        QVERIFY(!Dialog->isVisible());
        QCOMPARE(Dialog->result(), int(QDialog::Accepted));
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
        QVERIFY(Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini"))
                    .contains("\tKurzarbeit\r\n"));
    }

    void abbrechenAendertNichts() {
        Oeffnen();
        const Optionen Vorher = OptionenInKraft();
        const QByteArray Datei =
            Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini"));
        Tippen("txtProbenBezeichnung1_0", QStringLiteral("x"));
        Seite(4);
        QTest::keyClick(Leiste("ScrollbarE"), Qt::Key_Up, Qt::ShiftModifier);
        Klick("btAbbruch");
        QVERIFY(!Dialog->isVisible());
        QCOMPARE(Dialog->result(), int(QDialog::Rejected));
        QVERIFY(OptionenInKraft() == Vorher);
        QCOMPARE(Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini")), Datei);
    }

    void einFehlschlagBeimSpeichernWirdGemeldetUndDerDialogBleibt() {
        Oeffnen();
        const Optionen Vorher = OptionenInKraft();
        QVERIFY(QFile::remove(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini")));
        QVERIFY(QDir().mkdir(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini")));
        Tippen("txtProbenBezeichnung1_0", QStringLiteral("x"));
        Welt.Boxen.ErwarteMeldung({});
        Klick("btOK");
        QVERIFY(Welt.Boxen.AllesGefragt());
        QVERIFY(Dialog->isVisible());
        QVERIFY(OptionenInKraft() == Vorher);
    }

    void strgTabGehtVonSeiteZuSeite() {
        Oeffnen();
        const auto* Seiten = Teil<QTabWidget>("tabOptions");
        for (const int Erwartet : {1, 2, 3, 4, 0}) {
            QTest::keyClick(Dialog->focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
            QCOMPARE(Seiten->currentIndex(), Erwartet);
        }
    }

    void tabGehtVonDerLeisteZuDenKnoepfenUndZurueck() {
        Oeffnen();
        Seite(3);
        QTest::keyClick(Leiste("ScrollbarG"), Qt::Key_Tab);
        QCOMPARE(Dialog->focusWidget()->objectName(), QStringLiteral("btOK"));
        QVERIFY(Teil<QPushButton>("btOK")->hasFocus());
        QTest::keyClick(Teil<QPushButton>("btOK"), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(Leiste("ScrollbarG")->hasFocus());
    }

    void jedesBedienelementHatEinenNamen() {
        Oeffnen();
        Seite(4);
        const auto Alle = Dialog->findChildren<QWidget*>();
        for (QWidget* Eines : Alle) {
            const bool Wichtig = qobject_cast<Textfeld*>(Eines) || qobject_cast<QAbstractButton*>(Eines) ||
                                 qobject_cast<Gitter*>(Eines);
            if (!Wichtig || Eines->objectName().startsWith(QStringLiteral("qt_")) ||
                Eines->objectName().startsWith(QStringLiteral("Scroll")))
                continue;
            const QString Name = QAccessible::queryAccessibleInterface(Eines)->text(QAccessible::Name);
            QVERIFY2(!Name.isEmpty() || Eines->objectName().isEmpty(), qPrintable(Eines->objectName()));
        }
        QCOMPARE(Leiste("ScrollbarE")->accessibleName(), QStringLiteral("[--], Note 1"));
    }

    void derDialogStehtUeberDemFensterDasIhnRief() {
        QWidget Fenster;
        Fenster.move(100, 60);
        Fenster.show();
        Dialog = std::make_unique<dlgOptions>(&Fenster);
        QCOMPARE(Dialog->pos(), Fenster.pos() + QPoint(15, 0));
        Dialog.reset();
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
        Oeffnen();
        for (int i = 0; i < 5; ++i) {
            Seite(i);
            QVERIFY(Dialog->grab().save(QStringLiteral("%1/dlgOptions_%2_x%3.png")
                                            .arg(Ordner)
                                            .arg(i)
                                            .arg(Dialog->devicePixelRatio())));
        }
    }
};

TESTKLASSE(TestDlgOptions)
#include "tst_dlgoptions.moc"
