#include "grading/Bildfeld.h"

#include "grading/Malflaeche.h"

#include <QPainter>

Bildfeld::Bildfeld(QWidget* Eltern)
    : QWidget(Eltern) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Bildfeld::Zeichnen(std::function<void(Zeichenflaeche&)> NeueZeichnung) {
    Zeichnung = std::move(NeueZeichnung);
    update();
}

void Bildfeld::paintEvent(QPaintEvent* /*Ereignis*/) {
    QPainter Maler(this);
    Malflaeche Flaeche(Maler, size(), Malflaeche::Art::Bildschirm);
    Flaeche.Leeren();
    if (Zeichnung)
        Zeichnung(Flaeche);
}
