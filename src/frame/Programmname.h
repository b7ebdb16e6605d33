#pragma once

#include <QString>

inline const QString Programmname = QStringLiteral("Tafelquell");

/// "Version 3.1.0".
QString VersionsText();
