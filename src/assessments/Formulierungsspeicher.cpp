#include "assessments/Formulierungsspeicher.h"

#include "core/Meldungen.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<Formulierungsmarke, AnzMarken> Marken{{
    {u'+', qRgb(0xDD, 0xFF, 0xDD), "positive Formulierung"},
    {u'o', qRgb(0xFF, 0xFF, 0x99), "neutrale Formulierung"},
    {u'-', qRgb(0xFF, 0xCC, 0xCC), "negative Formulierung"},
}};

/// Moves the entry at Von to Nach; those between move one place towards Von.
template <class Anfang>
void Umstellen(Anfang Erster, int Von, int Nach) {
    if (Von < Nach)
        std::rotate(Erster + Von, Erster + Von + 1, Erster + Nach + 1);
    else
        std::rotate(Erster + Nach, Erster + Von, Erster + Von + 1);
}

/// The area behind the last one becomes one in use, with what it holds.
void LernbereichBeleben(const QString& Name) {
    Lernbereiche[AnzLernbereiche].Name = Name;
    Lernbereiche[AnzLernbereiche + 1].Anzahl = 0;
    ++AnzLernbereiche;
}

void FormulierungAnfuegen(int Bereich, const QString& Zeile) {
    Lernbereich& Ziel = Lernbereiche[Bereich];
    Ziel.Formulierung[Ziel.Anzahl] = Zeile;
    ++Ziel.Anzahl;
    if (Bereich == AnzLernbereiche)
        LernbereichBeleben(UnbenannterLernbereich);
    FormulierungenGeaendert = true;
}

} // namespace

QString AblehnungText(Ablehnung Grund) {
    switch (Grund) {
    case Ablehnung::LernbereicheVoll:
        return QStringLiteral("Es sind höchstens %1 Lernbereiche möglich!").arg(MaxLernbereiche);
    case Ablehnung::FormulierungenVoll:
        return QStringLiteral("Ein Lernbereich fasst höchstens %1 Formulierungen!").arg(MaxFormulierungen);
    case Ablehnung::Bereichszeile:
        return QStringLiteral(
            "Diese Formulierung darf nicht mit \"]\" enden, weil sie sonst in der Datei als "
            "Name eines Lernbereichs gelesen würde!");
    case Ablehnung::Keine:
        break;
    }
    return {};
}

bool Angenommen(Ablehnung Grund) {
    if (Grund == Ablehnung::Keine)
        return true;
    MeldungZeigen(AblehnungText(Grund));
    return false;
}

Ablehnung PlatzPruefen(int Bereich) {
    if (Bereich >= MaxLernbereiche)
        return Ablehnung::LernbereicheVoll;
    return Lernbereiche[Bereich].Anzahl < MaxFormulierungen ? Ablehnung::Keine
                                                            : Ablehnung::FormulierungenVoll;
}

Ablehnung FormulierungAblegen(int Bereich, int Zeile, const QString& Text) {
    if (Zeile >= Lernbereiche[Bereich].Anzahl) {
        const Ablehnung Grund = PlatzPruefen(Bereich);
        if (Grund == Ablehnung::Keine)
            FormulierungAnfuegen(Bereich, QStringLiteral("o ") + Text);
        return Grund;
    }
    QString& Gespeichert = Lernbereiche[Bereich].Formulierung[Zeile];
    const QString Neue = Gespeichert.left(2) + Text;
    // Only a line without one of the three marks can come to look like the name of an area.
    if (IstBereichszeile(Neue))
        return Ablehnung::Bereichszeile;
    if (Neue != Gespeichert) {
        Gespeichert = Neue;
        FormulierungenGeaendert = true;
    }
    return Ablehnung::Keine;
}

void FormulierungLoeschen(int Bereich, int Zeile) {
    Lernbereich& Quelle = Lernbereiche[Bereich];
    Umstellen(Quelle.Formulierung.begin(), Zeile, Quelle.Anzahl - 1);
    --Quelle.Anzahl;
    FormulierungenGeaendert = true;
}

void FormulierungVerschieben(int Bereich, int Von, int Nach) {
    Umstellen(Lernbereiche[Bereich].Formulierung.begin(), Von, Nach);
    FormulierungenGeaendert = true;
}

Ablehnung FormulierungUmziehen(int VonBereich, int Zeile, int NachBereich) {
    for (const int Bereich : {VonBereich, NachBereich}) // a full area gives nothing away either
        if (const Ablehnung Grund = PlatzPruefen(Bereich); Grund != Ablehnung::Keine)
            return Grund;
    const QString Gespeichert = Lernbereiche[VonBereich].Formulierung[Zeile];
    FormulierungLoeschen(VonBereich, Zeile);
    FormulierungAnfuegen(NachBereich, Gespeichert);
    return Ablehnung::Keine;
}

bool FormulierungMarkieren(int Bereich, int Zeile, int Nummer) {
    if (Zeile >= Lernbereiche[Bereich].Anzahl || Lernbereiche[Bereich].Formulierung[Zeile].isEmpty())
        return false;
    Lernbereiche[Bereich].Formulierung[Zeile][0] = Marke(Nummer).Zeichen;
    FormulierungenGeaendert = true;
    return true;
}

Ablehnung LernbereichBenennen(int Bereich, const QString& Name) {
    if (Bereich < AnzLernbereiche) {
        Lernbereiche[Bereich].Name = Name;
        return Ablehnung::Keine;
    }
    if (Bereich >= MaxLernbereiche)
        return Ablehnung::LernbereicheVoll;
    LernbereichBeleben(Name);
    FormulierungenGeaendert = true;
    return Ablehnung::Keine;
}

void LernbereichLoeschen(int Bereich) {
    Umstellen(Lernbereiche.begin(), Bereich, AnzLernbereiche - 1);
    --AnzLernbereiche;
    Lernbereiche[AnzLernbereiche].Anzahl = 0;
    FormulierungenGeaendert = true;
}

bool LernbereichVerschieben(int Von, int Nach) {
    const auto InGebrauch = [](int Bereich) { return Bereich >= 0 && Bereich < AnzLernbereiche; };
    if (Von == Nach || !InGebrauch(Von) || !InGebrauch(Nach))
        return false;
    Umstellen(Lernbereiche.begin(), Von, Nach);
    return true;
}

const Formulierungsmarke& Marke(int Nummer) {
    return Marken.at(static_cast<std::size_t>(Nummer));
}

std::optional<QRgb> Markenfarbe(const QString& Zeile) {
    for (const Formulierungsmarke& Eine : Marken)
        if (Zeile.startsWith(QChar(Eine.Zeichen)))
            return Eine.Farbe;
    return {};
}

std::optional<int> MarkeMitFarbe(QRgb Farbe) {
    for (int Nummer = 0; Nummer < AnzMarken; ++Nummer)
        if (Marke(Nummer).Farbe == Farbe)
            return Nummer;
    return {};
}
