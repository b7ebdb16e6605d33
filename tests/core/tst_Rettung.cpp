#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "Rettungsprobe.h"

#include "core/Dateischutz.h"
#include "core/Orte.h"
#include "core/Rettung.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <sys/file.h>

class TestRettung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Welt.Aufraeumen(); }

    void DieLageFolgtDerTabelle_data();
    void DieLageFolgtDerTabelle();
    void GleicheKopienGehenOhneFrage();
    void DerNeuereStandWirdAufWunschUebernommen();
    void DerAlteStandBleibtUndDieKopieWirdNichtMehrAngeboten();
    void SpaeterEntscheidenLaesstAllesWieEsIst_data();
    void SpaeterEntscheidenLaesstAllesWieEsIst();
    void EineAbgebrocheneDateiWirdWiederhergestellt();
    void DieAngebotenenKnoepfeUndIhreVorgabe_data();
    void DieAngebotenenKnoepfeUndIhreVorgabe();
    void BeiAnderemInhaltWirdDieKopieNurAndernortsGespeichert();
    void FehltDieDateiWirdUnterAnderemNamenGespeichert();
    void EineVorhandeneDateiWirdNurNachFrageErsetzt();
    void EineDefekteKopieWirdBeiseitegelegtUndVermerkt_data();
    void EineDefekteKopieWirdBeiseitegelegtUndVermerkt();
    void EineFertigeAberNichtUmbenannteKopieWirdAngeboten();
    void VonMehrerenKopienKommtDieNeuesteZuerst();
    void DieAntwortAufDieErsteErledigtDieGleicheZweite();
    void VorDemOeffnenWirdNurFuerDieseDateiGefragt();
    void KopienEinesLaufendenProgrammsBleibenUnberuehrt();
    void EinSymbolischerVerweisAlsKopieWirdNichtBefolgt();
    void PfadUndZeitenStehenInDerFrage();
    void OhneZustandsordnerWirdNichtsGefragt();
    void EinGescheitertesUebernehmenBehaeltDieKopie();

  private:
    QString Ziel() const { return Welt.Pfad(QStringLiteral("buch.txt")); }
    QByteArray Kopiebytes(const QByteArray& Inhalt, const QString& Name = QStringLiteral("buch.txt")) const;
    void Lege(const QByteArray& Zielinhalt, const QByteArray& Kopieinhalt = NeuerStand);

    Testwelt Welt;
};

void TestRettung::init() {
    Welt.Herstellen();
    Zustandsverzeichnis();
}

QByteArray TestRettung::Kopiebytes(const QByteArray& Inhalt, const QString& Name) const {
    Rettungskopf Kopf;
    Kopf.Ziel = QFile::encodeName(QFileInfo(Welt.Ordner()).canonicalFilePath() + u'/' + Name);
    Kopf.Inhalt = MarkeVon(Inhalt);
    Kopf.Vorher = MarkeVon(AlterStand);
    Kopf.Zeit = QDateTime(QDate(2003, 10, 12), QTime(10, 15));
    return RettungskopfBytes(Kopf) + Inhalt;
}

/// A target and one rescue copy for it.
void TestRettung::Lege(const QByteArray& Zielinhalt, const QByteArray& Kopieinhalt) {
    Welt.DateiAnlegen(QStringLiteral("buch.txt"), Zielinhalt);
    Welt.DateiAnlegen(QStringLiteral("zustand/r.1.rescue"), Kopiebytes(Kopieinhalt));
}

void TestRettung::DieLageFolgtDerTabelle_data() {
    QTest::addColumn<QByteArray>("Zielinhalt");
    QTest::addColumn<Rettungslage>("Lage");
    QTest::newRow("gleich") << NeuerStand << Rettungslage::Gleich;
    QTest::newRow("wie vorher") << AlterStand << Rettungslage::Vorher;
    QTest::newRow("leer") << QByteArray() << Rettungslage::Abgebrochen;
    QTest::newRow("ein Anfang") << NeuerStand.left(7) << Rettungslage::Abgebrochen;
    QTest::newRow("fast ganz") << NeuerStand.chopped(1) << Rettungslage::Abgebrochen;
    QTest::newRow("ein Anfang und Nullen")
        << NeuerStand.left(7) + QByteArray(9, '\0') << Rettungslage::Abgebrochen;
    QTest::newRow("nur Nullen") << QByteArray(NeuerStand.size(), '\0') << Rettungslage::Abgebrochen;
    QTest::newRow("mehr Nullen als Inhalt")
        << QByteArray(NeuerStand.size() + 1, '\0') << Rettungslage::Anders;
    QTest::newRow("ganz und noch mehr") << NeuerStand + "x" << Rettungslage::Anders;
    QTest::newRow("Nullen und dann etwas") << QByteArray(3, '\0') + "x" << Rettungslage::Anders;
    QTest::newRow("anderes") << QByteArray("von anderswo") << Rettungslage::Anders;
}

