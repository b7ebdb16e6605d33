#pragma once

#include "core/Abschnitte.h"
#include "core/Definitionen.h"
#include "core/Feldtabelle.h"
#include "core/Kurztexte.h"

/// Makes records of the rows of a grade book file. Bad numbers and passed bounds throw a Laufzeitfehler.
class Satzleser {
  public:
    /// AlleBeurteilungen false: format 2.0, where a student's row empties only the first two assessments.
    explicit Satzleser(bool AlleBeurteilungen)
        : GeleerteBeurteilungen(AlleBeurteilungen ? 12 : 2) {}

    /// Adds the record of a row of this section to Datenbank. False if the row has no place there.
    bool Lesen(Abschnitt Einer, const Feldtabelle& Felder);
    /// Takes the titles of the free student fields from the header of [Schüler].
    void TitelLesen(const Feldtabelle& Kopf);
    /// Makes a student of a row, without the assessments.
    void SchuelerLesen(const Feldtabelle& Felder, Schueler& Ziel);

  private:
    void KlasseLesen(const Feldtabelle& Felder);
    void FachLesen(const Feldtabelle& Felder);
    bool ProbeLesen(const Feldtabelle& Felder);
    void NeuenSchuelerLesen(const Feldtabelle& Felder);
    void ZSchuelerLesen(const Feldtabelle& Felder);
    void NotenzeileLesen(const Feldtabelle& Felder);
    qint16 FachSuchen(qint32 ID);

    Kurztexte Texte;
    int GeleerteBeurteilungen;
    // Tests stand in the order of their subjects: the last subject found is nearly always the next one too.
    qint32 LetzteFachID = 0;
    qint16 LetzterFachIndex = -1;
};
