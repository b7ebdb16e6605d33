#include "views/Schuelerliste.h"

#include "core/Definitionen.h"
#include "records/Klassenfeld.h"

#include <QHash>

#include <algorithm>

namespace {

std::vector<Fachspalte> FachspaltenDerKlasse(const QString& Klasse) {
    std::vector<Fachspalte> Spalten;
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        if (Eines.Jahr != Datenbank.AktJahr || !FeldNenntKlasse(Eines.Klasse, Klasse))
            continue;
        const bool Zusammengelegt = KlassenDesFelds(Eines.Klasse).size() > 1;
        Spalten.push_back({Eines.ID, Zusammengelegt ? Eines.Name + u'*' : Eines.Name});
    }
    return Spalten;
}

std::vector<Schuelerzeile> ZeilenDerKlasse(const QString& Klasse, std::size_t AnzFaecher) {
    std::vector<Schuelerzeile> Zeilen;
    for (int i = Datenbank.AnzSchueler - 1; i >= 0; --i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        if (Einer.Klasse == Klasse && Einer.Jahr == Datenbank.AktJahr)
            Zeilen.push_back({i, std::vector<QString>(AnzFaecher)});
    }
    return Zeilen;
}

/// Puts the participation into the lines in one walk over all rows of grades.
void TeilnahmeEintragen(Schuelerliste& Liste) {
    QHash<qint32, std::size_t> SpalteZuFach;
    for (std::size_t j = Liste.Faecher.size(); j-- > 0;)
        SpalteZuFach.insert(Liste.Faecher[j].Fach_ID, j);
    QHash<qint32, Schuelerzeile*> ZeileZuSchueler;
    for (Schuelerzeile& Zeile : Liste.Zeilen)
        ZeileZuSchueler.insert(Datenbank.Schueler[Zeile.Platz].ID, &Zeile);

    // Backwards: where a pair has several rows, the first one counts.
    for (int i = Datenbank.AnzNoten - 1; i >= 0; --i) {
        const Notenzeile& Satz = Datenbank.Noten[i];
        const auto Spalte = SpalteZuFach.constFind(Satz.Fach_ID);
        if (Spalte == SpalteZuFach.constEnd())
            continue;
        if (Schuelerzeile* const Zeile = ZeileZuSchueler.value(Satz.Schueler_ID))
            Zeile->Teilnahme[*Spalte] = Satz.Teilnahme;
    }
}

} // namespace

Schuelerliste SchuelerlisteDerKlasse(const QString& Klasse) {
    Schuelerliste Liste;
    Liste.Faecher = FachspaltenDerKlasse(Klasse);
    Liste.Zeilen = ZeilenDerKlasse(Klasse, Liste.Faecher.size());
    TeilnahmeEintragen(Liste);
    return Liste;
}
