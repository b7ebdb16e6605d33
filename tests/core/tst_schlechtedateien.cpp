#include "Buchdatei.h"

#include "common/Schlechtes.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Parameterdatei.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

const QString Warnungsanfang = QStringLiteral("Die Anzahl der Daten in der ");
const QString Fremdschaden = QStringLiteral("Fehler beim Einlesen der Schüler aus einer Notendatenbank!\r\n");
const QByteArray Schuelerkopf = "[Tafelquell 3.0]\r\n[Sch\xFCler]\r\nID" + QByteArray(17, '\t') + "\r\n";

QByteArray Schuelerzeilen(int Anzahl) {
    QByteArray Zeilen;
    for (int i = 0; i < Anzahl; ++i)
        Zeilen += QByteArray::number(10000 + i) + QByteArray(17, '\t') + "\r\n";
    return Zeilen;
}

QByteArray Mit(const char* Alt, const QByteArray& Neu) {
    return Ersetzt(Kleinbuch(), QString::fromLatin1(Alt), QString::fromLatin1(Neu));
}

} // namespace

/// The load of only the students of another grade book, from files that are not as they should be.
class SchlechteFremdeDatenbank : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        AnzFremdSchueler = 1;
        FremdSchueler[0].Name = QStringLiteral("von vorher");
    }
    void cleanup() { Welt.Aufraeumen(); }

    void EinSchadenWirdMitSeinerStelleGemeldet_data();
    void EinSchadenWirdMitSeinerStelleGemeldet();
    void WasKeineDatenbankIstLaesstDieSchuelerWieSieWaren_data();
    void WasKeineDatenbankIstLaesstDieSchuelerWieSieWaren();
    void WasNichtZuDenSchuelernGehoertStoertNicht_data();
    void WasNichtZuDenSchuelernGehoertStoertNicht();
    void FuenftausendundeinSchuelerKommen();
    void EineSehrLangeZeileGehtDurch_data();
    void EineSehrLangeZeileGehtDurch();

  private:
    QString Datei(const QByteArray& Inhalt) { return Welt.DateiAnlegen(QStringLiteral("fremd.txt"), Inhalt); }
    Testwelt Welt;
};

void SchlechteFremdeDatenbank::EinSchadenWirdMitSeinerStelleGemeldet_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::addColumn<int>("Zeile");
    QTest::newRow("leer") << QByteArray() << 1;
    QTest::newRow("5002 Schueler") << Schuelerkopf + Schuelerzeilen(5002) << 5005;
    QTest::newRow("71. Feld eines Schuelers")
        << QByteArray(Schuelerkopf + "10000" + QByteArray(70, '\t') + "\r\n") << 4;
    QTest::newRow("71. Feld in einem anderen Abschnitt")
        << Mit("\n2003/04\t7a", "\n2003/04\t7a" + QByteArray(69, '\t')) << 4;
    QTest::newRow("ID keine Zahl") << Mit("\n10000\tAnna", "\nabc\tAnna") << 13;
    QTest::newRow("ID zu gross") << Mit("\n10000\tAnna", "\n2147483648\tAnna") << 13;
}

void SchlechteFremdeDatenbank::EinSchadenWirdMitSeinerStelleGemeldet() {
    QFETCH(QByteArray, Inhalt);
    QFETCH(int, Zeile);
    const QString Pfad = Datei(Inhalt);
    Welt.Boxen.ErwarteMeldung(Fremdschaden);
    QVERIFY(!LadeFremdSchueler(Pfad));
    const QString Text = Welt.Boxen.Gezeigt.last().Text;
    QVERIFY2(Text.contains(QStringLiteral("in der Datei:       %1\r\n").arg(Zeile)), qPrintable(Text));
    QCOMPARE(AnzFremdSchueler, 0);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Inhalt);
}

void SchlechteFremdeDatenbank::WasKeineDatenbankIstLaesstDieSchuelerWieSieWaren_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::newRow("UTF-8 mit Kennung") << InUtf8MitMarke(Kleinbuch());
    QTest::newRow("UTF-16") << InUtf16(Kleinbuch());
    QTest::newRow("Null-Bytes am Anfang") << QByteArray(QByteArray(16, '\0') + Kleinbuch());
}

