#pragma once

#include <QWidget>

/// One of the five views, the panel picAnsicht(i). A view never knows the main window: it emits what it
/// wants.
class Ansicht : public QWidget {
    Q_OBJECT

  public:
    explicit Ansicht(QWidget* Eltern = nullptr);

    /// Fills the view from the records and takes up the selection (AktSchuelerID, AktFachID, AktProbe,
    /// AktKlasse).
    virtual void Fuellen() = 0;

  Q_SIGNALS:
    void HinweisGewuenscht(const QString& Text); ///< hint line, panel 1 of the status bar; "" clears it
    void AktualisierenGewuenscht();              ///< refresh of the view on top
    void PassbildGewuenscht();                   ///< the photo follows AktSchuelerID
    void ImportErlaubt(bool Erlaubt);            ///< mnuFileImport

  protected:
    void mouseMoveEvent(QMouseEvent* Ereignis) override; ///< the mouse over the bare panel clears the hint
};
