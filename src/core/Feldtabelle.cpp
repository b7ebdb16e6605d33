#include "core/Feldtabelle.h"

#include "core/Codeseite.h"
#include "core/Laufzeitfehler.h"
#include "core/Zahlen.h"

#include <QCoreApplication>

#include <charconv>
#include <cmath>

namespace {

[[noreturn]] void KeineZahl(std::string_view Feld) {
    constexpr std::size_t Zeigbar = 40;
    const std::string_view Anfang = Feld.substr(0, Zeigbar);
    throw Laufzeitfehler(QCoreApplication::translate("Feldtabelle", "\"%1\" ist keine Zahl.")
                             .arg(AusCodeseite(Anfang.data(), static_cast<qsizetype>(Anfang.size()))));
}

QString MitAnderemDezimalzeichen(QString Text) {
    for (QChar& Zeichen : Text)
        if (Zeichen == u',' || Zeichen == u'.')
            Zeichen = Zeichen == u',' ? u'.' : u',';
    return Text;
}

} // namespace

int Feldtabelle::Zerlegen(std::string_view Zeile) {
    const char* Anfang = Zeile.data();
    const char* const Ende = Anfang + Zeile.size();
    int Anzahl = 0;
    for (const char* Zeichen = Anfang;; ++Zeichen) {
        if (Zeichen != Ende && *Zeichen != '\t')
            continue;
        ++Anzahl;
        Felder[Anzahl] = std::string_view(Anfang, static_cast<std::size_t>(Zeichen - Anfang));
        if (Zeichen == Ende)
            return Anzahl;
        Anfang = Zeichen + 1;
    }
}

qint32 Ganzzahl(std::string_view Feld) {
    qint32 Zahl = 0;
    const char* const Ende = Feld.data() + Feld.size();
    const bool Vorzeichen = !Feld.empty() && Feld.front() == '-'; // std::from_chars takes a minus
    const auto Ergebnis = std::from_chars(Feld.data(), Ende, Zahl);
    if (Vorzeichen || Ergebnis.ec != std::errc() || Ergebnis.ptr != Ende)
        KeineZahl(Feld);
    return Zahl;
}

float Kommazahl(std::string_view Feld) {
    constexpr float AusserhalbJederGrenze = -1;
    constexpr double Groesste = 1e30;
    constexpr std::size_t LaengsteZahl = 64;
    if (Feld.size() > LaengsteZahl)
        KeineZahl(Feld);
    const QString Text = AusCodeseite(Feld.data(), static_cast<qsizetype>(Feld.size()));
    if (const auto Zahl = ZahlLesen(Text))
        return std::fabs(*Zahl) < Groesste ? static_cast<float>(*Zahl) : AusserhalbJederGrenze;
    if (ZahlLesen(MitAnderemDezimalzeichen(Text)))
        return AusserhalbJederGrenze;
    KeineZahl(Feld);
}
