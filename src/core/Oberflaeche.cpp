#include "core/Oberflaeche.h"

namespace {

Oberflaeche Keine;
Oberflaeche* Aktuelle = &Keine;

} // namespace

void OberflaecheSetzen(Oberflaeche* Neue) {
    Aktuelle = Neue ? Neue : &Keine;
}

Oberflaeche& AktuelleOberflaeche() {
    return *Aktuelle;
}
