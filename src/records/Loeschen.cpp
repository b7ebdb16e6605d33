#include "records/Loeschen.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
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

/// What goes: places in the arrays, and the IDs by which other records refer to them.
struct Loeschung {
    QSet<int> Faecher;
    QSet<qint32> Fach_IDs;
    QSet<int> Schueler;
    QHash<qint32, int> Schueler_IDs; ///< with the turn in which each is deleted, from 0
    std::vector<QString> Namen;      ///< by turn

    bool NimmtFachzeile(const Notenzeile& Zeile) const { return Fach_IDs.contains(Zeile.Fach_ID); }
    bool NimmtSchuelerzeile(const Notenzeile& Zeile) const {
        return Schueler_IDs.contains(Zeile.Schueler_ID) && Zeile.Teilnahme == QStringLiteral("ja");
    }
};

/// First record with this ID that is not yet in Weg; -1 if none.
template <class Feld>
int ErsterOhne(const Feld& Alle, int Anzahl, qint32 ID, const QSet<int>& Weg) {
    for (int i = 0; i < Anzahl; ++i)
        if (Alle[i].ID == ID && !Weg.contains(i))
            return i;
    return -1;
}

void FachVormerken(Loeschung& Was, qint32 ID) {
    const int Platz = ErsterOhne(Datenbank.Faecher, Datenbank.AnzFaecher, ID, Was.Faecher);
    if (Platz < 0)
        return;
    Was.Faecher.insert(Platz);
    Was.Fach_IDs.insert(ID);
}

void SchuelerVormerken(Loeschung& Was, qint32 ID) {
    const int Platz = ErsterOhne(Datenbank.Schueler, Datenbank.AnzSchueler, ID, Was.Schueler);
    if (Platz < 0)
        return;
    Was.Schueler.insert(Platz);
    if (Was.Schueler_IDs.contains(ID))
        return;
    Was.Schueler_IDs.insert(ID, static_cast<int>(Was.Namen.size()));
    Was.Namen.push_back(Datenbank.Schueler[Platz].Name);
}

bool IstErgebnis(const QString& Note) {
    return !Note.isEmpty() && Note != QStringLiteral("ne") && Note != QStringLiteral("kr");
}

void GaesteAusZeile(const Notenzeile& Zeile, const QString& Name, std::vector<ZSchueler>& Gaeste) {
    for (int k = 1; k <= 20; ++k)
        if (IstErgebnis(Zeile.N[k]))
            Gaeste.push_back({k, Zeile.Fach_ID, Name, Zeile.P[k], Zeile.N[k]});
}

/// The guests that stay in the tests: student by student, each in the order of his rows and tests.
std::vector<ZSchueler> BleibendeGaeste(const Loeschung& Was) {
    std::vector<std::pair<int, int>> Zeilen; // turn of the student, place of the row
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        if (!Was.NimmtFachzeile(Zeile) && Was.NimmtSchuelerzeile(Zeile))
            Zeilen.emplace_back(Was.Schueler_IDs.value(Zeile.Schueler_ID), i);
    }
    std::sort(Zeilen.begin(), Zeilen.end());

    std::vector<ZSchueler> Gaeste;
    for (const auto& [Reihenfolge, Platz] : Zeilen)
        GaesteAusZeile(Datenbank.Noten[Platz], Was.Namen[static_cast<std::size_t>(Reihenfolge)], Gaeste);
    return Gaeste;
}

/// Takes out the records for which Weg(record, place) holds; the others keep their order.
template <class Feld, class Regel>
void Aufruecken(Feld& Alle, qint16& Anzahl, Regel Weg) {
    int Ziel = 0;
    for (int i = 0; i < Anzahl; ++i) {
        if (Weg(Alle[i], i))
            continue;
        if (Ziel != i)
            Alle[Ziel] = std::move(Alle[i]);
        ++Ziel;
    }
    Anzahl = static_cast<qint16>(Ziel);
}

