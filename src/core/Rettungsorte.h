#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// Where rescue copies lie. The first choice is the state folder, which outlives everything but the disc.
// Where it gives no room, a folder below $XDG_RUNTIME_DIR serves: it lies in memory, so a copy in it outlives
// a crash of the program, but neither a power failure nor the end of the session.

/// The state folder as the file system spells it.
QByteArray Rettungsordner();

/// All folders that may hold rescue copies, in the order in which they are tried. $XDG_RUNTIME_DIR counts
/// only if it is an absolute path of a folder that is there, belongs to the user and is closed to all others.
QList<QByteArray> AlleRettungsordner();

/// Whether the next folder is to be tried after this failure: there is no room, no right or no folder. A disc
/// that fails in another way is no reason to trust the rest of the system with a save.
bool AusweichenHilft(int Fehlernummer);

/// Whether the copy at this path is lost with the session.
bool IstFluechtig(const QByteArray& Pfad);
/// What the user must know of the copy at this path, as a sentence behind a line end; empty if nothing.
QString Fluechtigkeitshinweis(const QByteArray& Pfad);

/// Notes that the state folder gave no room, for this reason, and that Ordner was taken instead.
void AusweichenMerken(const QByteArray& Ordner, int Fehlernummer);
/// What was noted, as a text for the user. Once in a run of the program; empty before and after.
QString AusweichhinweisAbholen();
/// Shows it, if there is any.
void AusweichhinweisZeigen();
/// For tests: a run begins.
void AusweichhinweisVergessen();
