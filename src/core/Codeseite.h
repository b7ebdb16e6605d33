#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

// Windows-1252. All 256 bytes map both ways (0x81, 0x8D, 0x8F, 0x90 and 0x9D to the C1 controls of the same
// number), so a file read and written is the same bytes.

QString AusCodeseite(const char* Bytes, qsizetype Anzahl);
QString AusCodeseite(const QByteArray& Bytes);

/// Writes Text to Ziel, which has room for as many bytes as Text has characters. A character without a byte
/// throws a Laufzeitfehler: boxes and imports keep such characters out.
void InCodeseite(QStringView Text, char* Ziel);
QByteArray InCodeseite(const QString& Text);

/// True if the character has a byte.
bool InCodeseiteVorhanden(QChar Zeichen);

/// The text with composed letters (NFC) and without the characters that have no byte; Entfallen counts these.
QString CodeseiteBereinigt(const QString& Text, int* Entfallen = nullptr);
