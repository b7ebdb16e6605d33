#include "assessments/Textmass.h"

#include <cmath>
#include <vector>

namespace {

constexpr double TwipsJePixel = 15;

// What box and cell need beside the text itself.
constexpr double RandInBreite = 75;
constexpr double RandInHoehe = 105;
constexpr double RandImKasten = 30;

int AbsatzZeilen(const Textmass& Mass, QStringView Absatz, double Grenze) {
    int Zeilen = 0;
    double Belegt = 0; // width of the words already in the line, each with its blank
    while (true) {
        const qsizetype Leerzeichen = Absatz.indexOf(u' ');
        if (Leerzeichen < 0)
            return Zeilen + (Belegt + Mass.Breite(Absatz) > Grenze ? 2 : 1);
        const double Wort = Mass.Breite(Absatz.first(Leerzeichen + 1));
        if (Belegt + Wort > Grenze) {
            ++Zeilen;
            if (Belegt == 0) // a first word wider than the column: the paragraph is given up
                return Zeilen;
            Belegt = 0;
            continue;
        }
        Belegt += Wort;
        Absatz = Absatz.sliced(Leerzeichen + 1);
    }
}

/// A word of the text box with the blank behind it.
struct Kastenwort {
    double Breite = 0; ///< with a blank
    qsizetype Anfang = 0;
    qsizetype Sichtende = 0; ///< in front of the blank or line break behind it
};

using Kastenzeile = std::vector<Kastenwort>;

/// The wrapping of a text box, rebuilt line by line.
class Kastenumbruch {
  public:
    Kastenumbruch(const Textmass& Mass_, double Breite)
        : Mass(Mass_)
        , Grenze(Breite - RandImKasten)
        , Leerzeichen(Mass_.Breite(u" ")) {}

    void Absatz(QStringView Text, qsizetype Anfang) {
        Zeilen.emplace_back();
        double X = 0;
        for (const QStringView Wort : Text.tokenize(u' ')) {
            const double Breite = Mass.Breite(Wort) + Leerzeichen;
            X += Breite;
            if (X >= Grenze) {
                Zeilen.emplace_back();
                X = Breite;
            }
            Zeilen.back().push_back({Breite, Anfang, Anfang + Wort.size()});
            Anfang += Wort.size() + 1;
        }
    }

    std::vector<Kastenzeile> Zeilen;

  private:
    const Textmass& Mass;
    double Grenze;
    double Leerzeichen;
};

std::vector<Kastenzeile> Umbrechen(const Textmass& Mass, QStringView Text, double Breite) {
    Kastenumbruch Umbruch(Mass, Breite);
    qsizetype Anfang = 0;
    for (const QStringView Absatz : Text.tokenize(QStringView(u"\r\n"))) {
        Umbruch.Absatz(Absatz, Anfang);
        Anfang += Absatz.size() + 2;
    }
    return std::move(Umbruch.Zeilen);
}

qsizetype StelleInZeile(const Kastenzeile& Zeile, double X) {
    double Summe = 0;
    for (const Kastenwort& Wort : Zeile) {
        Summe += Wort.Breite;
        if (Summe >= X)
            return Wort.Anfang;
    }
    return Zeile.back().Sichtende;
}

} // namespace

double Schriftmass::Breite(QStringView Text) const {
    // The words of an assessment are measured again with each key; nearly all of them are old acquaintances.
    constexpr qsizetype Gedaechtnis = 8192;
    const auto Bekannt = Breiten.constFind(QString::fromRawData(Text.data(), Text.size()));
    if (Bekannt != Breiten.cend())
        return Bekannt.value();
    if (Breiten.size() >= Gedaechtnis)
        Breiten.clear();
    const QString Neuer = Text.toString();
    return *Breiten.insert(Neuer, Masse.horizontalAdvance(Neuer) * TwipsJePixel);
}

double Schriftmass::Hoehe() const {
    return Masse.lineSpacing() * TwipsJePixel;
}

double ZeilenhoeheBerechnen(const Textmass& Mass, const QString& Text, double Breite) {
    int Zeilen = 0;
    QStringView Rest(Text);
    do {
        const qsizetype Umbruch = Rest.indexOf(u'\r');
        const QStringView Absatz = Umbruch < 0 ? Rest : Rest.first(Umbruch);
        Rest = Umbruch < 0 ? QStringView() : Rest.sliced(qMin(Umbruch + 2, Rest.size()));
        if (Umbruch >= 0 && Rest.isEmpty()) // a line break at the end opens a line of its own
            ++Zeilen;
        Zeilen += AbsatzZeilen(Mass, Absatz, Breite - RandInBreite);
    } while (!Rest.isEmpty());
    return Zeilen * Mass.Hoehe() + RandInHoehe;
}

int TextPositionBerechnen(const Textmass& Mass, const QString& Text, double Breite, double X, double Y) {
    const std::vector<Kastenzeile> Zeilen = Umbrechen(Mass, Text, Breite);
    const int Zeile = qMax(0, static_cast<int>(std::lrint(Y) / std::lrint(Mass.Hoehe())));
    if (Zeile >= static_cast<int>(Zeilen.size()))
        return static_cast<int>(Text.size());
    // A word too wide for the box leaves the line it should have begun without words; it stands there too.
    const auto& Gemeinte = Zeilen[static_cast<std::size_t>(Zeile)];
    const auto& Belegte = Gemeinte.empty() ? Zeilen[static_cast<std::size_t>(Zeile) + 1] : Gemeinte;
    return static_cast<int>(StelleInZeile(Belegte, X));
}
