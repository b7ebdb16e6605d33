#include "controls/Gittermaler.h"

#include "controls/Gittermodell.h"

#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr int Rand = 3;    ///< between a cell's edge and its text
constexpr int Notrand = 1; ///< the least of it, before a text is cut short

} // namespace

void Gitter::paintEvent(QPaintEvent* Ereignis) {
    QPainter Stift(viewport());
    Stift.setFont(font());
    Gittermaler(*this, Stift, Ereignis->rect()).Malen();
}

Gittermaler::Gittermaler(const Gitter& Gemaltes, QPainter& Pinsel, const QRect& Ausschnitt)
    : Tabelle(Gemaltes)
    , Stift(Pinsel)
    , Bereich(Ausschnitt) {}

void Gittermaler::Malen() {
    if (Tabelle.Rows() == 0 || Tabelle.Cols() == 0)
        return;
    const Spanne FesteZeilen{0, qMin(Tabelle.FixedRows(), Tabelle.Rows()) - 1};
    const Spanne FesteSpalten{0, qMin(Tabelle.FixedCols(), Tabelle.Cols()) - 1};
    const auto Ende = [](int Bei, int Anzahl) { return Bei < 0 ? Anzahl - 1 : Bei; };
    const Spanne Zeilen{
        qMax(Tabelle.FixedRows(), Tabelle.ZeileBei(qMax(Bereich.top(), Tabelle.FesteHoehe()))),
        Ende(Tabelle.ZeileBei(Bereich.bottom()), Tabelle.Rows())};
    const Spanne Spalten{
        qMax(Tabelle.FixedCols(), Tabelle.SpalteBei(qMax(Bereich.left(), Tabelle.FesteBreite()))),
        Ende(Tabelle.SpalteBei(Bereich.right()), Tabelle.Cols())};
    TeilMalen(Zeilen, Spalten);
    TeilMalen(Zeilen, FesteSpalten);
    TeilMalen(FesteZeilen, Spalten);
    TeilMalen(FesteZeilen, FesteSpalten);
    RahmenMalen();
}

void Gittermaler::TeilMalen(const Spanne& Zeilen, const Spanne& Spalten) {
    Texte.clear();
    Linien.clear();
    for (int z = Zeilen.Von; z <= Zeilen.Bis; ++z) {
        for (int s = Spalten.Von; s <= Spalten.Bis; ++s) {
            const auto [Erste, Letzte] = Tabelle.Modell->Gruppe(z, s);
            const QRect Platz = Tabelle.Zellrechteck(z, s);
            if (Platz.intersects(Bereich))
                ZelleVorbereiten(z, Erste, Letzte, Platz);
            s = Letzte;
        }
    }
    for (const Zelltext& Text : Texte)
        TextMalen(Text);
    Stift.setPen(
        QPen(Tabelle.palette().color(IstDunkel(Tabelle.palette()) ? QPalette::Mid : QPalette::Midlight), 0));
    Stift.drawLines(Linien);
    Stiftfarbe = 0;
}

const Zellfarben& Gittermaler::Farben(QRgb Vordergrund, QRgb Hintergrund, bool Kopf) {
    const quint64 Schluessel = (static_cast<quint64>(Vordergrund) << 32) | Hintergrund;
    const auto Gefunden = Bekannte[Kopf].constFind(Schluessel);
    if (Gefunden != Bekannte[Kopf].constEnd())
        return *Gefunden;
    return *Bekannte[Kopf].insert(Schluessel,
                                  ZellfarbenFuer(Vordergrund, Hintergrund, Tabelle.palette(), Kopf));
}

