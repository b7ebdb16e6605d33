#pragma once

#include <QString>

// The questions before something is deleted. Each deletes on Ja and gives true if it has; a failure has been
// reported then. The caller refills.

bool KlasseLoeschenFragen(const QString& Name);
/// Bezeichnung is what the view shows of the subject.
bool FachLoeschenFragen(qint32 ID, const QString& Bezeichnung);
bool SchuelerLoeschenFragen(qint32 ID);
