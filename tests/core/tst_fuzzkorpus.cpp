#include "common/Rundreise.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include <QDir>
#include <QtTest>

/// Every file of the fuzz corpora, in every build.
class Fuzzkorpus : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void Datenbank_data() { Dateien(QStringLiteral("datenbank")); }
    void Datenbank() { Pruefen(DatenbankRundreise); }
    void Fremdschueler_data() { Dateien(QStringLiteral("fremdschueler")); }
    void Fremdschueler() { Pruefen(FremdschuelerRundreise); }
    void Parameter_data() { Dateien(QStringLiteral("parameter")); }
    void Parameter() { Pruefen(ParameterRundreise); }
    void Formulierungen_data() { Dateien(QStringLiteral("formulierungen")); }
    void Formulierungen() { Pruefen(FormulierungenRundreise); }

  private:
    static void Dateien(const QString& Ziel) {
        QTest::addColumn<QString>("Pfad");
        const QDir Ordner(QStringLiteral(FUZZKORPUS "/") + Ziel);
        const QStringList Namen = Ordner.entryList(QDir::Files);
        QVERIFY2(Namen.size() > 20, "der Korpus fehlt");
        for (const QString& Name : Namen)
            QTest::newRow(qPrintable(Name)) << Ordner.filePath(Name);
    }
    static void Pruefen(QString (*Pruefung)(const QByteArray&)) {
        QFETCH(QString, Pfad);
        const QByteArray Bytes = Testwelt::DateiInhalt(Pfad);
        QCOMPARE(Pruefung(Bytes), QString());
        // Cut at every byte, and with one byte more so that both ways of reading are taken.
        for (qsizetype Ende = 0; Ende < Bytes.size(); Ende += 1 + Bytes.size() / 200)
            QCOMPARE(Pruefung(Bytes.first(Ende)), QString());
    }
    Testwelt Welt;
};

TESTKLASSE(Fuzzkorpus)

#include "tst_fuzzkorpus.moc"
