#pragma once

#include <QColor>
#include <QTableView>

#include <vector>

class Gittermodell;
class Gitterrand;

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

/// How a range of rows is sorted; always stable.
enum class Sortierart { TextAufsteigend, ZahlAbsteigend };

/// The one grid of the program: a table view over its own light model. Rows and columns are counted from 0
/// with the fixed header rows and the fixed first columns, which are cells like any other and stay in place
/// while the rest scrolls. Equal neighbours in a header row are merged where that row is set to. The cell
/// entered last is the current one (Row, Col).
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
    void setMergeRow(int Zeile, bool Verbinden); ///< equal neighbours in this header row show as one
    void setWordWrapCells(bool Umbrechen);       ///< texts break over several lines (assessment grids)
    /// Replaces all rows from FixedRows on by these, followed by one empty entry row, in one reset. Current
    /// cell: kept if it still exists; no ZelleBetreten.
    void ZeilenSetzen(std::vector<Gitterzeile> Zeilen);

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
    /// Widths as shares of the width available; they follow every change of size. Empty: widths stay as set.
    void setColShares(const QList<double>& Anteile);
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

  private:
    Gittermodell* Modell = nullptr;
};
