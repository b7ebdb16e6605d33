#include "controls/Gitter.h"

#include "controls/GitterStillhalten.h"
#include "controls/Gittermodell.h"
#include "core/FktAllgemein.h"
#include "core/Reihe.h"
#include "core/Textordnung.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <numeric>

Gitter::Gitter(QWidget* Eltern)
    : QTableView(Eltern)
    , Modell(new Gittermodell(this)) {
    setModel(Modell);
    for (QHeaderView* Kopf : {horizontalHeader(), verticalHeader()}) {
        Kopf->hide();
        Kopf->setMinimumSectionSize(1);
        connect(Kopf, &QHeaderView::sectionResized, this, &Gitter::LageMelden);
    }
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setCornerButtonEnabled(false);
    setDragDropMode(NoDragDrop);
    viewport()->setMouseTracking(true);
    ZeilenhoeheVorgeben();
}

Gitter::~Gitter() = default;

int Gitter::Rows() const {
    return Modell->Zeilen();
}

int Gitter::Cols() const {
    return Modell->Spalten();
}

int Gitter::Row() const {
    return currentIndex().row();
}

int Gitter::Col() const {
    return currentIndex().column();
}

int Gitter::FixedRows() const {
    return Modell->FesteZeilen();
}

int Gitter::FixedCols() const {
    return Modell->FesteSpalten();
}

QString Gitter::TextMatrix(int Zeile, int Spalte) const {
    return Modell->Zelle(Zeile, Spalte).Text;
}

int Gitter::RowData(int Zeile) const {
    return Modell->Zeilendatum(Zeile);
}

int Gitter::ColData(int Spalte) const {
    return Modell->Spaltendatum(Spalte);
}

QColor Gitter::CellForeColor(int Zeile, int Spalte) const {
    if (!Modell->Enthaelt(Zeile, Spalte))
        return {};
    const QRgb Farbe = Modell->Zelle(Zeile, Spalte).Vordergrund;
    return Farbe == 0 ? QColor(Qt::black) : QColor(Farbe);
}

QColor Gitter::CellBackColor(int Zeile, int Spalte) const {
    if (!Modell->Enthaelt(Zeile, Spalte))
        return {};
    const QRgb Farbe = Modell->Zelle(Zeile, Spalte).Hintergrund;
    return Farbe == 0 ? QColor(Qt::white) : QColor(Farbe);
}

/// A change of the number of rows or columns takes away what was current there; the nearest cell left becomes
/// current without a word. No accessible cell outlives its row: the current one is cleared before.
void Gitter::GroesseAendern(const std::function<void()>& Aendern) {
    const Stillhalten Still(*this);
    const int Zeile = Row();
    const int Spalte = Col();
    AktuelleLeeren();
    Aendern();
    if (Zeile >= 0 && Rows() > 0 && Cols() > 0)
        setCell(qMin(Zeile, Rows() - 1), qMin(Spalte, Cols() - 1));
}

void Gitter::AktuelleLeeren() {
    selectionModel()->clearCurrentIndex();
}

void Gitter::setRows(int Anzahl) {
    GroesseAendern([this, Anzahl] { Modell->ZeilenanzahlSetzen(Anzahl); });
}

void Gitter::setCols(int Anzahl) {
    GroesseAendern([this, Anzahl] { Modell->SpaltenanzahlSetzen(Anzahl); });
}

void Gitter::setFixedRows(int Anzahl) {
    Modell->FestSetzen(Anzahl, FixedCols());
    LageMelden();
}

void Gitter::setFixedCols(int Anzahl) {
    Modell->FestSetzen(FixedRows(), Anzahl);
    LageMelden();
}

void Gitter::setTextMatrix(int Zeile, int Spalte, const QString& Text) {
    Modell->TextSetzen(Zeile, Spalte, Text);
    // A header text may join its neighbours, or part from them.
    if (Zeile < FixedRows())
        viewport()->update();
}

void Gitter::setRowData(int Zeile, int Datum) {
    Modell->ZeilendatumSetzen(Zeile, Datum);
}

void Gitter::setColData(int Spalte, int Datum) {
    Modell->SpaltendatumSetzen(Spalte, Datum);
}

void Gitter::setCellForeColor(int Zeile, int Spalte, QColor Farbe) {
    Modell->FarbenSetzen(Zeile, Spalte, Farbe.isValid() ? Farbe.rgb() : 0,
                         Modell->Zelle(Zeile, Spalte).Hintergrund);
}

void Gitter::setCellBackColor(int Zeile, int Spalte, QColor Farbe) {
    Modell->FarbenSetzen(Zeile, Spalte, Modell->Zelle(Zeile, Spalte).Vordergrund,
                         Farbe.isValid() ? Farbe.rgb() : 0);
}

void Gitter::setColAlignment(int Spalte, Qt::Alignment Ausrichtung) {
    Modell->AusrichtungSetzen(Spalte, Ausrichtung);
}

