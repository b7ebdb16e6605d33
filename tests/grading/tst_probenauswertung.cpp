#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "Massstab.h"
#include "core/Definitionen.h"
#include "core/Zahlen.h"
#include "grading/Probenauswertung.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// "12" is a row with 12 points, "12:3-" one that has the grade 3- already.
std::vector<Auswertungszeile> Zeilen(const QStringList& Texte) {
    std::vector<Auswertungszeile> Alle;
    for (const QString& Text : Texte)
        Alle.push_back({Text.section(u':', 0, 0), Text.section(u':', 1)});
    return Alle;
}

QString FarbeName(const std::optional<QRgb>& Farbe) {
    if (!Farbe)
        return u"gleich"_s;
    return QColor::fromRgb(*Farbe).name();
}

/// "3- #000000": new grade and colour; "gleich" for what stays as it was.
QStringList Ergebnisse(const Auswertung& Eine) {
    QStringList Texte;
    for (const Zeilenergebnis& Zeile : Eine.Zeilen)
        Texte.append((Zeile.Note ? *Zeile.Note : u"gleich"_s) + u' ' + FarbeName(Zeile.Farbe));
    return Texte;
}

QString Anzahlen(const Auswertung& Eine) {
    QStringList Texte;
    for (const qint16 Anzahl : Eine.NotenAnzahl)
        Texte.append(QString::number(Anzahl));
    return Texte.join(u' ');
}

/// "24=1 30=2": the half points that somebody reached.
QString Verteilung(const Auswertung& Eine) {
    QStringList Texte;
    for (int i = 0; i < Eine.PunkteVerteilung.size(); ++i)
        if (Eine.PunkteVerteilung[i] != 0)
            Texte.append(u"%1=%2"_s.arg(i).arg(Eine.PunkteVerteilung[i]));
    return Texte.join(u' ');
}

QString Schnitt(const Auswertung& Eine) {
    return ZahlFormat(Eine.Notenschnitt, u"0.00"_s);
}

const QString Ueblich = u"36;31;25;18;9"_s;

} // namespace

class TestProbenauswertung : public QObject {
    Q_OBJECT

    Testwelt Welt;

    Auswertung Bewertet(const QString& Gesamt, const QString& Grenzen, const QStringList& Texte) {
        return ProbeBewerten(Massstab(Gesamt, Grenzen), Zeilen(Texte), AktuelleNotenregeln());
    }
    /// The grade of a single student.
    QString Note(const QString& Gesamt, const QString& Grenzen, const QString& Punkte) {
        return Bewertet(Gesamt, Grenzen, {Punkte}).Zeilen.front().Note.value_or(u"gleich"_s);
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Datenbank.GrenznotenBerechnen = false;
    }
    void cleanup() { Welt.Aufraeumen(); }

    void PlausibilitaetVonGesamtpunktenUndGrenzen_data() {
        QTest::addColumn<QString>("Gesamt");
        QTest::addColumn<QString>("Grenzen");
        QTest::addColumn<int>("Noten");
        QTest::addColumn<bool>("Plausibel");
        QTest::newRow("usual") << u"40"_s << Ueblich << 6 << true;
        QTest::newRow("total 1 is the smallest") << u"1"_s << u"0,9;0,8;0,7;0,6;0,5"_s << 6 << true;
        QTest::newRow("total below 1") << u"0,99"_s << u"0,9;0,8;0,7;0,6;0,5"_s << 6 << false;
        QTest::newRow("total 200 is the largest") << u"200"_s << Ueblich << 6 << true;
        QTest::newRow("total above 200") << u"200,5"_s << Ueblich << 6 << false;
        QTest::newRow("total empty") << u""_s << Ueblich << 6 << false;
        QTest::newRow("total no number") << u"vierzig"_s << Ueblich << 6 << false;
        QTest::newRow("total with a point is no number") << u"40.5"_s << Ueblich << 6 << false;
        QTest::newRow("boundary equal to the total") << u"40"_s << u"40;31;25;18;9"_s << 6 << true;
        QTest::newRow("boundary above the total") << u"40"_s << u"40,5;31;25;18;9"_s << 6 << false;
        QTest::newRow("equal boundaries") << u"40"_s << u"40;40;30;20;10"_s << 6 << false;
        QTest::newRow("rising boundaries") << u"40"_s << u"30;31;25;18;9"_s << 6 << false;
        QTest::newRow("last boundary 0") << u"40"_s << u"36;31;25;18;0"_s << 6 << false;
        QTest::newRow("boundary negative") << u"40"_s << u"36;31;25;18;-1"_s << 6 << false;
        QTest::newRow("boundary empty") << u"40"_s << u"36;31;25;18;"_s << 6 << false;
        QTest::newRow("boundary no number") << u"40"_s << u"36;abc;25;18;9"_s << 6 << false;
        QTest::newRow("any fraction") << u"40"_s << u"36,25;31,1;25;18;9"_s << 6 << true;
        QTest::newRow("five grades ignore the fifth box") << u"40"_s << u"36;31;25;18;99"_s << 5 << true;
        QTest::newRow("five grades with the fifth box empty") << u"40"_s << u"36;31;25;18;"_s << 5 << true;
        QTest::newRow("five grades read the fourth") << u"40"_s << u"36;31;25;25;9"_s << 5 << false;
    }
    void PlausibilitaetVonGesamtpunktenUndGrenzen() {
        QFETCH(QString, Gesamt);
        QFETCH(QString, Grenzen);
        QFETCH(int, Noten);
        QFETCH(bool, Plausibel);
        QCOMPARE(GrenzenPruefen(Massstab(Gesamt, Grenzen), Noten).Plausibel, Plausibel);
        MaxNote = static_cast<qint16>(Noten);
        QCOMPARE(Bewertet(Gesamt, Grenzen, {}).Plausibel, Plausibel);
    }

