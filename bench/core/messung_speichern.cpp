#include "common/Grossbuch.h"
#include "common/Messung.h"
#include "common/Referenzdatei.h"

#include "core/Datenbankdatei.h"
#include "core/Orte.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <unistd.h>

// Save by the full procedure, rescue copy and syncing included, against an unsafe one.

namespace {

/// The disc has nothing left of other rounds to write when a round begins.
double NachRuhe(const std::function<void()>& Tun) {
    sync();
    return Dauer(Tun);
}

double Messen(const QString& Name, const QString& Ordner, double Ziel, double Grenze) {
    const QString Pfad = Ordner + QStringLiteral("/eigen.txt");
    const QString ReferenzPfad = Ordner + QStringLiteral("/referenz.txt");
    const Messreihe Reihe = Vergleichen([&] { return NachRuhe([&] { SpeichernDatenbank3(Pfad); }); },
                                        [&] { return NachRuhe([&] { ReferenzSpeichern(ReferenzPfad); }); });
    Zeile(Name, Reihe.Verhaeltnis(), Ziel, Grenze);
    const double Eigene = Median(Reihe.Eigene);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Eigene * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
    return Eigene;
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Temp;
    qputenv("XDG_CONFIG_HOME", Temp.path().toLocal8Bit());
    const QCoreApplication Programm(argc, argv);
    ZustandsverzeichnisSetzen(Temp.filePath(QStringLiteral("zustand")));

    KlassenbuchFuellen();
    Messen(QStringLiteral("save, one class"), Temp.path(), 0.45, 0.6);
    std::vector<double> Zeiten;
    for (const int Viertel : {1, 2, 4}) {
        GrossbuchFuellen(Viertel);
        const QString Name =
            Viertel == 4 ? QStringLiteral("save 4x (all bounds)") : QStringLiteral("save %1x").arg(Viertel);
        Zeiten.push_back(Messen(Name, Temp.path(), 0.9, 1.2));
    }
    Zeile(QStringLiteral("save: time 2x/1x over size"), Zeiten[1] / Zeiten[0] / 2, 1, 1.15);
    Zeile(QStringLiteral("save: time 4x/1x over size"), Zeiten[2] / Zeiten[0] / 4, 1, 1.15);
    return 0;
}
