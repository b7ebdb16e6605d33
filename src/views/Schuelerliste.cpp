#include "views/Schuelerliste.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "core/Textordnung.h"
#include "records/Klassenfeld.h"
#include "views/AnsichtSSpalten.h"
#include "views/IDTabelle.h"

#include <algorithm>

namespace {

std::vector<Fachspalte> FachspaltenDerKlasse(const QString& Klasse) {
    std::vector<Fachspalte> Spalten;
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        if (Eines.Jahr != Datenbank.AktJahr || !FeldNenntKlasse(Eines.Klasse, Klasse))
            continue;
        const bool Zusammengelegt = KlassenDesFelds(Eines.Klasse).size() > 1;
        Spalten.push_back({Eines.ID, Zusammengelegt ? Eines.Name + u'*' : Eines.Name, {}});
    }
    return Spalten;
}

std::vector<Schuelerzeile> ZeilenDerKlasse(const QString& Klasse, std::size_t AnzFaecher) {
    std::vector<Schuelerzeile> Zeilen;
    for (int i = Datenbank.AnzSchueler - 1; i >= 0; --i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        if (Einer.Klasse == Klasse && Einer.Jahr == Datenbank.AktJahr)
            Zeilen.push_back({i, Einer.ID, Zeilen.size() * AnzFaecher});
    }
    return Zeilen;
}

/// Adds a text to those that stand in a column, each once. Nearly always it is the one seen last.
void Vermerken(std::vector<QString>& Texte, const QString& Text) {
    if (!Texte.empty() && Texte.back() == Text)
        return;
    if (const auto Bekannt = std::find(Texte.begin(), Texte.end(), Text); Bekannt != Texte.end())
        std::iter_swap(Bekannt, Texte.end() - 1);
    else
        Texte.push_back(Text);
}

/// Finds the rows of grades of all students in one walk over them.
void NotenplaetzeSuchen(Schuelerliste& Liste) {
    IDTabelle SpalteZuFach = TabelleFuer(Liste.Faecher, &Fachspalte::Fach_ID);
    for (std::size_t j = Liste.Faecher.size(); j-- > 0;)
        SpalteZuFach.Setzen(Liste.Faecher[j].Fach_ID, static_cast<int>(j));
    IDTabelle ZeileZuSchueler = TabelleFuer(Liste.Zeilen, &Schuelerzeile::ID);
    for (std::size_t z = 0; z < Liste.Zeilen.size(); ++z)
        ZeileZuSchueler.Setzen(Liste.Zeilen[z].ID, static_cast<int>(z));

    Liste.Notenplaetze.assign(Liste.Zeilen.size() * Liste.Faecher.size(), -1);
    // Backwards: where a pair has several rows, the first one counts.
    for (int i = Datenbank.AnzNoten - 1; i >= 0; --i) {
        const Notenzeile& Satz = Datenbank.Noten[i];
        const int Spalte = SpalteZuFach[Satz.Fach_ID];
        const int Zeile = Spalte == IDTabelle::Keiner ? IDTabelle::Keiner : ZeileZuSchueler[Satz.Schueler_ID];
        if (Zeile == IDTabelle::Keiner)
            continue;
        const auto Fach = static_cast<std::size_t>(Spalte);
        Liste.Notenplaetze[Liste.Zeilen[static_cast<std::size_t>(Zeile)].Noten + Fach] = i;
        Vermerken(Liste.Faecher[Fach].Teilnahmen, Satz.Teilnahme);
    }
}

} // namespace

int Schuelerliste::Spalten() const {
    return 1 + Faecherzahl() + AnzFelder;
}

const Schueler* Schuelerliste::Satz(std::size_t Zeile) const {
    const Schuelerzeile& Eine = Zeilen[Zeile];
    const bool StehtDort = Eine.Platz < Datenbank.AnzSchueler && Datenbank.Schueler[Eine.Platz].ID == Eine.ID;
    const int Platz = StehtDort ? Eine.Platz : SchuelerIndex(Eine.ID);
    return Platz < 0 ? nullptr : &Datenbank.Schueler[Platz];
}

