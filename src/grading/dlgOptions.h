#pragma once

#include "grading/Optionspruefung.h"

#include <QDialog>

#include <array>
#include <memory>

class Textfeld;
class Verteilungsleiste;
struct Optionen;
namespace Ui {
class dlgOptions;
}

/// Shows the options over the window of Eltern; true if they ended with OK. The caller then refreshes the
/// views that show averages, also after Abbrechen: MaxNote and Notenformat take effect at once.
bool OptionenZeigen(QWidget* Eltern);

/// All settings of the grading engine and the edit grids of the three distribution tables. The values in
/// force change on OK only, except MaxNote and Notenformat.
class dlgOptions : public QDialog {
    Q_OBJECT

  public:
    explicit dlgOptions(QWidget* Eltern = nullptr);
    ~dlgOptions() override;

  private:
    struct Pruefbox {
        Textfeld* Feld;
        Optionsfeld Was;
    };

    void Verbinden();
    void TabellenEinrichten();
    void Platzieren();
    void Laden();
    void KnoepfeLaden();
    void FelderLaden(const Optionen& Werte);
    void FelderLesen(Optionen& Werte) const;

    void NotenformatGewaehlt(int Index);
    void NotensystemGewaehlt(int Index);
    void MethodeGewaehlt();
    void LeisteDerSeiteZeigen();
    void Pruefen(const Pruefbox& Box);
    void Uebernehmen();

    std::unique_ptr<Ui::dlgOptions> Form;
    std::array<Textfeld*, 13> Bezeichnungen1{};
    std::array<Textfeld*, 13> Bezeichnungen2{};
    std::array<Pruefbox, 6> Pruefboxen{};
    std::array<Verteilungsleiste*, 3> Leisten{};
    bool Laedt = false;
};
