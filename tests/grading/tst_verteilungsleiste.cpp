#include "Optionenwelt.h"
#include "common/Testprogramm.h"
#include "core/Definitionen.h"

#include <QPushButton>
#include <QTabBar>
#include <QWheelEvent>

class TestVerteilungsleiste : public QObject {
    Q_OBJECT
    Optionenwelt O;

  private Q_SLOTS:
    void init() { O.Herstellen(); }
    void cleanup() { O.Aufraeumen(); }

    void dieTabellenHabenZweiKopfzeilenUndIhreWerte() {
        O.Oeffnen();
        const QString Mindest = QStringLiteral("|Mindestpunktzahl für die Note");
        QCOMPARE(O.Zeile(O.Tabelle("tblBLLVVerteilung"), 0),
                 QStringLiteral("Gesamtpunktzahl") + Mindest.repeated(5));
        QCOMPARE(O.Zeile(O.Tabelle("tblBLLVVerteilung"), 1), QStringLiteral("|1|2|3|4|5"));
        QCOMPARE(O.Zeile(O.Tabelle("tblBLLVVerteilung"), 2), QStringLiteral("10|9|8|7|6|5"));
        QCOMPARE(O.Zeile(O.Tabelle("tblBLLVVerteilung"), 3), QStringLiteral("40|36,5|31,5|26,5|21,5|16,5"));
        QCOMPARE(O.Tabelle("tblBLLVVerteilung")->Rows(), 4);
        const QString Anteil = QStringLiteral("|Prozentualer Anteil der Schüler mit Note");
        QCOMPARE(O.Zeile(O.Tabelle("tblGaussVerteilung"), 0), Anteil.repeated(6));
        QCOMPARE(O.Zeile(O.Tabelle("tblGaussVerteilung"), 1), QStringLiteral("Verteilung|1|2|3|4|5|6"));
        QCOMPARE(O.Zeile(O.Tabelle("tblGaussVerteilung"), 4), QStringLiteral("[o]|10|20|30|20|15|5"));
        const QString Prozent =
            QStringLiteral("|Prozentualer Anteil der Gesamtpunktzahl ist Notengrenze der Note");
        QCOMPARE(O.Zeile(O.Tabelle("tblEigeneVerteilung"), 0), Prozent.repeated(5));
        QCOMPARE(O.Zeile(O.Tabelle("tblEigeneVerteilung"), 1), QStringLiteral("Verteilung|1|2|3|4|5"));
        QCOMPARE(O.Zeile(O.Tabelle("tblEigeneVerteilung"), 6), QStringLiteral("[++]|90|75|60|45|20"));
        QCOMPARE(O.Tabelle("tblEigeneVerteilung")->Rows(), 7);
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
        O.Oeffnen();
        const QByteArray Name = Gitter.toUtf8();
        const QByteArray Barname = Bar.toUtf8();
        QVERIFY(!O.Leiste(Barname)->isVisible());
        auto* Reiter = O.Teil<QTabWidget>("tabOptions")->tabBar();
        QTest::mouseClick(Reiter, Qt::LeftButton, {}, Reiter->tabRect(Nummer).center());
        QCOMPARE(O.Tabelle(Name)->Row(), 2);
        QCOMPARE(O.Tabelle(Name)->Col(), 1);
        QVERIFY(O.Leiste(Barname)->isVisible());
        QVERIFY(O.Leiste(Barname)->hasFocus());
        const QRect Zelle = O.Tabelle(Name)->CellRect(2, 1);
        QCOMPARE(O.Leiste(Barname)->geometry().topLeft(), Zelle.topLeft());
        QCOMPARE(O.Leiste(Barname)->height(), Zelle.height());
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
        O.Oeffnen();
        O.Seite(Nummer);
        auto* Gitterteil = O.Tabelle(Gitter);
        auto* Balken = O.Leiste(Bar);
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
        O.Oeffnen();
        O.Seite(2);
        for (const Qt::Key Taste : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                                    Qt::Key_Return, Qt::Key_Escape, Qt::Key_5, Qt::Key_Plus})
            QTest::keyClick(O.Leiste("ScrollbarB"), Taste);
        QCOMPARE(O.Tabelle("tblBLLVVerteilung")->TextMatrix(2, 1), QStringLiteral("9"));
        QVERIFY(O.Dialog->isVisible());
    }

    void grenzenKoennenIhreNachbarnNichtErreichen() {
        O.Oeffnen();
        O.Seite(2);
        auto* Punkte = O.Tabelle("tblBLLVVerteilung");
        Punkte->Enter(3, 2);
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(O.Leiste("ScrollbarB"), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(Punkte->TextMatrix(3, 2), QStringLiteral("36"));
        for (int i = 0; i < 60; ++i)
            QTest::keyClick(O.Leiste("ScrollbarB"), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Punkte->TextMatrix(3, 2), QStringLiteral("27"));
        Punkte->Enter(3, 1);
        O.Leiste("ScrollbarB")->setValue(O.Leiste("ScrollbarB")->minimum());
        QCOMPARE(Punkte->TextMatrix(3, 1), QStringLiteral("40")); // the total itself
    }

    void dieLetzteEigeneGrenzeGehtBisNull() {
        O.Oeffnen();
        O.Seite(4);
        O.Tabelle("tblEigeneVerteilung")->Enter(4, 5);
        O.Leiste("ScrollbarE")->setValue(O.Leiste("ScrollbarE")->maximum());
        QCOMPARE(O.Tabelle("tblEigeneVerteilung")->TextMatrix(4, 5), QStringLiteral("0"));
        O.Tabelle("tblEigeneVerteilung")->Enter(4, 1);
        O.Leiste("ScrollbarE")->setValue(O.Leiste("ScrollbarE")->minimum());
        QCOMPARE(O.Tabelle("tblEigeneVerteilung")->TextMatrix(4, 1), QStringLiteral("100"));
    }

    void einAnteilNimmtDerLetztenNoteBisNichtsMehrDaIst() {
        O.Oeffnen();
        O.Seite(3);
        auto* Anteile = O.Tabelle("tblGaussVerteilung");
        auto* Balken = O.Leiste("ScrollbarG");
        Anteile->Enter(4, 2);
        QCOMPARE(Balken->minimum(), 0);
        QCOMPARE(Balken->maximum(), 100);
        QCOMPARE(Balken->value(), 80);
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(Balken, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(O.Zeile(Anteile, 4), QStringLiteral("[o]|10|25|30|20|15|0"));
        QTest::keyClick(Balken, Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(O.Zeile(Anteile, 4), QStringLiteral("[o]|10|25|30|20|15|0"));
        QCOMPARE(Balken->value(), 75); // stepped back
    }

    void derAnteilDerLetztenNoteAendertDenDerErsten() {
        O.Oeffnen();
        O.Seite(3);
        O.Tabelle("tblGaussVerteilung")->Enter(4, 6);
        QTest::keyClick(O.Leiste("ScrollbarG"), Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(O.Zeile(O.Tabelle("tblGaussVerteilung"), 4), QStringLiteral("[o]|9|20|30|20|15|6"));
    }

    void dieLeisteWandertMitDerTabelle() {
        for (int Gesamt = 10; Gesamt <= 200; ++Gesamt)
            BLLVVerteilung[Gesamt] = BLLVVerteilung[10];
        O.Oeffnen();
        O.Seite(2);
        auto* Punkte = O.Tabelle("tblBLLVVerteilung");
        Punkte->Enter(5, 2);
        const QPoint Vorher = O.Leiste("ScrollbarB")->pos();
        Punkte->setTopRow(4);
        QCOMPARE(O.Leiste("ScrollbarB")->pos(), Punkte->CellRect(5, 2).topLeft());
        QVERIFY(O.Leiste("ScrollbarB")->pos() != Vorher);
        Punkte->setTopRow(100);
        QVERIFY(!Punkte->rect().intersects(O.Leiste("ScrollbarB")->geometry()));
        QVERIFY(O.Leiste("ScrollbarB")->hasFocus()); // a key brings the cell back
        QTest::keyClick(O.Leiste("ScrollbarB"), Qt::Key_Right);
        QCOMPARE(O.Leiste("ScrollbarB")->pos(), Punkte->CellRect(5, 3).topLeft());
    }

    void dasRadAendertKeinenWert() {
        O.Oeffnen();
        O.Seite(4);
        auto* Balken = O.Leiste("ScrollbarE");
        const QPointF Mitte = Balken->rect().center();
        QWheelEvent Rad(Mitte, Balken->mapToGlobal(Mitte), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Balken, &Rad);
        QCOMPARE(O.Tabelle("tblEigeneVerteilung")->TextMatrix(2, 1), QStringLiteral("90"));
    }

    void dieMausAendertUmEinenSchritt() {
        O.Oeffnen();
        O.Seite(4);
        auto* Balken = O.Leiste("ScrollbarE");
        QTest::mouseClick(Balken, Qt::LeftButton, {}, QPoint(Balken->width() / 2, Balken->height() - 2));
        QCOMPARE(O.Tabelle("tblEigeneVerteilung")->TextMatrix(2, 1), QStringLiteral("89"));
    }

    void ueberEinerUeberschriftStehtKeineLeiste() {
        O.Oeffnen();
        O.Seite(4);
        O.Tabelle("tblEigeneVerteilung")->Enter(1, 2);
        QVERIFY(!O.Leiste("ScrollbarE")->isVisible());
        O.Tabelle("tblEigeneVerteilung")->Enter(3, 2);
        QVERIFY(O.Leiste("ScrollbarE")->isVisible());
    }

    void eineLeereTabelleIstKeinFehler() {
        for (auto& Zeilen : BLLVVerteilung)
            Zeilen = {};
        O.Oeffnen();
        O.Seite(2);
        QCOMPARE(O.Tabelle("tblBLLVVerteilung")->Rows(), 2);
        QVERIFY(!O.Leiste("ScrollbarB")->isVisible());
        O.Klick("btOK");
        QVERIFY(!O.Dialog->isVisible());
    }

    void tabGehtVonDerLeisteZuDenKnoepfenUndZurueck() {
        O.Oeffnen();
        O.Seite(3);
        QTest::keyClick(O.Leiste("ScrollbarG"), Qt::Key_Tab);
        QCOMPARE(O.Dialog->focusWidget()->objectName(), QStringLiteral("btOK"));
        QVERIFY(O.Teil<QPushButton>("btOK")->hasFocus());
        QTest::keyClick(O.Teil<QPushButton>("btOK"), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(O.Leiste("ScrollbarG")->hasFocus());
    }
};

TESTKLASSE(TestVerteilungsleiste)
#include "tst_verteilungsleiste.moc"
