#pragma once

#include <string_view>

// The sections of the grade book file.

enum class Abschnitt {
    Keiner, ///< before the first marker, and behind one nobody knows
    Klassen,
    Faecher,
    Proben,
    Schueler,
    ZSchueler,
    Noten,
    Beurteilungen,
    Parameter
};

/// The marker line as bytes of the file; empty for Keiner.
std::string_view Abschnittsmarke(Abschnitt Einer);
/// Number of columns of every row; 0 where lines are no rows.
int Spaltenzahl(Abschnitt Einer);
/// The section of a marker line, Keiner for an unknown one.
Abschnitt AbschnittZurMarke(std::string_view Marke);

/// What the first line of every grade book begins with; a blank and the version follow.
inline constexpr std::string_view Datenbankkennung = "[Tafelquell";
/// The three characters of the version in a first line.
std::string_view Versionstext(std::string_view Kopfzeile);
