#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Einstellungen.h"
#include "frame/Fensterlage.h"

#include <QtTest>

class TestFensterlage : public QObject {
    Q_OBJECT

    Testwelt Welt;

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void DasFensterLiegtImmerAufEinemBildschirm_data() {
        QTest::addColumn<QRect>("Lage");
        QTest::addColumn<QRect>("Erwartet");
        QTest::newRow("passt") << QRect(100, 50, 800, 600) << QRect(100, 50, 800, 600);
        QTest::newRow("auf dem zweiten") << QRect(2000, 50, 800, 600) << QRect(2000, 50, 800, 600);
        QTest::newRow("Bildschirm ist weg") << QRect(9000, 50, 800, 600) << QRect(1120, 50, 800, 600);
        QTest::newRow("links hinaus") << QRect(-500, -80, 800, 600) << QRect(0, 0, 800, 600);
        QTest::newRow("rechts unten hinaus") << QRect(1500, 900, 800, 600) << QRect(1120, 480, 800, 600);
        QTest::newRow("zu gross") << QRect(0, 0, 5000, 5000) << QRect(0, 0, 1920, 1080);
    }
    void DasFensterLiegtImmerAufEinemBildschirm() {
        QFETCH(QRect, Lage);
        QFETCH(QRect, Erwartet);
        QCOMPARE(AufBildschirm(Lage, {QRect(0, 0, 1920, 1080), QRect(1920, 0, 1280, 1024)}), Erwartet);
    }

    void AufEinemWinzigenBildschirmBleibtDieKleinsteGroesse() {
        QCOMPARE(AufBildschirm(QRect(50, 50, 800, 600), {QRect(0, 0, 320, 200)}), QRect(0, 0, 640, 400));
    }

    void OhneWerteGiltDieVorgabe() { QCOMPARE(FensterlageLesen(), QRect(66, 66, 640, 400)); }

    void UnsinnImSpeicherGiltAlsNichtGesetzt_data() {
        QTest::addColumn<QString>("Wert");
        QTest::newRow("leer") << QString();
        QTest::newRow("Wort") << QStringLiteral("breit");
        QTest::newRow("riesig") << QStringLiteral("99999999999999");
        QTest::newRow("negativ") << QStringLiteral("-15");
    }
    void UnsinnImSpeicherGiltAlsNichtGesetzt() {
        QFETCH(QString, Wert);
        EinstellungSchreiben(QStringLiteral("MainWidth"), Wert);
        QCOMPARE(FensterlageLesen().width(), 640);
    }
};

TESTKLASSE(TestFensterlage)
#include "tst_fensterlage.moc"
