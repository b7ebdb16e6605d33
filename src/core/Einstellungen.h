#pragma once

#include <QString>

// The settings store: small per-user values by key, section "Settings" of the application "Tafelquell".
// Values are texts. What this run has read or written stays so for this run: a second running program that
// opens another grade book does not change which one this one has open.

QString EinstellungLesen(const QString& Schluessel, const QString& Vorgabe);
/// Written through to the disc at once, so that it survives a crash. The file then has the value of whoever
/// wrote last; keys of others stay as they are.
void EinstellungSchreiben(const QString& Schluessel, const QString& Wert);

/// For tests: the next access opens the store anew.
void EinstellungenVergessen();

/// The word that stands for "no file yet" in AutoDatei and Formulierungen.
inline const QString Unbenannt = QStringLiteral("Unbenannt");
