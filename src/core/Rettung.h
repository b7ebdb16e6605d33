#pragma once

#include "core/Dateifehler.h"
#include "core/Rettungslage.h"

#include <QString>

#include <optional>

// Offering and bringing back what a broken-off save has left. The same for all files of the program.

/// Offers every rescue copy in a box of its own, the newest first. A newer content of a file that still has
/// its old one is opened as a document that was not saved (core/NeuererStand.h), a broken-off file is written
/// from its copy. Copies whose target equals them go without a word; broken ones are put aside and noted in
/// the log. Call at start, before any file is loaded. Without an answer nothing is lost: the copy stays and
/// is offered the next time.
void RettungenAnbieten();

/// The same for the copies of one file. Call before it is opened.
void RettungAnbietenFuer(const QString& Pfad);

// What an answer does. Each looks at the copy again and gives a failure, having changed nothing, if its case
// is another one by now.

/// Writes the copy's content to its target, by the same protocol with this copy in the place of a new one;
/// the copy goes when that is complete.
std::optional<Dateifehler> RettungUebernehmen(const Rettungsfund& Fund);
/// The same to another path.
std::optional<Dateifehler> RettungSpeichernUnter(const Rettungsfund& Fund, const QString& Pfad);
/// Keeps the copy, but offers it no more. *Wohin: its new path.
std::optional<Dateifehler> RettungZuruecklegen(const Rettungsfund& Fund, QString* Wohin);
