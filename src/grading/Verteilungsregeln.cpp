#include "grading/Verteilungsregeln.h"

#include "core/FktAllgemein.h"
#include "core/Zahlen.h"

namespace {

constexpr int HundertProzent = 100;

/// Units in one whole of what the cell shows.
int Einheiten(Verteilungsart Art) {
    return Art == Verteilungsart::Punkte ? 2 : 1;
}

} // namespace

Leistenstand LeisteFuer(Verteilungsart Art, const QStringList& Zeile, int Spalte) {
    const auto InEinheiten = [&](int Stelle) {
        return Runden(static_cast<double>(ZahlAusText(Zeile.at(Stelle))) * Einheiten(Art));
    };
    Leistenstand Stand{0, HundertProzent, 0};
    if (Art != Verteilungsart::Anteil) {
        if (Spalte > 1)
            Stand.Max = InEinheiten(Spalte - 1) - 1;
        else if (Art == Verteilungsart::Punkte)
            Stand.Max = InEinheiten(0);
        if (Spalte < Zeile.size() - 1)
            Stand.Min = InEinheiten(Spalte + 1) + 1;
    }
    Stand.Value = Stand.Min + Stand.Max - InEinheiten(Spalte);
    return Stand;
}

QString Zelltext(Verteilungsart Art, const Leistenstand& Stand) {
    return ZahlText(static_cast<double>(Stand.Min + Stand.Max - Stand.Value) / Einheiten(Art));
}

std::optional<QStringList> AnteilGeaendert(const QStringList& Zeile, int Spalte, int Neu) {
    const int Letzte = static_cast<int>(Zeile.size()) - 1;
    const int Ausgleich = Spalte < Letzte ? Letzte : 1;
    int Summe = 0;
    for (int i = 1; i <= Letzte; ++i)
        if (i != Ausgleich)
            Summe += i == Spalte ? Neu : GanzzahlAusText(Zeile.at(i));
    if (Summe > HundertProzent)
        return {};
    QStringList Ergebnis = Zeile;
    Ergebnis[Ausgleich] = ZahlText(HundertProzent - Summe);
    Ergebnis[Spalte] = ZahlText(Neu);
    return Ergebnis;
}
