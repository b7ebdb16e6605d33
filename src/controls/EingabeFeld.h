#pragma once

#include "controls/Textfeld.h"

#include <functional>

class Gitter;
class Zellanker;

/// The floating edit box: lies over the current cell of its grid, of which it is a child, and follows it when
/// the grid scrolls or changes size. What a commit does, which keys move and when a countdown starts is the
/// view's.
class EingabeFeld : public Textfeld {
    Q_OBJECT

  public:
    explicit EingabeFeld(Gitter* Eigner);

    /// Lays the box over the current cell with this text and colour, shows it and gives it the focus. No
    /// Geaendert.
    void Zeigen(const QString& Text, QColor Schriftfarbe = {});
    /// Hides the box without Verlassen: the typed text is dropped.
    void Verbergen();
    /// Sets the text without Geaendert; caret, selection and undo stay if it is the same.
    void TextSetzen(const QString& Text);
    /// Text colour as given for white paper; an invalid one is the theme's.
    void FarbeSetzen(const QColor& Schriftfarbe);
    /// Asked for every key before the box handles it; true: used up.
    void setTastenregel(std::function<bool(QKeyEvent*)> Regel);

  Q_SIGNALS:
    void Geaendert(); ///< the text was changed by typing, pasting, cutting or from outside
    void Doppelgeklickt();

  protected:
    bool event(QEvent* Ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* Ereignis) override;
    void wheelEvent(QWheelEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;
    void paintEvent(QPaintEvent* Ereignis) override;

  private:
    Gitter* Tabelle;
    Zellanker* Anker;
    std::function<bool(QKeyEvent*)> Tastenregel;
    QColor Farbe;
    bool Still = false;
};
