#include "grading/Bildfeld.h"

#include "grading/Malflaeche.h"

#include <QPainter>

Bildfeld::Bildfeld(QWidget* Eltern)
    : QWidget(Eltern) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
}

void Bildfeld::Zeichnen(std::function<void(Zeichenflaeche&)> NeueZeichnung) {
    Zeichnung = std::move(NeueZeichnung);
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

void Bildfeld::paintEvent(QPaintEvent* /*Ereignis*/) {
    QPainter Maler(this);
    Malflaeche Flaeche(Maler, size(), Malflaeche::Art::Bildschirm);
    Flaeche.Leeren();
    if (Zeichnung)
        Zeichnung(Flaeche);
    else if (!Gezeigtes.isNull())
        Maler.drawPixmap(
            QRect({}, Gezeigtes.size().scaled(Gezeigtes.size().boundedTo(size()), Qt::KeepAspectRatio)),
            Gezeigtes);
}
