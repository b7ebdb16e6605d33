#include "core/GrosseSeiten.h"

#include <sys/mman.h>

void GrosseSeitenErbitten([[maybe_unused]] char* Anfang, [[maybe_unused]] qsizetype Laenge) {
#ifdef MADV_HUGEPAGE
    constexpr quintptr Seite = quintptr(2) << 20;
    const auto Adresse = reinterpret_cast<quintptr>(Anfang);
    const quintptr Erste = (Adresse + Seite - 1) / Seite * Seite;
    const quintptr Ende = (Adresse + static_cast<quintptr>(Laenge)) / Seite * Seite;
    if (Ende > Erste)
        madvise(reinterpret_cast<void*>(Erste), Ende - Erste, MADV_HUGEPAGE);
#endif
}
