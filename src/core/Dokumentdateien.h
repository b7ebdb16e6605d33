#pragma once

#include "core/Dateifehler.h"

#include <QByteArray>
#include <QString>

#include <functional>

// What the two documents of the program, the grade book and the phrase store, do alike with their files:
// writing with an answer to a failure, the question before a file is replaced, backup and restore.

/// The path with its last four characters replaced: "klasse.txt" and ".bak" give "klasse.bak".
QString MitEndung(const QString& Pfad, const QString& Endung);

/// Asks before an existing file is replaced. True if it may be, or if there is none.
bool ErsetzenErlaubt(const QString& Pfad);

enum class Speicherausgang { Gespeichert, SpeichernUnter, Abgebrochen };

enum class Schreibweg { Nochmals, SpeichernUnter, Abbrechen };

/// Tells why a document could not be written, and where its rescue copy lies, with the ways on from here.
Schreibweg SchreibfehlerZeigen(const Dateifehler& Fehler);

/// Writes the file by the procedure that never loses one. A failure is told, with a choice: once more, under
/// another name (then the caller goes there), or not at all.
Speicherausgang DokumentSchreiben(const QString& Pfad, const QByteArray& Inhalt);

/// Copies a file. False, with the reason in *Grund, if that failed.
bool DateiKopieren(const QString& Von, const QString& Nach, QString* Grund);

/// The backup command on the document at Pfad: copies it over its ".bak" and shows Erfolg. A document without
/// a file ("Unbenannt", or a path shorter than 5 characters) has to be saved first, and the user is told so.
void SicherheitskopieAnlegen(const QString& Pfad, const QString& Erfolg);

/// The first half of a restore: offers the backup of the document at Pfad, and on Ja copies the document to
/// its "_err.txt" and the backup over it. A failure stops nothing, but *Grund tells of it; a document that
/// could not be copied stays as it is. Frage makes the question from the date and time of the backup. False,
/// without a word, if there is no backup or the path has less than 5 characters; false too on Nein.
bool SicherheitskopieZurueckholen(const QString& Pfad, const std::function<QString(const QString&)>& Frage,
                                  QString* Grund);

/// Before a file is overwritten by a document whose load had failed: keeps what stands in the file, as a copy
/// in the state folder, and tells the user where. Nothing to do if there is no file. False, with a message,
/// if the copy failed.
bool OriginalAufheben(const QString& Pfad);
