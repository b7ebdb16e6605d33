// The current cell of a grade list: the floating box, its commit, keys and mouse.

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Fehlerfang.h"
#include "core/FktAllgemein.h"
#include "core/Meldungen.h"
#include "core/Zahlen.h"
#include "grading/Gesamtnoten.h"
#include "grading/Noteneintrag.h"
#include "views/Notenliste.h"

#include <QKeyEvent>

namespace {

constexpr int ErsteZeile = 2;
constexpr qint16 Wartezeit = 6; ///< ticks after the last key until the box commits by itself

bool IstDurchschnitt(int Spalte) {
    return Spalte == Notenspalte::HalbjahrDurchschnitt || Spalte == Notenspalte::JahrDurchschnitt;
}

bool IstZeugnis(int Spalte) {
    return Spalte == Notenspalte::HalbjahrZeugnis || Spalte == Notenspalte::JahrZeugnis;
}

bool AendertText(const QKeyEvent& Taste) {
    if (Taste.key() == Qt::Key_Backspace || Taste.key() == Qt::Key_Delete)
        return true;
    const bool Befehl = Taste.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !Befehl && !Taste.text().isEmpty() && Taste.text().front().isPrint();
}

} // namespace

void Notenliste::EingabeEinrichten() {
    Feld->setObjectName(Art.Feldname());
    Feld->setAccessibleName(QStringLiteral("Eingabe"));
    Feld->setTastenregel([this](const QKeyEvent* Ereignis) { return Taste(*Ereignis); });
    connect(Feld, &EingabeFeld::Geaendert, this, [this] { EingabeZaehler[Art.Zaehlerplatz()] = Wartezeit; });
    connect(Feld, &EingabeFeld::Verlassen, this, &Notenliste::Uebernehmen);
    connect(Feld, &EingabeFeld::Betreten, this, [this] { Q_EMIT HinweisGewuenscht(Zellenhinweis()); });
    connect(Feld, &EingabeFeld::Doppelgeklickt, this, &Notenliste::Doppelklick);
    connect(Tabelle, &Gitter::ZelleBetreten, this, [this] {
        if (GridEreignisseAktiv)
            ZelleBetreten();
    });
    EingabezaehlerAktion(Art.Zaehlerplatz(), [this] { Uebernehmen(); });
}

/// The headers are never entered: a click on one goes to the first row. In the entry row only the name is
/// typed. False if the cell has been left so.
bool Notenliste::AufErlaubteZelle() {
    if (Tabelle->Row() < ErsteZeile)
        Tabelle->setRow(ErsteZeile);
    else if (InEingabezeile() && Tabelle->Col() != Notenspalte::Name)
        Tabelle->setCol(Notenspalte::Name);
    else
        return true;
    return false;
}

void Notenliste::ZelleBetreten() {
    if (AufErlaubteZelle() && !Ausfuehren([this] { ErlaubteZelleBetreten(); }))
        Abbrechen(); // or the box of the cell before would stay, over a cell it does not belong to
}

void Notenliste::ErlaubteZelleBetreten() {
    if (InEingabezeile() && Art.MitKlassenwahl()) {
        Abbrechen();
        Art.Klassenwahl();
        return;
    }
    FeldZeigen();
    EingabeZaehler[Art.Zaehlerplatz()] = 0;
    if (InEingabezeile()) {
        Art.EingabezeileBetreten();
        return;
    }
    Art.ZeileBetreten(AktDatum());
    if (Tabelle->Col() >= 1 && Tabelle->Col() <= Notenspalte::LetzterTest)
        AktProbe = Tabelle->Col() - 1;
}

/// A box over an average shows what the cell shows.
void Notenliste::DurchschnittImFeldErneuern() {
    if (Feld->isVisible() && IstDurchschnitt(Tabelle->Col()))
        Feld->TextSetzen(Tabelle->TextMatrix(Tabelle->Row(), Tabelle->Col()));
}

void Notenliste::FeldZeigen() {
    const int Zeile = Tabelle->Row();
    const int Spalte = Tabelle->Col();
    Feld->setAlignment(Spalte == Notenspalte::Name ? Qt::AlignLeft : Qt::AlignHCenter);
    Feld->Zeigen(Tabelle->TextMatrix(Zeile, Spalte), Tabelle->CellForeColor(Zeile, Spalte));
    Q_EMIT HinweisGewuenscht(Zellenhinweis());
}

QString Notenliste::Zellenhinweis() const {
    if (InEingabezeile())
        return Art.Eingabehinweis();
    if (IstDurchschnitt(Tabelle->Col()))
        return QStringLiteral("Die Durchschnittsnoten werden automatisch ermittelt und sind nicht änderbar!");
    if (IstZeugnis(Tabelle->Col()))
        return QStringLiteral("Hier die Noten eingeben, die auf dem Zeugnis erscheinen sollen!");
    return QStringLiteral(
        "Mit gedrückter Umschalt-Taste und den Cursortasten kann die Zelle gewechselt werden!");
}

