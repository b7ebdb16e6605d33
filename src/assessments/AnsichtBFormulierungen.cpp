// The phrase store beside the assessments: the table with its editor, and the tree of areas.

#include "assessments/AnsichtB.h"
#include "assessments/Formulierungsanpassung.h"
#include "assessments/Formulierungsspeicher.h"
#include "controls/EingabeText.h"
#include "core/Fehlerfang.h"
#include "core/Meldungen.h"
#include "core/Uhr.h"

#include "ui_AnsichtB.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

namespace {

constexpr int Namensplatz = 11; ///< of txtBVorname in EingabeZaehler

bool NurVorn(const QFocusEvent& Ereignis) {
    return Ereignis.reason() == Qt::PopupFocusReason || Ereignis.reason() == Qt::ActiveWindowFocusReason ||
           Ereignis.reason() == Qt::MenuBarFocusReason;
}

bool IstEingabetaste(const QKeyEvent& Taste) {
    return Taste.key() == Qt::Key_Return || Taste.key() == Qt::Key_Enter;
}

} // namespace

void AnsichtB::FloskelseiteEinrichten() {
    Formulierungstabelle* Tabelle = Form->tblBFloskel;
    Tabelle->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Tabelle->installEventFilter(this);
    HoehenFolgenDerBreite(*Tabelle, 0, [this, Tabelle] { ZeilenhoehenAnpassen(*Tabelle, 0); });
    const auto Melden = [this, Tabelle](auto Signal, void (AnsichtB::*Antwort)()) {
        connect(Tabelle, Signal, this,
                [this, Antwort] { Ausfuehren([this, Antwort] { (this->*Antwort)(); }); });
    };
    Melden(&Gitter::ZelleBetreten, &AnsichtB::FloskelBetreten);
    Melden(&Gitter::Doppelgeklickt, &AnsichtB::FloskelDoppelgeklickt);
    Melden(&Formulierungstabelle::Gedrueckt, &AnsichtB::FloskelGedrueckt);
    Melden(&Formulierungstabelle::Losgelassen, &AnsichtB::FloskelGeklickt);
    Melden(&Formulierungstabelle::ZiehenBegonnen, &AnsichtB::FormulierungZiehen);
    connect(Tabelle, &Gitter::TasteGedrueckt, this, &AnsichtB::FloskelTaste);
    connect(Tabelle, &Gitter::TasteLosgelassen, this, &AnsichtB::FloskelTasteLos);

    txtBEingabe2->setObjectName(QStringLiteral("txtBEingabe2"));
    txtBEingabe2->setAccessibleName(QStringLiteral("Formulierung"));
    txtBEingabe2->setMehrzeilig(false); // a phrase is one line of the file
    txtBEingabe2->setTastenregel([this](QKeyEvent* Taste) { return FormulierungTaste(Taste); });
    connect(txtBEingabe2, &EingabeText::Geaendert, this, [this] { FormulierungGeaendert(); });
    connect(txtBEingabe2, &EingabeText::Betreten, this, [this] {
        Hinweis(
            QStringLiteral("Schreiben/Ändern Sie die Formulierung so, wie wenn Sie sie für den ausgewählten "
                           "Schüler schreiben würden."));
    });
    connect(txtBEingabe2, &EingabeText::Verlassen, this, [this] {
        Hinweis({});
        Ausfuehren([this] { FormulierungUebernehmen(); });
    });

    QSizePolicy Platz = Form->picSmileyContainer->sizePolicy();
    Platz.setRetainSizeWhenHidden(true);
    Form->picSmileyContainer->setSizePolicy(Platz);
    Form->picSmileyContainer->hide();
    connect(Form->picSmileyContainer, &Smileyleiste::Geklickt, this,
            [this](int Nummer) { Ausfuehren([this, Nummer] { MarkeGeklickt(Nummer); }); });
    connect(Form->picSmileyContainer, &Smileyleiste::FokusVerloren, this, &AnsichtB::FloskelVerlassen);

    Lernbereichsbaum* Baum = Form->tvBFloskel;
    connect(Baum, &Lernbereichsbaum::Gewaehlt, this, &AnsichtB::LernbereichGewaehlt);
    connect(Baum, &Lernbereichsbaum::Beschriftet, this, &AnsichtB::LernbereichBeschriftet);
    connect(Baum, &Lernbereichsbaum::LoeschenGewuenscht, this, &AnsichtB::LernbereichLoeschenFragen);
    connect(Baum, &Lernbereichsbaum::ZiehenBegonnen, this,
            [Baum] { Ziehen(Baum, Ziehart::Lernbereich, Baum->Name(Baum->GezogenerKnoten()), {}); });
}

