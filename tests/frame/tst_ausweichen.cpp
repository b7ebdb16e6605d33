#include "Hauptfenster.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "core/AutoDatei.h"
#include "core/Definitionen.h"
#include "core/Orte.h"
#include "frame/Sitzungsende.h"

#include <QDir>
#include <QTimer>
#include <QtTest>

#include <csignal>

/// A state folder that cannot be: rescue copies lie in the runtime folder, and the user is told so.
class TestAusweichen : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;
    const QString Hinweis = QStringLiteral("Im Ordner \"");
    const QString Frage = QStringLiteral("Möchten Sie die Änderungen in ");

    QString Pfad() const { return Welt.Pfad(QStringLiteral("klasse.txt")); }
    void Speichern() {
        DatenGeaendert = true;
        Fenster.Aktion("mnuFileSave")->trigger();
        QVERIFY(!DatenGeaendert);
        QVERIFY(Testwelt::DateiInhalt(Pfad()).startsWith("[Tafelquell 3.0]"));
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        const QString Laufzeit = Welt.Pfad(QStringLiteral("laufzeit"));
        QDir().mkdir(Laufzeit, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Laufzeit));
        Fenster.Starten();
        TestbuchLaden(QStringLiteral("Klasse 7a"));
        AutoDateiSetzen(Pfad());
        ZustandsverzeichnisSetzen(Welt.DateiAnlegen(QStringLiteral("im_weg"), {}) +
                                  QStringLiteral("/zustand"));
    }
    void cleanup() {
        DatenGeaendert = false;
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void NachDemErstenSpeichernKommtDerHinweisUndDannNieWieder() {
        Welt.Boxen.ErwarteMeldung(Hinweis);
        Speichern();
        QVERIFY(Welt.Boxen.AllesGefragt());
        QVERIFY(Welt.Boxen.Gezeigt.last().Text.contains(QStringLiteral("nicht vor Stromausfall")));
        Speichern();
        QCOMPARE(Welt.Boxen.Gezeigt.size(), 1);
    }

    void AuchWerBeimSchliessenSpeichertErfaehrtEs() {
        DatenGeaendert = true;
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(Hinweis);
        Fenster->close();
        QVERIFY(!Fenster->isVisible());
        QVERIFY(!DatenGeaendert);
    }

    void OhneZweitenOrdnerWirdNichtGespeichertUndEinAndererNameAngeboten() {
        qunsetenv("XDG_RUNTIME_DIR");
        DatenGeaendert = true;
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei \"%1\" wurde nicht gespeichert").arg(Pfad()), 1);
        Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), std::nullopt);
        Welt.Boxen.ErwarteAuswahl(QString(), 2);
        Fenster.Aktion("mnuFileSave")->trigger();
        QVERIFY(DatenGeaendert);
        QVERIFY(!QFile::exists(Pfad()));
    }

    void EinSignalZeigtKeinenKasten() {
        DatenGeaendert = true;
        const Sitzungsende Waechter(*Fenster);
        QTimer::singleShot(0, this, [] { ::raise(SIGTERM); });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Im Ordner ")));
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(QFile::exists(Welt.Pfad(QStringLiteral("laufzeit/tafelquell/r.1.rescue"))));
    }
};

TESTKLASSE(TestAusweichen)
#include "tst_ausweichen.moc"
