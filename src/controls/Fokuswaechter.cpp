#include "controls/Fokuswaechter.h"

#include <QApplication>
#include <QInputMethod>
#include <QMenu>
#include <QMenuBar>

namespace {

bool NurVorn(Qt::FocusReason Grund) {
    return Grund == Qt::PopupFocusReason || Grund == Qt::ActiveWindowFocusReason ||
           Grund == Qt::MenuBarFocusReason;
}

} // namespace

Fokuswaechter::Fokuswaechter(QWidget* Bewachtes)
    : QObject(Bewachtes)
    , Feld(Bewachtes)
    , Art(Bewachtes->metaObject()) {
    Feld->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* Jetzt) { FokusGewechselt(Jetzt); });
}

bool Fokuswaechter::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    if (Objekt == Feld && Ereignis->type() == QEvent::FocusIn)
        Hinein();
    else if (Objekt == Feld && Ereignis->type() == QEvent::FocusOut &&
             !NurVorn(static_cast<QFocusEvent*>(Ereignis)->reason()) && !EigeneListeOffen())
        Hinaus();
    return QObject::eventFilter(Objekt, Ereignis);
}

void Fokuswaechter::Hinein() {
    if (Drin)
        return;
    Drin = true;
    Q_EMIT Betreten();
}

/// The list of a combo box takes the focus for a reason like any other; its box is not left by that.
bool Fokuswaechter::EigeneListeOffen() const {
    const QWidget* Offen = QApplication::activePopupWidget();
    return Offen && Offen->parentWidget() == Feld;
}

/// A box that is destroyed loses the focus when its own class is no longer there to answer.
bool Fokuswaechter::FeldBesteht() const {
    return Feld->metaObject()->inherits(Art);
}

void Fokuswaechter::Hinaus() {
    if (!Drin || !FeldBesteht())
        return;
    // What an input method still composes belongs to the text that is taken.
    QGuiApplication::inputMethod()->commit();
    Drin = false;
    Q_EMIT Verlassen();
}

/// The way out through the menu bar: from there the focus goes on to another control, and the box hears
/// nothing.
void Fokuswaechter::FokusGewechselt(QWidget* Jetzt) {
    if (!Drin || !Jetzt || Jetzt == Feld || Jetzt->window() != Feld->window())
        return;
    if (!qobject_cast<QMenuBar*>(Jetzt) && !qobject_cast<QMenu*>(Jetzt))
        Hinaus();
}
