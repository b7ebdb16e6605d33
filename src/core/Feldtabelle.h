#pragma once

#include "core/Reihe.h"

#include <QtGlobal>

#include <string_view>

/// The numbered fields of a row, 1 to 70. It is not cleared between rows: behind the fields of a shorter row
/// stand those of the rows before it. The fields are views into the bytes of the file.
class Feldtabelle {
  public:
    /// Splits a row at its tabs and gives the number of its fields, at least 1. A 71st throws a
    /// Laufzeitfehler.
    int Zerlegen(std::string_view Zeile);

    std::string_view operator[](int Nummer) const { return Felder[Nummer]; }

  private:
    Reihe<std::string_view, 71> Felder; ///< [0] holds nothing
};

/// A whole number of the file: decimal digits without sign or blanks. Anything else, or more than 32 bits,
/// throws a Laufzeitfehler.
qint32 Ganzzahl(std::string_view Feld);

/// A single under the numbers of the system. One that is a number only with the other decimal sign comes from
/// another system and is -1, below every range, so that the check of values replaces it. Anything else throws
/// a Laufzeitfehler.
float Kommazahl(std::string_view Feld);