// Filling

void AnsichtB::LernbereicheFuellen() {
    QStringList Namen;
    for (int i = 0; i < AnzLernbereiche; ++i)
        Namen.append(Lernbereiche[i].Name);
    Form->tvBFloskel->KnotenSetzen(Namen + QStringList{NeuerLernbereichText});
    FormulierungenFuellen();
    LetzteFloskelZeile = -1;
}

void AnsichtB::FormulierungenFuellen() {
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    EingabeZaehler[Namensplatz] = 0; // nothing is left to refresh
    if (AnzLernbereiche == 0)
        Form->tvBFloskel->KnotenSetzen({NeuerLernbereichText});
    if (Form->tvBFloskel->Knoten() >= 0) {
        const int Oben = Tabelle.TopRow();
        const int Zeile = Tabelle.Row();
        Tabelle.setUpdatesEnabled(false);
        Tabelle.ZeilenSetzen(AngepassteZeilen(Lernbereiche[Bereich()]));
        ZeilenhoehenAnpassen(Tabelle, 0);
        Tabelle.setTopRow(Oben < Tabelle.Rows() ? Oben : 0);
        if (Zeile < 0 || Zeile >= Tabelle.Rows())
            Tabelle.setCell(0, 0);
        Tabelle.setUpdatesEnabled(true);
    }
    Form->picSmileyContainer->hide();
    if (txtBEingabe2->hasFocus())
        Hinweis({}); // the hint is the editor's
    txtBEingabe2->Verbergen();
}

std::vector<Gitterzeile> AnsichtB::AngepassteZeilen(const Lernbereich& Quelle) const {
    std::vector<Gitterzeile> Zeilen;
    for (int i = 0; i < Quelle.Anzahl; ++i) {
        const QString& Gespeichert = Quelle.Formulierung[i];
        const QString Text =
            FormulierungAngepasst(Gespeichert, Form->txtBVorname->text(), Form->obBMännlich->isChecked());
        Zeilen.push_back({0, {{Text, 0, Markenfarbe(Gespeichert).value_or(0)}}});
    }
    return Zeilen;
}

int AnsichtB::Bereich() const {
    return qMax(0, Form->tvBFloskel->Knoten());
}

bool AnsichtB::InLeerzeile() const {
    return Form->tblBFloskel->Row() >= Form->tblBFloskel->Rows() - 1;
}

// Mouse and keys of the phrase table

void AnsichtB::FloskelBetreten() {
    if (!GridEreignisseAktiv)
        return;
    Form->picSmileyContainer->show();
    const QColor Grund = Form->tblBFloskel->CellBackColor(Form->tblBFloskel->Row(), 0);
    if (const auto Nummer = MarkeMitFarbe(Grund.rgb()))
        Form->picSmileyContainer->Auswaehlen(*Nummer);
}

void AnsichtB::FloskelGedrueckt() {
    if (InLeerzeile())
        FormulierungBearbeiten();
}

void AnsichtB::FloskelGeklickt() {
    constexpr int Doppelklickzeit = 864; // milliseconds: 0.00001 of a day
    if (!txtBEingabe2->isHidden())       // the press has opened it, and its hint stands
        return;
    Hinweis({});
    if (AnzLernbereiche == 0 || InLeerzeile())
        return;
    const QTime Klick = Jetzt().time();
    if (LetzteFloskelZeile == Form->tblBFloskel->Row() &&
        LetzterFloskelKlick.msecsTo(Klick) > Doppelklickzeit) {
        FormulierungBearbeiten();
        return;
    }
    LetzteFloskelZeile = Form->tblBFloskel->Row();
    LetzterFloskelKlick = Klick;
    FloskelBetreten();
    Hinweis(QStringLiteral("Zum Ändern der Formulierung noch einmal auf die Formulierung klicken!"));
}

