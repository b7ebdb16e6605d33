#include "Buchdatei.h"

#include "core/Codeseite.h"

#include <QFile>

namespace {

QByteArray MitZeilenenden(QString Text) {
    return InCodeseite(Text.replace(u'\n', QStringLiteral("\r\n")));
}

} // namespace

QByteArray Kleinbuch() {
    QFile Datei(QStringLiteral(TESTDATEN "/klein.txt"));
    if (!Datei.open(QIODevice::ReadOnly))
        qFatal("klein.txt fehlt");
    return Datei.readAll();
}

QByteArray Ersetzt(const QByteArray& Bytes, const QString& Alt, const QString& Neu) {
    const QByteArray Gesucht = MitZeilenenden(Alt);
    const qsizetype Stelle = Bytes.indexOf(Gesucht);
    if (Stelle < 0)
        qFatal("kommt nicht vor: %s", qPrintable(Alt));
    QByteArray Ergebnis = Bytes;
    return Ergebnis.replace(Stelle, Gesucht.size(), MitZeilenenden(Neu));
}

QByteArray Buch(const QString& Zeilen) {
    return MitZeilenenden(QStringLiteral("[Tafelquell 3.0]\n") + Zeilen);
}
