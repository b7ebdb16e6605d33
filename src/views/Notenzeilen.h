#pragma once

#include "core/Definitionen.h"

#include <QString>

#include <vector>

// What the grade lists show, from the records: the rows of those who take part.

/// One row of a grade list.
struct Notenlistenzeile {
    int Platz = 0; ///< place in Datenbank.Noten
    qint32 Schueler_ID = 0;
    qint32 Fach_ID = 0;
    int SchuelerPlatz = -1; ///< place of its student in Datenbank.Schueler, -1: not looked up, or none
    int FachPlatz = -1;     ///< place of its subject in Datenbank.Faecher, -1 if there is none

    bool operator==(const Notenlistenzeile&) const = default;
};

/// The students who take part in a subject, the last record first.
std::vector<Notenlistenzeile> NotenzeilenDesFachs(qint32 Fach_ID);

/// The subjects a student takes part in, the last record first.
std::vector<Notenlistenzeile> NotenzeilenDesSchuelers(qint32 Schueler_ID);

/// The record and the subject of a row, where they stand now; nullptr if they are gone.
const Notenzeile* SatzDer(const Notenlistenzeile& Zeile);
const Fach* FachDer(const Notenlistenzeile& Zeile);

/// What a row is listed under; "" if there is no such record.
const QString& SchuelernameDer(const Notenlistenzeile& Zeile);
const QString& FachnameDer(const Notenlistenzeile& Zeile);

/// Puts the rows in the order of their students' names; equal ones stay as they stand.
void NachNamenOrdnen(std::vector<Notenlistenzeile>& Zeilen);
