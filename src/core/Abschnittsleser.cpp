#include "core/Abschnittsleser.h"

#include "core/Anzeigetext.h"
#include "core/Laufzeitfehler.h"

#include <QCoreApplication>

namespace {

[[noreturn]] void LesefehlerWerfen() {
    throw Laufzeitfehler(
        QCoreApplication::translate("Abschnittsleser", "Die Datei ließ sich nicht bis zu ihrem Ende lesen."));
}

} // namespace

Abschnittsleser::Abschnittsleser(const QByteArray& Bytes, bool Ganz, const Feldwarner& Warnen)
    : Zeilen({Bytes.constData(), static_cast<std::size_t>(Bytes.size())})
    , DateiGanz(Ganz)
    , Warner(Warnen) {}

bool Abschnittsleser::KopfErkennen(Leseergebnis& Ergebnis) {
    if (Zeilen.AmEnde()) {
        ++ZeilenNr;
        throw Laufzeitfehler(QCoreApplication::translate("Abschnittsleser", "Die Datei ist leer."));
    }
    ZeileHolen();
    const std::string_view Version = Versionstext(Aktuelle);
    Ergebnis.Version = Anzeigetext(Version);
    if (!Aktuelle.starts_with(Datenbankkennung))
        Ergebnis.Ende = Leseergebnis::Ausgang::KeineDatenbank;
    else if (Version != "3.0" && Version != "2.0")
        Ergebnis.Ende = Leseergebnis::Ausgang::FremdeVersion;
    else
        return true;
    return false;
}

bool Abschnittsleser::Weiter() {
    if (Zeilen.AmEnde()) {
        if (!DateiGanz)
            LesefehlerWerfen();
        return false;
    }
    ++SatzNr;
    ZeileHolen();
    return true;
}

bool Abschnittsleser::AbschnittBeginnen() {
    Marke = Aktuelle;
    Art = AbschnittZurMarke(Marke);
    SatzNr = 0;
    if (Zeilen.AmEnde()) {
        ++ZeilenNr;
        return false;
    }
    ZeileHolen();
    return true;
}

int Abschnittsleser::ZerlegenUndZaehlen() {
    const int Anzahl = Zerlegen();
    const int Erwartet = Spaltenzahl(Art);
    if (Erwartet != 0 && Anzahl != Erwartet)
        Warner({SatzNr, Anzeigetext(Marke), Anzahl, Erwartet});
    return Anzahl;
}

Lesestelle Abschnittsleser::Stelle() const {
    return {ZeilenNr, SatzNr, Anzeigetext(Marke), Anzeigetext(Aktuelle)};
}

void Abschnittsleser::ZeileHolen() {
    ++ZeilenNr;
    Aktuelle = Zeilen.Naechste();
    if (!DateiGanz && !Zeilen.ZeileBeendet())
        LesefehlerWerfen();
}
