#pragma once

#include <QObject>

// The clipboard commands work on the control that has the focus, by its kind: text box, combo box, picture
// box, list box. A control of no such kind is left alone.

/// Text or picture of the active control into the clipboard, which is emptied first in any case.
void Kopieren();
/// Kopieren, then the copied content is removed from the control.
void Ausschneiden();
/// The clipboard's content replaces the selection (text box), the whole content (combo box, picture box), or
/// is added (list box).
void Einfuegen();

/// Lets the keys Ctrl+X, Ctrl+C and Ctrl+V of a window reach its menu: Qt's text boxes would take them first
/// and copy by rules of their own. Follows the focus inside the window.
class Zwischenablagetasten : public QObject {
    Q_OBJECT

  public:
    explicit Zwischenablagetasten(QWidget* Fenster);

  protected:
    bool eventFilter(QObject* Ziel, QEvent* Ereignis) override;

  private:
    void FokusGewechselt(QWidget* Alt, QWidget* Neu);
};
