#pragma once

#include <QFocusEvent>
#include <QObject>

class QWidget;

/// Tells when a box is entered and left. A menu, a popup or another window in front is no leaving: the box
/// stays entered and is entered again without a word. Each entering has at most one leaving.
class Fokuswaechter : public QObject {
    Q_OBJECT

  public:
    /// Watches the widget and belongs to it.
    explicit Fokuswaechter(QWidget* Bewachtes);

    bool IstBetreten() const { return Drin; }
    /// Ends the stay without Verlassen.
    void Vergessen() { Drin = false; }

  Q_SIGNALS:
    void Betreten();
    void Verlassen();

  protected:
    bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

  private:
    void Hinein();
    void Hinaus();
    void FokusGewechselt(QWidget* Jetzt);

    bool EigeneListeOffen() const;
    bool FeldBesteht() const;

    QWidget* Feld;
    const QMetaObject* Art; ///< class of Feld
    bool Drin = false;
};
