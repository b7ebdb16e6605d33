#include "controls/Ansicht.h"

#include <QMouseEvent>

Ansicht::Ansicht(QWidget* Eltern)
    : QWidget(Eltern) {
    setMouseTracking(true);
}

void Ansicht::mouseMoveEvent(QMouseEvent* Ereignis) {
    Q_EMIT HinweisGewuenscht(QString());
    QWidget::mouseMoveEvent(Ereignis);
}
