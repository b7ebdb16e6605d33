#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "Buchdatei.h"
#include "Rettungsprobe.h"

#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/NeuererStand.h"
#include "core/Orte.h"
#include "core/Rettung.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

namespace {

const QByteArray Parameterinhalt = QByteArrayLiteral("[Parameter f\xFCr Tafelquell 3.0]\r\n");

QByteArray Neuer() {
    return Ersetzt(Kleinbuch(), QStringLiteral("Anna Bauer"), QStringLiteral("Berta Bauer"));
}

} // namespace

/// A save was broken off before it wrote: the file has the old content, a rescue copy the newer one.
class TestNeuererStand : public QObject {
    Q_OBJECT

  private:
    Testwelt Welt;

    QString Ziel() const {
        return QFileInfo(Welt.Ordner()).canonicalFilePath() + QStringLiteral("/buch.txt");
    }

    void Lege(const QByteArray& Vorher, const QByteArray& Nachher, int Nummer = 1) const {
        Welt.DateiAnlegen(QStringLiteral("buch.txt"), Vorher);
        Rettungskopf Kopf;
        Kopf.Ziel = QFile::encodeName(Ziel());
        Kopf.Inhalt = MarkeVon(Nachher);
        Kopf.Vorher = MarkeVon(Vorher);
        Kopf.Zeit = QDateTime(QDate(2003, 10, 12), QTime(10, 15));
        Welt.DateiAnlegen(QStringLiteral("zustand/r.%1.rescue").arg(Nummer),
                          RettungskopfBytes(Kopf) + Nachher);
    }

    void Annehmen() {
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Erster);
        RettungenAnbieten();
    }

    void Oeffnen() {
        Lege(Kleinbuch(), Neuer());
        Annehmen();
        QVERIFY(LadeDatenbank(Ziel()));
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Zustandsverzeichnis();
    }
    void cleanup() { Welt.Aufraeumen(); }

    void ErWirdGeoeffnetUndDieDateiBehaeltDenAlten() {
        Oeffnen();
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Berta Bauer"));
        QCOMPARE(DatenGeaendert, true);
        QCOMPARE(AutoDatei(), Ziel());
        QCOMPARE(Testwelt::DateiInhalt(Ziel()), Kleinbuch());
        QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
    }

    void GespeichertStehtErInDerDateiUndDieKopieGeht() {
        Oeffnen();
        SpeichernDatenbank3(Ziel());
        QCOMPARE(DatenGeaendert, false);
        QCOMPARE(Testwelt::DateiInhalt(Ziel()), Neuer());
        QCOMPARE(Rettungsdateien(), QStringList());
    }

    void WerWeiterArbeitetUndSpeichertWirdNichtMehrGefragt() {
        Oeffnen();
        Datenbank.Schueler[0].Name = QStringLiteral("Clara Bauer");
        SpeichernDatenbank3(Ziel());
        QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.beiseite")));
        RettungenAnbieten();
    }

    void WerNichtSpeichertWirdWiederGefragt() {
        Oeffnen();
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Spaeter);
        RettungAnbietenFuer(Ziel());
        QVERIFY(LadeDatenbank(Ziel()));
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Anna Bauer"));
        QCOMPARE(DatenGeaendert, false);
    }

    void NachEinemNeuenLadenDerDateiBleibtDieKopieAngeboten() {
        Oeffnen();
        QVERIFY(LadeDatenbank(Ziel()));
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Anna Bauer"));
        Datenbank.Schueler[0].Name = QStringLiteral("Clara Bauer");
        SpeichernDatenbank3(Ziel());
        QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
    }

    void UnterAnderemNamenGespeichertBleibtDieKopieAngeboten() {
        Oeffnen();
        SpeichernDatenbank3(Welt.Pfad(QStringLiteral("anderes.txt")));
        QCOMPARE(Testwelt::DateiInhalt(Ziel()), Kleinbuch());
        QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
    }

    void AuchBeimOeffnenWaehrendDerArbeit() {
        Lege(Kleinbuch(), Neuer());
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Erster);
        RettungAnbietenFuer(Ziel());
        QCOMPARE(AutoDatei(), Unbenannt);
        QVERIFY(LadeDatenbank(Ziel()));
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Berta Bauer"));
        QCOMPARE(DatenGeaendert, true);
    }

    void BeimStartWirdDasAngenommeneBuchDasGeladene() {
        AutoDateiSetzen(QStringLiteral("/anderes.txt"));
        Lege(Kleinbuch(), Neuer());
        Annehmen();
        QCOMPARE(AutoDatei(), Ziel());
    }

    void EinVerweisAufDieDateiBehaeltSeinenNamen() {
        const QString Verweis = Welt.Pfad(QStringLiteral("verweis.txt"));
        Lege(Kleinbuch(), Neuer());
        QVERIFY(QFile::link(Ziel(), Verweis));
        AutoDateiSetzen(Verweis);
        Annehmen();
        QCOMPARE(AutoDatei(), Verweis);
        QVERIFY(LadeDatenbank(Verweis));
        QCOMPARE(DatenGeaendert, true);
    }

    void NachDerNeuestenKopieWirdNichtAuchNachDerAelterenGefragt() {
        Lege(Kleinbuch(), Ersetzt(Kleinbuch(), QStringLiteral("Anna"), QStringLiteral("Alte")), 1);
        Lege(Kleinbuch(), Neuer(), 2);
        Annehmen();
        QVERIFY(LadeDatenbank(Ziel()));
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Berta Bauer"));
        QCOMPARE(Rettungsdateien().size(), 2);
    }

    void DieParameterdateiWirdGeschrieben() {
        Lege("alt", Parameterinhalt);
        Annehmen();
        QCOMPARE(Testwelt::DateiInhalt(Ziel()), Parameterinhalt);
        QCOMPARE(Rettungsdateien(), QStringList());
    }

    void DieFrageSagtDassErstDasSpeichernSchreibt() {
        const QString Zusatz = QStringLiteral(" In der Datei steht er erst, wenn Sie speichern.");
        for (const QByteArray& Inhalt : {Neuer(), Parameterinhalt}) {
            Lege(Kleinbuch(), Inhalt);
            Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Spaeter);
            RettungenAnbieten();
            QCOMPARE(Welt.Boxen.Gezeigt.last().Text.endsWith(Zusatz), Inhalt == Neuer());
        }
    }

    void FremdeSchuelerKommenAusDerDatei() {
        Lege(Kleinbuch(), Neuer());
        Annehmen();
        QVERIFY(LadeFremdSchueler(Ziel()));
        QCOMPARE(FremdSchueler[0].Name, QStringLiteral("Anna Bauer"));
        QVERIFY(LadeDatenbank(Ziel()));
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Berta Bauer"));
    }
};

TESTKLASSE(TestNeuererStand)

#include "tst_neuererstand.moc"
