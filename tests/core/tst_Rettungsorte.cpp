#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "Rettungsprobe.h"

#include "core/Dateischutz.h"
#include "core/Orte.h"
#include "core/Rettung.h"
#include "core/Rettungsablage.h"
#include "core/Rettungsorte.h"
#include "core/Systemaufrufe.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// A state folder that gives no room for a rescue copy, and the second choice below $XDG_RUNTIME_DIR.

namespace {

const QString Volltext = QStringLiteral("in einem flüchtigen Ordner");

/// What a system gives whose folders refuse new files; set before use.
struct Weigerung {
    static inline QByteArray Ordner; ///< no file is made below it
    static inline int Nummer = ENOSPC;
    static inline bool ZielKaputt = false; ///< after its truncation the target takes nothing
    static inline bool Gekuerzt = false;
    static inline bool Blind = false; ///< folders look empty
    static inline QByteArray Gesehen; ///< what lay in the runtime folder when the target was truncated
    static inline QByteArray Laufzeit;
};

int WeigerndesOpen(const char* Pfad, int Schalter, mode_t Rechte) {
    if ((Schalter & O_CREAT) == 0 || !QByteArray(Pfad).startsWith(Weigerung::Ordner))
        return EchteAufrufe().Open(Pfad, Schalter, Rechte);
    errno = Weigerung::Nummer;
    return -1;
}

int MerkendesFtruncate(int Fd, off_t Laenge) {
    Weigerung::Gekuerzt = true;
    const QDir Ordner(QFile::decodeName(Weigerung::Laufzeit));
    const QStringList Namen = Ordner.entryList(QDir::Files);
    Weigerung::Gesehen = Namen.join(u' ').toUtf8();
    return EchteAufrufe().Ftruncate(Fd, Laenge);
}

ssize_t WeigerndesPwrite(int Fd, const void* Puffer, size_t Laenge, off_t Stelle) {
    if (!Weigerung::ZielKaputt || !Weigerung::Gekuerzt)
        return EchteAufrufe().Pwrite(Fd, Puffer, Laenge, Stelle);
    errno = EIO;
    return -1;
}

/// While it lives, the folder refuses.
class Weigernd {
  public:
    Weigernd(const QByteArray& Ordner, int Nummer) {
        Weigerung::Ordner = Ordner;
        Weigerung::Nummer = Nummer;
        Weigerung::ZielKaputt = Weigerung::Gekuerzt = Weigerung::Blind = false;
        Weigerung::Gesehen.clear();
        Tabelle = EchteAufrufe();
        Tabelle.Open = WeigerndesOpen;
        Tabelle.Ftruncate = MerkendesFtruncate;
        Tabelle.Readdir = [](DIR* Offener) {
            return Weigerung::Blind ? nullptr : EchteAufrufe().Readdir(Offener);
        };
        Tabelle.Pwrite = WeigerndesPwrite;
        AufrufeSetzen(&Tabelle);
    }
    ~Weigernd() { AufrufeSetzen(nullptr); }
    Weigernd(const Weigernd&) = delete;
    Weigernd& operator=(const Weigernd&) = delete;

  private:
    Systemaufrufe Tabelle;
};

int Rechte(const QString& Pfad) {
    struct stat Stand {};
    return ::stat(QFile::encodeName(Pfad).constData(), &Stand) == 0 ? int(Stand.st_mode & 0777U) : -1;
}

} // namespace

