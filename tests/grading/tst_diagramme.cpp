#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "common/Zeichenprotokoll.h"

#include "Massstab.h"
#include "grading/Bildfeld.h"
#include "grading/Diagramme.h"
#include "grading/Malflaeche.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb Papier = 0xFFFFFFFF;

/// "24=1 30=2"
Reihe<qint16, 401> Verteilung(const QString& Texte) {
    Reihe<qint16, 401> Neue;
    for (const QString& Text : Texte.split(u' ', Qt::SkipEmptyParts))
        Neue[Text.section(u'=', 0, 0).toInt()] = Text.section(u'=', 1).toShort();
    return Neue;
}

Reihe<qint16, 7> Anzahlen(const QString& Texte) {
    Reihe<qint16, 7> Neue;
    for (int i = 1; i <= 6; ++i)
        Neue[i] = Texte.section(u' ', i - 1, i - 1).toShort();
    return Neue;
}

QStringList Texte(const QStringList& Zeilen) {
    QStringList Alle;
    for (const QString& Zeile : Zeilen)
        if (Zeile.startsWith(u"Text "_s))
            Alle.append(Zeile.section(u' ', 3));
    return Alle;
}

/// Lines of the Y scale: 90 twips wide, across the axis.
int YStriche(const Zeichenprotokoll& Protokoll) {
    return static_cast<int>(Protokoll.Zeilen.filter(u" +90 +0 "_s).size());
}

/// A real surface that also writes down where its texts stand.
class Textorte : public Malflaeche {
  public:
    using Malflaeche::Malflaeche;
    QList<QRectF> Orte;
    void Text(double X, double Y, const QString& Text, QRgb Farbe) override {
        Orte.append({X, Y, TextBreite(Text), TextHoehe(Text)});
        Malflaeche::Text(X, Y, Text, Farbe);
    }
};

} // namespace

class TestDiagramme : public QObject {
    Q_OBJECT

    Testwelt Welt;

    // On a surface of 10000 x 5000 twips: left margin 750, plot 8700 wide and 4045 high, X axis at 4475.
    Zeichenprotokoll Punktebild(const QString& Gesamt, const QString& Grenzen, const QString& Wieviele,
                                Zeichenprotokoll::Art Art = Zeichenprotokoll::Art::Bildschirm) {
        Zeichenprotokoll Protokoll(10000, 5000, Art);
        PunkteDiagramm(Protokoll, {}, Massstab(Gesamt, Grenzen), Verteilung(Wieviele), 6);
        return Protokoll;
    }
    Zeichenprotokoll Notenbild(const QString& Wieviele, int HoechsteNote,
                               Zeichenprotokoll::Art Art = Zeichenprotokoll::Art::Bildschirm) {
        Zeichenprotokoll Protokoll(10000, 5000, Art);
        NotenDiagramm(Protokoll, {}, Anzahlen(Wieviele), HoechsteNote);
        return Protokoll;
    }

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void PunktediagrammGanz() {
        const QStringList Erwartet{
            u"Leeren"_s,
            u"Unsichtbar"_s,
            u"Schrift 12 fett"_s,
            u"Text 4040 60 Punkteverteilung"_s,
            u"Schrift 11"_s,
            u"Linie 750 4475 +8700 +0 000000"_s,
            u"Linie 750 4475 +0 -4045 000000"_s,
            // ticks, one for each half point
            u"Linie 2490 4520 +0 -90 000000"_s,
            u"Linie 4230 4520 +0 -90 000000"_s,
            u"Linie 5970 4520 +0 -90 000000"_s,
            u"Linie 7710 4520 +0 -90 000000"_s,
            u"Linie 9450 4520 +0 -90 000000"_s,
            // whole points, centred on their bins
            u"Text 6785 4520 0"_s,
            u"Text 3305 4520 1"_s,
            u"Text -175 4520 2"_s,
            // scale for up to two students
            u"Linie 705 2452.5 +90 +0 000000"_s,
            u"Linie 705 430 +90 +0 000000"_s,
            u"Text 580 2342.5 1"_s,
            u"Text 580 320 2"_s,
            // bars of 0.5, 1.5 and 2 points
            u"Kasten 6000 4460 +1680 -2022.5 000077"_s,
            u"Kasten 2520 4460 +1680 -4045 000077"_s,
            u"Kasten 780 4460 +1680 -2022.5 000077"_s,
            // boundaries 1.5, 1 and 0.5
            u"Linie 4230 4550 +0 -4120 108810"_s,
            u"Linie 5970 4550 +0 -4120 108810"_s,
            u"Linie 7710 4550 +0 -4120 108810"_s,
            u"Sichtbar"_s,
        };
        QCOMPARE(Punktebild(u"2"_s, u"1,5;1;0,5;0;-1"_s, u"0=7 1=1 3=2 4=1"_s).Zeilen, Erwartet);
    }

