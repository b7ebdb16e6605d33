#include "core/Zeilenteiler.h"

#include "common/Testprogramm.h"

#include <QtTest>

class ZeilenteilerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void LinesEndWithCrLfLfOrCr_data() {
        QTest::addColumn<QByteArray>("Bytes");
        QTest::addColumn<QByteArrayList>("Zeilen");
        QTest::newRow("empty") << QByteArray() << QByteArrayList();
        QTest::newRow("one without end") << QByteArray("a") << QByteArrayList{"a"};
        QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << QByteArrayList{"a", "b"};
        QTest::newRow("LF") << QByteArray("a\nb\n") << QByteArrayList{"a", "b"};
        QTest::newRow("CR") << QByteArray("a\rb\r") << QByteArrayList{"a", "b"};
        QTest::newRow("mixed") << QByteArray("a\rb\nc\r\nd") << QByteArrayList{"a", "b", "c", "d"};
        QTest::newRow("empty lines") << QByteArray("\r\n\n\r\r\n") << QByteArrayList{"", "", "", ""};
        QTest::newRow("LF CR is two ends") << QByteArray("a\n\rb") << QByteArrayList{"a", "", "b"};
        QTest::newRow("CR at the end of all") << QByteArray("a\r") << QByteArrayList{"a"};
        QTest::newRow("NUL is a character")
            << QByteArray("a\0b\n", 4) << QByteArrayList{QByteArray("a\0b", 3)};
    }
    void LinesEndWithCrLfLfOrCr() {
        QFETCH(QByteArray, Bytes);
        QFETCH(QByteArrayList, Zeilen);
        Zeilenteiler Teiler(Bytes);
        QByteArrayView Zeile;
        QByteArrayList Gelesen;
        while (Teiler.Naechste(Zeile))
            Gelesen.append(Zeile.toByteArray());
        QCOMPARE(Gelesen, Zeilen);
    }
};

TESTKLASSE(ZeilenteilerTest)
#include "tst_zeilenteiler.moc"