class TestRettungsorte : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Welt.Aufraeumen(); }

    void NurEinEigenerVerschlossenerOrdnerGilt_data();
    void NurEinEigenerVerschlossenerOrdnerGilt();
    void EinOrdnerEinesAnderenGiltNicht();
    void OhneVariableGibtEsNurDenZustandsordner();
    void OhnePlatzLiegtDieKopieImZweitenOrdner_data();
    void OhnePlatzLiegtDieKopieImZweitenOrdner();
    void EinEinAusgabefehlerIstKeinGrundAuszuweichen();
    void OhneZweitenOrdnerBleibtDasZielUnberuehrt();
    void WeigernSichBeideBleibtDasZielUnberuehrtUndDerErsteWirdGenannt();
    void KopieUndOrdnerSindFuerAndereVerschlossen();
    void EinVerweisImZweitenOrdnerWirdNichtBefolgt();
    void KeineNummerKommtInBeidenOrdnernVor();
    void DerHinweisKommtEinmal();
    void OhneAusweichenGibtEsKeinenHinweis();
    void EinAbgebrochenesSpeichernSagtDassDieKopieFluechtigIst();
    void EineKopieImZustandsordnerIstNichtFluechtig();
    void DerNaechsteStartBietetDieKopieAusDemZweitenOrdnerAn();
    void WerSpaeterEntscheidetFindetSieImZustandsordner();
    void OhnePlatzBleibtSieUndDieFrageWarnt();
    void BeiseiteGelegtBleibtSieNurBisZumAbmelden();
    void EineGleicheKopieGehtOhneFrage();
    void BeimSpeichernGehtEineErledigteAuchDort();
    void VonBeidenOrdnernKommtDieNeuesteZuerst();
    void EinUnlesbarerOrdnerVerschweigtDenAnderenNicht();
    void UngespeichertesWirdAuchDortGerettet();

  private:
    QString Ziel() const { return Welt.Pfad(QStringLiteral("buch.txt")); }
    QString Laufzeit() const { return Welt.Pfad(QStringLiteral("laufzeit")); }
    QString ZweiterOrdner() const { return Laufzeit() + QStringLiteral("/tafelquell"); }
    static QStringList Dateien(const QString& Ordner) {
        return QDir(Ordner).entryList(QDir::Files, QDir::Name);
    }
    QByteArray Kopiebytes(const QByteArray& Inhalt) const;
    void Lege(const QByteArray& Zielinhalt, const QString& Kopie,
              const QByteArray& Kopieinhalt = NeuerStand) const;
    void Speichern() { QVERIFY(!DateiSchreiben(Ziel(), NeuerStand).has_value()); }

    Testwelt Welt;
};

void TestRettungsorte::init() {
    Welt.Herstellen();
    Zustandsverzeichnis();
    QDir().mkdir(Laufzeit(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Laufzeit()));
    Weigerung::Laufzeit = QFile::encodeName(ZweiterOrdner());
    Welt.DateiAnlegen(QStringLiteral("buch.txt"), AlterStand);
}

QByteArray TestRettungsorte::Kopiebytes(const QByteArray& Inhalt) const {
    Rettungskopf Kopf;
    Kopf.Ziel = QFile::encodeName(QFileInfo(Welt.Ordner()).canonicalFilePath() + QStringLiteral("/buch.txt"));
    Kopf.Inhalt = MarkeVon(Inhalt);
    Kopf.Vorher = MarkeVon(AlterStand);
    Kopf.Zeit = QDateTime(QDate(2003, 10, 12), QTime(10, 15));
    return RettungskopfBytes(Kopf) + Inhalt;
}

/// A target and one rescue copy of it, in the second folder or wherever the name leads.
void TestRettungsorte::Lege(const QByteArray& Zielinhalt, const QString& Kopie,
                            const QByteArray& Kopieinhalt) const {
    QDir().mkdir(ZweiterOrdner());
    Welt.DateiAnlegen(QStringLiteral("buch.txt"), Zielinhalt);
    Welt.DateiAnlegen(Kopie, Kopiebytes(Kopieinhalt));
}

void TestRettungsorte::NurEinEigenerVerschlossenerOrdnerGilt_data() {
    QTest::addColumn<QString>("Variable");
    QTest::addColumn<int>("Rechte");
    QTest::addColumn<bool>("Gilt");
    QTest::newRow("wie er sein soll") << QStringLiteral("%1/laufzeit") << 0x7700 << true;
    QTest::newRow("fuer die Gruppe lesbar") << QStringLiteral("%1/laufzeit") << 0x7740 << false;
    QTest::newRow("fuer andere durchlaessig") << QStringLiteral("%1/laufzeit") << 0x7701 << false;
    QTest::newRow("nicht beschreibbar") << QStringLiteral("%1/laufzeit") << 0x5500 << false;
    QTest::newRow("fehlt") << QStringLiteral("%1/fehlt") << 0x7700 << false;
    QTest::newRow("Datei") << QStringLiteral("%1/buch.txt") << 0x7700 << false;
    QTest::newRow("kein ganzer Pfad") << QStringLiteral("laufzeit") << 0x7700 << false;
    QTest::newRow("leer") << QString() << 0x7700 << false;
}

