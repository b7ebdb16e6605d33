#pragma once

#include <QString>

#include <functional>

// Saving with the user at hand: what the file commands share.

/// Writes the open grade book to a path; throws a Laufzeitfehler (core/Datenbankdatei.h).
using Schreiber = std::function<void(const QString& Pfad)>;

/// True if Pfad is free, or the user lets the file there be replaced.
bool UeberschreibenErlaubt(const QString& Pfad);

/// Writes to Pfad and reports a failure. Where the file was destroyed already, the user may try again, or
/// choose another file for format 3.0. True if the grade book is saved; otherwise it counts as changed still.
bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben);
