#include "controls/Zellanker.h"

#include "controls/Gitter.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollArea>

namespace {

bool BeginntEingabe(const QKeyEvent& Taste) {
    if (Taste.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    return !Taste.text().isEmpty() && Taste.text().front().isPrint();
}

/// A view can be larger than its window and lie in a scroll area: the grid has scrolled the cell into its own
/// sight, and this goes on with the areas around it, or the user would type blindly.
void UmgebungRollen(const Gitter& Tabelle, const QRect& Zelle) {
    for (QWidget* Rahmen = Tabelle.parentWidget(); Rahmen; Rahmen = Rahmen->parentWidget()) {
        auto* Rollfeld = qobject_cast<QScrollArea*>(Rahmen);
        if (!Rollfeld)
            continue;
        const QPoint Mitte = Tabelle.mapTo(Rollfeld->widget(), Zelle.center());
        Rollfeld->ensureVisible(Mitte.x(), Mitte.y(), Zelle.width() / 2 + 1, Zelle.height() / 2 + 1);
    }
}

} // namespace

Zellanker::Zellanker(QWidget* Gehaltenes, Gitter* Eigner)
    : QObject(Gehaltenes)
    , Feld(Gehaltenes)
    , Tabelle(Eigner) {
    Feld->hide();
    QWidget::setTabOrder(Tabelle, Feld);
    Tabelle->installEventFilter(this);
    connect(Tabelle, &Gitter::LageGeaendert, this, &Zellanker::Anlegen);
}

void Zellanker::Anlegen() {
    const QRect Zelle = Tabelle->CellRect(Tabelle->Row(), Tabelle->Col());
    const QRect Sichtbar = Tabelle->SichtbarerTeil(Tabelle->Row(), Tabelle->Col());
    if (Zelle.isEmpty() || Sichtbar.isEmpty()) {
        // Out of sight but not hidden: it keeps the focus and what is typed.
        Feld->move(-2 * Feld->width() - 100, -2 * Feld->height() - 100);
        return;
    }
    Feld->setGeometry(Zelle);
    if (Sichtbar == Zelle)
        Feld->clearMask();
    else
        Feld->setMask(Sichtbar.translated(-Zelle.topLeft()));
}

void Zellanker::Zeigen() {
    Anlegen();
    if (const QRect Zelle = Tabelle->SichtbarerTeil(Tabelle->Row(), Tabelle->Col()); !Zelle.isEmpty())
        UmgebungRollen(*Tabelle, Zelle);
    Feld->show();
    Feld->raise();
    Feld->setFocus(Qt::OtherFocusReason);
}

void Zellanker::Verbergen() {
    if (Feld->hasFocus())
        Tabelle->setFocus(Qt::OtherFocusReason);
    Feld->hide();
}

bool Zellanker::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    if (Objekt == Tabelle && Ereignis->type() == QEvent::KeyPress &&
        BeginntEingabe(*static_cast<QKeyEvent*>(Ereignis))) {
        if (!Feld->isVisible())
            Tabelle->Wiederbetreten();
        if (Feld->isVisible()) {
            Feld->setFocus(Qt::OtherFocusReason);
            QCoreApplication::sendEvent(Feld, Ereignis);
            return true;
        }
    }
    return QObject::eventFilter(Objekt, Ereignis);
}