void Gitter::setColorMeaning(QColor Farbe, const QString& Bedeutung) {
    Modell->BedeutungSetzen(Farbe.rgb(), Bedeutung);
}

void Gitter::setMergeRow(int Zeile, bool Verbinden) {
    Modell->VerbindenSetzen(Zeile, Verbinden);
    viewport()->update();
}

void Gitter::setWordWrapCells(bool Umbrechen) {
    Umbruch = Umbrechen;
    viewport()->update();
}

/// A reset makes the hidden headers forget the sizes; they are as before when anybody hears of it.
void Gitter::RumpfAendern(const std::function<void()>& Aendern) {
    QList<int> Breiten;
    QList<int> Hoehen;
    for (int s = 0; s < Cols(); ++s)
        Breiten.append(ColWidth(s));
    for (int z = 0; z < qMin(FixedRows(), Rows()); ++z)
        Hoehen.append(RowHeight(z));
    GroesseAendern([&] {
        Aendern();
        const QSignalBlocker StilleSpalten(horizontalHeader());
        const QSignalBlocker StilleZeilen(verticalHeader());
        for (int s = 0; s < Breiten.size(); ++s)
            setColumnWidth(s, Breiten[s]);
        for (int z = 0; z < Hoehen.size(); ++z)
            setRowHeight(z, Hoehen[z]);
    });
    updateGeometries();
}

void Gitter::ZeilenSetzen(std::vector<Gitterzeile> Zeilen) {
    RumpfAendern([this, &Zeilen] { Modell->RumpfSetzen(std::move(Zeilen)); });
}

void Gitter::ZeilenSetzen(const std::vector<qint32>& Daten, Zeilenquelle Quelle) {
    RumpfAendern([this, &Daten, &Quelle] { Modell->RumpfSetzen(Daten, std::move(Quelle)); });
}

bool Gitter::ZeileSteht(int Zeile) const {
    return Modell->Gefragt(Zeile);
}

void Gitter::setRow(int Zeile) {
    setCell(Zeile, qMax(Col(), 0));
}

void Gitter::setCol(int Spalte) {
    setCell(qMax(Row(), 0), Spalte);
}

void Gitter::setCell(int Zeile, int Spalte) {
    if (Modell->Enthaelt(Zeile, Spalte) && (Zeile != Row() || Spalte != Col()))
        setCurrentIndex(Modell->index(Zeile, Spalte));
}

void Gitter::currentChanged(const QModelIndex& Neu, const QModelIndex& Alt) {
    QTableView::currentChanged(Neu, Alt);
    if (Alt.isValid())
        viewport()->update(visualRect(Alt));
    if (Stille == 0 && Neu.isValid())
        Q_EMIT ZelleBetreten();
}

void Gitter::Wiederbetreten() {
    if (currentIndex().isValid())
        Q_EMIT ZelleBetreten();
}

std::vector<int> Gitter::Sortierfolge(int Spalte, int Von, int Bis, Sortierart Art) const {
    std::vector<QString> Texte;
    for (int z = Von; z <= Bis; ++z)
        Texte.push_back(TextMatrix(z, Spalte));
    if (Art == Sortierart::TextAufsteigend)
        return Textfolge(Texte.size(), [&Texte](std::size_t i) -> const QString& { return Texte[i]; });
    std::vector<float> Zahlen(Texte.size());
    std::transform(Texte.begin(), Texte.end(), Zahlen.begin(), ZahlAusText);
    std::vector<int> Folge(Texte.size());
    std::iota(Folge.begin(), Folge.end(), 0);
    std::stable_sort(Folge.begin(), Folge.end(), [&Zahlen](int Links, int Rechts) {
        return Zahlen[static_cast<std::size_t>(Links)] > Zahlen[static_cast<std::size_t>(Rechts)];
    });
    return Folge;
}

void Gitter::Sortieren(int Spalte, int Von, int Bis, Sortierart Art) {
    if (Bis <= Von)
        return;
    if (!Modell->Enthaelt(Von, Spalte) || !Modell->Enthaelt(Bis, Spalte))
        IndexFehler(Modell->Enthaelt(Von, Spalte) ? Bis : Von, static_cast<std::size_t>(Rows()));
    const std::vector<int> Folge = Sortierfolge(Spalte, Von, Bis, Art);
    std::vector<int> Hoehen;
    for (int z = Von; z <= Bis; ++z)
        Hoehen.push_back(RowHeight(z));
    Modell->Umordnen(Von, Folge);
    for (int i = 0; i < static_cast<int>(Folge.size()); ++i)
        setRowHeight(Von + i, Hoehen[static_cast<std::size_t>(Folge[static_cast<std::size_t>(i)])]);
}

int Gitter::TwipsInPixel(double Twips) {
    return qRound(Twips / 15.0);
}

double Gitter::PixelInTwips(double Pixel) {
    return Pixel * 15.0;
}
