#pragma once

#include <QTreeWidget>

/// The flat list of learning areas with editable labels. Nodes are counted from 0; the last one stands for a
/// new area. The selected node is bold. A label is edited by F2 or a slow second click. A press selects its
/// node, but a drag gives the selection back: carrying an area is no choice of it.
class Lernbereichsbaum : public QTreeWidget {
    Q_OBJECT

  public:
    explicit Lernbereichsbaum(QWidget* Eltern = nullptr);

    void KnotenSetzen(const QStringList& Namen); ///< and selects the first one; nothing is told
    int Knoten() const;                          ///< the selected node, -1 if none
    int KnotenBei(QPoint Ort) const;             ///< for a place in the viewport; -1 if none
    void NameSetzen(int Knoten, const QString& Name);
    void NeuenKnotenAnfuegen(const QString& Name);
    QString Name(int Knoten) const;
    int GezogenerKnoten() const { return DruckKnoten; } ///< under the mouse-down of the drag

    void setHervorgehoben(int Knoten); ///< the drop place; -1: none
    int Hervorgehoben() const { return Ziel; }

  Q_SIGNALS:
    void Gewaehlt(); ///< by mouse or key, also the same node again by a click
    /// A label was edited to another text, which may be empty. The receiver sets the label that is to stand.
    void Beschriftet(int Knoten, const QString& Text);
    void LoeschenGewuenscht();
    void ZiehenBegonnen();

  protected:
    void mousePressEvent(QMouseEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void keyReleaseEvent(QKeyEvent* Ereignis) override;
    void focusOutEvent(QFocusEvent* Ereignis) override;
    void startDrag(Qt::DropActions Moegliche) override;

  private:
    void FettSetzen();
    void WartendenKlickVergessen();
    void KnotenGewechselt();

    int DruckKnoten = -1;
    int Vorher = -1; ///< the selected node before the mouse-down
    int Ziel = -1;
    bool Still = false;
    bool Loeschtaste = false; ///< went down here
};

/// True for Backspace and Delete.
bool IstLoeschtaste(const QKeyEvent& Taste);
