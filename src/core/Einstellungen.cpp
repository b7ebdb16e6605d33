#include "core/Einstellungen.h"

#include <QSettings>

namespace {

const QString Anwendung = QStringLiteral("Tafelquell");

QString InAbschnitt(const QString& Schluessel) {
    return QStringLiteral("Settings/") + Schluessel;
}

/// Only the file of the user: other places that Qt would look into have no settings of ours.
class Ablage : public QSettings {
  public:
    Ablage()
        : QSettings(Anwendung, Anwendung) {
        setFallbacksEnabled(false);
    }
};

} // namespace

QString EinstellungLesen(const QString& Schluessel, const QString& Vorgabe) {
    return Ablage().value(InAbschnitt(Schluessel), Vorgabe).toString();
}

void EinstellungSchreiben(const QString& Schluessel, const QString& Wert) {
    Ablage Ziel;
    // What stands there already needs no way to the disc.
    if (Ziel.value(InAbschnitt(Schluessel)).toString() == Wert && Ziel.contains(InAbschnitt(Schluessel)))
        return;
    Ziel.setValue(InAbschnitt(Schluessel), Wert);
    Ziel.sync();
}
