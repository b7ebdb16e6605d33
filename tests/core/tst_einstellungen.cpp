#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "core/Einstellungen.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

namespace {

const QString Ablage = QStringLiteral("config/Tafelquell/Tafelquell.conf");

} // namespace

class TestEinstellungen : public QObject {
    Q_OBJECT
    Testwelt Welt;

    /// The store as a second running program leaves it.
    void AndererLaufSchreibt(const QByteArray& Zeilen) const {
        QDir(Welt.Ordner()).mkpath(QFileInfo(Ablage).path());
        Welt.DateiAnlegen(Ablage, "[Settings]\n" + Zeilen);
    }

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
        QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(Ablage)), QByteArray("[Settings]\nMaxNote=5\n"));
    }

    void einAndererProgrammlaufAendertNichtWasDieserGelesenHat() {
        EinstellungSchreiben(QStringLiteral("AutoDatei"), QStringLiteral("/a/eigene.txt"));
        AndererLaufSchreibt("AutoDatei=/b/fremde.txt\n");
        QCOMPARE(EinstellungLesen(QStringLiteral("AutoDatei"), Unbenannt), QStringLiteral("/a/eigene.txt"));
        // Writing another key looks into the file again, but does not take the path over.
        EinstellungSchreiben(QStringLiteral("MaxNote"), QStringLiteral("5"));
        QCOMPARE(EinstellungLesen(QStringLiteral("AutoDatei"), Unbenannt), QStringLiteral("/a/eigene.txt"));
    }

    void werZuletztSchreibtStehtInDerDatei() {
        EinstellungSchreiben(QStringLiteral("AutoDatei"), QStringLiteral("/a/eigene.txt"));
        AndererLaufSchreibt("AutoDatei=/b/fremde.txt\nPassbild=1\n");
        EinstellungSchreiben(QStringLiteral("AutoDatei"), QStringLiteral("/a/eigene.txt"));
        QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(Ablage)),
                 QByteArray("[Settings]\nAutoDatei=/a/eigene.txt\nPassbild=1\n"));
    }

    void einNeuerLaufLiestWasInDerDateiSteht() {
        EinstellungSchreiben(QStringLiteral("AutoDatei"), QStringLiteral("/a/eigene.txt"));
        // Of another length: QSettings tells files apart by time and size, and time is short here.
        AndererLaufSchreibt("AutoDatei=/b/noch_eine_fremde.txt\n");
        EinstellungenVergessen();
        QCOMPARE(EinstellungLesen(QStringLiteral("AutoDatei"), Unbenannt),
                 QStringLiteral("/b/noch_eine_fremde.txt"));
    }

    void eineAenderungGiltSofortAuchFuerEinenGelesenenWert() {
        AndererLaufSchreibt("MaxNote=6\n");
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), {}), QStringLiteral("6"));
        EinstellungSchreiben(QStringLiteral("MaxNote"), QStringLiteral("5"));
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), {}), QStringLiteral("5"));
    }

    void eineVorgabeGiltNurFuerIhrenAufruf() {
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), QStringLiteral("6")), QStringLiteral("6"));
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), QStringLiteral("5")), QStringLiteral("5"));
    }

    void jederTestBeginntMitLeererAblage() {
        QCOMPARE(EinstellungLesen(QStringLiteral("MaxNote"), QStringLiteral("keiner")),
                 QStringLiteral("keiner"));
    }
};

TESTKLASSE(TestEinstellungen)
#include "tst_einstellungen.moc"
