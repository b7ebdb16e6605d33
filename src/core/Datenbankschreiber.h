#pragma once

#include <QByteArray>

/// The bytes of a grade book file from Datenbank. Version is '3', or '2' for the older format without
/// assessments. A character that the code page lacks throws a Laufzeitfehler.
QByteArray DatenbankBytes(char Version = '3');
