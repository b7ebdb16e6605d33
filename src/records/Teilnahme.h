#pragma once

#include <QString>

#include <vector>

/// A student and the text that one of his columns shows.
struct Feldwert {
    qint32 Schueler_ID = 0;
    QString Text;
};

/// Sets the participation in a subject by the condition that a text equals Vergleich exactly, case and blanks
/// included: "ja" where it holds, "nein" where it does not. Gives the participation set for each value; empty
/// where the student has no row in the subject. Sets DatenGeaendert.
std::vector<QString> TeilnahmeNachBedingung(qint32 Fach_ID, const std::vector<Feldwert>& Werte,
                                            const QString& Vergleich);
