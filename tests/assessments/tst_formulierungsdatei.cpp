#include "assessments/Formulierungsdatei.h"

#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Codeseite.h"

#include <QFile>
#include <QtTest>

namespace {

const QByteArray Kopfzeile("[Beurteilungsvorlagen f\xFCr Tafelquell 3.0]\r\n");

QByteArray Bereichszeilen(int Anzahl) {
    QByteArray Bytes;
    for (int i = 1; i <= Anzahl; ++i)
        Bytes += "[Bereich " + QByteArray::number(i) + "]\r\n";
    return Bytes;
}

QByteArray Formulierungszeilen(int Anzahl) {
    QByteArray Bytes;
    for (int i = 1; i <= Anzahl; ++i)
        Bytes += "o Satz " + QByteArray::number(i) + "\r\n";
    return Bytes;
}

/// The store as lines: "Name: a|b".
QStringList AlsText() {
    QStringList Zeilen;
    for (int i = 0; i < AnzLernbereiche; ++i) {
        QStringList Saetze;
        for (int j = 0; j < Lernbereiche[i].Anzahl; ++j)
            Saetze.append(Lernbereiche[i].Formulierung[j]);
        Zeilen.append(Lernbereiche[i].Name + QStringLiteral(": ") + Saetze.join(u'|'));
    }
    return Zeilen;
}

} // namespace

class FormulierungsdateiTest : public QObject {
    Q_OBJECT

    Testwelt Welt;