void TestRettungsorte::NurEinEigenerVerschlossenerOrdnerGilt() {
    QFETCH(QString, Variable);
    QFETCH(int, Rechte);
    QFETCH(bool, Gilt);
    QVERIFY(QFile::setPermissions(Laufzeit(), QFile::Permissions(Rechte)));
    const QString Vorher = QDir::currentPath();
    QDir::setCurrent(Welt.Ordner());
    qputenv("XDG_RUNTIME_DIR",
            QFile::encodeName(Variable.contains(u'%') ? Variable.arg(Welt.Ordner()) : Variable));
    const QList<QByteArray> Alle = AlleRettungsordner();
    QDir::setCurrent(Vorher);
    QCOMPARE(Alle.first(), Rettungsordner());
    QCOMPARE(Alle.mid(1), Gilt ? QList<QByteArray>{QFile::encodeName(ZweiterOrdner())} : QList<QByteArray>());
}

void TestRettungsorte::EinOrdnerEinesAnderenGiltNicht() {
    if (::geteuid() != 0)
        QSKIP("only root can give a folder to somebody else");
    QCOMPARE(::chown(QFile::encodeName(Laufzeit()).constData(), 65'534, static_cast<gid_t>(-1)), 0);
    QCOMPARE(AlleRettungsordner().size(), 1);
}

void TestRettungsorte::OhneVariableGibtEsNurDenZustandsordner() {
    qunsetenv("XDG_RUNTIME_DIR");
    QCOMPARE(AlleRettungsordner(), QList<QByteArray>{Rettungsordner()});
}

void TestRettungsorte::OhnePlatzLiegtDieKopieImZweitenOrdner_data() {
    QTest::addColumn<int>("Nummer");
    QTest::newRow("voll") << ENOSPC;
    QTest::newRow("Kontingent erschoepft") << EDQUOT;
    QTest::newRow("kein Zugriff") << EACCES;
    QTest::newRow("nicht erlaubt") << EPERM;
    QTest::newRow("schreibgeschuetzt") << EROFS;
    QTest::newRow("Ordner fort") << ENOENT;
    QTest::newRow("Datei im Weg") << ENOTDIR;
}

void TestRettungsorte::OhnePlatzLiegtDieKopieImZweitenOrdner() {
    QFETCH(int, Nummer);
    const Weigernd System(Rettungsordner(), Nummer);
    Speichern();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Weigerung::Gesehen, QByteArray("r.1.rescue"));
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList());
    QCOMPARE(Dateien(Zustandsverzeichnis()), QStringList());
}

/// A disc that fails says nothing about what else can be trusted.
void TestRettungsorte::EinEinAusgabefehlerIstKeinGrundAuszuweichen() {
    const Weigernd System(Rettungsordner(), EIO);
    const auto Fehler = DateiSchreiben(Ziel(), NeuerStand);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Schritt, QStringLiteral("Rettungskopie"));
    QVERIFY(!Weigerung::Gekuerzt);
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), AlterStand);
    QVERIFY(!QFile::exists(ZweiterOrdner()));
}

void TestRettungsorte::OhneZweitenOrdnerBleibtDasZielUnberuehrt() {
    qunsetenv("XDG_RUNTIME_DIR");
    const Weigernd System(Rettungsordner(), ENOSPC);
    const auto Fehler = DateiSchreiben(Ziel(), NeuerStand);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Schritt, QStringLiteral("Rettungskopie"));
    QVERIFY(!Weigerung::Gekuerzt);
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), AlterStand);
    QCOMPARE(AusweichhinweisAbholen(), QString());
}

void TestRettungsorte::WeigernSichBeideBleibtDasZielUnberuehrtUndDerErsteWirdGenannt() {
    const Weigernd System(QFile::encodeName(Welt.Ordner()), ENOSPC);
    const auto Fehler = DateiSchreiben(Ziel(), NeuerStand);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Text,
             QStringLiteral("Die Datei \"%1\" wurde nicht gespeichert und ist unverändert.\nGrund: Im Ordner "
                            "\"%2\" konnte keine Rettungskopie angelegt werden (der Datenträger ist voll).")
                 .arg(Ziel(), Zustandsverzeichnis()));
    QVERIFY(!Weigerung::Gekuerzt);
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), AlterStand);
    QCOMPARE(Dateien(ZweiterOrdner()) + Dateien(Zustandsverzeichnis()), QStringList());
    QCOMPARE(AusweichhinweisAbholen(), QString());
}

