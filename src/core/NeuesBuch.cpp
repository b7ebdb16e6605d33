#include "core/NeuesBuch.h"

#include "core/AutoDatei.h"
#include "core/Datum.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Laufzeitfehler.h"
#include "core/Oberflaeche.h"
#include "core/Parametervorgaben.h"
#include "core/Uhr.h"

namespace {

/// A running program keeps the parameters of the book before, as far as they pass the checks.
void ParameterBehalten() {
    Datenbank.AktJahr = Schuljahr(Heute());
    try {
        PruefeParameter();
    } catch (const Laufzeitfehler&) {
        SetzeParameterDefaults(); // left by a damaged file; an empty book loses nothing by it
    }
}

} // namespace

void SaetzeLeeren() {
    Datenbank.AnzSchueler = Datenbank.AnzKlassen = Datenbank.AnzFaecher = 0;
    Datenbank.AnzNoten = Datenbank.AnzZSchueler = 0;
    NaechsteSchuelerID = ErsteSchuelerID;
    NaechsteFachID = ErsteFachID;
}

void BuchLeeren() {
    DatenGeaendert = false;
    SaetzeLeeren();
    if (AktuelleOberflaeche().Sichtbar())
        ParameterBehalten();
    else
        SetzeParameterDefaults();
    AutoDateiSetzen(Unbenannt);
}

void BuchVerwerfen() {
    BuchLeeren();
    if (AktuelleOberflaeche().Sichtbar())
        AktuelleOberflaeche().AnsichtAktualisieren();
    TitelAktualisieren();
    AktuelleOberflaeche().JahrgangWaehlen();
}
