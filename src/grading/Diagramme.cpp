#include "grading/Diagramme.h"

#include "core/FktAllgemein.h"

#include <algorithm>

namespace {

// Twips per pixel of the screen; the same values serve on paper.
constexpr double tx = 15;
constexpr double ty = 15;

constexpr QRgb Schwarz = 0xFF000000;
constexpr QRgb GrenzFarbe = 0xFF108810;

/// Bars are dark on the screen and light on paper.
struct Balkenfarbe {
    QRgb Bildschirm;
    QRgb Papier;
};
constexpr Balkenfarbe PunkteFarbe{0xFF000077, 0xFF7777FF};
constexpr Balkenfarbe NotenFarbe{0xFF007700, 0xFF77FF77};

QRgb FarbeFuer(const Zeichenflaeche& Flaeche, const Balkenfarbe& Farbe) {
    return Flaeche.IstDrucker() ? Farbe.Papier : Farbe.Bildschirm;
}

/// A chart while it is drawn: title and axes stand after the constructor; a picture box of a view stays
/// hidden until the destructor.
class Diagramm {
  public:
    Diagramm(Zeichenflaeche& NeueFlaeche, const Diagrammplatz& Platz, const QString& Titel)
        : Flaeche(NeueFlaeche)
        , x0(Platz.Links * Flaeche.Breite())
        , y0(Platz.Oben * Flaeche.Hoehe())
        , W(Platz.Breite * Flaeche.Breite())
        , H(Platz.Hoehe * Flaeche.Hoehe()) {
        if (Flaeche.IstBildschirm()) {
            Flaeche.Leeren();
            Flaeche.Sichtbar(false);
        }
        const double Schriftgrad = W / 2 + H < 250 * tx ? 8 : 12;
        Flaeche.Schrift(Schriftgrad, true);
        Flaeche.Text(x0 + (W - Flaeche.TextBreite(Titel)) / 2, y0 + 4 * ty, Titel, Schwarz);
        Flaeche.Schrift(Schriftgrad - 1, false);
        RahmenBerechnen(Flaeche.TextHoehe(Titel));
        Flaeche.Linie(Links, yA, PW, 0, Schwarz);
        Flaeche.Linie(Links, yA, 0, -PH, Schwarz);
    }

    ~Diagramm() {
        if (Flaeche.IstBildschirm())
            Flaeche.Sichtbar(true);
    }

    Diagramm(const Diagramm&) = delete;
    Diagramm& operator=(const Diagramm&) = delete;

    void XStrich(double X) { Flaeche.Linie(X, yA + 3 * ty, 0, -6 * ty, Schwarz); }

    /// Makes room for the numbers below the X axis, of which Hoechste and the one before it are the widest
    /// neighbours. Their size and places are fixed, and many fonts are too wide for that: numbers that would
    /// run into each other are set narrower, as far as they can still be read.
    void XZahlenEinpassen(int Hoechste, int Naechste, double Abstand) {
        const double Zusammen =
            Flaeche.TextBreite(QString::number(Hoechste)) + Flaeche.TextBreite(QString::number(Naechste));
        Flaeche.Schriftweite(std::clamp((Abstand - 3 * tx) / (Zusammen / 2), 0.4, 1.0));
    }
    void XZahlenFertig() { Flaeche.Schriftweite(1); }

    void XBeschriften(double Mitte, int Zahl) {
        const QString Text = QString::number(Zahl);
        Flaeche.Text(Mitte - Flaeche.TextBreite(Text) / 2, yA + 3 * ty, Text, Schwarz);
    }

    /// Ticks and numbers of the Y axis for counts up to Maximum, which is above 0.
    void YSkala(int Maximum) {
        Einheit = PH / Maximum;
        for (int i = 1; i <= Maximum; ++i)
            Flaeche.Linie(Links - 3 * tx, yA - Einheit * i, 6 * tx, 0, Schwarz);
        const int Schritt = YSchritt(Maximum);
        for (int i = 1; i <= Maximum; i += Schritt) {
            const QString Text = QString::number(i);
            // The right edge keeps its distance in ty, as the tick length above it keeps its in tx.
            Flaeche.Text(Links - 4 * ty - Flaeche.TextBreite(Text),
                         yA - Einheit * i - Flaeche.TextHoehe(Text) / 2, Text, Schwarz);
        }
    }

    void Balken(double X, double Breite, int Anzahl, const Balkenfarbe& Farbe) {
        Flaeche.Kasten(X, yA - ty, Breite, -Anzahl * Einheit, FarbeFuer(Flaeche, Farbe));
    }

