#include "assessments/Textmass.h"

#include "common/Testprogramm.h"

#include <QtTest>

namespace {

/// Each character 100 twips wide, each line 200 high.
class Festmass : public Textmass {
  public:
    double Breite(QStringView Text) const override { return 100.0 * static_cast<double>(Text.size()); }
    double Hoehe() const override { return 200; }
};

/// Lines for a column that holds ten characters.
int Zeilen(const QString& Text) {
    const double Hoehe = ZeilenhoeheBerechnen(Festmass(), Text, 1075);
    return qRound((Hoehe - 105) / 200);
}

/// Position for a box whose lines hold nine characters and a blank; column and line in characters.
int Stelle(const QString& Text, double Spalte, double Zeile) {
    return TextPositionBerechnen(Festmass(), Text, 1031, Spalte * 100, Zeile * 200);
}

} // namespace

class TextmassTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void HeightIsLinesTimesHeightAndAMargin() {
        QCOMPARE(ZeilenhoeheBerechnen(Festmass(), QStringLiteral("kurz"), 1075), 305.0);
        QCOMPARE(ZeilenhoeheBerechnen(Festmass(), QStringLiteral("kurz\r\nkurz"), 1075), 505.0);
    }

    void LinesOfAText_data() {
        QTest::addColumn<QString>("Text");
        QTest::addColumn<int>("Anzahl");
        const auto Fall = [](const char* Name, const char* Text, int Anzahl) {
            QTest::newRow(Name) << QString::fromLatin1(Text) << Anzahl;
        };
        Fall("empty", "", 1);
        Fall("fits exactly", "1234567890", 1);
        Fall("two words", "12345 789012", 2);
        Fall("the blank must fit too", "1234567890 2", 1);
        Fall("blank at the limit", "123456789 12", 2);
        Fall("three lines", "1234567 1234567 1234567", 3);
        Fall("words share a line", "12 45 78 12 45 78", 2);
        Fall("word wider than the limit, alone", "12345678901", 2);
        Fall("word much wider, alone", "1234567890123456789012345678901", 2);
        Fall("wide word first, further words", "12345678901 a b c d e f", 1);
        Fall("wide word after others ends it", "ab 12345678901 c d", 2);
        Fall("wide word last", "ab 12345678901", 2);
        Fall("paragraphs", "a\r\nb\r\nc", 3);
        Fall("empty paragraph", "a\r\n\r\nc", 3);
        Fall("final line break", "a\r\n", 2);
        Fall("two final line breaks", "a\r\n\r\n", 3);
        Fall("line break alone", "\r\n", 2);
        Fall("CR at the very end", "a\r", 2);
        Fall("blank at the end", "123456789 ", 1);
        Fall("blank at the end does not fit", "1234567890 ", 1);
        Fall("blanks only", "            ", 2);
        Fall("leading blank", " 123456789 2", 3);
    }
    void LinesOfAText() {
        QFETCH(QString, Text);
        QFETCH(int, Anzahl);
        QCOMPARE(Zeilen(Text), Anzahl);
    }

    void AFinalLineBreakIsOneLineMore() {
        for (const char* Text : {"", "a", "12345 789012", "a\r\nb"}) {
            const QString Ohne = QString::fromLatin1(Text);
            QCOMPARE(Zeilen(Ohne + QStringLiteral("\r\n")), Zeilen(Ohne) + 1);
        }
    }

    void CaretGoesToTheStartOfTheWordUnderThePointer_data() {
        QTest::addColumn<double>("Spalte");
        QTest::addColumn<int>("Position");
        QTest::newRow("left of all") << -3.0 << 0;
        QTest::newRow("first word") << 0.5 << 0;
        QTest::newRow("blank behind it") << 2.9 << 0;
        QTest::newRow("just at the next word") << 3.0 << 0;
        QTest::newRow("second word") << 3.1 << 3;
        QTest::newRow("third word") << 7.0 << 6;
        QTest::newRow("blank behind the last word") << 9.5 << 6;
        QTest::newRow("right of the line") << 10.5 << 9;
        QTest::newRow("far right") << 99.0 << 9;
    }
    void CaretGoesToTheStartOfTheWordUnderThePointer() {
        QFETCH(double, Spalte);
        QFETCH(int, Position);
        QCOMPARE(Stelle(QStringLiteral("ab de ghi"), Spalte, 0), Position);
    }

    void CaretInAWrappedText_data() {
        QTest::addColumn<double>("Spalte");
        QTest::addColumn<double>("Zeile");
        QTest::addColumn<int>("Position");
        // abc efg / ijk mno // (break) qr / "" of "abc efg ijk mno" CR LF "qr" CR LF
        QTest::newRow("first line, second word") << 5.0 << 0.5 << 4;
        QTest::newRow("right of the first line: before its blank") << 9.9 << 0.5 << 7;
        QTest::newRow("second line, first word") << 1.0 << 1.5 << 8;
        QTest::newRow("right of the second line: before the break") << 9.9 << 1.5 << 15;
        QTest::newRow("third line") << 1.0 << 2.5 << 17;
        QTest::newRow("right of the third line") << 9.0 << 2.5 << 19;
        QTest::newRow("empty last line, left") << 0.0 << 3.5 << 21;
        QTest::newRow("empty last line, right") << 9.0 << 3.5 << 21;
        QTest::newRow("below the last line") << 1.0 << 4.5 << 21;
        QTest::newRow("far below") << 1.0 << 99.0 << 21;
        QTest::newRow("above the box") << 1.0 << -2.0 << 0;
    }
    void CaretInAWrappedText() {
        QFETCH(double, Spalte);
        QFETCH(double, Zeile);
        QFETCH(int, Position);
        QCOMPARE(Stelle(QStringLiteral("abc efg ijk mno\r\nqr\r\n"), Spalte, Zeile), Position);
    }

    void CaretInAnEmptyTextIsAtItsStart() {
        QCOMPARE(Stelle(QString(), 0, 0), 0);
        QCOMPARE(Stelle(QString(), 5, 0.5), 0);
        QCOMPARE(Stelle(QString(), 5, 3), 0);
    }

    void AWideWordStandsInTheLineItShouldHaveBegun() {
        QCOMPARE(Stelle(QStringLiteral("123456789012 b"), 1, 0), 0);
        QCOMPARE(Stelle(QStringLiteral("123456789012 b"), 1, 1), 0);
        QCOMPARE(Stelle(QStringLiteral("123456789012 b"), 1, 2), 13);
    }

    void MoreWordsAndLinesThanAPageAreNoHarm() {
        const QString Lang = QStringLiteral("wort ").repeated(3000) + QStringLiteral("\r\n").repeated(300);
        QCOMPARE(Stelle(Lang, 1, 5000), static_cast<int>(Lang.size()));
        QCOMPARE(Stelle(Lang, 1, 999), 2 * 999 * 5);
    }

    void TheScreenMeasureIsTheFonts() {
        const QFont Schrift(QStringLiteral("DejaVu Sans"), 9);
        const Schriftmass Mass(Schrift);
        const QFontMetricsF Masse(Schrift);
        QCOMPARE(Mass.Hoehe(), Masse.lineSpacing() * 15);
        for (int Durchgang = 0; Durchgang < 2; ++Durchgang) // the second time from memory
            QCOMPARE(Mass.Breite(u"Mädchen "), Masse.horizontalAdvance(QStringLiteral("Mädchen ")) * 15);
    }
};

TESTKLASSE(TextmassTest)
#include "tst_textmass.moc"