void AnsichtB::FloskelDoppelgeklickt() {
    if (txtBEingabe->isHidden() || InLeerzeile())
        return;
    FormulierungEinfuegen();
    txtBEingabe->setFocus();
    LetzteFloskelZeile = -1;
    Hinweis(QStringLiteral(
        "Mit Doppelklick auf eine Formulierung wird diese in die ausgewählte Beurteilung eingefügt."));
}

/// What the mouse can do, the keys can, too: edit, insert, mark.
void AnsichtB::FloskelTaste(QKeyEvent* Taste) {
    const QString Zeichen = Taste->text();
    if (IstLoeschtaste(*Taste))
        Loeschtaste |= !Taste->isAutoRepeat();
    else if (Taste->key() == Qt::Key_F2)
        FormulierungBearbeiten();
    else if (IstEingabetaste(*Taste))
        FloskelDoppelgeklickt();
    else
        for (int Nummer = 0; Nummer < AnzMarken; ++Nummer)
            if (Zeichen == QChar(Marke(Nummer).Zeichen))
                MarkeGeklickt(Nummer);
}

/// A release whose press went elsewhere deletes nothing.
void AnsichtB::FloskelTasteLos(QKeyEvent* Taste) {
    if (!IstLoeschtaste(*Taste) || Taste->isAutoRepeat() || !std::exchange(Loeschtaste, false))
        return;
    if (Form->tvBFloskel->Knoten() < 0 || InLeerzeile() || !Form->tblBFloskel->hasFocus())
        return;
    FormulierungLoeschen(Bereich(), Form->tblBFloskel->Row());
    FormulierungenFuellen();
}

bool AnsichtB::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    if (Objekt == Form->fmFloskel && Ereignis->type() == QEvent::MouseMove)
        Hinweis({});
    if (Objekt == Form->tblBFloskel && Ereignis->type() == QEvent::FocusOut &&
        !NurVorn(*static_cast<QFocusEvent*>(Ereignis)) && !Form->picSmileyContainer->HatFokus())
        FloskelVerlassen();
    return Ansicht::eventFilter(Objekt, Ereignis);
}

void AnsichtB::FloskelVerlassen() {
    Form->picSmileyContainer->hide();
    Loeschtaste = false;
    Hinweis({});
}

void AnsichtB::MarkeGeklickt(int Nummer) {
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    if (AnzLernbereiche == 0 || !FormulierungMarkieren(Bereich(), Tabelle.Row(), Nummer))
        return;
    Form->picSmileyContainer->Auswaehlen(Nummer);
    Tabelle.setCellBackColor(Tabelle.Row(), 0, QColor(Marke(Nummer).Farbe));
}

// The editor of the phrase table

void AnsichtB::FormulierungBearbeiten() {
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    if (Tabelle.Row() < 0 || (InLeerzeile() && !Angenommen(PlatzPruefen(Bereich()))))
        return;
    if (Form->txtBVorname->text().isEmpty()) {
        Form->txtBVorname->setText(Namensplatzhalter);
        FormulierungenFuellen();
    }
    EingabeZaehler[Namensplatz] = 0;
    LetzteFloskelZeile = -1;
    BearbeiteteZeile = Tabelle.Row();
    EditorZeigen(Tabelle.TextMatrix(BearbeiteteZeile, 0));
    Form->picSmileyContainer->hide();
}

/// Over the row at hand, which is the current one then.
void AnsichtB::EditorZeigen(const QString& Text) {
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    const QScopedValueRollback Ruhe(GridEreignisseAktiv, false);
    Tabelle.setCell(BearbeiteteZeile, 0);
    Tabelle.scrollTo(Tabelle.currentIndex());
    const Lernbereich& Quelle = Lernbereiche[Bereich()];
    const auto Farbe =
        BearbeiteteZeile < Quelle.Anzahl ? Markenfarbe(Quelle.Formulierung[BearbeiteteZeile]) : std::nullopt;
    txtBEingabe2->Zeigen(Text, Farbe ? QColor(*Farbe) : QColor());
}

