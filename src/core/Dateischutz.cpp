#include "core/Dateischutz.h"

#include "core/Dateischreiber.h"
#include "core/Dateizugriff.h"
#include "core/NeuererStand.h"

#include <QFile>

#include <csignal>

#include <fcntl.h>

namespace {

Dateifehler Lesefehler(const QString& Pfad, int Nummer, const QString& Schritt) {
    return {
        FehlerArt(Nummer),
        Nummer,
        Schritt,
        QStringLiteral("Die Datei \"%1\" konnte nicht gelesen werden: %2.").arg(Pfad, FehlerUrsache(Nummer)),
        {},
        false};
}

/// Opens for reading what is a file: a folder or a device would give errors later, or no end.
int ZumLesenOeffnen(const QString& Pfad, Deskriptor* Datei) {
    const QByteArray Name = QFile::encodeName(Pfad);
    if (Name.isEmpty())
        return ENOENT;
    if (const int Fehler = DateiOeffnen(Name, O_RDONLY | O_NONBLOCK, Datei))
        return Fehler;
    struct stat Stand {};
    if (const int Fehler = DateiStand(*Datei, &Stand))
        return Fehler;
    if (S_ISDIR(Stand.st_mode))
        return EISDIR;
    return S_ISREG(Stand.st_mode) ? 0 : EINVAL;
}

} // namespace

void DateischutzVorbereiten() {
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

std::optional<QByteArray> DateiLesen(const QString& Pfad, Dateifehler* Fehler, QByteArray* Gelesen) {
    Deskriptor Datei;
    if (const int Nummer = ZumLesenOeffnen(Pfad, &Datei)) {
        *Fehler = Lesefehler(Pfad, Nummer, QStringLiteral("Öffnen"));
        return {};
    }
    QByteArray Inhalt;
    if (const int Nummer = GanzLesen(Datei, &Inhalt)) {
        *Fehler = Lesefehler(Pfad, Nummer, QStringLiteral("Lesen"));
        Fehler->Geoeffnet = true;
        if (Gelesen)
            *Gelesen = Inhalt;
        return {};
    }
    return Inhalt;
}

std::optional<Dateifehler> DateiSchreiben(const QString& Pfad, const QByteArray& Inhalt) {
    auto Fehler = Dateischreiber(Pfad, Inhalt).Schreiben();
    if (!Fehler)
        NeuererStandGespeichert(Pfad);
    return Fehler;
}
