#pragma once

#include "core/Definitionen.h"

#include <QtGui/qrgb.h>

// The two averages of one student in one subject, and which columns of a grade list belong to which
// half-year. Columns of a grade list: 1..10 Proben, 11..20 Lernzielkontrollen, 21..30 oral grades, then
// average and report grade of the first half-year (31, 32) and of the year (33, 34).

namespace Notenspalte {
inline constexpr int Name = 0;
inline constexpr int LetzteProbe = 10;
inline constexpr int LetzterTest = 20; ///< Proben and Lernzielkontrollen have points and test numbers
inline constexpr int LetzteNote = 30;
inline constexpr int HalbjahrDurchschnitt = 31;
inline constexpr int HalbjahrZeugnis = 32;
inline constexpr int JahrDurchschnitt = 33;
inline constexpr int JahrZeugnis = 34;
inline constexpr int Anzahl = 35;
} // namespace Notenspalte

/// The first Probe, Lernzielkontrolle and oral grade of the second half-year, 1..11.
struct Halbjahresbeginn {
    int P = 6;
    int E = 6;
    int M = 6;

    bool operator==(const Halbjahresbeginn&) const = default;
};

/// The boundaries of a subject; what is below 1 in its texts counts as 1, what is above 11 as 11.
Halbjahresbeginn HalbjahresbeginnVon(const Fach& Eines);

/// How averages are computed.
struct Gesamtregeln {
    int Methode = 1; ///< 1 every single grade weighted, 2 averages of blocks, 3 as 2 with E and M as one
    float GewichtungE = 1;
    float GewichtungM = 1;
    QString Format = QStringLiteral("0.0");
};

/// The rules as they hold now: from the grade book, and the format from the settings, which goes into the
/// global Notenformat as well. A method that is not 1, 2 or 3 is 1.
Gesamtregeln AktuelleGesamtregeln();

/// Both averages as text; "" without grades, and where all grades stand in blocks of weight 0.
struct Durchschnitte {
    QString Halbjahr;
    QString Jahr;

    bool operator==(const Durchschnitte&) const = default;
};

/// Averages of the grade texts Noten[1..30]. What NoteAlsZahl does not put above 0 takes no part. The year
/// contains the first half-year. Single precision.
Durchschnitte DurchschnitteBerechnen(const Reihe<QString, 31>& Noten, const Halbjahresbeginn& Beginn,
                                     const Gesamtregeln& Regeln);

/// True if column 1..30 belongs to the first half-year.
bool ErstesHalbjahr(int Spalte, const Halbjahresbeginn& Beginn);

/// Title of column 1..30 in the second header row: " 1.Hj" or " 2.Hj", with the blank.
QString Halbjahrestitel(int Spalte, const Halbjahresbeginn& Beginn);

/// Background of a column 0..34 in the row of a student or subject.
QRgb Notenspaltenfarbe(int Spalte, const Halbjahresbeginn& Beginn);
