#pragma once

#include <qglobal.h>

#include <QHash>

#include <algorithm>
#include <vector>

/// Numbers by ID, for one fill that looks up thousands. The IDs of a book lie close together: they index a
/// plain table. Should a file hold others, far apart, they are hashed.
class IDTabelle {
  public:
    static constexpr int Keiner = -1; ///< of an ID that has no number

    /// For IDs from Kleinste to Groesste; others have no number and are given none.
    IDTabelle(qint32 Kleinste, qint32 Groesste)
        : Erste(Kleinste)
        , Weite(std::max<qint64>(0, static_cast<qint64>(Groesste) - Kleinste + 1)) {
        if (Weite <= GroessteTabelle)
            Tabelle.assign(static_cast<std::size_t>(Weite), Keiner);
    }

    bool Enthaelt(qint32 ID) const {
        return static_cast<quint64>(static_cast<qint64>(ID) - Erste) < static_cast<quint64>(Weite);
    }
    int operator[](qint32 ID) const {
        if (!Enthaelt(ID))
            return Keiner;
        return Weite <= GroessteTabelle ? Tabelle[Stelle(ID)] : Verstreute.value(ID, Keiner);
    }
    void Setzen(qint32 ID, int Nummer) {
        if (!Enthaelt(ID))
            return;
        if (Weite <= GroessteTabelle)
            Tabelle[Stelle(ID)] = Nummer;
        else
            Verstreute.insert(ID, Nummer);
    }

  private:
    static constexpr qint64 GroessteTabelle = 100000;
    std::size_t Stelle(qint32 ID) const { return static_cast<std::size_t>(ID - Erste); }

    qint32 Erste;
    qint64 Weite;
    std::vector<int> Tabelle;
    QHash<qint32, int> Verstreute;
};

/// A table for the IDs of these entries; Feld is the member that holds the ID.
template <class Eintrag>
IDTabelle TabelleFuer(const std::vector<Eintrag>& Eintraege, qint32 Eintrag::*Feld) {
    if (Eintraege.empty())
        return {0, -1};
    const auto Kleiner = [Feld](const Eintrag& Links, const Eintrag& Rechts) {
        return Links.*Feld < Rechts.*Feld;
    };
    const auto [Kleinster, Groesster] = std::minmax_element(Eintraege.begin(), Eintraege.end(), Kleiner);
    return {(*Kleinster).*Feld, (*Groesster).*Feld};
}
