#pragma once

#include "views/Notenzeilen.h"

#include <QObject>

#include <functional>
#include <memory>

class EingabeFeld;
class Gitter;
class Notenzeilenquelle;
class QKeyEvent;
struct Halbjahresbeginn;

/// All in which the grade list of a subject and that of a student differ. A row's Datum is its hidden row
/// datum: the ID of the student or of the subject.
class Listenart {
  public:
    virtual ~Listenart() = default;

    virtual QString Kopf() const = 0;                         ///< title of the name column
    virtual QString Feldname() const = 0;                     ///< object name of the floating box
    virtual int Zaehlerplatz() const = 0;                     ///< slot of EingabeZaehler
    virtual QString Eingabehinweis() const = 0;               ///< hint on the entry row
    virtual bool NachNamen() const = 0;                       ///< rows are sorted by name
    virtual bool Gewaehlt() const = 0;                        ///< there is something to list
    virtual int Stufe() const = 0;                            ///< class level that names the tests
    virtual std::vector<Notenlistenzeile> Zeilen() const = 0; ///< from the records
    virtual qint32 Datum(const Notenlistenzeile& Zeile) const = 0;
    virtual qint32 SchuelerID(qint32 Datum) const = 0;                ///< student of a row
    virtual qint32 FachID(qint32 Datum) const = 0;                    ///< subject of a row
    virtual bool NamenAendern(qint32 Datum, const QString& Name) = 0; ///< false: nothing to change
    virtual void AktivSetzen(bool Aktiv) = 0;                         ///< enables what needs a selection
    virtual void ZeileBetreten(qint32 Datum) = 0;                     ///< a row of grades has become current
    virtual void EingabezeileBetreten() = 0;                          ///< the entry row has become current
    virtual void EingabeAbgebrochen() = 0;                            ///< Esc, or the list is filled anew
    /// True if a new row needs more than a name: Klassenwahl then takes the place of the box.
    virtual bool MitKlassenwahl() const = 0;
    virtual void Klassenwahl() = 0;
    virtual void NeueZeile(const QString& Text) = 0; ///< a text was typed in the entry row
};

/// A grade list on a grid with its floating box: what the views N1 and N2 share. 35 columns (see
/// Notenspalte); rows 0 and 1 are headers, 2..Rows-2 the rows of grades, Rows-1 the entry row.
class Notenliste : public QObject {
    Q_OBJECT

  public:
    /// Sets up the grid; both outlive the list.
    Notenliste(Gitter* Liste, Listenart& WelcheArt);
    ~Notenliste() override;

    void Fuellen(); ///< anew from the records; what is typed and not committed is dropped
    void HalbjahreAnzeigen();
    void GesamtnotenBerechnen();
    /// Makes the entry row current, or begins anew there.
    void ZurEingabezeile();
    void AufLetzteZeile(); ///< the row above the entry row
    void EineZeileHinauf();

    bool InEingabezeile() const;
    qint32 AktDatum() const; ///< hidden datum of the current row
    QString Name() const;    ///< what the current row shows in its name column

  Q_SIGNALS:
    void HinweisGewuenscht(const QString& Text);

  private:
    void GitterEinrichten();
    void EingabeEinrichten();
    void TitelSchreiben();
    void ZeilenSchreiben();
    void HalbjahrtitelSchreiben();
    void FuerStehendeZeilen(const std::function<void(int, const Halbjahresbeginn&)>& Tun);

    void ZelleBetreten();
    void ErlaubteZelleBetreten();
    void DurchschnittImFeldErneuern();
    bool AufErlaubteZelle();
    QString Zellenhinweis() const;
    void FeldZeigen();
    bool Uebernehmen(); ///< commits the box; false: a failure has been reported, nothing is stored
    void ZelleUebernehmen(const QString& Text);
    bool ZelleSpeichern(qint32 Datum, int Spalte, const QString& Text);
    void NoteAnzeigen(const QString& Text);

    bool Taste(const QKeyEvent& Ereignis);
    bool Bewegungstaste(const QKeyEvent& Ereignis);
    void Wechseln(int Zeilen, int Spalten);
    void Abbrechen();
    void Doppelklick();
    void DurchschnitteUebernehmen(int Spalte);

    Gitter* Tabelle;
    EingabeFeld* Feld;
    Listenart& Art;
    std::shared_ptr<Notenzeilenquelle> Quelle; ///< of the rows in the grid; shared with it
};
