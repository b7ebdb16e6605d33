#pragma once

class Ansicht;
class QString;

// The five views of the main window. A new view is one changed line in the list of Ansichten.cpp.

inline constexpr int AnzahlAnsichten = 5;

namespace Reiter {
inline constexpr int S = 0;  ///< students and subjects
inline constexpr int P = 1;  ///< evaluation of a test
inline constexpr int N1 = 2; ///< grades of a subject
inline constexpr int N2 = 3; ///< grades of a student
inline constexpr int B = 4;  ///< assessments
} // namespace Reiter

QString AnsichtTitel(int Nummer);
/// A new view, owned by the caller.
Ansicht* AnsichtErzeugen(int Nummer);
/// True if mnuFileExport knows this view.
bool AnsichtExportiert(int Nummer);
