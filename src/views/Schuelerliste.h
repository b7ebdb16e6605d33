#pragma once

#include "core/Definitionen.h"

#include <vector>

// What is listed of a class, from the records. Columns: 0 the name, 1..P the subjects, then the 14 free
// fields.

/// A subject the class takes part in.
struct Fachspalte {
    qint32 Fach_ID = 0;
    QString Kopf; ///< its name, followed by "*" if it is taught to several classes together
    std::vector<QString> Teilnahmen; ///< the texts that stand in its column, each once

    bool operator==(const Fachspalte&) const = default;
};

/// A student of the class.
struct Schuelerzeile {
    int Platz = 0; ///< place in Datenbank.Schueler
    qint32 ID = 0;
    std::size_t Noten = 0; ///< where its places begin in Notenplaetze

    bool operator==(const Schuelerzeile&) const = default;
};

/// The list of a class of one moment. It holds where the texts stand, not the texts.
struct Schuelerliste {
    std::vector<Fachspalte> Faecher;   ///< in record order
    std::vector<Schuelerzeile> Zeilen; ///< the last record first
    std::vector<int> Notenplaetze;     ///< for each row and subject a place in Datenbank.Noten; -1 for none

    int Faecherzahl() const { return static_cast<int>(Faecher.size()); }
    int Spalten() const; ///< 15 + P
    /// The student of a row, and his row of grades in a subject, where they stand now; nullptr if there is
    /// none.
    const Schueler* Satz(std::size_t Zeile) const;
    const Notenzeile* Note(std::size_t Zeile, std::size_t Fach) const;
    /// What a cell shows: the text of its record; "" without one.
    const QString& Text(std::size_t Zeile, int Spalte) const;
};

/// The list of a class of AktJahr; empty for a class that does not exist.
Schuelerliste SchuelerlisteDerKlasse(const QString& Klasse);

/// The same without subjects: names and fields alone.
Schuelerliste SchuelerDerKlasse(const QString& Klasse);

/// The IDs of the rows, for the hidden row data of a grid.
std::vector<qint32> Zeilendaten(const Schuelerliste& Liste);

/// The numbers of the rows in the order of their records: thousands of records are walked through, not
/// jumped about in.
std::vector<std::size_t> InSatzfolge(const Schuelerliste& Liste);

/// Looks up anew which texts stand in the columns of the subjects, after one has been changed.
void TeilnahmenErneuern(Schuelerliste& Liste);

/// Puts the rows in the order of the texts of a column; equal ones stay as they stand.
void NachSpalteOrdnen(Schuelerliste& Liste, int Spalte);
