#pragma once

#include <QString>

#include <array>
#include <string_view>

/// Turns bytes of a file into texts. Short ones are made once and then shared: grades, points, dates and
/// years repeat by the ten thousand.
class Kurztexte {
  public:
    /// Ziel becomes the text of the bytes.
    void Setzen(QString& Ziel, std::string_view Bytes);

  private:
    static constexpr std::size_t Laengster = 16;
    static constexpr int PlatzBits = 9;

    struct Platz {
        std::array<char, Laengster> Bytes{}; ///< padded with zeros
        std::size_t Anzahl = 0;              ///< 0: free
        QString Text;
    };
    std::array<Platz, std::size_t(1) << PlatzBits> Plaetze;
};
