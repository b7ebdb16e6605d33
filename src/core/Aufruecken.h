#pragma once

#include "core/Reihe.h"

#include <QtGlobal>

#include <utility>
#include <vector>

/// One mark for each record in use: true for what is to go.
using Marken = std::vector<bool>;

/// Takes the marked records out of an array in one pass; the others keep their order and close up. There must
/// be a mark for each of the Anzahl records.
///
/// Assigned this way, a text changes places with the one it overwrites. So nothing is freed here, which would
/// take longer than the moving: what went stands behind the counter, like all that stood there before.
template <class T, std::size_t N>
void Aufruecken(Reihe<T, N>& Feld, qint16& Anzahl, const Marken& Weg) {
    int Ziel = 0;
    for (int i = 0; i < Anzahl; ++i) {
        if (Weg[static_cast<std::size_t>(i)])
            continue;
        if (Ziel != i)
            Feld[Ziel] = std::move(Feld[i]);
        ++Ziel;
    }
    Anzahl = static_cast<qint16>(Ziel);
}
