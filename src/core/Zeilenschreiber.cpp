#include "core/Zeilenschreiber.h"

#include "core/Codeseite.h"
#include "core/GrosseSeiten.h"

#include <algorithm>
#include <charconv>

Zeilenschreiber::Zeilenschreiber(qsizetype Erwartet) {
    Wachsen(Erwartet);
    GrosseSeitenErbitten(Block.data(), Block.size());
}

void Zeilenschreiber::Feld(const QString& Inhalt) {
    Textfeld(Inhalt);
}

void Zeilenschreiber::Feld(qint32 Zahl) {
    Textfeld({});
    Ziffern(Zahl);
}

void Zeilenschreiber::Name(QStringView Inhalt) {
    Textfeld(Inhalt);
}

void Zeilenschreiber::Name(QStringView Inhalt, int Nummer) {
    Textfeld(Inhalt);
    Ziffern(Nummer);
}

void Zeilenschreiber::ZeileEnden() {
    Roh("\r\n");
    ZeileLeer = true;
}

void Zeilenschreiber::Zeile(std::string_view Inhalt) {
    Roh(Inhalt);
    ZeileEnden();
}

void Zeilenschreiber::Textzeile(const QString& Inhalt) {
    Platz(Inhalt.size());
    InCodeseite(Inhalt, Stelle);
    Stelle += Inhalt.size();
    ZeileEnden();
}

QByteArray Zeilenschreiber::Bytes() {
    Block.resize(Stelle - Block.constData());
    Stelle = Ende = nullptr;
    return Block;
}

void Zeilenschreiber::Ziffern(qint32 Zahl) {
    constexpr qsizetype Laengste = 11; // a sign and ten digits
    Platz(Laengste);
    Stelle = std::to_chars(Stelle, Ende, Zahl).ptr;
}

void Zeilenschreiber::Roh(std::string_view Inhalt) {
    Platz(static_cast<qsizetype>(Inhalt.size()));
    Stelle = std::copy(Inhalt.begin(), Inhalt.end(), Stelle);
}

// Nearly all of a grade book's fields are short: one look at the room serves tab and text.
void Zeilenschreiber::Textfeld(QStringView Inhalt) {
    Platz(Inhalt.size() + 1);
    *Stelle = '\t';
    Stelle += ZeileLeer ? 0 : 1;
    ZeileLeer = false;
    InCodeseite(Inhalt, Stelle);
    Stelle += Inhalt.size();
}

void Zeilenschreiber::Wachsen(qsizetype Mehr) {
    const qsizetype Geschrieben = Stelle ? Stelle - Block.constData() : Block.size();
    Block.resize(Geschrieben + std::max(Mehr, Geschrieben / 2 + 256));
    Stelle = Block.data() + Geschrieben;
    Ende = Block.data() + Block.size();
}
