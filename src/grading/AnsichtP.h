#pragma once

#include "controls/Ansicht.h"
#include "core/Definitionen.h"
#include "grading/Grenzverteilung.h"
#include "grading/Probentabelle.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class EingabeFeld;
class QKeyEvent;
class QPushButton;
class Textfeld;
namespace Ui {
class AnsichtP;
}

/// View P: one test of one subject, with its participants, their points and grades, the boundaries, the
/// automatic ways to set them, the mean and both charts. Each entry goes into the records and is evaluated as
/// soon as it is committed: by leaving its box, by a key that moves on, or by the countdown of its box.
///
/// The view shows AktFachID and AktProbe. Grid columns: 0 name, 1 points, 2 grade, 3 hidden ID; row 0 is the
/// header, the last row the empty one for a new student.
class AnsichtP final : public Ansicht {
    Q_OBJECT

  public:
    explicit AnsichtP(QWidget* Eltern = nullptr);
    ~AnsichtP() override;

    void Fuellen() override { SichtPFuellen(); }

    void SichtPFuellen();        ///< everything anew from the records
    void ProbentabelleFuellen(); ///< the list of the test and its boxes, sorted by name
    void ProbeAuswerten();       ///< grades, counts, mean and charts from the grid and the boxes

  protected:
    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

  private:
    // AnsichtPBau.cpp: the form and what its controls start
    void TabelleEinrichten();
    void ListenVerbinden();
    void TabelleVerbinden();
    void FelderVerbinden();
    void KnoepfeVerbinden();
    void FeldVerbinden(Textfeld* Feld, int Platz, const std::function<void()>& Uebernehmen);

    // AnsichtP.cpp: lists, fill and sorting
    void KlasseFachListeFuellen();
    void FachGewaehlt();
    void ProbeGewaehlt();
    void AnsichtPAktiv(bool Ein);
    void SortierungAnwenden(int Index);
    void NamenDrehen();
    void ProbeLeeren();
    void FelderFuellen(const Probe& Gezeigte);
    void EintragszeileAnsteuern();
    void SpaltenbreitenSetzen();
    void GrenzzeilenZeigen();

    // AnsichtPEingabe.cpp: the floating box and the commits
    void ZelleAktivieren();
    void EingabeZeigen();
    void EingabeVerbergen();
    void EintragszeileBetreten();
    void NeuaufnahmeBeginnen();
    void SchuelerEntfernen();
    bool TasteInEingabe(const QKeyEvent& Taste);
    void Weiterruecken(int Zeile, int Spalte);
    void EingabeUebernehmen();
    void NamenUebernehmen(int Zeile);
    void PunkteUebernehmen(int Zeile);
    void NoteUebernehmen(int Zeile);
    void cPunktetabelle_Validate();
    void cGesamtpunktzahl_Validate();
    void cNGrenze_Validate(int Index);
    void cPThemaDatumDatei_Validate();

    // AnsichtPAuswertung.cpp: evaluation and distributions
    Probenmassstab Massstab() const;
    void ErgebnisseZeigen(const Auswertung& Eine);
    void DiagrammeZeichnen();
    void TabellenVerteilung();
    void GaussVerteilungAnwenden(int Variante);
    void EigeneVerteilungAnwenden(int Variante);
    void GrenzenSetzen(const QStringList& Grenzen);
    void GrenzeVerschieben(const Grenzschritt& Schritt);

    int TeilnehmerAnzahl() const;
    qint32 ZeilenID(int Zeile) const;
    qint32 GewaehltesFach() const; ///< 0 if none
    int GewaehlteProbe() const;    ///< 1..20
    Probe* AktuelleProbe() const;  ///< nullptr without a subject

    /// What a fill depends on beside the participants.
    struct Fuellregeln {
        qint32 Fach_ID = 0;
        int Probe_ID = 0;
        Probe Inhalt;
        int HoechsteNote = 0;
        bool Berechnen = false;
        float PunkteAbstand = 0;
        bool Beruecksichtigen = false;
        float NotenAbstand = 0;

        bool operator==(const Fuellregeln&) const = default;
    };
    /// What the last fill has shown, while the grid still shows just that.
    struct Fuellstand {
        Fuellregeln Regeln;
        std::vector<Probenteilnehmer> Teilnehmer;
    };
    Fuellregeln JetzigeRegeln() const;
    bool GezeigterStandGilt() const;
    void TabelleAufbauen(const std::vector<Probenteilnehmer>& Teilnehmer);

    std::unique_ptr<Ui::AnsichtP> Form;
    Reihe<Textfeld*, 5> txtNGrenze;
    Reihe<QPushButton*, 5> btGauss;  ///< btGaußverteilung_0 to _4
    Reihe<QPushButton*, 5> btEigene; ///< btEigeneVerteilung_0 to _4
    EingabeFeld* txtEingabe = nullptr;
    std::optional<Fuellstand> GezeigterStand;
    bool InUebernahme = false;      ///< a commit of txtEingabe runs: the evaluation leaves the box alone
    bool NeuaufnahmeOffen = false;  ///< dlgNeuerSchueler1 is shown: cells are not entered
    bool NeuaufnahmeWartet = false; ///< the entry row was pressed; the dialog follows the release
    bool Plausibel = true;          ///< as the last evaluation found it
};