    void NotendiagrammGanz() {
        const QStringList Erwartet{
            u"Leeren"_s,
            u"Unsichtbar"_s,
            u"Schrift 12 fett"_s,
            u"Text 4100 60 Notenverteilung"_s,
            u"Schrift 11"_s,
            u"Linie 750 4475 +8700 +0 000000"_s,
            u"Linie 750 4475 +0 -4045 000000"_s,
            u"Linie 2490 4520 +0 -90 000000"_s,
            u"Text 1565 4520 1"_s,
            u"Linie 4230 4520 +0 -90 000000"_s,
            u"Text 3305 4520 2"_s,
            u"Linie 5970 4520 +0 -90 000000"_s,
            u"Text 5045 4520 3"_s,
            u"Linie 7710 4520 +0 -90 000000"_s,
            u"Text 6785 4520 4"_s,
            u"Linie 9450 4520 +0 -90 000000"_s,
            u"Text 8525 4520 5"_s,
            u"Linie 705 430 +90 +0 000000"_s,
            u"Text 580 320 1"_s,
            u"Kasten 2550 4460 +1635 -4045 007700"_s,
            u"Kasten 7770 4460 +1635 -4045 007700"_s,
            u"Sichtbar"_s,
        };
        QCOMPARE(Notenbild(u"0 1 0 0 1 9"_s, 5).Zeilen, Erwartet);
    }

    void SechsNotenHabenSechsBalken() {
        QCOMPARE(Notenbild(u"1 2 3 4 5 6"_s, 6).Nur(u"Kasten"_s).size(), 6);
        QCOMPARE(Notenbild(u"1 2 3 4 5 6"_s, 5).Nur(u"Kasten"_s).size(), 5);
    }

    void PlatzAlsBruchteilVerschiebtAlles() {
        Zeichenprotokoll Ganz(5000, 2500);
        NotenDiagramm(Ganz, {}, Anzahlen(u"1 0 0 0 0 0"_s), 6);
        Zeichenprotokoll Viertel(10000, 5000);
        NotenDiagramm(Viertel, {0.5F, 0.5F, 0.5F, 0.5F}, Anzahlen(u"1 0 0 0 0 0"_s), 6);
        QCOMPARE(Viertel.Nur(u"Linie"_s).size(), Ganz.Nur(u"Linie"_s).size());
        QCOMPARE(Ganz.Nur(u"Linie"_s).first(), u"Linie 450 2125 +4200 +0 000000"_s);
        QCOMPARE(Viertel.Nur(u"Linie"_s).first(), u"Linie 5450 4625 +4200 +0 000000"_s);
        QCOMPARE(Texte(Viertel.Zeilen), Texte(Ganz.Zeilen));
    }

    void EinBildfeldZeichnetNeuWennZeichnungGroesseOderSchriftSichAendern() {
        int Gezeichnet = 0;
        const auto Zeichnung = [&Gezeichnet](Zeichenflaeche& Flaeche) {
            ++Gezeichnet;
            Flaeche.Kasten(0, 0, 150, 150, 0xFF0000FF);
        };
        Bildfeld Feld;
        Feld.resize(40, 30);
        Feld.Zeichnen(Zeichnung);
        const QImage Erstes = Feld.Bild().toImage();
        QCOMPARE(Erstes.pixelColor(5, 5), QColor(Qt::blue));
        QCOMPARE(Erstes.pixelColor(20, 20), QColor(Qt::white));
        QCOMPARE(Feld.Bild().toImage(), Erstes);
        QCOMPARE(Gezeichnet, 1);
        Feld.resize(60, 30);
        QCOMPARE(Feld.Bild().toImage().pixelColor(50, 20), QColor(Qt::white));
        QCOMPARE(Gezeichnet, 2);
        QFont Groesser = Feld.font();
        Groesser.setPointSize(Groesser.pointSize() + 4);
        Feld.setFont(Groesser);
        Feld.Bild();
        QCOMPARE(Gezeichnet, 3);
        Feld.Zeichnen(Zeichnung);
        Feld.Bild();
        QCOMPARE(Gezeichnet, 4);
    }

