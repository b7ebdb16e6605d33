#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"

#include <QtTest>

/// Loading and saving the grade book file as a whole.
class Datenbankdatei : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void Beispiele_kommen_byte_fuer_byte_zurueck_data();
    void Beispiele_kommen_byte_fuer_byte_zurueck();

  private:
    Testwelt Welt;
};

void Datenbankdatei::Beispiele_kommen_byte_fuer_byte_zurueck_data() {
    QTest::addColumn<QString>("Pfad");
    QTest::newRow("klein") << QStringLiteral(TESTDATEN "/klein.txt");
    QTest::newRow("schule") << QStringLiteral(TESTDATEN "/schule.txt");
    QTest::newRow("mitgeliefertes Beispiel") << QStringLiteral(LIEFERDATEN "/Beispiel.txt");
}

void Datenbankdatei::Beispiele_kommen_byte_fuer_byte_zurueck() {
    QFETCH(QString, Pfad);
    QVERIFY(LadeDatenbank(Pfad));
    const QString Ziel = Welt.Pfad(QStringLiteral("kopie.txt"));
    SpeichernDatenbank3(Ziel);
    QCOMPARE(Testwelt::DateiInhalt(Ziel), Testwelt::DateiInhalt(Pfad));
}

TESTKLASSE(Datenbankdatei)

#include "tst_datenbankdatei.moc"
