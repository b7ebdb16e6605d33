#pragma once

#include <QString>

#include <vector>

/// The order in which lists show texts: by the locale's collation, case ignored, equal ones as they stood.
/// Entry i is the place in Texte of what comes i-th. Each text is compared with others only the first time it
/// is met; its rank is kept, so that a long list of known texts costs one look-up each.
std::vector<int> Textfolge(const std::vector<QString>& Texte);
