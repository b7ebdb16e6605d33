#include "common/Testprogramm.h"
#include "core/Codeseite.h"
#include "core/Laufzeitfehler.h"

#include <QtTest>

#include <set>

class TestCodeseite : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void alle256BytesGehenHinUndZurueck() {
        QByteArray Bytes;
        std::set<ushort> Zeichen;
        for (int Byte = 0; Byte < 256; ++Byte)
            Bytes.append(static_cast<char>(Byte));
        const QString Text = AusCodeseite(Bytes);
        QCOMPARE(Text.size(), 256);
        for (const QChar Eines : Text)
            Zeichen.insert(Eines.unicode());
        QCOMPARE(Zeichen.size(), std::size_t(256));
        QCOMPARE(InCodeseite(Text), Bytes);
    }

    void dieBesonderenZeichen_data() {
        QTest::addColumn<int>("Byte");
        QTest::addColumn<QString>("Zeichen");
        QTest::newRow("Euro") << 0x80 << QStringLiteral("€");
        QTest::newRow("Anfuehrung unten") << 0x84 << QStringLiteral("„");
        QTest::newRow("Auslassung") << 0x85 << QStringLiteral("…");
        QTest::newRow("Anfuehrung oben") << 0x93 << QStringLiteral("“");
        QTest::newRow("Gedankenstrich") << 0x96 << QStringLiteral("–");
        QTest::newRow("Apostroph") << 0x92 << QStringLiteral("’");
        QTest::newRow("Z mit Haken") << 0x8E << QStringLiteral("Ž");
        QTest::newRow("Y mit Trema") << 0x9F << QStringLiteral("Ÿ");
        QTest::newRow("scharfes S") << 0xDF << QStringLiteral("ß");
        QTest::newRow("u mit Punkten") << 0xFC << QStringLiteral("ü");
        for (const int Byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
            QTest::addRow("unbelegt %x", Byte) << Byte << QString(QChar(static_cast<ushort>(Byte)));
    }
    void dieBesonderenZeichen() {
        QFETCH(const int, Byte);
        QFETCH(const QString, Zeichen);
        const QByteArray Bytes(1, static_cast<char>(Byte));
        QCOMPARE(AusCodeseite(Bytes), Zeichen);
        QCOMPARE(InCodeseite(Zeichen), Bytes);
    }

    void jedesZeichenGiltAnJederStelleEinesLangenTextes() {
        for (int Stelle = 0; Stelle < 40; ++Stelle) {
            QString Text(40, u'a');
            QByteArray Bytes(40, 'a');
            Text[Stelle] = u'€';
            Bytes[Stelle] = '\x80';
            QCOMPARE(InCodeseite(Text), Bytes);
            Text[Stelle] = u'\u0103';
            QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, InCodeseite(Text));
        }
    }

    void schreibtNurSoVieleBytesWieDerTextZeichenHat() {
        for (const int Laenge : {0, 1, 15, 16, 17, 33}) {
            QByteArray Ziel(40, '.');
            InCodeseite(QString(Laenge, u'€'), Ziel.data());
            QCOMPARE(Ziel, QByteArray(Laenge, '\x80').leftJustified(40, '.'));
        }
    }

    void einZeichenOhneByteWirft() {
        for (const QString& Text : {QStringLiteral("Bălan"), QStringLiteral("a\u0308"), QStringLiteral("😀"),
                                    QString(QChar(0x0082))})
            QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, InCodeseite(Text));
    }

    void dasNullzeichenHatEinByte() {
        QVERIFY(InCodeseiteVorhanden(QChar(0)));
        QCOMPARE(InCodeseite(QString(1, QChar(0))), QByteArray(1, '\0'));
    }

    void genau256ZeichenHabenEinByte() {
        int Anzahl = 0;
        for (int Zeichen = 0; Zeichen < 65536; ++Zeichen)
            Anzahl += InCodeseiteVorhanden(QChar(static_cast<ushort>(Zeichen))) ? 1 : 0;
        QCOMPARE(Anzahl, 256);
    }

    void bereinigenSetztZusammenUndLaesstFehlendesWeg_data() {
        QTest::addColumn<QString>("Text");
        QTest::addColumn<QString>("Rein");
        QTest::addColumn<int>("Entfallen");
        QTest::newRow("rein") << QStringLiteral("Müller") << QStringLiteral("Müller") << 0;
        QTest::newRow("zerlegt") << QStringLiteral("Mu\u0308ller") << QStringLiteral("Müller") << 0;
        QTest::newRow("fremde Buchstaben") << QStringLiteral("Bălan Iliș") << QStringLiteral("Blan Ili") << 2;
        QTest::newRow("ein Bild zaehlt einmal") << QStringLiteral("gut 😀!") << QStringLiteral("gut !") << 1;
        QTest::newRow("Zeichen der Codeseite") << QStringLiteral("„5 €“") << QStringLiteral("„5 €“") << 0;
        QTest::newRow("leer") << QString() << QString() << 0;
    }
    void bereinigenSetztZusammenUndLaesstFehlendesWeg() {
        QFETCH(const QString, Text);
        QFETCH(const QString, Rein);
        QFETCH(const int, Entfallen);
        int Anzahl = -1;
        QCOMPARE(CodeseiteBereinigt(Text, &Anzahl), Rein);
        QCOMPARE(Anzahl, Entfallen);
        QCOMPARE(CodeseiteBereinigt(Text), Rein);
    }
};

TESTKLASSE(TestCodeseite)
#include "tst_codeseite.moc"