bool Notenliste::Uebernehmen() {
    EingabeZaehler[Art.Zaehlerplatz()] = 0;
    if (!Feld->isVisibleTo(Tabelle) || Tabelle->Row() < ErsteZeile)
        return true;
    const QString Text = Feld->text();
    return Ausfuehren([this, &Text] {
        if (!InEingabezeile())
            ZelleUebernehmen(Text);
        else if (!Text.isEmpty())
            Art.NeueZeile(Text);
    });
}

void Notenliste::ZelleUebernehmen(const QString& Text) {
    const int Spalte = Tabelle->Col();
    if (!ZelleSpeichern(AktDatum(), Spalte, Text))
        return;
    if (Spalte >= 1 && Spalte <= Notenspalte::LetzteNote)
        NoteAnzeigen(Text);
    else
        Tabelle->setTextMatrix(Tabelle->Row(), Spalte, Text);
}

/// Stores a text behind its cell; true if it differed. Averages are nobody's to type.
bool Notenliste::ZelleSpeichern(qint32 Datum, int Spalte, const QString& Text) {
    if (Spalte == Notenspalte::Name)
        return Art.NamenAendern(Datum, Text);
    const qint32 Schueler_ID = Art.SchuelerID(Datum);
    const qint32 Fach_ID = Art.FachID(Datum);
    if (Spalte <= Notenspalte::LetzteNote)
        return NoteEintragen(Schueler_ID, Fach_ID, Spalte, Text);
    return IstZeugnis(Spalte) &&
           ZeugnisnoteEintragen(Schueler_ID, Fach_ID, Spalte == Notenspalte::HalbjahrZeugnis, Text);
}

void Notenliste::NoteAnzeigen(const QString& Text) {
    const int Zeile = Tabelle->Row();
    const int Spalte = Tabelle->Col();
    Tabelle->setTextMatrix(Zeile, Spalte, Text);
    if (Spalte <= Notenspalte::LetzterTest && !Text.isEmpty()) {
        Tabelle->setCellForeColor(Zeile, Spalte, QColor(255, 0, 0)); // set by hand
        Feld->FarbeSetzen(Tabelle->CellForeColor(Zeile, Spalte));
    }
    GesamtnotenBerechnen();
}

bool Notenliste::Taste(const QKeyEvent& Ereignis) {
    return Bewegungstaste(Ereignis) || (IstDurchschnitt(Tabelle->Col()) && AendertText(Ereignis));
}

bool Notenliste::Bewegungstaste(const QKeyEvent& Ereignis) {
    const bool Umschalt = Ereignis.modifiers().testFlag(Qt::ShiftModifier);
    switch (Ereignis.key()) {
    case Qt::Key_Up:
        if (Tabelle->Row() > ErsteZeile)
            Wechseln(-1, 0);
        return true;
    case Qt::Key_Down:
        if (!InEingabezeile())
            Wechseln(1, 0);
        return true;
    case Qt::Key_Left:
        if (Umschalt && Tabelle->Col() > 0)
            Wechseln(0, -1);
        return Umschalt;
    case Qt::Key_Right:
        if (Umschalt && Tabelle->Col() < Tabelle->Cols() - 1)
            Wechseln(0, 1);
        return Umschalt;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Wechseln(1, 0);
        return true;
    case Qt::Key_Escape:
        Abbrechen();
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true; // the grid would leave the cell without a commit
    default:
        return false;
    }
}

/// Commits and goes on from the cell that is current then: a new row makes the list longer. Outside the list
/// it stays.
void Notenliste::Wechseln(int Zeilen, int Spalten) {
    if (!Uebernehmen())
        return;
    Tabelle->setCell(qMax(ErsteZeile, Tabelle->Row() + Zeilen), Tabelle->Col() + Spalten);
    Feld->selectAll();
}

/// What was typed since the last commit is dropped, also by the timer.
void Notenliste::Abbrechen() {
    EingabeZaehler[Art.Zaehlerplatz()] = 0;
    Feld->Verbergen();
    Art.EingabeAbgebrochen();
}

void Notenliste::Doppelklick() {
    if (IstZeugnis(Tabelle->Col()) &&
        FrageJaNein(
            QStringLiteral("Sollen die errechneten Durchschnittsnoten als Zeugnisnoten übernommen werden?")))
        Ausfuehren([this] { DurchschnitteUebernehmen(Tabelle->Col()); });
}

/// Each average, as a whole number, becomes the report grade beside it; where there is none, the report grade
/// goes.
void Notenliste::DurchschnitteUebernehmen(int Spalte) {
    for (int Zeile = ErsteZeile; Zeile <= Tabelle->Rows() - 2; ++Zeile) {
        const QString Durchschnitt = Tabelle->TextMatrix(Zeile, Spalte - 1);
        const QString Note =
            Durchschnitt.isEmpty() ? QString() : ZahlFormat(ZahlAusText(Durchschnitt), QStringLiteral("0"));
        ZelleSpeichern(Tabelle->RowData(Zeile), Spalte, Note);
        Tabelle->setTextMatrix(Zeile, Spalte, Note);
    }
    Feld->TextSetzen(Tabelle->TextMatrix(Tabelle->Row(), Tabelle->Col()));
    EingabeZaehler[Art.Zaehlerplatz()] = 0;
    DatenGeaendert = true;
}
