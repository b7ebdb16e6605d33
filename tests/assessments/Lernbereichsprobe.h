#pragma once

#include "core/Definitionen.h"

#include <QStringList>

/// Appends an area of these lines to the phrase store.
inline void BereichAnlegen(const QString& Name, const QStringList& Zeilen) {
    Lernbereich& Neuer = Lernbereiche[AnzLernbereiche];
    Neuer.Name = Name;
    Neuer.Anzahl = 0;
    for (const QString& Zeile : Zeilen)
        Neuer.Formulierung[Neuer.Anzahl++] = Zeile;
    Lernbereiche[++AnzLernbereiche].Anzahl = 0;
}
