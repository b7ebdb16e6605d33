#pragma once

#include <QString>

// The settings store: small per-user values by key, section "Settings" of the application "Tafelquell".
// Values are texts.

QString EinstellungLesen(const QString& Schluessel, const QString& Vorgabe);
/// Written through to the disc at once, so that it survives a crash.
void EinstellungSchreiben(const QString& Schluessel, const QString& Wert);

/// The word that stands for "no file yet" in AutoDatei and Formulierungen.
inline const QString Unbenannt = QStringLiteral("Unbenannt");
