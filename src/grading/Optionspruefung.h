#pragma once

#include <QString>

/// The boxes of the options dialog that are checked when they are left.
enum class Optionsfeld {
    GewichtungE,
    GewichtungM,
    Punkteabstand,
    Notenabstand,
    Halbjahreswechsel,
    Endjahreswechsel
};

struct Optionspruefung {
    QString Text;    ///< what the box shows from now on
    QString Meldung; ///< why the typed text was refused; empty if it was good

    bool operator==(const Optionspruefung&) const = default;
};

/// Checks what was typed. A good number comes back as the number's text, a good date as typed; a bad value is
/// replaced by the box's default. Zero is refused in the number boxes although their messages name it. A
/// date is day and month of the year 1999, so 29.02. is none.
Optionspruefung OptionPruefen(Optionsfeld Feld, const QString& Text);
