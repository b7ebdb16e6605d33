#pragma once

#include "core/Reihe.h"

#include <QStringList>

#include <vector>

// What the options dialog edits, apart from the two values that take effect at once (MaxNote and
// Notenformat), and the way between these values and the rows of the three grids.

struct Optionen {
    Reihe<QString, 14> Probenbezeichnung;
    Reihe<QString, 14> ExtemporalenBezeichnung;
    QString Halbjahreswechsel;
    QString Endjahreswechsel;
    bool GrenznotenBerechnen = false;
    float GrenznotenPunkteAbstand = 0;
    bool GrenznotenBeruecksichtigen = false;
    float GrenznotenNotenAbstand = 0;
    QString NotenberechnenMethode;
    float GewichtungE = 0;
    float GewichtungM = 0;
    Reihe<Reihe<float, 5>, 201> BLLVVerteilung;
    Reihe<Reihe<float, 5>, 5> GaussVerteilung;
    Reihe<Reihe<float, 5>, 5> EigeneVerteilung;

    bool operator==(const Optionen&) const = default;
};

/// The values in force.
Optionen OptionenInKraft();

/// Puts the values into force and saves the parameter file. If that fails the Laufzeitfehler goes on and the
/// old values are in force again. DatenGeaendert is left alone on purpose: what belongs to the grade book
/// reaches its file with the next save that something else asks for.
void OptionenUebernehmen(const Optionen& Neue);

/// The labels of the five variants, from strict to mild.
QStringList Variantennamen();

/// Rows of the grids, label first. HoechsteNote is the lowest grade on the scale, 5 or 6.
std::vector<QStringList> TabellenZeilen(const Optionen& Werte, int HoechsteNote); ///< total, boundaries
std::vector<QStringList> GaussZeilen(const Optionen& Werte, int HoechsteNote);    ///< variant, shares
std::vector<QStringList> EigeneZeilen(const Optionen& Werte, int HoechsteNote);   ///< variant, percentages

/// The way back. Values that the rows do not show (boundaries of a grade that the scale does not have, totals
/// without a row) stay as they are.
void TabellenAusZeilen(const std::vector<QStringList>& Zeilen, int HoechsteNote, Optionen& Werte);
void GaussAusZeilen(const std::vector<QStringList>& Zeilen, int HoechsteNote, Optionen& Werte);
void EigeneAusZeilen(const std::vector<QStringList>& Zeilen, int HoechsteNote, Optionen& Werte);
