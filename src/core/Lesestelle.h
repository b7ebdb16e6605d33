#pragma once

#include <QString>

#include <functional>

/// Where in a grade book file reading stands: what a report of a damaged file tells.
struct Lesestelle {
    int Zeile = 0;     ///< line of the file, from 1; 0: it could not be opened
    int Satz = 0;      ///< row of the section, from 1
    QString Abschnitt; ///< marker of the section
    QString Text;      ///< the line itself
};

/// A row that has not the number of fields its section asks for.
struct Feldwarnung {
    int Satz = 0;
    QString Abschnitt;
    int Gefunden = 0;
    int Erwartet = 0;
};
using Feldwarner = std::function<void(const Feldwarnung&)>;

/// How reading a grade book ended.
struct Leseergebnis {
    enum class Ausgang {
        Gelesen,
        KeineDatenbank, ///< the first line is not that of a grade book
        FremdeVersion,  ///< neither 2.0 nor 3.0
        Fehlgeschlagen  ///< at Stelle
    };
    Ausgang Ende = Ausgang::Fehlgeschlagen;
    QString Version; ///< three characters of the first line
    Lesestelle Stelle;
    bool InParameter = false; ///< the section at the end was [Parameter]
    int Entfallen = 0;        ///< lines and fields of the file that have no place in memory
};
