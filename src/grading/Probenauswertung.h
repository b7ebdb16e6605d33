#pragma once

#include "core/Reihe.h"

#include <QString>
#include <QtGui/qrgb.h>

#include <optional>
#include <vector>

// From points to grades: the evaluation of one test as a function over values. Points, boundaries and grades
// are texts as the user typed them; all arithmetic is in single precision. NoteAlsZahl gives a grade its
// number, so GrenznotenBeruecksichtigen and GrenznotenNotenAbstand of the grade book take part in the counts.

/// What a test is measured by, as it stands in the boxes of the view.
struct Probenmassstab {
    QString Gesamtpunktzahl;
    Reihe<QString, 5> NGrenze; ///< [j]: lowest points that still earn grade j+1
};

/// The rules of the grade book and of the settings that shape a grade.
struct Notenregeln {
    int MaxNote = 6;                   ///< 5 or 6, the lowest grade on the scale
    bool GrenznotenBerechnen = false;  ///< append "+" and "-"
    float GrenznotenPunkteAbstand = 0; ///< distance in points for "+" and "-"
};

/// The rules as the globals hold them now.
Notenregeln AktuelleNotenregeln();

/// The numbers behind a Probenmassstab.
struct Grenzpruefung {
    bool Plausibel = false;
    float Gesamt = 0;
    Reihe<float, 6> Grenze; ///< [0..MaxNote-2] are read, the rest is 0
};

/// Reads total and boundaries. Plausible: the total lies between 1 and 200, and the MaxNote-1 boundaries are
/// positive, at most the total, and fall strictly. A text that is no number counts as 0.
Grenzpruefung GrenzenPruefen(const Probenmassstab& Massstab, int HoechsteNote);

/// What the status line says about a test that is not plausible.
extern const QString MeldungUnplausibel;

/// One student of the test: points and grade as they stand in the grid.
struct Auswertungszeile {
    QString Punkte; ///< empty: none; negative: the grade was set by hand
    QString Note;
};

inline constexpr QRgb FarbeBerechnet = 0xFF000000;     ///< grade from points
inline constexpr QRgb FarbeVonHand = 0xFFFF0000;       ///< grade set by hand
inline constexpr QRgb FarbeNichtErbracht = 0xFF008800; ///< "ne"

/// What the evaluation does to one row. What is not set stays as it was.
struct Zeilenergebnis {
    std::optional<QString> Note; ///< the new grade, to be shown and stored
    std::optional<QRgb> Farbe;   ///< the text colour of the grade
};

/// The result of one test.
struct Auswertung {
    bool Plausibel = false;
    std::vector<Zeilenergebnis> Zeilen;  ///< one for each row, in order
    Reihe<qint16, 7> NotenAnzahl;        ///< students with grade i; [0]: grades that round to 0
    Reihe<qint16, 401> PunkteVerteilung; ///< students with i/2 points; hand-set grades take no part
    float Notenschnitt = 0;              ///< mean of the whole grades counted, 0 without any
};

/// Evaluates a test. Without any points all grades become "". Else a row without points gets "ne", negative
/// points keep their grade, and other points get the grade of the first boundary that they reach; if the test
/// is not plausible, or the points are 200 or more, such a row is skipped: neither changed nor counted.
Auswertung ProbeBewerten(const Probenmassstab& Massstab, const std::vector<Auswertungszeile>& Zeilen,
                         const Notenregeln& Regeln);
