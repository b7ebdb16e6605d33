#include "records/dlgNeuesFach2.h"

#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "records/Teilnahmegitter.h"

#include "ui_dlgNeuesFach2.h"

dlgNeuesFach2::dlgNeuesFach2(QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgNeuesFach2>()) {
    Form->setupUi(this);
    Teilnehmer = new Teilnahmegitter(Form->tblTeilnehmer, QStringLiteral("Schüler"), 0.63, 0.37);
    connect(Form->btAlle, &QPushButton::clicked, this,
            [this] { Teilnehmer->AlleSetzen(QStringLiteral("ja")); });
    connect(Form->btKeinen, &QPushButton::clicked, this,
            [this] { Teilnehmer->AlleSetzen(QStringLiteral("nein")); });
    connect(Form->btZurück, &QPushButton::clicked, this, &dlgNeuesFach2::Zurueck);
    connect(Form->btEnde, &QPushButton::clicked, this, &dlgNeuesFach2::Ende);
    connect(Form->btAbbrechen, &QPushButton::clicked, this, &dlgNeuesFach2::reject);
}

dlgNeuesFach2::~dlgNeuesFach2() = default;

void dlgNeuesFach2::Durchlaufen() {
    const bool Sofort = DialogErgebnis;
    DialogErgebnis = WizardZurueck = false;
    if (!Ausfuehren([this] { Fuellen(); }))
        return;
    if (Sofort || Teilnehmer->Zeilen().empty())
        Ende();
    else
        exec();
}

void dlgNeuesFach2::Fuellen() {
    // The text that names the subject in the lists: a class field ends at the first blank.
    Teilnehmer->Fuellen(SchuelerDerKlassen(NeueKlasseName + u' ' + NeuesFachName));
    Teilnehmer->Sortieren();
}

void dlgNeuesFach2::Ende() {
    DialogErgebnis = Ausfuehren(
        [this] { AktFachID = FachErstellen(NeueKlasseName, NeuesFachName, Teilnehmer->Zeilen()); });
    if (DialogErgebnis)
        accept();
}

void dlgNeuesFach2::Zurueck() {
    WizardZurueck = true;
    QDialog::reject();
}

void dlgNeuesFach2::reject() {
    DialogErgebnis = WizardZurueck = false;
    QDialog::reject();
}