const Notenzeile* Schuelerliste::Note(std::size_t Zeile, std::size_t Fach) const {
    const Schuelerzeile& Eine = Zeilen[Zeile];
    const qint32 Fach_ID = Faecher[Fach].Fach_ID;
    int Platz = Notenplaetze[Eine.Noten + Fach];
    if (Platz < 0) // looking for what was not there would be a walk over all rows for each cell
        return nullptr;
    const auto Passt = [&](const Notenzeile& Eines) {
        return Eines.Schueler_ID == Eine.ID && Eines.Fach_ID == Fach_ID;
    };
    if (Platz >= Datenbank.AnzNoten || !Passt(Datenbank.Noten[Platz]))
        Platz = NotenIndex(Eine.ID, Fach_ID);
    return Platz < 0 ? nullptr : &Datenbank.Noten[Platz];
}

const QString& Schuelerliste::Text(std::size_t Zeile, int Spalte) const {
    static const QString Leer;
    if (Spalte >= 1 && Spalte <= Faecherzahl()) {
        const Notenzeile* Eine = Note(Zeile, static_cast<std::size_t>(Spalte - 1));
        return Eine ? Eine->Teilnahme : Leer;
    }
    const Schueler* Einer = Satz(Zeile);
    if (!Einer)
        return Leer;
    return Spalte == 0 ? Einer->Name : Einer->Feld[Spalte - Faecherzahl()];
}

void TeilnahmenErneuern(Schuelerliste& Liste) {
    for (std::size_t j = 0; j < Liste.Faecher.size(); ++j) {
        Liste.Faecher[j].Teilnahmen.clear();
        for (std::size_t z = 0; z < Liste.Zeilen.size(); ++z)
            if (const Notenzeile* Eine = Liste.Note(z, j))
                Vermerken(Liste.Faecher[j].Teilnahmen, Eine->Teilnahme);
    }
}

Schuelerliste SchuelerlisteDerKlasse(const QString& Klasse) {
    Schuelerliste Liste;
    Liste.Faecher = FachspaltenDerKlasse(Klasse);
    Liste.Zeilen = ZeilenDerKlasse(Klasse, Liste.Faecher.size());
    NotenplaetzeSuchen(Liste);
    return Liste;
}

Schuelerliste SchuelerDerKlasse(const QString& Klasse) {
    Schuelerliste Liste;
    Liste.Zeilen = ZeilenDerKlasse(Klasse, 0);
    return Liste;
}

std::vector<qint32> Zeilendaten(const Schuelerliste& Liste) {
    std::vector<qint32> IDs;
    IDs.reserve(Liste.Zeilen.size());
    for (const Schuelerzeile& Eine : Liste.Zeilen)
        IDs.push_back(Eine.ID);
    return IDs;
}

std::vector<std::size_t> InSatzfolge(const Schuelerliste& Liste) {
    constexpr std::size_t Keine = static_cast<std::size_t>(-1);
    std::vector<std::size_t> AnPlatz(static_cast<std::size_t>(Datenbank.Schueler.size()), Keine);
    for (std::size_t z = 0; z < Liste.Zeilen.size(); ++z)
        AnPlatz[static_cast<std::size_t>(Liste.Zeilen[z].Platz)] = z;
    AnPlatz.erase(std::remove(AnPlatz.begin(), AnPlatz.end(), Keine), AnPlatz.end());
    return AnPlatz;
}

void NachSpalteOrdnen(Schuelerliste& Liste, int Spalte) {
    const auto Text = [&](std::size_t Zeile) -> const QString& { return Liste.Text(Zeile, Spalte); };
    std::vector<Schuelerzeile> Geordnet;
    Geordnet.reserve(Liste.Zeilen.size());
    for (const int Stelle : Textfolge(Liste.Zeilen.size(), Text))
        Geordnet.push_back(Liste.Zeilen[static_cast<std::size_t>(Stelle)]);
    Liste.Zeilen = std::move(Geordnet);
}
