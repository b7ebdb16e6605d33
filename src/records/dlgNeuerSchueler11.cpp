#include "records/dlgNeuerSchueler11.h"

#include "records/Schuelereingabe.h"

#include "ui_dlgNeuerSchueler11.h"

dlgNeuerSchueler11::dlgNeuerSchueler11(const QStringList& Klassen, QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgNeuerSchueler11>()) {
    Form->setupUi(this);
    Eingabe = new Schuelereingabe(this, Form->cbKlasse, Form->txtSchuelername, Form->OKButton);
    Eingabe->KlassenSetzen(Klassen);
    connect(Form->CancelButton, &QPushButton::clicked, this, &dlgNeuerSchueler11::reject);
}

dlgNeuerSchueler11::~dlgNeuerSchueler11() = default;

QString dlgNeuerSchueler11::Klasse() const {
    return Form->cbKlasse->currentText();
}

QString dlgNeuerSchueler11::Name() const {
    return Form->txtSchuelername->text();
}

void dlgNeuerSchueler11::showEvent(QShowEvent* Ereignis) {
    QDialog::showEvent(Ereignis);
    Eingabe->Vorbereiten();
}