    void NoteIstDieErsteGrenzeDieErreichtWird_data() {
        QTest::addColumn<QString>("Punkte");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("full marks") << u"40"_s << u"1"_s;
        QTest::newRow("on the boundary") << u"36"_s << u"1"_s;
        QTest::newRow("half a point below") << u"35,5"_s << u"2"_s;
        QTest::newRow("just below") << u"35,999"_s << u"2"_s;
        QTest::newRow("grade 3") << u"25"_s << u"3"_s;
        QTest::newRow("grade 4") << u"18"_s << u"4"_s;
        QTest::newRow("grade 5") << u"9"_s << u"5"_s;
        QTest::newRow("below the last boundary") << u"8,5"_s << u"6"_s;
        QTest::newRow("no points at all but a number") << u"0"_s << u"6"_s;
        QTest::newRow("minus zero is no minus") << u"-0"_s << u"6"_s;
        QTest::newRow("no number earns the lowest grade") << u"krank"_s << u"6"_s;
        QTest::newRow("a point is no decimal sign") << u"36.5"_s << u"6"_s;
        QTest::newRow("blanks around") << u" 36 "_s << u"1"_s;
        QTest::newRow("above the total, below 200") << u"55"_s << u"1"_s;
        QTest::newRow("199,5") << u"199,5"_s << u"1"_s;
        QTest::newRow("exactly 200 is skipped") << u"200"_s << u"gleich"_s;
        QTest::newRow("above 200 is skipped") << u"1000"_s << u"gleich"_s;
    }
    void NoteIstDieErsteGrenzeDieErreichtWird() {
        QFETCH(QString, Punkte);
        QTEST(Note(u"40"_s, Ueblich, Punkte), "Erwartet");
    }

    void FuenfNotenHabenVierGrenzen() {
        MaxNote = 5;
        QCOMPARE(Note(u"40"_s, Ueblich, u"18"_s), u"4"_s);
        QCOMPARE(Note(u"40"_s, Ueblich, u"9"_s), u"5"_s);
        QCOMPARE(Note(u"40"_s, Ueblich, u"0"_s), u"5"_s);
    }

    void GrenznotenMitAbstandZwei_data() {
        QTest::addColumn<QString>("Punkte");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("distance hit exactly: no minus") << u"27"_s << u"3"_s;
        QTest::newRow("just below the distance: minus") << u"26,5"_s << u"3-"_s;
        QTest::newRow("on the boundary: minus") << u"25"_s << u"3-"_s;
        QTest::newRow("distance to the better grade hit exactly: plus") << u"29"_s << u"3+"_s;
        QTest::newRow("just below: no plus") << u"28,5"_s << u"3"_s;
        QTest::newRow("best grade never gets a plus") << u"40"_s << u"1"_s;
        QTest::newRow("best grade may get a minus") << u"37"_s << u"1-"_s;
        QTest::newRow("lowest grade gets a minus below 1 point") << u"0,5"_s << u"6-"_s;
        QTest::newRow("lowest grade from 1 point on: none") << u"1"_s << u"6"_s;
        QTest::newRow("lowest grade may get a plus") << u"7"_s << u"6+"_s;
    }
    void GrenznotenMitAbstandZwei() {
        QFETCH(QString, Punkte);
        Datenbank.GrenznotenBerechnen = true;
        Datenbank.GrenznotenPunkteAbstand = 2;
        QTEST(Note(u"40"_s, Ueblich, Punkte), "Erwartet");
    }

