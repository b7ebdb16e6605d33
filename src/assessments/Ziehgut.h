#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>

#include <functional>
#include <memory>

class QMimeData;
class QPixmap;
class QWidget;

// Dragging phrases and learning areas within the window. What is dragged is the current row of the phrase
// table or the area the mouse went down on; the drag carries only its kind, and only this process takes it.

enum class Ziehart { Formulierung, Lernbereich };

std::unique_ptr<QMimeData> ZiehgutPacken(Ziehart Art);
bool IstZiehgut(const QMimeData& Daten, Ziehart Art);

/// Drags with a picture of the text under the pointer until the mouse button is released.
void Ziehen(QWidget* Quelle, Ziehart Art, const QString& Text, QColor Grund);

/// Makes a widget a target. Darueber is told each move of a drag over it, with the place in the widget, and
/// says whether it can be dropped there; Ablegen is told the drop; Verlassen that a drag has gone or ended.
/// Drags of other kinds are the widget's own.
class Ziehziel : public QObject {
    Q_OBJECT

  public:
    struct Regel {
        std::function<bool(Ziehart, QPoint)> Darueber;
        std::function<void(Ziehart, QPoint)> Ablegen;
        std::function<void()> Verlassen;
    };

    Ziehziel(QWidget* Feld, Regel Neue); ///< belongs to the widget

  protected:
    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

  private:
    Regel Was;
};
