#pragma once

#include <QStringList>

#include <vector>

class Gitter;
struct Optionen;

// The three grids of the options dialog: two header rows, a first column of labels, then the values.

/// Fill a grid for a scale of grades 1 to HoechsteNote. The current cell stays if it still exists.
void TabellenFuellen(Gitter& Tabelle, const Optionen& Werte, int HoechsteNote);
void GaussFuellen(Gitter& Tabelle, const Optionen& Werte, int HoechsteNote);
void EigeneFuellen(Gitter& Tabelle, const Optionen& Werte, int HoechsteNote);

/// Shares the height of the grid among the seven rows of a table with five variants.
void ZeilenAngleichen(Gitter& Tabelle);

/// The rows below the headers as texts, label first.
std::vector<QStringList> WerteZeilen(const Gitter& Tabelle);