void TestRettung::DieLageFolgtDerTabelle() {
    QFETCH(QByteArray, Zielinhalt);
    QFETCH(Rettungslage, Lage);
    Lege(Zielinhalt);
    const auto Funde = RettungenSuchen();
    QCOMPARE(Funde.size(), size_t(1));
    QCOMPARE(Funde.front().Lage, Lage);
    QCOMPARE(Funde.front().Pfad, QFile::encodeName(Welt.Pfad(QStringLiteral("zustand/r.1.rescue"))));
}

void TestRettung::GleicheKopienGehenOhneFrage() {
    Lege(NeuerStand);
    RettungenAnbieten();
    QCOMPARE(Rettungsdateien(), QStringList());
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
}

void TestRettung::DerNeuereStandWirdAufWunschUebernommen() {
    Lege(AlterStand);
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestRettung::DerAlteStandBleibtUndDieKopieWirdNichtMehrAngeboten() {
    Lege(AlterStand);
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Zweiter);
    Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Rettungskopie bleibt erhalten als\n"));
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), AlterStand);
    QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.beiseite")));
    QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("zustand/r.1.beiseite"))),
             Kopiebytes(NeuerStand));
    RettungenAnbieten();
}

void TestRettung::SpaeterEntscheidenLaesstAllesWieEsIst_data() {
    QTest::addColumn<QByteArray>("Zielinhalt");
    QTest::newRow("wie vorher") << AlterStand;
    QTest::newRow("abgebrochen") << NeuerStand.left(5);
    QTest::newRow("anders") << QByteArray("anders");
}

void TestRettung::SpaeterEntscheidenLaesstAllesWieEsIst() {
    QFETCH(QByteArray, Zielinhalt);
    Lege(Zielinhalt);
    for (int Start = 1; Start <= 2; ++Start) {
        Welt.Boxen.ErwarteAuswahl(QString(), Spaeter);
        RettungenAnbieten();
        QCOMPARE(Testwelt::DateiInhalt(Ziel()), Zielinhalt);
        QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
    }
}

void TestRettung::EineAbgebrocheneDateiWirdWiederhergestellt() {
    Lege(NeuerStand.left(12));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei\n"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Rettungsdateien(), QStringList());
}

/// Notes the question and answers as closing the box does.
class Merkende : public Meldungsdienst {
  public:
    Antwort Zeigen(const Meldungstext& /*Meldung*/) override { return Antwort::Ok; }
    int Waehlen(const Auswahlfrage& Frage) override {
        Fragen.append(Frage);
        return static_cast<int>(Frage.Knoepfe.size()) - 1;
    }
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& /*Wunsch*/) override { return {}; }
    std::optional<Dateiwahl> Speichern(const Dateiwunsch& /*Wunsch*/) override { return {}; }
    QList<Auswahlfrage> Fragen;
};

void TestRettung::DieAngebotenenKnoepfeUndIhreVorgabe_data() {
    QTest::addColumn<QByteArray>("Zielinhalt");
    QTest::addColumn<QStringList>("Knoepfe");
    QTest::addColumn<int>("Vorgabe");
    const QString Zuletzt = QStringLiteral("Später entscheiden");
    QTest::newRow("wie vorher") << AlterStand
                                << QStringList{QStringLiteral("Neueren Stand übernehmen"),
                                               QStringLiteral("Alten Stand behalten"), Zuletzt}
                                << Spaeter;
    QTest::newRow("abgebrochen") << NeuerStand.left(3)
                                 << QStringList{QStringLiteral("Wiederherstellen"),
                                                QStringLiteral("Datei so lassen"), Zuletzt}
                                 << Erster;
    QTest::newRow("anders") << QByteArray("anders")
                            << QStringList{QStringLiteral("Rettungskopie speichern unter..."),
                                           QStringLiteral("Nicht mehr anbieten"), Zuletzt}
                            << Spaeter;
}

