#include "core/Rettungskopie.h"

#include "core/Orte.h"

#include <QFile>

#include <algorithm>
#include <memory>

#include <fcntl.h>
#include <sys/file.h>

namespace {

const QByteArray Fertig = QByteArrayLiteral("rescue");
const QByteArray Unfertig = QByteArrayLiteral("tmp");

QByteArray PfadVon(const QByteArray& Ordner, qint64 Nummer, const QByteArray& Endung) {
    return Ordner + "/r." + QByteArray::number(Nummer) + '.' + Endung;
}

/// The number of a name r.N.anything; 0 for other names.
qint64 NummerVon(const QByteArray& Name) {
    constexpr qint64 Groesste = 1'000'000'000'000;
    const QList<QByteArray> Teile = Name.split('.');
    const qint64 Nummer = Teile.size() == 3 && Teile[0] == "r" ? Teile[1].toLongLong() : 0;
    return Nummer > 0 && Nummer < Groesste ? Nummer : 0;
}

bool IstRettung(const QByteArray& Name) {
    return NummerVon(Name) > 0 && (Name.endsWith('.' + Fertig) || Name.endsWith('.' + Unfertig));
}

int NamenLesen(const QByteArray& Ordner, QList<QByteArray>* Namen) {
    DIR* const Offener = Beharrlich([&] { return Aufrufe().Opendir(Ordner.constData()); }, nullptr);
    if (!Offener)
        return errno == ENOENT ? 0 : errno;
    const std::unique_ptr<DIR, int (*)(DIR*)> Eigner(Offener, Aufrufe().Closedir);
    const auto Naechster = [&] {
        errno = 0; // at the end of the folder it stays so
        return Aufrufe().Readdir(Offener);
    };
    while (const dirent* const Eintrag = Beharrlich(Naechster, nullptr))
        Namen->append(QByteArray(Eintrag->d_name));
    return errno;
}

/// The folder is there and closed to others.
int OrdnerBereiten(const QByteArray& Ordner) {
    Deskriptor Offener;
    int Fehler = DateiOeffnen(Ordner, O_RDONLY | O_DIRECTORY, &Offener);
    if (Fehler == ENOENT) {
        // Asking for the name has tried to make it; this tells why that failed.
        Fehler = Beharrlich([&] { return Aufrufe().Mkdir(Ordner.constData(), 0700); }) == -1 ? errno : 0;
        if (Fehler == 0)
            Fehler = DateiOeffnen(Ordner, O_RDONLY | O_DIRECTORY, &Offener);
    }
    struct stat Stand {};
    if (Fehler == 0)
        Fehler = DateiStand(Offener, &Stand);
    if (Fehler == 0 && (Stand.st_mode & 077U) != 0)
        Aufrufe().Fchmod(Offener.Nummer(), 0700); // the copies themselves are closed to others in any case
    return Fehler;
}

/// A lock is a courtesy to a second running program: where the file system knows none, none is taken.
int Sperren(const Deskriptor& Datei) {
    const int Ergebnis = Beharrlich([&] { return Aufrufe().Flock(Datei.Nummer(), LOCK_EX | LOCK_NB); });
    return Ergebnis == -1 && errno == EWOULDBLOCK ? EWOULDBLOCK : 0;
}

int HoechsteNummer(const QByteArray& Ordner, qint64* Hoechste) {
    QList<QByteArray> Namen;
    const int Fehler = NamenLesen(Ordner, &Namen);
    for (const QByteArray& Name : Namen)
        *Hoechste = std::max(*Hoechste, NummerVon(Name));
    return Fehler;
}

/// Creates r.N.tmp under a number that nothing else bears. Whoever has made r.N.tmp alone may make
/// r.N.rescue, so two programs never meet at one number.
int UnfertigeAnlegen(Rettungskopie* Neue, qint64* Nummer) {
    *Nummer = 0;
    int Fehler = HoechsteNummer(Neue->Ordner, Nummer);
    constexpr int Versuche = 100;
    for (int Versuch = 1; Fehler == 0 && Versuch <= Versuche; ++Versuch) {
        ++*Nummer;
        Neue->Pfad = PfadVon(Neue->Ordner, *Nummer, Unfertig);
        Fehler = DateiOeffnen(Neue->Pfad, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, &Neue->Datei, 0600);
        struct stat Stand {};
        const QByteArray Endgueltig = PfadVon(Neue->Ordner, *Nummer, Fertig);
        const auto Nachsehen = [&] { return Aufrufe().Stat(Endgueltig.constData(), &Stand); };
        if (Fehler == 0 && Beharrlich(Nachsehen) == -1)
            return errno == ENOENT ? Sperren(Neue->Datei) : errno;
        if (Fehler == 0)
            RettungEntfernen(Neue);
        if (Fehler == EEXIST)
            Fehler = 0;
    }
    return Fehler != 0 ? Fehler : EEXIST;
}

int Fuellen(Rettungskopie* Neue, qint64 Nummer, const Rettungskopf& Kopf, const QByteArray& Inhalt) {
    const QByteArray Kopfbytes = RettungskopfBytes(Kopf);
    int Fehler = GanzSchreiben(Neue->Datei, Kopfbytes);
    if (Fehler == 0)
        Fehler = GanzSchreiben(Neue->Datei, Inhalt, Kopfbytes.size());
    if (Fehler == 0)
        Fehler = Synchronisieren(Neue->Datei);
    const QByteArray Endgueltig = PfadVon(Neue->Ordner, Nummer, Fertig);
    if (Fehler == 0)
        Fehler = DateiUmbenennen(Neue->Pfad, Endgueltig);
    if (Fehler != 0)
        return Fehler;
    Neue->Pfad = Endgueltig;
    return OrdnerSynchronisieren(Neue->Ordner);
}

} // namespace

