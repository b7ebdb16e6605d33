#pragma once

#include "controls/Zellfarben.h"

#include <QHash>
#include <QLine>
#include <QList>
#include <QRect>

class Gitter;
class QPainter;

/// Paints a part of a grid straight from its model: first what scrolls, then the fixed part over it. For each
/// part all backgrounds, then all texts, then all lines, so that the painter changes its state as rarely as
/// possible.
class Gittermaler {
  public:
    Gittermaler(const Gitter& Gemaltes, QPainter& Stift, const QRect& Bereich);
    void Malen();

  private:
    struct Spanne {
        int Von;
        int Bis;
    };
    struct Zelltext {
        QRect Platz;
        int Zeile;
        int Spalte;
        QRgb Farbe;
    };

    void TeilMalen(const Spanne& Zeilen, const Spanne& Spalten);
    void ZelleVorbereiten(int Zeile, int Erste, int Letzte, const QRect& Sichtbar);
    void TextMalen(const Zelltext& Text);
    void RahmenMalen();
    const Zellfarben& Farben(QRgb Vordergrund, QRgb Hintergrund, bool Kopf);

    const Gitter& Tabelle;
    QPainter& Stift;
    QRect Bereich;
    QList<Zelltext> Texte;
    QList<QLine> Linien;
    QHash<quint64, Zellfarben> Bekannte[2];
    QRgb Stiftfarbe = 0;
};
