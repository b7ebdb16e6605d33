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

    /// The bytes of a short text as two numbers, padded with zeros, and how many there are.
    struct Schluessel {
        quint64 Anfang = 0;
        quint64 Rest = 0;
        std::size_t Anzahl = 0;

        bool operator==(const Schluessel&) const = default;
    };
    struct Platz {
        Schluessel Bytes; ///< none: free
        QString Text;
    };
    static Schluessel Packen(std::string_view Bytes);
    Platz& PlatzFuer(const Schluessel& Bytes);

    std::array<Platz, std::size_t(1) << PlatzBits> Plaetze;
};
