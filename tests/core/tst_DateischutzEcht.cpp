#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "common/Unprivilegiert.h"

#include "core/Dateischutz.h"
#include "core/Orte.h"
#include "core/Rettungskopf.h"
#include "core/Rettungsorte.h"
#include "core/Systemaufrufe.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <csignal>

#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

// Failures that the system itself brings about: full and read-only file systems, immutable files, missing
// rights, a limit of the file size.

namespace {

const QByteArray Alt = QByteArrayLiteral("alter Stand");
const QByteArray Gross = QByteArray(40'000, 'n');

/// A small file system in memory for the time of a test.
class Datentraeger {
  public:
    explicit Datentraeger(const QString& Pfad)
        : Ordner(QFile::encodeName(Pfad)) {
        QDir().mkpath(Pfad);
        Da = ::mount("tafelquell-test", Ordner.constData(), "tmpfs", 0, "size=64k") == 0;
    }
    ~Datentraeger() {
        if (Da)
            ::umount2(Ordner.constData(), MNT_DETACH);
    }
    Datentraeger(const Datentraeger&) = delete;
    Datentraeger& operator=(const Datentraeger&) = delete;

    bool Vorhanden() const { return Da; }
    bool Sperren() const {
        return ::mount(nullptr, Ordner.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }
    void Fuellen() const {
        QFile Ballast(QFile::decodeName(Ordner) + QStringLiteral("/ballast"));
        if (!Ballast.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
            return;
        while (Ballast.write(QByteArray(4096, 'x')) > 0)
            continue;
    }

  private:
    QByteArray Ordner;
    bool Da = false;
};

} // namespace

#define BRAUCHT_DATENTRAEGER(Name, Pfad)                                                                     \
    const Datentraeger Name(Pfad);                                                                           \
    if (!Name.Vorhanden())                                                                                   \
    QSKIP("mounting a file system is not permitted here")

class TestDateischutzEcht : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        DateischutzVorbereiten();
    }
    void cleanup() { Welt.Aufraeumen(); }

    void EinVollerDatentraegerLaesstDenAltenInhalt();
    void EinVollerDatentraegerNimmtGleichGrosses();
    void AufEinemVollenDatentraegerEntstehtKeineNeueDatei();
    void WirdDerPlatzInzwischenVergebenBleibtDieRettungskopie();
    void EinSchreibgeschuetzterDatentraegerWirdGenannt();
    void EineUnveraenderlicheDateiBleibt();
    void FehlendeRechteWerdenGenannt();
    void EinVollerRettungsordnerLaesstDenAltenInhalt();
    void EinVollerRettungsordnerHatEinenErsatz();
    void EinVerschlossenerRettungsordnerHatEinenErsatz();
    void EineGrenzeDerDateigroesseBeendetDasProgrammNicht();

  private:
    /// A second place for rescue copies.
    void LaufzeitordnerStellen() const {
        const QString Ordner = Welt.Pfad(QStringLiteral("laufzeit"));
        QDir().mkdir(Ordner, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Ordner));
    }
    void Abgelehnt(const QString& Pfad, const QByteArray& Inhalt, Dateifehler::Art Grund,
                   const QString& Ursache);
    Testwelt Welt;
};

/// The save fails for this reason; target and state folder are as before.
void TestDateischutzEcht::Abgelehnt(const QString& Pfad, const QByteArray& Inhalt, Dateifehler::Art Grund,
                                    const QString& Ursache) {
    const bool WarDa = QFile::exists(Pfad);
    const auto Fehler = DateiSchreiben(Pfad, Inhalt);
    QVERIFY(Fehler.has_value());
    QCOMPARE(int(Fehler->Grund), int(Grund));
    QVERIFY2(Fehler->Text.contains(Ursache), qPrintable(Fehler->Text));
    QCOMPARE(Fehler->Rettungskopie, QString());
    QCOMPARE(QFile::exists(Pfad), WarDa);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), WarDa ? Alt : QByteArray());
    QCOMPARE(QDir(Zustandsverzeichnis()).entryList(QDir::Files), QStringList());
}

void TestDateischutzEcht::EinVollerDatentraegerLaesstDenAltenInhalt() {
    BRAUCHT_DATENTRAEGER(Stick, Welt.Pfad(QStringLiteral("stick")));
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("stick/buch.txt"), Alt);
    Stick.Fuellen();
    Abgelehnt(Pfad, Gross, Dateifehler::Art::Voll, QStringLiteral("der Datenträger ist voll"));
}

void TestDateischutzEcht::EinVollerDatentraegerNimmtGleichGrosses() {
    BRAUCHT_DATENTRAEGER(Stick, Welt.Pfad(QStringLiteral("stick")));
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("stick/buch.txt"), Alt);
    Stick.Fuellen();
    const QByteArray Neu(Alt.size(), 'n');
    QVERIFY(!DateiSchreiben(Pfad, Neu).has_value());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Neu);
}

void TestDateischutzEcht::AufEinemVollenDatentraegerEntstehtKeineNeueDatei() {
    BRAUCHT_DATENTRAEGER(Stick, Welt.Pfad(QStringLiteral("stick")));
    Stick.Fuellen();
    Abgelehnt(Welt.Pfad(QStringLiteral("stick/neu.txt")), Gross, Dateifehler::Art::Voll,
              QStringLiteral("der Datenträger ist voll"));
}