void SchlechteFremdeDatenbank::WasKeineDatenbankIstLaesstDieSchuelerWieSieWaren() {
    QFETCH(QByteArray, Inhalt);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei ist keine NotenDatenbank!"));
    QVERIFY(!LadeFremdSchueler(Datei(Inhalt)));
    QCOMPARE(AnzFremdSchueler, 1);
    QCOMPARE(FremdSchueler[0].Name, QStringLiteral("von vorher"));
}

void SchlechteFremdeDatenbank::WasNichtZuDenSchuelernGehoertStoertNicht_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::addColumn<QString>("Name");
    const QString Anna = QStringLiteral("Anna Bauer");
    QTest::newRow("Probe 25") << Mit("\n1\t50000\t", "\n25\t50000\t") << Anna;
    QTest::newRow("Marke ohne Zahl") << Mit("#10000_1#", "#Achtung#") << Anna;
    QTest::newRow("LF") << MitEnden(Kleinbuch(), "\n") << Anna;
    QTest::newRow("CR") << MitEnden(Kleinbuch(), "\r") << Anna;
    QByteArray MitNull = Kleinbuch();
    MitNull.replace("Anna Bauer", QByteArray("Anna\0Bauer", 10));
    QTest::newRow("Null-Byte im Namen") << MitNull << QString::fromLatin1("Anna\0Bauer", 10);
    QTest::newRow("UTF-8: niemand kennt diesen Abschnitt") << InUtf8(Kleinbuch()) << QString();
}

void SchlechteFremdeDatenbank::WasNichtZuDenSchuelernGehoertStoertNicht() {
    QFETCH(QByteArray, Inhalt);
    QFETCH(QString, Name);
    QVERIFY(LadeFremdSchueler(Datei(Inhalt)));
    QCOMPARE(AnzFremdSchueler, Name.isEmpty() ? 0 : 1);
    if (!Name.isEmpty())
        QCOMPARE(FremdSchueler[0].Name, Name);
}

void SchlechteFremdeDatenbank::FuenftausendundeinSchuelerKommen() {
    QVERIFY(LadeFremdSchueler(Datei(Schuelerkopf + Schuelerzeilen(5001))));
    QCOMPARE(AnzFremdSchueler, 5001);
}

void SchlechteFremdeDatenbank::EineSehrLangeZeileGehtDurch_data() {
    QTest::addColumn<int>("Laenge");
    QTest::newRow("40 MB") << LangeZeile;
    QTest::newRow("300 MB") << SehrLangeZeile;
}

void SchlechteFremdeDatenbank::EineSehrLangeZeileGehtDurch() {
    QFETCH(int, Laenge);
    if (Laenge == SehrLangeZeile)
        NUR_IN_DER_LANGEN_FORM();
    Welt.Boxen.ErwarteMeldung(Warnungsanfang);
    QVERIFY(LadeFremdSchueler(Datei(Schuelerkopf + "10000\t" + QByteArray(Laenge, 'x') + "\r\n")));
    QCOMPARE(FremdSchueler[0].Name.size(), Laenge);
    FremdSchueler[0] = {};
}

/// The parameter file, not as it should be.
class SchlechteParameterdatei : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        EigeneVerteilung = {};
        Probenbezeichnung = {};
    }
    void cleanup() { Welt.Aufraeumen(); }

    void WasKeineParameterdateiIstLaesstDieTabellenUndWirdBewahrt_data();
    void WasKeineParameterdateiIstLaesstDieTabellenUndWirdBewahrt();
    void ZeilenendenLFUndCR_data();
    void ZeilenendenLFUndCR();
    void ZuVieleFelderStoerenNicht();
    void NullBytesSindZeichenWieAndere();
    void EineSehrLangeZeileGehtDurch_data();
    void EineSehrLangeZeileGehtDurch();

  private:
    void Anlegen(const QByteArray& Inhalt) {
        Welt.DateiAnlegen(QStringLiteral("programm/Tafelquell.ini"), Inhalt);
    }
    static QByteArray Geliefert() {
        return Testwelt::DateiInhalt(QStringLiteral(LIEFERDATEN "/Tafelquell.ini"));
    }
    const QByteArray Kopf = "[Parameter f\xFCr Tafelquell 3.0]\r\n";
    Testwelt Welt;
};

