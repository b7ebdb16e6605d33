#pragma once

// Grade books of a given size for benchmarks and tests of bounds: every field filled as schools fill it, the
// same for every run.

/// Fills Datenbank to the given number of quarters of all bounds: 4 is 5001 students with 12 assessments
/// each, 101 classes, 501 subjects with 20 tests each, 10001 grade rows and 1001 guests, about 27 MB as a
/// file. The first class ("7a") has 35 students and 10 subjects; the year is 2003/04. Parameters are the
/// defaults.
void GrossbuchFuellen(int Viertel);

/// Fills Datenbank with one class of 35 students and 10 subjects with 20 tests each.
void KlassenbuchFuellen();
