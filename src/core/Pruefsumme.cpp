#include "core/Pruefsumme.h"

#include <array>
#include <cstring>

#if defined(__x86_64__)
#include <nmmintrin.h>
#endif

namespace {

constexpr quint32 Polynom = 0x82F63B78U; // Castagnoli, reflected

using Tafel = std::array<std::array<quint32, 256>, 8>;

constexpr Tafel TafelBauen() {
    Tafel T{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 Wert = i;
        for (int Bit = 0; Bit < 8; ++Bit)
            Wert = (Wert & 1U) != 0U ? (Wert >> 1U) ^ Polynom : Wert >> 1U;
        T[0][i] = Wert;
    }
    for (quint32 i = 0; i < 256; ++i)
        for (size_t Stufe = 1; Stufe < 8; ++Stufe)
            T[Stufe][i] = (T[Stufe - 1][i] >> 8U) ^ T[0][T[Stufe - 1][i] & 255U];
    return T;
}

constexpr Tafel Tabelle = TafelBauen();

quint32 MitTabelle(const uchar* Byte, qsizetype Laenge, quint32 Wert) {
    // Eight bytes at a step.
    for (; Laenge >= 8; Laenge -= 8, Byte += 8) {
        const quint32 Erste = Wert ^ (quint32(Byte[0]) | quint32(Byte[1]) << 8U | quint32(Byte[2]) << 16U |
                                      quint32(Byte[3]) << 24U);
        Wert = Tabelle[7][Erste & 255U] ^ Tabelle[6][(Erste >> 8U) & 255U] ^
               Tabelle[5][(Erste >> 16U) & 255U] ^ Tabelle[4][Erste >> 24U] ^ Tabelle[3][Byte[4]] ^
               Tabelle[2][Byte[5]] ^ Tabelle[1][Byte[6]] ^ Tabelle[0][Byte[7]];
    }
    for (; Laenge > 0; --Laenge, ++Byte)
        Wert = (Wert >> 8U) ^ Tabelle[0][(Wert ^ *Byte) & 255U];
    return Wert;
}

#if defined(__x86_64__)
/// The instruction gives its result after three cycles, but takes a new one each cycle: three strands of this
/// many bytes side by side keep it busy.
constexpr qsizetype Strang = 1024;

/// The sum, as if a strand of zeros followed. It is linear, so it goes byte by byte through tables.
constexpr std::array<std::array<quint32, 256>, 4> Nullenstrang = [] {
    std::array<std::array<quint32, 256>, 4> T{};
    for (size_t Stufe = 0; Stufe < 4; ++Stufe) {
        for (quint32 Bit = 0; Bit < 8; ++Bit) {
            quint32 Wert = 1U << (8 * quint32(Stufe) + Bit);
            for (qsizetype i = 0; i < Strang; ++i)
                Wert = (Wert >> 8U) ^ Tabelle[0][Wert & 255U];
            T[Stufe][1U << Bit] = Wert;
        }
        for (quint32 i = 1; i < 256; ++i) {
            const quint32 OhneLetztes = i & (i - 1);
            T[Stufe][i] = T[Stufe][OhneLetztes] ^ T[Stufe][i ^ OhneLetztes];
        }
    }
    return T;
}();

quint32 MitNullenstrang(quint32 Wert) {
    return Nullenstrang[0][Wert & 255U] ^ Nullenstrang[1][(Wert >> 8U) & 255U] ^
           Nullenstrang[2][(Wert >> 16U) & 255U] ^ Nullenstrang[3][Wert >> 24U];
}

__attribute__((target("sse4.2"))) inline quint64 Acht(quint64 Wert, const uchar* Byte) {
    quint64 Bytes = 0;
    std::memcpy(&Bytes, Byte, sizeof Bytes);
    return _mm_crc32_u64(Wert, Bytes);
}

__attribute__((target("sse4.2"))) quint32 DreiStraenge(const uchar* Byte, quint32 Wert) {
    quint64 Erster = Wert;
    quint64 Zweiter = 0;
    quint64 Dritter = 0;
    for (qsizetype i = 0; i < Strang; i += 8) {
        Erster = Acht(Erster, Byte + i);
        Zweiter = Acht(Zweiter, Byte + Strang + i);
        Dritter = Acht(Dritter, Byte + 2 * Strang + i);
    }
    return MitNullenstrang(MitNullenstrang(quint32(Erster)) ^ quint32(Zweiter)) ^ quint32(Dritter);
}

__attribute__((target("sse4.2"))) quint32 MitBefehl(const uchar* Byte, qsizetype Laenge, quint32 Wert) {
    for (; Laenge >= 3 * Strang; Laenge -= 3 * Strang, Byte += 3 * Strang)
        Wert = DreiStraenge(Byte, Wert);
    for (; Laenge >= 8; Laenge -= 8, Byte += 8)
        Wert = quint32(Acht(Wert, Byte));
    for (; Laenge > 0; --Laenge, ++Byte)
        Wert = _mm_crc32_u8(Wert, *Byte);
    return Wert;
}
#endif

} // namespace

quint32 Pruefsumme(const char* Bytes, qsizetype Laenge, quint32 Bisher) {
    const auto* Byte = reinterpret_cast<const uchar*>(Bytes);
#if defined(__x86_64__)
    static const bool HatBefehl = __builtin_cpu_supports("sse4.2") != 0;
    if (HatBefehl)
        return ~MitBefehl(Byte, Laenge, ~Bisher);
#endif
    return ~MitTabelle(Byte, Laenge, ~Bisher);
}
