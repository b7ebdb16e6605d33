#pragma once

#include <QString>

class QWidget;

// What no box of the program takes: characters that the files cannot hold, and tabs and line breaks, which
// separate fields and lines in them.

/// The text with composed letters and blanks for tabs, and without the characters that no file can hold,
/// which Entfallen counts. Line breaks become blanks; Mehrzeilig: each becomes one \n.
QString EingabeBereinigt(const QString& Text, bool Mehrzeilig, int* Entfallen = nullptr);

/// True for the text of a key that would be dropped; a combining mark may still become part of a letter.
bool TasteUnbrauchbar(const QString& Tastentext);

/// Says in the status line, and at the box, that a character was not taken.
void EntfallenMelden(QWidget* Feld);
