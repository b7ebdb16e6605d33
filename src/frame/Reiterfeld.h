#pragma once

#include <QTabWidget>

/// The strip of views. Each way to another tab first takes the focus out of the view, so that an edit in
/// progress commits while its view is still on top.
class Reiterfeld : public QTabWidget {
    Q_OBJECT

  public:
    explicit Reiterfeld(QWidget* Eltern = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* Ereignis) override;
};
