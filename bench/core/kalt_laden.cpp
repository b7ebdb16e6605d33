#include "common/Messung.h"
#include "common/Referenzdatei.h"

#include "core/Datenbankdatei.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

// One process that loads one file: "kalt_laden eigen FILE" or "kalt_laden referenz FILE". Prints the seconds
// of the load and the highest memory of the process in bytes.

namespace {

/// Highest memory of this process in bytes. The system's other figure, ru_maxrss, still holds that of the
/// process it was forked from.
double Hoechststand() {
    QFile Stand(QStringLiteral("/proc/self/status"));
    if (!Stand.open(QIODevice::ReadOnly))
        qFatal("/proc/self/status: %s", qPrintable(Stand.errorString()));
    for (const QByteArray& Zeile : Stand.readAll().split('\n'))
        if (Zeile.startsWith("VmHWM:"))
            return Zeile.mid(6).trimmed().split(' ').first().toDouble() * 1024;
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication Programm(argc, argv);
    const QStringList Argumente = QCoreApplication::arguments();
    const QString Pfad = Argumente.value(2);
    const bool Eigen = Argumente.value(1) == QStringLiteral("eigen");
    bool Geladen = true;
    const double Sekunden = Dauer([&] {
        if (Eigen)
            Geladen = LadeDatenbank(Pfad);
        else
            ReferenzLaden(Pfad);
    });
    std::printf("%.6f %.0f\n", Sekunden, Hoechststand());
    return Geladen ? 0 : 1;
}
