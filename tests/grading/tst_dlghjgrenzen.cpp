#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "controls/Textfeld.h"
#include "core/Definitionen.h"
#include "grading/dlgHJGrenzen.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace {

const QString Meldung = QStringLiteral("Die Werte müssen im Bereich von 1 bis 11 liegen!");

} // namespace

class TestDlgHJGrenzen : public QObject {
    Q_OBJECT
    Testwelt Welt;
    std::unique_ptr<dlgHJGrenzen> Dialog;

    template <class T>
    T* Teil(const char* Name) {
        T* Gefunden = Dialog->findChild<T*>(QString::fromUtf8(Name));
        if (!Gefunden)
            qFatal("no control %s", Name);
        return Gefunden;
    }
    void Oeffnen(const QString& KlasseFach = QStringLiteral("7a Mathematik")) {
        Dialog = std::make_unique<dlgHJGrenzen>(KlasseFach, 50000);
        Dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(Dialog.get()));
    }
    void Tippen(const char* Name, const QString& Text) {
        Teil<Textfeld>(Name)->setFocus();
        Teil<Textfeld>(Name)->selectAll();
        QTest::keyClick(Teil<Textfeld>(Name), Qt::Key_Delete);
        QTest::keyClicks(Teil<Textfeld>(Name), Text);
    }
    static QString Grenzen() {
        const Fach& Eines = Datenbank.Faecher[0];
        return QStringList{Eines.GrenzeP, Eines.GrenzeE, Eines.GrenzeM}.join(u'|');
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\n"));
        Datenbank.Faecher[0].GrenzeP = QStringLiteral("6");
        Datenbank.Faecher[0].GrenzeE = QStringLiteral("5");
        Datenbank.Faecher[0].GrenzeM = QStringLiteral("4");
        Probenbezeichnung[7] = QStringLiteral("Schulaufgabe");
        ExtemporalenBezeichnung[7] = QStringLiteral("Stegreifaufgabe");
    }
    void cleanup() {
        Dialog.reset();
        Welt.Aufraeumen();
    }

    void zeigtDieGrenzenDesFachs() {
        Oeffnen();
        QCOMPARE(Dialog->objectName(), QStringLiteral("dlgHJGrenzen"));
        QCOMPARE(Dialog->windowTitle(), QStringLiteral("Halbjahresgrenzen festlegen"));
        QCOMPARE(Teil<QLabel>("Label1")->text(),
                 QStringLiteral("Die Noten für das 2. Halbjahr beginnen für dieses Fach ab der:"));
        QCOMPARE(Teil<Textfeld>("txtGrenzeP")->text(), QStringLiteral("6"));
        QCOMPARE(Teil<Textfeld>("txtGrenzeE")->text(), QStringLiteral("5"));
        QCOMPARE(Teil<Textfeld>("txtGrenzeM")->text(), QStringLiteral("4"));
        QCOMPARE(Teil<QLabel>("lbProbe")->text(), QStringLiteral(". Schulaufgabe"));
        QCOMPARE(Teil<QLabel>("lbExtemporale")->text(), QStringLiteral(". Stegreifaufgabe"));
        QCOMPARE(Teil<QLabel>("lbMündlich")->text(), QStringLiteral(". mündlichen Note"));
        QCOMPARE(Teil<QLabel>("lbFachID")->text(), QStringLiteral("50000"));
        QVERIFY(!Teil<QLabel>("lbFachID")->isVisible());
        QVERIFY(Teil<Textfeld>("txtGrenzeP")->hasFocus());
    }

    void eineStufeOhneNamen_data() {
        QTest::addColumn<QString>("KlasseFach");
        QTest::addColumn<QString>("Probe");
        QTest::newRow("level 0 is not corrected") << "Chor"
                                                  << ". ";
        QTest::newRow("above the last level") << "25a Kurs"
                                              << ". Probe";
    }
    void eineStufeOhneNamen() {
        QFETCH(const QString, KlasseFach);
        QFETCH(const QString, Probe);
        Oeffnen(KlasseFach);
        QCOMPARE(Teil<QLabel>("lbProbe")->text(), Probe);
    }

    void returnGehtVonBoxZuBoxUndZuOk() {
        Oeffnen();
        QTest::keyClick(Teil<Textfeld>("txtGrenzeP"), Qt::Key_Return);
        QVERIFY(Teil<Textfeld>("txtGrenzeE")->hasFocus());
        QTest::keyClick(Teil<Textfeld>("txtGrenzeE"), Qt::Key_Return);
        QVERIFY(Teil<Textfeld>("txtGrenzeM")->hasFocus());
        QTest::keyClick(Teil<Textfeld>("txtGrenzeM"), Qt::Key_Enter);
        QVERIFY(Teil<QPushButton>("btOK")->hasFocus());
        QVERIFY(Dialog->isVisible());
        QTest::keyClick(Teil<QPushButton>("btOK"), Qt::Key_Return);
        QVERIFY(!Dialog->isVisible());
        QCOMPARE(DialogErgebnis, true);
    }

    void escapeBrichtAb() {
        for (const char* Name : {"txtGrenzeP", "txtGrenzeE", "txtGrenzeM"}) {
            Oeffnen();
            Tippen(Name, QStringLiteral("9"));
            QTest::keyClick(Teil<Textfeld>(Name), Qt::Key_Escape);
            QVERIFY(!Dialog->isVisible());
            QCOMPARE(Grenzen(), QStringLiteral("6|5|4"));
        }
    }

    void okSpeichertDieGrenzenUndFragtNichtNachDemSpeichern() {
        Oeffnen();
        Tippen("txtGrenzeP", QStringLiteral("7"));
        Tippen("txtGrenzeE", QStringLiteral("3,7"));
        Tippen("txtGrenzeM", QStringLiteral("10"));
        QTest::mouseClick(Teil<QPushButton>("btOK"), Qt::LeftButton);
        QVERIFY(!Dialog->isVisible());
        QCOMPARE(Grenzen(), QStringLiteral("7|4|10"));
        QCOMPARE(DialogErgebnis, true);
        QCOMPARE(DatenGeaendert, false);
    }

    void wasNichtVonEinsBisZehnIstWirdAbgewiesenUndBleibtStehen_data() {
        QTest::addColumn<QByteArray>("Feld");
        QTest::addColumn<QString>("Text");
        for (const char* Feld : {"txtGrenzeP", "txtGrenzeE", "txtGrenzeM"})
            for (const char* Text : {"11", "0", "", "abc"})
                QTest::addRow("%s '%s'", Feld, Text) << QByteArray(Feld) << QString::fromLatin1(Text);
    }
    void wasNichtVonEinsBisZehnIstWirdAbgewiesenUndBleibtStehen() {
        QFETCH(const QByteArray, Feld);
        QFETCH(const QString, Text);
        Oeffnen();
        Tippen(Feld, Text);
        Welt.Boxen.ErwarteMeldung(Meldung);
        QTest::mouseClick(Teil<QPushButton>("btOK"), Qt::LeftButton);
        QVERIFY(Welt.Boxen.AllesGefragt());
        QVERIFY(Dialog->isVisible());
        QCOMPARE(Teil<Textfeld>(Feld)->text(), Text);
        QCOMPARE(Grenzen(), QStringLiteral("6|5|4"));
        QCOMPARE(DialogErgebnis, false);
    }

    void eineElfAusDerDateiMussErstHerunter() {
        Datenbank.Faecher[0].GrenzeM = QStringLiteral("11");
        Oeffnen();
        QCOMPARE(Teil<Textfeld>("txtGrenzeM")->text(), QStringLiteral("11"));
        Welt.Boxen.ErwarteMeldung(Meldung);
        QTest::mouseClick(Teil<QPushButton>("btOK"), Qt::LeftButton);
        QVERIFY(Dialog->isVisible());
        Tippen("txtGrenzeM", QStringLiteral("10"));
        QTest::mouseClick(Teil<QPushButton>("btOK"), Qt::LeftButton);
        QCOMPARE(Grenzen(), QStringLiteral("6|5|10"));
    }

    void derAufrufSagtObOkEsBeendete() {
        QWidget Fenster;
        const auto Beenden = [&](const char* Knopf) {
            QTimer::singleShot(0, &Fenster, [Knopf] {
                QApplication::activeModalWidget()
                    ->findChild<QPushButton*>(QString::fromLatin1(Knopf))
                    ->click();
            });
            return HJGrenzenZeigen(&Fenster, QStringLiteral("7a Mathematik"), 50000);
        };
        QVERIFY(Beenden("btOK"));
        QVERIFY(DialogErgebnis);
        QVERIFY(!Beenden("btAbbruch"));
        QVERIFY(!DialogErgebnis);
        QVERIFY(!HJGrenzenZeigen(&Fenster, QStringLiteral("7a Mathematik"), 50099));
    }

    void jedesBedienelementHatEinenNamen() {
        Oeffnen();
        for (const char* Name : {"txtGrenzeP", "txtGrenzeE", "txtGrenzeM", "btOK", "btAbbruch"})
            QVERIFY2(!QAccessible::queryAccessibleInterface(Teil<QWidget>(Name))
                          ->text(QAccessible::Name)
                          .isEmpty(),
                     Name);
    }

    /// A picture for the eye, in the folder that the variable names.
    void bild() {
        const QString Ordner = qEnvironmentVariable("TAFELQUELL_BILDER");
        if (Ordner.isEmpty())
            return;
        Oeffnen();
        QVERIFY(Dialog->grab().save(
            QStringLiteral("%1/dlgHJGrenzen_x%2.png").arg(Ordner).arg(Dialog->devicePixelRatio())));
    }
};

TESTKLASSE(TestDlgHJGrenzen)
#include "tst_dlghjgrenzen.moc"
