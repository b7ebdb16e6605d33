#include "core/Eingabezaehler.h"

#include "core/Definitionen.h"

#include <utility>

namespace {

Reihe<std::function<void()>, 12>& Aktionen() {
    static Reihe<std::function<void()>, 12> Alle;
    return Alle;
}

} // namespace

void EingabezaehlerAktion(int Platz, std::function<void()> Aktion) {
    Aktionen()[Platz] = std::move(Aktion);
}

void EingabezaehlerTick() {
    for (int Platz = 0; Platz < EingabeZaehler.size(); ++Platz) {
        if (EingabeZaehler[Platz] < 0)
            continue;
        --EingabeZaehler[Platz];
        if (EingabeZaehler[Platz] == 0 && Aktionen()[Platz])
            Aktionen()[Platz]();
    }
}

void EingabezaehlerLeeren() {
    EingabeZaehler.fill(0);
}
