#pragma once

#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>

// The calls of the operating system through which files are written and rescued. They stand in a table, so
// that tests can let any one of them fail, cut short or be the last. Each behaves as the POSIX call of its
// name.

struct Systemaufrufe {
    int (*Open)(const char* Pfad, int Schalter, mode_t Rechte);
    int (*Close)(int Fd);
    ssize_t (*Read)(int Fd, void* Puffer, size_t Laenge);
    ssize_t (*Pwrite)(int Fd, const void* Puffer, size_t Laenge, off_t Stelle);
    int (*Ftruncate)(int Fd, off_t Laenge);
    int (*Fallocate)(int Fd, int Art, off_t Anfang, off_t Laenge);
    int (*Fsync)(int Fd);
    int (*Fstat)(int Fd, struct stat* Stand);
    int (*Fchmod)(int Fd, mode_t Rechte);
    int (*Flock)(int Fd, int Art);
    int (*Stat)(const char* Pfad, struct stat* Stand);
    int (*Rename)(const char* Alt, const char* Neu);
    int (*Unlink)(const char* Pfad);
    int (*Mkdir)(const char* Pfad, mode_t Rechte);
    char* (*Realpath)(const char* Pfad, char* Ergebnis);
    DIR* (*Opendir)(const char* Pfad);
    dirent* (*Readdir)(DIR* Ordner);
    int (*Closedir)(DIR* Ordner);
};

const Systemaufrufe& EchteAufrufe();
const Systemaufrufe& Aufrufe(); ///< the table in use

/// For tests: use this table from now on; nullptr goes back to the real calls.
void AufrufeSetzen(const Systemaufrufe* Tabelle);