    void Grenzlinie(double X) { Flaeche.Linie(X, yA + 5 * ty, 0, -PH - 5 * ty, GrenzFarbe); }

    double Links = 0; ///< X of the Y axis
    double PW = 0;    ///< width of the plot

  private:
    /// The margins depend on the smaller font, so it is set before.
    void RahmenBerechnen(double Texthoehe) {
        const double L = 0.06 * W + 10 * tx;
        const double R = 0.04 * W + 10 * tx;
        const double T = Texthoehe + 14 * ty;
        const double B = 0.06 * H + 15 * ty;
        Links = x0 + L;
        PW = W - L - R;
        PH = H - T - B;
        yA = y0 + H - B;
    }

    int YSchritt(int Maximum) const {
        if (PH < Maximum * 8 * ty)
            return 5;
        return PH < Maximum * 20 * ty ? 2 : 1;
    }

    Zeichenflaeche& Flaeche;
    double x0;
    double y0;
    double W;
    double H;
    double PH = 0;      ///< height of the plot
    double yA = 0;      ///< Y of the X axis
    double Einheit = 0; ///< height of one student
};

/// Every how many half points a number stands below the X axis.
int XSchritt(double PW, double n) {
    if (PW < n * 2 * tx)
        return 20;
    if (PW < n * 4 * tx)
        return 10;
    return PW < n * 10 * tx ? 4 : 2;
}

} // namespace

void PunkteDiagramm(Zeichenflaeche& Flaeche, const Diagrammplatz& Platz, const Probenmassstab& Massstab,
                    const Reihe<qint16, 401>& Verteilung, int HoechsteNote) {
    Diagramm Bild(Flaeche, Platz, QStringLiteral("Punkteverteilung"));
    const double n = 2.0 * ZahlAusText(Massstab.Gesamtpunktzahl) + 1;
    if (n <= 0 || n > 400)
        return;
    const double Balkenbreite = Bild.PW / n;
    for (int i = 1; i <= n; ++i)
        Bild.XStrich(Bild.Links + Balkenbreite * i);
    const int Schritt = XSchritt(Bild.PW, n);
    const int Letzte = 1 + (static_cast<int>(n) - 1) / Schritt * Schritt;
    Bild.XZahlenEinpassen(Letzte / 2, (Letzte - Schritt) / 2, Balkenbreite * Schritt);
    for (int i = 1; i <= n; i += Schritt)
        Bild.XBeschriften(Bild.Links + Balkenbreite * (n - i - 0.5), i / 2);
    Bild.XZahlenFertig();

    int Maximum = 0;
    for (int i = 1; i <= n; ++i)
        Maximum = std::max<int>(Maximum, Verteilung[i]);
    if (Maximum <= 0)
        return;
    Bild.YSkala(Maximum);
    for (int i = 1; i <= n; ++i)
        if (Verteilung[i] > 0)
            Bild.Balken(Bild.Links + Balkenbreite * (n - i - 1) + 2 * tx, Balkenbreite - 4 * tx,
                        Verteilung[i], PunkteFarbe);
    for (int j = 0; j <= HoechsteNote - 2; ++j) {
        const double g = 2.0 * ZahlAusText(Massstab.NGrenze[j]);
        if (g > 0 && g < n)
            Bild.Grenzlinie(Bild.Links + Bild.PW - Balkenbreite * g);
    }
}

void NotenDiagramm(Zeichenflaeche& Flaeche, const Diagrammplatz& Platz, const Reihe<qint16, 7>& Anzahlen,
                   int HoechsteNote) {
    Diagramm Bild(Flaeche, Platz, QStringLiteral("Notenverteilung"));
    const double Balkenbreite = Bild.PW / HoechsteNote;
    int Maximum = 0;
    for (int i = 1; i <= HoechsteNote; ++i) {
        Bild.XStrich(Bild.Links + Balkenbreite * i);
        Bild.XBeschriften(Bild.Links + Balkenbreite * (i - 0.5), i);
        Maximum = std::max<int>(Maximum, Anzahlen[i]);
    }
    if (Maximum <= 0)
        return;
    Bild.YSkala(Maximum);
    for (int i = 1; i <= HoechsteNote; ++i)
        if (Anzahlen[i] > 0)
            Bild.Balken(Bild.Links + Balkenbreite * (i - 1) + 4 * tx, Balkenbreite - 7 * tx, Anzahlen[i],
                        NotenFarbe);
}