void SchlechteParameterdatei::WasKeineParameterdateiIstLaesstDieTabellenUndWirdBewahrt_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::newRow("leer") << QByteArray();
    QTest::newRow("UTF-8") << InUtf8(Geliefert());
    QTest::newRow("UTF-8 mit Kennung") << InUtf8MitMarke(Geliefert());
    QTest::newRow("UTF-16") << InUtf16(Geliefert());
    QTest::newRow("Null-Bytes am Anfang") << QByteArray(QByteArray(16, '\0') + Geliefert());
}

void SchlechteParameterdatei::WasKeineParameterdateiIstLaesstDieTabellenUndWirdBewahrt() {
    QFETCH(QByteArray, Inhalt);
    Anlegen(Inhalt);
    EigeneVerteilung[0][0] = 1;
    Welt.Boxen.ErwarteMeldung(
        QStringLiteral("Die Parameter-Datei TAFELQUELL.INI hat ein ungültiges Format!"));
    LadeParameter();
    QCOMPARE(EigeneVerteilung[0][0], 1.0F);
    SpeichereParameter(); // as the end of the program does
    const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
    const QStringList Kopien = Zustand.entryList({QStringLiteral("Original-*")});
    QCOMPARE(Kopien.size(), 1);
    QCOMPARE(Testwelt::DateiInhalt(Zustand.filePath(Kopien.first())), Inhalt);
}

void SchlechteParameterdatei::ZeilenendenLFUndCR_data() {
    QTest::addColumn<QByteArray>("Ende");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR") << QByteArray("\r");
}

void SchlechteParameterdatei::ZeilenendenLFUndCR() {
    QFETCH(QByteArray, Ende);
    Anlegen(MitEnden(Geliefert(), Ende));
    LadeParameter();
    SpeichereParameter();
    QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("programm/Tafelquell.ini"))), Geliefert());
}

void SchlechteParameterdatei::ZuVieleFelderStoerenNicht() {
    Anlegen(Kopf + "[Eigene Verteilung]\r\nWertung\r\n--\t9\t8\t7\t6\t5" + QByteArray(100, '\t') + "4\r\n");
    LadeParameter();
    QCOMPARE(EigeneVerteilung[0][0], 9.0F);
    QCOMPARE(EigeneVerteilung[0][4], 5.0F);
}

void SchlechteParameterdatei::NullBytesSindZeichenWieAndere() {
    Anlegen(Kopf + "[Probenbezeichnungen]\r\nKlasse\r\n1\tPro" + QByteArray(1, '\0') + "be\tLZK\r\n");
    LadeParameter();
    QCOMPARE(Probenbezeichnung[1], QString::fromLatin1("Pro\0be", 6));
}

void SchlechteParameterdatei::EineSehrLangeZeileGehtDurch_data() {
    QTest::addColumn<int>("Laenge");
    QTest::newRow("40 MB") << LangeZeile;
    QTest::newRow("300 MB") << SehrLangeZeile;
}

void SchlechteParameterdatei::EineSehrLangeZeileGehtDurch() {
    QFETCH(int, Laenge);
    if (Laenge == SehrLangeZeile)
        NUR_IN_DER_LANGEN_FORM();
    Anlegen(Kopf + "[Probenbezeichnungen]\r\nKlasse\r\n1\t" + QByteArray(Laenge, 'x') + "\tLZK\r\n");
    LadeParameter();
    QCOMPARE(Probenbezeichnung[1].size(), Laenge);
    Probenbezeichnung = {};
}

TESTKLASSE(SchlechteFremdeDatenbank)
TESTKLASSE(SchlechteParameterdatei)
#include "tst_schlechtedateien.moc"
