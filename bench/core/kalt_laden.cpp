#include "common/Messung.h"
#include "common/Referenzdatei.h"

#include "core/Datenbankdatei.h"

#include <QCoreApplication>

#include <cstdio>

#include <sys/resource.h>

// One process that loads one file: "kalt_laden eigen FILE" or "kalt_laden referenz FILE". Prints the seconds
// of the load and the highest memory of the process in bytes.

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
    rusage Verbrauch{};
    getrusage(RUSAGE_SELF, &Verbrauch);
    std::printf("%.6f %.0f\n", Sekunden, static_cast<double>(Verbrauch.ru_maxrss) * 1024);
    return Geladen ? 0 : 1;
}
