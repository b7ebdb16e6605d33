#pragma once

#include <QStringList>

/// The classes of a subject's class field, or of what stands before the first blank of a longer text, each
/// once, last letter first: "3bc" gives "3c", "3b". More than 10 letters throw a Laufzeitfehler.
QStringList KlassenDesFelds(const QString& Klassenfeld);

/// True if the class is one of those the field names. A field with another stem is not split, so it cannot
/// fail.
bool FeldNenntKlasse(const QString& Klassenfeld, const QString& Klasse);