void ZSchuelerErneuern(const Loeschung& Was, std::vector<ZSchueler> Gaeste) {
    Aufruecken(Datenbank.ZSchueler, Datenbank.AnzZSchueler,
               [&](const ZSchueler& Einer, int) { return Was.Fach_IDs.contains(Einer.Fach_ID); });
    for (ZSchueler& Gast : Gaeste)
        Datenbank.ZSchueler[Datenbank.AnzZSchueler++] = std::move(Gast);
}

void GaestePlatzPruefen(const Loeschung& Was, std::size_t Neue) {
    const auto Anfang = Datenbank.ZSchueler.begin();
    const auto Bleiben = std::count_if(Anfang, Anfang + Datenbank.AnzZSchueler, [&](const ZSchueler& Einer) {
        return !Was.Fach_IDs.contains(Einer.Fach_ID);
    });
    const auto Platz = static_cast<std::size_t>(Datenbank.ZSchueler.size());
    if (static_cast<std::size_t>(Bleiben) + Neue > Platz)
        IndexFehler(Datenbank.ZSchueler.size(), Platz);
}

void Durchfuehren(const Loeschung& Was) {
    std::vector<ZSchueler> Gaeste = BleibendeGaeste(Was);
    GaestePlatzPruefen(Was, Gaeste.size());

    ZSchuelerErneuern(Was, std::move(Gaeste));
    Aufruecken(Datenbank.Noten, Datenbank.AnzNoten, [&](const Notenzeile& Zeile, int) {
        return Was.NimmtFachzeile(Zeile) || Was.NimmtSchuelerzeile(Zeile);
    });
    Aufruecken(Datenbank.Faecher, Datenbank.AnzFaecher,
               [&](const Fach&, int i) { return Was.Faecher.contains(i); });
    Aufruecken(Datenbank.Schueler, Datenbank.AnzSchueler,
               [&](const Schueler&, int i) { return Was.Schueler.contains(i); });
    DatenGeaendert = true;
}

/// The subjects of AktJahr that name the class. Where IDs are not unique, the first record of an ID goes, as
/// often as it takes until the one of the class is gone.
void FaecherDerKlasseVormerken(Loeschung& Was, const QString& Name) {
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        if (Eines.Jahr != Datenbank.AktJahr || !FeldNenntKlasse(Eines.Klasse, Name))
            continue;
        while (!Was.Faecher.contains(i))
            FachVormerken(Was, Eines.ID);
    }
}

/// The students of the class and of AktJahr, in the same way.
void SchuelerDerKlasseVormerken(Loeschung& Was, const QString& Name) {
    for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        if (Einer.Klasse != Name || Einer.Jahr != Datenbank.AktJahr)
            continue;
        while (!Was.Schueler.contains(i))
            SchuelerVormerken(Was, Einer.ID);
    }
}

void KlassensatzEntfernen(const QString& Name) {
    bool Gefunden = false;
    Aufruecken(Datenbank.Klassen, Datenbank.AnzKlassen, [&](const Klasse& Eine, int) {
        const bool Weg = !Gefunden && Eine.Name == Name && Eine.Jahr == Datenbank.AktJahr;
        Gefunden = Gefunden || Weg;
        return Weg;
    });
}

} // namespace

void SchuelerLoeschen(qint32 ID) {
    Loeschung Was;
    SchuelerVormerken(Was, ID);
    if (!Was.Schueler.isEmpty())
        Durchfuehren(Was);
}

void FachLoeschen(qint32 ID) {
    Loeschung Was;
    FachVormerken(Was, ID);
    if (!Was.Faecher.isEmpty())
        Durchfuehren(Was);
}

void KlasseLoeschen(const QString& Name) {
    Loeschung Was;
    FaecherDerKlasseVormerken(Was, Name);
    SchuelerDerKlasseVormerken(Was, Name);
    Durchfuehren(Was);
    KlassensatzEntfernen(Name);
}
