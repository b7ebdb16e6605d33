#pragma once

#include <QLineEdit>

class Fokuswaechter;

/// Every one-line text box of the program. Tabs become blanks, letters are composed (NFC), and characters
/// that the files cannot hold are not taken, whether typed, pasted or composed; the status line then says so
/// (a QStatusTipEvent, and a tool tip at the box).
class Textfeld : public QLineEdit {
    Q_OBJECT

  public:
    explicit Textfeld(QWidget* Eltern = nullptr);

  Q_SIGNALS:
    void Betreten(); ///< the box got the focus (GotFocus)
    /// The focus leaves the box for another control of the window, or a command takes it (Validate). Not when
    /// a menu or another window comes to the front.
    void Verlassen();

  protected:
    void keyPressEvent(QKeyEvent* Ereignis) override;
    /// The next leaving is none: the text is dropped.
    void OhneVerlassen();

  private:
    Fokuswaechter* Waechter;
};
