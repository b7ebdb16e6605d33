#pragma once

#include <QString>

// The references that load and save are measured against: the plain way with QTextStream, unchecked, without
// syncing. They stay as they are.

void ReferenzLaden(const QString& Pfad);
void ReferenzSpeichern(const QString& Pfad);
