#include "core/Bytezeilen.h"

#include <algorithm>

std::string_view Bytezeilen::Naechste() {
    if (NaechstesLF < Stelle)
        NaechstesLF = Alles.find('\n', Stelle);
    const std::string_view BisLF =
        Alles.substr(Stelle, NaechstesLF == Alles.npos ? Alles.npos : NaechstesLF - Stelle);
    const std::size_t CR = BisLF.find('\r');
    const std::string_view Zeile = BisLF.substr(0, CR);
    Stelle += Zeile.size();
    Beendet = Stelle < Alles.size();
    if (CR != BisLF.npos)
        ++Stelle;
    if (Stelle < Alles.size() && Stelle == NaechstesLF)
        ++Stelle;
    return Zeile;
}
