#include "common/Testprogramm.h"

#include "core/Pruefsumme.h"
#include "core/Rettungskopf.h"

#include <QtTest>

namespace {

Rettungskopf Beispielkopf(const QByteArray& Inhalt) {
    Rettungskopf Kopf;
    Kopf.Ziel = "/home/lehrer/Schule 2003/Klasse 7a 100%\n\xC3\xA4.txt";
    Kopf.Geraet = 2049;
    Kopf.Inode = 18'446'744'073'709'551'615ULL;
    Kopf.Inhalt = MarkeVon(Inhalt);
    Kopf.NeueDatei = true;
    Kopf.Vorher = {12, 0xCAFEU};
    Kopf.Zeit = QDateTime(QDate(2003, 10, 12), QTime(10, 30, 59), Qt::UTC);
    Kopf.Rechner = "lehrerzimmer";
    Kopf.Prozess = 4711;
    return Kopf;
}

} // namespace

class TestRettungskopf : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void DiePruefsummeIstCRC32C();
    void DiePruefsummeLaesstSichFortsetzen();
    void DiePruefsummeGiltFuerJedeLaenge();
    void EinKopfKommtZurueckWieErGeschriebenWurde();
    void DerInhaltStehtUnveraendertHinterDerLeerzeile();
    void JedesVeraenderteByteMachtDieKopieUngueltig();
    void JedeGekuerzteKopieIstUngueltig();
    void EineVerlaengerteKopieIstUngueltig();
    void KeinKopf_data();
    void KeinKopf();
};

void TestRettungskopf::DiePruefsummeIstCRC32C() {
    QCOMPARE(Pruefsumme("123456789", 9), 0xE3069283U);
    QCOMPARE(Pruefsumme("", 0), 0U);
    QCOMPARE(Pruefsumme(QByteArray(32, '\0').constData(), 32), 0x8A9136AAU);
}

void TestRettungskopf::DiePruefsummeLaesstSichFortsetzen() {
    const QByteArray Bytes("Die Pruefsumme der Teile ist die des Ganzen.");
    for (qsizetype Schnitt = 0; Schnitt <= Bytes.size(); ++Schnitt) {
        const quint32 Erster = Pruefsumme(Bytes.constData(), Schnitt);
        QCOMPARE(Pruefsumme(Bytes.constData() + Schnitt, Bytes.size() - Schnitt, Erster),
                 Pruefsumme(Bytes.constData(), Bytes.size()));
    }
}

namespace {

/// Bit by bit, as the sum is defined.
quint32 SummeNachDefinition(const QByteArray& Bytes) {
    quint32 Wert = ~0U;
    for (const char Byte : Bytes) {
        Wert ^= static_cast<uchar>(Byte);
        for (int Bit = 0; Bit < 8; ++Bit)
            Wert = (Wert & 1U) != 0U ? (Wert >> 1U) ^ 0x82F63B78U : Wert >> 1U;
    }
    return ~Wert;
}

} // namespace

void TestRettungskopf::DiePruefsummeGiltFuerJedeLaenge() {
    QByteArray Bytes;
    quint32 Zufall = 20031012;
    while (Bytes.size() < 10'000) {
        Zufall = Zufall * 1664525U + 1013904223U;
        Bytes.append(static_cast<char>(Zufall >> 24U));
    }
    for (const qsizetype Laenge : {1, 7, 8, 9, 1024, 3071, 3072, 3073, 6143, 6144, 6151, 10'000}) {
        const QByteArray Anfang = Bytes.left(Laenge);
        QCOMPARE(Pruefsumme(Anfang.constData(), Laenge), SummeNachDefinition(Anfang));
    }
}

void TestRettungskopf::EinKopfKommtZurueckWieErGeschriebenWurde() {
    const Rettungskopf Kopf = Beispielkopf("Inhalt");
    const QByteArray Bytes = RettungskopfBytes(Kopf);
    const auto Gelesen = RettungskopfLesen(Bytes + "Inhalt");
    QVERIFY(Gelesen.has_value());
    QCOMPARE(Gelesen->Kopf.Ziel, Kopf.Ziel);
    QCOMPARE(Gelesen->Kopf.Zeit, Kopf.Zeit);
    QVERIFY(Gelesen->Kopf == Kopf);
    QCOMPARE(Gelesen->Ende, Bytes.size());
}

void TestRettungskopf::DerInhaltStehtUnveraendertHinterDerLeerzeile() {
    const QByteArray Inhalt("[Tafelquell 3.0]\r\n\n\nmehr", 24);
    const auto Gelesen = RettungsinhaltLesen(RettungskopfBytes(Beispielkopf(Inhalt)) + Inhalt);
    QVERIFY(Gelesen.has_value());
    QCOMPARE(Gelesen->Inhalt, Inhalt);
}

void TestRettungskopf::JedesVeraenderteByteMachtDieKopieUngueltig() {
    const QByteArray Ganz = RettungskopfBytes(Beispielkopf("Inhalt")) + "Inhalt";
    for (qsizetype i = 0; i < Ganz.size(); ++i) {
        for (const char Muster : {'\x01', '\x20', '\x80'}) {
            QByteArray Falsch = Ganz;
            Falsch[i] = static_cast<char>(Falsch[i] ^ Muster);
            QVERIFY2(!RettungsinhaltLesen(Falsch).has_value(), qPrintable(QString::number(i)));
        }
    }
}

void TestRettungskopf::JedeGekuerzteKopieIstUngueltig() {
    const QByteArray Ganz = RettungskopfBytes(Beispielkopf("Inhalt")) + "Inhalt";
    for (qsizetype Laenge = 0; Laenge < Ganz.size(); ++Laenge)
        QVERIFY2(!RettungsinhaltLesen(Ganz.left(Laenge)).has_value(), qPrintable(QString::number(Laenge)));
}

void TestRettungskopf::EineVerlaengerteKopieIstUngueltig() {
    QVERIFY(!RettungsinhaltLesen(RettungskopfBytes(Beispielkopf("Inhalt")) + "Inhalt\n").has_value());
}

void TestRettungskopf::KeinKopf_data() {
    QTest::addColumn<QByteArray>("Bytes");
    Rettungskopf Relativ = Beispielkopf({});
    Relativ.Ziel = "buch.txt";
    Rettungskopf Leer = Beispielkopf({});
    Leer.Ziel.clear();
    Rettungskopf Nul = Beispielkopf({});
    Nul.Ziel = QByteArray("/a\0b", 4);
    QTest::newRow("leer") << QByteArray();
    QTest::newRow("nur Leerzeile") << QByteArray("\n\n");
    QTest::newRow("ohne Ende") << QByteArray(100'000, 'x');
    QTest::newRow("Ende zu spaet") << QByteArray(100'000, 'x') + "\n\n";
    QTest::newRow("relativer Pfad") << RettungskopfBytes(Relativ);
    QTest::newRow("kein Pfad") << RettungskopfBytes(Leer);
    QTest::newRow("NUL im Pfad") << RettungskopfBytes(Nul);
    QTest::newRow("andere Fassung") << RettungskopfBytes(Beispielkopf({})).replace("kopie 1", "kopie 2");
}

void TestRettungskopf::KeinKopf() {
    QFETCH(QByteArray, Bytes);
    QVERIFY(!RettungskopfLesen(Bytes).has_value());
}

TESTKLASSE(TestRettungskopf)
#include "tst_Rettungskopf.moc"
