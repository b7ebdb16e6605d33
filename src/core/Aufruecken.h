#pragma once

#include "core/Reihe.h"

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

/// One mark for each record in use: true for what is to go.
using Marken = std::vector<bool>;

/// Takes the marked records out of an array in one pass; the others keep their order and close up. There must
/// be a mark for each of the Anzahl records.
///
/// The records are moved as bytes, run by run, as Qt's own containers move what says of itself that it may be
/// moved so; text by text it took longer than all the rest of a deletion. Nothing is freed: what went stands
/// behind the counter, in its order, like all that stood there before.
template <class T, std::size_t N>
void Aufruecken(Reihe<T, N>& Feld, qint16& Anzahl, const Marken& Weg) {
    static_assert(QTypeInfo<T>::isRelocatable);
    const auto Ende = static_cast<std::size_t>(Anzahl);
    const auto Bytes = [](std::size_t Zahl) { return Zahl * sizeof(T); };
    const auto Gehende = static_cast<std::size_t>(std::count(Weg.begin(), Weg.end(), true));
    const auto Ablage = std::make_unique_for_overwrite<std::byte[]>(Bytes(Gehende));
    auto* const Anfang = reinterpret_cast<std::byte*>(&*Feld.begin());

    std::size_t Ziel = 0;
    std::size_t Abgelegt = 0;
    for (std::size_t i = 0; i < Ende;) {
        std::size_t Bis = i + 1;
        while (Bis < Ende && Weg[Bis] == Weg[i])
            ++Bis;
        if (Weg[i]) {
            std::memcpy(Ablage.get() + Bytes(Abgelegt), Anfang + Bytes(i), Bytes(Bis - i));
            Abgelegt += Bis - i;
        } else {
            std::memmove(Anfang + Bytes(Ziel), Anfang + Bytes(i), Bytes(Bis - i));
            Ziel += Bis - i;
        }
        i = Bis;
    }
    std::memcpy(Anfang + Bytes(Ziel), Ablage.get(), Bytes(Gehende));
    Anzahl = static_cast<qint16>(Ziel);
}
