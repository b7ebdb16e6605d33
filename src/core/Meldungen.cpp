#include "core/Meldungen.h"

namespace {

/// Answers when no service is set: nothing is asked, nothing is overwritten.
class StummeMeldungen : public Meldungsdienst {
  public:
    Antwort Zeigen(const Meldungstext& Meldung) override {
        switch (Meldung.Auswahl) {
        case Knoepfe::Ok:
            return Antwort::Ok;
        case Knoepfe::JaNein:
            return Antwort::Nein;
        case Knoepfe::JaNeinAbbrechen:
            return Antwort::Abbrechen;
        }
        return Antwort::Abbrechen;
    }
    int Waehlen(const Auswahlfrage& Frage) override { return static_cast<int>(Frage.Knoepfe.size()) - 1; }
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& /*Wunsch*/) override { return {}; }
    std::optional<Dateiwahl> Speichern(const Dateiwunsch& /*Wunsch*/) override { return {}; }
};

StummeMeldungen Stumm;
Meldungsdienst* AktuellerDienst = &Stumm;

} // namespace

void MeldungsdienstSetzen(Meldungsdienst* Dienst) {
    AktuellerDienst = Dienst ? Dienst : &Stumm;
}

Meldungsdienst& Meldungen() {
    return *AktuellerDienst;
}

void MeldungZeigen(const QString& Text, const QString& Titel, Symbol Bild) {
    Meldungen().Zeigen({Text, Titel, Knoepfe::Ok, Bild});
}

bool FrageJaNein(const QString& Text, const QString& Titel) {
    return Meldungen().Zeigen({Text, Titel, Knoepfe::JaNein, Symbol::Frage}) == Antwort::Ja;
}

Antwort FrageJaNeinAbbrechen(const QString& Text, const QString& Titel) {
    return Meldungen().Zeigen({Text, Titel, Knoepfe::JaNeinAbbrechen, Symbol::Frage});
}
