#include "views/Notenzeilen.h"

#include "core/FktSpeziell.h"
#include "core/Textordnung.h"

#include <QHash>

#include <algorithm>

namespace {

const QString Ja = QStringLiteral("ja");

/// The rows that fit, turned round as if each were put on top.
template <class Bedingung>
std::vector<Notenlistenzeile> Zeilen(const Bedingung& Passt) {
    std::vector<Notenlistenzeile> Alle;
    for (int i = 0; i < Datenbank.AnzNoten; ++i)
        if (const Notenzeile& Eine = Datenbank.Noten[i]; Passt(Eine) && Eine.Teilnahme == Ja)
            Alle.push_back({i, Eine.Schueler_ID, Eine.Fach_ID, {}, -1});
    std::reverse(Alle.begin(), Alle.end());
    return Alle;
}

/// Place of the first record of each ID that is listed: one pass instead of a look-up for each row.
template <class Satzreihe>
QHash<qint32, int> Plaetze(const std::vector<Notenlistenzeile>& Zeilen, qint32 Notenlistenzeile::*ID,
                           const Satzreihe& Saetze, int Anzahl) {
    QHash<qint32, int> Alle;
    Alle.reserve(static_cast<qsizetype>(Zeilen.size()));
    for (const Notenlistenzeile& Zeile : Zeilen)
        Alle.insert(Zeile.*ID, -1);
    for (int i = 0; i < Anzahl; ++i)
        if (const auto Gesucht = Alle.find(Saetze[i].ID); Gesucht != Alle.end() && *Gesucht < 0)
            *Gesucht = i;
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
        if (const int Platz = Schueler.value(Zeile.Schueler_ID); Platz >= 0)
            Zeile.Name = Datenbank.Schueler[Platz].Name;
    }
    return Alle;
}

std::vector<Notenlistenzeile> NotenzeilenDesSchuelers(qint32 Schueler_ID) {
    auto Alle = Zeilen([Schueler_ID](const Notenzeile& Eine) { return Eine.Schueler_ID == Schueler_ID; });
    const auto Faecher = Plaetze(Alle, &Notenlistenzeile::Fach_ID, Datenbank.Faecher, Datenbank.AnzFaecher);
    for (Notenlistenzeile& Zeile : Alle) {
        Zeile.FachPlatz = Faecher.value(Zeile.Fach_ID);
        if (Zeile.FachPlatz >= 0)
            Zeile.Name = Datenbank.Faecher[Zeile.FachPlatz].Name;
    }
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

void NachNamenOrdnen(std::vector<Notenlistenzeile>& Zeilen) {
    std::vector<QString> Namen;
    Namen.reserve(Zeilen.size());
    for (const Notenlistenzeile& Eine : Zeilen)
        Namen.push_back(Eine.Name);
    std::vector<Notenlistenzeile> Geordnet;
    Geordnet.reserve(Zeilen.size());
    for (const int Stelle : Textfolge(Namen))
        Geordnet.push_back(std::move(Zeilen[static_cast<std::size_t>(Stelle)]));
    Zeilen = std::move(Geordnet);
}
