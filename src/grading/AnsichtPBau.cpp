// View P: how the form is put together, and what its controls start.

#include "controls/EingabeFeld.h"
#include "core/Eingabezaehler.h"
#include "grading/AnsichtP.h"
#include "grading/Eingabeplaetze.h"
#include "grading/Probenspalten.h"
#include "records/Loeschfragen.h"
#include "records/Satzdialoge.h"
#include "ui_AnsichtP.h"

#include <QKeyEvent>
#include <QPushButton>

namespace {

const QString HinweisNeuesFach = QStringLiteral(
    "Zur Aufnahme eines neuen Fachs hier die Klasse und den Fachnamen eingeben und Return drücken!");
const QString HinweisZellwechsel =
    QStringLiteral("Mit gedrückter Umschalt-Taste und den Cursortasten kann die Zelle gewechselt werden!");

} // namespace

AnsichtP::AnsichtP(QWidget* Eltern)
    : Ansicht(Eltern)
    , Form(std::make_unique<Ui::AnsichtP>()) {
    Form->setupUi(this);
    setObjectName(QStringLiteral("picAnsicht_1"));
    TabelleEinrichten();
    ListenVerbinden();
    TabelleVerbinden();
    FelderVerbinden();
    KnoepfeVerbinden();
}

AnsichtP::~AnsichtP() {
    for (int Platz = Eingabeplatz::Gesamtpunktzahl; Platz <= Eingabeplatz::Punktetabelle; ++Platz)
        EingabezaehlerAktion(Platz, {});
}

void AnsichtP::TabelleEinrichten() {
    Gitter* Tabelle = Form->tblPPunkte;
    Tabelle->setCols(4);
    Tabelle->setRows(2);
    Tabelle->setFixedRows(1);
    Tabelle->setTextMatrix(0, Probenspalte::Name, QStringLiteral("Schüler"));
    Tabelle->setTextMatrix(0, Probenspalte::Punkte, QStringLiteral("Punkte"));
    Tabelle->setTextMatrix(0, Probenspalte::Note, QStringLiteral("Note"));
    Tabelle->installEventFilter(this);
    txtEingabe = new EingabeFeld(Tabelle);
    txtEingabe->setObjectName(QStringLiteral("txtEingabe"));
    txtEingabe->setAccessibleName(QStringLiteral("Eingabe in die Tabelle"));
    setTabOrder(Tabelle, txtEingabe);
    setTabOrder(txtEingabe, Form->btPTempSchueler);
    // Its place stays free while it is hidden, so that nothing jumps.
    QSizePolicy Bleibend = Form->btPTempSchuelerLoeschen->sizePolicy();
    Bleibend.setRetainSizeWhenHidden(true);
    Form->btPTempSchuelerLoeschen->setSizePolicy(Bleibend);
    Form->btPTempSchuelerLoeschen->hide();
}

void AnsichtP::ListenVerbinden() {
    for (const auto& Text :
         {QStringLiteral("nach Namen"), QStringLiteral("nach Vornamen"), QStringLiteral("nach Punkten")})
        Form->cbPSortierung->Hinzufuegen(Text);
    Form->cbPSortierung->setListIndex(0);
    const auto Fuellen = [this] { KlasseFachListeFuellen(); };
    Kombinationsfeld* Fach = Form->cbPKlasseFach;
    connect(Fach, &Kombinationsfeld::Klick, this, &AnsichtP::FachGewaehlt);
    connect(Fach, &Kombinationsfeld::Betreten, this, [this] { Q_EMIT HinweisGewuenscht(HinweisNeuesFach); });
    connect(Fach, &Kombinationsfeld::Anlegen, this,
            [this, Fach, Fuellen](const QString& Text) { FachAnlegen(this, *Fach, Text, Fuellen); });
    connect(Form->btPNeuesFach, &QPushButton::clicked, this,
            [this, Fach, Fuellen] { NeuesFachMitAssistent(this, *Fach, Fuellen); });
    connect(Form->cbPProbe, &Kombinationsfeld::Klick, this, &AnsichtP::ProbeGewaehlt);
    connect(Form->cbPSortierung, &Kombinationsfeld::Klick, this, [this] {
        EingabeVerbergen();
        SortierungAnwenden(Form->cbPSortierung->ListIndex());
    });
}

