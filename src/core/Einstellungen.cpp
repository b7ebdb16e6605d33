#include "core/Einstellungen.h"

#include <QSettings>

namespace {

const QString Anwendung = QStringLiteral("Tafelquell");

QString InAbschnitt(const QString& Schluessel) {
    return QStringLiteral("Settings/") + Schluessel;
}

} // namespace

QString EinstellungLesen(const QString& Schluessel, const QString& Vorgabe) {
    return QSettings(Anwendung, Anwendung).value(InAbschnitt(Schluessel), Vorgabe).toString();
}

void EinstellungSchreiben(const QString& Schluessel, const QString& Wert) {
    QSettings Ablage(Anwendung, Anwendung);
    Ablage.setValue(InAbschnitt(Schluessel), Wert);
    Ablage.sync();
}
