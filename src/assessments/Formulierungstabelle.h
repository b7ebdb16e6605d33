#pragma once

#include "controls/Gitter.h"

/// The phrase table: a grid of one column whose rows can be dragged. What a press, a click or a drag means is
/// the view's.
class Formulierungstabelle : public Gitter {
    Q_OBJECT

  public:
    explicit Formulierungstabelle(QWidget* Eltern = nullptr);

    /// Row in which a dragged phrase would be put for a place in the viewport: below the rows the last one
    /// that holds a phrase. -1 if there is none.
    /// A click, as of the mouse: Gedrueckt and Losgelassen too.
    void Enter(int Zeile, int Spalte) override;

    int ZielzeileBei(QPoint Ort) const;
    void setZielzeile(int Zeile); ///< shows where a drag would drop; -1: nowhere
    void RandRollen(QPoint Ort);  ///< scrolls while a drag stays near the upper or lower edge

  Q_SIGNALS:
    void Gedrueckt();      ///< the left button went down; on a row, that is the current one now
    void Losgelassen();    ///< it went up again without a drag, and not after a double click
    void ZiehenBegonnen(); ///< it was moved away with the button down

  protected:
    void mousePressEvent(QMouseEvent* Ereignis) override;
    void mouseMoveEvent(QMouseEvent* Ereignis) override;
    void mouseReleaseEvent(QMouseEvent* Ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* Ereignis) override;
    void paintEvent(QPaintEvent* Ereignis) override;

  private:
    QPoint Druckort;
    bool Klickt = false;
    int Zielzeile = -1;
};
