// The current cell of view S: the floating box, its commit, keys and mouse.

#include "views/AnsichtS.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "core/FktAllgemein.h"
#include "records/Aendern.h"
#include "records/Anlegen.h"
#include "records/Satzdialoge.h"
#include "views/AnsichtSSpalten.h"
#include "views/Fuellsperre.h"

#include "ui_AnsichtS.h"

#include <QKeyEvent>

namespace {

constexpr int Titelzeile = 1;
constexpr int ErsteZeile = 2;
constexpr int Zaehlerplatz = 8;

} // namespace

void AnsichtS::EingabeEinrichten() {
    txtSEingabe = new EingabeFeld(tblSSchueler);
    txtSEingabe->setObjectName(QStringLiteral("txtSEingabe"));
    txtSEingabe->setAccessibleName(QStringLiteral("Eingabe"));
    txtSEingabe->setTastenregel([this](QKeyEvent* Ereignis) { return Taste(Ereignis); });
    connect(txtSEingabe, &EingabeFeld::Verlassen, this, &AnsichtS::cSchuelerliste_Validate);
    connect(txtSEingabe, &EingabeFeld::Doppelgeklickt, this, &AnsichtS::Doppelklick);
    connect(tblSSchueler, &Gitter::ZelleBetreten, this, [this] {
        if (GridEreignisseAktiv)
            SchuelerZelleBetreten();
    });
    connect(tblSSchueler, &Gitter::MausLosgelassen, this, [this](Qt::MouseButton Knopf, QPoint Ort) {
        if (Knopf == Qt::RightButton)
            NachKopfSortieren(Ort);
    });
}

bool AnsichtS::InEingabezeile() const {
    return tblSSchueler->Row() == tblSSchueler->Rows() - 1;
}

bool AnsichtS::InSchuelerzeile() const {
    return tblSSchueler->Row() >= ErsteZeile && !InEingabezeile();
}

bool AnsichtS::InFachspalte() const {
    return tblSSchueler->Col() >= 1 && tblSSchueler->Col() <= AnzTeilnahmeSpalten;
}

int AnsichtS::FeldNummer() const {
    return tblSSchueler->Col() - AnzTeilnahmeSpalten;
}

/// A click on the header carries over to a cell that can be edited: a group to the titles below it, the
/// corner to the first cell of the list. True if the cell has been left so.
bool AnsichtS::AusKopfecke() {
    const int Zeile = tblSSchueler->Row();
    if (Zeile < ErsteZeile && tblSSchueler->Col() == 0)
        tblSSchueler->setCell(ErsteZeile, 1);
    else if (Zeile < Titelzeile)
        tblSSchueler->setRow(Titelzeile);
    else if (InEingabezeile() && tblSSchueler->Col() != 0)
        tblSSchueler->setCol(0);
    else
        return false;
    return true;
}

void AnsichtS::SchuelerZelleBetreten() {
    if (AusKopfecke())
        return;
    txtSEingabe->Zeigen(tblSSchueler->TextMatrix(tblSSchueler->Row(), tblSSchueler->Col()));
    // Participation is turned round by the blank; nothing is typed into it, also by no input method. Cut and
    // paste are the other way in.
    txtSEingabe->setAttribute(Qt::WA_InputMethodEnabled, !(InSchuelerzeile() && InFachspalte()));
    EingabeZaehler[Zaehlerplatz] = 0;
    if (InFachspalte())
        AktFachID = tblSSchueler->ColData(tblSSchueler->Col());
    Form->btSFachLoeschen->setEnabled(InFachspalte());
    Form->btSSchuelerLoeschen->setEnabled(InSchuelerzeile());
    if (InSchuelerzeile()) {
        AktSchuelerID = tblSSchueler->RowData(tblSSchueler->Row());
        Q_EMIT PassbildGewuenscht();
    }
    Q_EMIT HinweisGewuenscht(Zellenhinweis());
}

QString AnsichtS::Zellenhinweis() const {
    if (InEingabezeile())
        return QStringLiteral("Zur Aufnahme eines neuen Schülers in die Klasse hier den Namen des Schülers "
                              "(Nachname Vorname) eingeben!");
    if (InFachspalte())
        return QStringLiteral("Um die Teilnahme eines Schülers an dem Fach zu ändern, bitte die "
                              "Leerzeichen-Taste benutzen!");
    return QStringLiteral(
        "Mit gedrückter Umschalt-Taste und den Cursortasten kann die Zelle gewechselt werden!");
}

bool AnsichtS::cSchuelerliste_Validate() {
    EingabeZaehler[Zaehlerplatz] = 0;
    const QString Text = OhneRandblanks(txtSEingabe->text());
    return Ausfuehren([this, &Text] {
        if (InEingabezeile()) {
            if (!Text.isEmpty())
                SchuelerAusEingabezeile(Text);
        } else if (ZelleSchreiben(Text)) {
            tblSSchueler->setTextMatrix(tblSSchueler->Row(), tblSSchueler->Col(), Text);
        }
        if (InFachspalte())
            TeilnahmenErneuern(*Liste);
        SpalteAnpassen(tblSSchueler->Col(), Spaltenbreiten());
    });
}

