#pragma once

#include <QString>

// A grade typed into a grade list becomes part of its record. Both give true if the text differed and is now
// stored; DatenGeaendert is set then. A pair of IDs without a row of grades changes nothing.

/// Grade Nummer 1..30. A test (1..20) with a grade typed by hand has negative points, -0.1 where there were
/// none; with the grade the points go too.
bool NoteEintragen(qint32 Schueler_ID, qint32 Fach_ID, int Nummer, const QString& Note);

/// Report grade, of the first half-year or of the end of the year.
bool ZeugnisnoteEintragen(qint32 Schueler_ID, qint32 Fach_ID, bool Halbjahr, const QString& Note);
