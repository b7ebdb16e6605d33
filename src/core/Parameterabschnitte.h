#pragma once

#include <string_view>

// The parts of the parameter file, as bytes of Windows-1252.

namespace Parameterabschnitte {

inline constexpr std::string_view Kennung = "[Parameter f\xFCr Tafelquell";
inline constexpr std::string_view Version = "3.0";
inline constexpr std::string_view Eigene = "[Eigene Verteilung]";
inline constexpr std::string_view Gauss = "[Gau\xDF-Verteilung]";
inline constexpr std::string_view BLLV = "[BLLV-Verteilung]";
inline constexpr std::string_view Bezeichnungen = "[Probenbezeichnungen]";
/// A line that occurs in this text is a marker.
inline constexpr std::string_view Alle =
    "[Eigene Verteilung][Gau\xDF-Verteilung][BLLV-Verteilung][Probenbezeichnungen]";

} // namespace Parameterabschnitte
