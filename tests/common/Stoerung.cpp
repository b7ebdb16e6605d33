#include "common/Stoerung.h"

#include "core/Systemaufrufe.h"

#include <algorithm>
#include <cerrno>
#include <exception>

namespace {

Stoerung Geplant;
int Zaehler = 0;
bool IstGetroffen = false;
bool IstTot = false;
QStringList Gerufene;

bool Trifft(const char* Name) {
    ++Zaehler;
    Gerufene.append(QString::fromLatin1(Name));
    bool Jetzt = Geplant.Dauernd ? Zaehler >= Geplant.Stelle : Zaehler == Geplant.Stelle;
    if (Jetzt && Geplant.NurDieser)
        Jetzt = Gerufene.last() == Gerufene.at(Geplant.Stelle - 1);
    if (!Jetzt || Geplant.Was == Stoerung::Art::Keine)
        return false;
    IstGetroffen = true;
    return true;
}

bool Toedlich() {
    return Geplant.Was == Stoerung::Art::Absturz || Geplant.Was == Stoerung::Art::HalberAbsturz;
}

[[noreturn]] void Sterben() {
    IstTot = true;
    throw Abgestuerzt{};
}

/// True: the call fails. A dead process calls nothing; destructors that run on the way to the catch get
/// errors.
bool Scheitert(const char* Name) {
    if (IstTot && std::uncaught_exceptions() > 0) {
        errno = EIO;
        return true;
    }
    if (IstTot)
        Sterben();
    if (!Trifft(Name))
        return false;
    if (Toedlich())
        Sterben();
    errno = Geplant.Fehlernummer;
    return Geplant.Was == Stoerung::Art::Fehler;
}

/// Closing runs in destructors, where nothing may be thrown: the next call then finds the process dead.
bool SchliessenScheitert(const char* Name) {
    if (IstTot || !Trifft(Name))
        return false;
    IstTot = Toedlich();
    errno = Geplant.Fehlernummer;
    return Geplant.Was == Stoerung::Art::Fehler;
}

size_t Teil(size_t Laenge) {
    return std::max<size_t>(1, Laenge / 2);
}

ssize_t GestoertSchreiben(int Fd, const void* Puffer, size_t Laenge, off_t Stelle) {
    const int Vorher = Zaehler + 1;
    const bool Halb = Geplant.Was == Stoerung::Art::HalberAbsturz && Vorher == Geplant.Stelle && !IstTot;
    if (Halb)
        EchteAufrufe().Pwrite(Fd, Puffer, Teil(Laenge), Stelle);
    const bool Kurz = Geplant.Was == Stoerung::Art::Kurz &&
                      (Geplant.Dauernd ? Vorher >= Geplant.Stelle : Vorher == Geplant.Stelle);
    if (Scheitert("pwrite"))
        return -1;
    return EchteAufrufe().Pwrite(Fd, Puffer, Kurz ? Teil(Laenge) : Laenge, Stelle);
}

ssize_t GestoertLesen(int Fd, void* Puffer, size_t Laenge) {
    const int Jetzt = Zaehler + 1;
    const bool Kurz = Geplant.Was == Stoerung::Art::Kurz &&
                      (Geplant.Dauernd ? Jetzt >= Geplant.Stelle : Jetzt == Geplant.Stelle);
    if (Scheitert("read"))
        return -1;
    return EchteAufrufe().Read(Fd, Puffer, Kurz ? Teil(Laenge) : Laenge);
}

const Systemaufrufe Gestoert{
    .Open =
        [](const char* Pfad, int Schalter, mode_t Rechte) {
            return Scheitert("open") ? -1 : EchteAufrufe().Open(Pfad, Schalter, Rechte);
        },
    .Close =
        [](int Fd) {
            // The descriptor is gone, whatever close says.
            const bool Fehler = SchliessenScheitert("close");
            const int Nummer = errno;
            const int Ergebnis = EchteAufrufe().Close(Fd);
            errno = Fehler ? Nummer : errno;
            return Fehler ? -1 : Ergebnis;
        },
    .Read = GestoertLesen,
    .Pwrite = GestoertSchreiben,
    .Ftruncate =
        [](int Fd, off_t Laenge) {
            return Scheitert("ftruncate") ? -1 : EchteAufrufe().Ftruncate(Fd, Laenge);
        },
    .Fallocate =
        [](int Fd, int Art, off_t Anfang, off_t Laenge) {
            return Scheitert("fallocate") ? -1 : EchteAufrufe().Fallocate(Fd, Art, Anfang, Laenge);
        },
    // What the system holds in memory outlives a process: only a power failure would need the sync.
    .Fsync = [](int /*Fd*/) { return Scheitert("fsync") ? -1 : 0; },
    .Fstat = [](int Fd,
                struct stat* Stand) { return Scheitert("fstat") ? -1 : EchteAufrufe().Fstat(Fd, Stand); },
    .Fchmod = [](int Fd,
                 mode_t Rechte) { return Scheitert("fchmod") ? -1 : EchteAufrufe().Fchmod(Fd, Rechte); },
    .Flock = [](int Fd, int Art) { return Scheitert("flock") ? -1 : EchteAufrufe().Flock(Fd, Art); },
    .Stat = [](const char* Pfad,
               struct stat* Stand) { return Scheitert("stat") ? -1 : EchteAufrufe().Stat(Pfad, Stand); },
    .Rename = [](const char* Alt,
                 const char* Neu) { return Scheitert("rename") ? -1 : EchteAufrufe().Rename(Alt, Neu); },
    .Unlink = [](const char* Pfad) { return Scheitert("unlink") ? -1 : EchteAufrufe().Unlink(Pfad); },
    .Mkdir = [](const char* Pfad,
                mode_t Rechte) { return Scheitert("mkdir") ? -1 : EchteAufrufe().Mkdir(Pfad, Rechte); },
    .Realpath =
        [](const char* Pfad, char* Ergebnis) {
            return Scheitert("realpath") ? nullptr : EchteAufrufe().Realpath(Pfad, Ergebnis);
        },
    .Opendir = [](const char* Pfad) { return Scheitert("opendir") ? nullptr : EchteAufrufe().Opendir(Pfad); },
    .Readdir = [](DIR* Ordner) { return Scheitert("readdir") ? nullptr : EchteAufrufe().Readdir(Ordner); },
    .Closedir =
        [](DIR* Ordner) {
            const bool Fehler = SchliessenScheitert("closedir");
            const int Ergebnis = EchteAufrufe().Closedir(Ordner);
            return Fehler ? -1 : Ergebnis;
        },
};

} // namespace

Stoertafel::Stoertafel(const Stoerung& Plan) {
    Geplant = Plan;
    Zaehler = 0;
    IstGetroffen = IstTot = false;
    Gerufene.clear();
    AufrufeSetzen(&Gestoert);
}

Stoertafel::~Stoertafel() {
    AufrufeSetzen(nullptr);
}

int Stoertafel::Gezaehlt() {
    return Zaehler;
}

QStringList Stoertafel::Namen() {
    return Gerufene;
}

bool Stoertafel::Getroffen() {
    return IstGetroffen;
}

bool Stoertafel::Tot() {
    return IstTot;
}
