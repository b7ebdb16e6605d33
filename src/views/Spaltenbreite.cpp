#include "views/Spaltenbreite.h"

#include "views/AnsichtSSpalten.h"
#include "views/Schuelerliste.h"

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
    AnNoten.Vergessen();
}

double Spaltenmass::Zellenbreite(const Schuelerliste& Liste, std::size_t Zeile, int Spalte) {
    const Schuelerzeile& Eine = Liste.Zeilen[Zeile];
    const auto Messen = [this](const QString& Text) { return Zeichen.Breite(Text); };
    const QString& Text = Liste.Text(Zeile, Spalte);
    const int P = Liste.Faecherzahl();
    if (Spalte >= 1 && Spalte <= P) {
        const int Platz = Liste.Notenplaetze[Eine.Noten + static_cast<std::size_t>(Spalte - 1)];
        return Platz < 0 ? Messen(Text) : AnNoten(static_cast<std::size_t>(Platz), Text, Messen);
    }
    const int Feld = Spalte == 0 ? 0 : Spalte - P;
    return AnSchuelern(static_cast<std::size_t>(Eine.Platz * (1 + AnzFelder) + Feld), Text, Messen);
}

std::vector<double> Spaltenmass::Breiteste(const Schuelerliste& Liste, int Von, int Bis) {
    std::vector<double> Breiten(static_cast<std::size_t>(Bis - Von + 1));
    for (std::size_t z = 0; z < Liste.Zeilen.size(); ++z)
        for (int s = Von; s <= Bis; ++s) {
            double& Bisher = Breiten[static_cast<std::size_t>(s - Von)];
            Bisher = qMax(Bisher, Zellenbreite(Liste, z, s));
        }
    return Breiten;
}
