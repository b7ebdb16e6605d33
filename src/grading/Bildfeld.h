#pragma once

#include <QWidget>

#include <functional>

class Zeichenflaeche;

/// A picture box: white like paper whatever the palette, and on it what was drawn last, at every size.
class Bildfeld : public QWidget {
    Q_OBJECT

  public:
    explicit Bildfeld(QWidget* Eltern = nullptr);

    /// Shows this drawing from the next repaint on, until another is set. It runs again at each repaint, so
    /// it holds its values itself.
    void Zeichnen(std::function<void(Zeichenflaeche&)> NeueZeichnung);

  protected:
    void paintEvent(QPaintEvent* Ereignis) override;

  private:
    std::function<void(Zeichenflaeche&)> Zeichnung;
};
