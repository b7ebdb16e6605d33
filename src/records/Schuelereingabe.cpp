#include "records/Schuelereingabe.h"

#include "controls/Kombinationsfeld.h"
#include "controls/Textfeld.h"
#include "core/Definitionen.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

Schuelereingabe::Schuelereingabe(QDialog* DialogNeu, Kombinationsfeld* KlasseNeu, Textfeld* NameNeu,
                                 QPushButton* OkNeu)
    : QObject(DialogNeu)
    , Dialog(DialogNeu)
    , Klasse(KlasseNeu)
    , Name(NameNeu)
    , Ok(OkNeu) {
    Name->installEventFilter(this);
    connect(Name, &Textfeld::textChanged, this, &Schuelereingabe::OkPruefen);
    connect(Ok, &QPushButton::clicked, Dialog, &QDialog::accept);
    connect(Klasse, &Kombinationsfeld::Klick, this,
            [this] { LetzteKlassenWahl = static_cast<qint16>(Klasse->ListIndex()); });
}

void Schuelereingabe::KlassenSetzen(const QStringList& Klassen) {
    Klasse->Leeren();
    for (const QString& Eine : Klassen)
        Klasse->Hinzufuegen(Eine);
}

void Schuelereingabe::Vorbereiten() {
    const int Letzte = LetzteKlassenWahl;
    if (Klasse->count() > 0)
        Klasse->setListIndex(Letzte >= 0 && Letzte < Klasse->count() ? Letzte : 0);
    Name->setFocus();
    OkPruefen();
}

void Schuelereingabe::OkPruefen() {
    Ok->setEnabled(!Name->text().isEmpty());
}

bool Schuelereingabe::eventFilter(QObject* Ziel, QEvent* Ereignis) {
    if (Ziel != Name || Ereignis->type() != QEvent::KeyPress)
        return QObject::eventFilter(Ziel, Ereignis);
    switch (static_cast<QKeyEvent*>(Ereignis)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (Ok->isEnabled())
            Dialog->accept();
        return true;
    case Qt::Key_Escape:
    case Qt::Key_Up:
        Dialog->reject();
        return true;
    default:
        return false;
    }
}
