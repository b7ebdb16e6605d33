#include "core/Originalschutz.h"

#include "core/Dateischutz.h"
#include "core/FktAllgemein.h"
#include "core/Laufzeitfehler.h"
#include "core/Orte.h"
#include "core/Uhr.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

namespace {

struct Ladebefund {
    bool Lesefehler = false;
    int Entfallen = 0;
};

/// By the file itself, whatever links lead to it.
QHash<QString, Ladebefund>& Befunde() {
    static QHash<QString, Ladebefund> Alle;
    return Alle;
}

QString Schluessel(const QString& Pfad) {
    const QString Wirklich = QFileInfo(Pfad).canonicalFilePath();
    return Wirklich.isEmpty() ? Pfad : Wirklich;
}

QString NameDerKopie(const QString& Pfad) {
    return Zustandsverzeichnis() +
           QStringLiteral("/Original-%1-%2")
               .arg(Jetzt().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz")), DateiName(Pfad));
}

QString Kopieren(const QString& Pfad) {
    Dateifehler Fehler;
    const auto Inhalt = DateiLesen(Pfad, &Fehler);
    if (!Inhalt)
        throw Laufzeitfehler(Fehler.Text);
    const QString Kopie = NameDerKopie(Pfad);
    if (const auto Grund = DateiSchreiben(Kopie, *Inhalt))
        throw Laufzeitfehler(Grund->Text);
    return Kopie;
}

} // namespace

void LadebefundMerken(const QString& Pfad, bool Lesefehler, int Entfallen) {
    if (Lesefehler || Entfallen > 0)
        Befunde().insert(Schluessel(Pfad), {Lesefehler, Entfallen});
    else
        Befunde().remove(Schluessel(Pfad));
}

QString OriginalSichern(const QString& Pfad) {
    // Nearly always; then no path needs to be followed.
    if (Befunde().isEmpty())
        return {};
    const Ladebefund Befund = Befunde().value(Schluessel(Pfad));
    if (Befund.Lesefehler)
        throw Laufzeitfehler(
            QCoreApplication::translate(
                "Originalschutz",
                "Die Datei %1 ließ sich beim Laden nicht vollständig lesen. Damit nichts verloren "
                "geht, wird sie nicht überschrieben. Bitte speichern Sie unter einem anderen Namen!")
                .arg(Pfad));
    QString Kopie;
    if (Befund.Entfallen > 0 && DateiExistiert(Pfad))
        Kopie = Kopieren(Pfad);
    Befunde().remove(Schluessel(Pfad));
    return Kopie;
}
