#include "assessments/Formulierungstabelle.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

Formulierungstabelle::Formulierungstabelle(QWidget* Eltern)
    : Gitter(Eltern) {
    setCols(1);
    setRows(1);
    setWordWrapCells(true);
    setColShares({1.0});
    setColAlignment(0, Qt::AlignLeft | Qt::AlignVCenter);
}

int Formulierungstabelle::ZielzeileBei(QPoint Ort) const {
    const int Zeile = RowAt(qMax(Ort.y(), 0) + viewport()->y());
    const int Letzte = Rows() - 2; // behind it stands the empty row
    return Zeile < 0 || Zeile > Letzte ? Letzte : Zeile;
}

void Formulierungstabelle::setZielzeile(int Zeile) {
    if (Zielzeile == Zeile)
        return;
    Zielzeile = Zeile;
    viewport()->update();
}

void Formulierungstabelle::RandRollen(QPoint Ort) {
    constexpr int Rand = 16;
    if (Ort.y() < Rand)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (Ort.y() > viewport()->height() - Rand)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

void Formulierungstabelle::Enter(int Zeile, int Spalte) {
    Gitter::Enter(Zeile, Spalte);
    if (Row() != Zeile)
        return;
    Q_EMIT Gedrueckt();
    Q_EMIT Losgelassen();
}

void Formulierungstabelle::mousePressEvent(QMouseEvent* Ereignis) {
    Gitter::mousePressEvent(Ereignis);
    const bool Links = Ereignis->button() == Qt::LeftButton;
    Klickt = Links && indexAt(Ereignis->position().toPoint()).isValid();
    Druckort = Ereignis->position().toPoint();
    if (Links) // below the rows, too: it is the current row that counts
        Q_EMIT Gedrueckt();
}

void Formulierungstabelle::mouseMoveEvent(QMouseEvent* Ereignis) {
    const int Weite = (Ereignis->position().toPoint() - Druckort).manhattanLength();
    if (Klickt && Ereignis->buttons().testFlag(Qt::LeftButton) &&
        Weite >= QApplication::startDragDistance()) {
        Klickt = false;
        Q_EMIT ZiehenBegonnen();
        return;
    }
    Gitter::mouseMoveEvent(Ereignis);
}

void Formulierungstabelle::mouseReleaseEvent(QMouseEvent* Ereignis) {
    Gitter::mouseReleaseEvent(Ereignis);
    if (Ereignis->button() == Qt::LeftButton && std::exchange(Klickt, false))
        Q_EMIT Losgelassen();
}

void Formulierungstabelle::mouseDoubleClickEvent(QMouseEvent* Ereignis) {
    Gitter::mouseDoubleClickEvent(Ereignis);
    Klickt = false;
}

void Formulierungstabelle::paintEvent(QPaintEvent* Ereignis) {
    Gitter::paintEvent(Ereignis);
    if (Zielzeile < 0)
        return;
    QPainter Stift(viewport());
    Stift.setPen(QPen(palette().color(QPalette::Highlight), 3));
    const QRect Zeile = CellRect(Zielzeile, 0).translated(-viewport()->geometry().topLeft());
    Stift.drawRect(Zeile.adjusted(1, 1, -2, -2));
}
