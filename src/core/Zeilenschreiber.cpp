#include "core/Zeilenschreiber.h"

#include "core/Codeseite.h"

#include <array>
#include <charconv>

void Zeilenschreiber::Feld(const QString& Text) {
    Trennen();
    if (!Text.isEmpty())
        InCodeseite(Text, Geschrieben);
}

void Zeilenschreiber::Feld(qint32 Zahl) {
    Trennen();
    std::array<char, 12> Ziffern{};
    const auto Ende = std::to_chars(Ziffern.data(), Ziffern.data() + Ziffern.size(), Zahl).ptr;
    Geschrieben.append(Ziffern.data(), Ende - Ziffern.data());
}

void Zeilenschreiber::ZeileEnden() {
    Geschrieben.append("\r\n", 2);
    ZeileLeer = true;
}

void Zeilenschreiber::Zeile(std::string_view Inhalt) {
    Geschrieben.append(Inhalt.data(), static_cast<qsizetype>(Inhalt.size()));
    ZeileEnden();
}

void Zeilenschreiber::Textzeile(const QString& Inhalt) {
    InCodeseite(Inhalt, Geschrieben);
    ZeileEnden();
}

void Zeilenschreiber::Trennen() {
    if (!ZeileLeer)
        Geschrieben.append('\t');
    ZeileLeer = false;
}