    void NurEinBildfeldWirdGeleertUndVerborgen_data() {
        QTest::addColumn<Zeichenprotokoll::Art>("Art");
        QTest::addColumn<bool>("Geleert");
        QTest::newRow("screen") << Zeichenprotokoll::Art::Bildschirm << true;
        QTest::newRow("preview") << Zeichenprotokoll::Art::Vorschau << false;
        QTest::newRow("printer") << Zeichenprotokoll::Art::Drucker << false;
    }
    void NurEinBildfeldWirdGeleertUndVerborgen() {
        QFETCH(Zeichenprotokoll::Art, Art);
        QFETCH(bool, Geleert);
        for (const QStringList& Zeilen :
             {Punktebild(u"2"_s, u"1"_s, u"1=1"_s, Art).Zeilen,
              Punktebild(u"200"_s, u"1"_s, u"1=1"_s, Art).Zeilen, Notenbild(u"1"_s, 6, Art).Zeilen,
              Notenbild(u""_s, 6, Art).Zeilen}) {
            QCOMPARE(Zeilen.contains(u"Leeren"_s), Geleert);
            QCOMPARE(Zeilen.contains(u"Unsichtbar"_s), Geleert);
            QCOMPARE(Zeilen.last() == u"Sichtbar"_s, Geleert);
        }
    }

    void BalkenSindAufPapierHell_data() {
        QTest::addColumn<Zeichenprotokoll::Art>("Art");
        QTest::addColumn<QString>("PunkteFarbe");
        QTest::addColumn<QString>("NotenFarbe");
        QTest::newRow("screen") << Zeichenprotokoll::Art::Bildschirm << u"000077"_s << u"007700"_s;
        QTest::newRow("preview") << Zeichenprotokoll::Art::Vorschau << u"000077"_s << u"007700"_s;
        QTest::newRow("printer") << Zeichenprotokoll::Art::Drucker << u"7777ff"_s << u"77ff77"_s;
    }
    void BalkenSindAufPapierHell() {
        QFETCH(Zeichenprotokoll::Art, Art);
        QTEST(Punktebild(u"2"_s, u"1"_s, u"1=1"_s, Art).Nur(u"Kasten"_s).first().section(u' ', -1),
              "PunkteFarbe");
        QTEST(Notenbild(u"1"_s, 6, Art).Nur(u"Kasten"_s).first().section(u' ', -1), "NotenFarbe");
    }

    void GesamtpunktzahlBestimmtObGezeichnetWird_data() {
        QTest::addColumn<QString>("Gesamt");
        QTest::addColumn<bool>("Gezeichnet");
        QTest::newRow("199,5 has 400 bins") << u"199,5"_s << true;
        QTest::newRow("200 has title and axes only") << u"200"_s << false;
        QTest::newRow("empty has one bin") << u""_s << true;
        QTest::newRow("negative") << u"-1"_s << false;
        QTest::newRow("minus one half is the border") << u"-0,5"_s << false;
    }
    void GesamtpunktzahlBestimmtObGezeichnetWird() {
        QFETCH(QString, Gesamt);
        QTEST(Punktebild(Gesamt, u""_s, u""_s).Nur(u"Linie"_s).size() > 2, "Gezeichnet");
        QCOMPARE(Texte(Punktebild(Gesamt, u""_s, u""_s).Zeilen).first(), u"Punkteverteilung"_s);
    }

    void OhneSchuelerKeineBalkenKeineSkalaKeineGrenzen() {
        const Zeichenprotokoll Punkte = Punktebild(u"2"_s, u"1,5;1"_s, u"0=3"_s);
        QCOMPARE(Punkte.Nur(u"Kasten"_s).size(), 0);
        QCOMPARE(Punkte.Zeilen.filter(u"108810"_s).size(), 0);
        QCOMPARE(Texte(Punkte.Zeilen), (QStringList{u"Punkteverteilung"_s, u"0"_s, u"1"_s, u"2"_s}));
        const Zeichenprotokoll Noten = Notenbild(u""_s, 6);
        QCOMPARE(Noten.Nur(u"Kasten"_s).size(), 0);
        QCOMPARE(Texte(Noten.Zeilen),
                 (QStringList{u"Notenverteilung"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}));
    }

