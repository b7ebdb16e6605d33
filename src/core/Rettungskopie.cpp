#include "core/Rettungskopie.h"

#include "core/Rettungsorte.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>

namespace {

const QByteArray Fertig = QByteArrayLiteral("rescue");
const QByteArray Unfertig = QByteArrayLiteral("tmp");

QByteArray PfadVon(const QByteArray& Ordner, qint64 Nummer, const QByteArray& Endung) {
    return Ordner + "/r." + QByteArray::number(Nummer) + '.' + Endung;
}

QByteArray NameVon(const QByteArray& Pfad) {
    return Pfad.mid(Pfad.lastIndexOf('/') + 1);
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

int NamenLesen(const QByteArray& Pfad, QList<QByteArray>* Namen) {
    DIR* const Offener = Beharrlich([&] { return Aufrufe().Opendir(Pfad.constData()); }, nullptr);
    if (!Offener)
        return errno == ENOENT ? 0 : errno;
    const std::unique_ptr<DIR, int (*)(DIR*)> Ordner(Offener, Aufrufe().Closedir);
    const auto Naechster = [&] {
        errno = 0; // at the end of the folder it stays so
        return Aufrufe().Readdir(Ordner.get());
    };
    while (const dirent* const Eintrag = Beharrlich(Naechster, nullptr))
        Namen->append(QByteArray(Eintrag->d_name));
    return errno;
}

/// The folder is there and closed to others.
int OrdnerBereiten(const QByteArray& Name) {
    Deskriptor Ordner;
    int Fehler = DateiOeffnen(Name, O_RDONLY | O_DIRECTORY, &Ordner);
    if (Fehler == ENOENT) {
        // Asking for the name of the state folder has tried to make it; this tells why that failed.
        Fehler = Beharrlich([&] { return Aufrufe().Mkdir(Name.constData(), 0700); }) == -1 ? errno : 0;
        if (Fehler == 0)
            Fehler = DateiOeffnen(Name, O_RDONLY | O_DIRECTORY, &Ordner);
    }
    struct stat Stand {};
    if (Fehler == 0)
        Fehler = DateiStand(Ordner, &Stand);
    if (Fehler == 0 && (Stand.st_mode & 077U) != 0)
        Aufrufe().Fchmod(Ordner.Nummer(), 0700); // the copies themselves are closed to others in any case
    return Fehler;
}

/// A lock is a courtesy to a second running program: where the file system knows none, none is taken.
int Sperren(const Deskriptor& Datei) {
    const int Ergebnis = Beharrlich([&] { return Aufrufe().Flock(Datei.Nummer(), LOCK_EX | LOCK_NB); });
    return Ergebnis == -1 && errno == EWOULDBLOCK ? EWOULDBLOCK : 0;
}

/// Over all folders, so that numbers tell the order in which copies were made. Only Ordner must be readable.
int HoechsteNummer(const QByteArray& Ordner, qint64* Hoechste) {
    int Ergebnis = 0;
    for (const QByteArray& Einer : AlleRettungsordner()) {
        QList<QByteArray> Namen;
        const int Fehler = NamenLesen(Einer, &Namen);
        if (Einer == Ordner)
            Ergebnis = Fehler;
        for (const QByteArray& Name : Namen)
            *Hoechste = std::max(*Hoechste, NummerVon(Name));
    }
    return Ergebnis;
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

int InOrdnerAnlegen(const QByteArray& Ordner, const Rettungskopf& Kopf, const QByteArray& Inhalt,
                    Rettungskopie* Neue) {
    Neue->Ordner = Ordner;
    if (const int Fehler = OrdnerBereiten(Ordner))
        return Fehler;
    qint64 Nummer = 0;
    int Fehler = UnfertigeAnlegen(Neue, &Nummer);
    if (Fehler == 0)
        Fehler = Fuellen(Neue, Nummer, Kopf, Inhalt);
    if (Fehler != 0 && Neue->Datei.Offen())
        RettungEntfernen(Neue);
    return Fehler;
}

} // namespace

int RettungAnlegen(const Rettungskopf& Kopf, const QByteArray& Inhalt, Rettungskopie* Neue) {
    const int Grund = InOrdnerAnlegen(Rettungsordner(), Kopf, Inhalt, Neue);
    if (Grund == 0 || !AusweichenHilft(Grund))
        return Grund;
    for (const QByteArray& Ordner : AlleRettungsordner().mid(1))
        if (InOrdnerAnlegen(Ordner, Kopf, Inhalt, Neue) == 0) {
            AusweichenMerken(Ordner, Grund);
            return 0;
        }
    return Grund;
}

int RettungHeimholen(const Rettungskopf& Kopf, const QByteArray& Inhalt, Rettungskopie* Eine) {
    Rettungskopie Neue;
    if (const int Fehler = InOrdnerAnlegen(Rettungsordner(), Kopf, Inhalt, &Neue))
        return Fehler;
    RettungEntfernen(Eine); // one that stays is the same, and goes when its twin does
    *Eine = std::move(Neue);
    return 0;
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
    *Neuer = PfadVon(Eine->Ordner, NummerVon(NameVon(Eine->Pfad)), Endung);
    struct stat Stand {};
    if (Aufrufe().Stat(Neuer->constData(), &Stand) == 0)
        return EEXIST;
    const int Fehler = DateiUmbenennen(Eine->Pfad, *Neuer);
    Eine->Datei.Schliessen();
    OrdnerSynchronisieren(Eine->Ordner);
    return Fehler;
}

int RettungenAuflisten(QList<QByteArray>* Pfade, QByteArray* Unlesbar) {
    int Ergebnis = 0;
    for (const QByteArray& Ordner : AlleRettungsordner()) {
        QList<QByteArray> Namen;
        const int Fehler = NamenLesen(Ordner, &Namen);
        if (Fehler != 0 && Unlesbar)
            *Unlesbar = Ordner;
        Ergebnis = Fehler != 0 ? Fehler : Ergebnis;
        for (const QByteArray& Name : Namen)
            if (IstRettung(Name))
                Pfade->append(Ordner + '/' + Name);
    }
    // Of two with one number the one in the state folder comes first.
    std::stable_sort(Pfade->begin(), Pfade->end(), [](const QByteArray& A, const QByteArray& B) {
        return NummerVon(NameVon(A)) > NummerVon(NameVon(B));
    });
    return Ergebnis;
}
