#pragma once

#include "assessments/Formulierungsdatei.h"

#include <QtGui/qrgb.h>

#include <optional>

// Changes of the phrase store. Areas and phrases are counted from 0; the area at AnzLernbereiche is the empty
// one behind "**Neuer Lernbereich**", and comes to life by what is put into it. Each procedure sets
// FormulierungenGeaendert after the store is complete, unless its contract says otherwise. What finds no room
// is refused: then nothing has changed.

/// Why a change was refused.
enum class Ablehnung { Keine, LernbereicheVoll, FormulierungenVoll, Bereichszeile };

/// The refusal as a sentence for the user; "" for Keine.
QString AblehnungText(Ablehnung Grund);

/// Shows the refusal, if it is one. True if nothing was refused.
bool Angenommen(Ablehnung Grund);

/// Whether a phrase can still be added to the area.
Ablehnung PlatzPruefen(int Bereich);

/// Takes a text in its stored form, trimmed and not empty, as the phrase at Zeile: behind the last one as a
/// new neutral phrase, else in place of the text there, mark and separator staying. The same text again
/// changes nothing, nor the flag. A line that the file would read as an area is refused.
Ablehnung FormulierungAblegen(int Bereich, int Zeile, const QString& Text);

/// Takes a phrase out; the following ones move up.
void FormulierungLoeschen(int Bereich, int Zeile);

/// Moves a phrase within its area; it stands in row Nach afterwards.
void FormulierungVerschieben(int Bereich, int Von, int Nach);

/// Moves a phrase, with its mark, to the end of another area.
Ablehnung FormulierungUmziehen(int VonBereich, int Zeile, int NachBereich);

/// Gives the phrase the mark of number 0, 1 or 2. False, and nothing has changed, where there is no stored
/// character to mark.
bool FormulierungMarkieren(int Bereich, int Zeile, int Marke);

/// Names an area; a new name for one in use leaves FormulierungenGeaendert as it is. The area behind
/// "**Neuer Lernbereich**" comes to life under this name.
Ablehnung LernbereichBenennen(int Bereich, const QString& Name);

/// Takes an area with all its phrases out.
void LernbereichLoeschen(int Bereich);

/// Moves an area; it stands at Nach afterwards. FormulierungenGeaendert stays as it is on purpose. False, and
/// nothing has changed, if both are the same or one is no area in use.
bool LernbereichVerschieben(int Von, int Nach);

/// One of the three marks of a phrase, with its smiley.
struct Formulierungsmarke {
    char16_t Zeichen;
    QRgb Farbe; ///< background of the row
    const char* Beschriftung;
};
inline constexpr int AnzMarken = 3;

/// The mark of number 0, 1 or 2: positive, neutral, negative.
const Formulierungsmarke& Marke(int Nummer);
/// Background of a stored line; nothing for an unknown mark or an empty line.
std::optional<QRgb> Markenfarbe(const QString& Zeile);
/// Number of the mark with this background; nothing if there is none.
std::optional<int> MarkeMitFarbe(QRgb Farbe);

inline const QString NeuerLernbereichText = QStringLiteral("**Neuer Lernbereich**");
inline const QString UnbenannterLernbereich = QStringLiteral("Unbenannter Lernbereich");
