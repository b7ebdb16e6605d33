#include "records/dlgNeuerSchueler2.h"

#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "core/FktSpeziell.h"
#include "records/Teilnahmegitter.h"

#include "ui_dlgNeuerSchueler2.h"

dlgNeuerSchueler2::dlgNeuerSchueler2(const QString& Klasse, const QString& Name, QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgNeuerSchueler2>()) {
    Form->setupUi(this);
    Form->lbKlasse->setText(Klasse);
    Form->lbSchueler->setText(Name);
    Teilnahme = new Teilnahmegitter(Form->tblTeilnahme, QStringLiteral("Fach"), 0.60, 0.30);
    connect(Form->OKButton, &QPushButton::clicked, this, &dlgNeuerSchueler2::accept);
}

dlgNeuerSchueler2::~dlgNeuerSchueler2() = default;

bool dlgNeuerSchueler2::Durchlaufen() {
    const bool Gefuellt =
        Ausfuehren([this] { Teilnahme->Fuellen(FaecherDerKlasse(Form->lbKlasse->text())); });
    if (!Gefuellt)
        return false;
    if (Teilnahme->Zeilen().empty())
        done(Accepted);
    else
        exec();
    return Angelegt;
}

void dlgNeuerSchueler2::done(int Ergebnis) {
    Angelegt = Ausfuehren([this] {
        const QString& Getippt = Form->lbSchueler->text();
        AktSchuelerID = SchuelerErstellen(NamenUmgekehrt ? NameDrehen(Getippt) : Getippt,
                                          Form->lbKlasse->text(), Teilnahme->Zeilen());
    });
    QDialog::done(Ergebnis);
}
