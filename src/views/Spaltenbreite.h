#pragma once

#include "core/Textmerker.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include <array>
#include <unordered_map>

struct Schuelerliste;

/// Measures texts for column widths: the sum of the widths of their characters, each measured once. A list of
/// thousands of rows is measured without laying out a single line.
class Zeichenmass {
  public:
    explicit Zeichenmass(const QFont& Schrift);

    double Breite(const QString& Text); ///< in pixels

  private:
    double Zeichenbreite(QChar Zeichen);

    static constexpr double Ungemessen = -1;
    QFontMetricsF Mass;
    std::array<double, 0x180> Lateinische; ///< by character: nearly all there are
    std::unordered_map<char16_t, double> Andere;
};

/// Width of the widest text in the columns of a class list, of all its rows. A text is measured again only
/// when its record has been written.
class Spaltenmass {
  public:
    /// Font of the widths from now on.
    void SchriftSetzen(const QFont& Schrift);
    double Breite(const QString& Text) { return Zeichen.Breite(Text); }
    /// In pixels, of the columns Von..Bis.
    std::vector<double> Breiteste(const Schuelerliste& Liste, int Von, int Bis);

  private:
    double Zellenbreite(const Schuelerliste& Liste, std::size_t Zeile, int Spalte);

    QFont Gemessene;
    Zeichenmass Zeichen{Gemessene};
    Textmerker<double> AnSchuelern; ///< by place of the student, name and fields
    Textmerker<double> AnNoten;     ///< by place of the row of grades
};
