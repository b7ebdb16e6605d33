// Reads and writes of files below the folders of KURZ_PFAD (separated by ":") are counted; the one numbered
// KURZ_STELLE, and with KURZ_DAUERND all that follow, takes only half of what it was given. KURZ_ZEICHEN: a
// file that is made when that happens.

#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::string Umgebung(const char* Name) {
    const char* const Wert = std::getenv(Name);
    return Wert ? Wert : "";
}

bool Gemeint(int Fd) {
    static const std::string Ordner = Umgebung("KURZ_PFAD") + ":";
    char Pfad[4096];
    const std::string Eintrag = "/proc/self/fd/" + std::to_string(Fd);
    const ssize_t Laenge = readlink(Eintrag.c_str(), Pfad, sizeof Pfad);
    if (Laenge <= 0)
        return false;
    const std::string Datei(Pfad, static_cast<size_t>(Laenge));
    for (size_t Anfang = 0, Ende = 0; (Ende = Ordner.find(':', Anfang)) != std::string::npos;
         Anfang = Ende + 1)
        if (Ende > Anfang && Datei.compare(0, Ende - Anfang, Ordner, Anfang, Ende - Anfang) == 0)
            return true;
    return false;
}

size_t Gekuerzt(int Fd, size_t Laenge) {
    static const int Stelle = std::atoi(Umgebung("KURZ_STELLE").c_str());
    static const bool Dauernd = !Umgebung("KURZ_DAUERND").empty();
    static int Zaehler = 0;
    if (Laenge < 2 || !Gemeint(Fd))
        return Laenge;
    ++Zaehler;
    if (Dauernd ? Zaehler < Stelle : Zaehler != Stelle)
        return Laenge;
    const int Zeichen = open(Umgebung("KURZ_ZEICHEN").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (Zeichen >= 0)
        close(Zeichen);
    return Laenge / 2;
}

template <typename Funktion>
Funktion Echte(const char* Name) {
    return reinterpret_cast<Funktion>(dlsym(RTLD_NEXT, Name));
}

} // namespace

extern "C" {

ssize_t read(int Fd, void* Puffer, size_t Laenge) {
    static const auto Echt = Echte<ssize_t (*)(int, void*, size_t)>("read");
    return Echt(Fd, Puffer, Gekuerzt(Fd, Laenge));
}

ssize_t __read_chk(int Fd, void* Puffer, size_t Laenge, size_t /*Platz*/) {
    return read(Fd, Puffer, Laenge);
}

ssize_t write(int Fd, const void* Puffer, size_t Laenge) {
    static const auto Echt = Echte<ssize_t (*)(int, const void*, size_t)>("write");
    return Echt(Fd, Puffer, Gekuerzt(Fd, Laenge));
}

ssize_t pwrite(int Fd, const void* Puffer, size_t Laenge, off_t Stelle) {
    static const auto Echt = Echte<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite");
    return Echt(Fd, Puffer, Gekuerzt(Fd, Laenge), Stelle);
}

ssize_t pwrite64(int Fd, const void* Puffer, size_t Laenge, off64_t Stelle) {
    static const auto Echt = Echte<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
    return Echt(Fd, Puffer, Gekuerzt(Fd, Laenge), Stelle);
}
}
