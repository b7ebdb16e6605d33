// The order of lists, and values kept as long as their texts stand.

#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Textmerker.h"
#include "core/Textordnung.h"
#include "core/Zahlen.h"

#include <QtTest>

namespace {

QStringList Geordnet(const QStringList& Texte) {
    QStringList Neue;
    for (const int Stelle :
         Textfolge(static_cast<std::size_t>(Texte.size()),
                   [&Texte](std::size_t i) -> const QString& { return Texte.at(static_cast<qsizetype>(i)); }))
        Neue.append(Texte[Stelle]);
    return Neue;
}

QStringList Worte(const char* Alle) {
    return QString::fromUtf8(Alle).split(u' ', Qt::SkipEmptyParts);
}

/// A list so long that its order is remembered.
QStringList LangeListe() {
    QStringList Texte;
    for (int i = 0; i < 500; ++i)
        Texte.append(QStringLiteral("Name%1").arg(i * 37 % 500, 3, 10, QLatin1Char('0')));
    return Texte;
}

} // namespace

class TestTextordnung : public QObject {
    Q_OBJECT
    Testwelt Welt;

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void dieReihenfolgeIstDieDerSpracheOhneGrossUndKlein() {
        QCOMPARE(Geordnet(Worte("zwei Äpfel adam Apfel Bauer")), Worte("adam Apfel Äpfel Bauer zwei"));
    }

    void gleicheTexteBleibenWieSieStehen() {
        QCOMPARE(Geordnet(Worte("b B a A b")), Worte("a A b B b"));
        QCOMPARE(Geordnet(Worte("B b A a B")), Worte("A a B b B"));
        QCOMPARE(Geordnet({}), QStringList());
    }

    void neueTexteReihenSichUnterDieBekannten() {
        Geordnet(Worte("Bauer Zech"));
        QCOMPARE(Geordnet(Worte("Zech Conz Bauer adam")), Worte("adam Bauer Conz Zech"));
    }

    void eineAndereSpracheHatIhreEigene() {
        QCOMPARE(Geordnet(Worte("Zorn Ärger Berg")), Worte("Ärger Berg Zorn"));
        SystemSpracheSetzen(QLocale(QLocale::Swedish, QLocale::Sweden));
        QCOMPARE(Geordnet(Worte("Zorn Ärger Berg")), Worte("Berg Zorn Ärger"));
    }

    void eineLangeListeWirdWiedererkanntUndBleibtRichtig() {
        QStringList Texte = LangeListe();
        QStringList Erwartet = Texte;
        Erwartet.sort();
        QCOMPARE(Geordnet(Texte), Erwartet);
        QCOMPARE(Geordnet(Texte), Erwartet);
    }

    void einGeschriebenerTextInEinerLangenListeZaehlt() {
        QStringList Texte = LangeListe();
        Geordnet(Texte);
        Texte[250][0] = u'A'; // in place
        QStringList Erwartet = Texte;
        Erwartet.sort();
        QCOMPARE(Geordnet(Texte), Erwartet);
        Texte.swapItemsAt(3, 400);
        QCOMPARE(Geordnet(Texte), Erwartet);
        Texte.removeLast();
        Erwartet = Texte;
        Erwartet.sort();
        QCOMPARE(Geordnet(Texte), Erwartet);
    }

    void mehrereLangeListenStoerenSichNicht() {
        for (int Runde = 0; Runde < 2; ++Runde)
            for (const char16_t Anfang : {u'A', u'B', u'C', u'D', u'E', u'F'}) {
                QStringList Texte = LangeListe();
                for (QString& Text : Texte)
                    Text[0] = Anfang;
                QStringList Erwartet = Texte;
                Erwartet.sort();
                QCOMPARE(Geordnet(Texte), Erwartet);
            }
    }

    void einWertGiltBisSeinTextGeschriebenWird() {
        Textmerker<QString, qsizetype> Laengen;
        int Gerechnet = 0;
        QString Text = QStringLiteral("ab").repeated(3);
        const auto Laenge = [&] {
            return Laengen(7, Text, [&Gerechnet](const QString& Einer) {
                ++Gerechnet;
                return Einer.size();
            });
        };
        QCOMPARE(Laenge(), 6);
        QCOMPARE(Laenge(), 6);
        QCOMPARE(Gerechnet, 1);
        Text += u'c';
        QCOMPARE(Laenge(), 7);
        Text.truncate(2);
        QCOMPARE(Laenge(), 2);
        Text.clear();
        QCOMPARE(Laenge(), 0);
        Text = QString();
        QCOMPARE(Laenge(), 0);
        Gerechnet = 0;
        Text = QStringLiteral("x");
        Text[0] = u'y'; // as long as before, and another text
        Laenge();
        Text[0] = u'z';
        Laenge();
        QCOMPARE(Gerechnet, 2);
    }

    void vergesseneWerteWerdenNeuGerechnet() {
        Textmerker<QString, int> Werte;
        const QString Text = QStringLiteral("ab");
        QCOMPARE(Werte(0, Text, [](const QString&) { return 1; }), 1);
        QCOMPARE(Werte(0, Text, [](const QString&) { return 2; }), 1);
        QCOMPARE(Werte(1, Text, [](const QString&) { return 3; }), 3);
        Werte.Vergessen();
        QCOMPARE(Werte(0, Text, [](const QString&) { return 2; }), 2);
    }
};

TESTKLASSE(TestTextordnung)
#include "tst_textordnung.moc"
