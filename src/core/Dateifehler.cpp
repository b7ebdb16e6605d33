#include "core/Dateifehler.h"

#include <cerrno>
#include <cstring>

Dateifehler::Art FehlerArt(int Fehlernummer) {
    switch (Fehlernummer) {
    case ENOENT:
    case ENOTDIR:
        return Dateifehler::Art::NichtVorhanden;
    case EACCES:
        return Dateifehler::Art::KeinZugriff;
    case EROFS:
    case EPERM:
    case ETXTBSY:
        return Dateifehler::Art::Schreibgeschuetzt;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Dateifehler::Art::Voll;
    case EISDIR:
        return Dateifehler::Art::Ordner;
    case EIO:
    case EINTR:
        return Dateifehler::Art::EinAusgabe;
    default:
        return Dateifehler::Art::Sonstiges;
    }
}

QString FehlerUrsache(int Fehlernummer) {
    switch (FehlerArt(Fehlernummer)) {
    case Dateifehler::Art::NichtVorhanden:
        return QStringLiteral("Datei oder Ordner nicht vorhanden");
    case Dateifehler::Art::KeinZugriff:
        return QStringLiteral("kein Zugriff erlaubt");
    case Dateifehler::Art::Schreibgeschuetzt:
        return QStringLiteral("schreibgeschützt");
    case Dateifehler::Art::Voll:
        return QStringLiteral("der Datenträger ist voll");
    case Dateifehler::Art::Ordner:
        return QStringLiteral("das ist ein Ordner und keine Datei");
    case Dateifehler::Art::EinAusgabe:
        return QStringLiteral("Ein-/Ausgabefehler, der Datenträger ist möglicherweise beschädigt");
    case Dateifehler::Art::Sonstiges:
        break;
    }
    return QStringLiteral("Fehler %1 (%2)")
        .arg(QString::number(Fehlernummer), QString::fromLocal8Bit(std::strerror(Fehlernummer)));
}
