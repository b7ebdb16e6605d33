#include "common/Stoerung.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Dateischutz.h"
#include "core/Meldungen.h"
#include "core/Orte.h"
#include "core/Rettung.h"
#include "core/Systemaufrufe.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <functional>

#include <malloc.h>

// Every call of a save, a load and a recovery fails, is cut short or is the last one, each in a run of its
// own. After each, with a sound system again, the next start must have the old or the new content, whole.

namespace {

constexpr int Fehlernummern[] = {ENOSPC, EIO, EACCES, EROFS, EINTR};

/// Takes the first choice of every offer: the rescue copy is used.
class Annehmende : public Meldungsdienst {
  public:
    Antwort Zeigen(const Meldungstext& /*Meldung*/) override { return Antwort::Ok; }
    int Waehlen(const Auswahlfrage& /*Frage*/) override {
        ++Angebote;
        return 0;
    }
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& /*Wunsch*/) override { return {}; }
    std::optional<Dateiwahl> Speichern(const Dateiwunsch& /*Wunsch*/) override { return {}; }
    int Angebote = 0;
};

/// How a run begins: what target and state folder hold.
struct Ausgangslage {
    const char* Name;
    std::optional<QByteArray> Alt; ///< nothing: the target does not exist
    QByteArray Neu;
    /// What the rescue copy finds.
    enum class Ort {
        Zustand,            ///< the state folder
        NochKeiner,         ///< no state folder yet
        ZustandOderZweiter, ///< the state folder, and a second choice
        NurZweiter,         ///< a state folder that cannot be, and the second choice
    };
    Ort Rettung = Ort::Zustand;
};

// Longer than the buffer for comparing, so that reads and compares are several calls.
const QByteArray Langer = QByteArray(70'000, 'n') + "Ende";

const QList<Ausgangslage>& Lagen() {
    static const QList<Ausgangslage> Alle{
        {"waechst", QByteArray("alter Stand"), Langer},
        {"schrumpft", Langer, QByteArray("neuer Stand")},
        {"neue Datei", {}, QByteArray("neuer Stand")},
        {"ohne Zustandsordner", QByteArray("alter Stand"), QByteArray("neuer Stand, laenger"),
         Ausgangslage::Ort::NochKeiner},
        {"mit zweitem Ordner", QByteArray("alter Stand"), QByteArray("neuer Stand, laenger"),
         Ausgangslage::Ort::ZustandOderZweiter},
        {"nur im zweiten Ordner", QByteArray("alter Stand"), QByteArray("neuer Stand, laenger"),
         Ausgangslage::Ort::NurZweiter},
    };
    return Alle;
}

struct Ergebnis {
    std::optional<Dateifehler> Fehler;
    bool Tot = false;
};

} // namespace

class TestDateischutzStoerungen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void JederAufrufDesSpeichernsScheitert();
    void JederAufrufDesSpeichernsIstDerLetzte();
    void KurzeAufrufeAendernNichts();
    void EineUnterbrechungDurchEinSignalWirdWiederholt();
    void DieSchritteStehenInDieserReihenfolge_data();
    void DieSchritteStehenInDieserReihenfolge();
    void EineLuegendePlatteWirdBeimNachlesenErkannt_data();
    void EineLuegendePlatteWirdBeimNachlesenErkannt();
    void JederAufrufDesLesensScheitert();
    void JederAufrufDerRettungScheitert();
    void JederAufrufDerRettungIstDerLetzte();
    void JederAufrufDesHeimholensScheitert();
    void JederAufrufDesHeimholensIstDerLetzte();
    void EinScheiternVorDemKuerzenLaesstNichtsZurueck();
    void NachDemKuerzenNenntDerFehlerDieRettungskopie();
    void EinFehlerBeimErstenSchreibenWirdDurchNeuschreibenGeheilt();
    void ZwischenReservierenUndEndeWirdKeinSpeicherVerlangt();

  private:
    QString Ziel() const { return Welt.Pfad(QStringLiteral("buch.txt")); }
    std::optional<QByteArray> Stand() const;
    void Herrichten(const Ausgangslage& Lage);
    Ergebnis Speichern(const QByteArray& Inhalt, const Stoerung& Plan);
    bool Anbieten(const Stoerung& Plan);
    void PruefeGanz(const Ausgangslage& Lage, const QString& Wo);
    void FuerAlleFehler(const std::function<bool(const Stoerung&)>& Lauf);
    void Beschaedigen(const Ausgangslage& Lage);
    /// The state folder is there, as it should be.
    void ZustandMoeglich() const {
        ZustandsverzeichnisSetzen(Welt.Pfad(QStringLiteral("zustand")));
        Zustandsverzeichnis(); // asking for it makes it
    }
    /// A target half written, and its copy in the second folder only; the state folder has room again.
    void NurImZweitenOrdnerGerettet() {
        Beschaedigen(Lagen().last());
        QCOMPARE(QDir(Welt.Pfad(QStringLiteral("laufzeit/tafelquell"))).entryList(QDir::Files).size(), 1);
        ZustandMoeglich();
    }

    Testwelt Welt;
    int Punkte = 0;
};