void TestRettungsorte::KopieUndOrdnerSindFuerAndereVerschlossen() {
    QDir().mkdir(ZweiterOrdner());
    QFile::setPermissions(ZweiterOrdner(), QFile::Permissions(0x7777));
    const Weigernd System(Rettungsordner(), ENOSPC);
    Weigerung::ZielKaputt = true;
    const auto Fehler = DateiSchreiben(Ziel(), NeuerStand);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Rechte(ZweiterOrdner()), 0700);
    QCOMPARE(Rechte(Fehler->Rettungskopie), 0600);
}

void TestRettungsorte::EinVerweisImZweitenOrdnerWirdNichtBefolgt() {
    QDir().mkdir(ZweiterOrdner());
    const QString Fremde = Welt.DateiAnlegen(QStringLiteral("fremd"), "gehoert jemandem");
    QVERIFY(QFile::link(Fremde, ZweiterOrdner() + QStringLiteral("/r.1.tmp")));
    const Weigernd System(Rettungsordner(), ENOSPC);
    Weigerung::Blind = true; // the name is found in use only when it is to be made
    Speichern();
    QCOMPARE(Testwelt::DateiInhalt(Fremde), QByteArray("gehoert jemandem"));
    QCOMPARE(Weigerung::Gesehen, QByteArray("r.1.tmp r.2.rescue"));
}

void TestRettungsorte::KeineNummerKommtInBeidenOrdnernVor() {
    Welt.DateiAnlegen(QStringLiteral("zustand/r.7.beiseite"), "von frueher");
    const Weigernd System(Rettungsordner(), ENOSPC);
    Speichern();
    QCOMPARE(Weigerung::Gesehen, QByteArray("r.8.rescue"));
}

void TestRettungsorte::DerHinweisKommtEinmal() {
    const Weigernd System(Rettungsordner(), EACCES);
    Speichern();
    const QString Hinweis = AusweichhinweisAbholen();
    QCOMPARE(Hinweis,
             QStringLiteral("Im Ordner \"%1\" konnte keine Rettungskopie angelegt werden (kein Zugriff "
                            "erlaubt).\nDie Rettungskopien liegen deshalb vorerst im Ordner \"%2\". Dort "
                            "schützen sie vor einem Absturz des Programms, aber nicht vor Stromausfall, "
                            "Abmelden oder Ausschalten.\n\nBitte sorgen Sie im zuerst genannten Ordner für "
                            "Platz und Zugriff!")
                 .arg(Zustandsverzeichnis(), ZweiterOrdner()));
    Speichern();
    QCOMPARE(AusweichhinweisAbholen(), QString());
    AusweichhinweisZeigen();
    QVERIFY(Welt.Boxen.Gezeigt.isEmpty());
}

void TestRettungsorte::OhneAusweichenGibtEsKeinenHinweis() {
    Speichern();
    QCOMPARE(AusweichhinweisAbholen(), QString());
    QVERIFY(!QFile::exists(ZweiterOrdner()));
}

void TestRettungsorte::EinAbgebrochenesSpeichernSagtDassDieKopieFluechtigIst() {
    const Weigernd System(Rettungsordner(), ENOSPC);
    Weigerung::ZielKaputt = true;
    const auto Fehler = DateiSchreiben(Ziel(), NeuerStand);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Rettungskopie, ZweiterOrdner() + QStringLiteral("/r.1.rescue"));
    QVERIFY2(Fehler->Text.contains(Volltext), qPrintable(Fehler->Text));
    const auto Kopie = RettungsinhaltLesen(Testwelt::DateiInhalt(Fehler->Rettungskopie));
    QVERIFY(Kopie.has_value());
    QCOMPARE(Kopie->Inhalt, NeuerStand);
}

void TestRettungsorte::EineKopieImZustandsordnerIstNichtFluechtig() {
    const Weigernd System("/nirgends", ENOSPC);
    Weigerung::ZielKaputt = true;
    const auto Fehler = DateiSchreiben(Ziel(), NeuerStand);
    QVERIFY(Fehler.has_value());
    QVERIFY2(!Fehler->Text.contains(Volltext), qPrintable(Fehler->Text));
}

