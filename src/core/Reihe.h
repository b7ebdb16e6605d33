#pragma once

#include "core/Laufzeitfehler.h"

#include <array>
#include <cstddef>

/// Throws the Laufzeitfehler of an index outside its array.
[[noreturn]] void IndexFehler(int Index, std::size_t Anzahl);

/// An array of a fixed number of entries, allocated once, whose index is checked: [] outside 0..Anzahl-1
/// throws a Laufzeitfehler and changes nothing.
template <class T, std::size_t Anzahl>
class Reihe {
  public:
    static constexpr int Obergrenze = static_cast<int>(Anzahl) - 1;

    constexpr Reihe() = default;

    T& operator[](int Index) { return Werte[Geprueft(Index)]; }
    const T& operator[](int Index) const { return Werte[Geprueft(Index)]; }

    auto begin() { return Werte.begin(); }
    auto end() { return Werte.end(); }
    auto begin() const { return Werte.begin(); }
    auto end() const { return Werte.end(); }
    static constexpr int size() { return static_cast<int>(Anzahl); }

    void fill(const T& Wert) { Werte.fill(Wert); }

    bool operator==(const Reihe&) const = default;

  private:
    static std::size_t Geprueft(int Index) {
        if (static_cast<std::size_t>(static_cast<unsigned>(Index)) >= Anzahl)
            IndexFehler(Index, Anzahl);
        return static_cast<std::size_t>(Index);
    }

    std::array<T, Anzahl> Werte{};
};
