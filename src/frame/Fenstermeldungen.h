#pragma once

#include "core/Meldungen.h"

/// Boxes and file dialogs with Qt's. Texts are plain text and can be selected; the buttons read Ja, Nein,
/// Abbrechen and OK in every language of the system (objectNames btJa, btNein, btAbbrechen, btOk).
class Fenstermeldungen : public Meldungsdienst {
  public:
    Antwort Zeigen(const Meldungstext& Meldung) override;
    int Waehlen(const Auswahlfrage& Frage) override;
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& Wunsch) override;
    std::optional<Dateiwahl> Speichern(const Dateiwunsch& Wunsch) override;
};

/// A text as a box shows it: CR LF and CR break lines as LF does; nothing else is touched, since a teacher
/// may copy a path out of it. A word too long for a line is broken by QMessageBox.
QString BoxText(const QString& Text);

/// The name with the ending of the filter's pattern ("*.txt") if it has none of its own. An ending is two to
/// five letters or digits behind the last dot, a letter first: "klasse 3.b" has none.
QString EndungErgaenzt(const QString& Pfad, const QString& Muster);

/// A filter as Qt's file dialog wants it: "Notendatenbank (*.txt)".
QString FilterText(const Dateifilter& Filter);
