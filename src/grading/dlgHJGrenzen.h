#pragma once

#include <QDialog>

#include <memory>

class Textfeld;
namespace Ui {
class dlgHJGrenzen;
}

/// Edits the half-year boundaries of a subject over the window of Eltern. KlasseFach is the text the view
/// shows for the subject: its first number is the class level that names the tests. True if OK ended the
/// dialog, and DialogErgebnis says the same; the caller then shows the half-years and averages anew. A
/// subject that does not exist gives false without a dialog.
bool HJGrenzenZeigen(QWidget* Eltern, const QString& KlasseFach, qint32 Fach_ID);

/// Where the second half-year begins, by the number of the test; OK stores it in the subject of lbFachID.
class dlgHJGrenzen : public QDialog {
    Q_OBJECT

  public:
    dlgHJGrenzen(const QString& KlasseFach, qint32 Fach_ID, QWidget* Eltern = nullptr);
    ~dlgHJGrenzen() override;

  protected:
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override;

  private:
    void Laden();
    void Uebernehmen();

    std::unique_ptr<Ui::dlgHJGrenzen> Form;
};
