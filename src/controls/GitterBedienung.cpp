// Mouse and keyboard of a grid.

#include "controls/Gitter.h"
#include "controls/GitterStillhalten.h"
#include "controls/Gittermodell.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <optional>

void Gitter::ZelleAnklicken(const QModelIndex& Stelle) {
    if (Stelle == currentIndex())
        Q_EMIT ZelleBetreten();
    else
        setCurrentIndex(Stelle);
}

void Gitter::Enter(int Zeile, int Spalte) {
    if (!isEnabled() || !Modell->Enthaelt(Zeile, Spalte))
        return;
    const QModelIndex Stelle = Modell->index(Zeile, Spalte);
    setFocus(Qt::MouseFocusReason); // first what a click takes away from an edit in progress
    scrollTo(Stelle);
    const QPoint Ort = CellRect(Zeile, Spalte).center();
    ZelleAnklicken(Stelle);
    Q_EMIT MausLosgelassen(Qt::LeftButton, Ort);
    Q_EMIT Geklickt();
}

void Gitter::mousePressEvent(QMouseEvent* Ereignis) {
    const QModelIndex Stelle = indexAt(Ereignis->position().toPoint());
    Gedrueckt = Ereignis->button() == Qt::LeftButton && Stelle.isValid();
    if (Gedrueckt)
        ZelleAnklicken(Stelle);
    Ereignis->accept();
}

void Gitter::mouseMoveEvent(QMouseEvent* Ereignis) {
    Ereignis->accept(); // no dragging, no selecting
}

void Gitter::mouseReleaseEvent(QMouseEvent* Ereignis) {
    const QPoint Ort = Ereignis->position().toPoint();
    Q_EMIT MausLosgelassen(Ereignis->button(), Ort + Ursprung());
    if (Ereignis->button() == Qt::LeftButton && std::exchange(Gedrueckt, false) && indexAt(Ort).isValid())
        Q_EMIT Geklickt();
    Ereignis->accept();
}

void Gitter::mouseDoubleClickEvent(QMouseEvent* Ereignis) {
    mousePressEvent(Ereignis);
    if (Gedrueckt)
        Q_EMIT Doppelgeklickt();
}

/// Tab in a box over a cell leaves the box for the next control. Qt's views would go on to another cell, and
/// what was typed would be gone. The control before a box is its own grid, where one more step back would
/// open the box again, on the cell before: that way through a list is hundreds of keys long.
bool Gitter::focusNextPrevChild(bool Vorwaerts) {
    if (hasFocus())
        return QTableView::focusNextPrevChild(Vorwaerts);
    // NOLINTBEGIN(bugprone-parent-virtual-call): not the views' way
    const bool Gegangen = QWidget::focusNextPrevChild(Vorwaerts);
    return hasFocus() ? QWidget::focusNextPrevChild(Vorwaerts) : Gegangen;
    // NOLINTEND(bugprone-parent-virtual-call)
}

void Gitter::keyPressEvent(QKeyEvent* Ereignis) {
    if (!hasFocus()) {
        Ereignis->ignore(); // the box over a cell had no use for the key; it must not move the cell away
        return;
    }
    const auto Tab = Ereignis->key() == Qt::Key_Tab;
    if (Tab || Ereignis->key() == Qt::Key_Backtab) {
        if (!Weiter(Tab))
            QWidget::focusNextPrevChild(Tab); // NOLINT(bugprone-parent-virtual-call): not the views' way
        return;
    }
    if (const auto Richtung = Bewegung(*Ereignis)) {
        const QModelIndex Ziel = moveCursor(*Richtung, Ereignis->modifiers());
        setCell(Ziel.row(), Ziel.column());
        return;
    }
    Ereignis->ignore();
    Q_EMIT TasteGedrueckt(Ereignis);
}

void Gitter::keyReleaseEvent(QKeyEvent* Ereignis) {
    Ereignis->ignore();
    Q_EMIT TasteLosgelassen(Ereignis);
}

std::optional<Gitter::CursorAction> Gitter::Bewegung(const QKeyEvent& Taste) {
    switch (Taste.key()) {
    case Qt::Key_Up:
        return MoveUp;
    case Qt::Key_Down:
        return MoveDown;
    case Qt::Key_Left:
        return MoveLeft;
    case Qt::Key_Right:
        return MoveRight;
    case Qt::Key_PageUp:
        return MovePageUp;
    case Qt::Key_PageDown:
        return MovePageDown;
    case Qt::Key_Home:
        return MoveHome;
    case Qt::Key_End:
        return MoveEnd;
    default:
        return {};
    }
}

