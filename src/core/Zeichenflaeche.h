#pragma once

#include <QString>
#include <QtGui/qrgb.h>

/// A surface on which charts are drawn: a picture box, the preview, the printer, or a recorder in a test. The
/// unit is the twip, 1/1440 inch; y grows downwards; colours are 0xRRGGBB.
class Zeichenflaeche {
  public:
    virtual ~Zeichenflaeche() = default;
    virtual double Breite() const = 0;      ///< width of the whole surface
    virtual double Hoehe() const = 0;       ///< height of the whole surface
    virtual bool IstDrucker() const = 0;    ///< paper: bars are light
    virtual bool IstBildschirm() const = 0; ///< a picture box of a view: cleared and hidden while it is drawn
    virtual void Leeren() = 0;
    virtual void Sichtbar(bool Zeigen) = 0;
    virtual void Schrift(double Groesse, bool Fett) = 0; ///< size in points
    /// Sets and measures all text from here on in this share of its own width, above 0; its height stays.
    virtual void Schriftweite(double Anteil) = 0;
    virtual double TextBreite(const QString& Text) const = 0;
    virtual double TextHoehe(const QString& Text) const = 0;
    virtual void Text(double X, double Y, const QString& Text, QRgb Farbe) = 0;   ///< X, Y: left top corner
    virtual void Linie(double X, double Y, double DX, double DY, QRgb Farbe) = 0; ///< from (X, Y) by (DX, DY)
    virtual void Kasten(double X, double Y, double DX, double DY,
                        QRgb Farbe) = 0; ///< filled, from (X, Y) by (DX, DY)
};
