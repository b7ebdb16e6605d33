#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Definitionen.h"
#include "grading/Probentabelle.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString Buch = u"Klasse 7a\nFach 50000 7a Mathematik\nFach 50001 7a Physik\n"
                     "Schueler 10000 7a Berger Anna\nSchueler 10001 7a Cramer Bodo\n"
                     "Note 10000 50000 P1=36 N1=1\nNote 10001 50000 P1=20 N1=4 P2=7\nNote 10001 50001 P1=3\n"
                     "ZSchueler 50000 1 P=9 N=5 Gast Emil\nZSchueler 50000 2 P=1 Gast Ute\n"_s;

QStringList Texte(const std::vector<Probenteilnehmer>& Teilnehmer) {
    QStringList Alle;
    for (const Probenteilnehmer& Einer : Teilnehmer)
        Alle.append(u"%1 %2|%3|%4"_s.arg(Einer.ID).arg(Einer.Name, Einer.Punkte, Einer.Note));
    return Alle;
}

} // namespace

class TestProbentabelle : public QObject {
    Q_OBJECT

    Testwelt Welt;

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        TestbuchLaden(Buch);
    }
    void cleanup() { Welt.Aufraeumen(); }

    void LetzterRecordStehtObenGaesteVorSchuelern() {
        QCOMPARE(
            Texte(TeilnehmerDerProbe(50000, 1)),
            (QStringList{u"0 Gast Emil|9|5"_s, u"10001 Cramer Bodo|20|4"_s, u"10000 Berger Anna|36|1"_s}));
        QCOMPARE(Texte(TeilnehmerDerProbe(50000, 2)),
                 (QStringList{u"1 Gast Ute|1|"_s, u"10001 Cramer Bodo|7|"_s, u"10000 Berger Anna||"_s}));
    }

    void WerNichtTeilnimmtFehlt() {
        Datenbank.Noten[0].Teilnahme = u"nein"_s;
        Datenbank.Noten[1].Teilnahme = u"Ja"_s;
        QCOMPARE(Texte(TeilnehmerDerProbe(50000, 1)), QStringList(u"0 Gast Emil|9|5"_s));
    }

    void ZeileOhneSchuelerHatKeinenNamen() {
        Datenbank.AnzSchueler = 1;
        QCOMPARE(Texte(TeilnehmerDerProbe(50000, 1)).at(1), u"10001 |20|4"_s);
    }

    void DerErsteSchuelerMitDerIDGibtDenNamen() {
        TestbuchLaden(u"Schueler 10001 7a Doppelt Uwe"_s);
        QCOMPARE(Texte(TeilnehmerDerProbe(50000, 1)).at(1), u"10001 Cramer Bodo|20|4"_s);
    }

    void ListeStehtNochBisSichEtwasAendert_data() {
        using Eingriff = void (*)();
        QTest::addColumn<Eingriff>("Aendern");
        QTest::addColumn<bool>("Steht");
        const auto Reihe = [](const char* Name, Eingriff Tun, bool Steht) {
            QTest::newRow(Name) << Tun << Steht;
        };
        Reihe(
            "nothing", [] {}, true);
        Reihe(
            "points", [] { Datenbank.Noten[0].P[1] = u"35"_s; }, false);
        Reihe(
            "grade", [] { Datenbank.Noten[0].N[1] = u"2"_s; }, false);
        Reihe(
            "points of another test", [] { Datenbank.Noten[0].P[2] = u"35"_s; }, true);
        Reihe(
            "points in another subject", [] { Datenbank.Noten[2].P[1] = u"35"_s; }, true);
        Reihe(
            "name", [] { Datenbank.Schueler[0].Name = u"Berger Ina"_s; }, false);
        Reihe(
            "ID of the student", [] { Datenbank.Schueler[0].ID = 10009; }, false);
        Reihe(
            "student gone", [] { Datenbank.AnzSchueler = 1; }, false);
        Reihe(
            "participation ended", [] { Datenbank.Noten[0].Teilnahme = u"nein"_s; }, false);
        Reihe(
            "row gone", [] { Datenbank.AnzNoten = 1; }, false);
        Reihe(
            "row new", [] { TestbuchLaden(u"Note 10000 50000"_s); }, false);
        Reihe(
            "guest gone", [] { Datenbank.AnzZSchueler = 0; }, false);
        Reihe(
            "guest new", [] { TestbuchLaden(u"ZSchueler 50000 1 Gast Ida"_s); }, false);
        Reihe(
            "guest of another test", [] { TestbuchLaden(u"ZSchueler 50000 3 Gast Ida"_s); }, true);
        Reihe(
            "points of the guest", [] { Datenbank.ZSchueler[0].Punkte = u"8"_s; }, false);
        Reihe(
            "grade of the guest", [] { Datenbank.ZSchueler[0].Note = u"6"_s; }, false);
        Reihe(
            "name of the guest", [] { Datenbank.ZSchueler[0].Name = u"Gast Eva"_s; }, false);
    }
    void ListeStehtNochBisSichEtwasAendert() {
        using Eingriff = void (*)();
        QFETCH(Eingriff, Aendern);
        const std::vector<Probenteilnehmer> Liste = TeilnehmerDerProbe(50000, 1);
        Aendern();
        QTEST(TeilnehmerStehenNoch(Liste, 50000, 1), "Steht");
    }

    void HandPunkteSindDerNegativeFruehereWert_data() {
        QTest::addColumn<QString>("Punkte");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("points") << u"12"_s << u"-12"_s;
        QTest::newRow("half points") << u"12,5"_s << u"-12,5"_s;
        QTest::newRow("negative already") << u"-7"_s << u"-7"_s;
        QTest::newRow("none") << QString() << u"-0,1"_s;
        QTest::newRow("zero") << u"0"_s << u"-0,1"_s;
        QTest::newRow("no number") << u"krank"_s << u"-0,1"_s;
    }
    void HandPunkteSindDerNegativeFruehereWert() {
        QFETCH(QString, Punkte);
        QTEST(HandPunkte(Punkte), "Erwartet");
    }

    void GleicheTexteSetzenDatenGeaendertNicht() {
        QString Punkte;
        QCOMPARE(PunkteAendern(10000, 50000, 1, u"36"_s), false);
        QCOMPARE(NoteVonHandSetzen(10000, 50000, 1, u"1"_s, Punkte), false);
        TeilnehmerNamenAendern(10000, u"Berger Anna"_s);
        TeilnehmerNamenAendern(0, u"Gast Emil"_s);
        NotenSpeichern({10000, 10001, 0}, {{u"1"_s, {}}, {{}, {}}, {u"5"_s, {}}}, 50000, 1);
        QCOMPARE(DatenGeaendert, false);
    }

    void NotenSpeichernTrifftSchuelerUndGaeste() {
        NotenSpeichern({10000, 10001, 0}, {{u"2"_s, {}}, {{}, {}}, {u"6"_s, {}}}, 50000, 1);
        QCOMPARE(Datenbank.Noten[0].N[1], u"2"_s);
        QCOMPARE(Datenbank.Noten[1].N[1], u"4"_s);
        QCOMPARE(Datenbank.ZSchueler[0].Note, u"6"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void UnbekannteIDsAendernNichts() {
        QString Punkte;
        QCOMPARE(PunkteAendern(10777, 50000, 1, u"1"_s), false);
        QCOMPARE(PunkteAendern(7, 50000, 1, u"1"_s), false);
        QCOMPARE(NoteVonHandSetzen(-1, 50000, 1, u"1"_s, Punkte), false);
        ZSchuelerEntfernen(2);
        ZSchuelerEntfernen(-1);
        QCOMPARE(Datenbank.AnzZSchueler, qint16(2));
        QCOMPARE(DatenGeaendert, false);
    }

    void EntfernterGastLaesstSpaetereNachruecken() {
        ZSchuelerEntfernen(0);
        QCOMPARE(Datenbank.AnzZSchueler, qint16(1));
        QCOMPARE(Datenbank.ZSchueler[0].Name, u"Gast Ute"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void LetzterMoeglicherGastIstKeinSchueler() {
        QVERIFY(IstZSchueler(0));
        QVERIFY(IstZSchueler(1000));
        QVERIFY(!IstZSchueler(10000));
    }
};

TESTKLASSE(TestProbentabelle)
#include "tst_probentabelle.moc"
