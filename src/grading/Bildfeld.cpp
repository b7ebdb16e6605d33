#include "grading/Bildfeld.h"

#include "grading/Malflaeche.h"

#include <QEvent>
#include <QPainter>

Bildfeld::Bildfeld(QWidget* Eltern)
    : QWidget(Eltern) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
}

void Bildfeld::Zeichnen(std::function<void(Zeichenflaeche&)> NeueZeichnung) {
    Zeichnung = std::move(NeueZeichnung);
    Gezeichnetes = {};
    update();
}

QPixmap Bildfeld::Bild() {
    return grab();
}

void Bildfeld::BildZeigen(const QPixmap& NeuesBild) {
    Zeichnung = nullptr;
    Gezeigtes = NeuesBild;
    update();
}

/// A chart of many students has hundreds of lines and texts; drawn once, it costs a repaint no more than any
/// other.
void Bildfeld::ZeichnungAusfuehren() {
    const qreal Dichte = devicePixelRatioF();
    const QSize Punkte = size() * Dichte;
    if (Gezeichnetes.size() == Punkte && Gezeichnetes.devicePixelRatio() == Dichte)
        return;
    Gezeichnetes = QPixmap(Punkte);
    Gezeichnetes.setDevicePixelRatio(Dichte);
    QPainter Maler(&Gezeichnetes);
    Maler.setFont(font());
    Malflaeche Flaeche(Maler, size(), Malflaeche::Art::Bildschirm);
    Flaeche.Leeren();
    Zeichnung(Flaeche);
}

void Bildfeld::paintEvent(QPaintEvent* /*Ereignis*/) {
    QPainter Maler(this);
    if (Zeichnung) {
        ZeichnungAusfuehren();
        Maler.drawPixmap(QPoint(), Gezeichnetes);
        return;
    }
    Malflaeche(Maler, size(), Malflaeche::Art::Bildschirm).Leeren();
    if (!Gezeigtes.isNull())
        Maler.drawPixmap(
            QRect({}, Gezeigtes.size().scaled(Gezeigtes.size().boundedTo(size()), Qt::KeepAspectRatio)),
            Gezeigtes);
}

void Bildfeld::changeEvent(QEvent* Ereignis) {
    if (Ereignis->type() == QEvent::FontChange)
        Gezeichnetes = {};
    QWidget::changeEvent(Ereignis);
}
