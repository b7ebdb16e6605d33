#pragma once

#include "core/Reihe.h"
#include "grading/Probenauswertung.h"

#include <QStringList>

#include <vector>

// The automatic ways to set the boundaries of a test. Each gives the texts of the boundaries from grade 1 on;
// the caller writes them into boxes and records and evaluates the test. Boundaries are whole or half points.

/// The shares of one variant, [j] for grade j+1.
using Anteile = Reihe<float, 5>;

/// Own distribution: each boundary at its percentage of the total, rounded to the nearest half point, ties
/// upward. Nothing if the total is 0 or below.
QStringList EigeneGrenzen(qint16 Gesamt, const Anteile& Prozente, int HoechsteNote);

/// Table distribution: the row of this total in BLLVVerteilung; zeros if there is no row. Nothing if the
/// total is outside 1 to 200.
QStringList TabellenGrenzen(qint16 Gesamt, int HoechsteNote);

/// Gauss distribution: walks the half points from the total down and sets the next boundary as soon as its
/// cumulative share (in percent) of the students has been reached; at most one boundary for each half point,
/// so students with equal points stay together. Takes part: points from 0 to the total. Gives fewer than
/// MaxNote-1 texts if the walk ends first, and nothing if the total is 0 or below.
QStringList GaussGrenzen(qint16 Gesamt, const std::vector<QString>& Punkte, const Anteile& Prozente,
                         int HoechsteNote);

/// One step of half a point of one boundary.
struct Grenzschritt {
    bool Plausibel = false; ///< false: total and boundaries are not plausible, nothing moves
    int Index = -1;         ///< boundary of grade Index+1; -1: nothing moves
    QString Text;           ///< its new value
};

/// Milder: lowers the upper boundary of the largest gap between boundaries, the gap below the last one down
/// to 0 included; of equal gaps the one of the better grade. Nothing moves if no gap exceeds half a point.
Grenzschritt BesserSchritt(const Probenmassstab& Massstab, int HoechsteNote);

/// Harder: raises the lower boundary of the largest gap, the gap from the total to the first boundary
/// included and half a point preferred; of equal gaps the one of the worse grade. The gap below the last
/// boundary takes no part. Nothing moves if no gap exceeds half a point.
Grenzschritt SchlechterSchritt(const Probenmassstab& Massstab, int HoechsteNote);

/// What the automatic ways say without a usable total: two wordings.
extern const QString MeldungOhneGesamtpunktzahl;
extern const QString MeldungGaussOhneGesamtpunktzahl;
