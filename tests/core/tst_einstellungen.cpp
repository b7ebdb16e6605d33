#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Einstellungen.h"

#include <QSettings>
#include <QtTest>

class TestEinstellungen : public QObject {
    Q_OBJECT
    Testwelt Welt;

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void einFehlenderSchluesselGibtDieVorgabe() {
        QCOMPARE(EinstellungLesen(QStringLiteral("AutoDatei"), Unbenannt), QStringLiteral("Unbenannt"));
        QCOMPARE(EinstellungLesen(QStringLiteral("AutoDatei"), {}), QString());
    }

    void einGeschriebenerWertKommtZurueck_data() {
        QTest::addColumn<QString>("Wert");
        for (const QString& Wert : {QStringLiteral("6"), QString(), QStringLiteral("0.00"),
                                    QStringLiteral("%Name%, %Vorname%, %Geschlecht%, %Religion%, %%"),
                                    QStringLiteral("/home/x/Größe \"a\"; b\\c.txt"),
                                    QStringLiteral("@Variant(x)"), QStringLiteral("  Rand  ")})
            QTest::addRow("'%s'", qPrintable(Wert)) << Wert;
    }
    void einGeschriebenerWertKommtZurueck() {
        QFETCH(const QString, Wert);
        EinstellungSchreiben(QStringLiteral("Schluessel"), Wert);
        QCOMPARE(EinstellungLesen(QStringLiteral("Schluessel"), QStringLiteral("Vorgabe")), Wert);
    }

    void derWertStehtSofortInDerDatei() {
        EinstellungSchreiben(QStringLiteral("MaxNote"), QStringLiteral("5"));
        // Read by a store of another name, so that nothing comes out of memory.
        const QByteArray Datei =
            Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("config/Tafelquell/Tafelquell.conf")));
        QCOMPARE(Datei, QByteArray("[Settings]\nMaxNote=5\n"));
    }

    void jederTestBeginntMitLeererAblage() {
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), QStringLiteral("keiner")),
                 QStringLiteral("keiner"));
    }
};

TESTKLASSE(TestEinstellungen)
#include "tst_einstellungen.moc"
