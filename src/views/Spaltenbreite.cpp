#include "views/Spaltenbreite.h"

#include "views/Schuelerliste.h"

#include <algorithm>
#include <functional>

Zeichenmass::Zeichenmass(const QFont& Schrift)
    : Mass(Schrift) {
    Lateinische.fill(Ungemessen);
}

double Zeichenmass::Zeichenbreite(QChar Zeichen) {
    const char16_t Nummer = Zeichen.unicode();
    double& Breite = Nummer < Lateinische.size() ? Lateinische[Nummer]
                                                 : Andere.try_emplace(Nummer, Ungemessen).first->second;
    if (Breite == Ungemessen)
        Breite = Mass.horizontalAdvance(Zeichen);
    return Breite;
}

double Zeichenmass::Breite(const QString& Text) {
    double Summe = 0;
    for (const QChar Zeichen : Text)
        Summe += Zeichenbreite(Zeichen);
    return Summe;
}

void Spaltenmass::SchriftSetzen(const QFont& Schrift) {
    if (Schrift == Gemessene)
        return;
    Gemessene = Schrift;
    Zeichen = Zeichenmass(Schrift);
    AnSchuelern.Vergessen();
}

Schuelertexte::Schuelertexte(const Schueler& Satz)
    : Gehaltene(std::make_unique<Reihe<QString, 1 + AnzFelder>>(Satz.Feld)) {
    (*Gehaltene)[0] = Satz.Name;
    std::transform(Gehaltene->begin(), Gehaltene->end(), Orte.begin(), std::mem_fn(&QString::constData));
}

bool NochDieselben(const Schuelertexte& Gemerkte, const Schueler& Satz) {
    bool Alle = Gemerkte.Orte[0] == Satz.Name.constData();
    for (int k = 1; k <= AnzFelder; ++k)
        Alle &= Gemerkte.Orte[k] == Satz.Feld[k].constData();
    return Alle;
}

Spaltenmass::Schuelerbreiten Spaltenmass::Messen(const Schueler& Satz) {
    Schuelerbreiten Breiten;
    Breiten[0] = Zeichen.Breite(Satz.Name);
    for (int k = 1; k <= AnzFelder; ++k)
        Breiten[k] = Zeichen.Breite(Satz.Feld[k]);
    return Breiten;
}

std::vector<double> Spaltenmass::Breiteste(const Schuelerliste& Liste) {
    const std::size_t P = Liste.Faecher.size();
    std::vector<double> Breiten(static_cast<std::size_t>(Liste.Spalten()));
    const auto Groesser = [&Breiten](std::size_t Spalte, double Neue) {
        Breiten[Spalte] = std::max(Breiten[Spalte], Neue);
    };
    for (std::size_t j = 0; j < P; ++j)
        for (const QString& Text : Liste.Faecher[j].Teilnahmen)
            Groesser(1 + j, Zeichen.Breite(Text));
    const auto Zeilenmass = [this](const Schueler& Satz) { return Messen(Satz); };
    for (std::size_t z = 0; z < Liste.Zeilen.size(); ++z) {
        const Schueler* Satz = Liste.Satz(z);
        if (!Satz)
            continue;
        const Schuelerbreiten& Seine =
            AnSchuelern(static_cast<std::size_t>(Liste.Zeilen[z].Platz), *Satz, Zeilenmass);
        Groesser(0, Seine[0]);
        for (int k = 1; k <= AnzFelder; ++k)
            Groesser(P + static_cast<std::size_t>(k), Seine[k]);
    }
    return Breiten;
}
