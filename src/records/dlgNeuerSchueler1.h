#pragma once

#include <QDialog>

#include <memory>

class Schuelereingabe;
namespace Ui {
class dlgNeuerSchueler1;
}

/// A new student from the list of a test: for this test only, or for the class. With several classes the
/// choice stands in the caption of the second radio button.
class dlgNeuerSchueler1 : public QDialog {
    Q_OBJECT

  public:
    explicit dlgNeuerSchueler1(const QStringList& Klassen, QWidget* Eltern = nullptr);
    ~dlgNeuerSchueler1() override;

    bool NurDieseProbe() const;
    QString Klasse() const;
    QString Name() const;

  protected:
    void showEvent(QShowEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;

  private:
    bool MitKlassenwahl() const { return Klassenzahl > 1; }
    void KlassenwahlPlatzieren();

    std::unique_ptr<Ui::dlgNeuerSchueler1> Form;
    Schuelereingabe* Eingabe;
    QString EinzigeKlasse;
    qsizetype Klassenzahl;
};
