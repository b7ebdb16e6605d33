#include "records/dlgNeuesFach1.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"

#include "ui_dlgNeuesFach1.h"

#include <QKeyEvent>
#include <QLayout>

dlgNeuesFach1::dlgNeuesFach1(QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgNeuesFach1>()) {
    Form->setupUi(this);
    connect(Form->txtKlasse, &Textfeld::textChanged, this, [this](const QString& Text) {
        NeueKlasseName = Text;
        KnoepfePruefen();
    });
    connect(Form->txtFach, &Textfeld::textChanged, this, [this](const QString& Text) {
        NeuesFachName = Text;
        KnoepfePruefen();
    });
    connect(Form->btWeiter, &QPushButton::clicked, this, [this] { Weiter(false); });
    connect(Form->btEnde, &QPushButton::clicked, this, [this] { Weiter(true); });
    connect(Form->btAbbrechen, &QPushButton::clicked, this, &dlgNeuesFach1::reject);
    Form->txtKlasse->installEventFilter(this);
    Form->txtFach->installEventFilter(this);
}

dlgNeuesFach1::~dlgNeuesFach1() = default;

void dlgNeuesFach1::showEvent(QShowEvent* Ereignis) {
    QDialog::showEvent(Ereignis);
    // On a small screen Qt opens a dialog too low for texts that break over several lines.
    resize(width(), qMax(height(), layout()->totalHeightForWidth(width())));
    Form->txtKlasse->setText(NeueKlasseName);
    Form->txtFach->setText(NeuesFachName);
    KnoepfePruefen();
    if (NeueKlasseName.isEmpty())
        Form->txtKlasse->setFocus();
    else if (NeuesFachName.isEmpty())
        Form->txtFach->setFocus();
}

void dlgNeuesFach1::KnoepfePruefen() {
    const int Stufe = ErsteZahl(Form->txtKlasse->text());
    const bool Erlaubt = !Form->txtFach->text().isEmpty() && Stufe >= 1 && Stufe <= 13;
    Form->btWeiter->setEnabled(Erlaubt);
    Form->btEnde->setEnabled(Erlaubt);
}

bool dlgNeuesFach1::eventFilter(QObject* Ziel, QEvent* Ereignis) {
    if (Ereignis->type() != QEvent::KeyPress)
        return QDialog::eventFilter(Ziel, Ereignis);
    const int Taste = static_cast<QKeyEvent*>(Ereignis)->key();
    if (Taste != Qt::Key_Return && Taste != Qt::Key_Enter)
        return false;
    if (Ziel == Form->txtKlasse)
        Form->txtFach->setFocus();
    else if (Form->btWeiter->isEnabled())
        Weiter(false);
    return true;
}

void dlgNeuesFach1::Weiter(bool Sofort) {
    DialogErgebnis = Sofort;
    accept();
}

void dlgNeuesFach1::reject() {
    DialogErgebnis = false;
    QDialog::reject();
}
