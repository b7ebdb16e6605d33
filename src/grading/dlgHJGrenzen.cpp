#include "grading/dlgHJGrenzen.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "core/Meldungen.h"
#include "grading/Halbjahresgrenzen.h"

#include "ui_dlgHJGrenzen.h"

#include <QKeyEvent>

namespace {

/// ". " and the name of the tests at this level; the label keeps its own text where no level has names.
void Benennen(QLabel& Schild, const Reihe<QString, 14>& Bezeichnungen, int Stufe) {
    if (Stufe <= Reihe<QString, 14>::Obergrenze)
        Schild.setText(QStringLiteral(". ") + Bezeichnungen[Stufe]);
}

} // namespace

bool HJGrenzenZeigen(QWidget* Eltern, const QString& KlasseFach, qint32 Fach_ID) {
    DialogErgebnis = false;
    if (FachIndex(Fach_ID) < 0)
        return false;
    dlgHJGrenzen Dialog(KlasseFach, Fach_ID, Eltern);
    Dialog.exec();
    return DialogErgebnis;
}

dlgHJGrenzen::dlgHJGrenzen(const QString& KlasseFach, qint32 Fach_ID, QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgHJGrenzen>()) {
    Form->setupUi(this);
    Form->lbFachID->hide();
    Form->lbFachID->setText(QString::number(Fach_ID));
    const int Stufe = ErsteZahl(KlasseFach);
    Benennen(*Form->lbProbe, Probenbezeichnung, Stufe);
    Benennen(*Form->lbExtemporale, ExtemporalenBezeichnung, Stufe);
    for (QWidget* Box : {Form->txtGrenzeP, Form->txtGrenzeE, Form->txtGrenzeM})
        Box->installEventFilter(this);
    connect(Form->btOK, &QPushButton::clicked, this, &dlgHJGrenzen::Uebernehmen);
    connect(Form->btAbbruch, &QPushButton::clicked, this, &dlgHJGrenzen::reject);
    Laden();
}

dlgHJGrenzen::~dlgHJGrenzen() = default;

void dlgHJGrenzen::Laden() {
    const Fach& Eines = Datenbank.Faecher[FachIndex(Form->lbFachID->text().toInt())];
    Form->txtGrenzeP->setText(Eines.GrenzeP);
    Form->txtGrenzeE->setText(Eines.GrenzeE);
    Form->txtGrenzeM->setText(Eines.GrenzeM);
    Form->txtGrenzeP->setFocus();
}

/// Return goes from box to box and to OK; it does not press it.
bool dlgHJGrenzen::eventFilter(QObject* Ziel, QEvent* Ereignis) {
    if (Ereignis->type() == QEvent::KeyPress) {
        const int Taste = static_cast<QKeyEvent*>(Ereignis)->key();
        if (Taste == Qt::Key_Return || Taste == Qt::Key_Enter) {
            focusNextChild();
            return true;
        }
    }
    return QDialog::eventFilter(Ziel, Ereignis);
}

/// DatenGeaendert stays as it is on purpose: this change alone does not ask for saving.
void dlgHJGrenzen::Uebernehmen() {
    const auto Gelesen = HalbjahresgrenzenLesen(
        {Form->txtGrenzeP->text(), Form->txtGrenzeE->text(), Form->txtGrenzeM->text()});
    if (!Gelesen) {
        MeldungZeigen(tr("Die Werte müssen im Bereich von 1 bis 11 liegen!"));
        return;
    }
    DialogErgebnis = true;
    Fach& Eines = Datenbank.Faecher[FachIndex(Form->lbFachID->text().toInt())];
    Eines.GrenzeP = Gelesen->P;
    Eines.GrenzeE = Gelesen->E;
    Eines.GrenzeM = Gelesen->M;
    accept();
}
