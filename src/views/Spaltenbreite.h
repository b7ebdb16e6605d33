#pragma once

#include "core/Definitionen.h"
#include "core/Textmerker.h"
#include "views/AnsichtSSpalten.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include <array>
#include <memory>
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

/// The texts of a student that view S shows, as they once stood in his record: name and fields 1..14. While
/// the copies are held, nothing else can come to lie where they lie; so the places alone tell whether they
/// are still the same, and a list of thousands is looked through without touching the copies.
struct Schuelertexte {
    Reihe<const QChar*, 1 + AnzFelder> Orte;
    std::unique_ptr<Reihe<QString, 1 + AnzFelder>> Gehaltene;

    Schuelertexte() = default;
    explicit Schuelertexte(const Schueler& Satz);
};
bool NochDieselben(const Schuelertexte& Gemerkte, const Schueler& Satz);

/// Width of the widest text in each column of a class list, of all its rows. Texts are measured again only
/// when their record has been written.
class Spaltenmass {
  public:
    /// Font of the widths from now on.
    void SchriftSetzen(const QFont& Schrift);
    double Breite(const QString& Text) { return Zeichen.Breite(Text); }
    std::vector<double> Breiteste(const Schuelerliste& Liste); ///< of all columns, in pixels

  private:
    using Schuelerbreiten = Reihe<double, 1 + AnzFelder>; ///< of the name and of the fields 1..14
    Schuelerbreiten Messen(const Schueler& Satz);

    QFont Gemessene;
    Zeichenmass Zeichen{Gemessene};
    Textmerker<Schuelertexte, Schuelerbreiten> AnSchuelern; ///< by place of the student
};
