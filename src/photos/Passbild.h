#pragma once

#include <QString>

struct Schueler;

// Photos are plain files in a folder tree beside the grade book:
// "Passbilder/2003-04/<class>/<name>.bmp". Two students of one name in one class share one file.

/// Path of the photo of a student under this name, whether or not the file exists. Empty if there can be
/// none: the grade book has no file yet, the setting AutoLaden is off, or year, class or name hold a
/// separator or
/// "..", which would lead out of the folder.
QString PassbildPfad(const Schueler& Einer, const QString& Name);

/// Renames the photo of the student at this place in Datenbank.Schueler, before his name changes. Nothing
/// happens for a place not above 0, without a photo, or if the new name has one already: a failure harms
/// nobody.
void PassbildUmbenennen(int Index, const QString& NeuerName);
