// View P: the floating box over the list, and the commits of all boxes.

#include "controls/EingabeFeld.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "grading/AnsichtP.h"
#include "grading/Eingabeplaetze.h"
#include "grading/Probenspalten.h"
#include "records/Loeschfragen.h"
#include "records/Satzdialoge.h"
#include "ui_AnsichtP.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

void AnsichtP::ZelleAktivieren() {
    if (!GridEreignisseAktiv || NeuaufnahmeOffen)
        return;
    NeuaufnahmeWartet = false;
    const int Zeile = Form->tblPPunkte->Row();
    if (Zeile > TeilnehmerAnzahl()) {
        EintragszeileBetreten();
    } else if (Zeile < 1) {
        // The header is no cell to type in.
        if (TeilnehmerAnzahl() > 0)
            Form->tblPPunkte->setRow(1);
        else
            EingabeVerbergen();
    } else if (Form->tblPPunkte->Col() > Probenspalte::Note) {
        Form->tblPPunkte->setCol(Probenspalte::Note);
    } else {
        EingabeZeigen();
    }
}

void AnsichtP::EingabeZeigen() {
    const int Zeile = Form->tblPPunkte->Row();
    const int Spalte = Form->tblPPunkte->Col();
    txtEingabe->Zeigen(Form->tblPPunkte->TextMatrix(Zeile, Spalte),
                       Form->tblPPunkte->CellForeColor(Zeile, Spalte));
    Form->btPTempSchuelerLoeschen->setVisible(true);
    EingabeZaehler[Eingabeplatz::Punktetabelle] = 0;
    AktSchuelerID = ZeilenID(Zeile);
    Q_EMIT PassbildGewuenscht();
}

void AnsichtP::EingabeVerbergen() {
    EingabeZaehler[Eingabeplatz::Punktetabelle] = 0;
    txtEingabe->Verbergen();
    Form->btPTempSchuelerLoeschen->setVisible(false);
}

void AnsichtP::EintragszeileBetreten() {
    AktSchuelerID = 0;
    Q_EMIT PassbildGewuenscht();
    EingabeVerbergen();
    // A dialog that opened while the button is down would get its release.
    if (QGuiApplication::mouseButtons() & Qt::LeftButton)
        NeuaufnahmeWartet = true;
    else
        NeuaufnahmeBeginnen();
}

void AnsichtP::NeuaufnahmeBeginnen() {
    NeuaufnahmeWartet = false;
    Gitter* Tabelle = Form->tblPPunkte;
    const QRect Zelle = Tabelle->CellRect(Tabelle->Row(), Probenspalte::Name);
    const QPoint Daneben = Tabelle->mapToGlobal(QPoint(Tabelle->width() + 4, Zelle.top()));
    bool Aufgenommen = false;
    {
        const QScopedValueRollback<bool> Offen(NeuaufnahmeOffen, true);
        Aufgenommen = NeuerSchuelerDerProbe(this, Daneben, Form->cbPKlasseFach->currentText(),
                                            GewaehltesFach(), GewaehlteProbe());
    }
    if (!Aufgenommen) {
        if (Tabelle->Row() >= 2)
            Tabelle->setRow(Tabelle->Row() - 1);
        return;
    }
    Q_EMIT PassbildGewuenscht();
    ProbentabelleFuellen();
    if (Tabelle->Row() == TeilnehmerAnzahl())
        ZelleAktivieren();
    else
        Tabelle->setRow(TeilnehmerAnzahl());
}

void AnsichtP::SchuelerEntfernen() {
    const int Zeile = Form->tblPPunkte->Row();
    if (Zeile < 1 || Zeile > TeilnehmerAnzahl())
        return;
    const qint32 ID = ZeilenID(Zeile);
    if (IstZSchueler(ID))
        ZSchuelerEntfernen(ID);
    else
        SchuelerLoeschenFragen(ID);
    ProbentabelleFuellen();
}