std::optional<QByteArray> TestDateischutzStoerungen::Stand() const {
    QFile Datei(Ziel());
    return Datei.open(QIODevice::ReadOnly) ? std::optional(Datei.readAll()) : std::nullopt;
}

void TestDateischutzStoerungen::Herrichten(const Ausgangslage& Lage) {
    for (const char* Ordner : {"zustand", "tief", "laufzeit"})
        QDir(Welt.Pfad(QString::fromLatin1(Ordner))).removeRecursively();
    QFile::remove(Ziel());
    qunsetenv("XDG_RUNTIME_DIR");
    ZustandMoeglich();
    if (Lage.Rettung == Ausgangslage::Ort::NochKeiner)
        ZustandsverzeichnisSetzen(Welt.Pfad(QStringLiteral("tief/unten/zustand")));
    if (Lage.Rettung == Ausgangslage::Ort::NurZweiter)
        ZustandsverzeichnisSetzen(Welt.DateiAnlegen(QStringLiteral("im_weg"), {}) +
                                  QStringLiteral("/zustand"));
    if (Lage.Rettung >= Ausgangslage::Ort::ZustandOderZweiter) {
        const QString Laufzeit = Welt.Pfad(QStringLiteral("laufzeit"));
        QDir().mkdir(Laufzeit, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Laufzeit));
    }
    QDir(Welt.Pfad(QStringLiteral("tief"))).removeRecursively(); // asking for the name has made it
    if (Lage.Alt)
        Welt.DateiAnlegen(QStringLiteral("buch.txt"), *Lage.Alt);
}

Ergebnis TestDateischutzStoerungen::Speichern(const QByteArray& Inhalt, const Stoerung& Plan) {
    const Stoertafel Tafel(Plan);
    try {
        auto Fehler = DateiSchreiben(Ziel(), Inhalt);
        return {Fehler, Stoertafel::Tot()};
    } catch (const Abgestuerzt&) {
        return {{}, true};
    }
}

/// The next start. True if the process ended in it.
bool TestDateischutzStoerungen::Anbieten(const Stoerung& Plan) {
    Annehmende Dienst;
    MeldungsdienstSetzen(&Dienst);
    bool Gestorben = false;
    {
        const Stoertafel Tafel(Plan);
        try {
            RettungenAnbieten();
            Gestorben = Stoertafel::Tot();
        } catch (const Abgestuerzt&) {
            Gestorben = true;
        }
    }
    MeldungsdienstSetzen(&Welt.Boxen);
    return Gestorben;
}

/// After a start with a sound system: old or new, whole, and nothing left to be offered.
void TestDateischutzStoerungen::PruefeGanz(const Ausgangslage& Lage, const QString& Wo) {
    Anbieten({});
    const auto Jetzt = Stand();
    // A save that ended before its rescue copy was complete may leave the new file it had made, empty.
    const bool Alt = Jetzt == Lage.Alt || (!Lage.Alt && Jetzt == QByteArray());
    QVERIFY2(Alt || Jetzt == Lage.Neu, qPrintable(Wo));
    Annehmende Dienst;
    MeldungsdienstSetzen(&Dienst);
    RettungenAnbieten();
    MeldungsdienstSetzen(&Welt.Boxen);
    QVERIFY2(Dienst.Angebote == 0, qPrintable(Wo));
}

