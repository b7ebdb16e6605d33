#pragma once

/// Columns of the list of a test.
namespace Probenspalte {
inline constexpr int Name = 0;
inline constexpr int Punkte = 1;
inline constexpr int Note = 2;
inline constexpr int ID = 3; ///< hidden
} // namespace Probenspalte
