#include "core/Zeilenschreiber.h"

#include "core/Codeseite.h"
#include "core/GrosseSeiten.h"

#include <array>
#include <charconv>

Zeilenschreiber::Zeilenschreiber(qsizetype Erwartet) {
    Geschrieben.reserve(Erwartet);
    GrosseSeitenErbitten(Geschrieben.data(), Geschrieben.capacity());
}

void Zeilenschreiber::Feld(const QString& Text) {
    Trennen();
    if (!Text.isEmpty())
        InCodeseite(Text, Geschrieben);
}

void Zeilenschreiber::Feld(qint32 Zahl) {
    Trennen();
    Ziffern(Zahl);
}

void Zeilenschreiber::Name(QStringView Text) {
    Trennen();
    InCodeseite(QString::fromRawData(Text.data(), Text.size()), Geschrieben);
}

void Zeilenschreiber::Name(QStringView Text, int Nummer) {
    Name(Text);
    Ziffern(Nummer);
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

void Zeilenschreiber::Ziffern(qint32 Zahl) {
    std::array<char, 12> Puffer{};
    const auto Ende = std::to_chars(Puffer.data(), Puffer.data() + Puffer.size(), Zahl).ptr;
    Geschrieben.append(Puffer.data(), Ende - Puffer.data());
}

void Zeilenschreiber::Trennen() {
    if (!ZeileLeer)
        Geschrieben.append('\t');
    ZeileLeer = false;
}
