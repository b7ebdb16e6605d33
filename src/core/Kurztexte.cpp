#include "core/Kurztexte.h"

#include "core/Codeseite.h"

#include <bit>
#include <cstring>

namespace {

/// Spreads the bytes over the places: multiplication carries every bit upwards, so the top bits hold them
/// all.
std::size_t Streuwert(const std::array<char, 16>& Bytes, std::size_t Anzahl, int Bits) {
    const auto Worte = std::bit_cast<std::array<quint64, 2>>(Bytes);
    const quint64 Gemischt = (Worte[0] ^ (Worte[1] * 0xC2B2AE3D27D4EB4FU)) + Anzahl;
    return static_cast<std::size_t>((Gemischt * 0x9E3779B97F4A7C15U) >> (64 - Bits));
}

} // namespace

void Kurztexte::Setzen(QString& Ziel, std::string_view Bytes) {
    if (Bytes.empty()) {
        Ziel.clear();
        return;
    }
    if (Bytes.size() > Laengster) {
        Ziel = AusCodeseite(Bytes.data(), static_cast<qsizetype>(Bytes.size()));
        return;
    }
    std::array<char, Laengster> Gepolstert{};
    std::memcpy(Gepolstert.data(), Bytes.data(), Bytes.size());
    Platz& Einer = Plaetze[Streuwert(Gepolstert, Bytes.size(), PlatzBits)];
    if (Einer.Anzahl != Bytes.size() || Einer.Bytes != Gepolstert) {
        Einer.Bytes = Gepolstert;
        Einer.Anzahl = Bytes.size();
        Einer.Text = AusCodeseite(Bytes.data(), static_cast<qsizetype>(Bytes.size()));
    }
    Ziel = Einer.Text;
}
