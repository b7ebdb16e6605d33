#pragma once

#include "core/Rettungskopf.h"

#include <QList>

// The files r.N.rescue in the folders for rescue copies (core/Rettungsorte.h). Whoever writes or uses one
// holds a lock on it, so that a second running program leaves it alone; the lock ends with the process. No
// number is ever used twice, and nothing is written over an existing copy.

/// A rescue copy that this process has open and locked.
struct Rettungskopie {
    QByteArray Pfad;
    QByteArray Ordner; ///< of Pfad; kept, so that removing the copy needs no memory
    Deskriptor Datei;
};

/// Makes a complete rescue copy, durable before this returns, in the first folder that has room for it. On
/// failure nothing of it stays, and errno is that of the first folder.
int RettungAnlegen(const Rettungskopf& Kopf, const QByteArray& Inhalt, Rettungskopie* Neue);

/// Moves a copy that is lost with the session to the state folder: first the new one is complete there, then
/// the old one goes. On failure *Eine stays as it is.
int RettungHeimholen(const Rettungskopf& Kopf, const QByteArray& Inhalt, Rettungskopie* Eine);

/// Opens and locks an existing one. EWOULDBLOCK: another process is at work on it.
int RettungOeffnen(const QByteArray& Pfad, Rettungskopie* Gefundene);

/// Removes the copy, because its content stands safely elsewhere. It may come back after a power failure;
/// it then equals its target.
int RettungEntfernen(Rettungskopie* Erledigte);

/// Takes the copy out of what is offered, without losing it: it becomes r.N.<Endung>. *Neuer: its path.
int RettungBeiseiteLegen(Rettungskopie* Eine, const QByteArray& Endung, QByteArray* Neuer);

/// Paths of all rescue copies in all folders, the newest first; unfinished ones (r.N.tmp) too. A missing
/// folder holds none. If one cannot be read, its errno comes back, and *Unlesbar is its path; the others are
/// listed.
int RettungenAuflisten(QList<QByteArray>* Pfade, QByteArray* Unlesbar = nullptr);
