#pragma once

#include <qglobal.h>

#include <QString>

#include <vector>

// What the grade lists show, from the records: the rows of those who take part.

/// One row of a grade list.
struct Notenlistenzeile {
    int Platz = 0;     ///< place in Datenbank.Noten
    qint32 Datum = 0;  ///< Schueler.ID in the list of a subject, Fach.ID in the list of a student
    QString Name;      ///< of the student or subject; "" if there is no such record
    int FachPlatz = 0; ///< place of its subject in Datenbank.Faecher, -1 if there is none

    bool operator==(const Notenlistenzeile&) const = default;
};

/// The students who take part in a subject, the last record first.
std::vector<Notenlistenzeile> NotenzeilenDesFachs(qint32 Fach_ID);

/// The subjects a student takes part in, the last record first.
std::vector<Notenlistenzeile> NotenzeilenDesSchuelers(qint32 Schueler_ID);
