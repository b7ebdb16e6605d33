#include "common/Grossbuch.h"
#include "common/Messung.h"

#include "core/Datenbankdatei.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

// Load of the book in cold processes, at a quarter, half and all of the bounds, and the memory it takes.

namespace {

struct Lauf {
    double Sekunden = 0;
    double Bytes = 0;
};

Lauf Laden(const QString& Art, const QString& Pfad) {
    QProcess Prozess;
    Prozess.start(QStringLiteral(BENCHORDNER "/kalt_laden"), {Art, Pfad});
    if (!Prozess.waitForFinished(-1) || Prozess.exitCode() != 0)
        qFatal("kalt_laden %s %s: %d", qPrintable(Art), qPrintable(Pfad), Prozess.exitCode());
    const QList<QByteArray> Teile = Prozess.readAllStandardOutput().trimmed().split(' ');
    return {Teile.value(0).toDouble(), Teile.value(1).toDouble()};
}

QString BuchSchreiben(const QTemporaryDir& Ordner, int Viertel) {
    GrossbuchFuellen(Viertel);
    const QString Pfad = Ordner.filePath(QStringLiteral("buch%1.txt").arg(Viertel));
    QFile Datei(Pfad);
    const QByteArray Bytes = DatenbankBytes();
    if (!Datei.open(QIODevice::WriteOnly) || Datei.write(Bytes) != Bytes.size())
        qFatal("nicht geschrieben: %s", qPrintable(Pfad));
    return Pfad;
}

struct Ergebnis {
    double Sekunden = 0; ///< median of our side
    double Groesse = 0;  ///< bytes of the file
};

Ergebnis Messen(const QString& Name, const QString& Pfad, bool Voll) {
    std::vector<double> Speicher;
    const Messreihe Reihe = Vergleichen(
        [&] {
            const Lauf Einer = Laden(QStringLiteral("eigen"), Pfad);
            Speicher.push_back(Einer.Bytes);
            return Einer.Sekunden;
        },
        [&] { return Laden(QStringLiteral("referenz"), Pfad).Sekunden; });
    const double Groesse = static_cast<double>(QFileInfo(Pfad).size());
    Zeile(Name, Reihe.Verhaeltnis(), 0.45, 0.75);
    Anmerkung(QStringLiteral("%1 MB, %2 ms gegen %3 ms")
                  .arg(Groesse / 1e6, 0, 'f', 1)
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 1)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 1));
    if (Voll)
        Zeile(QStringLiteral("peak memory after loading all bounds / size of file"),
              Median(Speicher) / Groesse, 4, 6);
    return {Median(Reihe.Eigene), Groesse};
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Ordner;
    qputenv("XDG_CONFIG_HOME", Ordner.path().toLocal8Bit());
    const QCoreApplication Programm(argc, argv);
    const Ergebnis Eins =
        Messen(QStringLiteral("load 1x (a quarter of all bounds)"), BuchSchreiben(Ordner, 1), false);
    const Ergebnis Zwei = Messen(QStringLiteral("load 2x"), BuchSchreiben(Ordner, 2), false);
    const Ergebnis Vier = Messen(QStringLiteral("load 4x (all bounds)"), BuchSchreiben(Ordner, 4), true);
    Zeile(QStringLiteral("load: time 2x/1x over size 2x/1x"),
          Zwei.Sekunden / Eins.Sekunden / (Zwei.Groesse / Eins.Groesse), 1, 1.15);
    Zeile(QStringLiteral("load: time 4x/1x over size 4x/1x"),
          Vier.Sekunden / Eins.Sekunden / (Vier.Groesse / Eins.Groesse), 1, 1.15);
    return 0;
}
