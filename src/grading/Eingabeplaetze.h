#pragma once

#include <QtGlobal>

/// The slots of EingabeZaehler that view P arms, and their delays in ticks of half a second.
namespace Eingabeplatz {
inline constexpr int Gesamtpunktzahl = 0;
inline constexpr int ErsteGrenze = 1; ///< 1..5: txtNGrenze
inline constexpr int ThemaDatumDatei = 6;
inline constexpr int Punktetabelle = 7; ///< txtEingabe
} // namespace Eingabeplatz

inline constexpr qint16 TicksFeld = 4;
inline constexpr qint16 TicksTabelle = 6;
