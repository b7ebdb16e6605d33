#pragma once

#include <QPixmap>
#include <QWidget>

#include <functional>

class Zeichenflaeche;

/// A picture box: white like paper whatever the palette, and on it what was drawn last, at every size. A
/// click makes it the active control, so that its picture can be copied.
class Bildfeld : public QWidget {
    Q_OBJECT

  public:
    explicit Bildfeld(QWidget* Eltern = nullptr);

    /// Shows this drawing from the next repaint on, until another is set. It runs again at each change of
    /// size or font, so it holds its values itself.
    void Zeichnen(std::function<void(Zeichenflaeche&)> NeueZeichnung);

    /// What it shows now.
    QPixmap Bild();
    /// Shows this picture until the next drawing, made smaller if it does not fit; white if it is null.
    void BildZeigen(const QPixmap& NeuesBild);

  protected:
    void paintEvent(QPaintEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;

  private:
    void ZeichnungAusfuehren();

    std::function<void(Zeichenflaeche&)> Zeichnung;
    QPixmap Gezeichnetes; ///< what the drawing gave; null or of another size: it has to run
    QPixmap Gezeigtes;    ///< while there is no drawing
};