QByteArray Rettungsordner() {
    return QFile::encodeName(Zustandsverzeichnis());
}

int RettungAnlegen(const Rettungskopf& Kopf, const QByteArray& Inhalt, Rettungskopie* Neue) {
    Neue->Ordner = Rettungsordner();
    if (const int Fehler = OrdnerBereiten(Neue->Ordner))
        return Fehler;
    qint64 Nummer = 0;
    int Fehler = UnfertigeAnlegen(Neue, &Nummer);
    if (Fehler == 0)
        Fehler = Fuellen(Neue, Nummer, Kopf, Inhalt);
    if (Fehler != 0 && Neue->Datei.Offen())
        RettungEntfernen(Neue);
    return Fehler;
}

int RettungOeffnen(const QByteArray& Pfad, Rettungskopie* Gefundene) {
    Gefundene->Pfad = Pfad;
    Gefundene->Ordner = OrdnerVon(Pfad);
    // Non-blocking, lest a pipe of that name stop the program.
    if (const int Fehler = DateiOeffnen(Pfad, O_RDONLY | O_NOFOLLOW | O_NONBLOCK, &Gefundene->Datei))
        return Fehler;
    struct stat Stand {};
    if (const int Fehler = DateiStand(Gefundene->Datei, &Stand))
        return Fehler;
    return S_ISREG(Stand.st_mode) ? Sperren(Gefundene->Datei) : EINVAL;
}

int RettungEntfernen(Rettungskopie* Erledigte) {
    // The lock is held until the name is gone.
    const int Fehler = DateiLoeschen(Erledigte->Pfad);
    Erledigte->Datei.Schliessen();
    OrdnerSynchronisieren(Erledigte->Ordner);
    return Fehler;
}

int RettungBeiseiteLegen(Rettungskopie* Eine, const QByteArray& Endung, QByteArray* Neuer) {
    const QByteArray Name = Eine->Pfad.mid(Eine->Pfad.lastIndexOf('/') + 1);
    *Neuer = PfadVon(Eine->Ordner, NummerVon(Name), Endung);
    struct stat Stand {};
    if (Aufrufe().Stat(Neuer->constData(), &Stand) == 0)
        return EEXIST;
    const int Fehler = DateiUmbenennen(Eine->Pfad, *Neuer);
    Eine->Datei.Schliessen();
    OrdnerSynchronisieren(Eine->Ordner);
    return Fehler;
}

int RettungenAuflisten(QList<QByteArray>* Pfade) {
    const QByteArray Ordner = Rettungsordner();
    QList<QByteArray> Namen;
    const int Fehler = NamenLesen(Ordner, &Namen);
    Namen.removeIf([](const QByteArray& Name) { return !IstRettung(Name); });
    std::sort(Namen.begin(), Namen.end(),
              [](const QByteArray& A, const QByteArray& B) { return NummerVon(A) > NummerVon(B); });
    for (const QByteArray& Name : Namen)
        Pfade->append(Ordner + '/' + Name);
    return Fehler;
}
