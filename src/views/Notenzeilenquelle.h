#pragma once

#include "controls/Gitter.h"
#include "grading/Gesamtnoten.h"
#include "views/Notenzeilen.h"

inline constexpr QRgb NoteVonHand = qRgb(255, 0, 0); ///< of a grade set by hand
inline constexpr QRgb NoteBerechnet = qRgb(0, 0, 0); ///< of any other

/// Gives a grade list to its grid: each row with its colours and averages, from its record at the moment it
/// is first looked at.
class Notenzeilenquelle {
  public:
    using Namensregel = const QString& (*)(const Notenlistenzeile&); ///< what a row is listed under

    Notenzeilenquelle(std::vector<Notenlistenzeile> WelcheZeilen, Namensregel WelcherName,
                      const Gesamtregeln& WelcheRegeln);

    /// Rules of the averages in rows that are looked at from now on.
    void RegelnSetzen(const Gesamtregeln& Neue) { Regeln = Neue; }
    /// The cells of row Nummer, counted from 0. Without its record a row shows its name alone, without its
    /// subject neither colours nor averages.
    std::vector<Gitterzelle> Zellen(int Nummer) const;

  private:
    std::vector<Notenlistenzeile> Zeilen;
    Namensregel Name;
    Gesamtregeln Regeln;
};
