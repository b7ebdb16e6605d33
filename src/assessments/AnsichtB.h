#pragma once

#include "assessments/Textmass.h"
#include "assessments/Ziehgut.h"
#include "controls/Ansicht.h"
#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/Textmerker.h"
#include "views/Schuelerliste.h"

#include <QTime>

#include <functional>
#include <memory>

class EingabeText;
class QKeyEvent;
namespace Ui {
class AnsichtB;
}

/// The students of a class with their written assessment for one period, and beside it the phrase store,
/// fitted to the student at hand: view B. It keeps no copy of a text: each key goes into
/// Schueler.Beurteilung.
///
/// Rows of tblBeurteilungen: 0 the header, 1..Rows-2 the students (row datum Schueler.ID), Rows-1 an empty
/// one. Row r of tblBFloskel is Formulierung[r] of the selected area, the last one the place for a new
/// phrase. Node i of tvBFloskel is Lernbereiche[i], the last one the place for a new area.
class AnsichtB final : public Ansicht {
    Q_OBJECT

  public:
    explicit AnsichtB(QWidget* Eltern = nullptr);
    ~AnsichtB() override;

    void Fuellen() override;
    void LernbereicheFuellen();   ///< rebuilds the tree and selects its first node
    void FormulierungenFuellen(); ///< refills the phrase table from the selected area

  protected:
    void changeEvent(QEvent* Ereignis) override;
    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

  private:
    // Building.
    void SchuelerseiteEinrichten();
    void FloskelseiteEinrichten();
    void NameEinrichten();
    void ZieleEinrichten();

    // Students and their assessments.
    void KlassenFuellen();
    void KlasseGewaehlt();
    void BeurteilungenFuellen();
    void BeurteilungSchliessen();
    void SchuelerBetreten();
    void KopfzeileVerlassen();
    void NameUndGeschlechtZeigen();
    void VornameGeaendert();
    void BeurteilungGeaendert();
    bool BeurteilungTaste(QKeyEvent* Ereignis);
    void DatumEinfuegen();
    void FormulierungEinfuegen();
    int Schuelerindex() const; ///< of the current row, -1 if it leads to none
    void GeschlechtSpeichern(const QString& Wert);
    bool InSchuelerzeile() const;

    // The phrase table.
    int Bereich() const; ///< index of the selected area; the first one without a selection
    bool InLeerzeile() const;
    std::vector<Gitterzeile> AngepassteZeilen(const Lernbereich& Quelle) const;
    void FloskelBetreten();
    void FloskelGedrueckt();
    void FloskelGeklickt();
    void FloskelDoppelgeklickt();
    void FloskelTaste(QKeyEvent* Ereignis);
    void FloskelTasteLos(QKeyEvent* Ereignis);
    void FloskelVerlassen();
    void MarkeGeklickt(int Nummer);

    // Its editor.
    void FormulierungBearbeiten();
    void EditorZeigen(const QString& Text);
    void FormulierungUebernehmen();
    bool FormulierungAbgelegt(const QString& Text);
    void FormulierungGeaendert();
    bool FormulierungTaste(QKeyEvent* Ereignis);

    // The areas.
    void LernbereichGewaehlt();
    void LernbereichBeschriftet(int Knoten, const QString& Text);
    void LernbereichLoeschenFragen();
    void BaumAngleichen(int Knoten);

    // Dragging.
    void FormulierungZiehen();
    bool UeberBeurteilung(Ziehart Art, QPoint Ort);
    bool UeberSchueler(Ziehart Art, QPoint Ort);
    bool UeberTabelle(Ziehart Art, QPoint Ort);
    bool UeberBaum(Ziehart Art, QPoint Ort);
    void InTabelleAblegen(QPoint Ort);
    void ImBaumAblegen(Ziehart Art, QPoint Ort);
    void FormulierungInBereich(int Ziel);
    int SchuelerzeileBei(int Y) const;
    void Hinweis(const QString& Text) { Q_EMIT HinweisGewuenscht(Text); }

    int Zeilenhoehe(const Gitter& Tabelle, const QString& Text, int Spalte) const; ///< in pixels
    void ZeilenhoehenAnpassen(Gitter& Tabelle, int Spalte);
    void ZeilenhoeheAnpassen(Gitter& Tabelle, int Zeile, int Spalte);
    void BeurteilungshoehenAnpassen();
    void HoehenFolgenDerBreite(const Gitter& Tabelle, int Spalte, const std::function<void()>& Anpassen);

    std::unique_ptr<Ui::AnsichtB> Form;
    EingabeText* txtBEingabe;
    EingabeText* txtBEingabe2;
    Schriftmass Mass;
    std::shared_ptr<Schuelerliste> Liste = std::make_shared<Schuelerliste>(); ///< shared with the grid
    Textmerker<QString, int> Beurteilungshoehen; ///< in pixels, by period and place of the student
    int GemesseneBreite = -1;                    ///< of the column, that they hold for
    int BearbeiteteZeile = 0;                    ///< of tblBFloskel, that txtBEingabe2 lies over
    int BetreteneZeile = 1;                      ///< of tblBeurteilungen, entered last
    int LetzteFloskelZeile = -1;                 ///< row of the last plain click in tblBFloskel; -1 for none
    QTime LetzterFloskelKlick;                   ///< moment of that click
    bool Loeschtaste = false;                    ///< went down on tblBFloskel
    bool Ablegend = false; ///< the text of txtBEingabe2 is being stored: its leaving does not store it again
};
