#pragma once

#include <QByteArray>
#include <QString>

/// What reading a parameter file came to.
struct Parameterbefund {
    QString Ablehnung; ///< the text to show if the first line is refused; empty if it was read
    int Entfallen = 0; ///< rows that have no place, and fields that should be numbers and are none
};

/// Reads the bytes of a parameter file into the distribution tables and the names of tests. If the first line
/// is refused nothing has changed. Rows and fields that have no place are dropped, what is no number is 0.
///
/// Numbers have the form of the system. A file in which all are written with the other decimal sign comes
/// from a system of another language, as the delivered one may, and is read in its own form.
Parameterbefund ParameterLesen(const QByteArray& Bytes);

/// The bytes of the parameter file from memory.
QByteArray ParameterBytes();