void TestRettung::DieAngebotenenKnoepfeUndIhreVorgabe() {
    QFETCH(QByteArray, Zielinhalt);
    QFETCH(QStringList, Knoepfe);
    QFETCH(int, Vorgabe);
    Lege(Zielinhalt);
    Merkende Dienst;
    MeldungsdienstSetzen(&Dienst);
    RettungenAnbieten();
    MeldungsdienstSetzen(&Welt.Boxen);
    QCOMPARE(Dienst.Fragen.size(), 1);
    QCOMPARE(Dienst.Fragen.first().Knoepfe, Knoepfe);
    QCOMPARE(Dienst.Fragen.first().Vorgabe, Vorgabe);
    QCOMPARE(Dienst.Fragen.first().Titel, QStringLiteral("Rettungskopie gefunden"));
}

void TestRettung::BeiAnderemInhaltWirdDieKopieNurAndernortsGespeichert() {
    Lege("von anderswo");
    const QString Neuer = Welt.Pfad(QStringLiteral("gerettet.txt"));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Zur Datei\n"), Erster);
    Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), Dateiwahl{Neuer, 1});
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Neuer), NeuerStand);
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), QByteArray("von anderswo"));
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestRettung::FehltDieDateiWirdUnterAnderemNamenGespeichert() {
    Lege(AlterStand);
    QFile::remove(Ziel());
    const QString Neuer = Welt.Pfad(QStringLiteral("gerettet.txt"));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei\n"), Erster);
    Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), Dateiwahl{Neuer, 1});
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Neuer), NeuerStand);
    QVERIFY(!QFile::exists(Ziel()));
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestRettung::EineVorhandeneDateiWirdNurNachFrageErsetzt() {
    Lege("von anderswo");
    const QString Neuer = Welt.DateiAnlegen(QStringLiteral("andere.txt"), "gehoert jemandem");
    const QString Frage = QStringLiteral("Soll die bereits existierende Datei %1 ersetzt werden?").arg(Neuer);
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Zur Datei\n"), Erster);
    Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), Dateiwahl{Neuer, 1});
    Welt.Boxen.ErwarteFrage(Frage, Antwort::Nein);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Neuer), QByteArray("gehoert jemandem"));
    QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
}

void TestRettung::EineDefekteKopieWirdBeiseitegelegtUndVermerkt_data() {
    QTest::addColumn<QString>("Name");
    QTest::addColumn<QByteArray>("Bytes");
    const QByteArray Ganz = RettungskopfBytes({}) + "Inhalt";
    QTest::newRow("leer") << QStringLiteral("r.3.tmp") << QByteArray();
    QTest::newRow("abgebrochen") << QStringLiteral("r.3.tmp") << Ganz.left(40);
    QTest::newRow("beschaedigt") << QStringLiteral("r.3.rescue") << Ganz;
}

void TestRettung::EineDefekteKopieWirdBeiseitegelegtUndVermerkt() {
    QFETCH(QString, Name);
    QFETCH(QByteArray, Bytes);
    Welt.DateiAnlegen(QStringLiteral("zustand/") + Name, Bytes);
    RettungenAnbieten();
    QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.3.defekt")));
    QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("zustand/r.3.defekt"))), Bytes);
    QVERIFY(Testwelt::DateiInhalt(Programmverzeichnis() + QStringLiteral("/Fehlermeldungen.txt"))
                .contains("r.3.defekt"));
}

