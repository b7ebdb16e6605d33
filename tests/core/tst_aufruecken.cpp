#include "common/Testprogramm.h"
#include "core/Aufruecken.h"
#include "core/Definitionen.h"

#include <QtTest>

namespace {

using Reihe8 = Reihe<Schueler, 8>;

/// Students "a" to "h"; texts of this length do not lie in the record itself.
Reihe8 Achtergruppe() {
    Reihe8 Alle;
    for (int i = 0; i < Alle.size(); ++i)
        Alle[i].Name = QString(40, QChar(u'a' + i));
    return Alle;
}

QString Anfangsbuchstaben(const Reihe8& Alle) {
    QString Text;
    for (const Schueler& Einer : Alle)
        Text += Einer.Name.first(1);
    return Text;
}

} // namespace

class TestAufruecken : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void wasBleibtRuecktAufUndWasGehtFolgtInSeinerReihenfolge_data();
    void wasBleibtRuecktAufUndWasGehtFolgtInSeinerReihenfolge();
    void geteilteTexteBleibenGanz();
};

void TestAufruecken::wasBleibtRuecktAufUndWasGehtFolgtInSeinerReihenfolge_data() {
    QTest::addColumn<QString>("Gehende");
    QTest::addColumn<int>("Anzahl");
    QTest::addColumn<QString>("Danach");
    QTest::addColumn<int>("AnzahlDanach");

    QTest::newRow("nobody") << "" << 8 << "abcdefgh" << 8;
    QTest::newRow("the first") << "a" << 8 << "bcdefgha" << 7;
    QTest::newRow("the last") << "h" << 8 << "abcdefgh" << 7;
    QTest::newRow("every other") << "bdfh" << 8 << "acegbdfh" << 4;
    QTest::newRow("runs") << "abfg" << 8 << "cdehabfg" << 4;
    QTest::newRow("all") << "abcdefgh" << 8 << "abcdefgh" << 0;
    QTest::newRow("behind the counter nothing moves") << "b" << 4 << "acdbefgh" << 3;
    QTest::newRow("none in use") << "" << 0 << "abcdefgh" << 0;
}

void TestAufruecken::wasBleibtRuecktAufUndWasGehtFolgtInSeinerReihenfolge() {
    QFETCH(QString, Gehende);
    QFETCH(int, Anzahl);
    QFETCH(int, AnzahlDanach);
    Reihe8 Alle = Achtergruppe();
    auto Zahl = static_cast<qint16>(Anzahl);
    Marken Weg(static_cast<std::size_t>(Anzahl));
    for (int i = 0; i < Anzahl; ++i)
        Weg[static_cast<std::size_t>(i)] = Gehende.contains(Alle[i].Name.front());

    Aufruecken(Alle, Zahl, Weg);

    QTEST(Anfangsbuchstaben(Alle), "Danach");
    QCOMPARE(int(Zahl), AnzahlDanach);
}

void TestAufruecken::geteilteTexteBleibenGanz() {
    Reihe8 Alle = Achtergruppe();
    Alle[2].Name = Alle[0].Name;
    qint16 Zahl = 8;
    Marken Weg(8);
    Weg[0] = true;

    Aufruecken(Alle, Zahl, Weg);
    Alle[7].Name.clear();

    QCOMPARE(Alle[1].Name, QString(40, u'a'));
    QCOMPARE(Alle[6].Name, QString(40, u'h'));
}

TESTKLASSE(TestAufruecken)

#include "tst_aufruecken.moc"
