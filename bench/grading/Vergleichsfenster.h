#pragma once

#include <QTableView>
#include <QWidget>

// The reference for view P: a window with Qt's own table and two charts drawn in the plainest way. It stays
// as it is.

class Vergleichsdiagramm : public QWidget {
  public:
    explicit Vergleichsdiagramm(int NeueAnzahl)
        : Anzahl(NeueAnzahl) {}

  protected:
    void paintEvent(QPaintEvent* Ereignis) override;

  private:
    int Anzahl; ///< of bins, each with a tick, every second with a number and a bar
};

class Vergleichsfenster : public QWidget {
  public:
    /// Sizes as those of the view that is measured.
    Vergleichsfenster(int Zeilen, QSize Tabellengroesse, QSize Diagrammgroesse);

    /// Repaints table and charts in full, at once.
    void AllesMalen();

  private:
    QTableView* Tabelle;
    Vergleichsdiagramm* Punkte;
    Vergleichsdiagramm* Noten;
};