/// Each error at each call: once, from then on, and from then on at calls of that name; until a run meets
/// none.
void TestDateischutzStoerungen::FuerAlleFehler(const std::function<bool(const Stoerung&)>& Lauf) {
    struct Dauer {
        bool Dauernd, NurDieser;
    };
    for (const int Nummer : Fehlernummern)
        for (const Dauer Wie : {Dauer{false, false}, Dauer{true, false}, Dauer{true, true}})
            for (int Stelle = 1; Lauf({Stoerung::Art::Fehler, Stelle, Wie.Dauernd, Nummer, Wie.NurDieser});
                 ++Stelle)
                ++Punkte;
}

void TestDateischutzStoerungen::JederAufrufDesSpeichernsScheitert() {
    Punkte = 0;
    for (const Ausgangslage& Lage : Lagen()) {
        FuerAlleFehler([&](const Stoerung& Plan) {
            Herrichten(Lage);
            const Ergebnis Lauf = Speichern(Lage.Neu, Plan);
            const QString Wo =
                QStringLiteral("%1: %2 bei %3 (%4)%5")
                    .arg(QString::fromLatin1(Lage.Name), QString::number(Plan.Fehlernummer),
                         QString::number(Plan.Stelle), Stoertafel::Namen().value(Plan.Stelle - 1),
                         Plan.Dauernd ? QStringLiteral(" dauernd") : QString());
            if (!Lauf.Fehler && Stand() != Lage.Neu)
                QTest::qFail(qPrintable(QStringLiteral("falscher Erfolg: ") + Wo), __FILE__, __LINE__);
            if (Lauf.Fehler && Lauf.Fehler->Rettungskopie.isEmpty() && !Plan.Dauernd && Stand() != Lage.Alt)
                QTest::qFail(qPrintable(QStringLiteral("nicht unberuehrt: ") + Wo), __FILE__, __LINE__);
            if (Lauf.Fehler && !Lauf.Fehler->Rettungskopie.isEmpty())
                [&] {
                    const auto Kopie = RettungsinhaltLesen(Testwelt::DateiInhalt(Lauf.Fehler->Rettungskopie));
                    QVERIFY2(Kopie && Kopie->Inhalt == Lage.Neu, qPrintable(Wo));
                }();
            const bool Getroffen = Stoertafel::Getroffen();
            PruefeGanz(Lage, Wo);
            return Getroffen && !QTest::currentTestFailed();
        });
    }
    qInfo("Fehlerpunkte: %d", Punkte);
}

