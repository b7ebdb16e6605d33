#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the user answered. Closing a box without a choice is Abbrechen where that is offered, else Nein, else
/// Ok.
enum class Antwort { Ok, Ja, Nein, Abbrechen };
enum class Knoepfe { Ok, JaNein, JaNeinAbbrechen };
enum class Symbol { Ohne, Hinweis, Frage, Warnung, Fehler };

/// One message box. All texts are plain text; CR, LF and CR LF in them break lines.
struct Meldungstext {
    QString Text;
    QString Titel; ///< empty: no title of its own, the program's name stands there
    Knoepfe Auswahl = Knoepfe::Ok;
    Symbol Bild = Symbol::Ohne;
};

/// A question with buttons of its own, such as after a failed save.
struct Auswahlfrage {
    QString Text;
    QString Titel;
    QStringList Knoepfe; ///< captions, left to right; the last is what closing the box means
    int Vorgabe = 0;     ///< index of the default button
};

/// One filter of a file dialog, such as {"Notendatenbank (*.txt)", "*.txt"}.
struct Dateifilter {
    QString Name;
    QString Muster;
    bool operator==(const Dateifilter&) const = default;
};

struct Dateiwunsch {
    QString Titel;
    QList<Dateifilter> Filter;
    QString Vorgabe; ///< path or name preset, may be empty
};

struct Dateiwahl {
    QString Pfad;        ///< never empty; has the filter's ending if the user gave none
    int FilterIndex = 1; ///< from 1
};

/// The one door to message boxes and file dialogs. The frame implements it with Qt's; tests put a scripted
/// one in its place. Nothing here asks whether a file may be overwritten: the callers do, in their own words.
class Meldungsdienst {
  public:
    virtual ~Meldungsdienst() = default;
    virtual Antwort Zeigen(const Meldungstext& Meldung) = 0;
    virtual int Waehlen(const Auswahlfrage& Frage) = 0;                        ///< index of the button
    virtual std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& Wunsch) = 0;   ///< nothing: cancelled
    virtual std::optional<Dateiwahl> Speichern(const Dateiwunsch& Wunsch) = 0; ///< nothing: cancelled
};

/// Sets the service; nullptr takes it away. Without one, boxes answer themselves: Ok, else Nein or Abbrechen.
void MeldungsdienstSetzen(Meldungsdienst* Dienst);
Meldungsdienst& Meldungen();

/// Box with an OK button.
void MeldungZeigen(const QString& Text, const QString& Titel = {}, Symbol Bild = Symbol::Ohne);
/// Question with Ja and Nein: true for Ja.
bool FrageJaNein(const QString& Text, const QString& Titel = {});
/// Question with Ja, Nein and Abbrechen.
Antwort FrageJaNeinAbbrechen(const QString& Text, const QString& Titel = {});
