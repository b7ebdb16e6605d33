#pragma once

#include <QLabel>

/// The first panel of the status bar: a hint that never makes the window wider; what does not fit ends with
/// three dots and shows whole as tool tip.
class Hinweiszeile : public QLabel {
    Q_OBJECT

  public:
    explicit Hinweiszeile(QWidget* Eltern = nullptr);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* Ereignis) override;
    bool event(QEvent* Ereignis) override;
};
