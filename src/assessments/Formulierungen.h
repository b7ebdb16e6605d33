#pragma once

#include <QString>

// The phrase store as a document: its file commands, its save prompt, its backup. The current file is known
// by the setting "Formulierungen" alone, read anew by each command; "Unbenannt" means that there is none yet.
// Each command first takes the focus, so that a phrase being written is in the store. Failures are reported
// here; nothing throws.

/// Loads a phrase file, replacing the store, or adding the file's areas behind those there are. False after a
/// failure, which has been reported: replacing, the store then holds what could be read, and counts as
/// unchanged; the current file is still the old one. Adding marks the store as changed, whatever comes.
bool FormulierungenLaden(const QString& Pfad, bool Hinzufuegen);

/// Writes the store and makes the path the current file. False if it was not written; the store then still
/// counts as changed.
bool FormulierungenSpeichern(const QString& Pfad);

/// The save prompt: true if the caller may go on, false if the user cancelled or saving failed.
bool FormulierungenAbfrage();

/// Offers the backup of a phrase file and loads it on Ja; says nothing if there is none.
void FormulierungenWiederherstellen(const QString& Pfad);

void FormulierungenNeu();              ///< mnuFormulierungenNeu
void FormulierungenOeffnen();          ///< mnuFormulierungenOpen
void FormulierungenHinzufuegen();      ///< mnuFormulierungenHinzufuegen
bool FormulierungenSpeichern();        ///< mnuFormulierungenSave; true if saved
bool FormulierungenSpeichernUnter();   ///< mnuFormulierungenSaveAs; true if saved
void FormulierungenSicherheitskopie(); ///< mnuFormulierungenBackup
void FormulierungenWiederherstellen(); ///< mnuFormulierungenRestore: the current file

/// The load at the start of the program, with the restore after a failure. Without a current file: the one in
/// the program's directory.
void FormulierungenBeimStartLaden();
