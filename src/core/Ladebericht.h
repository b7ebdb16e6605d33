#pragma once

#include "core/Lesestelle.h"

// The texts a load shows.

/// Box of a row with a wrong number of fields.
void FeldwarnungZeigen(const Feldwarnung& Warnung);

/// Report of a damaged file, by its lead line, path and place.
QString Schadensbericht(const QString& Leitzeile, const QString& Pfad, const Lesestelle& Stelle);

/// Refusal of a version that this program does not read.
QString Versionsbericht(const QString& Version);

/// Fehlermeldung for reports whose work goes on: the message is shown, and a log that cannot be written stops
/// nothing.
void Berichten(const QString& Meldung);
