#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

/// "Info": what the program is, and the way to the system information.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    explicit frmAbout(QWidget* Eltern = nullptr);
    ~frmAbout() override;

  private:
    std::unique_ptr<Ui::frmAbout> ui;
};
