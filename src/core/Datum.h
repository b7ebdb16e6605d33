#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// Dates as teachers type them. Qt's short format reads 2003 as 1903 and refuses "24.02.", so this is our own.

/// Day, month and maybe year in the order of the locale, separated by one or more of ". / -" or blanks, a
/// trailing separator allowed; a year of two digits below 30 counts as 20xx, else 19xx; no year: Vorgabejahr.
/// Four digits at the front are a year, whatever the locale ("2003-10-12"). Where the locale's order gives no
/// date, day and month are tried the other way round. Nothing if it is no date.
std::optional<QDate> DatumLesen(const QString& Text, int Vorgabejahr);

/// Order and separators of the locale's short form, two-digit day and month where the locale has them,
/// four-digit year: 12.10.2003.
QString DatumKurz(const QDate& Datum);

/// Time of day in the locale's short form.
QString ZeitKurz(const QTime& Zeit);

/// The school year of a day: "2003/04"; it changes on 15 August.
QString Schuljahr(const QDate& Tag);

inline constexpr int ErstesSchuljahr = 1995;
inline constexpr int LetztesSchuljahr = 2029;
/// The school year that begins in a calendar year: 1999 gives "1999/00".
QString SchuljahrAb(int Jahr);

/// True for the 35 years "1995/96" to "2029/30" that the list of school years offers.
bool IstSchuljahr(const QString& Jahr);
