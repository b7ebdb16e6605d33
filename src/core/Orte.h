#pragma once

#include <QString>

/// The program's directory: the folder of the executable if it holds "Tafelquell.ini" and can be written (a
/// portable copy on a stick), else the per-user data folder, into which the delivered files are copied at the
/// first start. Without a trailing separator. The answer holds for the run.
QString Programmverzeichnis();

/// The rule behind it, over plain folders: the one of the executable, the one of the user's data and the one
/// of the delivered files ("" if there is none). An existing file is never replaced.
QString ProgrammverzeichnisAus(const QString& Programmordner, const QString& Datenordner,
                               const QString& Lieferordner);

/// Folder of the delivered files (../share/tafelquell beside the executable, or data/ of a build tree); empty
/// if there is none.
QString Lieferverzeichnis();

/// $XDG_STATE_HOME or ~/.local/state, then "tafelquell"; created with mode 0700. Rescue copies live there.
QString Zustandsverzeichnis();

/// For tests: use these folders from now on; an empty text goes back to the real one.
void ProgrammverzeichnisSetzen(const QString& Pfad);
void ZustandsverzeichnisSetzen(const QString& Pfad);
