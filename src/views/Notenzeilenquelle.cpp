#include "views/Notenzeilenquelle.h"

#include "core/FktAllgemein.h"

namespace {

bool PunkteVonHand(const Notenzeile& Zeile, int Spalte) {
    return Spalte <= Notenspalte::LetzterTest && Zeile.P[Spalte].contains(u'-') &&
           ZahlAusText(Zeile.P[Spalte]) < 0;
}

void NotenEintragen(std::vector<Gitterzelle>& Zellen, const Notenzeile& Satz) {
    for (int Spalte = 1; Spalte <= Notenspalte::LetzteNote; ++Spalte) {
        Gitterzelle& Zelle = Zellen[static_cast<std::size_t>(Spalte)];
        Zelle.Text = Satz.N[Spalte];
        Zelle.Vordergrund = PunkteVonHand(Satz, Spalte) ? NoteVonHand : NoteBerechnet;
    }
    Zellen[Notenspalte::HalbjahrZeugnis].Text = Satz.Gesamt1;
    Zellen[Notenspalte::JahrZeugnis].Text = Satz.Gesamt2;
}

} // namespace

Notenzeilenquelle::Notenzeilenquelle(std::vector<Notenlistenzeile> WelcheZeilen, Namensregel WelcherName,
                                     const Gesamtregeln& WelcheRegeln)
    : Zeilen(std::move(WelcheZeilen))
    , Name(WelcherName)
    , Regeln(WelcheRegeln) {}

std::vector<Gitterzelle> Notenzeilenquelle::Zellen(int Nummer) const {
    const Notenlistenzeile& Zeile = Zeilen[static_cast<std::size_t>(Nummer)];
    std::vector<Gitterzelle> Alle(Notenspalte::Anzahl);
    Alle[Notenspalte::Name].Text = Name(Zeile);
    const Notenzeile* Satz = SatzDer(Zeile);
    if (Satz)
        NotenEintragen(Alle, *Satz);
    const Fach* Eines = FachDer(Zeile);
    if (!Eines)
        return Alle;
    const Halbjahresbeginn Beginn = HalbjahresbeginnVon(*Eines);
    for (int Spalte = 0; Spalte < Notenspalte::Anzahl; ++Spalte)
        Alle[static_cast<std::size_t>(Spalte)].Hintergrund = Notenspaltenfarbe(Spalte, Beginn);
    if (!Satz)
        return Alle;
    const Durchschnitte Beide = DurchschnitteBerechnen(Satz->N, Beginn, Regeln);
    Alle[Notenspalte::HalbjahrDurchschnitt].Text = Beide.Halbjahr;
    Alle[Notenspalte::JahrDurchschnitt].Text = Beide.Jahr;
    return Alle;
}