void TestDateischutzStoerungen::JederAufrufDesSpeichernsIstDerLetzte() {
    Punkte = 0;
    for (const auto Art : {Stoerung::Art::Absturz, Stoerung::Art::HalberAbsturz}) {
        for (const Ausgangslage& Lage : Lagen()) {
            for (int Stelle = 1;; ++Stelle, ++Punkte) {
                Herrichten(Lage);
                if (!Speichern(Lage.Neu, {Art, Stelle, false, 0}).Tot)
                    break;
                PruefeGanz(Lage, QStringLiteral("%1: Ende bei %2")
                                     .arg(QString::fromLatin1(Lage.Name), QString::number(Stelle)));
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }
    qInfo("Absturzpunkte: %d", Punkte);
}

void TestDateischutzStoerungen::KurzeAufrufeAendernNichts() {
    for (const Ausgangslage& Lage : Lagen()) {
        for (const bool Dauernd : {false, true}) {
            for (int Stelle = 1;; ++Stelle) {
                Herrichten(Lage);
                const Ergebnis Lauf = Speichern(Lage.Neu, {Stoerung::Art::Kurz, Stelle, Dauernd, 0});
                QVERIFY2(!Lauf.Fehler, Lauf.Fehler ? qPrintable(Lauf.Fehler->Text) : "");
                QCOMPARE(Stand(), std::optional(Lage.Neu));
                if (!Stoertafel::Getroffen())
                    break;
            }
        }
    }
}

void TestDateischutzStoerungen::EineUnterbrechungDurchEinSignalWirdWiederholt() {
    for (const Ausgangslage& Lage : Lagen()) {
        for (int Stelle = 1;; ++Stelle) {
            Herrichten(Lage);
            const Ergebnis Lauf = Speichern(Lage.Neu, {Stoerung::Art::Fehler, Stelle, false, EINTR});
            QVERIFY2(!Lauf.Fehler, Lauf.Fehler ? qPrintable(Lauf.Fehler->Text) : "");
            QCOMPARE(Stand(), std::optional(Lage.Neu));
            if (!Stoertafel::Getroffen())
                break;
        }
    }
}

void TestDateischutzStoerungen::DieSchritteStehenInDieserReihenfolge_data() {
    QTest::addColumn<int>("Lage");
    QTest::addColumn<QString>("Schritte");
    // Rescue copy durable, name durable; room; old content gone, new one durable; copy gone.
    const QString Rettung = QStringLiteral("pwrite pwrite fsync rename fsync ");
    QTest::newRow("waechst") << 0
                             << Rettung + QStringLiteral("fallocate ftruncate pwrite fsync unlink fsync");
    QTest::newRow("schrumpft") << 1 << Rettung + QStringLiteral("ftruncate pwrite fsync unlink fsync");
    QTest::newRow("neue Datei: ihr Ordner auch")
        << 2 << Rettung + QStringLiteral("fallocate ftruncate pwrite fsync fsync unlink fsync");
}

void TestDateischutzStoerungen::DieSchritteStehenInDieserReihenfolge() {
    QFETCH(int, Lage);
    QFETCH(QString, Schritte);
    Herrichten(Lagen().at(Lage));
    QVERIFY(!Speichern(Lagen().at(Lage).Neu, {}).Fehler);
    const QStringList Schreibende{QStringLiteral("pwrite"),    QStringLiteral("fsync"),
                                  QStringLiteral("rename"),    QStringLiteral("fallocate"),
                                  QStringLiteral("ftruncate"), QStringLiteral("unlink")};
    QStringList Gesehen = Stoertafel::Namen();
    Gesehen.removeIf([&](const QString& Name) { return !Schreibende.contains(Name); });
    QCOMPARE(Gesehen.join(u' '), Schritte);
}

void TestDateischutzStoerungen::EineLuegendePlatteWirdBeimNachlesenErkannt_data() {
    QTest::addColumn<int>("Geschriebenes"); // per cent of what is acknowledged
    QTest::newRow("nichts") << 0;
    QTest::newRow("die Haelfte") << 50;
}

void TestDateischutzStoerungen::EineLuegendePlatteWirdBeimNachlesenErkannt() {
    QFETCH(int, Geschriebenes);
    static int Anteil = 0;
    static bool Gekuerzt = false;
    Anteil = Geschriebenes;
    Gekuerzt = false;
    Systemaufrufe Luegend = EchteAufrufe();
    Luegend.Ftruncate = [](int Fd, off_t Laenge) {
        Gekuerzt = true; // what is written from now on is the target
        return EchteAufrufe().Ftruncate(Fd, Laenge);
    };
    Luegend.Pwrite = [](int Fd, const void* Puffer, size_t Laenge, off_t Stelle) {
        const size_t Wirklich = Gekuerzt ? Laenge * static_cast<size_t>(Anteil) / 100 : Laenge;
        return EchteAufrufe().Pwrite(Fd, Puffer, Wirklich, Stelle) < 0 ? -1 : static_cast<ssize_t>(Laenge);
    };
    Herrichten(Lagen().first());
    AufrufeSetzen(&Luegend);
    const auto Fehler = DateiSchreiben(Ziel(), Langer);
    AufrufeSetzen(nullptr);
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Schritt, QStringLiteral("Nachlesen"));
    const auto Kopie = RettungsinhaltLesen(Testwelt::DateiInhalt(Fehler->Rettungskopie));
    QVERIFY(Kopie.has_value());
    QCOMPARE(Kopie->Inhalt, Langer);
}

void TestDateischutzStoerungen::JederAufrufDesLesensScheitert() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Langer);
    FuerAlleFehler([&](const Stoerung& Plan) {
        const Stoertafel Tafel(Plan);
        Dateifehler Fehler;
        QByteArray Teil;
        const auto Inhalt = DateiLesen(Pfad, &Fehler, &Teil);
        if (Inhalt && *Inhalt != Langer)
            QTest::qFail("halb gelesen und nichts gesagt", __FILE__, __LINE__);
        if (!Inhalt && (Fehler.Text.isEmpty() || !Langer.startsWith(Teil)))
            QTest::qFail("ohne Grund gescheitert", __FILE__, __LINE__);
        return Stoertafel::Getroffen();
    });
}

