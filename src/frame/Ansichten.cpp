#include "frame/Ansichten.h"

#include "assessments/AnsichtB.h"
#include "controls/Ansicht.h"
#include "core/Reihe.h"
#include "grading/AnsichtP.h"
#include "views/AnsichtN1.h"
#include "views/AnsichtN2.h"
#include "views/AnsichtS.h"

#include <QString>

namespace {

template <class Art>
Ansicht* Neue() {
    return new Art;
}

struct Ansichtseintrag {
    const char* Titel = "";
    Ansicht* (*Erzeugen)() = nullptr;
    bool Exportiert = false;
};

// clang-format off: one line a view
constexpr Ansichtseintrag Ansichten[AnzahlAnsichten] = {
    {"Schüler- und Fächerliste", Neue<AnsichtS>, true},
    {"Probenauswertung", Neue<AnsichtP>, false},
    {"Notenliste eines Faches", Neue<AnsichtN1>, true},
    {"Notenliste eines Schülers", Neue<AnsichtN2>, false},
    {"Beurteilungen", Neue<AnsichtB>, true},
};
// clang-format on

const Ansichtseintrag& Eintrag(int Nummer) {
    if (Nummer < 0 || Nummer >= AnzahlAnsichten)
        IndexFehler(Nummer, AnzahlAnsichten);
    return Ansichten[Nummer];
}

} // namespace

QString AnsichtTitel(int Nummer) {
    return QString::fromUtf8(Eintrag(Nummer).Titel);
}

Ansicht* AnsichtErzeugen(int Nummer) {
    return Eintrag(Nummer).Erzeugen();
}

bool AnsichtExportiert(int Nummer) {
    return Eintrag(Nummer).Exportiert;
}
