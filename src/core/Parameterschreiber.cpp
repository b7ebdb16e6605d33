#include "core/Definitionen.h"
#include "core/Parameterabschnitte.h"
#include "core/Parameterleser.h"
#include "core/Zahlen.h"
#include "core/Zeilenschreiber.h"

#include <array>

namespace {

using namespace Parameterabschnitte;

void NotenwerteSchreiben(Zeilenschreiber& Z, const QString& Zeilenkopf, const Reihe<float, 5>& Werte) {
    Z.Feld(Zeilenkopf);
    for (const float Wert : Werte)
        Z.Feld(ZahlText(Wert));
    Z.ZeileEnden();
}

void VerteilungSchreiben(Zeilenschreiber& Z, std::string_view Marke,
                         const Reihe<Reihe<float, 5>, 5>& Verteilung) {
    const std::array<QString, 5> Wertungen{QStringLiteral("--"), QStringLiteral("-"), QStringLiteral("o"),
                                           QStringLiteral("+"), QStringLiteral("++")};
    Z.Zeile(Marke);
    Z.Zeile("Wertung\tNote1\tNote2\tNote3\tNote4\tNote5");
    for (std::size_t i = 0; i < Wertungen.size(); ++i)
        NotenwerteSchreiben(Z, Wertungen[i], Verteilung[static_cast<int>(i)]);
}

/// Totals without a first limit have no row.
void PunktetabelleSchreiben(Zeilenschreiber& Z) {
    Z.Zeile(BLLV);
    Z.Zeile("Punkte\tNote1\tNote2\tNote3\tNote4\tNote5");
    for (int Gesamtzahl = 0; Gesamtzahl < BLLVVerteilung.size(); ++Gesamtzahl)
        if (BLLVVerteilung[Gesamtzahl][0] > 0)
            NotenwerteSchreiben(Z, QString::number(Gesamtzahl), BLLVVerteilung[Gesamtzahl]);
}

void BezeichnungenSchreiben(Zeilenschreiber& Z) {
    Z.Zeile(Bezeichnungen);
    Z.Zeile("Klasse\tProbenbezeichnung\tExtemporalenBezeichnung");
    for (int Stufe = 1; Stufe < Probenbezeichnung.size(); ++Stufe) {
        Z.Feld(Stufe);
        Z.Feld(Probenbezeichnung[Stufe]);
        Z.Feld(ExtemporalenBezeichnung[Stufe]);
        Z.ZeileEnden();
    }
}

} // namespace

QByteArray ParameterBytes() {
    Zeilenschreiber Z;
    Z.Zeile("[Parameter f\xFCr Tafelquell 3.0]");
    VerteilungSchreiben(Z, Eigene, EigeneVerteilung);
    VerteilungSchreiben(Z, Gauss, GaussVerteilung);
    PunktetabelleSchreiben(Z);
    BezeichnungenSchreiben(Z);
    return Z.Bytes();
}