void Gittermaler::ZelleVorbereiten(int Zeile, int Erste, int Letzte, const QRect& Platz) {
    const Gitterzelle& Zelle = Tabelle.Modell->Zelle(Zeile, Erste);
    const bool Kopf = Zeile < Tabelle.FixedRows() || Erste < Tabelle.FixedCols();
    const Zellfarben& Paar = Farben(Zelle.Vordergrund, Zelle.Hintergrund, Kopf);
    Stift.fillRect(Platz, QColor(Paar.Grund));
    Linien.append(QLine(Platz.right(), Platz.top(), Platz.right(), Platz.bottom()));
    Linien.append(QLine(Platz.left(), Platz.bottom(), Platz.right(), Platz.bottom()));
    if (Zelle.Text.isEmpty())
        return;
    QRect Fuer = Platz;
    if (Letzte > Erste && Erste >= Tabelle.FixedCols()) // the title stays in the middle of what is seen
        Fuer = Platz.intersected(
            QRect(QPoint(Tabelle.FesteBreite(), Platz.top()), Tabelle.viewport()->rect().bottomRight()));
    Texte.append({Fuer.adjusted(Rand, 0, -Rand, 0), Zeile, Erste, Paar.Text});
}

void Gittermaler::TextMalen(const Zelltext& Text) {
    if (Text.Platz.width() <= 0)
        return;
    if (Stiftfarbe != Text.Farbe) {
        Stift.setPen(QColor(Text.Farbe));
        Stiftfarbe = Text.Farbe;
    }
    const QString& Inhalt = Tabelle.Modell->Zelle(Text.Zeile, Text.Spalte).Text;
    const auto [Erste, Letzte] = Tabelle.Modell->Gruppe(Text.Zeile, Text.Spalte);
    const Qt::Alignment Seite = Letzte > Erste ? Qt::AlignCenter : Tabelle.Modell->Ausrichtung(Text.Spalte);
    if (Tabelle.Umbruch) {
        constexpr int Mehr = Rand - Gitter::UmbruchRand;
        const QRect Platz = Text.Platz.adjusted(-Mehr, Gitter::UmbruchRand, Mehr, -Gitter::UmbruchRand);
        Stift.drawText(Platz, static_cast<int>(Seite) | Qt::TextWordWrap,
                       QString(Inhalt).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
        return;
    }
    const QFontMetrics Mass = Stift.fontMetrics();
    const int Breite = Tabelle.Modell->Textbreite(
        Text.Zeile, Text.Spalte, [&Mass](const QString& Zeichen) { return Mass.horizontalAdvance(Zeichen); });
    const int Grundlinie = Text.Platz.top() + (Text.Platz.height() - Mass.height()) / 2 + Mass.ascent();
    const int Frei = Text.Platz.width() - Breite;
    if (Frei + 2 * (Rand - Notrand) < 0) {
        Stift.drawText(QPoint(Text.Platz.left(), Grundlinie),
                       Mass.elidedText(Inhalt, Qt::ElideRight, Text.Platz.width()));
        return;
    }
    const bool Mitten = Frei < 0 || Seite.testFlag(Qt::AlignHCenter);
    const int Vorlauf = Mitten ? Frei / 2 : Seite.testFlag(Qt::AlignRight) ? Frei : 0;
    Stift.drawText(QPoint(Text.Platz.left() + Vorlauf, Grundlinie), Inhalt);
}

/// The frame of the current cell: strong with the focus, thin without.
void Gittermaler::RahmenMalen() {
    const QRect Sichtbar =
        Tabelle.SichtbarerTeil(Tabelle.Row(), Tabelle.Col()).translated(-Tabelle.Ursprung());
    if (!Sichtbar.intersects(Bereich))
        return;
    const QRect Zelle = Tabelle.Zellrechteck(Tabelle.Row(), Tabelle.Col());
    Stift.setClipRect(Sichtbar);
    Stift.setPen(QPen(Tabelle.palette().color(QPalette::Highlight), 1));
    Stift.drawRect(Zelle.adjusted(0, 0, -1, -1));
    if (Tabelle.hasFocus())
        Stift.drawRect(Zelle.adjusted(1, 1, -2, -2));
}
