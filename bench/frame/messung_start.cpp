#include "common/Messung.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

// Start to the first painted window, without a file, against a bare main window: cold processes, on the
// offscreen platform and, where Xvfb is installed, on a virtual X screen.

namespace {

constexpr auto Eigen = TAFELQUELL_PROGRAMM;
constexpr auto Referenz = BENCHORDNER "/kalt_fenster";

/// A profile that has seen its first start, so that no notice waits for an answer.
void ProfilAnlegen(const QTemporaryDir& Ordner) {
    for (const char* Name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        const QString Pfad = Ordner.filePath(QString::fromLatin1(Name).toLower());
        QDir().mkpath(Pfad);
        qputenv(Name, Pfad.toLocal8Bit());
    }
    const QString Einstellungen = Ordner.filePath(QStringLiteral("xdg_config_home/Tafelquell"));
    QDir().mkpath(Einstellungen);
    QFile Datei(Einstellungen + QStringLiteral("/Tafelquell.conf"));
    if (!Datei.open(QIODevice::WriteOnly) || Datei.write("[Settings]\nErstesMal=nein\n") < 0)
        qFatal("kein Profil in %s", qPrintable(Einstellungen));
}

double Start(const char* Programm) {
    return Dauer([Programm] {
        QProcess Prozess;
        Prozess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        Prozess.setStandardErrorFile(QProcess::nullDevice());
        QProcessEnvironment Umgebung = QProcessEnvironment::systemEnvironment();
        Umgebung.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(ERSTES_BILD));
        Prozess.setProcessEnvironment(Umgebung);
        Prozess.start(QString::fromUtf8(Programm), QStringList());
        if (!Prozess.waitForFinished(30000) || Prozess.exitCode() != 0)
            qFatal("%s: kein Fenster", Programm);
    });
}

void Messen(const QString& Plattform, double Ziel, double Grenze) {
    const Messreihe Reihe = Vergleichen([] { return Start(Eigen); }, [] { return Start(Referenz); });
    Zeile(QStringLiteral("start to first painted window, ") + Plattform, Reihe.Verhaeltnis(), Ziel, Grenze);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 1)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 1));
}

/// Measures on a virtual screen of its own.
void MessenUnterXvfb() {
    const QString Xvfb = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (Xvfb.isEmpty()) {
        Anmerkung(QStringLiteral("kein Xvfb: der Start auf X ist nicht gemessen"));
        return;
    }
    QProcess Bildschirm;
    Bildschirm.setStandardErrorFile(QProcess::nullDevice());
    // The server finds a free number by itself and tells it when it is ready.
    Bildschirm.start(Xvfb, {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                            QStringLiteral("0"), QStringLiteral("1280x1024x24")});
    if (!Bildschirm.waitForReadyRead(10000))
        qFatal("Xvfb startet nicht");
    qputenv("DISPLAY", ":" + Bildschirm.readAllStandardOutput().trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    Messen(QStringLiteral("xcb under Xvfb"), 1.4, 1.8);
    Bildschirm.terminate();
    Bildschirm.waitForFinished();
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication Programm(argc, argv);
    const QTemporaryDir Ordner;
    ProfilAnlegen(Ordner);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Messen(QStringLiteral("offscreen"), 2.0, 3.0);
    MessenUnterXvfb();
    return 0;
}
