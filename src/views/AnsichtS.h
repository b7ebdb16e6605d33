#pragma once

#include "controls/Ansicht.h"
#include "views/Schuelerliste.h"
#include "views/Spaltenbreite.h"

#include <memory>

class EingabeFeld;
class Gitter;
class Kombinationsfeld;
class QKeyEvent;
namespace Ui {
class AnsichtS;
}

/// The students of one class with their participation in its subjects and their free fields: view S.
///
/// Columns of tblSSchueler: 0 the name, 1..P the subjects (column datum Fach.ID), P+1..P+14 the free fields.
/// Rows: 0 the groups, 1 the headers, 2..Rows-2 the students (row datum Schueler.ID), Rows-1 the entry row.
class AnsichtS final : public Ansicht {
    Q_OBJECT

  public:
    explicit AnsichtS(QWidget* Eltern = nullptr);
    ~AnsichtS() override;

    void Fuellen() override;

  private:
    void GitterEinrichten();
    void EingabeEinrichten();

    // Filling.
    void KlassenlisteFuellen();
    void KlasseGewaehlt();
    void SchuelerlisteFuellen();
    void KopfFuellen();
    void ZeilenFuellen();
    void AnsichtSAktiv(bool Aktiv);
    std::vector<double> Spaltenbreiten(); ///< of the widest text of each column, in pixels
    void SpalteAnpassen(int Spalte, const std::vector<double>& Breiten);
    void Sortieren();

    // The current cell.
    bool InEingabezeile() const;
    bool InSchuelerzeile() const;
    bool InFachspalte() const; ///< a subject column, in any row
    int FeldNummer() const;    ///< 1..14 in the columns of the free fields
    void SchuelerZelleBetreten();
    bool AusKopfecke();
    QString Zellenhinweis() const;
    bool cSchuelerliste_Validate(); ///< false: a failure has been reported, nothing is stored
    bool ZelleSchreiben(const QString& Text);
    void SchuelerAusEingabezeile(const QString& Name);

    // Keys and mouse.
    bool Taste(const QKeyEvent* Ereignis);
    bool Bewegungstaste(const QKeyEvent* Ereignis);
    bool Teilnahmetaste(const QKeyEvent* Ereignis);
    void ZelleWechseln(int Zeilen, int Spalten);
    void EingabeAbbrechen();
    void TeilnahmeUmschalten();
    void Doppelklick();
    void NachKopfSortieren(QPoint Ort);

    // Buttons.
    void NeuesFach();
    void FachLoeschen();
    void NeuerSchueler();
    void SchuelerLoeschen();
    void NeueKlasse();
    void KlasseLoeschen();

    std::unique_ptr<Ui::AnsichtS> Form;
    Gitter* tblSSchueler;
    Kombinationsfeld* cbSKlasse;
    EingabeFeld* txtSEingabe;
    std::shared_ptr<Schuelerliste> Liste = std::make_shared<Schuelerliste>(); ///< shared with the grid
    Spaltenmass Mass;
    int AnzTeilnahmeSpalten = 0; ///< P
    int SortSpalteS = 0;         ///< column by which the list is sorted
};
