#pragma once

// "Tafelquell.ini" in the program's directory: the three distribution tables and the names of tests by class
// level.

/// Reads the file; called once at start. A wrong header shows a box and leaves the tables as they are. A
/// missing or unreadable file throws a Laufzeitfehler.
void LadeParameter();

/// Writes the whole file. A failure throws a Laufzeitfehler; the old file then stands, or its rescue copy is
/// named.
void SpeichereParameter();
