#include "core/Rettungsablage.h"

#include "core/Rettungskopie.h"
#include "core/Uhr.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// What the target holds now. A target that is not there, or gives nothing, leaves the head as it is.
void StandFesthalten(Rettungskopf* Kopf) {
    Deskriptor Ziel;
    struct stat Stand {};
    if (EchterPfad(Kopf->Ziel, &Kopf->Ziel) != 0 ||
        DateiOeffnen(Kopf->Ziel, O_RDONLY | O_NONBLOCK, &Ziel) != 0 || DateiStand(Ziel, &Stand) != 0)
        return;
    Kopf->Geraet = Stand.st_dev;
    Kopf->Inode = Stand.st_ino;
    if (MarkeLesen(Ziel, &Kopf->Vorher) != 0)
        Kopf->Vorher = {};
}

} // namespace

int UngespeichertesRetten(const QString& Pfad, const QByteArray& Inhalt) {
    Rettungskopf Kopf;
    Kopf.Ziel = QFile::encodeName(QDir::home().absoluteFilePath(Pfad));
    StandFesthalten(&Kopf);
    Kopf.Inhalt = MarkeVon(Inhalt);
    Kopf.Zeit = Jetzt();
    Kopf.Rechner = QSysInfo::machineHostName().toUtf8();
    Kopf.Prozess = getpid();
    Rettungskopie Neue;
    return RettungAnlegen(Kopf, Inhalt, &Neue);
}
