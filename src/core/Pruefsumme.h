#pragma once

#include <QtGlobal>

/// CRC-32C of the bytes, continuing from Bisher (0 at the beginning). Guards against damage, not against
/// intent.
quint32 Pruefsumme(const char* Bytes, qsizetype Laenge, quint32 Bisher = 0);
