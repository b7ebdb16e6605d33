#pragma once

/// Number of free fields of a student, the last columns of view S.
inline constexpr int AnzFelder = 14;
