#include "core/Orte.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString Parameterdatei = QStringLiteral("Tafelquell.ini");
const QStringList Lieferdateien{Parameterdatei, QStringLiteral("Formulierungen.txt")};
const QString Eigenname = QStringLiteral("tafelquell");

QString GesetztesProgrammverzeichnis;
QString GesetztesZustandsverzeichnis;
QString GefundenesProgrammverzeichnis;

/// A base folder of the desktop's standard: what the variable names if that is absolute, else the folder of
/// that name in the user's home.
QString Basisordner(const char* Variable, const QString& ImHeim) {
    const QString Genannt = qEnvironmentVariable(Variable);
    return QDir::isAbsolutePath(Genannt) ? QDir::cleanPath(Genannt) : QDir::homePath() + u'/' + ImHeim;
}

/// Makes the folder, for the user alone, if it is missing.
QString Bereitgestellt(const QString& Ordner) {
    const QFileInfo Eintrag(Ordner);
    if (!Eintrag.exists()) {
        QDir().mkpath(Eintrag.path());
        QDir().mkdir(Ordner, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return Ordner;
}

/// Copies what is missing; the copies are writable, whatever the originals are.
void LieferdateienKopieren(const QString& Quelle, const QString& Ziel) {
    if (Quelle.isEmpty())
        return;
    for (const QString& Name : Lieferdateien) {
        const QString Kopie = Ziel + u'/' + Name;
        if (QFile::copy(Quelle + u'/' + Name, Kopie))
            QFile::setPermissions(Kopie, QFile::ReadOwner | QFile::WriteOwner);
    }
}

} // namespace

QString ProgrammverzeichnisAus(const QString& Programmordner, const QString& Datenordner,
                               const QString& Lieferordner) {
    if (QFileInfo::exists(Programmordner + u'/' + Parameterdatei) && QFileInfo(Programmordner).isWritable())
        return Programmordner;
    LieferdateienKopieren(Lieferordner, Bereitgestellt(Datenordner));
    return Datenordner;
}

QString Programmverzeichnis() {
    if (!GesetztesProgrammverzeichnis.isEmpty())
        return GesetztesProgrammverzeichnis;
    if (GefundenesProgrammverzeichnis.isEmpty())
        GefundenesProgrammverzeichnis = ProgrammverzeichnisAus(
            QCoreApplication::applicationDirPath(),
            Basisordner("XDG_DATA_HOME", QStringLiteral(".local/share")) + u'/' + Eigenname,
            Lieferverzeichnis());
    return GefundenesProgrammverzeichnis;
}

QString Lieferverzeichnis() {
    const QString Programmordner = QCoreApplication::applicationDirPath();
    const QString Installiert = QDir::cleanPath(Programmordner + QStringLiteral("/../share/") + Eigenname);
    if (QFileInfo(Installiert).isDir())
        return Installiert;
    // Only a program inside the build tree may look for the sources it was made from.
    const QString Bauordner = QStringLiteral(TAFELQUELL_BAUORDNER "/");
    const QString Quellen = QStringLiteral(TAFELQUELL_QUELLDATEN);
    return Programmordner.startsWith(Bauordner) && QFileInfo(Quellen).isDir() ? Quellen : QString();
}

QString Zustandsverzeichnis() {
    if (!GesetztesZustandsverzeichnis.isEmpty())
        return Bereitgestellt(GesetztesZustandsverzeichnis);
    return Bereitgestellt(Basisordner("XDG_STATE_HOME", QStringLiteral(".local/state")) + u'/' + Eigenname);
}

void ProgrammverzeichnisSetzen(const QString& Pfad) {
    GesetztesProgrammverzeichnis = Pfad;
    GefundenesProgrammverzeichnis.clear();
}

void ZustandsverzeichnisSetzen(const QString& Pfad) {
    GesetztesZustandsverzeichnis = Pfad;
}
