#pragma once

#include <QColor>
#include <QTableView>

#include <functional>
#include <optional>
#include <vector>

class Gittermodell;
class Gittermaler;

/// One cell: text and colours. A colour of 0 (fully transparent) is unset: black on white, mapped to the
/// palette while painting.
struct Gitterzelle {
    QString Text;
    QRgb Vordergrund = 0;
    QRgb Hintergrund = 0;
};

/// One row as a fill hands it over; missing cells are empty.
struct Gitterzeile {
    qint32 Datum = 0; ///< hidden row datum, an ID
    std::vector<Gitterzelle> Zellen;
};

/// Gives the cells of a row when it is first looked at; Nummer counts the rows as they were handed over, from
/// 0. Missing cells are empty. It says what the row shows at that moment, and throws nothing.
using Zeilenquelle = std::function<std::vector<Gitterzelle>(int Nummer)>;

/// How a range of rows is sorted; always stable.
enum class Sortierart { TextAufsteigend, ZahlAbsteigend };

/// The one grid of the program: a table view over its own light model. Rows and columns are counted from 0
/// with the fixed header rows and the fixed first columns, which are cells like any other and stay in place
/// while the rest scrolls. Equal neighbours in a header row are merged where that row is set to. The cell
/// entered last is the current one (Row, Col); Row and Col are -1 while there is none.
///
/// A click makes exactly the clicked cell current, be it fixed or not, and tells so even if it was current
/// before; the view decides what a fixed cell means. The keys move among the cells that are not fixed, and
/// stay in a fixed row or column they start from.
///
/// Out of range: readers give "" , 0, an invalid colour or an empty rectangle; writers throw a
/// Laufzeitfehler.
class Gitter : public QTableView {
    Q_OBJECT
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(int Cols READ Cols WRITE setCols)
    Q_PROPERTY(int Row READ Row WRITE setRow)
    Q_PROPERTY(int Col READ Col WRITE setCol)
    Q_PROPERTY(int TopRow READ TopRow WRITE setTopRow)
    Q_PROPERTY(int FixedRows READ FixedRows WRITE setFixedRows)
    Q_PROPERTY(int FixedCols READ FixedCols WRITE setFixedCols)

  public:
    explicit Gitter(QWidget* Eltern = nullptr);
    ~Gitter() override;

    // The face for views, tests and scripts.
    int Rows() const;
    int Cols() const;
    int Row() const;    ///< current row
    int Col() const;    ///< current column
    int TopRow() const; ///< first visible row below the fixed ones
    int FixedRows() const;
    int FixedCols() const;
    Q_INVOKABLE QString TextMatrix(int Zeile, int Spalte) const;
    Q_INVOKABLE int RowData(int Zeile) const;
    Q_INVOKABLE int ColData(int Spalte) const;
    Q_INVOKABLE QColor CellForeColor(int Zeile, int Spalte) const; ///< as set; black if unset
    Q_INVOKABLE QColor CellBackColor(int Zeile, int Spalte) const; ///< as set; white if unset
    Q_INVOKABLE QRect
    CellRect(int Zeile, int Spalte) const; ///< in the grid's own coordinates; a merged header gives the whole
    /// Makes the cell current as a click on it does: scrolled into view, ZelleBetreten, then Geklickt.
    Q_INVOKABLE void Enter(int Zeile, int Spalte);
    /// The part of CellRect that is in sight: inside the grid and not covered by its fixed rows and columns.
    QRect SichtbarerTeil(int Zeile, int Spalte) const;
    /// Emits ZelleBetreten for the current cell once more, as when typing is to begin in it.
    void Wiederbetreten();

    // Size and content. setRows and setCols keep what stays; new cells are empty.
    void setRows(int Anzahl);
    void setCols(int Anzahl);
    void setFixedRows(int Anzahl);
    void setFixedCols(int Anzahl);
    void setTextMatrix(int Zeile, int Spalte, const QString& Text);
    void setRowData(int Zeile, int Datum);
    void setColData(int Spalte, int Datum);
    void setCellForeColor(int Zeile, int Spalte, QColor Farbe);
    void setCellBackColor(int Zeile, int Spalte, QColor Farbe);
    void setColAlignment(int Spalte, Qt::Alignment Ausrichtung);
    /// Says in words what a text colour means: to screen readers, and in the cell's tool tip.
    void setColorMeaning(QColor Farbe, const QString& Bedeutung);
    void setMergeRow(int Zeile, bool Verbinden); ///< equal neighbours in this header row show as one
    /// Texts break over several lines, at CR LF too (assessment grids).
    void setWordWrapCells(bool Umbrechen);
    static constexpr int UmbruchRand = 2; ///< between the edge of a cell and a text that breaks
    /// Replaces all rows from FixedRows on by these, followed by one empty entry row, in one reset. Current
    /// cell: kept if it still exists; no ZelleBetreten.
    void ZeilenSetzen(std::vector<Gitterzeile> Zeilen);
    /// The same with one row for each datum, whose cells the source gives when they are first looked at: a
    /// list of thousands costs what is seen of it.
    void ZeilenSetzen(const std::vector<qint32>& Daten, Zeilenquelle Quelle);
    /// True once the cells of a row stand in the grid; false while its source has yet to be asked for them.
    bool ZeileSteht(int Zeile) const;

