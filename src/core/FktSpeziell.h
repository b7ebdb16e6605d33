#pragma once

#include "core/Reihe.h"

#include <QHash>
#include <QString>

// Procedures of this application that several views stand on: look-ups, grade texts, class names.

/// Index in Datenbank.Faecher of the first subject with this ID; -1 if none.
qint16 FachIndex(qint32 ID);
/// Index in Datenbank.Schueler of the first student with this ID; -1 if none.
qint16 SchuelerIndex(qint32 ID);
/// Index in Datenbank.Noten of the first row with both IDs; -1 if none.
qint16 NotenIndex(qint32 Schueler_ID, qint32 Fach_ID);
/// What NotenIndex gives for each student that has a row in the subject, for a run over many of them.
QHash<qint32, int> ErsteNotenzeilen(qint32 Fach_ID);

/// The first run of digits of a text, at most two of them, as a number: 10 for "b10a"; 0 without a digit.
qint16 ErsteZahl(const QString& Text);

/// The worth of a grade text: "2" is 2, "3-" is 3 or, with GrenznotenBeruecksichtigen, 3 +
/// GrenznotenNotenAbstand; "ne", "" and other texts are 0. The number before the sign is held between 0
/// and 6. 0 or below means no grade.
float NoteAlsZahl(const QString& Note);

/// "Nachname Vorname" to "Vorname Nachname" and back, by NamenUmgekehrt: splits at the last blank, or at the
/// first one when the names are turned already.
QString NameDrehen(const QString& Name);

/// The single classes of a subject's class field, last letter first, ended by an empty text: "3bc" gives
/// "3c", "3b", "". Written by KlassenTrennen.
extern Reihe<QString, 11> KlassenTeile;

/// Splits a class field ("3bc", "A1ab"), or what stands before the first blank of a longer text, into
/// KlassenTeile. More than 10 letters throw a Laufzeitfehler.
void KlassenTrennen(const QString& Klassenfeld);
