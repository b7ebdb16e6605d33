#include "grading/Optionsgitter.h"

#include "controls/Gitter.h"
#include "core/Zahlen.h"
#include "grading/Optionen.h"

namespace {

constexpr int Kopfzeilen = 2;
constexpr double AnteilBezeichnung = 0.19;
constexpr double AnteilWerte = 0.75;

struct Kopftexte {
    QString Ecke;         ///< row 0, column 0
    QString Ueberschrift; ///< row 0, over all values
    QString Bezeichnung;  ///< row 1, column 0
};

void Fuellen(Gitter& Tabelle, const Kopftexte& Kopf, const std::vector<QStringList>& Zeilen,
             int Wertspalten) {
    Tabelle.setFixedRows(Kopfzeilen);
    Tabelle.setFixedCols(1);
    Tabelle.setCols(Wertspalten + 1);
    Tabelle.setRows(Kopfzeilen + static_cast<int>(Zeilen.size()));
    Tabelle.setMergeRow(0, true);
    Tabelle.setTextMatrix(0, 0, Kopf.Ecke);
    Tabelle.setTextMatrix(1, 0, Kopf.Bezeichnung);
    QList<double> Anteile{AnteilBezeichnung};
    for (int Spalte = 1; Spalte <= Wertspalten; ++Spalte) {
        Tabelle.setTextMatrix(0, Spalte, Kopf.Ueberschrift);
        Tabelle.setTextMatrix(1, Spalte, ZahlText(Spalte));
        Tabelle.setColAlignment(Spalte, Qt::AlignCenter);
        Anteile.append(AnteilWerte / Wertspalten);
    }
    Tabelle.setColShares(Anteile);
    int Zeile = Kopfzeilen;
    for (const QStringList& Texte : Zeilen) {
        for (int Spalte = 0; Spalte <= Wertspalten; ++Spalte)
            Tabelle.setTextMatrix(Zeile, Spalte, Texte.at(Spalte));
        ++Zeile;
    }
}

} // namespace

void TabellenFuellen(Gitter& Tabelle, const Optionen& Werte, int HoechsteNote) {
    Fuellen(Tabelle,
            {QStringLiteral("Gesamtpunktzahl"), QStringLiteral("Mindestpunktzahl für die Note"), QString()},
            TabellenZeilen(Werte, HoechsteNote), HoechsteNote - 1);
}

void GaussFuellen(Gitter& Tabelle, const Optionen& Werte, int HoechsteNote) {
    Fuellen(
        Tabelle,
        {QString(), QStringLiteral("Prozentualer Anteil der Schüler mit Note"), QStringLiteral("Verteilung")},
        GaussZeilen(Werte, HoechsteNote), HoechsteNote);
}

void EigeneFuellen(Gitter& Tabelle, const Optionen& Werte, int HoechsteNote) {
    Fuellen(Tabelle,
            {QString(), QStringLiteral("Prozentualer Anteil der Gesamtpunktzahl ist Notengrenze der Note"),
             QStringLiteral("Verteilung")},
            EigeneZeilen(Werte, HoechsteNote), HoechsteNote - 1);
}

void ZeilenAngleichen(Gitter& Tabelle) {
    constexpr int Zeilenzahl = 7;
    const int Hoehe = (Tabelle.height() - Gitter::TwipsInPixel(30)) / Zeilenzahl;
    for (int Zeile = 1; Zeile < qMin(Zeilenzahl, Tabelle.Rows()); ++Zeile)
        if (Tabelle.RowHeight(Zeile) != Hoehe)
            Tabelle.setRowHeight(Zeile, Hoehe);
}

std::vector<QStringList> WerteZeilen(const Gitter& Tabelle) {
    std::vector<QStringList> Zeilen;
    for (int Zeile = Kopfzeilen; Zeile < Tabelle.Rows(); ++Zeile) {
        QStringList Texte;
        for (int Spalte = 0; Spalte < Tabelle.Cols(); ++Spalte)
            Texte.append(Tabelle.TextMatrix(Zeile, Spalte));
        Zeilen.push_back(Texte);
    }
    return Zeilen;
}