    void GrenzeAufGesamtLiegtEineBalkenbreiteRechtsDerAchse() {
        const QStringList Linien = Punktebild(u"2"_s, u"2"_s, u"1=1"_s).Zeilen.filter(u"108810"_s);
        QCOMPARE(Linien, QStringList(u"Linie 2490 4550 +0 -4120 108810"_s));
    }

    void GrenzenAusserhalbWerdenNichtGezeichnet_data() {
        QTest::addColumn<QString>("Grenzen");
        QTest::addColumn<int>("Anzahl");
        QTest::newRow("0 and negative") << u"0;-1"_s << 0;
        QTest::newRow("above the total by half a point") << u"2,5"_s << 0;
        QTest::newRow("no number") << u"abc"_s << 0;
        QTest::newRow("five") << u"2;1,75;1;0,5;0,25"_s << 5;
    }
    void GrenzenAusserhalbWerdenNichtGezeichnet() {
        QFETCH(QString, Grenzen);
        QTEST(static_cast<int>(Punktebild(u"2"_s, Grenzen, u"1=1"_s).Zeilen.filter(u"108810"_s).size()),
              "Anzahl");
    }

    void FuenfNotenZeichnenVierGrenzen() {
        Zeichenprotokoll Protokoll(10000, 5000);
        PunkteDiagramm(Protokoll, {}, Massstab(u"2"_s, u"2;1,5;1;0,5;0,25"_s), Verteilung(u"1=1"_s), 5);
        QCOMPARE(Protokoll.Zeilen.filter(u"108810"_s).size(), 4);
    }