void TestRettungsorte::DerNaechsteStartBietetDieKopieAusDemZweitenOrdnerAn() {
    Lege(NeuerStand.left(5), QStringLiteral("laufzeit/tafelquell/r.1.rescue"));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei\n"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Dateien(ZweiterOrdner()) + Dateien(Zustandsverzeichnis()), QStringList());
}

/// The answer may come after the computer was switched off.
void TestRettungsorte::WerSpaeterEntscheidetFindetSieImZustandsordner() {
    Lege(AlterStand, QStringLiteral("laufzeit/tafelquell/r.1.rescue"));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Spaeter);
    RettungenAnbieten();
    QVERIFY(!Welt.Boxen.Gezeigt.last().Text.contains(Volltext));
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList());
    QCOMPARE(Dateien(Zustandsverzeichnis()), QStringList(QStringLiteral("r.2.rescue")));
    QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("zustand/r.2.rescue"))), Kopiebytes(NeuerStand));
}

void TestRettungsorte::OhnePlatzBleibtSieUndDieFrageWarnt() {
    Lege(AlterStand, QStringLiteral("laufzeit/tafelquell/r.1.rescue"));
    const Weigernd System(Rettungsordner(), ENOSPC);
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Spaeter);
    RettungenAnbieten();
    QVERIFY(Welt.Boxen.Gezeigt.last().Text.contains(Volltext));
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList(QStringLiteral("r.1.rescue")));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList());
}

void TestRettungsorte::BeiseiteGelegtBleibtSieNurBisZumAbmelden() {
    Lege(AlterStand, QStringLiteral("laufzeit/tafelquell/r.1.rescue"));
    const Weigernd System(Rettungsordner(), ENOSPC);
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Zweiter);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Rettungskopie bleibt erhalten als\n\"") + ZweiterOrdner());
    RettungenAnbieten();
    QVERIFY(Welt.Boxen.Gezeigt.last().Text.contains(Volltext));
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList(QStringLiteral("r.1.beiseite")));
}

void TestRettungsorte::EineGleicheKopieGehtOhneFrage() {
    Lege(NeuerStand, QStringLiteral("laufzeit/tafelquell/r.1.rescue"));
    RettungenAnbieten();
    QCOMPARE(Dateien(ZweiterOrdner()) + Dateien(Zustandsverzeichnis()), QStringList());
}

void TestRettungsorte::BeimSpeichernGehtEineErledigteAuchDort() {
    Lege(AlterStand, QStringLiteral("laufzeit/tafelquell/r.1.rescue"), AlterStand);
    Speichern();
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList());
}

void TestRettungsorte::VonBeidenOrdnernKommtDieNeuesteZuerst() {
    Lege("anderes", QStringLiteral("laufzeit/tafelquell/r.9.rescue"));
    Welt.DateiAnlegen(QStringLiteral("zustand/r.10.rescue"), Kopiebytes("zehn"));
    Welt.DateiAnlegen(QStringLiteral("zustand/r.2.rescue"), Kopiebytes("zwei"));
    QList<QByteArray> Pfade;
    QCOMPARE(RettungenAuflisten(&Pfade), 0);
    QCOMPARE(Pfade.size(), 3);
    QVERIFY(Pfade[0].endsWith("zustand/r.10.rescue"));
    QVERIFY(Pfade[1].endsWith("tafelquell/r.9.rescue"));
    QVERIFY(Pfade[2].endsWith("zustand/r.2.rescue"));
}

void TestRettungsorte::EinUnlesbarerOrdnerVerschweigtDenAnderenNicht() {
    Lege(NeuerStand.left(5), QStringLiteral("laufzeit/tafelquell/r.1.rescue"));
    ZustandsverzeichnisSetzen(Ziel() + QStringLiteral("/zustand")); // below a file
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Im Ordner \"%1/zustand\"").arg(Ziel()));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei\n"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
}

void TestRettungsorte::UngespeichertesWirdAuchDortGerettet() {
    const Weigernd System(Rettungsordner(), ENOSPC);
    QCOMPARE(UngespeichertesRetten(Ziel(), NeuerStand), 0);
    QCOMPARE(Dateien(ZweiterOrdner()), QStringList(QStringLiteral("r.1.rescue")));
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), AlterStand);
    QVERIFY(!AusweichhinweisAbholen().isEmpty());
}

TESTKLASSE(TestRettungsorte)
#include "tst_Rettungsorte.moc"
