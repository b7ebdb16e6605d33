#include "core/Zahlen.h"

#include "core/Laufzeitfehler.h"
#include "core/Sprachregeln.h"

#include <QCoreApplication>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr qsizetype LaengsteZahl = 64;

/// A reader over the characters of a number that writes them in the form std::from_chars knows.
struct Zahlleser {
    QStringView Text;
    QChar Dezimalzeichen;
    std::array<char, LaengsteZahl + 1> Puffer{};
    qsizetype Stelle = 0;
    char* Ende = Puffer.data();

    bool Fertig() const { return Stelle == Text.size(); }
    bool Steht(char16_t Zeichen) const { return !Fertig() && Text[Stelle] == Zeichen; }
    void Uebernehmen(char Zeichen) {
        *Ende++ = Zeichen;
        ++Stelle;
    }
    /// A plus is left out: std::from_chars takes none before a number.
    void Vorzeichen() {
        if (Steht(u'-'))
            Uebernehmen('-');
        else if (Steht(u'+'))
            ++Stelle;
    }
    /// Takes all digits that follow and tells whether there was one.
    bool Ziffern() {
        const qsizetype Anfang = Stelle;
        while (!Fertig() && Text[Stelle] >= u'0' && Text[Stelle] <= u'9')
            Uebernehmen(static_cast<char>(Text[Stelle].unicode()));
        return Stelle > Anfang;
    }
    bool Mantisse() {
        Vorzeichen();
        bool Ziffer = Ziffern();
        if (!Fertig() && Text[Stelle] == Dezimalzeichen) {
            Uebernehmen('.');
            Ziffer = Ziffern() || Ziffer;
        }
        return Ziffer;
    }
    bool Exponent() {
        if (!Steht(u'e') && !Steht(u'E'))
            return true;
        Uebernehmen('e');
        Vorzeichen();
        return Ziffern();
    }
};

QString MitDezimalzeichen(const char* Anfang, const char* Ende) {
    QString Ergebnis = QString::fromLatin1(Anfang, Ende - Anfang);
    const qsizetype Punkt = Ergebnis.indexOf(u'.');
    if (Punkt >= 0)
        Ergebnis[Punkt] = AktuelleSprachregeln().Dezimalzeichen;
    return Ergebnis;
}

template <class T>
QString Kurz(T Zahl, int Stellen) {
    std::array<char, 32> Puffer{};
    // Adding 0 makes a plain zero of a negative one.
    const auto Ergebnis = std::to_chars(Puffer.data(), Puffer.data() + Puffer.size(), Zahl + T(0),
                                        std::chars_format::general, Stellen);
    return MitDezimalzeichen(Puffer.data(), Ergebnis.ptr);
}

/// |Zahl| x 10^Nachkomma as a whole number, from its seven decimal digits: a single that came from "2,35" is
/// a little less than 2.35, but shows as 2,35 and rounds as that. |Zahl| is below 10^7.
qint64 Gerundet(float Zahl, int Nachkomma) {
    std::array<char, 32> Puffer{};
    char* const Ende = std::to_chars(Puffer.data(), Puffer.data() + Puffer.size(), std::fabs(Zahl),
                                     std::chars_format::scientific, 6)
                           .ptr;
    qint64 Ziffern = Puffer[0] - '0';
    for (int i = 2; i < 8; ++i)
        Ziffern = Ziffern * 10 + (Puffer[static_cast<std::size_t>(i)] - '0');
    int Exponent = 0;
    std::from_chars(Puffer.data() + (Puffer[9] == '+' ? 10 : 9), Ende, Exponent);

    int Ueberzaehlig = 6 - Exponent - Nachkomma;
    for (; Ueberzaehlig < 0; ++Ueberzaehlig)
        Ziffern *= 10;
    // All digits but one go without rounding; a digit cut off below the last one cannot change which side of
    // the half the number lies on.
    for (; Ueberzaehlig > 1; --Ueberzaehlig)
        Ziffern /= 10;
    return Ueberzaehlig == 1 ? (Ziffern + 5) / 10 : Ziffern;
}

} // namespace

std::optional<double> ZahlLesen(const QString& Text) {
    const QStringView Kern = QStringView(Text).trimmed();
    if (Kern.isEmpty() || Text.size() > LaengsteZahl)
        return {};
    Zahlleser Leser{Kern, AktuelleSprachregeln().Dezimalzeichen};
    if (!Leser.Mantisse() || !Leser.Exponent() || !Leser.Fertig())
        return {};
    double Zahl = 0;
    const auto Ergebnis = std::from_chars(Leser.Puffer.data(), Leser.Ende, Zahl);
    if (Ergebnis.ec != std::errc() || Ergebnis.ptr != Leser.Ende)
        return {};
    return Zahl;
}

QString ZahlText(double Zahl) {
    return Kurz(Zahl, 15);
}

QString ZahlText(float Zahl) {
    return Kurz(Zahl, 7);
}

QString ZahlText(int Zahl) {
    return QString::number(Zahl);
}

int Runden(double Zahl) {
    const double Ganz = std::nearbyint(Zahl);
    constexpr double Kleinste = std::numeric_limits<int>::min();
    constexpr double Groesste = std::numeric_limits<int>::max();
    if (!(Ganz >= Kleinste && Ganz <= Groesste))
        throw Laufzeitfehler(QCoreApplication::translate("Zahlen", "Die Zahl ist zu groß: %1").arg(Zahl));
    return static_cast<int>(Ganz);
}

QString ZahlFormat(float Zahl, const QString& Format) {
    const qsizetype Punkt = Format.indexOf(u'.');
    const int Nachkomma = Punkt < 0 ? 0 : static_cast<int>(Format.size() - Punkt - 1);
    QByteArray Ziffern;
    if (std::fabs(Zahl) < 1e7F) {
        const qint64 Ganz = Gerundet(Zahl, Nachkomma);
        Ziffern = QByteArray::number(Ganz).rightJustified(Nachkomma + 1, '0');
        if (Nachkomma > 0)
            Ziffern.insert(Ziffern.size() - Nachkomma, '.');
        if (Zahl < 0 && Ganz != 0)
            Ziffern.prepend('-');
    } else {
        Ziffern = QByteArray::number(static_cast<double>(Zahl), 'f', Nachkomma);
    }
    return MitDezimalzeichen(Ziffern.constBegin(), Ziffern.constEnd());
}

QString WahrheitText(bool Wert) {
    if (SystemSprache().language() == QLocale::German)
        return Wert ? QStringLiteral("Wahr") : QStringLiteral("Falsch");
    return Wert ? QStringLiteral("True") : QStringLiteral("False");
}

bool WahrheitLesen(const QString& Text) {
    const QString Gross = Text.toUpper();
    return Gross == QStringLiteral("WAHR") || Gross == QStringLiteral("TRUE");
}
