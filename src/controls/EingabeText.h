#pragma once

#include <QPlainTextEdit>

#include <functional>

class Fokuswaechter;
class Gitter;
class Zellanker;

/// The floating edit box of several lines: lies over the current cell of a grid whose texts wrap, breaks them
/// as the cell does, and follows the cell's size. In the records lines end with CR LF, in the box with \n;
/// Text and Zeigen speak the records' language. It takes what a Textfeld takes, and line breaks only if
/// Mehrzeilig. Tab goes on to the next control.
class EingabeText : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit EingabeText(Gitter* Eigner);

    void setMehrzeilig(bool Mehrere); ///< false: it wraps, but holds one line

    QString Text() const; ///< lines separated by CR LF
    /// Lays the box over the current cell with this text, caret at its end, on the background of the cell,
    /// shows it and gives it the focus. No Geaendert.
    void Zeigen(const QString& Neuer, QColor Grund = {});
    /// Hides the box without Verlassen.
    void Verbergen();
    /// Puts a text in at the caret, which then stands behind it; a selection is not replaced.
    void Einfuegen(const QString& Neuer);
    bool MarkeAmEnde() const; ///< the caret stands behind the last character
    void MarkeSetzen(int Stelle);
    /// Where a dragged phrase goes for a point of the box: start of the word there, end of the last word of a
    /// line right of it, end of the text below.
    int WortstelleBei(QPoint Ort) const;
    /// Asked for every key before the box handles it; true: used up.
    void setTastenregel(std::function<bool(QKeyEvent*)> Regel);

  Q_SIGNALS:
    void Geaendert(); ///< the text was changed by typing, pasting, cutting, undo or Einfuegen
    void Betreten();
    void Verlassen();

  protected:
    bool event(QEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void keyReleaseEvent(QKeyEvent* Ereignis) override;
    void inputMethodEvent(QInputMethodEvent* Ereignis) override;
    void insertFromMimeData(const QMimeData* Quelle) override;
    bool canInsertFromMimeData(const QMimeData* Quelle) const override;
    void wheelEvent(QWheelEvent* Ereignis) override;

  private:
    QString Bereinigt(const QString& Roher);
    void AkzentSetzen(const QString& Akzent);
    void FarbenSetzen();
    void MarkeInSicht();

    Gitter* Tabelle;
    Zellanker* Anker;
    Fokuswaechter* Waechter;
    std::function<bool(QKeyEvent*)> Tastenregel;
    QColor Zellgrund;
    bool Mehrzeilig = true;
    bool Still = false;
};
