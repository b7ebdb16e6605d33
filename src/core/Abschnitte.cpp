#include "core/Abschnitte.h"

#include <array>

namespace {

struct Zeile {
    std::string_view Marke;
    int Spalten;
};

/// In the order of the enumeration; umlauts as bytes of Windows-1252.
constexpr std::array<Zeile, 9> Tafel{{{"", 0},
                                      {"[Klassen]", 2},
                                      {"[F\xE4"
                                       "cher]",
                                       7},
                                      {"[Proben]", 11},
                                      {"[Sch\xFCler]", 18},
                                      {"[ZSch\xFCler]", 5},
                                      {"[Noten]", 55},
                                      {"[Beurteilungen]", 0},
                                      {"[Parameter]", 10}}};

} // namespace

std::string_view Abschnittsmarke(Abschnitt Einer) {
    return Tafel[static_cast<std::size_t>(Einer)].Marke;
}

int Spaltenzahl(Abschnitt Einer) {
    return Tafel[static_cast<std::size_t>(Einer)].Spalten;
}

Abschnitt AbschnittZurMarke(std::string_view Marke) {
    for (std::size_t i = 1; i < Tafel.size(); ++i)
        if (Tafel[i].Marke == Marke)
            return static_cast<Abschnitt>(i);
    return Abschnitt::Keiner;
}

std::string_view Versionstext(std::string_view Kopfzeile) {
    const std::size_t Stelle = Datenbankkennung.size() + 1;
    return Kopfzeile.size() < Stelle ? std::string_view() : Kopfzeile.substr(Stelle, 3);
}
