#include "views/Notenzeilen.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"

#include <QHash>

#include <algorithm>

namespace {

const QString Ja = QStringLiteral("ja");

/// The rows that fit, turned round as if each were put on top; Datum says what a row is listed under.
template <class Bedingung, class Kennung>
std::vector<Notenlistenzeile> Zeilen(const Bedingung& Passt, const Kennung& Datum) {
    std::vector<Notenlistenzeile> Alle;
    for (int i = 0; i < Datenbank.AnzNoten; ++i)
        if (const Notenzeile& Eine = Datenbank.Noten[i]; Passt(Eine) && Eine.Teilnahme == Ja)
            Alle.push_back({i, Datum(Eine), {}, -1});
    std::reverse(Alle.begin(), Alle.end());
    return Alle;
}

/// Place of the first record of each ID that is listed: one pass instead of a look-up for each row.
template <class Satzreihe>
QHash<qint32, int> Plaetze(const std::vector<Notenlistenzeile>& Zeilen, const Satzreihe& Saetze, int Anzahl) {
    QHash<qint32, int> Alle;
    Alle.reserve(static_cast<qsizetype>(Zeilen.size()));
    for (const Notenlistenzeile& Zeile : Zeilen)
        Alle.insert(Zeile.Datum, -1);
    for (int i = 0; i < Anzahl; ++i)
        if (const auto Gesucht = Alle.find(Saetze[i].ID); Gesucht != Alle.end() && *Gesucht < 0)
            *Gesucht = i;
    return Alle;
}

} // namespace

std::vector<Notenlistenzeile> NotenzeilenDesFachs(qint32 Fach_ID) {
    auto Alle = Zeilen([Fach_ID](const Notenzeile& Eine) { return Eine.Fach_ID == Fach_ID; },
                       [](const Notenzeile& Eine) { return Eine.Schueler_ID; });
    const int FachPlatz = FachIndex(Fach_ID);
    const auto Schueler = Plaetze(Alle, Datenbank.Schueler, Datenbank.AnzSchueler);
    for (Notenlistenzeile& Zeile : Alle) {
        Zeile.FachPlatz = FachPlatz;
        if (const int Platz = Schueler.value(Zeile.Datum); Platz >= 0)
            Zeile.Name = Datenbank.Schueler[Platz].Name;
    }
    return Alle;
}

std::vector<Notenlistenzeile> NotenzeilenDesSchuelers(qint32 Schueler_ID) {
    auto Alle = Zeilen([Schueler_ID](const Notenzeile& Eine) { return Eine.Schueler_ID == Schueler_ID; },
                       [](const Notenzeile& Eine) { return Eine.Fach_ID; });
    const auto Faecher = Plaetze(Alle, Datenbank.Faecher, Datenbank.AnzFaecher);
    for (Notenlistenzeile& Zeile : Alle) {
        Zeile.FachPlatz = Faecher.value(Zeile.Datum);
        if (Zeile.FachPlatz >= 0)
            Zeile.Name = Datenbank.Faecher[Zeile.FachPlatz].Name;
    }
    return Alle;
}
