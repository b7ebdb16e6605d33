#pragma once

#include <QString>

/// What procedures of the kern ask of the main window. The frame implements it; without one nothing happens
/// and the window counts as not visible.
class Oberflaeche {
  public:
    virtual ~Oberflaeche() = default;
    virtual bool Sichtbar() const { return false; } ///< the main window is shown
    virtual void FokusNehmen() {}                   ///< focus to tabAnsicht: an edit in progress commits
    virtual void TitelSetzen(const QString& /*Titel*/) {} ///< window title
    virtual void JahrgangWaehlen() {}       ///< select Datenbank.AktJahr in cbJahrgang, no handler runs
    virtual void AnsichtAktualisieren() {}  ///< refill the view on top
    virtual void LernbereicheFuellen() {}   ///< rebuild the tree of learning areas
    virtual void FormulierungenFuellen() {} ///< refill the phrase table
};

void OberflaecheSetzen(Oberflaeche* Neue); ///< nullptr: none
Oberflaeche& AktuelleOberflaeche();