/// The keys stay among the cells that are not fixed, but can leave a fixed row or column they start in along
/// it.
QModelIndex Gitter::moveCursor(CursorAction Richtung, Qt::KeyboardModifiers Zusatz) {
    if (Rows() == 0 || Cols() == 0)
        return {};
    const int ErsteZeile = qMin(FixedRows(), Row() < 0 ? Rows() - 1 : Row());
    const int ErsteSpalte = qMin(FixedCols(), Col() < 0 ? Cols() - 1 : Col());
    int Zeile = Row() < 0 ? ErsteZeile : Row();
    int Spalte = Col() < 0 ? ErsteSpalte : Col();
    const int Seite = qMax(1, (viewport()->height() - FesteHoehe()) / qMax(1, RowHeight(Zeile)));
    const bool Ganz = Zusatz.testFlag(Qt::ControlModifier);
    switch (Richtung) {
    case MoveUp:
        --Zeile;
        break;
    case MoveDown:
        ++Zeile;
        break;
    case MoveLeft:
    case MovePrevious:
        --Spalte;
        break;
    case MoveRight:
    case MoveNext:
        ++Spalte;
        break;
    case MovePageUp:
        Zeile -= Seite;
        break;
    case MovePageDown:
        Zeile += Seite;
        break;
    case MoveHome:
        Spalte = ErsteSpalte;
        Zeile = Ganz ? ErsteZeile : Zeile;
        break;
    case MoveEnd:
        Spalte = Cols() - 1;
        Zeile = Ganz ? Rows() - 1 : Zeile;
        break;
    }
    return Modell->index(qBound(ErsteZeile, Zeile, Rows() - 1), qBound(ErsteSpalte, Spalte, Cols() - 1));
}

/// Cell after cell of those that are shown, row after row; false at the end of the grid and where a view has
/// sent the cell back: there Tab goes on to the next control.
bool Gitter::Weiter(bool Vorwaerts) {
    const int ErsteSpalte = qMin(FixedCols(), Cols() - 1);
    const QModelIndex Vorher = currentIndex();
    int Zeile = Row();
    int Spalte = Col();
    do {
        Spalte += Vorwaerts ? 1 : -1;
        if (Spalte >= Cols()) {
            Spalte = ErsteSpalte;
            ++Zeile;
        } else if (Spalte < ErsteSpalte) {
            Spalte = Cols() - 1;
            --Zeile;
        }
        if (Zeile < qMin(FixedRows(), Vorher.row()) || Zeile >= Rows() || Spalte < 0)
            return false;
    } while (ColWidth(Spalte) == 0);
    setCell(Zeile, Spalte);
    return currentIndex() != Vorher;
}

void Gitter::focusInEvent(QFocusEvent* Ereignis) {
    // A grid with the focus has a current cell, for screen readers too; nobody has entered it yet.
    const Stillhalten Still(*this);
    if (!currentIndex().isValid() && Rows() > 0 && Cols() > 0)
        setCell(qMin(FixedRows(), Rows() - 1), qMin(FixedCols(), Cols() - 1));
    QTableView::focusInEvent(Ereignis);
    viewport()->update(visualRect(currentIndex()));
}

void Gitter::focusOutEvent(QFocusEvent* Ereignis) {
    QTableView::focusOutEvent(Ereignis);
    viewport()->update(visualRect(currentIndex()));
}

bool Gitter::viewportEvent(QEvent* Ereignis) {
    if (Ereignis->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(Ereignis);
    const auto* Hilfe = static_cast<QHelpEvent*>(Ereignis);
    const QString Tipp = Zelltipp(indexAt(Hilfe->pos()));
    if (Tipp.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(Hilfe->globalPos(), Tipp.toHtmlEscaped(),
                           viewport()); // plain, whatever it looks like
    return true;
}

/// What does not fit into its cell, whole; else what its colour means.
QString Gitter::Zelltipp(const QModelIndex& Stelle) const {
    const QString& Text = Modell->Zelle(Stelle.row(), Stelle.column()).Text;
    if (!Umbruch && fontMetrics().horizontalAdvance(Text) > visualRect(Stelle).width() - 2)
        return Text;
    return Modell->Bedeutung(Stelle.row(), Stelle.column());
}
