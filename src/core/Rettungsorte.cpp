#include "core/Rettungsorte.h"

#include "core/Dateifehler.h"
#include "core/Dateizugriff.h"
#include "core/Meldungen.h"
#include "core/Orte.h"

#include <QFile>

#include <utility>

#include <unistd.h>

namespace {

/// What is to be told, and whether it has been.
struct Ausweichen {
    QString Hinweis;
    bool Gesagt = false;
};

Ausweichen& Gemerktes() {
    static Ausweichen Eines;
    return Eines;
}

/// Only the user can have put anything there.
bool IstEigenerOrdner(const QByteArray& Pfad) {
    struct stat Stand {};
    return Pfad.startsWith('/') &&
           Beharrlich([&] { return Aufrufe().Stat(Pfad.constData(), &Stand); }) == 0 &&
           S_ISDIR(Stand.st_mode) && Stand.st_uid == ::geteuid() && (Stand.st_mode & 0777U) == 0700U;
}

} // namespace

QByteArray Rettungsordner() {
    return QFile::encodeName(Zustandsverzeichnis());
}

QList<QByteArray> AlleRettungsordner() {
    QList<QByteArray> Alle{Rettungsordner()};
    const QByteArray Laufzeit = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray Zweiter = Laufzeit + "/tafelquell";
    if (IstEigenerOrdner(Laufzeit) && !Alle.contains(Zweiter))
        Alle.append(Zweiter);
    return Alle;
}

bool AusweichenHilft(int Fehlernummer) {
    switch (FehlerArt(Fehlernummer)) {
    case Dateifehler::Art::Voll:
    case Dateifehler::Art::KeinZugriff:
    case Dateifehler::Art::Schreibgeschuetzt:
    case Dateifehler::Art::NichtVorhanden:
        return true;
    default:
        return false;
    }
}

bool IstFluechtig(const QByteArray& Pfad) {
    return OrdnerVon(Pfad) != Rettungsordner();
}

QString Fluechtigkeitshinweis(const QByteArray& Pfad) {
    if (!IstFluechtig(Pfad))
        return {};
    return QStringLiteral("\nDiese Rettungskopie liegt nur in einem flüchtigen Ordner: Sie übersteht einen "
                          "Absturz des Programms, geht aber beim Abmelden, beim Ausschalten und bei "
                          "Stromausfall verloren.");
}

void AusweichenMerken(const QByteArray& Ordner, int Fehlernummer) {
    Gemerktes().Hinweis =
        QStringLiteral("Im Ordner \"%1\" konnte keine Rettungskopie angelegt werden (%2).\n"
                       "Die Rettungskopien liegen deshalb vorerst im Ordner \"%3\". Dort schützen sie vor "
                       "einem Absturz des Programms, aber nicht vor Stromausfall, Abmelden oder Ausschalten."
                       "\n\nBitte sorgen Sie im zuerst genannten Ordner für Platz und Zugriff!")
            .arg(QFile::decodeName(Rettungsordner()), FehlerUrsache(Fehlernummer), QFile::decodeName(Ordner));
}

QString AusweichhinweisAbholen() {
    Ausweichen& Eines = Gemerktes();
    if (Eines.Gesagt || Eines.Hinweis.isEmpty())
        return {};
    Eines.Gesagt = true;
    return std::exchange(Eines.Hinweis, {});
}

void AusweichhinweisZeigen() {
    if (const QString Hinweis = AusweichhinweisAbholen(); !Hinweis.isEmpty())
        MeldungZeigen(Hinweis, {}, Symbol::Warnung);
}

void AusweichhinweisVergessen() {
    Gemerktes() = {};
}
