#include "frame/Reiterfeld.h"

#include <QKeyEvent>
#include <QTabBar>

Reiterfeld::Reiterfeld(QWidget* Eltern)
    : QTabWidget(Eltern) {
    // Qt's tabs don't take the focus of a mouse click by themselves.
    tabBar()->setFocusPolicy(Qt::StrongFocus);
}

void Reiterfeld::keyPressEvent(QKeyEvent* Ereignis) {
    const bool Wechselt = Ereignis->key() == Qt::Key_Tab || Ereignis->key() == Qt::Key_Backtab;
    if (Wechselt && Ereignis->modifiers().testFlag(Qt::ControlModifier))
        setFocus();
    QTabWidget::keyPressEvent(Ereignis);
}

#include "moc_Reiterfeld.cpp"
