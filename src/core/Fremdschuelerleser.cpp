#include "core/Fremdschuelerleser.h"

#include "core/Abschnittsleser.h"
#include "core/Definitionen.h"
#include "core/Satzleser.h"

namespace {

void SchuelerzeilenLesen(Abschnittsleser& Quelle) {
    constexpr bool AlleBeurteilungen = true;
    Satzleser Saetze(AlleBeurteilungen);
    AnzFremdSchueler = 0;
    while (Quelle.Weiter()) {
        if (Quelle.Zeile().starts_with('[')) {
            Quelle.AbschnittBeginnen();
            continue;
        }
        if (Quelle.Abschnittsart() != Abschnitt::Schueler) {
            Quelle.Zerlegen();
            continue;
        }
        Quelle.ZerlegenUndZaehlen();
        Saetze.SchuelerLesen(Quelle.Felder(), FremdSchueler[AnzFremdSchueler]);
        ++AnzFremdSchueler;
    }
}

} // namespace

Leseergebnis FremdSchuelerLesen(const QByteArray& Bytes, bool Ganz, const Feldwarner& Warnen) {
    Leseergebnis Ergebnis;
    Abschnittsleser Quelle(Bytes, Ganz, Warnen);
    try {
        if (!Quelle.KopfErkennen(Ergebnis))
            return Ergebnis;
        SchuelerzeilenLesen(Quelle);
        Ergebnis.Ende = Leseergebnis::Ausgang::Gelesen;
    } catch (const std::exception&) { // a Laufzeitfehler, or a line too long for the memory there is
        AnzFremdSchueler = 0;
        Ergebnis.Stelle = Quelle.Stelle();
    }
    return Ergebnis;
}
