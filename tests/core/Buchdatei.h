#pragma once

#include <QByteArray>
#include <QString>

// The small example file and damaged forms of it, for the tests of load and save.

/// The bytes of tests/data/klein.txt.
QByteArray Kleinbuch();

/// Bytes with the first place of Alt replaced; fatal if it does not occur. "\n" in both stands for CR LF, and
/// texts are Windows-1252.
QByteArray Ersetzt(const QByteArray& Bytes, const QString& Alt, const QString& Neu);

/// A file of format 3.0 made of lines; "\n" stands for CR LF.
QByteArray Buch(const QString& Zeilen);