/// Stores the text behind the current cell of a title or a student. True if it differed.
bool AnsichtS::ZelleSchreiben(const QString& Text) {
    const int Spalte = tblSSchueler->Col();
    const qint32 Fach_ID = tblSSchueler->ColData(Spalte);
    const qint32 Schueler_ID = tblSSchueler->RowData(tblSSchueler->Row());
    // A merged subject shows a star behind its name. It is not taken off here: leaving the title stores it.
    if (tblSSchueler->Row() == Titelzeile)
        return InFachspalte() ? FachNamenAendern(Fach_ID, Text) : FeldTitelAendern(FeldNummer(), Text);
    if (Spalte == 0)
        return SchuelerNamenAendern(Schueler_ID, Text);
    return InFachspalte() ? TeilnahmeAendern(Schueler_ID, Fach_ID, Text)
                          : SchuelerFeldAendern(Schueler_ID, FeldNummer(), Text);
}

void AnsichtS::SchuelerAusEingabezeile(const QString& Name) {
    std::vector<Teilnahmezeile> Faecher;
    for (int j = 1; j <= AnzTeilnahmeSpalten; ++j)
        Faecher.push_back({tblSSchueler->ColData(j), QString(), QStringLiteral("ja")});
    // A text that is no class may stand in the combo: the list is still that of the class chosen before.
    const bool KlasseSteht = cbSKlasse->ListIndex() >= 0;
    SchuelerErstellen(Name, KlasseSteht ? cbSKlasse->currentText() : AktKlasse, Faecher);
    if (KlasseSteht)
        SchuelerlisteFuellen();
    else
        KlassenlisteFuellen();
    tblSSchueler->setRow(tblSSchueler->Rows() - 1);
}

bool AnsichtS::Taste(const QKeyEvent* Ereignis) {
    return Bewegungstaste(Ereignis) || Teilnahmetaste(Ereignis);
}

bool AnsichtS::Bewegungstaste(const QKeyEvent* Ereignis) {
    const int Zeile = tblSSchueler->Row();
    const int Spalte = tblSSchueler->Col();
    const bool Umschalt = Ereignis->modifiers() & Qt::ShiftModifier;
    switch (Ereignis->key()) {
    case Qt::Key_Up:
        if ((Spalte > 0 && Zeile > 1) || Zeile >= 3)
            ZelleWechseln(-1, 0);
        return true;
    case Qt::Key_Down:
        if (Zeile < tblSSchueler->Rows() - 1)
            ZelleWechseln(1, 0);
        return true;
    case Qt::Key_Left:
        if (!Umschalt || !((Spalte > 0 && Zeile > 1) || Spalte >= 2))
            return false;
        ZelleWechseln(0, -1);
        return true;
    case Qt::Key_Right:
        if (!Umschalt || Spalte >= tblSSchueler->Cols() - 1)
            return false;
        ZelleWechseln(0, 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (Zeile < tblSSchueler->Rows() - 1)
            ZelleWechseln(1, 0);
        else
            cSchuelerliste_Validate();
        return true;
    case Qt::Key_Escape:
        EingabeAbbrechen();
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true; // the grid would leave the cell without a commit
    default:
        return false;
    }
}

/// Commits and goes on from the cell that is current then: a new student makes the list longer.
void AnsichtS::ZelleWechseln(int Zeilen, int Spalten) {
    if (!cSchuelerliste_Validate())
        return;
    tblSSchueler->setCell(tblSSchueler->Row() + Zeilen, tblSSchueler->Col() + Spalten);
    txtSEingabe->selectAll();
}

void AnsichtS::EingabeAbbrechen() {
    txtSEingabe->Verbergen();
    Form->btSFachLoeschen->setEnabled(false);
    Form->btSSchuelerLoeschen->setEnabled(false);
}

/// In a cell of participation every character is swallowed, and a blank turns it round.
bool AnsichtS::Teilnahmetaste(const QKeyEvent* Ereignis) {
    if (!InSchuelerzeile() || !InFachspalte())
        return false;
    const QString Zeichen = Ereignis->text();
    if (Zeichen == QStringLiteral(" "))
        TeilnahmeUmschalten();
    const bool Loeschtaste = Ereignis->key() == Qt::Key_Backspace || Ereignis->key() == Qt::Key_Delete;
    const bool Befehl = Ereignis->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return Loeschtaste || (!Befehl && !Zeichen.isEmpty() && Zeichen.front().isPrint());
}

void AnsichtS::TeilnahmeUmschalten() {
    const QString Nein = QStringLiteral("nein");
    txtSEingabe->TextSetzen(txtSEingabe->text() == Nein ? QStringLiteral("ja") : Nein);
}

void AnsichtS::Doppelklick() {
    if (!InFachspalte())
        return;
    if (InSchuelerzeile())
        TeilnahmeUmschalten();
    else if (tblSSchueler->Row() == Titelzeile)
        AutoTeilnahme(window(), tblSSchueler, AnzTeilnahmeSpalten);
}

/// A right click on the header sorts by the column under it.
void AnsichtS::NachKopfSortieren(QPoint Ort) {
    const int Spalte = tblSSchueler->ColAt(Ort.x());
    const int Zeile = tblSSchueler->RowAt(Ort.y());
    if (Spalte < 0 || Zeile < 0 || Zeile >= ErsteZeile)
        return;
    if (txtSEingabe->hasFocus())
        cSchuelerliste_Validate();
    EingabeAbbrechen();
    SortSpalteS = Spalte;
    Sortieren();
}
