#include "views/Schuelerliste.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "core/Textordnung.h"
#include "records/Klassenfeld.h"
#include "views/AnsichtSSpalten.h"

#include <QHash>

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
            Zeilen.push_back({i, Einer.ID, Zeilen.size() * AnzFaecher});
    }
    return Zeilen;
}

/// Finds the rows of grades of all students in one walk over them.
void NotenplaetzeSuchen(Schuelerliste& Liste) {
    QHash<qint32, std::size_t> SpalteZuFach;
    for (std::size_t j = Liste.Faecher.size(); j-- > 0;)
        SpalteZuFach.insert(Liste.Faecher[j].Fach_ID, j);
    QHash<qint32, std::size_t> BeginnZuSchueler;
    BeginnZuSchueler.reserve(std::ssize(Liste.Zeilen));
    for (const Schuelerzeile& Zeile : Liste.Zeilen)
        BeginnZuSchueler.insert(Zeile.ID, Zeile.Noten);

    Liste.Notenplaetze.assign(Liste.Zeilen.size() * Liste.Faecher.size(), -1);
    // Backwards: where a pair has several rows, the first one counts.
    for (int i = Datenbank.AnzNoten - 1; i >= 0; --i) {
        const Notenzeile& Satz = Datenbank.Noten[i];
        const auto Spalte = SpalteZuFach.constFind(Satz.Fach_ID);
        if (Spalte == SpalteZuFach.constEnd())
            continue;
        const auto Beginn = BeginnZuSchueler.constFind(Satz.Schueler_ID);
        if (Beginn != BeginnZuSchueler.constEnd())
            Liste.Notenplaetze[*Beginn + *Spalte] = i;
    }
}

const QString& Leer() {
    static const QString Text;
    return Text;
}

const QString& Teilnahmetext(int Platz, qint32 Schueler_ID, qint32 Fach_ID) {
    if (Platz < 0) // looking for what was not there would be a walk over all rows for each cell
        return Leer();
    const auto Passt = [&](const Notenzeile& Satz) {
        return Satz.Schueler_ID == Schueler_ID && Satz.Fach_ID == Fach_ID;
    };
    if (Platz >= Datenbank.AnzNoten || !Passt(Datenbank.Noten[Platz]))
        Platz = NotenIndex(Schueler_ID, Fach_ID);
    return Platz < 0 ? Leer() : Datenbank.Noten[Platz].Teilnahme;
}

} // namespace

int Schuelerliste::Spalten() const {
    return 1 + Faecherzahl() + AnzFelder;
}

const QString& Schuelerliste::Text(std::size_t Zeile, int Spalte) const {
    const Schuelerzeile& Eine = Zeilen[Zeile];
    if (Spalte >= 1 && Spalte <= Faecherzahl()) {
        const auto Fach = static_cast<std::size_t>(Spalte - 1);
        return Teilnahmetext(Notenplaetze[Eine.Noten + Fach], Eine.ID, Faecher[Fach].Fach_ID);
    }
    const bool StehtDort = Eine.Platz < Datenbank.AnzSchueler && Datenbank.Schueler[Eine.Platz].ID == Eine.ID;
    const int Platz = StehtDort ? Eine.Platz : SchuelerIndex(Eine.ID);
    if (Platz < 0)
        return Leer();
    const Schueler& Satz = Datenbank.Schueler[Platz];
    return Spalte == 0 ? Satz.Name : Satz.Feld[Spalte - Faecherzahl()];
}

Schuelerliste SchuelerlisteDerKlasse(const QString& Klasse) {
    Schuelerliste Liste;
    Liste.Faecher = FachspaltenDerKlasse(Klasse);
    Liste.Zeilen = ZeilenDerKlasse(Klasse, Liste.Faecher.size());
    NotenplaetzeSuchen(Liste);
    return Liste;
}

void NachSpalteOrdnen(Schuelerliste& Liste, int Spalte) {
    std::vector<QString> Texte;
    Texte.reserve(Liste.Zeilen.size());
    for (std::size_t z = 0; z < Liste.Zeilen.size(); ++z)
        Texte.push_back(Liste.Text(z, Spalte));
    std::vector<Schuelerzeile> Geordnet;
    Geordnet.reserve(Liste.Zeilen.size());
    for (const int Stelle : Textfolge(Texte))
        Geordnet.push_back(Liste.Zeilen[static_cast<std::size_t>(Stelle)]);
    Liste.Zeilen = std::move(Geordnet);
}
