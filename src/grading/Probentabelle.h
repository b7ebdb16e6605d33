#pragma once

#include "core/Reihe.h"
#include "grading/Probenauswertung.h"

#include <QString>

#include <vector>

// The participants of one test (1..20) of a subject in the records: students of its classes who take part,
// and persons for this test only. What changes a record sets DatenGeaendert, and only if the text differs.

/// A participant as the list of the test shows him.
struct Probenteilnehmer {
    qint32 ID = 0; ///< Schueler.ID, or the index in ZSchueler, which never exceeds 1000
    QString Name;
    QString Punkte;
    QString Note;
    int Zeile = -1; ///< where it was read: index in Noten, or in ZSchueler
    int Platz = -1; ///< index in Schueler of his name; -1 for ZSchueler and where the student is missing
};

/// True for the ID of a person for this test only.
constexpr bool IstZSchueler(qint32 ID) {
    return ID <= 1000;
}

/// The participants in the order in which the list shows them unsorted: the last record first, persons for
/// this test only before the students. A row of grades without its student has an empty name.
std::vector<Probenteilnehmer> TeilnehmerDerProbe(qint32 Fach_ID, int Probe_ID);

/// True if a list read before still shows what the records hold: the same participants, and none of their
/// texts has been written since, not even with the same letters. Much quicker than reading it anew.
bool TeilnehmerStehenNoch(const std::vector<Probenteilnehmer>& Teilnehmer, qint32 Fach_ID, int Probe_ID);

/// Stores the grades that the evaluation has given to these participants, in the same order.
void NotenSpeichern(const std::vector<qint32>& IDs, const std::vector<Zeilenergebnis>& Ergebnisse,
                    qint32 Fach_ID, int Probe_ID);

/// Stores points; false if they are the same or nobody has this ID.
bool PunkteAendern(qint32 ID, qint32 Fach_ID, int Probe_ID, const QString& Punkte);

/// Stores a grade set by hand: the points become negative, as Punkte shows then (HandPunkte). False if the
/// grade is the same or nobody has this ID; Punkte is untouched then.
bool NoteVonHandSetzen(qint32 ID, qint32 Fach_ID, int Probe_ID, const QString& Note, QString& Punkte);

/// The points that mark a grade set by hand and keep the former value: "12" gives "-12"; "0", "" and what is
/// no number give "-0,1", since 0 has no sign.
QString HandPunkte(const QString& Punkte);

/// Stores the name of a participant, in the form "Nachname Vorname".
void TeilnehmerNamenAendern(qint32 ID, const QString& Name);

/// Removes a person for one test; later ones move down and get other IDs. Nothing for an index out of range.
void ZSchuelerEntfernen(int Index);
