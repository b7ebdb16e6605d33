#include "core/Beurteilungsleser.h"

#include "core/Codeseite.h"
#include "core/Definitionen.h"
#include "core/Feldtabelle.h"

namespace {

bool IstMarke(std::string_view Text) {
    return !Text.empty() && Text.front() == '#' && Text.back() == '#';
}

QString& Slot(int Index, int Platz) {
    return Datenbank.Schueler[Index].Beurteilung[Platz];
}

} // namespace

bool Beurteilungsleser::Zeile(std::string_view Text) {
    if (IstMarke(Text)) {
        Marke(Text);
        return true;
    }
    if (Index < 0)
        return false;
    if (!Sammelt)
        MitAnfang = !Slot(Index, Platz).isEmpty();
    Sammelt = true;
    if (MitAnfang)
        Gesammelt += "\r\n";
    Gesammelt += Text;
    MitAnfang = MitAnfang || !Text.empty();
    return true;
}

void Beurteilungsleser::Abschliessen() {
    if (Sammelt) {
        QString& Ziel = Slot(Index, Platz);
        const QString Neues = AusCodeseite(Gesammelt.data(), static_cast<qsizetype>(Gesammelt.size()));
        Ziel = Ziel.isEmpty() ? Neues : Ziel + Neues;
    }
    Gesammelt.clear();
    Sammelt = false;
}

void Beurteilungsleser::Marke(std::string_view Text) {
    Abschliessen();
    constexpr std::size_t StelleID = 1;
    constexpr std::size_t LaengeID = 5;
    constexpr std::size_t StellePlatz = 7;
    const bool Vollstaendig = Text.size() > StellePlatz;
    Index = SchuelerSuchen(Ganzzahl(Text.substr(StelleID, LaengeID)));
    Platz = Ganzzahl(Vollstaendig ? Text.substr(StellePlatz, Text.size() - StellePlatz - 1) : "") - 1;
}

int Beurteilungsleser::SchuelerSuchen(qint32 ID) {
    for (; Verzeichnet < Datenbank.AnzSchueler; ++Verzeichnet)
        if (!Verzeichnis.contains(Datenbank.Schueler[Verzeichnet].ID))
            Verzeichnis.insert(Datenbank.Schueler[Verzeichnet].ID, Verzeichnet);
    return Verzeichnis.value(ID, -1);
}
