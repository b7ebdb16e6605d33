#pragma once

#include <QString>

// General procedures.

/// The text as a single under the locale's number rules; what is no number is 0.
float ZahlAusText(const QString& Text);

/// The text as a 16-bit whole number, fractions rounded with ties to the even neighbour ("3,7" is 4); what is
/// no number, or does not fit into 16 bits, is 0.
qint16 GanzzahlAusText(const QString& Text);

/// Every tab becomes a blank, in place: a tab separates fields in the files. Returns the text.
QString& TabsErsetzen(QString& Text);

/// The text without the blanks before and behind it. Other spaces, such as no-break spaces, belong to it.
QString OhneRandblanks(const QString& Text);

/// What stands behind the last "\" or "/" of a path; the whole text if there is none.
QString DateiName(const QString& Pfad);

bool DateiExistiert(const QString& Pfad);

/// Shows the message in a box with OK, then appends it with date and time to "Fehlermeldungen.txt" in the
/// program's directory. A log that cannot be written throws a Laufzeitfehler after the message was shown.
void Fehlermeldung(const QString& Meldung);

/// The log alone, without the box.
void Protokollieren(const QString& Meldung);
