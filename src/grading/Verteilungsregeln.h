#pragma once

#include <QStringList>

#include <optional>
#include <vector>

// How the values of the three distribution tables may be changed. A value is changed by a vertical scroll bar
// that lies over its cell; the bar runs the opposite way, so that up raises the value: cell = Min + Max -
// Value, in units of half a point for the table distribution and of one percent for the two others.

enum class Verteilungsart {
    Punkte,  ///< table distribution: points at each boundary, row by total
    Prozent, ///< own distribution: percentage of the total at each boundary
    Anteil   ///< Gauss distribution: percentage of the students with each grade; a row sums to 100
};

/// Range and position of the bar over a cell.
struct Leistenstand {
    int Min = 0;
    int Max = 0;
    int Value = 0;

    bool operator==(const Leistenstand&) const = default;
};

/// The bar for column Spalte (from 1) of a row of texts whose entry 0 is the label. Points and percentages
/// stay strictly between their neighbours: below the left one (the total or 100 in column 1), above the right
/// one (0 and up in the last column), by at least one unit.
Leistenstand LeisteFuer(Verteilungsart Art, const QStringList& Zeile, int Spalte);

/// The text of the cell at a position of its bar.
QString Zelltext(Verteilungsart Art, const Leistenstand& Stand);

/// The row after the share in column Spalte became Neu: the last grade takes up the change, or the first one
/// if it is the last that changes. Nothing if the other shares leave no room for it.
std::optional<QStringList> AnteilGeaendert(const QStringList& Zeile, int Spalte, int Neu);
