#pragma once

#include <QWidget>

class QFrame;
class QToolButton;

/// The bar picSmileyContainer: one smiley for each mark, picSmiley_0.., and the frame spSmileySelect around
/// that of the current phrase. The mouse takes no focus with it; Tab reaches the smileys.
class Smileyleiste : public QWidget {
    Q_OBJECT

  public:
    explicit Smileyleiste(QWidget* Eltern = nullptr);

    void Auswaehlen(int Nummer); ///< moves the frame to the smiley of number 0, 1 or 2
    bool HatFokus() const;       ///< one of the smileys has the focus

  Q_SIGNALS:
    void Geklickt(int Nummer);
    void FokusVerloren(); ///< a smiley had the focus and none has it now

  protected:
    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

  private:
    QToolButton* SmileyBauen(int Nummer);
    QFrame* Rahmen;
};