/// A target that a save left half written, beside its rescue copy.
void TestDateischutzStoerungen::Beschaedigen(const Ausgangslage& Lage) {
    Herrichten(Lage);
    Speichern(Lage.Neu, {});
    const QStringList Namen = Stoertafel::Namen();
    Herrichten(Lage);
    const int Stelle = static_cast<int>(Namen.indexOf(QStringLiteral("ftruncate"))) + 2;
    QVERIFY(Speichern(Lage.Neu, {Stoerung::Art::HalberAbsturz, Stelle, false, 0}).Tot);
    QVERIFY(Stand() != Lage.Alt && Stand() != Lage.Neu);
}

void TestDateischutzStoerungen::JederAufrufDerRettungScheitert() {
    Punkte = 0;
    const Ausgangslage Lage = Lagen().first();
    FuerAlleFehler([&](const Stoerung& Plan) {
        Beschaedigen(Lage);
        Anbieten(Plan);
        const bool Getroffen = Stoertafel::Getroffen();
        Anbieten({});
        [&] { QCOMPARE(Stand(), std::optional(Lage.Neu)); }();
        PruefeGanz(Lage, QString::number(Plan.Stelle));
        return Getroffen && !QTest::currentTestFailed();
    });
    qInfo("Fehlerpunkte: %d", Punkte);
}

void TestDateischutzStoerungen::JederAufrufDerRettungIstDerLetzte() {
    const Ausgangslage Lage = Lagen().first();
    for (const auto Art : {Stoerung::Art::Absturz, Stoerung::Art::HalberAbsturz}) {
        for (int Stelle = 1;; ++Stelle) {
            Beschaedigen(Lage);
            const bool Gestorben = Anbieten({Art, Stelle, false, 0});
            Anbieten({});
            QCOMPARE(Stand(), std::optional(Lage.Neu));
            PruefeGanz(Lage, QString::number(Stelle));
            if (!Gestorben || QTest::currentTestFailed())
                break;
        }
    }
}

void TestDateischutzStoerungen::JederAufrufDesHeimholensScheitert() {
    Punkte = 0;
    const Ausgangslage Lage = Lagen().last();
    FuerAlleFehler([&](const Stoerung& Plan) {
        NurImZweitenOrdnerGerettet();
        Anbieten(Plan);
        const bool Getroffen = Stoertafel::Getroffen();
        Anbieten({});
        [&] { QCOMPARE(Stand(), std::optional(Lage.Neu)); }();
        PruefeGanz(Lage, QString::number(Plan.Stelle));
        return Getroffen && !QTest::currentTestFailed();
    });
    qInfo("Fehlerpunkte: %d", Punkte);
}

void TestDateischutzStoerungen::JederAufrufDesHeimholensIstDerLetzte() {
    Punkte = 0;
    const Ausgangslage Lage = Lagen().last();
    for (const auto Art : {Stoerung::Art::Absturz, Stoerung::Art::HalberAbsturz}) {
        for (int Stelle = 1;; ++Stelle, ++Punkte) {
            NurImZweitenOrdnerGerettet();
            const bool Gestorben = Anbieten({Art, Stelle, false, 0});
            Anbieten({});
            QCOMPARE(Stand(), std::optional(Lage.Neu));
            PruefeGanz(Lage, QString::number(Stelle));
            if (!Gestorben || QTest::currentTestFailed())
                break;
        }
    }
    qInfo("Absturzpunkte: %d", Punkte);
}

void TestDateischutzStoerungen::EinScheiternVorDemKuerzenLaesstNichtsZurueck() {
    const Ausgangslage Lage = Lagen().first();
    Herrichten(Lage);
    Speichern(Lage.Neu, {});
    const int Kuerzen = static_cast<int>(Stoertafel::Namen().indexOf(QStringLiteral("ftruncate"))) + 1;
    for (int Stelle = 1; Stelle < Kuerzen; ++Stelle) {
        Herrichten(Lage);
        const Ergebnis Lauf = Speichern(Lage.Neu, {Stoerung::Art::Fehler, Stelle, false, ENOSPC});
        if (!Lauf.Fehler) // a call whose failure is no reason to give up, such as the lock
            continue;
        QCOMPARE(Stand(), Lage.Alt);
        QCOMPARE(QDir(Zustandsverzeichnis()).entryList(QDir::Files), QStringList());
        QCOMPARE(int(Lauf.Fehler->Grund), int(Dateifehler::Art::Voll));
        QVERIFY(Lauf.Fehler->Text.contains(QStringLiteral("der Datenträger ist voll")));
    }
}

