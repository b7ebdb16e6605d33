#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Orte.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <unistd.h>

namespace {

constexpr auto NurBesitzer = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// The permission bits of the folder's owner, group and others.
QFile::Permissions Rechte(const QString& Pfad) {
    return QFile::permissions(Pfad) &
           (QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::WriteGroup |
            QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther);
}

} // namespace

class TestOrte : public QObject {
    Q_OBJECT
    Testwelt Welt;

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        QDir Ordner(Welt.Ordner());
        Ordner.mkdir(QStringLiteral("programmordner"));
        Ordner.mkdir(QStringLiteral("lieferung"));
        Welt.DateiAnlegen(QStringLiteral("lieferung/Tafelquell.ini"), "Tabellen");
        Welt.DateiAnlegen(QStringLiteral("lieferung/Formulierungen.txt"), "Phrasen");
        ProgrammverzeichnisSetzen({});
        ZustandsverzeichnisSetzen({});
    }
    void cleanup() {
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_STATE_HOME");
        Welt.Aufraeumen();
    }

    void eineTragbareKopieBehaeltIhrenOrdner() {
        Welt.DateiAnlegen(QStringLiteral("programmordner/Tafelquell.ini"), "eigene");
        QCOMPARE(ProgrammverzeichnisAus(Welt.Pfad(QStringLiteral("programmordner")),
                                        Welt.Pfad(QStringLiteral("daten")),
                                        Welt.Pfad(QStringLiteral("lieferung"))),
                 Welt.Pfad(QStringLiteral("programmordner")));
        QVERIFY(!QFileInfo::exists(Welt.Pfad(QStringLiteral("daten"))));
    }

    void ohneParameterdateiGiltDerDatenordnerMitKopien() {
        const QString Daten = Welt.Pfad(QStringLiteral("daten"));
        QCOMPARE(ProgrammverzeichnisAus(Welt.Pfad(QStringLiteral("programmordner")), Daten,
                                        Welt.Pfad(QStringLiteral("lieferung"))),
                 Daten);
        QCOMPARE(Testwelt::DateiInhalt(Daten + QStringLiteral("/Tafelquell.ini")), QByteArray("Tabellen"));
        QCOMPARE(Testwelt::DateiInhalt(Daten + QStringLiteral("/Formulierungen.txt")), QByteArray("Phrasen"));
        QCOMPARE(Rechte(Daten), NurBesitzer);
    }

    void einSchreibgeschuetzterOrdnerGiltNicht() {
        const QString Ordner = Welt.Pfad(QStringLiteral("programmordner"));
        Welt.DateiAnlegen(QStringLiteral("programmordner/Tafelquell.ini"), "eigene");
        const auto Lesbar = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                            QFile::ReadOther | QFile::ExeOther;
        QFile::setPermissions(Welt.Ordner(), Lesbar | QFile::WriteOwner);
        QFile::setPermissions(Ordner, Lesbar);
        const QString Daten = Welt.Pfad(QStringLiteral("daten"));
        // For root every folder can be written, so root asks as the user "nobody".
        const bool Root = ::geteuid() == 0;
        QVERIFY(!Root || ::setreuid(65534, 0) == 0);
        const QString Ergebnis =
            ProgrammverzeichnisAus(Ordner, Daten, Welt.Pfad(QStringLiteral("lieferung")));
        QVERIFY(!Root || ::setreuid(0, 0) == 0);
        QFile::setPermissions(Ordner, NurBesitzer);
        QCOMPARE(Ergebnis, Daten);
    }

    void vorhandeneDateienBleiben() {
        QDir(Welt.Ordner()).mkdir(QStringLiteral("daten"));
        Welt.DateiAnlegen(QStringLiteral("daten/Tafelquell.ini"), "geaendert");
        const QString Daten = Welt.Pfad(QStringLiteral("daten"));
        ProgrammverzeichnisAus(Welt.Pfad(QStringLiteral("programmordner")), Daten,
                               Welt.Pfad(QStringLiteral("lieferung")));
        QCOMPARE(Testwelt::DateiInhalt(Daten + QStringLiteral("/Tafelquell.ini")), QByteArray("geaendert"));
        QCOMPARE(Testwelt::DateiInhalt(Daten + QStringLiteral("/Formulierungen.txt")), QByteArray("Phrasen"));
    }

    void kopienSindBeschreibbar() {
        QFile::setPermissions(Welt.Pfad(QStringLiteral("lieferung/Tafelquell.ini")), QFile::ReadOwner);
        const QString Daten = Welt.Pfad(QStringLiteral("daten"));
        ProgrammverzeichnisAus(Welt.Pfad(QStringLiteral("programmordner")), Daten,
                               Welt.Pfad(QStringLiteral("lieferung")));
        QVERIFY(Rechte(Daten + QStringLiteral("/Tafelquell.ini")).testFlag(QFile::WriteOwner));
    }

    void ohneLieferungGibtEsNurDenOrdner() {
        const QString Daten = Welt.Pfad(QStringLiteral("daten"));
        QCOMPARE(ProgrammverzeichnisAus(Welt.Pfad(QStringLiteral("programmordner")), Daten, {}), Daten);
        QCOMPARE(QDir(Daten).entryList(QDir::Files), QStringList());
    }

    void derDatenordnerFolgtDerUmgebung() {
        qputenv("XDG_DATA_HOME", Welt.Pfad(QStringLiteral("teile/daten")).toLocal8Bit());
        QCOMPARE(Programmverzeichnis(), Welt.Pfad(QStringLiteral("teile/daten/tafelquell")));
        QVERIFY(QFileInfo(Programmverzeichnis()).isDir());
        qputenv("XDG_DATA_HOME", "/anderswo"); // the answer holds for the run
        QCOMPARE(Programmverzeichnis(), Welt.Pfad(QStringLiteral("teile/daten/tafelquell")));
    }

    void derZustandsordnerFolgtDerUmgebungUndIstVerschlossen() {
        qputenv("XDG_STATE_HOME", Welt.Pfad(QStringLiteral("zustand/tief")).toLocal8Bit());
        const QString Ordner = Zustandsverzeichnis();
        QCOMPARE(Ordner, Welt.Pfad(QStringLiteral("zustand/tief/tafelquell")));
        QVERIFY(QFileInfo(Ordner).isDir());
        QCOMPARE(Rechte(Ordner), NurBesitzer);
    }

    void einUmgebungspfadOhneWurzelGiltNicht() {
        const QByteArray Heim = qgetenv("HOME");
        qputenv("HOME", Welt.Ordner().toLocal8Bit());
        qputenv("XDG_STATE_HOME", "irgendwo");
        QCOMPARE(Zustandsverzeichnis(), Welt.Pfad(QStringLiteral(".local/state/tafelquell")));
        qputenv("HOME", Heim);
    }

    void imBauordnerLiegtDieLieferungInDenQuellen() {
        const QString Quellen = QStringLiteral(LIEFERDATEN);
        QCOMPARE(Lieferverzeichnis(), QFileInfo(Quellen).isDir() ? Quellen : QString());
    }

    void gesetzteOrdnerGelten() {
        ProgrammverzeichnisSetzen(Welt.Pfad(QStringLiteral("programmordner")));
        ZustandsverzeichnisSetzen(Welt.Pfad(QStringLiteral("neu")));
        QCOMPARE(Programmverzeichnis(), Welt.Pfad(QStringLiteral("programmordner")));
        QCOMPARE(Zustandsverzeichnis(), Welt.Pfad(QStringLiteral("neu")));
        QVERIFY(QFileInfo(Welt.Pfad(QStringLiteral("neu"))).isDir());
    }
};

TESTKLASSE(TestOrte)
#include "tst_orte.moc"
