#pragma once

#include <QByteArray>
#include <QString>

// What must hold for any bytes, however damaged. The fuzz targets and the replay of their corpus call these;
// the answer is empty, or says what does not hold. A crash, a leak or a hang is a failure by itself.

/// Reads the bytes as a grade book. If they load, what is written from memory loads without a warning, leaves
/// nothing out, and gives the same bytes again.
QString DatenbankRundreise(const QByteArray& Bytes);

/// Reads the students of the bytes, and checks that a failure left none behind.
QString FremdschuelerRundreise(const QByteArray& Bytes);

/// Reads the bytes as a parameter file. If they are taken, what is written from memory gives the same again.
QString ParameterRundreise(const QByteArray& Bytes);

/// Reads the bytes as a phrase file, added to what some of the bytes before them gave. However it ends, the
/// bounds of the store hold. If all is taken, what is written from memory gives the same again.
QString FormulierungenRundreise(const QByteArray& Bytes);
