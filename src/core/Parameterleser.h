#pragma once

#include <QByteArray>
#include <QString>

/// Reads the bytes of a parameter file into the distribution tables and the names of tests. On a refused
/// first line the text to show comes back, and nothing has changed; an empty text is success. Rows and fields
/// that have no place are dropped, what is no number is 0.
QString ParameterLesen(const QByteArray& Bytes);

/// The bytes of the parameter file from memory.
QByteArray ParameterBytes();
