#include "grading/Malflaeche.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double TwipsJePunkt = 20;

} // namespace

Malflaeche::Malflaeche(QPainter& NeuerMaler, QSizeF NeueGroesse, Art NeueArt, double NeueTwipsJeEinheit)
    : Maler(NeuerMaler)
    , Groesse(NeueGroesse)
    , WelcheArt(NeueArt)
    , TwipsJeEinheit(NeueTwipsJeEinheit) {
    Maler.save();
}

Malflaeche::~Malflaeche() {
    Maler.restore();
}

double Malflaeche::Breite() const {
    return Groesse.width() * TwipsJeEinheit;
}

double Malflaeche::Hoehe() const {
    return Groesse.height() * TwipsJeEinheit;
}

void Malflaeche::Leeren() {
    Maler.fillRect(QRectF(QPointF(0, 0), Groesse), Qt::white);
}

void Malflaeche::Schrift(double Punkte, bool Fett) {
    // Set in units of the surface and told to Qt in points of the device, so that the chart keeps its
    // proportions whatever resolution the device claims.
    const double Einheiten = InEinheiten(Punkte * TwipsJePunkt);
    QFont Neue = Maler.font();
    Neue.setPointSizeF(Einheiten * 72 / Maler.device()->logicalDpiY());
    Neue.setBold(Fett);
    Maler.setFont(Neue);
}

double Malflaeche::TextBreite(const QString& Text) const {
    return QFontMetricsF(Maler.font(), Maler.device()).horizontalAdvance(Text) * Weite * TwipsJeEinheit;
}

double Malflaeche::TextHoehe(const QString& /*Text*/) const {
    return QFontMetricsF(Maler.font(), Maler.device()).height() * TwipsJeEinheit;
}

void Malflaeche::Stift(QRgb Farbe) {
    QPen Neuer = Maler.pen();
    Neuer.setColor(QColor::fromRgb(Farbe));
    Maler.setPen(Neuer);
}

void Malflaeche::Text(double X, double Y, const QString& Text, QRgb Farbe) {
    Stift(Farbe);
    const double Grundlinie = QFontMetricsF(Maler.font(), Maler.device()).ascent();
    const QTransform Vorher = Maler.transform();
    Maler.translate(InEinheiten(X), InEinheiten(Y) + Grundlinie);
    Maler.scale(Weite, 1);
    Maler.drawText(QPointF(0, 0), Text);
    Maler.setTransform(Vorher);
}

void Malflaeche::Linie(double X, double Y, double DX, double DY, QRgb Farbe) {
    Stift(Farbe);
    Maler.drawLine(QLineF(InEinheiten(X), InEinheiten(Y), InEinheiten(X + DX), InEinheiten(Y + DY)));
}

void Malflaeche::Kasten(double X, double Y, double DX, double DY, QRgb Farbe) {
    QRectF Feld(InEinheiten(X), InEinheiten(Y), InEinheiten(DX), InEinheiten(DY));
    Feld = Feld.normalized();
    Feld.setWidth(std::max(Feld.width(), 1.0));
    Feld.setHeight(std::max(Feld.height(), 1.0));
    Maler.fillRect(Feld, QColor::fromRgb(Farbe));
}