    void SchmalesBandGibtBeideZeichenMinusZuerst() {
        Datenbank.GrenznotenBerechnen = true;
        Datenbank.GrenznotenPunkteAbstand = 2;
        const QString Eng = u"36;28;25;18;9"_s;
        QCOMPARE(Note(u"40"_s, Eng, u"26"_s), u"3-+"_s);
    }

    void GrenznotenAusHaengtNichtsAn() {
        Datenbank.GrenznotenPunkteAbstand = 2;
        QCOMPARE(Note(u"40"_s, Ueblich, u"25"_s), u"3"_s);
    }

    void AbstandWirdInEinfacherGenauigkeitGerechnet() {
        // As singles 25 + 0.1 is 25.1; in double precision the two differ and "-" would be appended.
        Datenbank.GrenznotenBerechnen = true;
        Datenbank.GrenznotenPunkteAbstand = 0.1F;
        QCOMPARE(Note(u"40"_s, Ueblich, u"25,1"_s), u"3"_s);
    }

    void OhnePunkteInDerProbeHatNiemandEineNote() {
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {u":2"_s, u" :ne"_s, u":"_s, u":1"_s});
        QCOMPARE(Ergebnisse(Eine), QStringList(4, u" gleich"_s));
        QCOMPARE(Anzahlen(Eine), u"0 0 0 0 0 0 0"_s);
        QCOMPARE(Schnitt(Eine), u"0,00"_s);
        QVERIFY(Eine.Plausibel);
    }

    void OhnePunkteWirdDiePlausibilitaetTrotzdemGemeldet() {
        QVERIFY(!Bewertet(QString(), Ueblich, {u":2"_s}).Plausibel);
    }

    void EineProbeOhneTeilnehmerHatKeinErgebnis() {
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {});
        QCOMPARE(Eine.Zeilen.size(), std::size_t(0));
        QCOMPARE(Schnitt(Eine), u"0,00"_s);
    }

    void WerKeinePunkteHatBekommtNeInDunkelgruen() {
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {u"36"_s, u":3"_s, u"  :1"_s});
        QCOMPARE(Ergebnisse(Eine), (QStringList{u"1 #000000"_s, u"ne #008800"_s, u"ne #008800"_s}));
        QCOMPARE(Anzahlen(Eine), u"0 1 0 0 0 0 0"_s);
        QCOMPARE(Verteilung(Eine), u"72=1"_s);
        QCOMPARE(Schnitt(Eine), u"1,00"_s);
    }

    void NegativePunkteLassenDieNoteStehenUndZaehlenSie() {
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {u"-36:4"_s, u"36"_s, u"-0,1:2+"_s});
        QCOMPARE(Ergebnisse(Eine), (QStringList{u"gleich #ff0000"_s, u"1 #000000"_s, u"gleich #ff0000"_s}));
        QCOMPARE(Anzahlen(Eine), u"0 1 1 0 1 0 0"_s);
        QCOMPARE(Verteilung(Eine), u"72=1"_s);
        QCOMPARE(Schnitt(Eine), u"2,33"_s);
    }

    void VonHandGesetzterTextOhneZahlGehtDemSchnittVerloren() {
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {u"-5:krank"_s, u"-5:0"_s, u"31"_s});
        QCOMPARE(Anzahlen(Eine), u"2 0 1 0 0 0 0"_s);
        QCOMPARE(Schnitt(Eine), u"2,00"_s);
    }

    void GesamtpunktzahlLeer_HandnotenZaehlenAndereBleiben() {
        const Auswertung Eine = Bewertet(QString(), Ueblich, {u"-5:3"_s, u"36:2"_s, u":1"_s});
        QVERIFY(!Eine.Plausibel);
        QCOMPARE(Ergebnisse(Eine), (QStringList{u"gleich #ff0000"_s, u"gleich gleich"_s, u"ne #008800"_s}));
        QCOMPARE(Anzahlen(Eine), u"0 0 0 1 0 0 0"_s);
        QCOMPARE(Verteilung(Eine), QString());
        QCOMPARE(Schnitt(Eine), u"3,00"_s);
    }

    void ZweihundertPunkteWerdenAuchBeiGesamtZweihundertUebergangen() {
        const Auswertung Eine = Bewertet(u"200"_s, u"180;150;120;90;50"_s, {u"200:4"_s, u"199,5"_s});
        QCOMPARE(Ergebnisse(Eine), (QStringList{u"gleich gleich"_s, u"1 #000000"_s}));
        QCOMPARE(Anzahlen(Eine), u"0 1 0 0 0 0 0"_s);
    }

    void PunkteUeberGesamtHabenIhrEigenesFach() {
        QCOMPARE(Verteilung(Bewertet(u"40"_s, Ueblich, {u"55"_s, u"40,5"_s})), u"81=1 110=1"_s);
    }

    void PunkteVerteilungRundetZurGeradenZahl_data() {
        QTest::addColumn<QString>("Punkte");
        QTest::addColumn<QString>("Fach");
        QTest::newRow("whole") << u"12"_s << u"24=1"_s;
        QTest::newRow("half") << u"12,5"_s << u"25=1"_s;
        QTest::newRow("quarter: 24,5 to the even 24") << u"12,25"_s << u"24=1"_s;
        QTest::newRow("three quarters: 25,5 to the even 26") << u"12,75"_s << u"26=1"_s;
        QTest::newRow("a little more than a quarter") << u"12,3"_s << u"25=1"_s;
        QTest::newRow("zero") << u"0"_s << u"0=1"_s;
        QTest::newRow("close to 200 reaches the last bin") << u"199,9"_s << u"400=1"_s;
    }
    void PunkteVerteilungRundetZurGeradenZahl() {
        QFETCH(QString, Punkte);
        QTEST(Verteilung(Bewertet(u"40"_s, Ueblich, {Punkte})), "Fach");
    }

    void NotenAnzahlRundetZurGeradenZahl_data() {
        QTest::addColumn<QString>("Note");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("2,5 counts as 2") << u"2-"_s << u"0 0 1 0 0 0 0"_s;
        QTest::newRow("3,5 counts as 4") << u"3-"_s << u"0 0 0 0 1 0 0"_s;
        QTest::newRow("1,5 counts as 2") << u"1-"_s << u"0 0 1 0 0 0 0"_s;
        QTest::newRow("0,5 counts as 0") << u"1+"_s << u"1 0 0 0 0 0 0"_s;
        QTest::newRow("6,5 counts as 6") << u"6-"_s << u"0 0 0 0 0 0 1"_s;
        QTest::newRow("both signs cancel") << u"3-+"_s << u"0 0 0 1 0 0 0"_s;
    }
    void NotenAnzahlRundetZurGeradenZahl() {
        QFETCH(QString, Note);
        Datenbank.GrenznotenBeruecksichtigen = true;
        Datenbank.GrenznotenNotenAbstand = 0.5F;
        QTEST(Anzahlen(Bewertet(u"40"_s, Ueblich, {u"-1:"_s + Note})), "Erwartet");
    }

    void SchnittNimmtGanzeNoten() {
        Datenbank.GrenznotenBerechnen = true;
        Datenbank.GrenznotenPunkteAbstand = 2;
        Datenbank.GrenznotenBeruecksichtigen = true;
        // 3- and 3+ both count as 3.
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {u"25"_s, u"30"_s, u"37"_s});
        QCOMPARE(Ergebnisse(Eine), (QStringList{u"3- #000000"_s, u"3+ #000000"_s, u"1- #000000"_s}));
        QCOMPARE(Schnitt(Eine), u"2,33"_s);
    }

    void BeiFuenfNotenFehltDieSechsImSchnitt() {
        MaxNote = 5;
        const Auswertung Eine = Bewertet(u"40"_s, Ueblich, {u"-1:6"_s, u"36"_s});
        QCOMPARE(Schnitt(Eine), u"1,00"_s);
    }

    void ZweiteBewertungGibtDasselbe() {
        std::vector<Auswertungszeile> Texte = Zeilen({u"36"_s, u""_s, u"-3:2"_s, u"12"_s});
        const Probenmassstab Mass = Massstab(u"40"_s, Ueblich);
        const Auswertung Erste = ProbeBewerten(Mass, Texte, AktuelleNotenregeln());
        for (std::size_t i = 0; i < Texte.size(); ++i)
            Texte[i].Note = Erste.Zeilen[i].Note.value_or(Texte[i].Note);
        const Auswertung Zweite = ProbeBewerten(Mass, Texte, AktuelleNotenregeln());
        QCOMPARE(Ergebnisse(Zweite), Ergebnisse(Erste));
        QCOMPARE(Anzahlen(Zweite), Anzahlen(Erste));
    }

    void RegelnKommenAusNotendatenbankUndEinstellung() {
        MaxNote = 5;
        Datenbank.GrenznotenBerechnen = true;
        Datenbank.GrenznotenPunkteAbstand = 1.5F;
        const Notenregeln Regeln = AktuelleNotenregeln();
        QCOMPARE(Regeln.MaxNote, 5);
        QCOMPARE(Regeln.GrenznotenBerechnen, true);
        QCOMPARE(Regeln.GrenznotenPunkteAbstand, 1.5F);
    }
};

TESTKLASSE(TestProbenauswertung)
#include "tst_probenauswertung.moc"
