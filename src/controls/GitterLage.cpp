// Where the cells of a grid lie, and its scrolling. The hidden headers hold the sizes; the fixed part lies in
// the same viewport as the rest and covers what has been scrolled under it.

#include "controls/Gitter.h"
#include "controls/Gittermodell.h"
#include "core/Reihe.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

namespace {

int Anfang(const QHeaderView& Kopf, int Abschnitt) {
    return Abschnitt < Kopf.count() ? Kopf.sectionPosition(Abschnitt) : Kopf.length();
}

/// The section at this place of the viewport; -1 if none.
int AbschnittBei(const QHeaderView& Kopf, int Ort, int FesteAnzahl, int Versatz) {
    const int FestesEnde = Anfang(Kopf, FesteAnzahl);
    const int Stelle = Ort < FestesEnde ? Ort : Ort + Versatz;
    return Stelle < 0 || Stelle >= Kopf.length()
               ? -1
               : Kopf.logicalIndex(Kopf.visualIndexAt(Stelle - Kopf.offset()));
}

/// Moves a scroll bar just so far that Beginn..Beginn+Laenge is in sight behind the fixed part.
void InSichtRollen(QScrollBar& Leiste, int Beginn, int Laenge, int Fest, int Platz) {
    const int Oben = Beginn - Fest;
    const int Unten = Beginn + Laenge - Platz;
    if (Oben < Leiste.value() || Laenge > Platz - Fest)
        Leiste.setValue(Oben);
    else if (Unten > Leiste.value())
        Leiste.setValue(Unten);
}

} // namespace

void Gitter::ZeilenhoeheVorgeben() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
}

int Gitter::FesteHoehe() const {
    return Anfang(*verticalHeader(), FixedRows());
}

int Gitter::FesteBreite() const {
    return Anfang(*horizontalHeader(), FixedCols());
}

int Gitter::ZeilenAnfang(int Zeile) const {
    return Anfang(*verticalHeader(), Zeile) - (Zeile < FixedRows() ? 0 : verticalScrollBar()->value());
}

int Gitter::SpaltenAnfang(int Spalte) const {
    return Anfang(*horizontalHeader(), Spalte) - (Spalte < FixedCols() ? 0 : horizontalScrollBar()->value());
}

int Gitter::ZeileBei(int Y) const {
    return AbschnittBei(*verticalHeader(), Y, FixedRows(), verticalScrollBar()->value());
}

int Gitter::SpalteBei(int X) const {
    return AbschnittBei(*horizontalHeader(), X, FixedCols(), horizontalScrollBar()->value());
}

QPoint Gitter::Ursprung() const {
    return viewport()->geometry().topLeft();
}

int Gitter::RowAt(int Y) const {
    return ZeileBei(Y - Ursprung().y());
}

int Gitter::ColAt(int X) const {
    return SpalteBei(X - Ursprung().x());
}

QRect Gitter::Zellrechteck(int Zeile, int Spalte) const {
    if (!Modell->Enthaelt(Zeile, Spalte))
        return {};
    const auto [Erste, Letzte] = Modell->Gruppe(Zeile, Spalte);
    const int Links = SpaltenAnfang(Erste);
    return {Links, ZeilenAnfang(Zeile), SpaltenAnfang(Letzte) + ColWidth(Letzte) - Links, RowHeight(Zeile)};
}

QRect Gitter::CellRect(int Zeile, int Spalte) const {
    const QRect Zelle = Zellrechteck(Zeile, Spalte);
    return Zelle.isEmpty() ? QRect() : Zelle.translated(Ursprung());
}

QRect Gitter::SichtbarerTeil(int Zeile, int Spalte) const {
    QRect Bereich = viewport()->rect();
    if (Zeile >= FixedRows())
        Bereich.setTop(FesteHoehe());
    if (Spalte >= FixedCols())
        Bereich.setLeft(FesteBreite());
    const QRect Teil = Zellrechteck(Zeile, Spalte) & Bereich;
    return Teil.isEmpty() ? QRect() : Teil.translated(Ursprung());
}

QRect Gitter::visualRect(const QModelIndex& Stelle) const {
    return Stelle.isValid() ? Zellrechteck(Stelle.row(), Stelle.column()) : QRect();
}

QModelIndex Gitter::indexAt(const QPoint& Ort) const {
    return Modell->index(ZeileBei(Ort.y()), SpalteBei(Ort.x()));
}

int Gitter::TopRow() const {
    return Rows() > FixedRows() ? ZeileBei(FesteHoehe()) : FixedRows();
}

void Gitter::setTopRow(int Zeile) {
    if (Zeile < FixedRows() || Zeile >= Rows())
        return;
    updateGeometries();
    verticalScrollBar()->setValue(Anfang(*verticalHeader(), Zeile) - FesteHoehe());
}

