#include "grading/AnsichtP.h"

#include "controls/EingabeFeld.h"
#include "core/Datum.h"
#include "core/Eingabezaehler.h"
#include "core/FktSpeziell.h"
#include "core/Uhr.h"
#include "core/Zahlen.h"
#include "grading/Probenspalten.h"
#include "ui_AnsichtP.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace {

constexpr int AnzahlProben = 20;
constexpr int HoechsteStufe = 13;

bool ProbeGueltig(int Index) {
    return Index >= 0 && Index < AnzahlProben;
}

/// The class level by which tests are named: that of the entry's text, 1 if it has none. The tables end
/// at 13.
int Klassenstufe(const QString& KlasseFach) {
    return qBound(1, static_cast<int>(ErsteZahl(KlasseFach)), HoechsteStufe);
}

} // namespace

int AnsichtP::TeilnehmerAnzahl() const {
    return Form->tblPPunkte->Rows() - 2;
}

qint32 AnsichtP::ZeilenID(int Zeile) const {
    return Form->tblPPunkte->TextMatrix(Zeile, Probenspalte::ID).toInt();
}

qint32 AnsichtP::GewaehltesFach() const {
    return Form->cbPKlasseFach->AktDatum();
}

int AnsichtP::GewaehlteProbe() const {
    return Form->cbPProbe->ListIndex() + 1;
}

Probe* AnsichtP::AktuelleProbe() const {
    const int Index = FachIndex(GewaehltesFach());
    const int Nummer = GewaehlteProbe();
    return Index < 0 || Nummer < 1 ? nullptr : &Datenbank.Faecher[Index].Proben[Nummer];
}

void AnsichtP::SichtPFuellen() {
    if (!ProbeGueltig(AktProbe))
        AktProbe = 0;
    KlasseFachListeFuellen(); // the choice of a subject fills the rest
    if (Form->cbPKlasseFach->count() == 0)
        ProbentabelleFuellen();
}

void AnsichtP::KlasseFachListeFuellen() {
    int Auswahl = 0;
    Form->cbPKlasseFach->Leeren();
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        if (Eines.Jahr != Datenbank.AktJahr)
            continue;
        const int Index = Form->cbPKlasseFach->Hinzufuegen(Eines.Klasse + u' ' + Eines.Name, Eines.ID);
        if (Eines.ID == AktFachID)
            Auswahl = Index;
    }
    if (Form->cbPKlasseFach->count() > 0) {
        Form->cbPKlasseFach->setListIndex(Auswahl);
        return;
    }
    Form->cbPProbe->Leeren();
    AnsichtPAktiv(false);
}

void AnsichtP::FachGewaehlt() {
    AktFachID = GewaehltesFach();
    const int Stufe = Klassenstufe(Form->cbPKlasseFach->currentText());
    Form->cbPProbe->Leeren();
    for (int i = 1; i <= 10; ++i)
        Form->cbPProbe->Hinzufuegen(QString::number(i) + QStringLiteral(". ") + Probenbezeichnung[Stufe]);
    for (int i = 1; i <= 10; ++i)
        Form->cbPProbe->Hinzufuegen(QString::number(i) + QStringLiteral(". ") +
                                    ExtemporalenBezeichnung[Stufe]);
    Form->cbPProbe->setListIndex(ProbeGueltig(AktProbe) ? AktProbe : 0);
}

void AnsichtP::ProbeGewaehlt() {
    AktProbe = Form->cbPProbe->ListIndex();
    ProbentabelleFuellen();
}

void AnsichtP::AnsichtPAktiv(bool Ein) {
    const QList<QWidget*> Betroffene{
        Form->cbPProbe,      Form->cbPSortierung, Form->txtGesamtpunktzahl, Form->btPBLLV,
        Form->btPBesser,     Form->btPSchlechter, Form->btPTempSchueler,    Form->btPFachLoeschen,
        Form->txtPDateiname, Form->txtPDatum,     Form->txtPThema,          Form->tblPPunkte,
    };
    for (QWidget* Eines : Betroffene)
        Eines->setEnabled(Ein);
    for (int i = 0; i < 5; ++i) {
        txtNGrenze[i]->setEnabled(Ein);
        btGauss[i]->setEnabled(Ein);
        btEigene[i]->setEnabled(Ein);
    }
    Q_EMIT ImportErlaubt(Ein);
}

AnsichtP::Fuellregeln AnsichtP::JetzigeRegeln() const {
    return {GewaehltesFach(),
            GewaehlteProbe(),
            *AktuelleProbe(),
            MaxNote,
            Datenbank.GrenznotenBerechnen,
            Datenbank.GrenznotenPunkteAbstand,
            Datenbank.GrenznotenBeruecksichtigen,
            Datenbank.GrenznotenNotenAbstand};
}

bool AnsichtP::GezeigterStandGilt() const {
    return GezeigterStand && GezeigterStand->Regeln == JetzigeRegeln() &&
           TeilnehmerStehenNoch(GezeigterStand->Teilnehmer, GewaehltesFach(), GewaehlteProbe());
}