void TestDateischutzEcht::WirdDerPlatzInzwischenVergebenBleibtDieRettungskopie() {
    BRAUCHT_DATENTRAEGER(Stick, Welt.Pfad(QStringLiteral("stick")));
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("stick/buch.txt"), Alt);
    // Another program takes the blocks in the moment in which truncating sets them free.
    static const Datentraeger* Voller = nullptr;
    Voller = &Stick;
    Systemaufrufe Mit = EchteAufrufe();
    Mit.Ftruncate = [](int Fd, off_t Laenge) {
        const int Ergebnis = EchteAufrufe().Ftruncate(Fd, Laenge);
        Voller->Fuellen();
        return Ergebnis;
    };
    AufrufeSetzen(&Mit);
    const auto Fehler = DateiSchreiben(Pfad, Gross);
    AufrufeSetzen(nullptr);
    QVERIFY(Fehler.has_value());
    QCOMPARE(int(Fehler->Grund), int(Dateifehler::Art::Voll));
    const auto Kopie = RettungsinhaltLesen(Testwelt::DateiInhalt(Fehler->Rettungskopie));
    QVERIFY(Kopie.has_value());
    QCOMPARE(Kopie->Inhalt, Gross);
}

void TestDateischutzEcht::EinSchreibgeschuetzterDatentraegerWirdGenannt() {
    BRAUCHT_DATENTRAEGER(Stick, Welt.Pfad(QStringLiteral("stick")));
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("stick/buch.txt"), Alt);
    QVERIFY(Stick.Sperren());
    Abgelehnt(Pfad, Gross, Dateifehler::Art::Schreibgeschuetzt, QStringLiteral("schreibgeschützt"));
    Abgelehnt(Welt.Pfad(QStringLiteral("stick/neu.txt")), Gross, Dateifehler::Art::Schreibgeschuetzt,
              QStringLiteral("schreibgeschützt"));
}

void TestDateischutzEcht::EineUnveraenderlicheDateiBleibt() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    if (QProcess::execute(QStringLiteral("chattr"), {QStringLiteral("+i"), Pfad}) != 0)
        QSKIP("making a file immutable is not permitted here");
    Abgelehnt(Pfad, Gross, Dateifehler::Art::Schreibgeschuetzt, QStringLiteral("schreibgeschützt"));
    QCOMPARE(QProcess::execute(QStringLiteral("chattr"), {QStringLiteral("-i"), Pfad}), 0);
}

void TestDateischutzEcht::FehlendeRechteWerdenGenannt() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    QFile::setPermissions(Pfad, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    Zustandsverzeichnis();
    const Unprivilegiert Benutzer(Welt.Ordner());
    Abgelehnt(Pfad, Gross, Dateifehler::Art::KeinZugriff, QStringLiteral("kein Zugriff erlaubt"));
}

void TestDateischutzEcht::EinVollerRettungsordnerLaesstDenAltenInhalt() {
    BRAUCHT_DATENTRAEGER(Platte, Welt.Pfad(QStringLiteral("zustand")));
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    Platte.Fuellen();
    const auto Fehler = DateiSchreiben(Pfad, Gross);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Schritt, QStringLiteral("Rettungskopie"));
    QVERIFY2(Fehler->Text.contains(QStringLiteral("der Datenträger ist voll")), qPrintable(Fehler->Text));
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Alt);
    QCOMPARE(QDir(Zustandsverzeichnis()).entryList(QDir::Files), QStringList(QStringLiteral("ballast")));
}

void TestDateischutzEcht::EinVollerRettungsordnerHatEinenErsatz() {
    BRAUCHT_DATENTRAEGER(Platte, Welt.Pfad(QStringLiteral("zustand")));
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    LaufzeitordnerStellen();
    Platte.Fuellen();
    QVERIFY(!DateiSchreiben(Pfad, Gross).has_value());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Gross);
    QVERIFY(AusweichhinweisAbholen().contains(QStringLiteral("(der Datenträger ist voll)")));
    QCOMPARE(QDir(Zustandsverzeichnis()).entryList(QDir::Files), QStringList(QStringLiteral("ballast")));
    QCOMPARE(QDir(Welt.Pfad(QStringLiteral("laufzeit/tafelquell"))).entryList(QDir::Files), QStringList());
}

void TestDateischutzEcht::EinVerschlossenerRettungsordnerHatEinenErsatz() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    LaufzeitordnerStellen();
    QFile::setPermissions(Zustandsverzeichnis(), QFile::ReadOwner | QFile::ExeOwner);
    {
        const Unprivilegiert Benutzer(Welt.Ordner());
        QVERIFY(!DateiSchreiben(Pfad, Gross).has_value());
        QVERIFY(AusweichhinweisAbholen().contains(QStringLiteral("(kein Zugriff erlaubt)")));
    }
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Gross);
}

void TestDateischutzEcht::EineGrenzeDerDateigroesseBeendetDasProgrammNicht() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    rlimit Vorher{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &Vorher), 0);
    const rlimit Eng{10'000, Vorher.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &Eng), 0);
    Abgelehnt(Pfad, Gross, Dateifehler::Art::Voll, QStringLiteral("der Datenträger ist voll"));
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &Vorher), 0);
}

TESTKLASSE(TestDateischutzEcht)
#include "tst_DateischutzEcht.moc"