    // Current cell. Setting a row or column that is not yet the current one emits ZelleBetreten, like a key
    // or the mouse; a fixed cell may be made current too. Values outside the grid are ignored.
    void setRow(int Zeile);
    void setCol(int Spalte);
    void setCell(int Zeile, int Spalte); ///< both at once: one ZelleBetreten
    void setTopRow(int Zeile);

    // Geometry, in pixels unless said.
    void setColWidth(int Spalte, int Breite);
    int ColWidth(int Spalte) const;
    void setRowHeight(int Zeile, int Hoehe);
    int RowHeight(int Zeile) const;
    void setRowHeights(int Erste, const std::vector<int>& Hoehen); ///< of several rows, in one go
    /// Widths as shares of the width available, or of NeueMindestbreite where that is more; they follow every
    /// change of size. Empty: widths stay as set.
    void setColShares(const QList<double>& Neue, int NeueMindestbreite = 0);
    int RowAt(int Y) const; ///< row at this y of the grid's own coordinates, -1 if none
    int ColAt(int X) const;

    /// Sorts rows Von..Bis by the text of one column with their data and colours. Text: the locale's
    /// collation, case ignored. Number: ZahlAusText, descending. Does nothing if Bis is not above Von.
    void Sortieren(int Spalte, int Von, int Bis, Sortierart Art);

    static int TwipsInPixel(double Twips); ///< 15 twips are one pixel at 96 dpi; rounded
    static double PixelInTwips(double Pixel);

  Q_SIGNALS:
    /// Another cell has become current, by key, mouse or code (EnterCell). Emitted also while
    /// GridEreignisseAktiv is false: the view asks.
    void ZelleBetreten();
    /// A mouse button was released over the grid; before Geklickt. Position in the grid's own coordinates.
    void MausLosgelassen(Qt::MouseButton Knopf, QPoint Ort);
    /// A click of the left button (or Enter()) has ended on a cell.
    void Geklickt();
    void Doppelgeklickt();
    /// The grid has been scrolled, resized or its columns have moved: what lies over a cell must follow.
    void LageGeaendert();
    /// A key that the grid itself does not use for moving (Escape, Return, Delete, letters ...); before the
    /// grid handles it.
    void TasteGedrueckt(QKeyEvent* Ereignis);
    void TasteLosgelassen(QKeyEvent* Ereignis);

  public:
    // What Qt asks of a view whose fixed part covers the scrolled one.
    QRect visualRect(const QModelIndex& Stelle) const override;
    QModelIndex indexAt(const QPoint& Ort) const override;
    void scrollTo(const QModelIndex& Stelle, ScrollHint Art = EnsureVisible) override;

  protected:
    void paintEvent(QPaintEvent* Ereignis) override;
    void resizeEvent(QResizeEvent* Ereignis) override;
    void changeEvent(QEvent* Ereignis) override;
    bool viewportEvent(QEvent* Ereignis) override;
    void focusInEvent(QFocusEvent* Ereignis) override;
    void focusOutEvent(QFocusEvent* Ereignis) override;
    void mousePressEvent(QMouseEvent* Ereignis) override;
    void mouseMoveEvent(QMouseEvent* Ereignis) override;
    void mouseReleaseEvent(QMouseEvent* Ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* Ereignis) override;
    void keyPressEvent(QKeyEvent* Ereignis) override;
    bool focusNextPrevChild(bool Vorwaerts) override;
    void keyReleaseEvent(QKeyEvent* Ereignis) override;
    void scrollContentsBy(int Dx, int Dy) override;
    void updateGeometries() override;
    QModelIndex moveCursor(CursorAction Richtung, Qt::KeyboardModifiers Zusatz) override;
    QRegion visualRegionForSelection(const QItemSelection& Auswahl) const override;
    void setSelection(const QRect& Bereich, QItemSelectionModel::SelectionFlags Art) override;
    void currentChanged(const QModelIndex& Neu, const QModelIndex& Alt) override;

  private:
    class Stillhalten; ///< while it lives, a change of the current cell is not told

    int FesteHoehe() const;
    int FesteBreite() const;
    int ZeilenAnfang(int Zeile) const; ///< y in the viewport
    int SpaltenAnfang(int Spalte) const;
    int ZeileBei(int Y) const; ///< in the viewport
    int SpalteBei(int X) const;
    QRect Zellrechteck(int Zeile, int Spalte) const; ///< in the viewport
    QPoint Ursprung() const;                         ///< of the viewport in the grid
    void LageMelden();
    void ZeilenhoeheVorgeben();
    void AktuelleLeeren();
    void AnteileAnwenden();
    QString Zelltipp(const QModelIndex& Stelle) const;
    void ZelleAnklicken(const QModelIndex& Stelle);
    static std::optional<CursorAction> Bewegung(const QKeyEvent& Taste);
    bool Weiter(bool Vorwaerts); ///< Tab: false at the end of the grid
    void GroesseAendern(const std::function<void()>& Aendern);
    void RumpfAendern(const std::function<void()>& Aendern);
    std::vector<int> Sortierfolge(int Spalte, int Von, int Bis, Sortierart Art) const;

    Gittermodell* Modell;
    QList<double> Anteile;
    int Mindestbreite = 0; ///< that the shares are taken of
    int Stille = 0;
    bool Umbruch = false;
    bool LageVeraltet = false;
    bool Gedrueckt = false; ///< the left button went down on a cell
    friend class Gittermaler;
};
