#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class dlgNeuesFach1;
}

/// First step of the wizard for a new subject: its class or classes and its name, kept in NeueKlasseName and
/// NeuesFachName. Accepted: on to the second step, which ends by itself if DialogErgebnis is true.
class dlgNeuesFach1 : public QDialog {
    Q_OBJECT

  public:
    explicit dlgNeuesFach1(QWidget* Eltern = nullptr);
    ~dlgNeuesFach1() override;

    void reject() override;

  protected:
    void showEvent(QShowEvent* Ereignis) override;
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override;

  private:
    void KnoepfePruefen();
    void Weiter(bool Sofort);

    std::unique_ptr<Ui::dlgNeuesFach1> Form;
};