void TestRettung::EineFertigeAberNichtUmbenannteKopieWirdAngeboten() {
    Welt.DateiAnlegen(QStringLiteral("buch.txt"), AlterStand);
    Welt.DateiAnlegen(QStringLiteral("zustand/r.1.tmp"), Kopiebytes(NeuerStand));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestRettung::VonMehrerenKopienKommtDieNeuesteZuerst() {
    Lege(QByteArray(), "erster Versuch");
    Welt.DateiAnlegen(QStringLiteral("zustand/r.9.rescue"), Kopiebytes("neunter Versuch"));
    Welt.DateiAnlegen(QStringLiteral("zustand/r.10.rescue"), Kopiebytes("zehnter Versuch"));
    const auto Funde = RettungenSuchen();
    QCOMPARE(Funde.size(), size_t(3));
    QVERIFY(Funde[0].Pfad.endsWith("/r.10.rescue"));
    QVERIFY(Funde[1].Pfad.endsWith("/r.9.rescue"));
    QVERIFY(Funde[2].Pfad.endsWith("/r.1.rescue"));
}

void TestRettung::DieAntwortAufDieErsteErledigtDieGleicheZweite() {
    Lege(NeuerStand.left(4));
    Welt.DateiAnlegen(QStringLiteral("zustand/r.2.rescue"), Kopiebytes(NeuerStand));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei\n"), Erster);
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestRettung::VorDemOeffnenWirdNurFuerDieseDateiGefragt() {
    Lege(AlterStand);
    Welt.DateiAnlegen(QStringLiteral("anderes.txt"), AlterStand);
    Welt.DateiAnlegen(QStringLiteral("zustand/r.2.rescue"),
                      Kopiebytes(NeuerStand, QStringLiteral("anderes.txt")));
    const QString Verweis = Welt.Pfad(QStringLiteral("verweis.txt"));
    QVERIFY(QFile::link(Ziel(), Verweis));
    Welt.Boxen.ErwarteAuswahl(QStringLiteral("Der letzte Stand der Datei"), Erster);
    RettungAnbietenFuer(Verweis);
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), NeuerStand);
    QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.2.rescue")));
}

void TestRettung::KopienEinesLaufendenProgrammsBleibenUnberuehrt() {
    Lege(NeuerStand);
    QFile Gesperrte(Welt.Pfad(QStringLiteral("zustand/r.1.rescue")));
    QVERIFY(Gesperrte.open(QIODevice::ReadOnly));
    QCOMPARE(::flock(Gesperrte.handle(), LOCK_EX | LOCK_NB), 0);
    RettungenAnbieten();
    QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
}

void TestRettung::EinSymbolischerVerweisAlsKopieWirdNichtBefolgt() {
    const QString Fremde = Welt.DateiAnlegen(QStringLiteral("fremd"), Kopiebytes(NeuerStand));
    Welt.DateiAnlegen(QStringLiteral("buch.txt"), AlterStand);
    QVERIFY(QFile::link(Fremde, Welt.Pfad(QStringLiteral("zustand/r.1.rescue"))));
    RettungenAnbieten();
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), AlterStand);
}

void TestRettung::PfadUndZeitenStehenInDerFrage() {
    Lege("von anderswo");
    Welt.Boxen.ErwarteAuswahl(QString(), Spaeter);
    RettungenAnbieten();
    const QString Text = Welt.Boxen.Gezeigt.first().Text;
    QVERIFY2(Text.contains(QFileInfo(Ziel()).canonicalFilePath()), qPrintable(Text));
    QVERIFY2(Text.contains(QStringLiteral("am 12.10.2003, 10:15 Uhr")), qPrintable(Text));
    QVERIFY2(Text.contains(QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy"))), qPrintable(Text));
}

void TestRettung::OhneZustandsordnerWirdNichtsGefragt() {
    QDir(Zustandsverzeichnis()).removeRecursively();
    RettungenAnbieten();
    int Fehler = -1;
    QCOMPARE(RettungenSuchen(&Fehler).size(), size_t(0));
    QCOMPARE(Fehler, 0);
}

void TestRettung::EinGescheitertesUebernehmenBehaeltDieKopie() {
    Lege(AlterStand);
    const auto Funde = RettungenSuchen();
    QCOMPARE(Funde.size(), size_t(1));
    Welt.DateiAnlegen(QStringLiteral("buch.txt"), "inzwischen anderswo");
    const auto Fehler = RettungUebernehmen(Funde.front());
    QVERIFY(Fehler.has_value());
    QCOMPARE(Testwelt::DateiInhalt(Ziel()), QByteArray("inzwischen anderswo"));
    QCOMPARE(Rettungsdateien(), QStringList(QStringLiteral("r.1.rescue")));
}

TESTKLASSE(TestRettung)
#include "tst_Rettung.moc"
