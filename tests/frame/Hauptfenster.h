#pragma once

#include "common/Testwelt.h"
#include "frame/frmMain.h"

#include <QAction>
#include <QMenu>
#include <QTabWidget>

#include <memory>

/// A loaded and shown main window for the tests, with the delivered parameter file in the program's
/// directory. Its timer stands still: a test ticks by itself.
class Hauptfenster {
  public:
    /// The folders as a first start finds them, but the notice has been shown.
    static void OrdnerAnlegen();

    void Starten();
    bool AlleAnsichtenDa() const; ///< those besides the first are built after the first picture
    void Schliessen() { Fenster.reset(); }
    frmMain& operator*() const { return *Fenster; }
    frmMain* operator->() const { return Fenster.get(); }

    QAction* Aktion(const char* Name) const;
    QMenu* Menue(const char* Name) const;
    QTabWidget* Reiter() const;
    template <class Art>
    Art* Kind(const char* Name) const {
        return Fenster->findChild<Art*>(QString::fromUtf8(Name));
    }

  private:
    std::unique_ptr<frmMain> Fenster;
};
