#include "common/Schlechtes.h"

#include <QString>
#include <QtGlobal>

QByteArray InUtf8(const QByteArray& Bytes) {
    return QString::fromLatin1(Bytes).toUtf8();
}

QByteArray InUtf8MitMarke(const QByteArray& Bytes) {
    return "\xEF\xBB\xBF" + InUtf8(Bytes);
}

QByteArray InUtf16(const QByteArray& Bytes) {
    QByteArray Ergebnis("\xFF\xFE");
    for (const char Zeichen : Bytes)
        Ergebnis.append(Zeichen).append('\0');
    return Ergebnis;
}

QByteArray MitEnden(const QByteArray& Bytes, const QByteArray& Ende) {
    return QByteArray(Bytes).replace("\r\n", Ende);
}

bool LangeFormGewuenscht() {
    return !qEnvironmentVariableIsEmpty("TAFELQUELL_LANG");
}
