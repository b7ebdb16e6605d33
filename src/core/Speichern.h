#pragma once

#include "core/Meldungen.h"

#include <QString>

#include <functional>

// Saving with the user at hand: what the file commands share.

/// Writes a document to a path; throws a Schreibfehler or another Laufzeitfehler (core/Datenbankdatei.h).
using Schreiber = std::function<void(const QString& Pfad)>;

/// How a document is saved under another name, after its own file was destroyed.
struct Ausweichweg {
    QString Meldung;                     ///< title of the box that asks: what is not saved
    std::function<QString()> PfadFragen; ///< a path of the user's choice; empty if there is none
    Schreiber Schreiben;                 ///< for that path
};

/// True if Pfad is free, or the user lets the file there be replaced.
bool UeberschreibenErlaubt(const QString& Pfad);

/// The save dialog with that question: a path, or nothing.
QString SpeicherpfadFragen(const Dateifilter& Filter, const QString& Vorgabe);

/// Writes to Pfad and reports a failure. Where the file was destroyed already, the user may try again, or
/// choose another file. True if the document is saved; otherwise it counts as changed still.
bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben, const Ausweichweg& Anderswo);

/// The same for the grade book; its way out is format 3.0.
bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben);
