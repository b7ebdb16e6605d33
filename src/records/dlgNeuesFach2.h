#pragma once

#include <QDialog>

#include <memory>

class Teilnahmegitter;
namespace Ui {
class dlgNeuesFach2;
}

/// Second step of the wizard: who takes part in the subject NeuesFachName of NeueKlasseName. Its end creates
/// the subject; DialogErgebnis, WizardZurueck and AktFachID tell what came of it.
class dlgNeuesFach2 : public QDialog {
    Q_OBJECT

  public:
    explicit dlgNeuesFach2(QWidget* Eltern = nullptr);
    ~dlgNeuesFach2() override;

    /// Fills the list and shows the page modally; without students, or if DialogErgebnis is already true,
    /// ends at once without showing it.
    void Durchlaufen();
    void reject() override; ///< Abbrechen

  private:
    void Fuellen();
    void Zurueck();
    void Ende();

    std::unique_ptr<Ui::dlgNeuesFach2> Form;
    Teilnahmegitter* Teilnehmer;
};
