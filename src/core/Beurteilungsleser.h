#pragma once

#include <QHash>

#include <string>
#include <string_view>

/// Reads the lines of [Beurteilungen]: marker lines "#10003_2#" and the texts behind them. The student and
/// the slot are kept from line to line, beyond the end of the section too. A marker that is none throws a
/// Laufzeitfehler.
class Beurteilungsleser {
  public:
    /// Takes one line. False if it belongs to no student.
    bool Zeile(std::string_view Text);
    /// Stores the text collected so far; to be called before anything else is read.
    void Abschliessen();

  private:
    void Marke(std::string_view Text);
    int SchuelerSuchen(qint32 ID);

    int Index = -1;
    int Platz = 0;
    // The lines of a text are collected and decoded at once: one text is made, not one for each line.
    std::string Gesammelt;
    bool Sammelt = false;           ///< a line has come since the marker
    bool MitAnfang = false;         ///< there is text before the next line, so a line end must part them
    QHash<qint32, int> Verzeichnis; ///< first student of each ID
    int Verzeichnet = 0;            ///< students in it
};
