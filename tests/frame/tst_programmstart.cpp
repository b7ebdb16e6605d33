#include "Hauptfenster.h"
#include "common/Testprogramm.h"
#include "core/Einstellungen.h"
#include "core/Orte.h"
#include "frame/Programmstart.h"
#include "frame/frmAbout.h"
#include "frame/frmSplash.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

class TestProgrammstart : public QObject {
    Q_OBJECT

    Testwelt Welt;

    template <class Fenster>
    static QString Text(const Fenster& Eines, const char* Name) {
        return Eines.template findChild<QLabel*>(QString::fromUtf8(Name))->text();
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
    }
    void cleanup() { Welt.Aufraeumen(); }

    void DerHinweisErscheintBeimErstenStartUndDannNieWieder() {
        EinstellungSchreiben(QStringLiteral("ErstesMal"), QStringLiteral("ja"));
        Welt.Boxen.ErwarteMeldung(
            QStringLiteral("Die Tafelquell ist intensiv getestet und auf Herz und Nieren geprüft wurden.\r"));
        QVERIFY(Programmstart());
        const Meldungstext& Hinweis = Welt.Boxen.Gezeigt.first();
        QCOMPARE(Hinweis.Titel, QStringLiteral("Hinweise zum Haftungsausschluss!"));
        QCOMPARE(Hinweis.Text.count(u'\r'), 7);
        QVERIFY(Hinweis.Text.endsWith(
            QStringLiteral("viel Spaß und Erfolg bei Ihrer Arbeit mit der Tafelquell!\r")));
        QCOMPARE(EinstellungLesen(QStringLiteral("ErstesMal"), {}), QStringLiteral("nein"));
        QVERIFY(Programmstart());
        QCOMPARE(Welt.Boxen.Gezeigt.size(), 1);
    }

    void DasHauptfensterIstGezeigtUndTraegtDenTitel() {
        const auto Fenster = Programmstart();
        QVERIFY(Fenster->isVisible());
        QCOMPARE(Fenster->windowTitle(), QStringLiteral("Tafelquell 3.1 - Unbenannt"));
    }

    void DieBegruessungIstDanachWeg() {
        const auto Fenster = Programmstart();
        const auto Alle = QApplication::topLevelWidgets();
        for (const QWidget* Eines : Alle)
            QVERIFY(Eines == Fenster.get() || !Eines->isVisible());
    }

    void OhneParameterdateiStartetDasProgrammNicht() {
        QVERIFY(QFile::remove(Programmverzeichnis() + QStringLiteral("/Tafelquell.ini")));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Tafelquell kann nicht starten."));
        QVERIFY(!Programmstart());
        QVERIFY(Welt.Boxen.Gezeigt.first().Text.contains(QStringLiteral("Tafelquell.ini")));
    }

    void DieBegruessungNenntNameUndVersion() {
        const frmSplash Fenster;
        QCOMPARE(Text(Fenster, "lblProductName"), QStringLiteral("Tafelquell"));
        QCOMPARE(Text(Fenster, "lblPlatform"), QStringLiteral("für Windows 95/98/2000/NT/ME/XP"));
        QCOMPARE(Text(Fenster, "lblVersion"), QStringLiteral("Version 3.1.0"));
        QVERIFY(Fenster.findChildren<QAbstractButton*>().isEmpty());
        QVERIFY(!Fenster.findChild<QLabel*>(QStringLiteral("picLogo"))->pixmap().isNull());
    }

    void DieInfoSagtWasDasProgrammIst() {
        frmAbout Fenster;
        QCOMPARE(Fenster.windowTitle(), QStringLiteral("Info"));
        QCOMPARE(Text(Fenster, "lblTitle"), QStringLiteral("Tafelquell"));
        QCOMPARE(Text(Fenster, "lblVersion"), QStringLiteral("Version 3.1.0"));
        QCOMPARE(
            Text(Fenster, "lblDescription"),
            QStringLiteral("Für Lehrkräfte aus Grund-, Haupt-, Realschule und Gymnasium zur Erleichterung "
                           "ihrer täglichen Arbeit beim Korrigieren von Proben, der Verwaltung der Noten und "
                           "beim Schreiben von Schülerbeurteilungen."));
        QVERIFY(!Fenster.findChild<QLabel*>(QStringLiteral("picIcon"))->pixmap().isNull());
    }

    void DieKnoepfeDerInfo() {
        frmAbout Fenster;
        Fenster.show();
        auto* System = Fenster.findChild<QPushButton*>(QStringLiteral("cmdSysInfo"));
        QCOMPARE(System->text(), QStringLiteral("&System Info..."));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("System Information Is Unavailable At This Time"));
        System->click();
        QVERIFY(Fenster.isVisible());
        Fenster.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
        QVERIFY(!Fenster.isVisible());
    }
};

TESTKLASSE(TestProgrammstart)
#include "tst_programmstart.moc"
