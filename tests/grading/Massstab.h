#pragma once

#include "grading/Probenauswertung.h"

/// The total of a test and its boundaries 0 to 4 as "a;b;c;d;e"; what is left out is unset.
inline Probenmassstab Massstab(const QString& Gesamt, const QString& Grenzen) {
    Probenmassstab Neuer;
    Neuer.Gesamtpunktzahl = Gesamt;
    for (int j = 0; j < 5; ++j)
        Neuer.NGrenze[j] = Grenzen.section(u';', j, j);
    return Neuer;
}
