#pragma once

#include "controls/Gitter.h"

#include <QAbstractTableModel>
#include <QHash>

/// What a grid shows: texts and colours row by row, with the hidden data of rows and columns. The header rows
/// and fixed columns are rows and columns like any other; headerData answers their texts as well, for screen
/// readers. Rows can come from a source, which is asked for each when it is first looked at: by painting, by
/// a reader or by a writer. From outside it makes no difference when that was.
class Gittermodell : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// Role of the hidden datum of a row.
    static constexpr int DatumRolle = Qt::UserRole;

    explicit Gittermodell(QObject* Eltern = nullptr);

    int rowCount(const QModelIndex& Eltern = {}) const override;
    int columnCount(const QModelIndex& Eltern = {}) const override;
    QVariant data(const QModelIndex& Stelle, int Rolle) const override;
    QVariant headerData(int Abschnitt, Qt::Orientation Richtung, int Rolle) const override;
    Qt::ItemFlags flags(const QModelIndex& Stelle) const override;

    int Zeilen() const { return static_cast<int>(Alle.size()); }
    int Spalten() const { return static_cast<int>(Spaltendaten.size()); }
    bool Enthaelt(int Zeile, int Spalte) const;
    const Gitterzelle& Zelle(int Zeile, int Spalte) const; ///< an empty one outside
    bool Gefragt(int Zeile) const;      ///< false while the source has not been asked for this row
    int Zeilendatum(int Zeile) const;   ///< 0 outside
    int Spaltendatum(int Spalte) const; ///< 0 outside
    Qt::Alignment Ausrichtung(int Spalte) const;
    /// Width of the text in pixels, measured once by Messen and kept until the text or the font changes.
    template <class Messung>
    int Textbreite(int Zeile, int Spalte, const Messung& Messen) const {
        std::vector<int>& Breiten = Alle[static_cast<std::size_t>(Zeile)].Breiten;
        if (Breiten.empty())
            Breiten.assign(Spaltendaten.size(), -1);
        int& Breite = Breiten[static_cast<std::size_t>(Spalte)];
        if (Breite < 0)
            Breite = Messen(Zelle(Zeile, Spalte).Text);
        return Breite;
    }
    void TextbreitenVergessen();

    // The writers throw a Laufzeitfehler outside the grid, and tell their views only if something changes.
    void TextSetzen(int Zeile, int Spalte, const QString& Text);
    void FarbenSetzen(int Zeile, int Spalte, QRgb Vordergrund, QRgb Hintergrund);
    void ZeilendatumSetzen(int Zeile, int Datum);
    void SpaltendatumSetzen(int Spalte, int Datum);
    void AusrichtungSetzen(int Spalte, Qt::Alignment Ausrichtung);
    void VerbindenSetzen(int Zeile, bool Verbinden);
    void ZeilenanzahlSetzen(int Anzahl);
    void SpaltenanzahlSetzen(int Anzahl);
    /// What a text colour means, in words, for those who do not see it.
    void BedeutungSetzen(QRgb Farbe, const QString& Bedeutung);
    QString Bedeutung(int Zeile, int Spalte) const; ///< "" for a colour without one
    void FestSetzen(int Zeilen, int Spalten);       ///< for headerData and merging
    /// All rows below the fixed ones become new; the last one of them is empty.
    void RumpfSetzen(std::vector<Gitterzeile> Neue);
    void RumpfSetzen(const std::vector<qint32>& Daten, Zeilenquelle Quelle);
    /// Row Von+i becomes what row Von+Reihenfolge[i] was.
    void Umordnen(int Von, const std::vector<int>& Reihenfolge);

    int FesteZeilen() const { return AnzFesteZeilen; }
    int FesteSpalten() const { return AnzFesteSpalten; }
    /// First and last column of the merged cell that covers this one; the column itself where none is merged.
    std::pair<int, int> Gruppe(int Zeile, int Spalte) const;

  private:
    struct Spaltenangabe {
        qint32 Datum = 0;
        Qt::Alignment Ausrichtung = Qt::AlignLeft | Qt::AlignVCenter;
    };
    static constexpr int Gegeben = -1;
    struct Modellzeile {
        qint32 Datum = 0;
        int Nummer = Gegeben;            ///< for the source, as long as it has not been asked
        std::vector<Gitterzelle> Zellen; ///< one for each column, or none: all are empty
        std::vector<int> Breiten;        ///< one for each column, -1: not measured; or none
    };

    const Modellzeile& Geholt(int Zeile) const; ///< asks the source if need be
    Gitterzelle& Schreibzelle(int Zeile, int Spalte);
    void BreiteVergessen(int Zeile, int Spalte);
    bool Verbindet(int Zeile) const;
    bool GehoertZusammen(int Zeile, int Links, int Rechts) const;
    QString Kopftext(int Spalte) const;
    void RumpfErsetzen(std::vector<Modellzeile> Neue, Zeilenquelle NeueQuelle);

    mutable std::vector<Modellzeile> Alle;
    Zeilenquelle Quelle;
    std::vector<Spaltenangabe> Spaltendaten;
    QHash<QRgb, QString> Bedeutungen;
    std::vector<bool> Verbunden; ///< by header row
    int AnzFesteZeilen = 0;
    int AnzFesteSpalten = 0;
};
