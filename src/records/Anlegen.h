#pragma once

#include <QString>

#include <vector>

// How classes, subjects and students come into being. Each procedure makes its records whole or throws a
// Laufzeitfehler because a bound is reached, and has then changed nothing. DatenGeaendert is set at the end.
// The year of everything new is Datenbank.AktJahr.

/// One line of a participation list: a student in a new subject, or a subject of a new student.
struct Teilnahmezeile {
    qint32 ID = 0;     ///< of the student or of the subject
    QString Name;      ///< what the list shows
    QString Teilnahme; ///< "ja" or "nein"

    bool operator==(const Teilnahmezeile&) const = default;
};

/// True if AktJahr has a class of this name.
bool KlasseVorhanden(const QString& Name);
void KlasseErstellen(const QString& Name);

/// The students a new subject of this class field can have, all with "ja": class by class in the order of
/// KlassenDesFelds, each in record order, and the whole turned round, as if each were put on top.
std::vector<Teilnahmezeile> SchuelerDerKlassen(const QString& Klassenfeld);
/// The subjects a new student of this class can take, all with "ja", the last record first.
std::vector<Teilnahmezeile> FaecherDerKlasse(const QString& Klasse);

/// A new subject with the classes its field names, as far as they do not exist yet, and a row of grades for
/// each line, "nein" included. Returns its ID.
qint32 FachErstellen(const QString& Klassenfeld, const QString& Name,
                     const std::vector<Teilnahmezeile>& Teilnehmer);

/// A new student with a row of grades for each line. Returns the ID.
qint32 SchuelerErstellen(const QString& Name, const QString& Klasse,
                         const std::vector<Teilnahmezeile>& Faecher);

/// A person for one test (1..20) only.
void ZSchuelerErstellen(const QString& Name, qint32 Fach_ID, qint32 Probe_ID);
