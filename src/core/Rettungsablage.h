#pragma once

#include <QByteArray>
#include <QString>

/// Keeps a content that cannot be saved now, because nobody may be asked: it becomes a rescue copy of its
/// file, which stays untouched, and the next start offers it (where the state folder gave no room, only one
/// in the same session: core/Rettungsorte.h). Without a file yet (a path that is not absolute) it is offered
/// under that name in the home folder. 0, or errno; on failure nothing is kept.
int UngespeichertesRetten(const QString& Pfad, const QByteArray& Inhalt);
