#pragma once

#include <QList>
#include <QRect>

class QWidget;

// Place and size of the main window between two runs, kept in twips of which 15 are one pixel.

inline constexpr QSize KleinstesFenster{640, 400};

/// The stored place and size in pixels, at least KleinstesFenster; values that are no numbers count as unset.
QRect FensterlageLesen();

/// Stores place and size, unless the window is minimised. Where windows don't know their place (Wayland) the
/// stored one stays.
void FensterlageSchreiben(const QWidget& Fenster);

/// The rectangle moved and, where it must, shrunk so that it lies on the screen it covers most; if it covers
/// none, on the first.
QRect AufBildschirm(const QRect& Lage, const QList<QRect>& Bildschirme);
