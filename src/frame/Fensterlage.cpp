#include "frame/Fensterlage.h"

#include "core/Einstellungen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int TwipsJePixel = 15;
constexpr int GroessterWert = 100'000; // pixels; keeps sums of damaged values inside an int

int PixelLesen(const QString& Schluessel, int VorgabeTwips) {
    bool Gut = false;
    const int Twips = EinstellungLesen(Schluessel, QString::number(VorgabeTwips)).toInt(&Gut);
    return std::clamp((Gut ? Twips : VorgabeTwips) / TwipsJePixel, -GroessterWert, GroessterWert);
}

void PixelSchreiben(const QString& Schluessel, int Pixel) {
    EinstellungSchreiben(Schluessel, QString::number(Pixel * TwipsJePixel));
}

QList<QRect> Arbeitsflaechen() {
    QList<QRect> Flaechen;
    const auto Alle = QGuiApplication::screens();
    for (const QScreen* Einer : Alle)
        Flaechen.append(Einer->availableGeometry());
    return Flaechen;
}

qint64 Flaeche(const QRect& Rechteck) {
    return Rechteck.isEmpty() ? 0 : qint64(Rechteck.width()) * Rechteck.height();
}

} // namespace

QRect FensterlageLesen() {
    const QPoint Ort(PixelLesen(QStringLiteral("MainLeft"), 1000),
                     PixelLesen(QStringLiteral("MainTop"), 1000));
    const QSize Groesse(PixelLesen(QStringLiteral("MainWidth"), 6000),
                        PixelLesen(QStringLiteral("MainHeight"), 5000));
    return AufBildschirm({Ort, Groesse.expandedTo(KleinstesFenster)}, Arbeitsflaechen());
}

void FensterlageSchreiben(const QWidget& Fenster) {
    if (Fenster.isMinimized())
        return;
    if (!QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
        PixelSchreiben(QStringLiteral("MainLeft"), Fenster.x());
        PixelSchreiben(QStringLiteral("MainTop"), Fenster.y());
    }
    PixelSchreiben(QStringLiteral("MainWidth"), Fenster.width());
    PixelSchreiben(QStringLiteral("MainHeight"), Fenster.height());
}

QRect AufBildschirm(const QRect& Lage, const QList<QRect>& Bildschirme) {
    if (Bildschirme.isEmpty())
        return Lage;
    const auto Platz = std::max_element(Bildschirme.begin(), Bildschirme.end(),
                                        [&Lage](const QRect& Einer, const QRect& Anderer) {
                                            return Flaeche(Einer & Lage) < Flaeche(Anderer & Lage);
                                        });
    QRect Ergebnis(Lage.topLeft(), Lage.size().boundedTo(Platz->size()).expandedTo(KleinstesFenster));
    Ergebnis.moveLeft(
        std::max(Platz->left(), std::min(Ergebnis.left(), Platz->right() + 1 - Ergebnis.width())));
    Ergebnis.moveTop(
        std::max(Platz->top(), std::min(Ergebnis.top(), Platz->bottom() + 1 - Ergebnis.height())));
    return Ergebnis;
}
