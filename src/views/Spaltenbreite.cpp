#include "views/Spaltenbreite.h"

Zeichenmass::Zeichenmass(const QFont& Schrift)
    : Mass(Schrift) {}

double Zeichenmass::Breite(const QString& Text) {
    double Summe = 0;
    for (const QChar Zeichen : Text) {
        const auto Bekannt = Breiten.constFind(Zeichen.unicode());
        if (Bekannt != Breiten.constEnd())
            Summe += *Bekannt;
        else
            Summe += *Breiten.insert(Zeichen.unicode(), Mass.horizontalAdvance(Zeichen));
    }
    return Summe;
}
