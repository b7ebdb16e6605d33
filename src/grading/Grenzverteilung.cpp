#include "grading/Grenzverteilung.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/Zahlen.h"

#include <cmath>

const QString MeldungOhneGesamtpunktzahl =
    QStringLiteral("Sie müssen erst die Gesamtpunktzahl festlegen, damit die Verteilung automatisch bestimmt "
                   "werden kann!");
const QString MeldungGaussOhneGesamtpunktzahl = QStringLiteral(
    "Sie müssen erst Gesamtpunktzahl festlegen, damit die Gaußverteilung automatisch bestimmt werden kann!");

QStringList EigeneGrenzen(qint16 Gesamt, const Anteile& Prozente, int HoechsteNote) {
    QStringList Grenzen;
    if (Gesamt <= 0)
        return Grenzen;
    for (int j = 0; j <= HoechsteNote - 2; ++j)
        Grenzen.append(ZahlText(std::floor(Gesamt * static_cast<double>(Prozente[j]) / 50 + 0.5) / 2));
    return Grenzen;
}

QStringList TabellenGrenzen(qint16 Gesamt, int HoechsteNote) {
    QStringList Grenzen;
    if (Gesamt <= 0 || Gesamt > BLLVVerteilung.Obergrenze)
        return Grenzen;
    for (int j = 0; j <= HoechsteNote - 2; ++j)
        Grenzen.append(ZahlText(BLLVVerteilung[Gesamt][j]));
    return Grenzen;
}

namespace {

/// How many students reached i/2 points, i up to twice the total, and how many that are together.
struct Haeufigkeit {
    std::vector<int> JeHalbpunkt;
    int Anzahl = 0;
};

Haeufigkeit HaeufigkeitZaehlen(qint16 Gesamt, const std::vector<QString>& AllePunkte) {
    Haeufigkeit Zaehlung;
    Zaehlung.JeHalbpunkt.resize(2 * static_cast<std::size_t>(Gesamt) + 1);
    for (const QString& Text : AllePunkte) {
        if (Text.trimmed().isEmpty())
            continue;
        const float Punkte = ZahlAusText(Text);
        if (Punkte < 0 || Punkte > Gesamt)
            continue;
        ++Zaehlung.Anzahl;
        const float Doppelt = 2 * Punkte;
        ++Zaehlung.JeHalbpunkt[static_cast<std::size_t>(Runden(Doppelt))];
    }
    return Zaehlung;
}

} // namespace

QStringList GaussGrenzen(qint16 Gesamt, const std::vector<QString>& Punkte, const Anteile& Prozente,
                         int HoechsteNote) {
    QStringList Grenzen;
    if (Gesamt <= 0)
        return Grenzen;
    const Haeufigkeit Zaehlung = HaeufigkeitZaehlen(Gesamt, Punkte);
    int Summe = 0;
    for (int i = 2 * Gesamt; i >= 0 && Grenzen.size() < HoechsteNote - 1; --i) {
        Summe += Zaehlung.JeHalbpunkt[static_cast<std::size_t>(i)];
        const float Anteil = static_cast<float>(Zaehlung.Anzahl) * Prozente[static_cast<int>(Grenzen.size())];
        if (static_cast<float>(Summe) >= Anteil / 100)
            Grenzen.append(ZahlText(i / 2.0));
    }
    return Grenzen;
}

namespace {

constexpr float Schrittweite = 0.5F;

/// The boundary Index moved by Weite, if the gap Abstand leaves room for it.
Grenzschritt Verschoben(const Grenzpruefung& Werte, int Index, float Abstand, float Weite) {
    if (Abstand <= Schrittweite)
        return {true, -1, {}};
    const float Neu = Werte.Grenze[Index] + Weite;
    return {true, Index, ZahlText(Neu)};
}

} // namespace

Grenzschritt BesserSchritt(const Probenmassstab& Massstab, int HoechsteNote) {
    const Grenzpruefung Werte = GrenzenPruefen(Massstab, HoechsteNote);
    if (!Werte.Plausibel)
        return {};
    float Abstand = 0;
    int Index = 0;
    // Grenze[MaxNote-1] is 0: the gap below the last boundary takes part.
    for (int j = 0; j <= HoechsteNote - 2; ++j) {
        const float Luecke = Werte.Grenze[j] - Werte.Grenze[j + 1];
        if (Luecke > Abstand) {
            Abstand = Luecke;
            Index = j;
        }
    }
    return Verschoben(Werte, Index, Abstand, -Schrittweite);
}

Grenzschritt SchlechterSchritt(const Probenmassstab& Massstab, int HoechsteNote) {
    const Grenzpruefung Werte = GrenzenPruefen(Massstab, HoechsteNote);
    if (!Werte.Plausibel)
        return {};
    float Abstand = (Werte.Gesamt - Werte.Grenze[0]) + Schrittweite;
    int Index = 0;
    for (int j = 0; j <= HoechsteNote - 3; ++j) {
        const float Luecke = Werte.Grenze[j] - Werte.Grenze[j + 1];
        if (Luecke >= Abstand) {
            Abstand = Luecke;
            Index = j + 1;
        }
    }
    return Verschoben(Werte, Index, Abstand, Schrittweite);
}
