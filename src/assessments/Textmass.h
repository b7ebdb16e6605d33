#pragma once

#include <QFontMetricsF>
#include <QHash>
#include <QString>

// What a text needs in the two grids of the assessment view. All measures are twips, 1/1440 inch.

/// Measures texts. The program takes the font of the main window, tests a fixed width.
class Textmass {
  public:
    virtual ~Textmass() = default;
    virtual double Breite(QStringView Text) const = 0; ///< width of a text without line breaks
    virtual double Hoehe() const = 0;                  ///< height of a line, that of the sample "Äq"
};

/// The measure of a font on the screen.
class Schriftmass : public Textmass {
  public:
    explicit Schriftmass(const QFont& Schrift)
        : Masse(Schrift) {}
    double Breite(QStringView Text) const override;
    double Hoehe() const override;

  private:
    QFontMetricsF Masse;
    mutable QHash<QString, double> Breiten; ///< of words measured before
};

/// Height that a row needs for the text in a column of this width. An empty text is one line; a word wider
/// than the column counts as two lines at the end of a paragraph, and ends its paragraph as one line if
/// further words follow.
double ZeilenhoeheBerechnen(const Textmass& Mass, const QString& Text, double Breite);

/// Caret position (characters in front of it) for a point of a text box of this width: the start of the word
/// under the point; right of a line the end of its last word; below the last line the end of the text. Lines
/// of the text are separated by CR LF. Words and lines beyond 1000 and 100 are taken all the same. It
/// rebuilds the wrapping; EingabeText::WortstelleBei gives the same places from the wrapping that is on the
/// screen.
int TextPositionBerechnen(const Textmass& Mass, const QString& Text, double Breite, double X, double Y);
