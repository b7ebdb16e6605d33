#include "frame/Programmname.h"

QString VersionsText() {
    return QStringLiteral("Version " TAFELQUELL_VERSION);
}
