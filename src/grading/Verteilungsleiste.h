#pragma once

#include "grading/Verteilungsregeln.h"

#include <QScrollBar>

class Gitter;

/// The scroll bar over the current cell of a distribution table, the only way to change its values: it runs
/// between the limits of the cell, up raises the value. Arrow keys go to other cells, with Shift up and down
/// change the value; no other key does anything. It follows the current cell and the scrolling of its table.
class Verteilungsleiste : public QScrollBar {
    Q_OBJECT

  public:
    static constexpr int ErsteZeile = 2; ///< the rows above and column 0 hold headings
    static constexpr int ErsteSpalte = 1;

    /// The bar is a child of the table and takes the keyboard focus in its place.
    Verteilungsleiste(Gitter* Tabelle, Verteilungsart Art);

    /// Lays the bar over the current cell with its limits and gives it the focus; over a heading it hides.
    void Zeigen();

  protected:
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void wheelEvent(QWheelEvent* Ereignis) override;

  private:
    bool UeberWert() const;
    QStringList Zeile() const;
    void StandSetzen();
    void Platzieren();
    void Uebernehmen();
    void AnteilUebernehmen();

    Gitter* Tabelle;
    Verteilungsart Art;
};
