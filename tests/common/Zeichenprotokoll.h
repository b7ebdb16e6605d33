#pragma once

#include "core/Zeichenflaeche.h"

#include <QStringList>

/// A surface that draws nothing and writes down what it was told, one line an operation:
///
///   Leeren | Unsichtbar | Sichtbar
///   Schrift 12 fett
///   Weite 0.8, when it changes
///   Text 100 60 Titel
///   Linie 750 4475 +8700 +0 000000
///   Kasten 750 4475 +100 -20 000077
///
/// Numbers are twips, rounded to two places. Its font is simple: a letter is 10 twips wide and 20 high for
/// each point of size.
class Zeichenprotokoll : public Zeichenflaeche {
  public:
    enum class Art { Bildschirm, Vorschau, Drucker };

    Zeichenprotokoll(double NeueBreite, double NeueHoehe, Art NeueArt = Art::Bildschirm)
        : GanzeBreite(NeueBreite)
        , GanzeHoehe(NeueHoehe)
        , WelcheArt(NeueArt) {}

    QStringList Zeilen;

    /// The lines that begin with Anfang.
    QStringList Nur(const QString& Anfang) const {
        QStringList Auswahl;
        for (const QString& Zeile : Zeilen)
            if (Zeile.startsWith(Anfang))
                Auswahl.append(Zeile);
        return Auswahl;
    }

    double Breite() const override { return GanzeBreite; }
    double Hoehe() const override { return GanzeHoehe; }
    bool IstDrucker() const override { return WelcheArt == Art::Drucker; }
    bool IstBildschirm() const override { return WelcheArt == Art::Bildschirm; }
    void Leeren() override { Zeilen.append(QStringLiteral("Leeren")); }
    void Sichtbar(bool Zeigen) override {
        Zeilen.append(Zeigen ? QStringLiteral("Sichtbar") : QStringLiteral("Unsichtbar"));
    }
    void Schrift(double Punkte, bool Fett) override {
        Schriftgrad = Punkte;
        Zeilen.append(QStringLiteral("Schrift %1").arg(Zahl(Punkte)) +
                      (Fett ? QStringLiteral(" fett") : QString()));
    }
    void Schriftweite(double Anteil) override {
        if (Anteil != Weite)
            Zeilen.append(QStringLiteral("Weite %1").arg(Zahl(Anteil)));
        Weite = Anteil;
    }
    double TextBreite(const QString& Text) const override {
        return static_cast<double>(Text.size()) * 10 * Schriftgrad * Weite;
    }
    double TextHoehe(const QString& /*Text*/) const override { return 20 * Schriftgrad; }
    void Text(double X, double Y, const QString& Text, QRgb /*Farbe*/) override {
        Zeilen.append(QStringLiteral("Text %1 %2 ").arg(Zahl(X), Zahl(Y)) + Text);
    }
    void Linie(double X, double Y, double DX, double DY, QRgb Farbe) override {
        Zeilen.append(Form(QStringLiteral("Linie"), {X, Y, DX, DY}, Farbe));
    }
    void Kasten(double X, double Y, double DX, double DY, QRgb Farbe) override {
        Zeilen.append(Form(QStringLiteral("Kasten"), {X, Y, DX, DY}, Farbe));
    }

  private:
    struct Rechteck {
        double X, Y, DX, DY;
    };

    static QString Zahl(double Wert) { return QString::number(qRound64(Wert * 100) / 100.0, 'g', 12); }
    static QString MitVorzeichen(double Wert) {
        const QString Text = Zahl(Wert);
        return Text.startsWith(u'-') ? Text : u'+' + Text;
    }
    static QString Form(const QString& Name, const Rechteck& R, QRgb Farbe) {
        return QStringLiteral("%1 %2 %3 %4 %5 %6")
            .arg(Name, Zahl(R.X), Zahl(R.Y), MitVorzeichen(R.DX), MitVorzeichen(R.DY),
                 QString::number(Farbe & 0xFFFFFF, 16).rightJustified(6, u'0'));
    }

    double GanzeBreite;
    double GanzeHoehe;
    Art WelcheArt;
    double Schriftgrad = 0;
    double Weite = 1;
};
