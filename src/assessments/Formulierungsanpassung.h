#pragma once

#include <QString>

// A phrase is stored once, in its masculine form, with five asterisks for the name. These two fit it to a
// student and take back what was written for one. All substitution is plain replacement of text, row by row
// of one table; what that does to some words is the rule ("Phantasie " comes back as "Phantaihn ").

inline const QString Namensplatzhalter = QStringLiteral("*****");

/// The text of a stored line as shown for a student. The rules run over the whole line, so that the blank
/// behind the mark stands for the one in front of the first word; then mark and separator are cut off.
QString FormulierungAngepasst(const QString& Zeile, const QString& Name, bool Maennlich);

/// The stored form, without mark and separator, of a text written for a student. An empty name replaces
/// nothing.
QString FormulierungZurueck(const QString& Text, const QString& Name, bool Weiblich);

/// What stands behind the last blank of a name, trimmed: the first name of "Nachname Vorname".
QString VornameAus(const QString& Name);
