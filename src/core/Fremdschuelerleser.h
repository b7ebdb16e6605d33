#pragma once

#include "core/Lesestelle.h"

#include <QByteArray>

/// Reads only the students of a grade book file into FremdSchueler, without their assessments. Ganz and
/// Warnen as for DatenbankLesen. If the first line is refused nothing has changed; if reading fails
/// FremdSchueler is empty.
Leseergebnis FremdSchuelerLesen(const QByteArray& Bytes, bool Ganz, const Feldwarner& Warnen);
