#include "photos/Passbild.h"

#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/AutoDatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"

#include <QDir>
#include <QFile>
#include <QtTest>

/// Where the photo of a student lies: names come from files, and must not lead out of the photo folder.
class TestPassbild : public QObject {
    Q_OBJECT

    Testwelt Welt;

    static Schueler Eine(const QString& Jahr, const QString& Klasse) {
        Schueler Neue;
        Neue.Jahr = Jahr;
        Neue.Klasse = Klasse;
        return Neue;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        AutoDateiSetzen(Welt.Pfad(QStringLiteral("buch.txt")));
    }
    void cleanup() { Welt.Aufraeumen(); }

    void DasFotoLiegtNebenDerDatenbankUnterJahrUndKlasse() {
        QCOMPARE(
            PassbildPfad(Eine(QStringLiteral("2003/04"), QStringLiteral("7a")), QStringLiteral("Bauer Anna")),
            Welt.Pfad(QStringLiteral("Passbilder/2003-04/7a/Bauer Anna.bmp")));
    }

    void KeinTextEinerDateiFuehrtAusDemFotoordner_data() {
        QTest::addColumn<QString>("Jahr");
        QTest::addColumn<QString>("Klasse");
        QTest::addColumn<QString>("Name");
        const QString Jahr = QStringLiteral("2003/04");
        const QString Klasse = QStringLiteral("7a");
        const QString Name = QStringLiteral("Anna");
        QTest::newRow("Name fuehrt hinauf") << Jahr << Klasse << QStringLiteral("../../../fremd");
        QTest::newRow("Name ist ein ganzer Pfad") << Jahr << Klasse << QStringLiteral("/etc/passwd");
        QTest::newRow("Name mit verkehrtem Strich") << Jahr << Klasse << QStringLiteral("..\\fremd");
        QTest::newRow("Name mit NUL") << Jahr << Klasse << QString::fromLatin1("Anna\0", 5);
        QTest::newRow("Name leer") << Jahr << Klasse << QString();
        QTest::newRow("Name nur Punkte") << Jahr << Klasse << QStringLiteral("..");
        QTest::newRow("Klasse fuehrt hinauf") << Jahr << QStringLiteral("..") << Name;
        QTest::newRow("Klasse mit Strich") << Jahr << QStringLiteral("7/a") << Name;
        QTest::newRow("Jahr mit zweitem Strich") << QStringLiteral("2003/04/05") << Klasse << Name;
        QTest::newRow("Jahr fuehrt hinauf") << QStringLiteral("..") << Klasse << Name;
        QTest::newRow("Jahr fuehrt weit hinauf") << QStringLiteral("../../..") << Klasse << Name;
    }
    void KeinTextEinerDateiFuehrtAusDemFotoordner() {
        QFETCH(QString, Jahr);
        QFETCH(QString, Klasse);
        QFETCH(QString, Name);
        QCOMPARE(PassbildPfad(Eine(Jahr, Klasse), Name), QString());
    }

    void OhneDateiGibtEsKeinFoto() {
        AutoDateiSetzen(Unbenannt);
        QCOMPARE(PassbildPfad(Eine(QStringLiteral("2003/04"), QStringLiteral("7a")), QStringLiteral("Anna")),
                 QString());
    }

    void EinNeuerNameDerHinausFuehrtBewegtNichts() {
        QVERIFY(QDir(Welt.Ordner()).mkpath(QStringLiteral("Passbilder/2003-04/7a")));
        const QString Foto = Welt.DateiAnlegen(QStringLiteral("Passbilder/2003-04/7a/Anna.bmp"), "BM");
        Datenbank.Schueler[1] = Eine(QStringLiteral("2003/04"), QStringLiteral("7a"));
        Datenbank.Schueler[1].Name = QStringLiteral("Anna");
        PassbildUmbenennen(1, QStringLiteral("../../../fremd"));
        QVERIFY(QFile::exists(Foto));
        QVERIFY(!QFile::exists(Welt.Pfad(QStringLiteral("fremd.bmp"))));
    }
};

TESTKLASSE(TestPassbild)
#include "tst_passbild.moc"
