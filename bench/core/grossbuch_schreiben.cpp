#include "common/Grossbuch.h"

#include "core/Datenbankdatei.h"

#include <QCoreApplication>
#include <QFile>

// "grossbuch_schreiben FILE [QUARTERS]" writes the book at all bounds, or at so many quarters of them.

int main(int argc, char** argv) {
    const QCoreApplication Programm(argc, argv);
    const QStringList Argumente = QCoreApplication::arguments();
    GrossbuchFuellen(Argumente.value(2, QStringLiteral("4")).toInt());
    QFile Datei(Argumente.value(1));
    const QByteArray Bytes = DatenbankBytes();
    return Datei.open(QIODevice::WriteOnly) && Datei.write(Bytes) == Bytes.size() ? 0 : 1;
}