bool AnsichtP::TasteInEingabe(const QKeyEvent& Taste) {
    const int Zeile = Form->tblPPunkte->Row();
    const int Spalte = Form->tblPPunkte->Col();
    const int Letzte = Form->tblPPunkte->Rows() - 1;
    const bool Umschalt = Taste.modifiers().testFlag(Qt::ShiftModifier);
    switch (Taste.key()) {
    case Qt::Key_Up:
        if (Zeile <= 1)
            return false;
        Weiterruecken(Zeile - 1, Spalte);
        return true;
    case Qt::Key_Down:
        if (Zeile >= Letzte)
            return false;
        Weiterruecken(Zeile + 1, Spalte);
        return true;
    case Qt::Key_Left:
        if (!Umschalt || Spalte < 1)
            return false;
        Weiterruecken(Zeile, Spalte - 1);
        return true;
    case Qt::Key_Right:
        if (!Umschalt || Spalte >= Probenspalte::Note)
            return false;
        Weiterruecken(Zeile, Spalte + 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Weiterruecken(qMin(Zeile + 1, Letzte), Spalte);
        return true;
    case Qt::Key_Escape:
        EingabeVerbergen();
        return true;
    default:
        return false;
    }
}

void AnsichtP::Weiterruecken(int Zeile, int Spalte) {
    EingabeUebernehmen();
    Form->tblPPunkte->setCell(Zeile, Spalte);
}

void AnsichtP::cPunktetabelle_Validate() {
    EingabeUebernehmen();
    // Not when the box has just been left: then the focus is where the user put it.
    if (txtEingabe->hasFocus())
        Form->tblPPunkte->setFocus(Qt::OtherFocusReason);
}

void AnsichtP::EingabeUebernehmen() {
    // Asked whether it is hidden, not whether it is visible: a tab that is left hides its boxes with itself.
    if (txtEingabe->isHidden() || InUebernahme)
        return;
    const QScopedValueRollback<bool> Laeuft(InUebernahme, true);
    EingabeZaehler[Eingabeplatz::Punktetabelle] = 0;
    const int Zeile = Form->tblPPunkte->Row();
    if (Zeile < 1 || Zeile > TeilnehmerAnzahl())
        return;
    switch (Form->tblPPunkte->Col()) {
    case Probenspalte::Name:
        NamenUebernehmen(Zeile);
        break;
    case Probenspalte::Punkte:
        PunkteUebernehmen(Zeile);
        break;
    case Probenspalte::Note:
        NoteUebernehmen(Zeile);
        break;
    default:
        break;
    }
}

void AnsichtP::NamenUebernehmen(int Zeile) {
    const QString Name = OhneRandblanks(txtEingabe->text());
    if (Form->tblPPunkte->TextMatrix(Zeile, Probenspalte::Name) != Name) {
        Form->tblPPunkte->setTextMatrix(Zeile, Probenspalte::Name, Name);
        GezeigterStand.reset();
    }
    // Records hold "Nachname Vorname", whatever the list shows.
    TeilnehmerNamenAendern(ZeilenID(Zeile), NamenUmgekehrt ? NameDrehen(Name) : Name);
}

void AnsichtP::PunkteUebernehmen(int Zeile) {
    const QString Punkte = txtEingabe->text();
    Form->tblPPunkte->setTextMatrix(Zeile, Probenspalte::Punkte, Punkte);
    if (PunkteAendern(ZeilenID(Zeile), GewaehltesFach(), GewaehlteProbe(), Punkte))
        ProbeAuswerten();
}

void AnsichtP::NoteUebernehmen(int Zeile) {
    const QString Note = txtEingabe->text();
    Form->tblPPunkte->setTextMatrix(Zeile, Probenspalte::Note, Note);
    QString Punkte;
    if (!NoteVonHandSetzen(ZeilenID(Zeile), GewaehltesFach(), GewaehlteProbe(), Note, Punkte))
        return;
    Form->tblPPunkte->setTextMatrix(Zeile, Probenspalte::Punkte, Punkte);
    ProbeAuswerten();
}

void AnsichtP::cGesamtpunktzahl_Validate() {
    EingabeZaehler[Eingabeplatz::Gesamtpunktzahl] = 0;
    Probe* Eine = AktuelleProbe();
    const QString Text = Form->txtGesamtpunktzahl->text();
    if (!Eine || Eine->Gesamtpunktzahl == Text)
        return;
    Eine->Gesamtpunktzahl = Text;
    DatenGeaendert = true;
    ProbeAuswerten();
}

void AnsichtP::cNGrenze_Validate(int Index) {
    EingabeZaehler[Eingabeplatz::ErsteGrenze + Index] = 0;
    Probe* Eine = AktuelleProbe();
    const QString Text = txtNGrenze[Index]->text();
    if (!Eine || Eine->NGrenze[Index + 1] == Text)
        return;
    Eine->NGrenze[Index + 1] = Text;
    DatenGeaendert = true;
    ProbeAuswerten();
}

void AnsichtP::cPThemaDatumDatei_Validate() {
    EingabeZaehler[Eingabeplatz::ThemaDatumDatei] = 0;
    Probe* Eine = AktuelleProbe();
    if (!Eine)
        return;
    const QString Datum = Form->txtPDatum->text();
    const QString Thema = Form->txtPThema->text();
    const QString Dateiname = Form->txtPDateiname->text();
    if (Eine->Datum == Datum && Eine->Name == Thema && Eine->Dateiname == Dateiname)
        return;
    Eine->Datum = Datum;
    Eine->Name = Thema;
    Eine->Dateiname = Dateiname;
    DatenGeaendert = true;
    GezeigterStand.reset();
}
