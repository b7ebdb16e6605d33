#pragma once

#include "core/Dateischutz.h"
#include "core/Datenbankschreiber.h"
#include "core/Laufzeitfehler.h"

#include <QString>

// The grade book file, formats 3.0 and 2.0: Windows-1252, CR LF, tab separated, sections in a fixed order.

/// Loads the file into Datenbank, replacing what is there. True on success. A row with a wrong number of
/// fields only warns. On failure all messages have been shown, and memory holds a new grade book (or, for a
/// failure in [Parameter], the rows read with default parameters; a refused first line leaves the records as
/// they are). DatenGeaendert is false afterwards, unless what was loaded comes from a rescue copy and is in
/// no file yet (core/NeuererStand.h).
bool LadeDatenbank(const QString& Pfad);

/// Loads only the students of another grade book into FremdSchueler. True on success; on failure the message
/// has been shown and FremdSchueler is empty, or as it was if the first line was refused.
bool LadeFremdSchueler(const QString& Pfad);

/// A file could not be written: Fehler tells why and where the rescue copy lies, if there is one.
class Schreibfehler : public Laufzeitfehler {
  public:
    explicit Schreibfehler(Dateifehler Grund)
        : Laufzeitfehler(Grund.Text)
        , Fehler(std::move(Grund)) {}

    Dateifehler Fehler;
};

/// Writes Datenbank to the file by the procedure that never loses one, stores the path as AutoDatei, clears
/// DatenGeaendert and sets the title. A failure throws a Schreibfehler, or another Laufzeitfehler when
/// nothing was tried (a character without a byte, a file that was never read whole); flag, settings and title
/// are then as before. An assessment with a line that loading would take for a marker is written as it
/// stands; the user is told which one.
void SpeichernDatenbank3(const QString& Pfad);
/// The same in the older format without assessments.
void SpeichernDatenbank2(const QString& Pfad);
