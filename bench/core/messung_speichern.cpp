#include "common/Grossbuch.h"
#include "common/Messung.h"
#include "common/Referenzdatei.h"

#include "core/Dateizugriff.h"
#include "core/Datenbankdatei.h"
#include "core/Datenbankschreiber.h"
#include "core/Orte.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
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

/// The calls that keep a file safe, with the bytes ready and nothing looked at: rescue copy, its name,
/// target, away with the copy. No save that syncs as ours does can take less on this file system.
void NurDieAufrufe(const QByteArray& Ordner, const QByteArray& Inhalt) {
    const QByteArray Unfertig = Ordner + "/r.tmp";
    const QByteArray Fertig = Ordner + "/r.rescue";
    Deskriptor Ziel;
    Deskriptor Kopie;
    DateiOeffnen(Ordner + "/untergrenze.txt", O_RDWR | O_CREAT, &Ziel, 0600);
    DateiOeffnen(Unfertig, O_WRONLY | O_CREAT | O_EXCL, &Kopie, 0600);
    GanzSchreiben(Kopie, Inhalt);
    Synchronisieren(Kopie);
    DateiUmbenennen(Unfertig, Fertig);
    OrdnerSynchronisieren(Ordner);
    Aufrufe().Ftruncate(Ziel.Nummer(), 0);
    GanzSchreiben(Ziel, Inhalt);
    Synchronisieren(Ziel);
    Ziel.Schliessen();
    DateiLoeschen(Fertig);
    Kopie.Schliessen();
    OrdnerSynchronisieren(Ordner);
}

/// How far down the figure of one class can go at all.
void UntergrenzeMessen(const QString& Ordner) {
    const QByteArray Name = QFile::encodeName(Ordner);
    const QByteArray Inhalt = DatenbankBytes('3');
    const QString ReferenzPfad = Ordner + QStringLiteral("/referenz.txt");
    const Messreihe Reihe = Vergleichen([&] { return NachRuhe([&] { NurDieAufrufe(Name, Inhalt); }); },
                                        [&] { return NachRuhe([&] { ReferenzSpeichern(ReferenzPfad); }); });
    Anmerkung(QStringLiteral("the calls alone, bytes ready: %1 of the reference")
                  .arg(Reihe.Verhaeltnis(), 0, 'f', 3));
}

/// All sizes on one file system. A save of one class waits nearly only for the disc, which the reference does
/// not; so it is measured in memory too, where syncing costs nothing.
void AlleGroessen(const QString& Wo, const QTemporaryDir& Ordner) {
    ZustandsverzeichnisSetzen(Ordner.filePath(QStringLiteral("zustand")));
    KlassenbuchFuellen();
    Messen(QStringLiteral("save, one class, ") + Wo, Ordner.path(), 0.45, 0.6);
    UntergrenzeMessen(Ordner.path());
    std::vector<double> Zeiten;
    for (const int Viertel : {1, 2, 4}) {
        GrossbuchFuellen(Viertel);
        const QString Name = QStringLiteral("save %1x%2, %3")
                                 .arg(Viertel)
                                 .arg(Viertel == 4 ? QStringLiteral(" (all bounds)") : QString(), Wo);
        Zeiten.push_back(Messen(Name, Ordner.path(), 0.9, 1.2));
    }
    Zeile(QStringLiteral("save: time 2x/1x over size, ") + Wo, Zeiten[1] / Zeiten[0] / 2, 1, 1.15);
    Zeile(QStringLiteral("save: time 4x/1x over size, ") + Wo, Zeiten[2] / Zeiten[0] / 4, 1, 1.15);
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Platte;
    const QTemporaryDir ImSpeicher(QStringLiteral("/dev/shm/tafelquell-XXXXXX"));
    qputenv("XDG_CONFIG_HOME", Platte.path().toLocal8Bit());
    const QCoreApplication Programm(argc, argv);
    AlleGroessen(QStringLiteral("disc"), Platte);
    if (ImSpeicher.isValid())
        AlleGroessen(QStringLiteral("memory"), ImSpeicher);
    return 0;
}
