#pragma once

#include <QtGlobal>

/// Asks for large pages behind a big buffer that is about to be filled: its page faults would cost more than
/// the filling. Where the system has none, nothing happens.
void GrosseSeitenErbitten(char* Anfang, qsizetype Laenge);
