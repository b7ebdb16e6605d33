#pragma once

#include <QString>

#include <functional>
#include <optional>

// Backup and restore, the same for both documents of the program, the grade book and the phrase store.

/// The path with its last four characters replaced: "klasse.txt" and ".bak" give "klasse.bak".
QString MitEndung(const QString& Pfad, const QString& Endung);

/// The backup command on the document at Pfad: copies it over its ".bak" and shows Erfolg. A document without
/// a file ("Unbenannt", or a path shorter than 5 characters) has to be saved first, and the user is told so.
void SicherheitskopieAnlegen(const QString& Pfad, const QString& Erfolg);

/// The first half of a restore: offers the backup of the document at Pfad, and on Ja copies the document to
/// its "_err.txt" and the backup over it. Frage makes the question from the date and time of the backup.
/// Nothing, without a word, if there is no backup or the path has less than 5 characters, and nothing on
/// Nein. Else the reason why it failed, empty if it did not: without the second copy the first is not given
/// up.
std::optional<QString> SicherheitskopieZurueckholen(const QString& Pfad,
                                                    const std::function<QString(const QString&)>& Frage);