void AnsichtP::ProbentabelleFuellen() {
    const QScopedValueRollback<bool> Fuellt(GridEreignisseAktiv, false);
    EingabeVerbergen();
    GrenzzeilenZeigen();
    Probe* Gezeigte = AktuelleProbe();
    AnsichtPAktiv(Gezeigte != nullptr);
    if (!Gezeigte) {
        ProbeLeeren();
        return;
    }
    // Looking at a test gives it a date; that alone is no change to be saved.
    if (Gezeigte->Datum.isEmpty())
        Gezeigte->Datum = DatumKurz(Heute());
    FelderFuellen(*Gezeigte);
    if (GezeigterStandGilt()) {
        Form->tblPPunkte->setCell(1, Probenspalte::Name);
        Q_EMIT HinweisGewuenscht(Plausibel ? QString() : MeldungUnplausibel);
        return;
    }
    TabelleAufbauen(TeilnehmerDerProbe(GewaehltesFach(), GewaehlteProbe()));
    NamenUmgekehrt = false;
    SortierungAnwenden(0);
    {
        const QSignalBlocker Still(Form->cbPSortierung);
        Form->cbPSortierung->setListIndex(0);
    }
    ProbeAuswerten();
    // With the grades that the evaluation has just stored.
    GezeigterStand = {JetzigeRegeln(), TeilnehmerDerProbe(GewaehltesFach(), GewaehlteProbe())};
}

void AnsichtP::ProbeLeeren() {
    FelderFuellen({});
    TabelleAufbauen({});
    GezeigterStand.reset();
    NotenAnzahl = {};
    PunkteVerteilung = {};
    Form->txtPNotenschnitt->setText(ZahlFormat(0, QStringLiteral("0.00")));
    DiagrammeZeichnen();
}

void AnsichtP::FelderFuellen(const Probe& Gezeigte) {
    Form->txtGesamtpunktzahl->setText(Gezeigte.Gesamtpunktzahl);
    for (int j = 0; j < txtNGrenze.size(); ++j)
        txtNGrenze[j]->setText(Gezeigte.NGrenze[j + 1]);
    Form->txtPDateiname->setText(Gezeigte.Dateiname);
    Form->txtPDatum->setText(Gezeigte.Datum);
    Form->txtPThema->setText(Gezeigte.Name);
    // What the program wrote needs no commit.
    EingabezaehlerLeeren();
}

void AnsichtP::TabelleAufbauen(const std::vector<Probenteilnehmer>& Teilnehmer) {
    constexpr QRgb FarbeZSchueler = 0xFF0000FF;
    std::vector<Gitterzeile> Zeilen;
    Zeilen.reserve(Teilnehmer.size());
    for (const Probenteilnehmer& Einer : Teilnehmer) {
        const QRgb Namensfarbe = IstZSchueler(Einer.ID) ? FarbeZSchueler : 0;
        Zeilen.push_back(
            {Einer.ID,
             {{Einer.Name, Namensfarbe, 0}, {Einer.Punkte}, {Einer.Note}, {QString::number(Einer.ID)}}});
    }
    Form->tblPPunkte->ZeilenSetzen(std::move(Zeilen));
    SpaltenbreitenSetzen();
}

void AnsichtP::SpaltenbreitenSetzen() {
    const int Breite = Form->tblPPunkte->width();
    const int Platz = Form->tblPPunkte->height() - Gitter::TwipsInPixel(45);
    const bool Rollt = Form->tblPPunkte->verticalHeader()->length() > Platz;
    Form->tblPPunkte->setColWidth(Probenspalte::Name, static_cast<int>((Rollt ? 0.56 : 0.6) * Breite));
    for (const int Spalte : {Probenspalte::Punkte, Probenspalte::Note})
        Form->tblPPunkte->setColWidth(Spalte, static_cast<int>((Rollt ? 0.16 : 0.19) * Breite));
    Form->tblPPunkte->setColWidth(Probenspalte::ID, 0);
}

void AnsichtP::GrenzzeilenZeigen() {
    for (QWidget* Eines : {static_cast<QWidget*>(Form->lbNGrenze_4), static_cast<QWidget*>(txtNGrenze[4]),
                           static_cast<QWidget*>(Form->lbPunkten_4)})
        Eines->setVisible(MaxNote > 5);
}

void AnsichtP::SortierungAnwenden(int Index) {
    const QScopedValueRollback<bool> Sortiert(GridEreignisseAktiv, false);
    GezeigterStand.reset();
    if ((Index == 0 && NamenUmgekehrt) || (Index == 1 && !NamenUmgekehrt))
        NamenDrehen();
    const int Spalte = Index == 2 ? Probenspalte::Punkte : Probenspalte::Name;
    const Sortierart Art = Index == 2 ? Sortierart::ZahlAbsteigend : Sortierart::TextAufsteigend;
    Form->tblPPunkte->Sortieren(Spalte, 1, TeilnehmerAnzahl(), Art);
    Form->tblPPunkte->setCell(1, Spalte);
}

void AnsichtP::NamenDrehen() {
    for (int i = 1; i <= TeilnehmerAnzahl(); ++i)
        Form->tblPPunkte->setTextMatrix(i, Probenspalte::Name,
                                        NameDrehen(Form->tblPPunkte->TextMatrix(i, Probenspalte::Name)));
    NamenUmgekehrt = !NamenUmgekehrt;
}

void AnsichtP::EintragszeileAnsteuern() {
    Gitter* Tabelle = Form->tblPPunkte;
    const int Letzte = Tabelle->Rows() - 1;
    if (Tabelle->Row() == Letzte && Tabelle->Col() == Probenspalte::Name)
        Tabelle->Wiederbetreten();
    else
        Tabelle->setCell(Letzte, Probenspalte::Name);
}

bool AnsichtP::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    if (Objekt == Form->tblPPunkte && Ereignis->type() == QEvent::Resize)
        SpaltenbreitenSetzen();
    return Ansicht::eventFilter(Objekt, Ereignis);
}
