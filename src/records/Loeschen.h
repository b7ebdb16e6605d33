#pragma once

#include <QString>

// How students, subjects and classes disappear, with all that hangs on them. Each procedure is whole or
// throws a Laufzeitfehler because the bound of ZSchueler is reached, and has then changed nothing. The rows
// that stay keep their order. DatenGeaendert is set at the end. Counters of IDs do not go back.

/// Deletes a student. His rows with Teilnahme "ja" go; each grade of a test in them that is a result (not
/// "ne", not "kr") stays in that test as a ZSchueler of his name, so that its statistics keep their numbers.
/// Rows with another Teilnahme stay behind on purpose. An ID that no student has changes nothing.
void SchuelerLoeschen(qint32 ID);

/// Deletes a subject with all its rows of grades and its ZSchueler. An ID that no subject has changes
/// nothing.
void FachLoeschen(qint32 ID);

/// Deletes a class of AktJahr: first each subject that names it, also together with other classes, then each
/// of its students, then the class.
void KlasseLoeschen(const QString& Name);
