#pragma once

#include "core/Zeichenflaeche.h"

#include <QColor>
#include <QSizeF>

class QPainter;

/// A Zeichenflaeche over a QPainter. The painter must be active and outlives the surface; its transformation,
/// pen and font are the surface's while it lives, and they are restored at the end. Lines have the width of
/// the pen that the painter had.
class Malflaeche : public Zeichenflaeche {
  public:
    enum class Art { Bildschirm, Vorschau, Drucker };

    /// Groesse: the surface in the painter's units (pixels). TwipsJeEinheit: 15 on a screen, 1440 divided by
    /// the resolution on paper. Font sizes follow the same scale.
    Malflaeche(QPainter& NeuerMaler, QSizeF NeueGroesse, Art NeueArt, double NeueTwipsJeEinheit = 15);
    ~Malflaeche() override;
    Malflaeche(const Malflaeche&) = delete;
    Malflaeche& operator=(const Malflaeche&) = delete;

    double Breite() const override;
    double Hoehe() const override;
    bool IstDrucker() const override { return WelcheArt == Art::Drucker; }
    bool IstBildschirm() const override { return WelcheArt == Art::Bildschirm; }
    void Leeren() override;                    ///< white, like paper, whatever the palette
    void Sichtbar(bool /*Zeigen*/) override {} ///< a painter shows its picture at once when it is complete
    void Schrift(double Punkte, bool Fett) override;
    void Schriftweite(double Anteil) override { Weite = Anteil; }
    double TextBreite(const QString& Text) const override;
    double TextHoehe(const QString& Text) const override;
    void Text(double X, double Y, const QString& Text, QRgb Farbe) override;
    void Linie(double X, double Y, double DX, double DY, QRgb Farbe) override;
    /// Covers at least one unit in each direction, so a narrow bar never vanishes.
    void Kasten(double X, double Y, double DX, double DY, QRgb Farbe) override;

  private:
    void Stift(QRgb Farbe);
    double InEinheiten(double Twips) const { return Twips / TwipsJeEinheit; }

    QPainter& Maler;
    QSizeF Groesse;
    Art WelcheArt;
    double TwipsJeEinheit;
    double Weite = 1;
};
