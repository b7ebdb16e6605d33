#pragma once

#include <QFrame>

#include <memory>

namespace Ui {
class frmSplash;
}

/// The window shown while the program starts. It has no buttons.
class frmSplash : public QFrame {
    Q_OBJECT

  public:
    frmSplash();
    ~frmSplash() override;

    /// Shows and paints the window; does not wait for the user.
    void Zeigen();

  private:
    std::unique_ptr<Ui::frmSplash> ui;
};