void AnsichtB::FormulierungGeaendert() {
    if (!GridEreignisseAktiv)
        return;
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    Tabelle.setTextMatrix(BearbeiteteZeile, 0, txtBEingabe2->Text());
    ZeilenhoeheAnpassen(Tabelle, BearbeiteteZeile, 0);
}

bool AnsichtB::FormulierungTaste(QKeyEvent* Taste) {
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    const bool Hinauf = Taste->modifiers().testFlag(Qt::ShiftModifier) && Taste->key() == Qt::Key_Up;
    const bool Hinunter = Taste->modifiers().testFlag(Qt::ShiftModifier) && Taste->key() == Qt::Key_Down;
    if (Taste->key() == Qt::Key_Escape || IstEingabetaste(*Taste)) {
        FormulierungUebernehmen();
        return true;
    }
    const int Zeile = Tabelle.Row() + (Hinauf ? -1 : Hinunter ? 1 : 0);
    if ((Hinauf && Tabelle.Row() > 1) || (Hinunter && Zeile < Tabelle.Rows())) {
        // The text belongs to the row it was written in.
        FormulierungUebernehmen();
        if (txtBEingabe2->isHidden()) {
            Tabelle.setRow(Zeile);
            FormulierungBearbeiten();
        }
    }
    return Hinauf || Hinunter;
}

void AnsichtB::FormulierungUebernehmen() {
    if (txtBEingabe2->isHidden() || Ablegend)
        return;
    const QScopedValueRollback<bool> Einmal(Ablegend, true);
    if (FormulierungAbgelegt(txtBEingabe2->Text().trimmed())) {
        FormulierungenFuellen();
        return;
    }
    // Refused: the text stays in its editor, over its own row, when the focus has come to rest. Where a
    // refill has closed the editor by then, as another area does, the row is no longer its own.
    const auto Zurueck = [this] {
        if (!txtBEingabe2->isHidden())
            EditorZeigen(txtBEingabe2->Text());
    };
    QMetaObject::invokeMethod(txtBEingabe2, Zurueck, Qt::QueuedConnection);
}

bool AnsichtB::FormulierungAbgelegt(const QString& Text) {
    if (Text.isEmpty())
        return true;
    const int Ziel = Bereich();
    const QString Gespeichert =
        FormulierungZurueck(Text, Form->txtBVorname->text(), Form->obBWeiblich->isChecked());
    if (!Angenommen(FormulierungAblegen(Ziel, BearbeiteteZeile, Gespeichert)))
        return false;
    BaumAngleichen(Ziel);
    return true;
}

// The areas

/// A node that stood for a new area has become one: it gets its name, and a new one comes behind it.
void AnsichtB::BaumAngleichen(int Knoten) {
    if (Form->tvBFloskel->topLevelItemCount() > AnzLernbereiche)
        return;
    Form->tvBFloskel->NameSetzen(Knoten, Lernbereiche[Knoten].Name);
    Form->tvBFloskel->NeuenKnotenAnfuegen(NeuerLernbereichText);
}

void AnsichtB::LernbereichGewaehlt() {
    if (AnzLernbereiche == 0)
        return;
    FormulierungenFuellen();
    Form->tblBFloskel->setTopRow(0);
    Form->tvBFloskel->setHervorgehoben(-1);
}

/// An empty text leaves the label as it was.
void AnsichtB::LernbereichBeschriftet(int Knoten, const QString& Text) {
    if (Text.isEmpty() || !Angenommen(LernbereichBenennen(Knoten, Text)))
        return;
    Form->tvBFloskel->NameSetzen(Knoten, Text);
    BaumAngleichen(Knoten);
}

void AnsichtB::LernbereichLoeschenFragen() {
    const int Knoten = Form->tvBFloskel->Knoten();
    if (Knoten < 0 || Knoten >= AnzLernbereiche)
        return;
    const QString Frage = QStringLiteral("Wollen Sie wirklich den Lernbereich ") +
                          Form->tvBFloskel->Name(Knoten) +
                          QStringLiteral(" mit allen darin enthaltenen Formulierungen löschen?");
    if (!FrageJaNein(Frage, QStringLiteral("Sicherheitsabfrage")))
        return;
    LernbereichLoeschen(Knoten);
    LernbereicheFuellen();
}