void TestDateischutzStoerungen::NachDemKuerzenNenntDerFehlerDieRettungskopie() {
    const Ausgangslage Lage = Lagen().first();
    Herrichten(Lage);
    Speichern(Lage.Neu, {});
    const int Kuerzen = static_cast<int>(Stoertafel::Namen().indexOf(QStringLiteral("ftruncate"))) + 1;
    Herrichten(Lage);
    const Ergebnis Lauf = Speichern(Lage.Neu, {Stoerung::Art::Fehler, Kuerzen + 1, true, ENOSPC});
    QVERIFY(Lauf.Fehler.has_value());
    QCOMPARE(Lauf.Fehler->Schritt, QStringLiteral("Schreiben"));
    const auto Kopie = RettungsinhaltLesen(Testwelt::DateiInhalt(Lauf.Fehler->Rettungskopie));
    QVERIFY(Kopie.has_value());
    QCOMPARE(Kopie->Inhalt, Lage.Neu);
    QVERIFY(Lauf.Fehler->Text.contains(Lauf.Fehler->Rettungskopie));
}

void TestDateischutzStoerungen::EinFehlerBeimErstenSchreibenWirdDurchNeuschreibenGeheilt() {
    const Ausgangslage Lage = Lagen().first();
    Herrichten(Lage);
    Speichern(Lage.Neu, {});
    const int Schreiben = static_cast<int>(Stoertafel::Namen().indexOf(QStringLiteral("ftruncate"))) + 2;
    for (const int Nummer : {EIO, ENOSPC}) {
        Herrichten(Lage);
        const Ergebnis Lauf = Speichern(Lage.Neu, {Stoerung::Art::Fehler, Schreiben, false, Nummer});
        QVERIFY(!Lauf.Fehler);
        QCOMPARE(Stand(), std::optional(Lage.Neu));
        QCOMPARE(QDir(Zustandsverzeichnis()).entryList(QDir::Files), QStringList());
    }
}

void TestDateischutzStoerungen::ZwischenReservierenUndEndeWirdKeinSpeicherVerlangt() {
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("the sanitizer's own allocator does not tell what is in use");
#endif
    // Whoever ends after the reservation has the memory he had then; the list of names is made beforehand.
    static QList<size_t> Belegt;
    static Systemaufrufe Messend;
    Messend = EchteAufrufe();
    Belegt.clear();
    Belegt.reserve(100);
    static const auto Messen = [] { Belegt.append(::mallinfo2().uordblks); };
    Messend.Fallocate = [](int Fd, int Art, off_t Anfang, off_t Laenge) {
        Messen();
        return EchteAufrufe().Fallocate(Fd, Art, Anfang, Laenge);
    };
    Messend.Ftruncate = [](int Fd, off_t Laenge) {
        Messen();
        return EchteAufrufe().Ftruncate(Fd, Laenge);
    };
    Messend.Read = [](int Fd, void* Puffer, size_t Laenge) {
        if (!Belegt.isEmpty())
            Messen();
        return EchteAufrufe().Read(Fd, Puffer, Laenge);
    };
    Messend.Unlink = [](const char* Pfad) {
        Messen();
        return EchteAufrufe().Unlink(Pfad);
    };
    Herrichten(Lagen().first());
    AufrufeSetzen(&Messend);
    const auto Fehler = DateiSchreiben(Ziel(), Langer);
    AufrufeSetzen(nullptr);
    QVERIFY(!Fehler);
    QVERIFY(Belegt.size() >= 5);
    for (const size_t Menge : Belegt)
        QCOMPARE(Menge, Belegt.first());
}

TESTKLASSE(TestDateischutzStoerungen)
#include "tst_DateischutzStoerungen.moc"
