#pragma once

#include "core/Definitionen.h"

#include <QByteArray>

// The phrase file as bytes: a first line with the version, then for each area a section line "[Name]" and its
// phrases, one a line, as they stand in the store: mark, separator, text. Windows-1252, CR LF.

using Lernbereichsreihe = Reihe<Lernbereich, 100>;

inline constexpr qint16 MaxLernbereiche =
    Lernbereichsreihe::Obergrenze; ///< the record behind them stays empty
inline constexpr qint32 MaxFormulierungen = decltype(Lernbereich::Formulierung)::size();

/// What a reading came to.
struct Formulierungsbefund {
    enum class Art { Gut, FalscherKopf, FalscheVersion, Beschaedigt };
    Art Was = Art::Gut;
    QString Version;     ///< the three characters at the place of the version
    qint32 Zeile = 1;    ///< number of the line read last, from 1
    qint16 Bereich = 0;  ///< number of the area it belongs to, from 1; 0 before the first
    QString LetzteZeile; ///< that line, as fit for a box; empty if there was none
};

/// Empties the store: no area, and the record of the next one without phrases.
void LernbereicheLeeren(Lernbereichsreihe& Bereiche, qint16& Anzahl);

/// Appends the areas of the file to Bereiche, of which Anzahl are in use. A first line that is none of ours,
/// or of another version, changes nothing. A phrase before the first area of all, a phrase too many in an
/// area, an area too many, and an empty file end the reading as damaged; what stood before that line stays
/// in the store.
Formulierungsbefund FormulierungenLesen(QByteArrayView Bytes, Lernbereichsreihe& Bereiche, qint16& Anzahl);

/// The bytes of the file, always of version 3.0. A character outside Windows-1252 throws a Laufzeitfehler.
QByteArray FormulierungenBytes(const Lernbereichsreihe& Bereiche, qint16 Anzahl);

/// True for a line that the file would read as the name of an area: it begins with "[" and ends with "]".
bool IstBereichszeile(const QString& Zeile);
