#pragma once

#include <QDialog>

#include <memory>

class Schuelereingabe;
namespace Ui {
class dlgNeuerSchueler11;
}

/// Class and name of a new student, where a subject has several classes.
class dlgNeuerSchueler11 : public QDialog {
    Q_OBJECT

  public:
    explicit dlgNeuerSchueler11(const QStringList& Klassen, QWidget* Eltern = nullptr);
    ~dlgNeuerSchueler11() override;

    QString Klasse() const;
    QString Name() const;

  protected:
    void showEvent(QShowEvent* Ereignis) override;

  private:
    std::unique_ptr<Ui::dlgNeuerSchueler11> Form;
    Schuelereingabe* Eingabe;
};
