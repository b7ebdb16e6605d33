#include "grading/Optionen.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/Parameterdatei.h"
#include "core/Zahlen.h"

namespace {

constexpr int KleinstesGesamt = 10;
constexpr int GroesstesGesamt = 200;
constexpr int Varianten = 5;

/// Every value with its home. Schritt is called with the value in Werte and the global it stands for.
template <class Werte, class Gang>
void JederWert(Werte& W, Gang Schritt) {
    Schritt(W.Probenbezeichnung, Probenbezeichnung);
    Schritt(W.ExtemporalenBezeichnung, ExtemporalenBezeichnung);
    Schritt(W.Halbjahreswechsel, Datenbank.Halbjahreswechsel);
    Schritt(W.Endjahreswechsel, Datenbank.Endjahreswechsel);
    Schritt(W.GrenznotenBerechnen, Datenbank.GrenznotenBerechnen);
    Schritt(W.GrenznotenPunkteAbstand, Datenbank.GrenznotenPunkteAbstand);
    Schritt(W.GrenznotenBeruecksichtigen, Datenbank.GrenznotenBeruecksichtigen);
    Schritt(W.GrenznotenNotenAbstand, Datenbank.GrenznotenNotenAbstand);
    Schritt(W.NotenberechnenMethode, Datenbank.NotenberechnenMethode);
    Schritt(W.GewichtungE, Datenbank.GewichtungE);
    Schritt(W.GewichtungM, Datenbank.GewichtungM);
    Schritt(W.BLLVVerteilung, BLLVVerteilung);
    Schritt(W.GaussVerteilung, GaussVerteilung);
    Schritt(W.EigeneVerteilung, EigeneVerteilung);
}

void InKraftSetzen(const Optionen& Werte) {
    JederWert(Werte, [](const auto& Wert, auto& Global) { Global = Wert; });
}

/// The share of one grade (from 1) in a row of cumulative shares; grade 6 takes what is left.
float Anteil(const Reihe<float, 5>& Summen, int Note) {
    const float Bis = Note <= 5 ? Summen[Note - 1] : 100.0F;
    return Note == 1 ? Bis : Bis - Summen[Note - 2];
}

} // namespace

Optionen OptionenInKraft() {
    Optionen Werte;
    JederWert(Werte, [](auto& Wert, const auto& Global) { Wert = Global; });
    return Werte;
}

void OptionenUebernehmen(const Optionen& Neue) {
    const Optionen Vorher = OptionenInKraft();
    InKraftSetzen(Neue);
    try {
        SpeichereParameter();
    } catch (...) {
        InKraftSetzen(Vorher);
        throw;
    }
}

QStringList Variantennamen() {
    return {QStringLiteral("[--]"), QStringLiteral("[-]"), QStringLiteral("[o]"), QStringLiteral("[+]"),
            QStringLiteral("[++]")};
}

std::vector<QStringList> TabellenZeilen(const Optionen& Werte, int HoechsteNote) {
    std::vector<QStringList> Zeilen;
    for (int Gesamt = KleinstesGesamt; Gesamt <= GroesstesGesamt; ++Gesamt) {
        const auto& Grenzen = Werte.BLLVVerteilung[Gesamt];
        if (Grenzen[0] <= 0)
            continue;
        QStringList Zeile{ZahlText(Gesamt)};
        for (int Note = 1; Note < HoechsteNote; ++Note)
            Zeile.append(ZahlText(Grenzen[Note - 1]));
        Zeilen.push_back(Zeile);
    }
    return Zeilen;
}

std::vector<QStringList> GaussZeilen(const Optionen& Werte, int HoechsteNote) {
    std::vector<QStringList> Zeilen;
    for (int i = 0; i < Varianten; ++i) {
        QStringList Zeile{Variantennamen().at(i)};
        for (int Note = 1; Note <= HoechsteNote; ++Note)
            Zeile.append(ZahlText(Anteil(Werte.GaussVerteilung[i], Note)));
        Zeilen.push_back(Zeile);
    }
    return Zeilen;
}

std::vector<QStringList> EigeneZeilen(const Optionen& Werte, int HoechsteNote) {
    std::vector<QStringList> Zeilen;
    for (int i = 0; i < Varianten; ++i) {
        QStringList Zeile{Variantennamen().at(i)};
        for (int Note = 1; Note < HoechsteNote; ++Note)
            Zeile.append(ZahlText(Werte.EigeneVerteilung[i][Note - 1]));
        Zeilen.push_back(Zeile);
    }
    return Zeilen;
}

void TabellenAusZeilen(const std::vector<QStringList>& Zeilen, int HoechsteNote, Optionen& Werte) {
    for (const QStringList& Zeile : Zeilen) {
        const int Gesamt = GanzzahlAusText(Zeile.at(0));
        if (Gesamt < KleinstesGesamt || Gesamt > GroesstesGesamt)
            continue;
        for (int Note = 1; Note < HoechsteNote; ++Note)
            Werte.BLLVVerteilung[Gesamt][Note - 1] = ZahlAusText(Zeile.at(Note));
    }
}

void GaussAusZeilen(const std::vector<QStringList>& Zeilen, int HoechsteNote, Optionen& Werte) {
    for (int i = 0; i < Varianten; ++i) {
        const QStringList& Zeile = Zeilen.at(static_cast<std::size_t>(i));
        float Summe = 0;
        for (int Note = 1; Note < HoechsteNote; ++Note) {
            Summe += ZahlAusText(Zeile.at(Note));
            Werte.GaussVerteilung[i][Note - 1] = Summe;
        }
    }
}

void EigeneAusZeilen(const std::vector<QStringList>& Zeilen, int HoechsteNote, Optionen& Werte) {
    for (int i = 0; i < Varianten; ++i)
        for (int Note = 1; Note < HoechsteNote; ++Note)
            Werte.EigeneVerteilung[i][Note - 1] =
                GanzzahlAusText(Zeilen.at(static_cast<std::size_t>(i)).at(Note));
}
