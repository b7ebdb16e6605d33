#include "core/Systemaufrufe.h"

#include <cstdlib>

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

// Lambdas, because some of these names are overloads or inline wrappers in the C library's headers.
constexpr Systemaufrufe Echt{
    .Open = [](const char* Pfad, int Schalter, mode_t Rechte) { return open(Pfad, Schalter, Rechte); },
    .Close = [](int Fd) { return close(Fd); },
    .Read = [](int Fd, void* Puffer, size_t Laenge) { return read(Fd, Puffer, Laenge); },
    .Pwrite = [](int Fd, const void* Puffer, size_t Laenge,
                 off_t Stelle) { return pwrite(Fd, Puffer, Laenge, Stelle); },
    .Ftruncate = [](int Fd, off_t Laenge) { return ftruncate(Fd, Laenge); },
    .Fallocate = [](int Fd, int Art, off_t Anfang,
                    off_t Laenge) { return fallocate(Fd, Art, Anfang, Laenge); },
    .Fsync = [](int Fd) { return fsync(Fd); },
    .Fstat = [](int Fd, struct stat* Stand) { return fstat(Fd, Stand); },
    .Fchmod = [](int Fd, mode_t Rechte) { return fchmod(Fd, Rechte); },
    .Flock = [](int Fd, int Art) { return flock(Fd, Art); },
    .Stat = [](const char* Pfad, struct stat* Stand) { return stat(Pfad, Stand); },
    .Rename = [](const char* Alt, const char* Neu) { return rename(Alt, Neu); },
    .Unlink = [](const char* Pfad) { return unlink(Pfad); },
    .Mkdir = [](const char* Pfad, mode_t Rechte) { return mkdir(Pfad, Rechte); },
    .Realpath = [](const char* Pfad, char* Ergebnis) { return realpath(Pfad, Ergebnis); },
    .Opendir = [](const char* Pfad) { return opendir(Pfad); },
    .Readdir = [](DIR* Ordner) { return readdir(Ordner); },
    .Closedir = [](DIR* Ordner) { return closedir(Ordner); },
};

const Systemaufrufe* Aktuelle = &Echt;

} // namespace

const Systemaufrufe& EchteAufrufe() {
    return Echt;
}

const Systemaufrufe& Aufrufe() {
    return *Aktuelle;
}

void AufrufeSetzen(const Systemaufrufe* Tabelle) {
    Aktuelle = Tabelle ? Tabelle : &Echt;
}
