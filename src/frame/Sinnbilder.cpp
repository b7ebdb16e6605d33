#include "frame/Sinnbilder.h"

QIcon Sinnbild(const QString& Name) {
    return QIcon(QStringLiteral(":/symbole/%1.png").arg(Name));
}
