#include "core/Datenbankleser.h"

#include "core/Abschnittsleser.h"
#include "core/Beurteilungsleser.h"
#include "core/NeuesBuch.h"
#include "core/Parametervorgaben.h"
#include "core/Satzleser.h"

namespace {

/// In format 2.0 a line is a marker when it occurs in this text, brackets or not.
bool IstMarke2(std::string_view Zeile) {
    constexpr std::string_view Marken = "[Klassen][F\xE4"
                                        "cher][Proben][Sch\xFCler][ZSch\xFCler][Noten][Parameter]";
    return Marken.find(Zeile) != Marken.npos;
}

bool IstMarke3(std::string_view Zeile) {
    return !Zeile.empty() && Zeile.front() == '[' && Zeile.back() == ']';
}

/// The lines of one grade book and what becomes of them.
class Datenbankleser {
  public:
    Datenbankleser(Abschnittsleser& Datei, bool Version3)
        : Quelle(Datei)
        , Format3(Version3)
        , Saetze(Version3) {}

    void Lesen();
    int Entfallen() const { return OhnePlatz; }

  private:
    void AbschnittBeginnen();
    void SatzLesen();

    Abschnittsleser& Quelle;
    bool Format3;
    Satzleser Saetze;
    Beurteilungsleser Beurteilungen;
    int OhnePlatz = 0;
};

void Datenbankleser::Lesen() {
    while (Quelle.Weiter()) {
        if (Format3 ? IstMarke3(Quelle.Zeile()) : IstMarke2(Quelle.Zeile()))
            AbschnittBeginnen();
        else if (Quelle.Abschnittsart() == Abschnitt::Beurteilungen)
            OhnePlatz += Beurteilungen.Zeile(Quelle.Zeile()) ? 0 : 1;
        else
            SatzLesen();
    }
    Beurteilungen.Abschliessen();
}

void Datenbankleser::AbschnittBeginnen() {
    Beurteilungen.Abschliessen();
    const bool MarkeLeer = Quelle.Zeile().empty();
    const bool MitKopf = Quelle.AbschnittBeginnen();
    // They may have been lines of an assessment, and no save writes them again.
    if (Quelle.Abschnittsart() == Abschnitt::Keiner)
        OhnePlatz += (MarkeLeer ? 0 : 1) + (MitKopf && !Quelle.Zeile().empty() ? 1 : 0);
    if (!MitKopf || Quelle.Abschnittsart() != Abschnitt::Schueler)
        return;
    Quelle.ZerlegenUndZaehlen();
    Saetze.TitelLesen(Quelle.Felder());
}

void Datenbankleser::SatzLesen() {
    const int Anzahl = Quelle.ZerlegenUndZaehlen();
    if (!Saetze.Lesen(Quelle.Abschnittsart(), Quelle.Felder())) {
        OhnePlatz += Quelle.Zeile().empty() ? 0 : 1;
        return;
    }
    for (int i = Spaltenzahl(Quelle.Abschnittsart()) + 1; i <= Anzahl; ++i)
        OhnePlatz += Quelle.Felder()[i].empty() ? 0 : 1;
}

/// Everything behind the first line.
void RestLesen(Abschnittsleser& Quelle, Leseergebnis& Ergebnis) {
    SaetzeLeeren();
    Datenbankleser Leser(Quelle, Ergebnis.Version == QStringLiteral("3.0"));
    Leser.Lesen();
    Ergebnis.Entfallen = Leser.Entfallen();
    PruefeParameter();
    Ergebnis.Ende = Leseergebnis::Ausgang::Gelesen;
}

} // namespace

Leseergebnis DatenbankLesen(const QByteArray& Bytes, bool Ganz, const Feldwarner& Warnen) {
    Leseergebnis Ergebnis;
    Abschnittsleser Quelle(Bytes, Ganz, Warnen);
    try {
        if (Quelle.KopfErkennen(Ergebnis))
            RestLesen(Quelle, Ergebnis);
    } catch (const std::exception&) { // a Laufzeitfehler, or a line too long for the memory there is
        Ergebnis.Stelle = Quelle.Stelle();
        Ergebnis.InParameter = Quelle.Abschnittsart() == Abschnitt::Parameter;
    }
    return Ergebnis;
}
