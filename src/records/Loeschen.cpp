#include "records/Loeschen.h"

#include "core/Aufruecken.h"
#include "core/Definitionen.h"
#include "records/Klassenfeld.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

// A class goes with hundreds of rows. They are not taken out one after the other: it is worked out first what
// goes and which guests of tests stay, in the order in which single deletions would give it; then each array
// is closed up in one pass.

namespace {

/// What goes: marks of the records, and the IDs by which other records refer to them.
struct Loeschung {
    Marken Faecher = Marken(static_cast<std::size_t>(Datenbank.AnzFaecher));
    Marken Schueler = Marken(static_cast<std::size_t>(Datenbank.AnzSchueler));
    QSet<qint32> Fach_IDs;
    QHash<qint32, int> Schueler_IDs; ///< with the turn in which each is deleted, from 0
    std::vector<QString> Namen;      ///< by turn
};

bool Vorgemerkt(const Marken& Weg, int Platz) {
    return Weg[static_cast<std::size_t>(Platz)];
}

/// Marks the first record with this ID that is not marked yet; gives its place, -1 if there is none.
template <class Feld>
int ErstenVormerken(const Feld& Alle, qint32 ID, Marken& Weg) {
    for (std::size_t i = 0; i < Weg.size(); ++i)
        if (!Weg[i] && Alle[static_cast<int>(i)].ID == ID) {
            Weg[i] = true;
            return static_cast<int>(i);
        }
    return -1;
}

/// False if there is no such subject.
bool FachVormerken(Loeschung& Was, qint32 ID) {
    if (ErstenVormerken(Datenbank.Faecher, ID, Was.Faecher) < 0)
        return false;
    Was.Fach_IDs.insert(ID);
    return true;
}

/// False if there is no such student.
bool SchuelerVormerken(Loeschung& Was, qint32 ID) {
    const int Platz = ErstenVormerken(Datenbank.Schueler, ID, Was.Schueler);
    if (Platz < 0)
        return false;
    if (!Was.Schueler_IDs.contains(ID)) {
        Was.Schueler_IDs.insert(ID, static_cast<int>(Was.Namen.size()));
        Was.Namen.push_back(Datenbank.Schueler[Platz].Name);
    }
    return true;
}

bool IstErgebnis(const QString& Note) {
    return !Note.isEmpty() && Note != QStringLiteral("ne") && Note != QStringLiteral("kr");
}

void GaesteAusZeile(const Notenzeile& Zeile, const QString& Name, std::vector<ZSchueler>& Gaeste) {
    for (int k = 1; k <= 20; ++k)
        if (IstErgebnis(Zeile.N[k]))
            Gaeste.push_back({k, Zeile.Fach_ID, Name, Zeile.P[k], Zeile.N[k]});
}

/// What becomes of the rows of grades.
struct Zeilenfolge {
    Marken Weg = Marken(static_cast<std::size_t>(Datenbank.AnzNoten));
    std::vector<ZSchueler> Gaeste; ///< stay in the tests: student by student, in the order of rows and tests
};

Zeilenfolge ZeilenDurchgehen(const Loeschung& Was) {
    Zeilenfolge Folge;
    std::vector<std::pair<int, int>> MitErgebnis; // turn of the student, place of the row
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        const bool FachWeg = Was.Fach_IDs.contains(Zeile.Fach_ID);
        const auto Schueler = Was.Schueler_IDs.constFind(Zeile.Schueler_ID);
        const bool SchuelerWeg =
            Schueler != Was.Schueler_IDs.constEnd() && Zeile.Teilnahme == QStringLiteral("ja");
        Folge.Weg[static_cast<std::size_t>(i)] = FachWeg || SchuelerWeg;
        if (SchuelerWeg && !FachWeg)
            MitErgebnis.emplace_back(*Schueler, i);
    }
    std::sort(MitErgebnis.begin(), MitErgebnis.end());
    for (const auto& [Reihenfolge, Platz] : MitErgebnis)
        GaesteAusZeile(Datenbank.Noten[Platz], Was.Namen[static_cast<std::size_t>(Reihenfolge)],
                       Folge.Gaeste);
    return Folge;
}

Marken GehendeZSchueler(const Loeschung& Was) {
    Marken Weg(static_cast<std::size_t>(Datenbank.AnzZSchueler));
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i)
        Weg[static_cast<std::size_t>(i)] = Was.Fach_IDs.contains(Datenbank.ZSchueler[i].Fach_ID);
    return Weg;
}

void Durchfuehren(const Loeschung& Was) {
    Zeilenfolge Zeilen = ZeilenDurchgehen(Was);
    const Marken ZSchuelerWeg = GehendeZSchueler(Was);
    const auto Platz = static_cast<std::size_t>(Datenbank.ZSchueler.size());
    const auto Bleiben =
        static_cast<std::size_t>(std::count(ZSchuelerWeg.begin(), ZSchuelerWeg.end(), false));
    if (Bleiben + Zeilen.Gaeste.size() > Platz)
        IndexFehler(Datenbank.ZSchueler.size(), Platz);

    Aufruecken(Datenbank.ZSchueler, Datenbank.AnzZSchueler, ZSchuelerWeg);
    for (ZSchueler& Gast : Zeilen.Gaeste)
        Datenbank.ZSchueler[Datenbank.AnzZSchueler++] = std::move(Gast);
    Aufruecken(Datenbank.Noten, Datenbank.AnzNoten, Zeilen.Weg);
    Aufruecken(Datenbank.Faecher, Datenbank.AnzFaecher, Was.Faecher);
    Aufruecken(Datenbank.Schueler, Datenbank.AnzSchueler, Was.Schueler);
    DatenGeaendert = true;
}

/// The subjects of AktJahr that name the class. Where IDs are not unique, the first record of an ID goes, as
/// often as it takes until the one of the class is gone.
void FaecherDerKlasseVormerken(Loeschung& Was, const QString& Name) {
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        if (Eines.Jahr != Datenbank.AktJahr || !FeldNenntKlasse(Eines.Klasse, Name))
            continue;
        while (!Vorgemerkt(Was.Faecher, i))
            FachVormerken(Was, Eines.ID);
    }
}

/// The students of the class and of AktJahr, in the same way.
void SchuelerDerKlasseVormerken(Loeschung& Was, const QString& Name) {
    for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        if (Einer.Klasse != Name || Einer.Jahr != Datenbank.AktJahr)
            continue;
        while (!Vorgemerkt(Was.Schueler, i))
            SchuelerVormerken(Was, Einer.ID);
    }
}

void KlassensatzEntfernen(const QString& Name) {
    const auto Anfang = Datenbank.Klassen.begin();
    const auto Ende = Anfang + Datenbank.AnzKlassen;
    const auto Fund = std::find(Anfang, Ende, Klasse{Datenbank.AktJahr, Name});
    if (Fund == Ende)
        return;
    std::move(Fund + 1, Ende, Fund);
    --Datenbank.AnzKlassen;
}

} // namespace

void SchuelerLoeschen(qint32 ID) {
    Loeschung Was;
    if (SchuelerVormerken(Was, ID))
        Durchfuehren(Was);
}

void FachLoeschen(qint32 ID) {
    Loeschung Was;
    if (FachVormerken(Was, ID))
        Durchfuehren(Was);
}

void KlasseLoeschen(const QString& Name) {
    Loeschung Was;
    FaecherDerKlasseVormerken(Was, Name);
    SchuelerDerKlasseVormerken(Was, Name);
    Durchfuehren(Was);
    KlassensatzEntfernen(Name);
}