    void BeschriftungDerPunkteachseWirdLichter_data() {
        QTest::addColumn<QString>("Gesamt");
        QTest::addColumn<QStringList>("Zahlen");
        // 8700 twips of plot: 58 bins of 10, 145 of 4 and 290 of 2 pixels.
        QTest::newRow("57 bins: every second") << u"28"_s << QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s};
        QTest::newRow("59 bins: every fourth") << u"29"_s << QStringList{u"0"_s, u"2"_s, u"4"_s, u"6"_s};
        QTest::newRow("145 bins: still every fourth")
            << u"72"_s << QStringList{u"0"_s, u"2"_s, u"4"_s, u"6"_s};
        QTest::newRow("147 bins: every tenth") << u"73"_s << QStringList{u"0"_s, u"5"_s, u"10"_s, u"15"_s};
        QTest::newRow("289 bins: still every tenth")
            << u"144"_s << QStringList{u"0"_s, u"5"_s, u"10"_s, u"15"_s};
        QTest::newRow("291 bins: every twentieth")
            << u"145"_s << QStringList{u"0"_s, u"10"_s, u"20"_s, u"30"_s};
    }
    void BeschriftungDerPunkteachseWirdLichter() {
        QFETCH(QString, Gesamt);
        QTEST(Texte(Punktebild(Gesamt, u""_s, u""_s).Zeilen).mid(1, 4), "Zahlen");
    }

    void ZahlenDerPunkteachseBeruehrenSichNicht_data() {
        QTest::addColumn<QSize>("Groesse");
        QTest::addColumn<QString>("Gesamt");
        const QSize Klein(235, 167), Mittel(274, 281), Gross(554, 661);
        for (const auto& [Name, Groesse] :
             {std::pair("small", Klein), std::pair("middle", Mittel), std::pair("large", Gross)})
            for (const QString& Gesamt : {u"24"_s, u"30"_s, u"60"_s, u"72"_s, u"99"_s, u"100"_s, u"120"_s})
                QTest::addRow("%s, %s points", Name, qPrintable(Gesamt)) << Groesse << Gesamt;
    }
    void ZahlenDerPunkteachseBeruehrenSichNicht() {
        QFETCH(QSize, Groesse);
        QFETCH(QString, Gesamt);
        QImage Bild(Groesse, QImage::Format_RGB32);
        QPainter Maler(&Bild);
        Textorte Flaeche(Maler, Groesse, Malflaeche::Art::Bildschirm);
        PunkteDiagramm(Flaeche, {}, Massstab(Gesamt, u""_s), {}, 6);
        const QList<QRectF> Zahlen = Flaeche.Orte.mid(1); // without the title
        QVERIFY(Zahlen.size() > 2);
        for (qsizetype i = 1; i < Zahlen.size(); ++i)
            QVERIFY2(Zahlen[i].right() + 15 < Zahlen[i - 1].left(), qPrintable(QString::number(i)));
    }

    void EngeZahlenBleibenMittigUndDieAnderenTexteWeit() {
        // 49 bins of 61.84 twips, each fourth labelled: 247 twips for two digits of 220 and the room between.
        Zeichenprotokoll Protokoll(3700, 5000);
        PunkteDiagramm(Protokoll, {}, Massstab(u"24"_s, u""_s), Verteilung(u"24=2"_s), 6);
        const QStringList Weiten = Protokoll.Nur(u"Weite"_s);
        QCOMPARE(Weiten.size(), 2);
        QCOMPARE(Weiten.last(), u"Weite 1"_s);
        const double Weite = Weiten.first().section(u' ', 1).toDouble();
        QVERIFY(Weite < 1);
        const double Balkenbreite = (3700 - 372 - 298) / 49.0;
        const double Links = 372 - Balkenbreite / 2 - 220 * Weite / 2;
        const QString Zeile = Protokoll.Zeilen.filter(QRegularExpression(u"^Text .* 24$"_s)).value(0);
        QVERIFY2(qAbs(Zeile.section(u' ', 1, 1).toDouble() - Links) < 1, qPrintable(Zeile));
        const qsizetype Zurueck = Protokoll.Zeilen.indexOf(u"Weite 1"_s);
        QVERIFY(Protokoll.Zeilen.indexOf(Zeile) < Zurueck);
        QVERIFY(Protokoll.Zeilen.mid(Zurueck).filter(QRegularExpression(u"^Text .* 1$"_s)).size() == 1);
    }

    void BeschriftungDerAnzahlachseWirdLichter_data() {
        QTest::addColumn<int>("Maximum");
        QTest::addColumn<QStringList>("Zahlen");
        // 4045 twips of plot: 13.48 students of 20 and 33.7 of 8 pixels.
        QTest::newRow("13 students: every one") << 13 << QStringList{u"1"_s, u"2"_s, u"3"_s};
        QTest::newRow("14 students: every second") << 14 << QStringList{u"1"_s, u"3"_s, u"5"_s};
        QTest::newRow("33 students: still every second") << 33 << QStringList{u"1"_s, u"3"_s, u"5"_s};
        QTest::newRow("34 students: every fifth") << 34 << QStringList{u"1"_s, u"6"_s, u"11"_s};
    }
    void BeschriftungDerAnzahlachseWirdLichter() {
        QFETCH(int, Maximum);
        const Zeichenprotokoll Noten = Notenbild(QString::number(Maximum), 6);
        QTEST(Texte(Noten.Zeilen).mid(7, 3), "Zahlen");
        QCOMPARE(YStriche(Noten), Maximum);
        const Zeichenprotokoll Punkte = Punktebild(u"2"_s, u""_s, u"2=%1"_s.arg(Maximum));
        QTEST(Texte(Punkte.Zeilen).mid(4, 3), "Zahlen");
        QCOMPARE(YStriche(Punkte), Maximum);
    }

    void KleineFlaecheHatKleineSchrift_data() {
        QTest::addColumn<double>("Breite");
        QTest::addColumn<double>("Hoehe");
        QTest::addColumn<QStringList>("Schrift");
        QTest::newRow("half of width plus height is 250 pixels")
            << 3750.0 << 1875.0 << QStringList{u"Schrift 12 fett"_s, u"Schrift 11"_s};
        QTest::newRow("a twip less") << 3750.0 << 1874.0 << QStringList{u"Schrift 8 fett"_s, u"Schrift 7"_s};
    }
    void KleineFlaecheHatKleineSchrift() {
        QFETCH(double, Breite);
        QFETCH(double, Hoehe);
        Zeichenprotokoll Protokoll(Breite, Hoehe);
        PunkteDiagramm(Protokoll, {}, Massstab(u"20"_s, u""_s), {}, 6);
        QTEST(Protokoll.Nur(u"Schrift"_s), "Schrift");
    }

    void SehrKleineFlaecheZeichnetOhneSchaden() {
        for (const int Seite : {0, 15, 150, 300}) {
            Zeichenprotokoll Protokoll(Seite, Seite);
            PunkteDiagramm(Protokoll, {}, Massstab(u"60"_s, u"50;40;30;20;10"_s), Verteilung(u"10=3"_s), 6);
            QCOMPARE(Texte(Protokoll.Zeilen).mid(1, 3), (QStringList{u"0"_s, u"10"_s, u"20"_s}));
        }
    }

    void BalkenUeberGesamtStehtLinksDerAchse() {
        // Half a point above the total has the bin in front of the first one.
        QCOMPARE(Punktebild(u"2"_s, u""_s, u"5=1"_s).Nur(u"Kasten"_s),
                 QStringList(u"Kasten -960 4460 +1680 -4045 000077"_s));
    }

    void MalflaecheMaltInPixelnZuFuenfzehnTwips() {
        QImage Bild(100, 60, QImage::Format_RGB32);
        Bild.fill(Qt::red);
        QPainter Maler(&Bild);
        {
            Malflaeche Flaeche(Maler, Bild.size(), Malflaeche::Art::Bildschirm);
            QCOMPARE(Flaeche.Breite(), 1500.0);
            QCOMPARE(Flaeche.Hoehe(), 900.0);
            QVERIFY(Flaeche.IstBildschirm());
            QVERIFY(!Flaeche.IstDrucker());
            Flaeche.Leeren();
            Flaeche.Kasten(150, 300, 150, -150, 0xFF0000AA);
            Flaeche.Linie(0, 450, 1485, 0, 0xFF00AA00);
        }
        Maler.end();
        QCOMPARE(Bild.pixel(0, 0), Papier);
        QCOMPARE(Bild.pixel(10, 10), QRgb(0xFF0000AA));
        QCOMPARE(Bild.pixel(19, 19), QRgb(0xFF0000AA));
        QCOMPARE(Bild.pixel(20, 20), Papier);
        QCOMPARE(Bild.pixel(50, 30), QRgb(0xFF00AA00));
    }

    void MalflaecheLaesstSchmaleBalkenNichtVerschwinden() {
        QImage Bild(20, 20, QImage::Format_RGB32);
        QPainter Maler(&Bild);
        {
            Malflaeche Flaeche(Maler, Bild.size(), Malflaeche::Art::Bildschirm);
            Flaeche.Leeren();
            Flaeche.Kasten(75, 150, 0, -75, 0xFF000077);
            Flaeche.Kasten(180, 150, -45, -75, 0xFF000077);
        }
        Maler.end();
        QCOMPARE(Bild.pixel(5, 8), QRgb(0xFF000077));
        QCOMPARE(Bild.pixel(6, 8), Papier);
        QCOMPARE(Bild.pixel(9, 8), QRgb(0xFF000077));
        QCOMPARE(Bild.pixel(11, 8), QRgb(0xFF000077));
    }

    void MalflaecheGibtDemMalerSeinenZustandZurueck() {
        QImage Bild(20, 20, QImage::Format_RGB32);
        QPainter Maler(&Bild);
        const QFont Vorher = Maler.font();
        {
            Malflaeche Flaeche(Maler, Bild.size(), Malflaeche::Art::Vorschau, 1.2);
            Flaeche.Schrift(12, true);
            QVERIFY(!Flaeche.IstBildschirm());
            QCOMPARE(Flaeche.Breite(), 24.0);
        }
        QCOMPARE(Maler.font(), Vorher);
    }

    void MalflaecheMisstDenTextBeiJederAufloesungGleich() {
        const auto Gemessen = [](double TwipsJeEinheit, int PunkteJeMeter) {
            QImage Bild(20, 20, QImage::Format_RGB32);
            Bild.setDotsPerMeterX(PunkteJeMeter);
            Bild.setDotsPerMeterY(PunkteJeMeter);
            QPainter Maler(&Bild);
            Malflaeche Flaeche(Maler, Bild.size(), Malflaeche::Art::Drucker, TwipsJeEinheit);
            Flaeche.Schrift(12, true);
            return Flaeche.TextBreite(u"Notenverteilung"_s);
        };
        const double Schirm = Gemessen(15, 3780);
        const double Druck = Gemessen(1440 / 1200.0, 47244);
        QVERIFY2(qAbs(Schirm - Druck) < Schirm * 0.05, qPrintable(u"%1 / %2"_s.arg(Schirm).arg(Druck)));
    }
};

TESTKLASSE(TestDiagramme)
#include "tst_diagramme.moc"