    Formulierungsbefund Lesen(const QByteArray& Bytes) {
        return FormulierungenLesen(Bytes, Lernbereiche, AnzLernbereiche);
    }

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void AreasAndPhrasesAreReadAsTheyStand() {
        const auto Befund =
            Lesen(Kopfzeile + "[Deutsch]\r\n+ Gut.\r\no  zwei Blanks \r\n[Leer]\r\n[Sport]\r\n-Ohne\r\n");
        QCOMPARE(Befund.Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(AlsText(), (QStringList{QStringLiteral("Deutsch: + Gut.|o  zwei Blanks "),
                                         QStringLiteral("Leer: "), QStringLiteral("Sport: -Ohne")}));
    }

    void OnlyTheFirstLineIsZeroAreas() {
        QCOMPARE(Lesen(Kopfzeile).Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(AnzLernbereiche, qint16(0));
        QCOMPARE(Lernbereiche[0].Anzahl, 0);
    }

    void LinesMayEndWithCrLfLfOrCr_data() {
        QTest::addColumn<QByteArray>("Ende");
        QTest::newRow("CR LF") << QByteArray("\r\n");
        QTest::newRow("LF") << QByteArray("\n");
        QTest::newRow("CR") << QByteArray("\r");
    }
    void LinesMayEndWithCrLfLfOrCr() {
        QFETCH(QByteArray, Ende);
        QByteArray Bytes = Kopfzeile + "[A]\r\n+ eins\r\n\r\n- drei\r\n";
        QCOMPARE(Lesen(Bytes.replace("\r\n", Ende)).Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(AlsText(), QStringList{QStringLiteral("A: + eins||- drei")});
    }

    void TheLastLineNeedsNoLineEnd() {
        Lesen(Kopfzeile + "[A]\r\n+ eins");
        QCOMPARE(AlsText(), QStringList{QStringLiteral("A: + eins")});
    }

    void WhatIsASectionLine_data() {
        QTest::addColumn<QByteArray>("Zeile");
        QTest::addColumn<QString>("Speicher");
        QTest::newRow("brackets around a name") << QByteArray("[x]") << QStringLiteral("A: /x: ");
        QTest::newRow("empty name") << QByteArray("[]") << QStringLiteral("A: /: ");
        QTest::newRow("one bracket") << QByteArray("[") << QStringLiteral("A: [");
        QTest::newRow("closing bracket alone") << QByteArray("]") << QStringLiteral("A: ]");
        QTest::newRow("blank in front") << QByteArray(" [x]") << QStringLiteral("A:  [x]");
        QTest::newRow("blank behind") << QByteArray("[x] ") << QStringLiteral("A: [x] ");
        QTest::newRow("brackets in the name") << QByteArray("[x]y]") << QStringLiteral("A: /x]y: ");
        QTest::newRow("no comment lines") << QByteArray("#x") << QStringLiteral("A: #x");
    }
    void WhatIsASectionLine() {
        QFETCH(QByteArray, Zeile);
        QFETCH(QString, Speicher);
        QCOMPARE(Lesen(Kopfzeile + "[A]\r\n" + Zeile + "\r\n").Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(AlsText().join(u'/'), Speicher);
        QCOMPARE(IstBereichszeile(AusCodeseite(Zeile)), AnzLernbereiche == 2);
    }

    void FirstLineDecides_data() {
        using Art = Formulierungsbefund::Art;
        QTest::addColumn<QByteArray>("Zeile");
        QTest::addColumn<Formulierungsbefund::Art>("Was");
        QTest::addColumn<QString>("Version");
        const QByteArray Anfang("[Beurteilungsvorlagen f\xFCr Tafelquell");
        QTest::newRow("3.0") << QByteArray(Anfang + " 3.0]") << Art::Gut << QStringLiteral("3.0");
        QTest::newRow("what follows is not read")
            << QByteArray(Anfang + " 3.0 und mehr") << Art::Gut << QStringLiteral("3.0");
        QTest::newRow("any character in front")
            << QByteArray(Anfang + "-3.0") << Art::Gut << QStringLiteral("3.0");
        QTest::newRow("2.0") << QByteArray(Anfang + " 2.0]") << Art::FalscheVersion << QStringLiteral("2.0");
        QTest::newRow("cut behind the blank") << QByteArray(Anfang + " ") << Art::FalscheVersion << QString();
        QTest::newRow("cut in the version")
            << QByteArray(Anfang + " 3.") << Art::FalscheVersion << QStringLiteral("3.");
        QTest::newRow("cut before the blank") << Anfang << Art::FalscheVersion << QString();
        QTest::newRow("other file") << QByteArray("[Tafelquell 3.0]") << Art::FalscherKopf << QString();
        QTest::newRow("blank in front of it")
            << QByteArray(" " + Anfang + " 3.0]") << Art::FalscherKopf << QString();
        QTest::newRow("UTF-8") << QByteArray("[Beurteilungsvorlagen f\xC3\xBCr Tafelquell 3.0]")
                               << Art::FalscherKopf << QString();
        QTest::newRow("byte order mark")
            << QByteArray("\xEF\xBB\xBF" + Anfang + " 3.0]") << Art::FalscherKopf << QString();
        QTest::newRow("empty line") << QByteArray("\r\n") << Art::FalscherKopf << QString();
    }
    void FirstLineDecides() {
        QFETCH(QByteArray, Zeile);
        QFETCH(QString, Version);
        QFETCH(Formulierungsbefund::Art, Was);
        Lernbereiche[0].Name = QStringLiteral("vorher");
        AnzLernbereiche = 1;
        const auto Befund = Lesen(Zeile + "\r\n[A]\r\n");
        QCOMPARE(Befund.Was, Was);
        QCOMPARE(Befund.Version, Version);
        QCOMPARE(AnzLernbereiche, qint16(Was == Formulierungsbefund::Art::Gut ? 2 : 1));
    }

    void AnEmptyFileIsDamagedInLine1() {
        const auto Befund = Lesen({});
        QCOMPARE(Befund.Was, Formulierungsbefund::Art::Beschaedigt);
        QCOMPARE(Befund.Zeile, 1);
        QCOMPARE(Befund.Bereich, qint16(0));
        QCOMPARE(Befund.LetzteZeile, QString());
    }

    void APhraseBeforeTheFirstAreaIsDamage() {
        const auto Befund = Lesen(Kopfzeile + "+ verwaist\r\n[A]\r\n");
        QCOMPARE(Befund.Was, Formulierungsbefund::Art::Beschaedigt);
        QCOMPARE(Befund.Zeile, 2);
        QCOMPARE(Befund.Bereich, qint16(0));
        QCOMPARE(Befund.LetzteZeile, QStringLiteral("+ verwaist"));
        QCOMPARE(AnzLernbereiche, qint16(0));
    }

    void NinetyNineAreasAreRead() {
        QCOMPARE(Lesen(Kopfzeile + Bereichszeilen(99)).Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(AnzLernbereiche, qint16(99));
        QCOMPARE(Lernbereiche[99].Anzahl, 0);
    }

    void TheHundredthAreaIsDamageAndTheOthersStay() {
        const auto Befund = Lesen(Kopfzeile + Bereichszeilen(100));
        QCOMPARE(Befund.Was, Formulierungsbefund::Art::Beschaedigt);
        QCOMPARE(Befund.Zeile, 101);
        QCOMPARE(Befund.Bereich, qint16(100));
        QCOMPARE(Befund.LetzteZeile, QStringLiteral("[Bereich 100]"));
        QCOMPARE(AnzLernbereiche, qint16(99));
        QCOMPARE(Lernbereiche[99].Anzahl, 0);
    }

    void TwoHundredPhrasesAreRead() {
        QCOMPARE(Lesen(Kopfzeile + "[A]\r\n" + Formulierungszeilen(200)).Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(Lernbereiche[0].Anzahl, 200);
        QCOMPARE(Lernbereiche[0].Formulierung[199], QStringLiteral("o Satz 200"));
    }

    void The201stPhraseIsDamageAndTheOthersStay() {
        const auto Befund = Lesen(Kopfzeile + "[A]\r\n[B]\r\n" + Formulierungszeilen(201) + "[C]\r\n");
        QCOMPARE(Befund.Was, Formulierungsbefund::Art::Beschaedigt);
        QCOMPARE(Befund.Zeile, 204);
        QCOMPARE(Befund.Bereich, qint16(2));
        QCOMPARE(Befund.LetzteZeile, QStringLiteral("o Satz 201"));
        QCOMPARE(AnzLernbereiche, qint16(2));
        QCOMPARE(Lernbereiche[1].Anzahl, 200);
    }

    void TheRecordBehindTheLastAreaIsEmptied() {
        Lernbereiche[1].Anzahl = 7;
        Lernbereiche[2].Anzahl = 7;
        Lesen(Kopfzeile + "[A]\r\n");
        QCOMPARE(Lernbereiche[1].Anzahl, 0);
        QCOMPARE(Lernbereiche[2].Anzahl, 7);
    }

    void ASecondFileIsAppendedWithoutALookAtNames() {
        Lesen(Kopfzeile + "[A]\r\n+ eins\r\n");
        Lesen(Kopfzeile + "o vor dem ersten\r\n[A]\r\n- zwei\r\n");
        QCOMPARE(AlsText(),
                 (QStringList{QStringLiteral("A: + eins|o vor dem ersten"), QStringLiteral("A: - zwei")}));
    }

    void LoadAndSaveReproduceEveryByte() {
        QByteArray AlleBytes;
        for (int Byte = 1; Byte < 256; ++Byte)
            if (Byte != '\n' && Byte != '\r')
                AlleBytes += static_cast<char>(Byte);
        const QByteArray Bytes =
            Kopfzeile + "[A]\r\n\r\n+\r\n?unbekannt\r\n[\r\n]\r\n\t\r\n" + AlleBytes + "\r\n[]\r\n\r\n";
        QCOMPARE(Lesen(Bytes).Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(FormulierungenBytes(Lernbereiche, AnzLernbereiche), Bytes);
    }

    void TheDeliveredFileComesBackByteForByte() {
        const QByteArray Bytes = Testwelt::DateiInhalt(QStringLiteral(LIEFERDATEN "/Formulierungen.txt"));
        QVERIFY(Bytes.size() > 10000);
        QCOMPARE(Lesen(Bytes).Was, Formulierungsbefund::Art::Gut);
        QCOMPARE(FormulierungenBytes(Lernbereiche, AnzLernbereiche), Bytes);
    }

    void SavingWritesNoVersionBut30() { QCOMPARE(FormulierungenBytes(Lernbereiche, 0), Kopfzeile); }

    void ACharacterOutsideTheCodePageIsNotWritten() {
        Lesen(Kopfzeile + "[A]\r\n");
        Lernbereiche[0].Name = QStringLiteral("Łódź");
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, FormulierungenBytes(Lernbereiche, AnzLernbereiche));
    }
};

TESTKLASSE(FormulierungsdateiTest)
#include "tst_formulierungsdatei.moc"
