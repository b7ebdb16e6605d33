#pragma once

#include <QString>

/// Path of the open grade book, or Unbenannt: the setting AutoDatei.
QString AutoDatei();
/// Written at once, so that it survives a crash.
void AutoDateiSetzen(const QString& Pfad);

/// Title from the setting AutoDatei: "Tafelquell 3.1 - klasse.txt".
void TitelAktualisieren();
