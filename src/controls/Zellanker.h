#pragma once

#include <QObject>

class Gitter;
class QWidget;

/// Holds a floating edit box over the current cell of its grid, of which it is a child: inside the lines of
/// the cell, and in sight only as far as the cell is. It follows when the grid scrolls or changes size. A
/// character typed on the grid itself goes into the box.
class Zellanker : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the box.
    Zellanker(QWidget* Feld, Gitter* Tabelle);

    void Anlegen(); ///< lays the box over the cell, be it shown or not
    void Zeigen();  ///< the same, shows it with the focus, and scrolls what is around the grid to it
    void Verbergen();

  protected:
    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

  private:
    QWidget* Feld;
    Gitter* Tabelle;
};