void AnsichtP::TabelleVerbinden() {
    connect(Form->tblPPunkte, &Gitter::ZelleBetreten, this, &AnsichtP::ZelleAktivieren);
    connect(Form->tblPPunkte, &Gitter::Geklickt, this, [this] {
        if (NeuaufnahmeWartet && Form->tblPPunkte->Row() > TeilnehmerAnzahl())
            NeuaufnahmeBeginnen();
    });
    connect(Form->tblPPunkte, &Gitter::TasteGedrueckt, this, [this](const QKeyEvent* Taste) {
        if (Taste->key() == Qt::Key_Escape)
            EingabeVerbergen();
        else if (Taste->key() == Qt::Key_Return || Taste->key() == Qt::Key_Enter)
            ZelleAktivieren();
    });
    txtEingabe->setTastenregel([this](const QKeyEvent* Taste) { return TasteInEingabe(*Taste); });
    connect(txtEingabe, &EingabeFeld::Geaendert, this,
            [] { EingabeZaehler[Eingabeplatz::Punktetabelle] = TicksTabelle; });
    connect(txtEingabe, &EingabeFeld::Verlassen, this, &AnsichtP::EingabeUebernehmen);
    connect(txtEingabe, &EingabeFeld::Betreten, this, [this] {
        // The warning of a test that is not plausible stays.
        if (Plausibel)
            Q_EMIT HinweisGewuenscht(HinweisZellwechsel);
    });
}

/// Each change of the box starts its countdown; leaving it and Return commit at once.
void AnsichtP::FeldVerbinden(Textfeld* Feld, int Platz, const std::function<void()>& Uebernehmen) {
    connect(Feld, &QLineEdit::textChanged, this, [Platz] { EingabeZaehler[Platz] = TicksFeld; });
    connect(Feld, &Textfeld::Verlassen, this, Uebernehmen);
    connect(Feld, &QLineEdit::returnPressed, this, Uebernehmen);
    EingabezaehlerAktion(Platz, Uebernehmen);
}

void AnsichtP::FelderVerbinden() {
    txtNGrenze[0] = Form->txtNGrenze_0;
    txtNGrenze[1] = Form->txtNGrenze_1;
    txtNGrenze[2] = Form->txtNGrenze_2;
    txtNGrenze[3] = Form->txtNGrenze_3;
    txtNGrenze[4] = Form->txtNGrenze_4;
    FeldVerbinden(Form->txtGesamtpunktzahl, Eingabeplatz::Gesamtpunktzahl,
                  [this] { cGesamtpunktzahl_Validate(); });
    for (int j = 0; j < txtNGrenze.size(); ++j)
        FeldVerbinden(txtNGrenze[j], Eingabeplatz::ErsteGrenze + j, [this, j] { cNGrenze_Validate(j); });
    for (Textfeld* Feld : {Form->txtPDatum, Form->txtPThema, Form->txtPDateiname})
        FeldVerbinden(Feld, Eingabeplatz::ThemaDatumDatei, [this] { cPThemaDatumDatei_Validate(); });
    EingabezaehlerAktion(Eingabeplatz::Punktetabelle, [this] { cPunktetabelle_Validate(); });
    EingabezaehlerLeeren();
}

void AnsichtP::KnoepfeVerbinden() {
    const auto BeiKlick = [this](QPushButton* Knopf, const std::function<void()>& Ablauf) {
        connect(Knopf, &QPushButton::clicked, this, Ablauf);
    };
    for (int i = 0; i < 5; ++i) {
        btGauss[i] = findChild<QPushButton*>(QStringLiteral("btGaußverteilung_%1").arg(i));
        btEigene[i] = findChild<QPushButton*>(QStringLiteral("btEigeneVerteilung_%1").arg(i));
        BeiKlick(btGauss[i], [this, i] { GaussVerteilungAnwenden(i); });
        BeiKlick(btEigene[i], [this, i] { EigeneVerteilungAnwenden(i); });
    }
    BeiKlick(Form->btPBLLV, [this] { TabellenVerteilung(); });
    BeiKlick(Form->btPBesser, [this] { GrenzeVerschieben(BesserSchritt(Massstab(), MaxNote)); });
    BeiKlick(Form->btPSchlechter, [this] { GrenzeVerschieben(SchlechterSchritt(Massstab(), MaxNote)); });
    BeiKlick(Form->btPTempSchueler, [this] { EintragszeileAnsteuern(); });
    BeiKlick(Form->btPTempSchuelerLoeschen, [this] { SchuelerEntfernen(); });
    BeiKlick(Form->btPFachLoeschen, [this] {
        if (GewaehltesFach() == 0)
            return;
        FachLoeschenFragen(GewaehltesFach(), Form->cbPKlasseFach->currentText());
        SichtPFuellen();
    });
}
