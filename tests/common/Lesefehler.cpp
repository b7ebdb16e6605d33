#include "common/Lesefehler.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cerrno>

namespace {

constexpr size_t Stueck = 97;

int BisZumFehler = 0;
QByteArray Verschlossen;
int Grund = 0;

ssize_t Lesen(int Fd, void* Puffer, size_t Laenge) {
    if (--BisZumFehler != 0)
        return EchteAufrufe().Read(Fd, Puffer, std::min(Laenge, Stueck));
    errno = EIO;
    return -1;
}

int Oeffnen(const char* Pfad, int Schalter, mode_t Rechte) {
    if (Verschlossen != Pfad)
        return EchteAufrufe().Open(Pfad, Schalter, Rechte);
    errno = Grund;
    return -1;
}

} // namespace

Lesefehler::Lesefehler(int Nummer)
    : Tabelle(EchteAufrufe()) {
    BisZumFehler = Nummer;
    Tabelle.Read = Lesen;
    AufrufeSetzen(&Tabelle);
}

Lesefehler::~Lesefehler() {
    AufrufeSetzen(nullptr);
}

bool Lesefehler::Getroffen() const {
    return BisZumFehler <= 0;
}

Oeffnungsfehler::Oeffnungsfehler(const QString& Pfad, int Fehlernummer)
    : Tabelle(EchteAufrufe()) {
    Verschlossen = QFile::encodeName(Pfad);
    Grund = Fehlernummer;
    Tabelle.Open = Oeffnen;
    AufrufeSetzen(&Tabelle);
}

Oeffnungsfehler::~Oeffnungsfehler() {
    AufrufeSetzen(nullptr);
}
