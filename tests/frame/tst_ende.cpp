#include "Hauptfenster.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Orte.h"
#include "frame/Sitzungsende.h"

#include <QDialog>
#include <QtTest>

#include <csignal>

class TestEnde : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;
    const QString Frage = QStringLiteral("Möchten Sie die Änderungen in Unbenannt speichern?");
    const QString FrageFormulierungen = QStringLiteral("Möchten Sie die Formulierungs-Änderungen in ");

    int Gespeichert(const char* Schluessel) const {
        return EinstellungLesen(QString::fromUtf8(Schluessel), QStringLiteral("-1")).toInt();
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        Fenster.Starten();
    }
    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void OhneAenderungEndetDasProgrammOhneFrage() {
        Fenster.Aktion("mnuFileExit")->trigger();
        QVERIFY(!Fenster->isVisible());
    }

    void BeendenFragtBeidesUndAbbrechenLaesstDasProgrammLaufen_data() {
        QTest::addColumn<int>("Erste");
        QTest::addColumn<int>("Zweite");
        QTest::newRow("bei den Formulierungen") << int(Antwort::Abbrechen) << int(Antwort::Nein);
        QTest::newRow("bei der Datenbank") << int(Antwort::Nein) << int(Antwort::Abbrechen);
        QTest::newRow("bei beiden") << int(Antwort::Abbrechen) << int(Antwort::Abbrechen);
    }
    void BeendenFragtBeidesUndAbbrechenLaesstDasProgrammLaufen() {
        QFETCH(int, Erste);
        QFETCH(int, Zweite);
        DatenGeaendert = FormulierungenGeaendert = true;
        Welt.Boxen.ErwarteFrage(FrageFormulierungen, Antwort(Erste));
        Welt.Boxen.ErwarteFrage(Frage, Antwort(Zweite));
        Fenster.Aktion("mnuFileExit")->trigger();
        QVERIFY(Fenster->isVisible());
        QVERIFY(Welt.Boxen.AllesGefragt());
        DatenGeaendert = FormulierungenGeaendert = false;
    }

    void DasSchliessfeldFragtErstNachDerDatenbankDannNachDenFormulierungen() {
        DatenGeaendert = FormulierungenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Abbrechen);
        Welt.Boxen.ErwarteFrage(FrageFormulierungen, Antwort::Abbrechen);
        Fenster->close();
        QVERIFY(!Fenster->isVisible());
    }

    void BeendenMitNeinFragtNurEinmal() {
        DatenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Nein);
        Fenster.Aktion("mnuFileExit")->trigger();
        QVERIFY(!Fenster->isVisible());
    }

    void DasSchliessfeldFragtUndAbbrechenBeendetTrotzdem() {
        DatenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Abbrechen);
        Fenster->close();
        QVERIFY(!Fenster->isVisible());
        QVERIFY(!QFile::exists(Welt.Pfad(QStringLiteral("klasse.txt"))));
    }

    void DasSchliessfeldMitJaSpeichert() {
        const QString Pfad = Welt.Pfad(QStringLiteral("klasse.txt"));
        DatenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Ja);
        Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), Dateiwahl{Pfad, 1});
        Fenster->close();
        QVERIFY(Testwelt::DateiInhalt(Pfad).startsWith("[Tafelquell 3.0]"));
        QVERIFY(!DatenGeaendert);
    }

    void DasEndeSchreibtDieParameterdatei() {
        const QString Pfad = Programmverzeichnis() + QStringLiteral("/Tafelquell.ini");
        EigeneVerteilung[0][0] = 77;
        Fenster->close();
        QVERIFY(Testwelt::DateiInhalt(Pfad).contains("\t77\t"));
    }

    void EineParameterdateiDieSichNichtSchreibenLaesstHaeltDasEndeNichtAuf() {
        const QString Pfad = Programmverzeichnis() + QStringLiteral("/Tafelquell.ini");
        QVERIFY(QFile::remove(Pfad));
        QVERIFY(QDir().mkdir(Pfad));
        Welt.Boxen.ErwarteMeldung(QString());
        Fenster->close();
        QVERIFY(!Fenster->isVisible());
    }

    void AndereFensterWerdenGeschlossen() {
        auto* Dialog = new QDialog;
        Dialog->setAttribute(Qt::WA_DeleteOnClose);
        Dialog->show();
        const QPointer<QDialog> Waechter(Dialog);
        Fenster->close();
        QTRY_VERIFY(!Waechter);
    }

    void OrtUndGroesseWerdenInTwipsBewahrt() {
        Fenster->setGeometry(20, 30, 660, 500);
        Fenster->close();
        QCOMPARE(Gespeichert("MainLeft"), Fenster->x() * 15);
        QCOMPARE(Gespeichert("MainTop"), Fenster->y() * 15);
        QCOMPARE(Gespeichert("MainWidth"), 660 * 15);
        QCOMPARE(Gespeichert("MainHeight"), 500 * 15);
        Fenster.Starten();
        QCOMPARE(Fenster->size(), QSize(660, 500));
    }

    void VerkleinertGeschlossenBleibtDieAlteLage() {
        EinstellungSchreiben(QStringLiteral("MainLeft"), QStringLiteral("1500"));
        EinstellungSchreiben(QStringLiteral("MainWidth"), QStringLiteral("15000"));
        Fenster->showMinimized();
        Fenster->close();
        QCOMPARE(Gespeichert("MainLeft"), 1500);
        QCOMPARE(Gespeichert("MainWidth"), 15000);
    }

    void EinSignalRettetUngespeichertesFuerDenNaechstenStart() {
        const QString Pfad = Welt.Pfad(QStringLiteral("klasse.txt"));
        TestbuchLaden(QStringLiteral("Klasse 7a"));
        SpeichernDatenbank3(Pfad);
        const QByteArray Alt = Testwelt::DateiInhalt(Pfad);
        TestbuchLaden(QStringLiteral("Klasse 8b"));
        DatenGeaendert = true;
        const Sitzungsende Waechter(*Fenster);
        QTimer::singleShot(0, this, [] { ::raise(SIGTERM); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Alt);
        Fenster.Schliessen();

        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), 0);
        Fenster.Starten();
        QCOMPARE(Datenbank.AnzKlassen, qint16(2));
        QCOMPARE(Datenbank.Klassen[1].Name, QStringLiteral("8b"));
    }

    void EinSignalRettetAuchEinBuchOhneDatei() {
        TestbuchLaden(QStringLiteral("Klasse 8b"));
        DatenGeaendert = true;
        const Sitzungsende Waechter(*Fenster);
        QTimer::singleShot(0, this, [] { ::raise(SIGHUP); });
        QCOMPARE(QCoreApplication::exec(), 0);
        Fenster.Schliessen();

        const QString Pfad = Welt.Pfad(QStringLiteral("gerettet.txt"));
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei"), 0);
        Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), Dateiwahl{Pfad, 1});
        Fenster.Starten();
        QVERIFY(Testwelt::DateiInhalt(Pfad).contains("\t8b"));
    }

    void EinSignalBeendetOhneFrageUndBewahrtDieLage() {
        const Sitzungsende Waechter(*Fenster);
        Fenster->resize(700, 450);
        QTimer::singleShot(0, this, [] { ::raise(SIGTERM); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(Gespeichert("MainWidth"), 700 * 15);
    }
};

TESTKLASSE(TestEnde)
#include "tst_ende.moc"
