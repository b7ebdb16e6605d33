#pragma once

#include <QString>

#include <optional>

/// Where the second half-year of a subject begins: the first Probe, Lernzielkontrolle and oral grade of it.
struct Halbjahresgrenzen {
    QString P;
    QString E;
    QString M;

    bool operator==(const Halbjahresgrenzen&) const = default;
};

/// The boundaries as whole numbers, fractions rounded with ties to the even neighbour. Nothing unless all are
/// 1 to 10: 11, which a file may hold, is refused.
std::optional<Halbjahresgrenzen> HalbjahresgrenzenLesen(const Halbjahresgrenzen& Getippt);
