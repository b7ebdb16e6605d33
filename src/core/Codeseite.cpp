#include "core/Codeseite.h"

#include "core/Laufzeitfehler.h"

#include <QCoreApplication>

#include <array>

namespace {

/// Bytes 0x80 to 0x9F; all others are their own number.
constexpr std::array<char16_t, 32> Besondere{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 256> Zeichentafel = [] {
    std::array<char16_t, 256> Tafel{};
    for (std::size_t Byte = 0; Byte < 256; ++Byte)
        Tafel[Byte] = Byte >= 0x80 && Byte < 0xA0 ? Besondere[Byte - 0x80] : static_cast<char16_t>(Byte);
    return Tafel;
}();

/// Stands in Bytetafel for a character without a byte.
constexpr char16_t OhneByte = 0x100;

/// The byte of each UTF-16 unit. Text of a grade book touches only its first lines, so the table costs no
/// more cache than a small one and needs no branch.
constexpr std::array<char16_t, 65536> Bytetafel = [] {
    std::array<char16_t, 65536> Tafel{};
    Tafel.fill(OhneByte);
    for (std::size_t Byte = 0; Byte < 256; ++Byte)
        Tafel[Zeichentafel[Byte]] = static_cast<char16_t>(Byte);
    return Tafel;
}();

constexpr bool HatByte(char16_t Zeichen) {
    return Bytetafel[Zeichen] != OhneByte;
}

// Nearly all text is its own number. Blocks of a fixed length without a branch inside are what the compiler
// makes vector code of; a block with one of the 32 others goes through the table.
constexpr qsizetype Block = 16;

void Entschluesseln(const unsigned char* Quelle, char16_t* Ziel, qsizetype Anzahl) {
    for (qsizetype i = 0; i < Anzahl; ++i)
        Ziel[i] = Zeichentafel[Quelle[i]];
}

/// False if the block holds a byte that is not its own number; what was written then counts for nothing.
bool BlockEntschluesseln(const unsigned char* __restrict Quelle, char16_t* __restrict Ziel) {
    unsigned char Besonders = 0;
    for (qsizetype i = 0; i < Block; ++i) {
        Ziel[i] = Quelle[i];
        Besonders |= static_cast<unsigned char>((Quelle[i] & 0xE0) == 0x80);
    }
    return Besonders == 0;
}

/// The entries of all characters, or-ed: OhneByte is in it if one has no byte.
inline char16_t Verschluesseln(const char16_t* Quelle, unsigned char* Ziel, qsizetype Anzahl) {
    char16_t Alle = 0;
    for (qsizetype i = 0; i < Anzahl; ++i) {
        const char16_t Eintrag = Bytetafel[Quelle[i]];
        Ziel[i] = static_cast<unsigned char>(Eintrag);
        Alle |= Eintrag;
    }
    return Alle;
}

/// As BlockEntschluesseln, the other way.
bool BlockVerschluesseln(const char16_t* __restrict Quelle, unsigned char* __restrict Ziel) {
    char16_t Besonders = 0;
    for (qsizetype i = 0; i < Block; ++i) {
        Ziel[i] = static_cast<unsigned char>(Quelle[i]);
        Besonders |= static_cast<char16_t>((Quelle[i] > 0xFF) | ((Quelle[i] & 0xE0) == 0x80));
    }
    return Besonders == 0;
}

/// As Verschluesseln, for whole blocks.
char16_t BloeckeVerschluesseln(const char16_t* Quelle, unsigned char* Ziel, qsizetype Anzahl) {
    char16_t Alle = 0;
    for (qsizetype i = 0; i < Anzahl; i += Block)
        if (!BlockVerschluesseln(Quelle + i, Ziel + i))
            Alle |= Verschluesseln(Quelle + i, Ziel + i, Block);
    return Alle;
}

[[noreturn, gnu::noinline]] void ZeichenFehlt(QStringView Text) {
    for (const QChar Zeichen : Text)
        if (!HatByte(Zeichen.unicode()))
            throw Laufzeitfehler(
                QCoreApplication::translate("Codeseite",
                                            "Das Zeichen U+%1 lässt sich nicht in der Datei darstellen.")
                    .arg(QString::number(Zeichen.unicode(), 16).toUpper().rightJustified(4, u'0')));
    Q_UNREACHABLE();
}

} // namespace

QString AusCodeseite(const char* Bytes, qsizetype Anzahl) {
    QString Text(Anzahl, Qt::Uninitialized);
    const auto* Quelle = reinterpret_cast<const unsigned char*>(Bytes);
    auto* Ziel = reinterpret_cast<char16_t*>(Text.data());
    qsizetype i = 0;
    for (; i + Block <= Anzahl; i += Block)
        if (!BlockEntschluesseln(Quelle + i, Ziel + i))
            Entschluesseln(Quelle + i, Ziel + i, Block);
    Entschluesseln(Quelle + i, Ziel + i, Anzahl - i);
    return Text;
}

QString AusCodeseite(const QByteArray& Bytes) {
    return AusCodeseite(Bytes.constData(), Bytes.size());
}

void InCodeseite(QStringView Text, char* Ziel) {
    const char16_t* const Quelle = Text.utf16();
    auto* const Bytes = reinterpret_cast<unsigned char*>(Ziel);
    const qsizetype Bloecke = Text.size() / Block * Block;
    char16_t Alle = 0;
    if (Bloecke > 0)
        Alle = BloeckeVerschluesseln(Quelle, Bytes, Bloecke);
    Alle |= Verschluesseln(Quelle + Bloecke, Bytes + Bloecke, Text.size() - Bloecke);
    if ((Alle & OhneByte) != 0)
        ZeichenFehlt(Text);
}

QByteArray InCodeseite(const QString& Text) {
    QByteArray Bytes(Text.size(), Qt::Uninitialized);
    InCodeseite(Text, Bytes.data());
    return Bytes;
}

bool InCodeseiteVorhanden(QChar Zeichen) {
    return HatByte(Zeichen.unicode());
}

QString CodeseiteBereinigt(const QString& Text, int* Entfallen) {
    QString Ergebnis;
    int Anzahl = 0;
    for (const QChar Zeichen : Text.normalized(QString::NormalizationForm_C)) {
        if (InCodeseiteVorhanden(Zeichen))
            Ergebnis += Zeichen;
        else if (!Zeichen.isLowSurrogate()) // the second half of a character already counted
            ++Anzahl;
    }
    if (Entfallen)
        *Entfallen = Anzahl;
    return Ergebnis;
}
