#pragma once

#include <QDialog>

#include <memory>

class Teilnahmegitter;
namespace Ui {
class dlgNeuerSchueler2;
}

/// The subjects a new student takes. However the dialog is closed, it creates the student, and AktSchuelerID
/// is his ID.
class dlgNeuerSchueler2 : public QDialog {
    Q_OBJECT

  public:
    dlgNeuerSchueler2(const QString& Klasse, const QString& Name, QWidget* Eltern = nullptr);
    ~dlgNeuerSchueler2() override;

    /// Shows the list modally; a class without subjects skips the question. True if the student was created,
    /// false after a failure, which has been reported.
    bool Durchlaufen();
    void done(int Ergebnis) override;

  private:
    std::unique_ptr<Ui::dlgNeuerSchueler2> Form;
    Teilnahmegitter* Teilnahme;
    bool Angelegt = false;
};
