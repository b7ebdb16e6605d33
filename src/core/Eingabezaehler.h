#pragma once

#include <functional>

// The delayed commits. Each edit box that commits by itself has a slot 0..11 of EingabeZaehler: 0
// txtGesamtpunktzahl, 1..5 txtNGrenze, 6 txtPDatum, txtPThema, txtPDateiname, 7 txtEingabe, 8 txtSEingabe
// (never armed), 9 txtN1Eingabe, 10 txtN2Eingabe, 11 txtBVorname. A change of the box writes the number of
// ticks into its slot; typing again restarts the delay; a commit sets it to 0.

/// What runs when slot Platz (0..11) counts down to exactly 0. An empty function: nothing.
void EingabezaehlerAktion(int Platz, std::function<void()> Aktion);

/// One tick of the 500 ms timer: for each slot in order, 0 and above is lowered by 1, and if it is then 0,
/// its action runs.
void EingabezaehlerTick();

/// Sets all slots to 0: no pending commit runs any more.
void EingabezaehlerLeeren();
