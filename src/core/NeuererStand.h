#pragma once

#include "core/Rettungslage.h"

#include <QString>

#include <optional>

// The newer content that a rescue copy holds, opened in place of a file that still has its old one. It is a
// document that was not saved: until the user saves, the file keeps the old content, and the copy stays. So
// whoever thought better of it, or is interrupted once more, has lost neither.

/// Whether these bytes open as a document that the user saves: a grade book or a phrase file. The parameter
/// file is none.
bool IstDokument(const QByteArray& Inhalt);

/// Notes that the next load of the copy's target takes Inhalt, from that copy.
void NeuerenStandVormerken(const Rettungsfund& Fund, const QByteArray& Inhalt);
/// The same at start: it also becomes the document that the start loads.
void NeuerenStandBeimStartVormerken(const Rettungsfund& Fund, const QByteArray& Inhalt);
/// Whether a content is noted for this file. Ziel without symbolic links, here and below.
bool NeuererStandVorgemerkt(const QByteArray& Ziel);
void NeuerenStandVergessen(const QByteArray& Ziel);
/// For tests: a run begins.
void AlleNeuerenStaendeVergessen();

/// The content noted for the file that Pfad leads to: once, afterwards the file itself counts again. Call
/// where a document is loaded; what comes from here is not saved yet.
std::optional<QByteArray> NeuererStand(const QString& Pfad);

/// Call when a file was written. If the copy that was opened in its place still differs, because the user
/// went on working with it, it is offered no more, but kept aside. Never throws.
void NeuererStandGespeichert(const QString& Pfad);
