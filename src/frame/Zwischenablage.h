#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>

// The clipboard commands work on the control that has the focus, by its kind: text box, combo box, picture
// box, list box. A control of no such kind is left alone.

/// Text or picture of the active control into the clipboard, which is emptied first in any case.
void Kopieren();
/// Kopieren, then the copied content is removed from the control.
void Ausschneiden();
/// The clipboard's content replaces the selection (text box), the whole content (combo box, picture box), or
/// is added (list box).
void Einfuegen();

/// Keeps what the clipboard commands need of a window's active control: the keys Ctrl+X, Ctrl+C and Ctrl+V
/// reach the menu, where Qt's text boxes would copy by rules of their own; and a text box whose menu is
/// opened by the keyboard keeps its selection.
class Zwischenablagewaechter : public QObject {
    Q_OBJECT

  public:
    explicit Zwischenablagewaechter(QWidget* Fenster);

  protected:
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override;

  private:
    void FokusGewechselt(QWidget* Alt, QWidget* Neu);
    void AuswahlMerken(QLineEdit* Feld);

    QPointer<QLineEdit> Verlassenes; ///< text box that the menu bar has taken the focus from
    int Anfang = 0;                  ///< its selection
    int Laenge = 0;
};
