#pragma once

#include <QString>

#include <vector>

// What view S lists of a class, from the records.

/// A subject the class takes part in.
struct Fachspalte {
    qint32 Fach_ID = 0;
    QString Kopf; ///< its name, followed by "*" if it is taught to several classes together

    bool operator==(const Fachspalte&) const = default;
};

/// A student of the class.
struct Schuelerzeile {
    int Platz = 0;                  ///< place in Datenbank.Schueler
    std::vector<QString> Teilnahme; ///< in each of the subjects; empty without a row of grades

    bool operator==(const Schuelerzeile&) const = default;
};

struct Schuelerliste {
    std::vector<Fachspalte> Faecher;   ///< in record order
    std::vector<Schuelerzeile> Zeilen; ///< the last record first
};

/// The list of a class of AktJahr; empty for a class that does not exist.
Schuelerliste SchuelerlisteDerKlasse(const QString& Klasse);
