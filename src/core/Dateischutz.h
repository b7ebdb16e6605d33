#pragma once

#include "core/Dateifehler.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Every file of the program is read and written here, so that none is ever lost: the new content stands as a
// rescue copy in the state folder, synced, before the old one is destroyed; the target is opened without
// truncating, then truncated in place, written, synced and read back. Nothing is renamed over it: symbolic
// links are followed, hard links, owner and rights stay.

/// Call first in the program: a file size limit or a closed pipe is then an ordinary failure of the call, and
/// not the end of the program in the middle of a write.
void DateischutzVorbereiten();

/// Reads a whole file. Nothing on failure, and *Fehler tells why; *Gelesen then holds the bytes read before
/// an I/O error.
std::optional<QByteArray> DateiLesen(const QString& Pfad, Dateifehler* Fehler, QByteArray* Gelesen = nullptr);

/// Writes Inhalt to Pfad by the protocol. Nothing on success. On failure before the target was truncated it
/// is untouched and no rescue copy stays; on a later failure the rescue copy stays and Dateifehler names it.
/// Never throws once the target is touched.
std::optional<Dateifehler> DateiSchreiben(const QString& Pfad, const QByteArray& Inhalt);
