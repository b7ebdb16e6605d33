#include "core/Satzleser.h"

#include "core/Codeseite.h"
#include "core/FktSpeziell.h"
#include "core/Satzspalten.h"
#include "core/Zahlen.h"

namespace {

/// The visitor that fills a record with the fields of a row, from the first on.
class Feldleser {
  public:
    Feldleser(const Feldtabelle& Tabelle, Kurztexte& Ablage)
        : Felder(Tabelle)
        , Kurze(Ablage) {}

    void Zahl(QStringView /*Name*/, qint32& Ziel) { Ziel = Ganzzahl(Naechstes()); }
    void Text(QStringView /*Name*/, QString& Ziel) { Kurze.Setzen(Ziel, Naechstes()); }
    void Teilnahme(QStringView /*Name*/, QString& Ziel) {
        const std::string_view Feld = Naechstes();
        Kurze.Setzen(Ziel, Feld == "1" || Feld == "ja" ? "ja" : "nein");
    }
    template <class Zielreihe>
    void Texte(QStringView /*Name*/, Zielreihe& Ziel, int Von, int Bis) {
        for (int i = Von; i <= Bis; ++i)
            Kurze.Setzen(Ziel[i], Naechstes());
    }
    template <class Zielreihe>
    void Freie(Zielreihe& Ziel, int Von, int Bis) {
        Texte({}, Ziel, Von, Bis);
    }
    void Wahrheit(QStringView /*Name*/, bool& Ziel) {
        QString Wort;
        Kurze.Setzen(Wort, Naechstes());
        Ziel = WahrheitLesen(Wort);
    }
    void Kommazahl(QStringView /*Name*/, float& Ziel) { Ziel = ::Kommazahl(Naechstes()); }

  private:
    std::string_view Naechstes() { return Felder[++Stelle]; }

    const Feldtabelle& Felder;
    Kurztexte& Kurze;
    int Stelle = 0;
};

/// Next ID to give out after one was read: only IDs of the range kept for the kind move it.
void ZaehlerNachziehen(qint32& Naechste, qint32 ID, qint32 Ende) {
    if (ID >= Naechste && ID < Ende)
        Naechste = ID + 1;
}

constexpr qint32 EndeSchuelerID = 50000;
constexpr qint32 EndeFachID = 90000;

} // namespace

bool Satzleser::Lesen(Abschnitt Einer, const Feldtabelle& Felder) {
    switch (Einer) {
    case Abschnitt::Klassen:
        KlasseLesen(Felder);
        return true;
    case Abschnitt::Faecher:
        FachLesen(Felder);
        return true;
    case Abschnitt::Proben:
        return ProbeLesen(Felder);
    case Abschnitt::Schueler:
        NeuenSchuelerLesen(Felder);
        return true;
    case Abschnitt::ZSchueler:
        ZSchuelerLesen(Felder);
        return true;
    case Abschnitt::Noten:
        NotenzeileLesen(Felder);
        return true;
    case Abschnitt::Parameter:
        ParameterSpalten(Datenbank, Feldleser(Felder, Texte));
        return true;
    case Abschnitt::Keiner:
    case Abschnitt::Beurteilungen:
        break;
    }
    return false;
}

void Satzleser::TitelLesen(const Feldtabelle& Kopf) {
    for (int i = 1; i < Datenbank.SchuelerFeldTitel.size(); ++i)
        Texte.Setzen(Datenbank.SchuelerFeldTitel[i], Kopf[i + 4]);
}

void Satzleser::SchuelerLesen(const Feldtabelle& Felder, Schueler& Ziel) {
    SchuelerSpalten(Ziel, Feldleser(Felder, Texte));
}

void Satzleser::KlasseLesen(const Feldtabelle& Felder) {
    KlasseSpalten(Datenbank.Klassen[Datenbank.AnzKlassen], Feldleser(Felder, Texte));
    ++Datenbank.AnzKlassen;
}

void Satzleser::FachLesen(const Feldtabelle& Felder) {
    Fach& Neues = Datenbank.Faecher[Datenbank.AnzFaecher];
    FachSpalten(Neues, Feldleser(Felder, Texte));
    for (int i = 1; i < Neues.Proben.size(); ++i)
        Neues.Proben[i] = {};
    ZaehlerNachziehen(NaechsteFachID, Neues.ID, EndeFachID);
    ++Datenbank.AnzFaecher;
}

bool Satzleser::ProbeLesen(const Feldtabelle& Felder) {
    const qint16 Index = FachSuchen(Ganzzahl(Felder[2]));
    if (Index < 0)
        return false;
    qint32 Nummer = Ganzzahl(Felder[1]);
    qint32 FachID = 0;
    ProbeSpalten(Nummer, FachID, Datenbank.Faecher[Index].Proben[Nummer], Feldleser(Felder, Texte));
    return Nummer > 0;
}

void Satzleser::NeuenSchuelerLesen(const Feldtabelle& Felder) {
    Schueler& Neuer = Datenbank.Schueler[Datenbank.AnzSchueler];
    SchuelerLesen(Felder, Neuer);
    for (int i = 0; i < GeleerteBeurteilungen; ++i)
        Neuer.Beurteilung[i].clear();
    ZaehlerNachziehen(NaechsteSchuelerID, Neuer.ID, EndeSchuelerID);
    ++Datenbank.AnzSchueler;
}

void Satzleser::ZSchuelerLesen(const Feldtabelle& Felder) {
    ZSchuelerSpalten(Datenbank.ZSchueler[Datenbank.AnzZSchueler], Feldleser(Felder, Texte));
    ++Datenbank.AnzZSchueler;
}

void Satzleser::NotenzeileLesen(const Feldtabelle& Felder) {
    NotenzeileSpalten(Datenbank.Noten[Datenbank.AnzNoten], Feldleser(Felder, Texte));
    ++Datenbank.AnzNoten;
}

qint16 Satzleser::FachSuchen(qint32 ID) {
    if (LetzterFachIndex < 0 || ID != LetzteFachID) {
        LetzterFachIndex = FachIndex(ID);
        LetzteFachID = ID;
    }
    return LetzterFachIndex;
}
