#include "records/Aendern.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "photos/Passbild.h"

namespace {

bool Setzen(QString& Wert, const QString& Neu) {
    if (Wert == Neu)
        return false;
    Wert = Neu;
    DatenGeaendert = true;
    return true;
}

} // namespace

bool SchuelerNamenAendern(qint32 Schueler_ID, const QString& Name) {
    const int Platz = SchuelerIndex(Schueler_ID);
    if (Platz < 0 || Datenbank.Schueler[Platz].Name == Name)
        return false;
    // While the record still says where the photo lies.
    PassbildUmbenennen(Platz, Name);
    return Setzen(Datenbank.Schueler[Platz].Name, Name);
}

bool SchuelerFeldAendern(qint32 Schueler_ID, int Feld, const QString& Text) {
    const int Platz = SchuelerIndex(Schueler_ID);
    return Platz >= 0 && Setzen(Datenbank.Schueler[Platz].Feld[Feld], Text);
}

bool FeldTitelAendern(int Feld, const QString& Titel) {
    return Setzen(Datenbank.SchuelerFeldTitel[Feld], Titel);
}

bool FachNamenAendern(qint32 Fach_ID, const QString& Name) {
    const int Platz = FachIndex(Fach_ID);
    return Platz >= 0 && Setzen(Datenbank.Faecher[Platz].Name, Name);
}

bool TeilnahmeAendern(qint32 Schueler_ID, qint32 Fach_ID, const QString& Teilnahme) {
    const int Platz = NotenIndex(Schueler_ID, Fach_ID);
    return Platz >= 0 && Setzen(Datenbank.Noten[Platz].Teilnahme, Teilnahme);
}
