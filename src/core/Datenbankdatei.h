#pragma once

#include <QString>

// The grade book file, formats 3.0 and 2.0: Windows-1252, CR LF, tab separated, sections in a fixed order.

/// Loads the file into Datenbank, replacing what is there. True on success. A row with a wrong number of
/// fields only warns. On failure all messages have been shown, and memory holds a new grade book (or, for a
/// failure in [Parameter], the rows read with default parameters; a refused first line leaves the records as
/// they are).
bool LadeDatenbank(const QString& Pfad);

/// Loads only the students of another grade book into FremdSchueler.
bool LadeFremdSchueler(const QString& Pfad);

/// Writes Datenbank to the file by the procedure that never loses one, stores the path as AutoDatei, clears
/// DatenGeaendert and sets the title. A failure throws a Laufzeitfehler with a German text; flag and settings
/// are then as before.
void SpeichernDatenbank3(const QString& Pfad);
/// The same in the older format without assessments.
void SpeichernDatenbank2(const QString& Pfad);

/// The bytes of the file. Version is '3' or '2'.
QByteArray DatenbankBytes(char Version = '3');
