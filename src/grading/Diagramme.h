#pragma once

#include "core/Reihe.h"
#include "core/Zeichenflaeche.h"
#include "grading/Probenauswertung.h"

// The two bar charts of a test. They draw on any surface and take their place on it as fractions, so screen,
// preview and paper share the same code.

/// Place of a chart on its surface, as fractions of it from 0 to 1.
struct Diagrammplatz {
    float Links = 0;
    float Oben = 0;
    float Breite = 1;
    float Hoehe = 1;
};

/// Number of students for each half point, full marks at the left, with the boundaries as vertical lines. A
/// total of 200 points or more, or below 0, gives title and axes only; without students there are no bars, no
/// scale and no boundaries.
void PunkteDiagramm(Zeichenflaeche& Flaeche, const Diagrammplatz& Platz, const Probenmassstab& Massstab,
                    const Reihe<qint16, 401>& Verteilung, int HoechsteNote);

/// Number of students for each grade 1 to HoechsteNote.
void NotenDiagramm(Zeichenflaeche& Flaeche, const Diagrammplatz& Platz, const Reihe<qint16, 7>& Anzahlen,
                   int HoechsteNote);
