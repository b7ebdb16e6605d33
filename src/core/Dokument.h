#pragma once

#include <QString>

// The life of the open grade book: the file commands, the save prompt, defaults and repair of its parameters.
// Each command first takes the focus, so that an edit in progress commits. Failures of writing are reported
// here; nothing throws.

/// The save prompt: true if the caller may go on, false if the user cancelled (or saving failed).
bool FrageSpeichern();
void NeueDatenbank();
void DatenbankOeffnen();                             ///< mnuFileOpen
bool DatenbankSpeichern();                           ///< mnuFileSave; true if saved
bool DatenbankSpeichernUnter();                      ///< mnuFileSaveAs; true if saved
void SicherheitskopieErstellen();                    ///< mnuFileBackup
void DatenbankWiederherstellen(const QString& Pfad); ///< the restore; also the fallback of a failed load

void SetzeParameterDefaults();
void PruefeParameter();
/// Title from the setting AutoDatei: "Tafelquell 3.1 - klasse.txt".
void TitelAktualisieren();
