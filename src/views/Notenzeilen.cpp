#include "views/Notenzeilen.h"

#include "core/FktSpeziell.h"
#include "core/Textordnung.h"
#include "views/IDTabelle.h"

#include <algorithm>

namespace {

const QString Ja = QStringLiteral("ja");

/// The rows that fit, turned round as if each were put on top.
template <class Bedingung>
std::vector<Notenlistenzeile> Zeilen(const Bedingung& Passt) {
    std::vector<Notenlistenzeile> Alle;
    for (int i = 0; i < Datenbank.AnzNoten; ++i)
        if (const Notenzeile& Eine = Datenbank.Noten[i]; Passt(Eine) && Eine.Teilnahme == Ja)
            Alle.push_back({i, Eine.Schueler_ID, Eine.Fach_ID, -1, -1});
    std::reverse(Alle.begin(), Alle.end());
    return Alle;
}

/// Place of the first record of each ID that is listed: one pass instead of a look-up for each row.
template <class Satzreihe>
IDTabelle Plaetze(const std::vector<Notenlistenzeile>& Zeilen, qint32 Notenlistenzeile::*ID,
                  const Satzreihe& Saetze, int Anzahl) {
    IDTabelle Alle = TabelleFuer(Zeilen, ID);
    for (int i = Anzahl - 1; i >= 0; --i)
        Alle.Setzen(Saetze[i].ID, i);
    return Alle;
}

} // namespace

std::vector<Notenlistenzeile> NotenzeilenDesFachs(qint32 Fach_ID) {
    auto Alle = Zeilen([Fach_ID](const Notenzeile& Eine) { return Eine.Fach_ID == Fach_ID; });
    const int FachPlatz = FachIndex(Fach_ID);
    const auto Schueler =
        Plaetze(Alle, &Notenlistenzeile::Schueler_ID, Datenbank.Schueler, Datenbank.AnzSchueler);
    for (Notenlistenzeile& Zeile : Alle) {
        Zeile.FachPlatz = FachPlatz;
        Zeile.SchuelerPlatz = Schueler[Zeile.Schueler_ID];
    }
    return Alle;
}

std::vector<Notenlistenzeile> NotenzeilenDesSchuelers(qint32 Schueler_ID) {
    auto Alle = Zeilen([Schueler_ID](const Notenzeile& Eine) { return Eine.Schueler_ID == Schueler_ID; });
    const auto Faecher = Plaetze(Alle, &Notenlistenzeile::Fach_ID, Datenbank.Faecher, Datenbank.AnzFaecher);
    for (Notenlistenzeile& Zeile : Alle)
        Zeile.FachPlatz = Faecher[Zeile.Fach_ID];
    return Alle;
}

const Notenzeile* SatzDer(const Notenlistenzeile& Zeile) {
    const auto Passt = [&Zeile](const Notenzeile& Satz) {
        return Satz.Schueler_ID == Zeile.Schueler_ID && Satz.Fach_ID == Zeile.Fach_ID;
    };
    if (Zeile.Platz < Datenbank.AnzNoten && Passt(Datenbank.Noten[Zeile.Platz]))
        return &Datenbank.Noten[Zeile.Platz];
    const int Platz = NotenIndex(Zeile.Schueler_ID, Zeile.Fach_ID);
    return Platz < 0 ? nullptr : &Datenbank.Noten[Platz];
}

const Fach* FachDer(const Notenlistenzeile& Zeile) {
    if (Zeile.FachPlatz >= 0 && Zeile.FachPlatz < Datenbank.AnzFaecher &&
        Datenbank.Faecher[Zeile.FachPlatz].ID == Zeile.Fach_ID)
        return &Datenbank.Faecher[Zeile.FachPlatz];
    const int Platz = FachIndex(Zeile.Fach_ID);
    return Platz < 0 ? nullptr : &Datenbank.Faecher[Platz];
}

const QString& FachnameDer(const Notenlistenzeile& Zeile) {
    static const QString Leer;
    const Fach* Eines = FachDer(Zeile);
    return Eines ? Eines->Name : Leer;
}

const QString& SchuelernameDer(const Notenlistenzeile& Zeile) {
    static const QString Leer;
    if (Zeile.SchuelerPlatz < 0)
        return Leer;
    const bool StehtDort = Zeile.SchuelerPlatz < Datenbank.AnzSchueler &&
                           Datenbank.Schueler[Zeile.SchuelerPlatz].ID == Zeile.Schueler_ID;
    const int Platz = StehtDort ? Zeile.SchuelerPlatz : SchuelerIndex(Zeile.Schueler_ID);
    return Platz < 0 ? Leer : Datenbank.Schueler[Platz].Name;
}

void NachNamenOrdnen(std::vector<Notenlistenzeile>& Zeilen) {
    const auto Name = [&Zeilen](std::size_t i) -> const QString& { return SchuelernameDer(Zeilen[i]); };
    std::vector<Notenlistenzeile> Geordnet;
    Geordnet.reserve(Zeilen.size());
    for (const int Stelle : Textfolge(Zeilen.size(), Name))
        Geordnet.push_back(Zeilen[static_cast<std::size_t>(Stelle)]);
    Zeilen = std::move(Geordnet);
}
