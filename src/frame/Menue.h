#pragma once

#include <span>

class frmMain;

enum class Eintragsart { Menue, Befehl, Schalter, Strich };

/// Where the focus is when a command runs: on tabAnsicht, so that an edit in progress has committed, or where
/// it was, for the commands that work on the active control.
enum class Fokus { Nehmen, Lassen };

/// One line of the menu tree. A Menue opens a menu of the bar; what follows belongs to it. Texts are UTF-8.
struct Menueintrag {
    Eintragsart Art = Eintragsart::Befehl;
    const char* Name = "";              ///< objectName of the QAction (of a Menue: of the QMenu)
    const char* Text = "";              ///< caption; "&" marks the access key
    const char* Tasten = "";            ///< shortcut
    bool Sichtbar = true;               ///< visible at start
    bool Frei = true;                   ///< enabled at start
    bool Gesetzt = false;               ///< a Schalter: checked at start
    void (*Ablauf)(frmMain&) = nullptr; ///< none: the entry is always greyed
    Fokus Zuvor = Fokus::Nehmen;
};

/// One button of the tool bar. Its key is its objectName and names its icon.
struct Leisteneintrag {
    const char* Name = "";   ///< "New", "Open" ...; empty: a gap
    const char* Text = "";   ///< tool tip and accessible name
    const char* Befehl = ""; ///< menu entry it stands for; empty: none yet, the button is greyed
};

std::span<const Menueintrag> Menueeintraege();
std::span<const Leisteneintrag> Leisteneintraege();
