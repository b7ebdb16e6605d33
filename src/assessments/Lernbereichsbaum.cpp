#include "assessments/Lernbereichsbaum.h"

#include "controls/Textfeld.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace {

/// A tool tip that shows the name as it stands, whatever it looks like.
QString AlsTipp(const QString& Name) {
    return QStringLiteral("<span>") + Name.toHtmlEscaped() + QStringLiteral("</span>");
}

/// The box of a label takes what the phrase file can hold; what it gives goes to the tree as a wish.
class Beschriftung : public QStyledItemDelegate {
  public:
    explicit Beschriftung(Lernbereichsbaum* Eigner)
        : QStyledItemDelegate(Eigner)
        , Baum(Eigner) {}

    QWidget* createEditor(QWidget* Eltern, const QStyleOptionViewItem&, const QModelIndex&) const override {
        auto* Feld = new Textfeld(Eltern);
        Feld->setAccessibleName(QStringLiteral("Name des Lernbereichs"));
        return Feld;
    }

    void setEditorData(QWidget* Feld, const QModelIndex& Stelle) const override {
        qobject_cast<QLineEdit*>(Feld)->setText(Stelle.data().toString());
    }

    void setModelData(QWidget* Feld, QAbstractItemModel*, const QModelIndex& Stelle) const override {
        const QString Text = qobject_cast<QLineEdit*>(Feld)->text();
        if (Text != Stelle.data().toString())
            Q_EMIT Baum->Beschriftet(Stelle.row(), Text);
    }

  private:
    Lernbereichsbaum* Baum;
};

} // namespace

bool IstLoeschtaste(const QKeyEvent& Taste) {
    return Taste.key() == Qt::Key_Backspace || Taste.key() == Qt::Key_Delete;
}

Lernbereichsbaum::Lernbereichsbaum(QWidget* Eltern)
    : QTreeWidget(Eltern) {
    setColumnCount(1);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideRight);
    setSelectionMode(SingleSelection);
    setEditTriggers(EditKeyPressed | SelectedClicked);
    setItemDelegate(new Beschriftung(this));
    setDragEnabled(true);
    connect(this, &QTreeWidget::currentItemChanged, this, &Lernbereichsbaum::KnotenGewechselt);
}

void Lernbereichsbaum::KnotenSetzen(const QStringList& Namen) {
    const QScopedValueRollback<bool> Ruhe(Still, true);
    Ziel = DruckKnoten = -1;
    clear();
    for (const QString& Einer : Namen)
        NeuenKnotenAnfuegen(Einer);
    setCurrentItem(topLevelItem(0));
    FettSetzen();
}

void Lernbereichsbaum::NeuenKnotenAnfuegen(const QString& Neuer) {
    auto* Eintrag = new QTreeWidgetItem({Neuer});
    Eintrag->setToolTip(0, AlsTipp(Neuer)); // a long name is cut in a narrow tree
    Eintrag->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled);
    addTopLevelItem(Eintrag);
}

int Lernbereichsbaum::Knoten() const {
    return indexOfTopLevelItem(currentItem());
}

int Lernbereichsbaum::KnotenBei(QPoint Ort) const {
    return indexOfTopLevelItem(itemAt(Ort));
}

QString Lernbereichsbaum::Name(int Nummer) const {
    const QTreeWidgetItem* Eintrag = topLevelItem(Nummer);
    return Eintrag ? Eintrag->text(0) : QString();
}

void Lernbereichsbaum::NameSetzen(int Nummer, const QString& Name) {
    QTreeWidgetItem* Eintrag = topLevelItem(Nummer);
    if (!Eintrag)
        return;
    Eintrag->setText(0, Name);
    Eintrag->setToolTip(0, AlsTipp(Name));
}

void Lernbereichsbaum::setHervorgehoben(int Nummer) {
    const auto Farben = [this](int Eines, const QBrush& Grund, const QBrush& Schrift) {
        if (QTreeWidgetItem* Eintrag = topLevelItem(Eines)) {
            Eintrag->setBackground(0, Grund);
            Eintrag->setForeground(0, Schrift);
        }
    };
    if (Ziel == Nummer)
        return;
    Farben(Ziel, {}, {});
    Farben(Nummer, palette().highlight(), palette().highlightedText());
    Ziel = Nummer;
}

void Lernbereichsbaum::FettSetzen() {
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QFont Schrift = topLevelItem(i)->font(0);
        Schrift.setBold(topLevelItem(i) == currentItem());
        topLevelItem(i)->setFont(0, Schrift);
    }
}

void Lernbereichsbaum::KnotenGewechselt() {
    if (Still)
        return;
    FettSetzen();
    Q_EMIT Gewaehlt();
}

void Lernbereichsbaum::mousePressEvent(QMouseEvent* Ereignis) {
    DruckKnoten = KnotenBei(Ereignis->position().toPoint());
    Vorher = Knoten();
    QTreeWidget::mousePressEvent(Ereignis);
    if (DruckKnoten >= 0 && DruckKnoten == Vorher)
        Q_EMIT Gewaehlt();
}

/// A slow second click opens its label only when no third one has come. Until then the user may have gone on
/// to a key, another box or another view: the label must not take what is typed there.
void Lernbereichsbaum::WartendenKlickVergessen() {
    edit(currentIndex(), CurrentChanged, nullptr); // opens nothing, and stops the clock of the view
}

void Lernbereichsbaum::focusOutEvent(QFocusEvent* Ereignis) {
    WartendenKlickVergessen();
    QTreeWidget::focusOutEvent(Ereignis);
}

void Lernbereichsbaum::keyPressEvent(QKeyEvent* Ereignis) {
    WartendenKlickVergessen();
    if (IstLoeschtaste(*Ereignis) && !Ereignis->isAutoRepeat())
        Loeschtaste = true;
    QTreeWidget::keyPressEvent(Ereignis);
}

/// A release whose press went elsewhere, to the box of a label or to a message box, deletes nothing.
void Lernbereichsbaum::keyReleaseEvent(QKeyEvent* Ereignis) {
    QTreeWidget::keyReleaseEvent(Ereignis);
    if (IstLoeschtaste(*Ereignis) && !Ereignis->isAutoRepeat() && std::exchange(Loeschtaste, false) &&
        hasFocus())
        Q_EMIT LoeschenGewuenscht();
}

void Lernbereichsbaum::startDrag(Qt::DropActions) {
    setCurrentItem(topLevelItem(Vorher));
    Q_EMIT ZiehenBegonnen();
}
