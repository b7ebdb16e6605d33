#pragma once

#include <QString>

/// Path of the open grade book, or Unbenannt: the setting AutoDatei.
QString AutoDatei();
/// Written at once, so that it survives a crash.
void AutoDateiSetzen(const QString& Pfad);

/// False if the user's setting AutoLaden says so ("False", "Falsch" or "0"): then nothing is loaded at the
/// start and no photo is shown.
bool AutoLaden();

/// Title from the setting AutoDatei: "Tafelquell 3.1 - klasse.txt".
void TitelAktualisieren();
