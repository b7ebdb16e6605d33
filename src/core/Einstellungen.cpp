#include "core/Einstellungen.h"

#include <QHash>
#include <QSettings>

#include <memory>

namespace {

const QString Anwendung = QStringLiteral("Tafelquell");

/// The store of this run: opened once, since each opening asks the disc some twenty times.
struct Bestand {
    std::unique_ptr<QSettings> Datei;
    QHash<QString, QString> Bekannte; ///< what this run has read or written
};

Bestand& Einstellungen() {
    static Bestand Einer;
    return Einer;
}

/// Only the file of the user: other places that Qt would look into have no settings of ours.
QSettings& Datei() {
    auto& Offene = Einstellungen().Datei;
    if (!Offene)
        Offene =
            std::make_unique<QSettings>(QSettings(Anwendung, Anwendung).fileName(), QSettings::NativeFormat);
    return *Offene;
}

QString InAbschnitt(const QString& Schluessel) {
    return QStringLiteral("Settings/") + Schluessel;
}

} // namespace

QString EinstellungLesen(const QString& Schluessel, const QString& Vorgabe) {
    auto& Bekannte = Einstellungen().Bekannte;
    if (const auto Stelle = Bekannte.constFind(Schluessel); Stelle != Bekannte.constEnd())
        return *Stelle;
    const QString Name = InAbschnitt(Schluessel);
    // A default is no value: the next caller may have another one.
    if (!Datei().contains(Name))
        return Vorgabe;
    return *Bekannte.insert(Schluessel, Datei().value(Name).toString());
}

void EinstellungSchreiben(const QString& Schluessel, const QString& Wert) {
    Einstellungen().Bekannte.insert(Schluessel, Wert);
    const QString Name = InAbschnitt(Schluessel);
    QSettings& Ziel = Datei();
    Ziel.sync(); // another running program may have written since
    // What stands there already needs no way to the disc.
    if (Ziel.contains(Name) && Ziel.value(Name).toString() == Wert)
        return;
    Ziel.setValue(Name, Wert);
    Ziel.sync();
}

void EinstellungenVergessen() {
    Einstellungen() = {};
}
