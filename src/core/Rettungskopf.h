#pragma once

#include "core/Dateizugriff.h"

#include <QDateTime>

#include <optional>

// The head of a rescue copy: some lines of text, an empty line, and then the bytes of the file as they are,
// so that a text editor is enough to bring a file back by hand.

struct Rettungskopf {
    QByteArray Ziel;        ///< path of the file without symbolic links, as the file system spells it
    quint64 Geraet = 0;     ///< st_dev of the target
    quint64 Inode = 0;      ///< st_ino of the target
    Inhaltsmarke Inhalt;    ///< of the bytes behind the head
    bool NeueDatei = false; ///< the target was made by this save
    Inhaltsmarke Vorher;    ///< of what the target held before
    QDateTime Zeit;         ///< of the save, to the second; written as world time
    QByteArray Rechner;     ///< host name
    qint64 Prozess = 0;     ///< process id
    bool operator==(const Rettungskopf&) const = default;
};

/// The head as it stands in the file, its own checksum and the empty line included.
QByteArray RettungskopfBytes(const Rettungskopf& Kopf);

struct GelesenerKopf {
    Rettungskopf Kopf;
    qsizetype Ende = 0; ///< where the content begins
};

/// Reads the head at the beginning of Bytes. Nothing unless every line, the checksum of the head and the
/// bounds are right; the content is not looked at.
std::optional<GelesenerKopf> RettungskopfLesen(const QByteArray& Bytes);

/// Head and content of a rescue copy, if both are whole: length and checksum of the content fit the head.
struct Rettungsinhalt {
    Rettungskopf Kopf;
    QByteArray Inhalt;
};
std::optional<Rettungsinhalt> RettungsinhaltLesen(const QByteArray& Bytes);
