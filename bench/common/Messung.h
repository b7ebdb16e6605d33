#pragma once

#include <QString>

#include <array>
#include <functional>
#include <vector>

// What all benchmarks share: interleaved rounds and the median of the ratio.

inline constexpr int Runden11 = 11;

double Median(std::vector<double> Werte);

/// Seconds that Tun takes.
double Dauer(const std::function<void()>& Tun);

/// Times of both sides of a comparison, round by round.
struct Messreihe {
    std::vector<double> Eigene;
    std::vector<double> Referenz;

    double Verhaeltnis() const; ///< median of the ratios of the rounds
};

/// Runs both sides in turn, 11 rounds after one that does not count; each gives its seconds. Which side
/// begins changes from round to round.
Messreihe Vergleichen(const std::function<double()>& Eigene, const std::function<double()>& Referenz);

/// Runs one job at 1x, 2x and 4x of its size in turn, 11 rounds after one that does not count, and prints two
/// lines: how its time grows with the size, as the median over the rounds. Each job gives its seconds.
void Wachstum(const QString& Name, const std::array<std::function<double()>, 3>& Groessen);

/// Prints the line of the table.
void Zeile(const QString& Name, double Verhaeltnis, double Ziel, double Grenze);
/// A remark to the line before, such as the times behind a ratio; begins with "#" and stands outside the
/// table.
void Anmerkung(const QString& Text);
