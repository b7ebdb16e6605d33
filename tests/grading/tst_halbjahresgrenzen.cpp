#include "common/Testprogramm.h"
#include "core/Zahlen.h"
#include "grading/Halbjahresgrenzen.h"

#include <QtTest>

class TestHalbjahresgrenzen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany)); }

    void grenzenLiegenVonEinsBisZehn_data() {
        QTest::addColumn<QString>("Getippt");
        QTest::addColumn<QString>("Gelesen"); // empty: refused
        const auto Fall = [](const char* Getippt, const char* Gelesen) {
            QTest::addRow("'%s'", Getippt) << QString::fromLatin1(Getippt) << QString::fromLatin1(Gelesen);
        };
        Fall("1", "1");
        Fall("6", "6");
        Fall("10", "10");
        Fall("11", "");
        Fall("0", "");
        Fall("-1", "");
        Fall("", "");
        Fall("abc", "");
        Fall("3,7", "4");
        Fall("2,5", "2");
        Fall("10,4", "10");
        Fall("10,6", "");
        Fall("0,4", "");
        Fall(" 7 ", "7");
    }
    void grenzenLiegenVonEinsBisZehn() {
        QFETCH(const QString, Getippt);
        QFETCH(const QString, Gelesen);
        const QString Gut = QStringLiteral("6");
        for (const Halbjahresgrenzen& Versuch :
             {Halbjahresgrenzen{Getippt, Gut, Gut}, Halbjahresgrenzen{Gut, Getippt, Gut},
              Halbjahresgrenzen{Gut, Gut, Getippt}}) {
            const auto Ergebnis = HalbjahresgrenzenLesen(Versuch);
            QCOMPARE(Ergebnis.has_value(), !Gelesen.isEmpty());
            if (!Ergebnis)
                continue;
            QCOMPARE(Ergebnis->P, Versuch.P == Gut ? Gut : Gelesen);
            QCOMPARE(Ergebnis->E, Versuch.E == Gut ? Gut : Gelesen);
            QCOMPARE(Ergebnis->M, Versuch.M == Gut ? Gut : Gelesen);
        }
    }
};

TESTKLASSE(TestHalbjahresgrenzen)
#include "tst_halbjahresgrenzen.moc"
