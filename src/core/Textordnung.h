#pragma once

#include <QString>

#include <functional>
#include <vector>

/// The order in which lists show Anzahl texts: by the locale's collation, case ignored, equal ones as they
/// stood. Entry i is the number of the text that comes i-th; Text gives the text of a number from 0 on.
///
/// What has been compared once is kept: each text has its rank, and a long list of the same text objects as
/// one of the last ones has its order.
std::vector<int> Textfolge(std::size_t Anzahl, const std::function<const QString&(std::size_t)>& Text);
