#include "common/Messung.h"

#include "assessments/Formulierungen.h"
#include "assessments/Formulierungsdatei.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

// Load of a phrase file of 99 areas with 200 phrases each, against QTextStream line by line into a list.

namespace {

QString DateiSchreiben(const QTemporaryDir& Ordner) {
    for (AnzLernbereiche = 0; AnzLernbereiche < MaxLernbereiche; ++AnzLernbereiche) {
        Lernbereich& Einer = Lernbereiche[AnzLernbereiche];
        Einer.Name = QStringLiteral("Lernbereich %1").arg(AnzLernbereiche + 1);
        for (Einer.Anzahl = 0; Einer.Anzahl < MaxFormulierungen; ++Einer.Anzahl)
            Einer.Formulierung[Einer.Anzahl] =
                QStringLiteral("o ***** löst Aufgabe %1 selbstständig und erklärt seinen Weg.")
                    .arg(Einer.Anzahl);
    }
    const QString Pfad = Ordner.filePath(QStringLiteral("formulierungen.txt"));
    QFile Datei(Pfad);
    if (!Datei.open(QIODevice::WriteOnly) ||
        Datei.write(FormulierungenBytes(Lernbereiche, AnzLernbereiche)) < 0)
        qFatal("nicht geschrieben: %s", qPrintable(Pfad));
    return Pfad;
}

/// The plain way: a stream, a line, a text.
void ReferenzLesen(const QString& Pfad) {
    QFile Datei(Pfad);
    if (!Datei.open(QIODevice::ReadOnly))
        qFatal("nicht gelesen: %s", qPrintable(Pfad));
    QTextStream Strom(&Datei);
    Strom.setEncoding(QStringConverter::Latin1);
    QStringList Zeilen;
    while (!Strom.atEnd())
        Zeilen.append(Strom.readLine());
    if (Zeilen.size() != 1 + 99 * 201)
        qFatal("%lld Zeilen", static_cast<long long>(Zeilen.size()));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Ordner;
    qputenv("XDG_CONFIG_HOME", Ordner.path().toLocal8Bit());
    const QCoreApplication Programm(argc, argv);
    const QString Pfad = DateiSchreiben(Ordner);
    const Messreihe Reihe = Vergleichen(
        [&Pfad] {
            return Dauer([&Pfad] {
                if (!FormulierungenLaden(Pfad, false))
                    qFatal("nicht geladen");
            });
        },
        [&Pfad] { return Dauer([&Pfad] { ReferenzLesen(Pfad); }); });
    Zeile(QStringLiteral("phrase file, 99 areas of 200: load"), Reihe.Verhaeltnis(), 0.45, 0.75);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
    return 0;
}
