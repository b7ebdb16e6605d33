#pragma once

#include <QLocale>
#include <QString>

#include <optional>

// Numbers and the locale. The locale is the system's; where the system names none (C, POSIX) it is German.

/// The locale for numbers and dates; the only place that asks the system for it.
const QLocale& SystemSprache();
/// For tests: use this locale from now on; C becomes German here too.
void SystemSpracheSetzen(const QLocale& Sprache);

/// A text as a number under the locale: optional sign, digits, the locale's decimal sign, exponent; blanks
/// around it are ignored. Nothing for anything else: grouping signs, "inf", "nan", hexadecimal, an empty
/// text, one of more than 64 characters.
std::optional<double> ZahlLesen(const QString& Text);

/// A number as text: no grouping, no trailing zeros, the locale's decimal sign: "12,5", "12".
QString ZahlText(double Zahl);
QString ZahlText(float Zahl); ///< at most 7 digits
QString ZahlText(int Zahl);

/// Whole number nearest to Zahl, ties to the even neighbour: 2.5 gives 2, 3.5 gives 4. What does not fit
/// throws a Laufzeitfehler.
int Runden(double Zahl);

/// Format strings "0", "0.0" and "0.00": rounds half away from zero on the decimal digits shown, with the
/// locale's decimal sign: (2.25, "0.0") gives "2,3". Unlike Runden, and on purpose.
QString ZahlFormat(float Zahl, const QString& Format);

/// A truth value in the locale's language: "Wahr"/"Falsch" in German, else "True"/"False".
QString WahrheitText(bool Wert);
/// True exactly when the upper-case form is "WAHR" or "TRUE".
bool WahrheitLesen(const QString& Text);
