#pragma once

#include <QString>

// A file that was read only in part must not be written over as if memory held all of it.

/// What the last load of a file found: it could not be read to its end, or so many of its lines and fields
/// have no place in memory.
void LadebefundMerken(const QString& Pfad, bool Lesefehler, int Entfallen);

/// To be called before Pfad is written. If its load failed with a read error this throws a Laufzeitfehler. If
/// lines of it were left out, its bytes are copied to the state folder first, and the path of the copy comes
/// back; a copy that fails throws. In all other cases nothing happens.
QString OriginalSichern(const QString& Pfad);
