#pragma once

#include <QPalette>

/// Text and background of one cell as they are painted.
struct Zellfarben {
    QRgb Text = 0;
    QRgb Grund = 0;
    bool operator==(const Zellfarben&) const = default;
};

/// Contrast of two colours by luminance, 1 (none) to 21 (black on white).
double Kontrast(QRgb Eine, QRgb Andere);

/// True if texts of this palette are light on dark.
bool IstDunkel(const QPalette& Palette);

/// The colours of a cell under a palette. Cell colours are chosen for black on white, and 0 is unset. On a
/// light palette they are taken as they are, unset ones from the palette. On a dark one the background
/// becomes a dark shade of the same hue, and the text is lightened until it is readable (4.5 and above).
/// Kopf: an unset background is that of a header.
Zellfarben ZellfarbenFuer(QRgb Vordergrund, QRgb Hintergrund, const QPalette& Palette, bool Kopf);
