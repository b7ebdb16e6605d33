#pragma once

#include "core/Lesestelle.h"

#include <QByteArray>

/// Reads the bytes of a grade book file into Datenbank, both formats, and checks the parameters. Ganz false:
/// the bytes end where the file could not be read further; reading then fails behind the last whole line.
/// Shows nothing and touches no file: Warnen is called for each row with a wrong number of fields. If the
/// first line is refused, nothing in memory has changed.
Leseergebnis DatenbankLesen(const QByteArray& Bytes, bool Ganz, const Feldwarner& Warnen);
