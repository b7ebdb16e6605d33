#pragma once

#include <QFontMetricsF>
#include <QHash>
#include <QString>

/// Measures texts for column widths: the sum of the widths of their characters, each measured once. A list of
/// thousands of rows is measured without laying out a single line.
class Zeichenmass {
  public:
    explicit Zeichenmass(const QFont& Schrift);

    double Breite(const QString& Text); ///< in pixels

  private:
    QFontMetricsF Mass;
    QHash<char16_t, double> Breiten;
};
