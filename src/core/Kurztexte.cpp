#include "core/Kurztexte.h"

#include "core/Codeseite.h"

#include <algorithm>
#include <cstring>

namespace {

template <class Zahl>
quint64 Lesen(const char* Bytes) {
    Zahl Wert = 0;
    std::memcpy(&Wert, Bytes, sizeof(Zahl));
    return Wert;
}

/// Up to 8 bytes as a number. Reads that overlap spare a loop: these texts are the bulk of a grade book.
quint64 Zusammenfassen(const char* Bytes, std::size_t Anzahl) {
    if (Anzahl == 8)
        return Lesen<quint64>(Bytes);
    if (Anzahl >= 4)
        return Lesen<quint32>(Bytes) | Lesen<quint32>(Bytes + Anzahl - 4) << 8 * (Anzahl - 4);
    if (Anzahl >= 2)
        return Lesen<quint16>(Bytes) | Lesen<quint16>(Bytes + Anzahl - 2) << 8 * (Anzahl - 2);
    return Anzahl == 1 ? Lesen<quint8>(Bytes) : 0;
}

} // namespace

Kurztexte::Schluessel Kurztexte::Packen(std::string_view Bytes) {
    const std::size_t Erste = std::min<std::size_t>(Bytes.size(), 8);
    return {Zusammenfassen(Bytes.data(), Erste), Zusammenfassen(Bytes.data() + Erste, Bytes.size() - Erste),
            Bytes.size()};
}

/// Multiplication carries every bit upwards, so the top bits hold them all.
Kurztexte::Platz& Kurztexte::PlatzFuer(const Schluessel& Bytes) {
    const quint64 Gemischt = (Bytes.Anfang ^ (Bytes.Rest * 0xC2B2AE3D27D4EB4FU)) + Bytes.Anzahl;
    return Plaetze[static_cast<std::size_t>((Gemischt * 0x9E3779B97F4A7C15U) >> (64 - PlatzBits))];
}

void Kurztexte::Setzen(QString& Ziel, std::string_view Bytes) {
    if (Bytes.empty()) {
        Ziel.clear();
        return;
    }
    if (Bytes.size() > Laengster) {
        Ziel = AusCodeseite(Bytes.data(), static_cast<qsizetype>(Bytes.size()));
        return;
    }
    const Schluessel Gepackt = Packen(Bytes);
    Platz& Einer = PlatzFuer(Gepackt);
    if (Einer.Bytes != Gepackt) {
        Einer.Bytes = Gepackt;
        Einer.Text = AusCodeseite(Bytes.data(), static_cast<qsizetype>(Bytes.size()));
    }
    Ziel = QString(Einer.Text); // moving in a copy is inlined, assigning one is a call
}
