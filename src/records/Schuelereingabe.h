#pragma once

#include <QObject>

class Kombinationsfeld;
class QDialog;
class QPushButton;
class Textfeld;

/// What the two dialogs for a new student share: the choice of a class, which remembers the last one
/// (LetzteKlassenWahl), and the box for the name with its keys: Return is OK, Esc and Up leave the dialog.
class Schuelereingabe : public QObject {
    Q_OBJECT

  public:
    Schuelereingabe(QDialog* Dialog, Kombinationsfeld* Klasse, Textfeld* Name, QPushButton* Ok);

    void KlassenSetzen(const QStringList& Klassen);
    void Vorbereiten(); ///< last choice of class, focus on the name; when the dialog is shown

  protected:
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override;

  private:
    void OkPruefen();

    QDialog* Dialog;
    Kombinationsfeld* Klasse;
    Textfeld* Name;
    QPushButton* Ok;
};
