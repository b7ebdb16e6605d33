#pragma once

#include "core/Oberflaeche.h"

#include <QMainWindow>

#include <functional>

class Ansicht;
class Hinweiszeile;
class Kombinationsfeld;
class QCheckBox;
class QLabel;
class QScrollArea;
class QTabWidget;
class QTimer;
struct Leisteneintrag;
struct Menueintrag;

/// The main window: five tabs, menus, tool bar, status bar, the timer of the delayed commits. It builds
/// itself from the lists of frame/Menue.h and frame/Ansichten.h and holds no rule of a view.
class frmMain : public QMainWindow, public Oberflaeche {
    Q_OBJECT

  public:
    frmMain();
    ~frmMain() override;

    /// The work before the window is first shown: place, records, parameter file, last grade book or a new
    /// one. Throws a Laufzeitfehler if the parameter file cannot be read: without it there is no program.
    /// Any other failure is reported, and loading goes on.
    void Laden();

    // Oberflaeche
    bool Sichtbar() const override;
    void FokusNehmen() override;
    void TitelSetzen(const QString& Titel) override;
    void JahrgangWaehlen() override;
    void AnsichtAktualisieren() override;
    void LernbereicheFuellen() override;
    void FormulierungenFuellen() override;

    // Commands of the menu that are the window's own.
    void Beenden();         ///< mnuFileExit: both save prompts, then close unless one was cancelled
    void LeistenZeigen();   ///< tool bar and status bar follow their check marks
    void OptionenAendern(); ///< mnuExtrasOptionen; the views that show averages follow
    void InfoZeigen();      ///< mnuHelpAbout

    /// Commits the edit in progress and stores window, parameters and settings, without a box: what every end
    /// of the program does first.
    void ZustandSichern();

  protected:
    void closeEvent(QCloseEvent* Ereignis) override;
    void dragEnterEvent(QDragEnterEvent* Ereignis) override;
    void dropEvent(QDropEvent* Ereignis) override;
    bool event(QEvent* Ereignis) override;

  private:
    void MenueBauen();
    void EintragBauen(const Menueintrag& Eintrag);
    void LeisteBauen();
    void KnopfBauen(const Leisteneintrag& Eintrag);
    void JahrgangBauen();
    void StatuszeileBauen();
    QLabel* FeldBauen(const QString& Name, const QString& Bedeutung);
    void ReiterBauen();
    QScrollArea* RollfeldBauen();
    void AnsichtBauen(int Nummer);
    Ansicht& AnsichtHolen(int Nummer); ///< of this tab; built now if it has not been wanted before
    void UebrigeAnsichtenBauen();
    void LeisteAnsEndeDerReihe();
    void KnoepfeLoesen(); ///< no button stays down that nobody holds any more
    void BefehlAusfuehren(const Menueintrag& Eintrag);
    void EintragErlauben(const QString& Name, bool Erlaubt);
    void Hinweis(const QString& Text);
    void JahrgangGewechselt();
    void LetzteDateiLaden();
    void Tick();
    void UhrZeigen();
    template <class Art>
    Art* Sicht() const; ///< the view of this class; nothing while it is not built

    QTabWidget* tabAnsicht = nullptr;
    QList<Ansicht*> picAnsicht; ///< by tab; empty where the view is not built yet
    QToolBar* tbToolBar = nullptr;
    QCheckBox* cbPassbild = nullptr;
    Kombinationsfeld* cbJahrgang = nullptr;
    Hinweiszeile* HinweisFeld = nullptr;
    QLabel* DatumFeld = nullptr;
    QLabel* ZeitFeld = nullptr;
    QTimer* timTimer = nullptr;
};
