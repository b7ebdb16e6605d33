#pragma once

#include "core/Abschnitte.h"
#include "core/Bytezeilen.h"
#include "core/Feldtabelle.h"
#include "core/Lesestelle.h"

#include <QByteArray>

/// Walks through the sections of a grade book file line by line and knows at every moment where it stands.
/// What the lines mean is the caller's.
class Abschnittsleser {
  public:
    /// Ganz false: the file could not be read behind Bytes. Reaching that place throws a Laufzeitfehler.
    Abschnittsleser(const QByteArray& Bytes, bool Ganz, const Feldwarner& Warnen);

    /// Reads the first line. False, with the reason in Ergebnis, if it is not that of a grade book this
    /// program reads.
    bool KopfErkennen(Leseergebnis& Ergebnis);

    /// Reads the next line; false at the end of the file.
    bool Weiter();
    /// The line just read is a marker: its section begins. False if it has no header line any more; otherwise
    /// that is the line now.
    bool AbschnittBeginnen();
    /// Splits the line into Felder and gives their number.
    int Zerlegen() { return Tabelle.Zerlegen(Aktuelle); }
    /// The same, and warns if the section asks for another number.
    int ZerlegenUndZaehlen();

    std::string_view Zeile() const { return Aktuelle; }
    Abschnitt Abschnittsart() const { return Art; }
    const Feldtabelle& Felder() const { return Tabelle; }
    Lesestelle Stelle() const;

  private:
    void ZeileHolen();

    Bytezeilen Zeilen;
    bool DateiGanz;
    const Feldwarner& Warner;
    Feldtabelle Tabelle;
    Abschnitt Art = Abschnitt::Keiner;
    std::string_view Marke;
    std::string_view Aktuelle;
    int ZeilenNr = 0;
    int SatzNr = 0;
};
