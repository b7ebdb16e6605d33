#pragma once

#include <QDialog>

#include <memory>

class Gitter;
namespace Ui {
class dlgAutoTeilnahme;
}

/// Sets the participation of all students in one subject by the condition that a field equals a text.
class dlgAutoTeilnahme : public QDialog {
    Q_OBJECT

  public:
    /// Liste: the list of view S, whose current column is the subject; its students stand in rows 2 to
    /// Rows-2, field 1 in the column behind LetzteFachspalte.
    dlgAutoTeilnahme(Gitter* Liste, int LetzteFachspalte, QWidget* Eltern = nullptr);
    ~dlgAutoTeilnahme() override;

  private:
    void Uebernehmen();

    std::unique_ptr<Ui::dlgAutoTeilnahme> Form;
    Gitter* Liste;
    int LetzteFachspalte;
};
