#pragma once

#include "core/AutoDatei.h"
#include "core/Parametervorgaben.h"

#include <QString>

// The life of the open grade book: the file commands and the save prompt. Each command first takes the focus,
// so that an edit in progress commits. Failures are reported here; nothing throws.

/// The save prompt: true if the caller may go on, false if the user cancelled (or saving failed).
bool FrageSpeichern();
void NeueDatenbank();                                ///< mnuFileNew, mnuFileClose
void DatenbankOeffnen();                             ///< mnuFileOpen
void DatenbankOeffnen(const QString& Pfad);          ///< the same with a known file, such as one dropped
bool DatenbankSpeichern();                           ///< mnuFileSave; true if saved
bool DatenbankSpeichernUnter();                      ///< mnuFileSaveAs; true if saved
void SicherheitskopieErstellen();                    ///< mnuFileBackup
void DatenbankWiederherstellen(const QString& Pfad); ///< the restore; also the fallback of a failed load
