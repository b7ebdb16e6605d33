#pragma once

#include <QString>

#include <functional>

// Saving the grade book with the user at hand: what the file commands share.

/// Writes the open grade book to a path; throws a Laufzeitfehler (core/Datenbankdatei.h).
using Schreiber = std::function<void(const QString& Pfad)>;

/// Writes to Pfad. A failure is told; the user may then try again, or choose another file, which gets format
/// 3.0. True if the grade book is saved; otherwise it counts as changed still.
bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben);
