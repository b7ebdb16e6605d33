#include "frame/Hinweiszeile.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

Hinweiszeile::Hinweiszeile(QWidget* Eltern)
    : QLabel(Eltern) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize Hinweiszeile::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void Hinweiszeile::paintEvent(QPaintEvent* /*Ereignis*/) {
    QPainter Maler(this);
    const QRect Platz = contentsRect().adjusted(margin(), 0, -margin(), 0);
    Maler.drawText(Platz, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideRight, Platz.width()));
}

bool Hinweiszeile::event(QEvent* Ereignis) {
    if (Ereignis->type() != QEvent::ToolTip)
        return QLabel::event(Ereignis);
    const bool Abgeschnitten = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    QToolTip::showText(static_cast<QHelpEvent*>(Ereignis)->globalPos(),
                       Abgeschnitten ? text().toHtmlEscaped() : QString(), this);
    return true;
}

#include "moc_Hinweiszeile.cpp"
