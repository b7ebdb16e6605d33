#include "frame/Menue.h"

#include "assessments/Formulierungen.h"
#include "core/Dokument.h"
#include "frame/Hilfe.h"
#include "frame/Zwischenablage.h"
#include "frame/frmMain.h"

namespace {

using enum Eintragsart;

// The menu tree in order. An entry without a procedure is greyed: its feature is not part of the program.
constexpr Menueintrag Menuebaum[] = {
    {.Art = Menue, .Name = "mnuFile", .Text = "&Datei"},
    {.Name = "mnuFileNew", .Text = "&Neu", .Tasten = "Ctrl+N", .Ablauf = [](frmMain&) { NeueDatenbank(); }},
    {.Name = "mnuFileOpen", .Text = "Ö&ffnen...", .Ablauf = [](frmMain&) { DatenbankOeffnen(); }},
    {.Name = "mnuFileClose", .Text = "S&chließen", .Ablauf = [](frmMain&) { NeueDatenbank(); }},
    {.Art = Strich, .Name = "mnuFileBar1"},
    {.Name = "mnuFileSave",
     .Text = "&Speichern",
     .Tasten = "Ctrl+S",
     .Ablauf = [](frmMain&) { DatenbankSpeichern(); }},
    {.Name = "mnuFileSaveAs",
     .Text = "Speichern &unter...",
     .Ablauf = [](frmMain&) { DatenbankSpeichernUnter(); }},
    {.Art = Strich, .Name = "mnuFileBar2"},
    {.Name = "mnuFileImport", .Text = "&Importieren"},
    {.Name = "mnuFileExport", .Text = "E&xportieren", .Frei = false},
    {.Art = Strich, .Name = "mnuFileBar3"},
    {.Name = "mnuFileBackup",
     .Text = "Sicherheits&kopie erstellen",
     .Ablauf = [](frmMain&) { SicherheitskopieErstellen(); }},
    {.Name = "mnuFileRestore",
     .Text = "&Wiederherstellen aus Sicherheitskopie",
     .Ablauf = [](frmMain&) { DatenbankWiederherstellen(AutoDatei()); }},
    {.Art = Strich, .Name = "mnuFileBar4"},
    {.Name = "mnuFilePrintPreview", .Text = "Seiten&ansicht"},
    {.Name = "mnuFilePageSetup", .Text = "Drucker ein&richten..."},
    {.Name = "mnuFilePrint", .Text = "&Drucken..."},
    {.Art = Strich, .Name = "mnuFileBar5", .Sichtbar = false},
    {.Name = "mnuFileMRU_1", .Sichtbar = false},
    {.Name = "mnuFileMRU_2", .Sichtbar = false},
    {.Name = "mnuFileMRU_3", .Sichtbar = false},
    {.Art = Strich, .Name = "mnuFileBar6"},
    {.Name = "mnuFileExit", .Text = "&Beenden", .Ablauf = [](frmMain& Fenster) { Fenster.Beenden(); }},

    {.Art = Menue, .Name = "mnuEdit", .Text = "&Bearbeiten"},
    {.Name = "mnuEditCut",
     .Text = "A&usschneiden",
     .Tasten = "Ctrl+X",
     .Ablauf = [](frmMain&) { Ausschneiden(); },
     .Zuvor = Fokus::Lassen},
    {.Name = "mnuEditCopy",
     .Text = "&Kopieren",
     .Tasten = "Ctrl+C",
     .Ablauf = [](frmMain&) { Kopieren(); },
     .Zuvor = Fokus::Lassen},
    {.Name = "mnuEditPaste",
     .Text = "E&infügen",
     .Tasten = "Ctrl+V",
     .Ablauf = [](frmMain&) { Einfuegen(); },
     .Zuvor = Fokus::Lassen},

    {.Art = Menue, .Name = "mnuView", .Text = "&Ansicht"},
    {.Art = Schalter,
     .Name = "mnuViewToolbar",
     .Text = "&Symbolleisten",
     .Gesetzt = true,
     .Ablauf = [](frmMain& Fenster) { Fenster.LeistenZeigen(); }},
    {.Art = Schalter,
     .Name = "mnuViewStatusBar",
     .Text = "S&tatuszeile",
     .Gesetzt = true,
     .Ablauf = [](frmMain& Fenster) { Fenster.LeistenZeigen(); }},
    {.Art = Schalter, .Name = "mnuViewPassbild", .Text = "&Passbild"},

    {.Art = Menue, .Name = "mnuFormulierungen", .Text = "Beurteilungs&formulierungen", .Sichtbar = false},
    {.Name = "mnuFormulierungenNeu", .Text = "&Neu", .Ablauf = [](frmMain&) { FormulierungenNeu(); }},
    {.Name = "mnuFormulierungenOpen",
     .Text = "Ö&ffnen...",
     .Ablauf = [](frmMain&) { FormulierungenOeffnen(); }},
    {.Name = "mnuFormulierungenHinzufuegen",
     .Text = "&Hinzufügen...",
     .Ablauf = [](frmMain&) { FormulierungenHinzufuegen(); }},
    {.Art = Strich, .Name = "mnuBBar1"},
    {.Name = "mnuFormulierungenSave",
     .Text = "&Speichern",
     .Ablauf = [](frmMain&) { FormulierungenSpeichern(); }},
    {.Name = "mnuFormulierungenSaveAs",
     .Text = "Speichern &unter...",
     .Ablauf = [](frmMain&) { FormulierungenSpeichernUnter(); }},
    {.Art = Strich, .Name = "mnuBBar2"},
    {.Name = "mnuFormulierungenBackup",
     .Text = "Sicherheits&kopie erstellen",
     .Ablauf = [](frmMain&) { FormulierungenSicherheitskopie(); }},
    {.Name = "mnuFormulierungenRestore",
     .Text = "&Wiederherstellen aus Sicherheitskopie",
     .Ablauf = [](frmMain&) { FormulierungenWiederherstellen(); }},

    {.Art = Menue, .Name = "mnumnuExtras", .Text = "E&xtras"},
    {.Name = "mnuExtrasOptionen",
     .Text = "&Optionen...",
     .Ablauf = [](frmMain& Fenster) { Fenster.OptionenAendern(); }},
    {.Name = "mnuPassbilderErstellen", .Text = "Passbilder erstellen"},

    {.Art = Menue, .Name = "mnuHelp", .Text = "&Hilfe"},
    {.Name = "mnuHelpContents", .Text = "&Inhalt", .Ablauf = [](frmMain&) { HilfeInhalt(); }},
    {.Name = "mnuHelpSearchForHelpOn", .Text = "&Suche", .Ablauf = [](frmMain&) { HilfeSuche(); }},
    {.Art = Strich, .Name = "mnuHelpBar0"},
    {.Name = "mnuHelpAbout", .Text = "Inf&o", .Ablauf = [](frmMain& Fenster) { Fenster.InfoZeigen(); }},
};

constexpr Leisteneintrag Leiste[] = {
    {.Name = "New", .Text = "Neu", .Befehl = "mnuFileNew"},
    {.Name = "Open", .Text = "Öffnen", .Befehl = "mnuFileOpen"},
    {.Name = "Save", .Text = "Speichern", .Befehl = "mnuFileSave"},
    {},
    {.Name = "Print", .Text = "Drucken"},
    {},
    {.Name = "Cut", .Text = "Ausschneiden", .Befehl = "mnuEditCut"},
    {.Name = "Copy", .Text = "Kopieren", .Befehl = "mnuEditCopy"},
    {.Name = "Paste", .Text = "Einfügen", .Befehl = "mnuEditPaste"},
};

} // namespace

std::span<const Menueintrag> Menueeintraege() {
    return Menuebaum;
}

std::span<const Leisteneintrag> Leisteneintraege() {
    return Leiste;
}
