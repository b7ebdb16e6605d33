#include "controls/Zellfarben.h"

#include <QColor>

#include <cmath>

namespace {

constexpr double Lesbar = 4.5;

double Anteil(int Wert) {
    const double Bruch = Wert / 255.0;
    return Bruch <= 0.03928 ? Bruch / 12.92 : std::pow((Bruch + 0.055) / 1.055, 2.4);
}

double Leuchtdichte(QRgb Farbe) {
    return 0.2126 * Anteil(qRed(Farbe)) + 0.7152 * Anteil(qGreen(Farbe)) + 0.0722 * Anteil(qBlue(Farbe));
}

QColor MitHelligkeit(const QColor& Farbe, float Saettigung, float Helligkeit) {
    return QColor::fromHslF(qMax(0.0F, Farbe.hslHueF()), Saettigung, qBound(0.0F, Helligkeit, 1.0F));
}

/// A tint of paper as a shade of night: the same hue, a little stronger than the base it stands on.
QRgb Nachtton(QRgb Farbe, QRgb Grund) {
    const QColor Ton(Farbe);
    const float Tiefe = QColor(Grund).lightnessF() + 0.9F * (1.0F - Ton.lightnessF());
    return MitHelligkeit(Ton, 0.5F * Ton.hslSaturationF(), qMin(Tiefe, 0.3F)).rgb();
}

QRgb Lesbargemacht(QRgb Text, QRgb Grund) {
    const float Schritt = Leuchtdichte(Grund) < 0.18 ? 0.04F : -0.04F;
    QColor Farbe(Text);
    while (Kontrast(Farbe.rgb(), Grund) < Lesbar && Farbe.lightnessF() > 0.0F && Farbe.lightnessF() < 1.0F)
        Farbe = MitHelligkeit(Farbe, Farbe.hslSaturationF(), Farbe.lightnessF() + Schritt);
    if (Kontrast(Farbe.rgb(), Grund) >= Lesbar)
        return Farbe.rgb();
    return Schritt > 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
}

} // namespace

double Kontrast(QRgb Eine, QRgb Andere) {
    const double A = Leuchtdichte(Eine) + 0.05;
    const double B = Leuchtdichte(Andere) + 0.05;
    return A > B ? A / B : B / A;
}

bool IstDunkel(const QPalette& Palette) {
    return Palette.color(QPalette::Base).lightnessF() < 0.5F;
}

Zellfarben ZellfarbenFuer(QRgb Vordergrund, QRgb Hintergrund, const QPalette& Palette, bool Kopf) {
    const QRgb Leergrund = Palette.color(Kopf ? QPalette::Button : QPalette::Base).rgb();
    const QRgb Leertext = Palette.color(Kopf ? QPalette::ButtonText : QPalette::Text).rgb();
    if (!IstDunkel(Palette)) {
        const QRgb Grund = Hintergrund == 0 ? Leergrund : Hintergrund;
        return {Vordergrund == 0 ? Lesbargemacht(Leertext, Grund) : Vordergrund, Grund};
    }
    const QRgb Grund =
        Hintergrund == 0 ? Leergrund : Nachtton(Hintergrund, Palette.color(QPalette::Base).rgb());
    // Black is what a cell has that was given no colour of its own: the text of the theme.
    const bool Schwarz = Vordergrund == 0 || Vordergrund == qRgb(0, 0, 0);
    return {Lesbargemacht(Schwarz ? Leertext : Vordergrund, Grund), Grund};
}