void Gitter::setColWidth(int Spalte, int Breite) {
    if (Spalte < 0 || Spalte >= Cols())
        IndexFehler(Spalte, static_cast<std::size_t>(Cols()));
    setColumnWidth(Spalte, qMax(Breite, 0));
}

int Gitter::ColWidth(int Spalte) const {
    return Spalte >= 0 && Spalte < Cols() ? columnWidth(Spalte) : 0;
}

void Gitter::setRowHeight(int Zeile, int Hoehe) {
    if (Zeile < 0 || Zeile >= Rows())
        IndexFehler(Zeile, static_cast<std::size_t>(Rows()));
    QTableView::setRowHeight(Zeile, qMax(Hoehe, 0));
}

void Gitter::setRowHeights(int Erste, const std::vector<int>& Hoehen) {
    {
        const QSignalBlocker Still(verticalHeader());
        verticalHeader()->setUpdatesEnabled(false); // or each row would ask where all those above it lie
        for (std::size_t i = 0; i < Hoehen.size(); ++i)
            setRowHeight(Erste + static_cast<int>(i), Hoehen[i]);
        verticalHeader()->setUpdatesEnabled(true);
    }
    updateGeometries();
    viewport()->update();
}

int Gitter::RowHeight(int Zeile) const {
    return Zeile >= 0 && Zeile < Rows() ? rowHeight(Zeile) : 0;
}

void Gitter::setColShares(const QList<double>& Neue, int NeueMindestbreite) {
    Anteile = Neue;
    Mindestbreite = NeueMindestbreite;
    updateGeometries();
}

/// The last column takes what rounding leaves, so that the sum is the width available. Who hears of a change
/// finds all columns as they will be.
void Gitter::AnteileAnwenden() {
    const int Breite = qMax(viewport()->width(), Mindestbreite);
    double Summe = 0;
    int Vergeben = 0;
    bool Geaendert = false;
    {
        const QSignalBlocker Still(horizontalHeader());
        for (int s = 0; s < qMin(static_cast<int>(Anteile.size()), Cols()); ++s) {
            Summe += Anteile[s];
            const int Ende = static_cast<int>(Summe * Breite + 1e-6);
            Geaendert = Geaendert || columnWidth(s) != Ende - Vergeben;
            setColumnWidth(s, Ende - Vergeben);
            Vergeben = Ende;
        }
    }
    if (Geaendert)
        LageMelden();
}

void Gitter::LageMelden() {
    LageVeraltet = true;
    viewport()->update();
    Q_EMIT LageGeaendert();
}

void Gitter::resizeEvent(QResizeEvent* Ereignis) {
    QTableView::resizeEvent(Ereignis);
    LageMelden();
}

void Gitter::updateGeometries() {
    AnteileAnwenden();
    QTableView::updateGeometries();
    verticalScrollBar()->setSingleStep(verticalHeader()->defaultSectionSize());
    horizontalScrollBar()->setSingleStep(qMax(10, viewport()->width() / 20));
    LageVeraltet = false;
    Q_EMIT LageGeaendert();
}

void Gitter::changeEvent(QEvent* Ereignis) {
    QTableView::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::FontChange) {
        Modell->TextbreitenVergessen();
        ZeilenhoeheVorgeben();
    }
}

/// The part that moves is moved on the screen, and only what came into sight is painted. Header groups stand
/// in the middle of what is seen of them, so their rows are painted anew.
void Gitter::scrollContentsBy(int Dx, int Dy) {
    horizontalHeader()->setOffset(horizontalScrollBar()->value());
    verticalHeader()->setOffset(verticalScrollBar()->value());
    const QRect Alles = viewport()->rect();
    if (Dx == 0)
        viewport()->scroll(0, Dy, Alles.adjusted(0, FesteHoehe(), 0, 0));
    else if (Dy == 0)
        viewport()->scroll(Dx, 0, Alles.adjusted(FesteBreite(), 0, 0, 0));
    else
        viewport()->update();
    if (Dx != 0)
        viewport()->update(0, 0, Alles.width(), FesteHoehe());
    Q_EMIT LageGeaendert();
}

void Gitter::scrollTo(const QModelIndex& Stelle, ScrollHint) {
    if (!Stelle.isValid())
        return;
    if (LageVeraltet)
        updateGeometries();
    const int Zeile = Stelle.row();
    const int Spalte = Stelle.column();
    if (Zeile >= FixedRows())
        InSichtRollen(*verticalScrollBar(), Anfang(*verticalHeader(), Zeile), RowHeight(Zeile), FesteHoehe(),
                      viewport()->height());
    if (Spalte >= FixedCols())
        InSichtRollen(*horizontalScrollBar(), Anfang(*horizontalHeader(), Spalte), ColWidth(Spalte),
                      FesteBreite(), viewport()->width());
}

QRegion Gitter::visualRegionForSelection(const QItemSelection&) const {
    return {}; // nothing is ever selected
}

void Gitter::setSelection(const QRect&, QItemSelectionModel::SelectionFlags) {}
