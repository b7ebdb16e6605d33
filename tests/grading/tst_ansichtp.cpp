#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/FktSpeziell.h"
#include "grading/AnsichtP.h"
#include "grading/Bildfeld.h"
#include "grading/Grenzverteilung.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// Adler takes no part; the guest belongs to the first test only.
const QString Buch = u"Klasse 7a\n"
                     "Fach 50000 7a Mathematik\n"
                     "Fach 50001 7a Physik\n"
                     "Probe 50000 1 Gesamt=40 Grenzen=36;31;25;18;9 Thema=Bruchrechnen Datum=1.10.2003\n"
                     "Probe 50000 2 Gesamt=20 Grenzen=18;15;12;9;5\n"
                     "Schueler 10000 7a Berger Anna Maria\n"
                     "Schueler 10001 7a Cramer Bodo\n"
                     "Schueler 10002 7a adler Carl\n"
                     "Schueler 10003 7a Adler Dora\n"
                     "Note 10000 50000 P1=36\n"
                     "Note 10001 50000 P1=20\n"
                     "Note 10002 50000\n"
                     "Note 10003 50000 Teilnahme=nein\n"
                     "ZSchueler 50000 1 P=9 Gast Emil\n"_s;

constexpr int SchuelerA = 10000;
constexpr int SchuelerB = 10001;
constexpr int SchuelerC = 10002;

} // namespace

/// View P in a window of its own, on a small grade book, driven by keys and mouse.
class TestAnsichtP : public QObject {
    Q_OBJECT

    Testwelt Welt;
    std::unique_ptr<Dialogschritte> Schritte;
    std::unique_ptr<AnsichtP> Ansicht;

    template <class Art>
    Art* Teil(const QString& Name) {
        auto* Gefunden = Ansicht->findChild<Art*>(Name);
        if (!Gefunden)
            qFatal("kein Steuerelement %s", qPrintable(Name));
        return Gefunden;
    }
    Gitter* Tabelle() { return Teil<Gitter>(u"tblPPunkte"_s); }
    EingabeFeld* Eingabe() { return Teil<EingabeFeld>(u"txtEingabe"_s); }
    QLineEdit* Feld(const QString& Name) { return Teil<QLineEdit>(Name); }
    Kombinationsfeld* Liste(const QString& Name) { return Teil<Kombinationsfeld>(Name); }
    QPushButton* Knopf(const QString& Name) { return Teil<QPushButton>(Name); }
    void Klicken(const QString& Name) { QTest::mouseClick(Knopf(Name), Qt::LeftButton); }

    /// "Name|Punkte|Note", one line a participant.
    QStringList Zeilen() {
        QStringList Texte;
        for (int i = 1; i <= Tabelle()->Rows() - 2; ++i)
            Texte.append(Tabelle()->TextMatrix(i, 0) + u'|' + Tabelle()->TextMatrix(i, 1) + u'|' +
                         Tabelle()->TextMatrix(i, 2));
        return Texte;
    }
    QString Grenzen() {
        QStringList Texte;
        for (int j = 0; j < 5; ++j)
            Texte.append(Feld(u"txtNGrenze_%1"_s.arg(j))->text());
        return Texte.join(u' ');
    }
    static QString GespeicherteGrenzen(int Probe = 1) {
        QStringList Texte;
        for (int j = 1; j <= 5; ++j)
            Texte.append(Datenbank.Faecher[0].Proben[Probe].NGrenze[j]);
        return Texte.join(u' ');
    }
    static Notenzeile& Zeile(int Schueler_ID) { return Datenbank.Noten[NotenIndex(Schueler_ID, 50000)]; }
    int ZeileVon(const QString& Name) {
        for (int i = 1; i <= Tabelle()->Rows() - 2; ++i)
            if (Tabelle()->TextMatrix(i, 0) == Name)
                return i;
        return -1;
    }
    void Anklicken(int Reihe, int Spalte) {
        QTest::mouseClick(
            Tabelle()->viewport(), Qt::LeftButton, {},
            Tabelle()->viewport()->mapFrom(Tabelle(), Tabelle()->CellRect(Reihe, Spalte).center()));
    }
    /// Replaces the text of the box that has the focus, key by key.
    void Tippen(const QString& Text) {
        QWidget* Ziel = QApplication::focusWidget();
        QTest::keyClick(Ziel, Qt::Key_A, Qt::ControlModifier);
        if (Text.isEmpty())
            QTest::keyClick(Ziel, Qt::Key_Delete);
        QTest::keyClicks(Ziel, Text);
    }
    void Taste(Qt::Key Welche, Qt::KeyboardModifiers Dazu = {}) {
        QTest::keyClick(QApplication::focusWidget(), Welche, Dazu);
    }
    static void Ticken(int Anzahl) {
        for (int i = 0; i < Anzahl; ++i)
            EingabezaehlerTick();
    }

    void Fuellen() {
        Ansicht->Fuellen();
        DatenGeaendert = false;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Datenbank.GrenznotenBerechnen = false;
        for (int i = 1; i <= 13; ++i) {
            Probenbezeichnung[i] = u"Probe %1"_s.arg(i);
            ExtemporalenBezeichnung[i] = u"Ex %1"_s.arg(i);
        }
        Schritte = std::make_unique<Dialogschritte>();
        TestbuchLaden(Buch);
        AktFachID = 50000;
        Ansicht = std::make_unique<AnsichtP>();
        Ansicht->resize(1000, 600);
        Ansicht->show();
        QVERIFY(QTest::qWaitForWindowActive(Ansicht.get()));
        Fuellen();
    }
    void cleanup() {
        Schritte.reset();
        Ansicht.reset();
        Welt.Aufraeumen();
    }

    // --- filling ---------------------------------------------------------------------------------------

    void FuellungZeigtTeilnehmerNachNamen() {
        QCOMPARE(Zeilen(), (QStringList{u"adler Carl||ne"_s, u"Berger Anna Maria|36|1"_s,
                                        u"Cramer Bodo|20|4"_s, u"Gast Emil|9|5"_s}));
        QCOMPARE(Feld(u"txtPNotenschnitt"_s)->text(), u"3,33"_s);
        QCOMPARE(Zeile(SchuelerC).N[1], u"ne"_s);
        QCOMPARE(Datenbank.ZSchueler[0].Note, u"5"_s);
    }

    void TabelleHatVierSpaltenDieLetzteVerborgen() {
        QCOMPARE(Tabelle()->Cols(), 4);
        QCOMPARE(Tabelle()->FixedRows(), 1);
        QCOMPARE(Tabelle()->ColWidth(3), 0);
        QCOMPARE(Tabelle()->TextMatrix(0, 0), u"Schüler"_s);
        QCOMPARE(Tabelle()->TextMatrix(0, 1), u"Punkte"_s);
        QCOMPARE(Tabelle()->TextMatrix(0, 2), u"Note"_s);
        QCOMPARE(Tabelle()->TextMatrix(ZeileVon(u"Cramer Bodo"_s), 3), u"10001"_s);
        QCOMPARE(Tabelle()->TextMatrix(ZeileVon(u"Gast Emil"_s), 3), u"0"_s);
        QCOMPARE(Tabelle()->TextMatrix(Tabelle()->Rows() - 1, 0), QString());
    }

    void ZSchuelerStehtBlau() {
        QCOMPARE(Tabelle()->CellForeColor(ZeileVon(u"Gast Emil"_s), 0), QColor(0, 0, 255));
        QCOMPARE(Tabelle()->CellForeColor(ZeileVon(u"Cramer Bodo"_s), 0), QColor(Qt::black));
    }

    void NotenfarbenFolgenDerAuswertung() {
        QCOMPARE(Tabelle()->CellForeColor(ZeileVon(u"adler Carl"_s), 2), QColor(0, 0x88, 0));
        QCOMPARE(Tabelle()->CellForeColor(ZeileVon(u"Cramer Bodo"_s), 2), QColor(Qt::black));
    }

    void SpaltenbreitenSindAnteileDerTabelle() {
        const double Breite = Tabelle()->width();
        QCOMPARE(Tabelle()->ColWidth(0), static_cast<int>(0.6 * Breite));
        QCOMPARE(Tabelle()->ColWidth(1), static_cast<int>(0.19 * Breite));
        QCOMPARE(Tabelle()->ColWidth(2), static_cast<int>(0.19 * Breite));
        for (int i = 0; i < 60; ++i)
            TestbuchLaden(u"ZSchueler 50000 1 P=1 Gast Nummer%1"_s.arg(i));
        Fuellen();
        QCOMPARE(Tabelle()->ColWidth(0), static_cast<int>(0.56 * Breite));
        QCOMPARE(Tabelle()->ColWidth(1), static_cast<int>(0.16 * Breite));
        QCOMPARE(Tabelle()->ColWidth(2), static_cast<int>(0.16 * Breite));
    }

    void ListenZeigenFaecherDesJahresUndProbenDerStufe() {
        TestbuchLaden(u"Fach 50002 b10 Chemie\nFach 50003 7a Alt"_s);
        Datenbank.Faecher[3].Jahr = u"2002/03"_s;
        Fuellen();
        const Kombinationsfeld* Faecher = Liste(u"cbPKlasseFach"_s);
        QCOMPARE(Faecher->count(), 3);
        QCOMPARE(Faecher->itemText(0), u"7a Mathematik"_s);
        QCOMPARE(Faecher->Datum(0), 50000);
        QCOMPARE(Faecher->itemText(2), u"b10 Chemie"_s);
        const Kombinationsfeld* Proben = Liste(u"cbPProbe"_s);
        QCOMPARE(Proben->count(), 20);
        QCOMPARE(Proben->itemText(0), u"1. Probe 7"_s);
        QCOMPARE(Proben->itemText(9), u"10. Probe 7"_s);
        QCOMPARE(Proben->itemText(10), u"1. Ex 7"_s);
        QCOMPARE(Proben->itemText(19), u"10. Ex 7"_s);
    }

    void StufeKommtAusDemTextDesEintrags_data() {
        QTest::addColumn<QString>("Klasse");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("10b") << u"10b"_s << u"1. Probe 10"_s;
        QTest::newRow("letter first") << u"b10"_s << u"1. Probe 10"_s;
        QTest::newRow("no digit counts as 1") << u"Chor"_s << u"1. Probe 1"_s;
        QTest::newRow("0 counts as 1") << u"0a"_s << u"1. Probe 1"_s;
        QTest::newRow("the tables end at 13") << u"14"_s << u"1. Probe 13"_s;
    }
    void StufeKommtAusDemTextDesEintrags() {
        QFETCH(QString, Klasse);
        Datenbank.Faecher[0].Klasse = Klasse;
        Fuellen();
        QTEST(Liste(u"cbPProbe"_s)->itemText(0), "Erwartet");
    }

    void AuswahlFolgtAktFachIDUndAktProbe() {
        AktFachID = 50001;
        AktProbe = 4;
        Fuellen();
        QCOMPARE(Liste(u"cbPKlasseFach"_s)->currentText(), u"7a Physik"_s);
        QCOMPARE(Liste(u"cbPProbe"_s)->ListIndex(), 4);
    }

    void UnbekanntesFachUndProbeAusserhalbNehmenDieErsten() {
        for (const int Falsch : {-1, 20, 99}) {
            AktFachID = 4711;
            AktProbe = Falsch;
            Fuellen();
            QCOMPARE(AktFachID, 50000);
            QCOMPARE(AktProbe, 0);
            QCOMPARE(Liste(u"cbPProbe"_s)->ListIndex(), 0);
        }
    }

    void ProbeOhneDatumBekommtHeuteOhneAenderung() {
        Liste(u"cbPProbe"_s)->setListIndex(1);
        QCOMPARE(Feld(u"txtPDatum"_s)->text(), u"12.10.2003"_s);
        QCOMPARE(Datenbank.Faecher[0].Proben[2].Datum, u"12.10.2003"_s);
        QCOMPARE(DatenGeaendert, false);
    }

    void KlasseOhneTeilnehmerZeigtNurDieEintragszeile() {
        Liste(u"cbPKlasseFach"_s)->setListIndex(1);
        QCOMPARE(Tabelle()->Rows(), 2);
        QCOMPARE(AktFachID, 50001);
        QCOMPARE(Feld(u"txtPNotenschnitt"_s)->text(), u"0,00"_s);
    }

    void ProbeOhnePunkteHatKeineNotenUndLeereDiagramme() {
        for (const int ID : {SchuelerA, SchuelerB})
            Zeile(ID).P[1].clear();
        Datenbank.ZSchueler[0].Punkte.clear();
        Fuellen();
        QCOMPARE(Zeilen(), (QStringList{u"adler Carl||"_s, u"Berger Anna Maria||"_s, u"Cramer Bodo||"_s,
                                        u"Gast Emil||"_s}));
        QCOMPARE(Zeile(SchuelerA).N[1], QString());
        QCOMPARE(Datenbank.ZSchueler[0].Note, QString());
        QCOMPARE(Feld(u"txtPNotenschnitt"_s)->text(), u"0,00"_s);
        for (const qint16 Anzahl : NotenAnzahl)
            QCOMPARE(Anzahl, qint16(0));
        for (const qint16 Anzahl : PunkteVerteilung)
            QCOMPARE(Anzahl, qint16(0));
    }

    void ZweiAuswertungenLassenDatenGeaendert() {
        Ansicht->ProbeAuswerten();
        QCOMPARE(DatenGeaendert, false);
        Fuellen();
        Ansicht->Fuellen();
        QCOMPARE(DatenGeaendert, false);
    }

    void NeueFuellungSiehtJedeAenderungDerRecords() {
        Zeile(SchuelerB).P[1] = u"36"_s;
        Ansicht->Fuellen();
        QCOMPARE(Zeilen().at(2), u"Cramer Bodo|36|1"_s);
        Datenbank.Schueler[1].Name = u"Zimmer Bodo"_s;
        Ansicht->Fuellen();
        QCOMPARE(Zeilen().at(3), u"Zimmer Bodo|36|1"_s);
        Datenbank.Faecher[0].Proben[1].NGrenze[1] = u"37"_s;
        Ansicht->Fuellen();
        QCOMPARE(Zeilen().at(3), u"Zimmer Bodo|36|2"_s);
        Datenbank.GrenznotenBerechnen = true;
        Datenbank.GrenznotenPunkteAbstand = 2;
        Ansicht->Fuellen();
        QCOMPARE(Zeilen().at(3), u"Zimmer Bodo|36|2+"_s);
    }

    void OhneFachIstAllesGesperrt() {
        QSignalSpy Import(Ansicht.get(), &Ansicht::ImportErlaubt);
        Datenbank.AnzFaecher = 0;
        Fuellen();
        QCOMPARE(Import.last().first().toBool(), false);
        for (const QString& Name :
             {u"cbPProbe"_s, u"cbPSortierung"_s, u"txtGesamtpunktzahl"_s, u"txtNGrenze_0"_s,
              u"txtNGrenze_4"_s, u"btPBLLV"_s, u"btGaußverteilung_0"_s, u"btGaußverteilung_4"_s,
              u"btEigeneVerteilung_0"_s, u"btEigeneVerteilung_4"_s, u"btPBesser"_s, u"btPSchlechter"_s,
              u"btPTempSchueler"_s, u"btPFachLoeschen"_s, u"txtPDateiname"_s, u"txtPDatum"_s, u"txtPThema"_s,
              u"tblPPunkte"_s})
            QVERIFY2(!Teil<QWidget>(Name)->isEnabled(), qPrintable(Name));
        QVERIFY(Knopf(u"btPNeuesFach"_s)->isEnabled());
        QVERIFY(Liste(u"cbPKlasseFach"_s)->isEnabled());
        QCOMPARE(Tabelle()->Rows(), 2);
        QCOMPARE(Feld(u"txtGesamtpunktzahl"_s)->text(), QString());
        Datenbank.AnzFaecher = 2;
        Fuellen();
        QCOMPARE(Import.last().first().toBool(), true);
        QVERIFY(Tabelle()->isEnabled());
    }

    void BeiFuenfNotenFehltDieFuenfteGrenze() {
        QVERIFY(Feld(u"txtNGrenze_4"_s)->isVisible());
        MaxNote = 5;
        Fuellen();
        for (const QString& Name : {u"txtNGrenze_4"_s, u"lbNGrenze_4"_s, u"lbPunkten_4"_s})
            QVERIFY2(!Teil<QWidget>(Name)->isVisible(), qPrintable(Name));
        QVERIFY(Feld(u"txtNGrenze_3"_s)->isVisible());
    }

    void AuswahlEinerAnderenProbeZeigtSieUndMerktSieSich() {
        Liste(u"cbPProbe"_s)->setListIndex(1);
        QCOMPARE(AktProbe, 1);
        QCOMPARE(Feld(u"txtGesamtpunktzahl"_s)->text(), u"20"_s);
        QCOMPARE(Grenzen(), u"18 15 12 9 5"_s);
        QCOMPARE(Zeilen(), (QStringList{u"adler Carl||"_s, u"Berger Anna Maria||"_s, u"Cramer Bodo||"_s}));
    }

    // --- sorting ---------------------------------------------------------------------------------------

    void NachVornamenStehtDasLetzteWortVorn() {
        Liste(u"cbPSortierung"_s)->setListIndex(1);
        QCOMPARE(Zeilen(), (QStringList{u"Bodo Cramer|20|4"_s, u"Carl adler||ne"_s, u"Emil Gast|9|5"_s,
                                        u"Maria Berger Anna|36|1"_s}));
        Liste(u"cbPSortierung"_s)->setListIndex(0);
        QCOMPARE(Zeilen().at(1), u"Berger Anna Maria|36|1"_s);
        QCOMPARE(NamenUmgekehrt, false);
    }

    void NachPunktenZaehltLeerAlsNullUndDieHandnoteEndetUnten() {
        Zeile(SchuelerA).P[1] = u"-5"_s;
        Zeile(SchuelerA).N[1] = u"2"_s;
        Fuellen();
        Liste(u"cbPSortierung"_s)->setListIndex(2);
        QCOMPARE(Zeilen(), (QStringList{u"Cramer Bodo|20|4"_s, u"Gast Emil|9|5"_s, u"adler Carl||ne"_s,
                                        u"Berger Anna Maria|-5|2"_s}));
        QCOMPARE(Tabelle()->Row(), 1);
        QCOMPARE(Tabelle()->Col(), 1);
    }

    void SortierungVerbirgtDieEingabe() {
        Anklicken(1, 1);
        Liste(u"cbPSortierung"_s)->setListIndex(1);
        QVERIFY(Eingabe()->isHidden());
        QVERIFY(Knopf(u"btPTempSchuelerLoeschen"_s)->isHidden());
    }

    void NeueFuellungSortiertWiederNachNamen() {
        Liste(u"cbPSortierung"_s)->setListIndex(1);
        Ansicht->Fuellen();
        QCOMPARE(Liste(u"cbPSortierung"_s)->ListIndex(), 0);
        QCOMPARE(Zeilen().first(), u"adler Carl||ne"_s);
    }

    // --- the floating box -------------------------------------------------------------------------------

    void KlickOeffnetDieEingabeUndWaehltDenSchueler() {
        QSignalSpy Passbild(Ansicht.get(), &Ansicht::PassbildGewuenscht);
        Anklicken(3, 1);
        QVERIFY(Eingabe()->isVisible());
        QVERIFY(Eingabe()->hasFocus());
        QCOMPARE(Eingabe()->text(), u"20"_s);
        QVERIFY(Knopf(u"btPTempSchuelerLoeschen"_s)->isVisible());
        QCOMPARE(AktSchuelerID, SchuelerB);
        QCOMPARE(Passbild.size(), 1);
    }

    void KlickAufDieselbeZelleOeffnetSieWieder() {
        Anklicken(3, 1);
        Taste(Qt::Key_Escape);
        QVERIFY(Eingabe()->isHidden());
        Anklicken(3, 1);
        QVERIFY(Eingabe()->isVisible());
    }

    void OhneGitterereignisseOeffnetSichKeineZelle() {
        const QScopedValueRollback<bool> Ruhe(GridEreignisseAktiv, false);
        Anklicken(2, 1);
        QVERIFY(Eingabe()->isHidden());
        Tabelle()->setRow(Tabelle()->Rows() - 1); // nor the dialog for a new student
    }

    void EingabeTraegtDieFarbeIhrerZelle() {
        Anklicken(ZeileVon(u"Gast Emil"_s), 0);
        QCOMPARE(Eingabe()->palette().color(QPalette::Text), QColor(0, 0, 255));
        Anklicken(ZeileVon(u"adler Carl"_s), 2);
        QCOMPARE(Eingabe()->palette().color(QPalette::Text), QColor(0, 0x88, 0));
    }

    void KopfzeileIstKeineEingabe() {
        Tabelle()->Enter(0, 1);
        QCOMPARE(Tabelle()->Row(), 1);
        QCOMPARE(Eingabe()->text(), Tabelle()->TextMatrix(1, 1));
    }

    void EndeTasteKommtNichtInDieVerborgeneSpalte() {
        Anklicken(2, 1);
        Taste(Qt::Key_Escape);
        QTest::keyClick(Tabelle(), Qt::Key_End);
        QCOMPARE(Tabelle()->Col(), 2);
    }

    void ReturnUebernimmtBewertetUndGehtWeiter() {
        Anklicken(1, 1);
        Tippen(u"30"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerC).P[1], u"30"_s);
        QCOMPARE(Zeile(SchuelerC).N[1], u"3"_s);
        QCOMPARE(Zeilen().first(), u"adler Carl|30|3"_s);
        QCOMPARE(DatenGeaendert, true);
        QCOMPARE(Feld(u"txtPNotenschnitt"_s)->text(), u"3,25"_s);
        QCOMPARE(Tabelle()->Row(), 2);
        QVERIFY(Eingabe()->hasFocus());
        QCOMPARE(Eingabe()->text(), u"36"_s);
        QCOMPARE(Eingabe()->cursorPosition(), 2);
        QCOMPARE(NotenAnzahl[3], 1);
        QCOMPARE(PunkteVerteilung[60], 1);
    }

    void EineKlasseVonObenNachUntenTippen() {
        Anklicken(1, 1);
        for (const QString& Punkte : {u"40"_s, u"31"_s, u"8,5"_s}) {
            Tippen(Punkte);
            Taste(Qt::Key_Return);
        }
        QCOMPARE(Zeilen(), (QStringList{u"adler Carl|40|1"_s, u"Berger Anna Maria|31|2"_s,
                                        u"Cramer Bodo|8,5|6"_s, u"Gast Emil|9|5"_s}));
    }

    void TastenWechselnDieZelle_data() {
        QTest::addColumn<int>("Reihe");
        QTest::addColumn<int>("Spalte");
        QTest::addColumn<Qt::Key>("Welche");
        QTest::addColumn<bool>("Umschalt");
        QTest::addColumn<int>("NeueReihe");
        QTest::addColumn<int>("NeueSpalte");
        QTest::newRow("up") << 2 << 1 << Qt::Key_Up << false << 1 << 1;
        QTest::newRow("up in the first row stays") << 1 << 1 << Qt::Key_Up << false << 1 << 1;
        QTest::newRow("down") << 2 << 1 << Qt::Key_Down << false << 3 << 1;
        QTest::newRow("left stays in the text") << 2 << 1 << Qt::Key_Left << false << 2 << 1;
        QTest::newRow("shift left") << 2 << 1 << Qt::Key_Left << true << 2 << 0;
        QTest::newRow("shift left in the name stays") << 2 << 0 << Qt::Key_Left << true << 2 << 0;
        QTest::newRow("right stays in the text") << 2 << 1 << Qt::Key_Right << false << 2 << 1;
        QTest::newRow("shift right") << 2 << 1 << Qt::Key_Right << true << 2 << 2;
        QTest::newRow("shift right in the grade stays") << 2 << 2 << Qt::Key_Right << true << 2 << 2;
        QTest::newRow("return") << 2 << 2 << Qt::Key_Return << false << 3 << 2;
        QTest::newRow("enter") << 2 << 2 << Qt::Key_Enter << false << 3 << 2;
    }
    void TastenWechselnDieZelle() {
        QFETCH(int, Reihe);
        QFETCH(int, Spalte);
        QFETCH(Qt::Key, Welche);
        QFETCH(bool, Umschalt);
        Anklicken(Reihe, Spalte);
        Taste(Welche, Umschalt ? Qt::ShiftModifier : Qt::NoModifier);
        QTEST(Tabelle()->Row(), "NeueReihe");
        QTEST(Tabelle()->Col(), "NeueSpalte");
        QVERIFY(Eingabe()->hasFocus());
        QCOMPARE(Eingabe()->text(), Tabelle()->TextMatrix(Tabelle()->Row(), Tabelle()->Col()));
        QCOMPARE(DatenGeaendert, false);
    }

    void JedeBewegungUebernimmt_data() {
        QTest::addColumn<Qt::Key>("Welche");
        QTest::addColumn<bool>("Umschalt");
        QTest::newRow("up") << Qt::Key_Up << false;
        QTest::newRow("down") << Qt::Key_Down << false;
        QTest::newRow("shift left") << Qt::Key_Left << true;
        QTest::newRow("shift right") << Qt::Key_Right << true;
        QTest::newRow("return") << Qt::Key_Return << false;
    }
    void JedeBewegungUebernimmt() {
        QFETCH(Qt::Key, Welche);
        QFETCH(bool, Umschalt);
        Anklicken(3, 1);
        Tippen(u"33"_s);
        Taste(Welche, Umschalt ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(Zeile(SchuelerB).P[1], u"33"_s);
        QCOMPARE(Zeile(SchuelerB).N[1], u"2"_s);
    }

    void EscapeVerwirftDasGetippte() {
        Anklicken(3, 1);
        Tippen(u"33"_s);
        Taste(Qt::Key_Escape);
        Ticken(20);
        QVERIFY(Eingabe()->isHidden());
        QVERIFY(Knopf(u"btPTempSchuelerLoeschen"_s)->isHidden());
        QCOMPARE(Zeile(SchuelerB).P[1], u"20"_s);
        QCOMPARE(Zeilen().at(2), u"Cramer Bodo|20|4"_s);
        QCOMPARE(DatenGeaendert, false);
    }

    void EscapeUndReturnInDerTabelle() {
        Anklicken(3, 1);
        Tippen(u"33"_s);
        Ticken(6);
        QVERIFY(Tabelle()->hasFocus());
        QTest::keyClick(Tabelle(), Qt::Key_Escape);
        QVERIFY(Eingabe()->isHidden());
        QTest::keyClick(Tabelle(), Qt::Key_Return);
        QVERIFY(Eingabe()->isVisible());
        QCOMPARE(Tabelle()->Row(), 3);
    }

    void SechsTicksNachDerLetztenTasteWirdUebernommen() {
        Anklicken(3, 1);
        Tippen(u"3"_s);
        Ticken(5);
        QCOMPARE(Zeile(SchuelerB).P[1], u"20"_s);
        QTest::keyClicks(Eingabe(), u"3"_s);
        Ticken(5);
        QCOMPARE(Zeile(SchuelerB).P[1], u"20"_s);
        Ticken(1);
        QCOMPARE(Zeile(SchuelerB).P[1], u"33"_s);
        QCOMPARE(Zeile(SchuelerB).N[1], u"2"_s);
        QVERIFY(Tabelle()->hasFocus());
        QVERIFY(Eingabe()->isVisible());
        QCOMPARE(Eingabe()->text(), u"33"_s);
    }

    void NachDerUebernahmeDurchDenZaehlerGehtKeineTasteVerloren() {
        Anklicken(3, 1);
        Tippen(u"3"_s);
        Ticken(6);
        QTest::keyClicks(Tabelle(), u"9"_s);
        QCOMPARE(Eingabe()->text(), u"39"_s);
        QVERIFY(Eingabe()->hasFocus());
        Ticken(6);
        QCOMPARE(Zeile(SchuelerB).P[1], u"39"_s);
    }

    void UnveraendertesTippenAendertNichts() {
        Anklicken(3, 1);
        Tippen(u"20"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(DatenGeaendert, false);
    }

    void VerlassenUebernimmtUndLaesstDenFokusBeimNeuenFeld() {
        Anklicken(3, 1);
        Tippen(u"33"_s);
        QTest::mouseClick(Feld(u"txtPThema"_s), Qt::LeftButton);
        QCOMPARE(Zeile(SchuelerB).P[1], u"33"_s);
        QVERIFY(Feld(u"txtPThema"_s)->hasFocus());
    }

    void AuswahlEinerAnderenProbeVerliertDieOffeneEingabeNicht() {
        Anklicken(3, 1);
        Tippen(u"33"_s);
        Liste(u"cbPProbe"_s)->setFocus();
        QTest::keyClick(Liste(u"cbPProbe"_s), Qt::Key_Down);
        QCOMPARE(AktProbe, 1);
        QCOMPARE(Zeile(SchuelerB).P[1], u"33"_s);
        QCOMPARE(Zeile(SchuelerB).P[2], QString());
    }

    void PunkteWerdenUngekuerztGespeichert() {
        Anklicken(3, 1);
        Tippen(u" krank "_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerB).P[1], u" krank "_s);
        QCOMPARE(Zeile(SchuelerB).N[1], u"6"_s);
    }

    void TabulatorWirdLeerzeichen() {
        Anklicken(3, 1);
        Eingabe()->selectAll();
        Eingabe()->insert(u"3\t3"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerB).P[1], u"3 3"_s);
    }

    void EinGeschuetztesLeerzeichenAmNamenBleibtBeimDurchgehen() {
        const QString Name = u"Cramer Bodo\u00A0"_s;
        Datenbank.Schueler[1].Name = Name;
        Ansicht->SichtPFuellen();
        Anklicken(ZeileVon(Name), 0);
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.Schueler[1].Name, Name);
        QCOMPARE(DatenGeaendert, false);
    }

    void NoteVonHandMerktSichDiePunkteNegativ() {
        Anklicken(3, 2);
        Tippen(u"2+"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerB).N[1], u"2+"_s);
        QCOMPARE(Zeile(SchuelerB).P[1], u"-20"_s);
        QCOMPARE(Zeilen().at(2), u"Cramer Bodo|-20|2+"_s);
        QCOMPARE(Tabelle()->CellForeColor(3, 2), QColor(255, 0, 0));
        QCOMPARE(DatenGeaendert, true);
        QCOMPARE(NotenAnzahl[2], 1);
    }

    void NoteVonHandOhnePunkteBekommtMinusEinZehntel() {
        Anklicken(1, 2);
        Tippen(u"3"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerC).P[1], u"-0,1"_s);
        QCOMPARE(Zeile(SchuelerC).N[1], u"3"_s);
    }

    void NoteVonHandFuerEinenZSchueler() {
        Anklicken(4, 2);
        Tippen(u"1"_s);
        Taste(Qt::Key_Up);
        QCOMPARE(Datenbank.ZSchueler[0].Note, u"1"_s);
        QCOMPARE(Datenbank.ZSchueler[0].Punkte, u"-9"_s);
    }

    void GleicheNoteVonHandAendertNichts() {
        Anklicken(3, 2);
        Tippen(u"4"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerB).P[1], u"20"_s);
        QCOMPARE(DatenGeaendert, false);
    }

    void PunkteWiederTippenHebtDieHandnoteAuf() {
        Anklicken(3, 2);
        Tippen(u"1"_s);
        Taste(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(Eingabe()->text(), u"-20"_s);
        Tippen(u"20"_s);
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerB).N[1], u"4"_s);
        QCOMPARE(Tabelle()->CellForeColor(3, 2), QColor(Qt::black));
    }

    void LeerePunkteNachEinerHandnoteGebenNe() {
        Anklicken(3, 2);
        Tippen(u"1"_s);
        Taste(Qt::Key_Left, Qt::ShiftModifier);
        Tippen(QString());
        Taste(Qt::Key_Return);
        QCOMPARE(Zeile(SchuelerB).N[1], u"ne"_s);
        QCOMPARE(Zeile(SchuelerB).P[1], QString());
    }

    void EineAnderswoGeaenderteNoteWirdNichtVonHandGesetzt() {
        // The grade box is open; then a boundary gives the student another grade.
        Anklicken(3, 2);
        QTest::mouseClick(Feld(u"txtNGrenze_3"_s), Qt::LeftButton);
        Tippen(u"21"_s);
        Ticken(4);
        QCOMPARE(Zeile(SchuelerB).N[1], u"5"_s);
        QVERIFY(Eingabe()->isHidden());
        Ticken(10);
        QCOMPARE(Zeile(SchuelerB).N[1], u"5"_s);
        QCOMPARE(Zeile(SchuelerB).P[1], u"20"_s);
    }

    void NameWirdOhneRandleerzeichenGespeichert() {
        Anklicken(3, 0);
        Tippen(u"  Cramer Bernd "_s);
        Taste(Qt::Key_Down);
        QCOMPARE(Datenbank.Schueler[1].Name, u"Cramer Bernd"_s);
        QCOMPARE(Tabelle()->TextMatrix(3, 0), u"Cramer Bernd"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void GedrehterNameWirdZurueckgedrehtGespeichert() {
        Liste(u"cbPSortierung"_s)->setListIndex(1);
        Anklicken(1, 0);
        QCOMPARE(Eingabe()->text(), u"Bodo Cramer"_s);
        Tippen(u"Bernd Cramer"_s);
        Taste(Qt::Key_Down);
        QCOMPARE(Datenbank.Schueler[1].Name, u"Cramer Bernd"_s);
        QCOMPARE(Tabelle()->TextMatrix(1, 0), u"Bernd Cramer"_s);
    }

    void UnveraenderterGedrehterNameAendertNichts() {
        Liste(u"cbPSortierung"_s)->setListIndex(1);
        Anklicken(4, 0);
        QCOMPARE(Eingabe()->text(), u"Maria Berger Anna"_s);
        Taste(Qt::Key_Up);
        QCOMPARE(Datenbank.Schueler[0].Name, u"Berger Anna Maria"_s);
        QCOMPARE(DatenGeaendert, false);
    }

    void NameEinesZSchuelers() {
        Anklicken(4, 0);
        Tippen(u"Gast Ella"_s);
        Taste(Qt::Key_Up);
        QCOMPARE(Datenbank.ZSchueler[0].Name, u"Gast Ella"_s);
    }

    // --- the other boxes --------------------------------------------------------------------------------

    void VierTicksUebernehmenDieFelder_data() {
        QTest::addColumn<QString>("Name");
        QTest::newRow("total") << u"txtGesamtpunktzahl"_s;
        QTest::newRow("boundary 1") << u"txtNGrenze_0"_s;
        QTest::newRow("boundary 5") << u"txtNGrenze_4"_s;
        QTest::newRow("date") << u"txtPDatum"_s;
        QTest::newRow("theme") << u"txtPThema"_s;
        QTest::newRow("file") << u"txtPDateiname"_s;
    }
    void VierTicksUebernehmenDieFelder() {
        QFETCH(QString, Name);
        const Probe Vorher = Datenbank.Faecher[0].Proben[1];
        QTest::mouseClick(Feld(Name), Qt::LeftButton);
        Tippen(u"5"_s);
        Ticken(3);
        QCOMPARE(Datenbank.Faecher[0].Proben[1], Vorher);
        Ticken(1);
        QVERIFY(!(Datenbank.Faecher[0].Proben[1] == Vorher));
        QCOMPARE(DatenGeaendert, true);
        QVERIFY(Feld(Name)->hasFocus());
        DatenGeaendert = false;
        Ticken(20);
        QCOMPARE(DatenGeaendert, false);
    }

    void VerlassenUebernimmtEinFeldSofortUndNurEinmal() {
        QTest::mouseClick(Feld(u"txtGesamtpunktzahl"_s), Qt::LeftButton);
        Tippen(u"41"_s);
        QTest::keyClick(Feld(u"txtGesamtpunktzahl"_s), Qt::Key_Tab);
        QCOMPARE(Datenbank.Faecher[0].Proben[1].Gesamtpunktzahl, u"41"_s);
        QVERIFY(Feld(u"txtNGrenze_0"_s)->hasFocus());
        DatenGeaendert = false;
        Ticken(10);
        QCOMPARE(DatenGeaendert, false);
    }

    void ThemaDatumUndDateinameWerdenGespeichert() {
        QTest::mouseClick(Feld(u"txtPThema"_s), Qt::LeftButton);
        Tippen(u"Prozente"_s);
        QTest::mouseClick(Feld(u"txtPDateiname"_s), Qt::LeftButton);
        Tippen(u"a.odt"_s);
        QTest::mouseClick(Feld(u"txtPDatum"_s), Qt::LeftButton);
        Tippen(u"3.11.2003"_s);
        Taste(Qt::Key_Return);
        const Probe& Eine = Datenbank.Faecher[0].Proben[1];
        QCOMPARE(Eine.Name, u"Prozente"_s);
        QCOMPARE(Eine.Dateiname, u"a.odt"_s);
        QCOMPARE(Eine.Datum, u"3.11.2003"_s);
    }

    void FuellenStartetKeinenZaehler() {
        Liste(u"cbPProbe"_s)->setListIndex(1);
        for (const qint16 Zaehler : EingabeZaehler)
            QVERIFY(Zaehler <= 0);
    }

    void TabulatorfolgeEntsprichtDemTippen() {
        const QStringList Folge{u"cbPKlasseFach"_s, u"cbPProbe"_s,      u"txtPDatum"_s,
                                u"txtPThema"_s,     u"txtPDateiname"_s, u"txtGesamtpunktzahl"_s,
                                u"txtNGrenze_0"_s,  u"txtNGrenze_1"_s,  u"txtNGrenze_2"_s,
                                u"txtNGrenze_3"_s,  u"txtNGrenze_4"_s,  u"tblPPunkte"_s};
        Liste(Folge.first())->setFocus(Qt::TabFocusReason);
        QStringList Gegangen{Folge.first()};
        for (int i = 1; i < Folge.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            Gegangen.append(QApplication::focusWidget()->objectName());
        }
        QCOMPARE(Gegangen, Folge);
    }

    // --- plausibility and hints -------------------------------------------------------------------------

    void UnplausibleWerteMeldetNurDieHinweiszeile() {
        QSignalSpy Hinweise(Ansicht.get(), &Ansicht::HinweisGewuenscht);
        QTest::mouseClick(Feld(u"txtNGrenze_0"_s), Qt::LeftButton);
        Tippen(u"31"_s);
        Ticken(4);
        QCOMPARE(Hinweise.last().first().toString(),
                 u"Die Werte für Gesamtpunkte und/oder Notengrenzen sind nicht plausibel!"_s);
        QCOMPARE(Zeilen().at(2), u"Cramer Bodo|20|4"_s);
        Tippen(u"35"_s);
        Ticken(4);
        QCOMPARE(Hinweise.last().first().toString(), QString());
    }

    void WarnungBleibtBeimBetretenEinerZelle() {
        Datenbank.Faecher[0].Proben[1].Gesamtpunktzahl.clear();
        Fuellen();
        QSignalSpy Hinweise(Ansicht.get(), &Ansicht::HinweisGewuenscht);
        Anklicken(2, 1);
        QCOMPARE(Hinweise.size(), 0);
    }

    void HinweiseBeimBetreten() {
        Feld(u"txtPThema"_s)->setFocus();
        QSignalSpy Hinweise(Ansicht.get(), &Ansicht::HinweisGewuenscht);
        Liste(u"cbPKlasseFach"_s)->setFocus();
        QCOMPARE(Hinweise.last().first().toString(),
                 u"Zur Aufnahme eines neuen Fachs hier die Klasse und den Fachnamen eingeben und Return "
                 "drücken!"_s);
        Anklicken(2, 1);
        QCOMPARE(Hinweise.last().first().toString(),
                 u"Mit gedrückter Umschalt-Taste und den Cursortasten kann die Zelle gewechselt werden!"_s);
    }

    // --- distributions ----------------------------------------------------------------------------------

    void EigeneVerteilungSetztGrenzenUndBewertet() {
        EigeneVerteilung[1] = {};
        for (int j = 0; j < 5; ++j)
            EigeneVerteilung[1][j] = 90.0F - 20.0F * static_cast<float>(j);
        Klicken(u"btEigeneVerteilung_1"_s);
        QCOMPARE(Grenzen(), u"36 28 20 12 4"_s);
        QCOMPARE(GespeicherteGrenzen(), u"36 28 20 12 4"_s);
        QCOMPARE(Zeile(SchuelerB).N[1], u"3"_s);
        QCOMPARE(DatenGeaendert, true);
        for (const qint16 Zaehler : EingabeZaehler)
            QVERIFY(Zaehler <= 0);
    }

    void TabellenVerteilungSetztGrenzenUndBewertet() {
        for (int j = 0; j < 5; ++j)
            BLLVVerteilung[40][j] = 37.5F - 7.0F * static_cast<float>(j);
        Klicken(u"btPBLLV"_s);
        QCOMPARE(Grenzen(), u"37,5 30,5 23,5 16,5 9,5"_s);
        QCOMPARE(GespeicherteGrenzen(), Grenzen());
        QCOMPARE(Zeile(SchuelerA).N[1], u"2"_s);
        BLLVVerteilung[40] = {};
    }

    void GaussVerteilungSetztGrenzenUndBewertet() {
        for (int j = 0; j < 5; ++j)
            GaussVerteilung[4][j] = 33.0F * static_cast<float>(j + 1);
        Klicken(u"btGaußverteilung_4"_s);
        QCOMPARE(Grenzen(), u"36 20 9 18 9"_s);
        QCOMPARE(GespeicherteGrenzen(), Grenzen());
    }

    void VerteilungOhneGesamtpunktzahlMeldetEs_data() {
        QTest::addColumn<QString>("Name");
        QTest::addColumn<QString>("Meldung");
        QTest::addColumn<QString>("Gesamt");
        const QString Sonst =
            u"Sie müssen erst die Gesamtpunktzahl festlegen, damit die Verteilung automatisch "
            "bestimmt werden kann!"_s;
        const QString Gauss =
            u"Sie müssen erst Gesamtpunktzahl festlegen, damit die Gaußverteilung automatisch "
            "bestimmt werden kann!"_s;
        QTest::newRow("own, empty") << u"btEigeneVerteilung_0"_s << Sonst << QString();
        QTest::newRow("own, no number") << u"btEigeneVerteilung_0"_s << Sonst << u"viele"_s;
        QTest::newRow("table, empty") << u"btPBLLV"_s << Sonst << QString();
        QTest::newRow("table, above 200") << u"btPBLLV"_s << Sonst << u"201"_s;
        QTest::newRow("gauss, empty") << u"btGaußverteilung_0"_s << Gauss << QString();
    }
    void VerteilungOhneGesamtpunktzahlMeldetEs() {
        QFETCH(QString, Name);
        QFETCH(QString, Meldung);
        QFETCH(QString, Gesamt);
        Datenbank.Faecher[0].Proben[1].Gesamtpunktzahl = Gesamt;
        Fuellen();
        Welt.Boxen.ErwarteMeldung(Meldung);
        Klicken(Name);
        QCOMPARE(Welt.Boxen.Gezeigt.last().Titel, u"Hinweis:"_s);
        QCOMPARE(Grenzen(), u"36 31 25 18 9"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void NurDieGaussVerteilungBewertetOhneGesamtpunktzahlNicht_data() {
        QTest::addColumn<QString>("Name");
        QTest::addColumn<bool>("Bewertet");
        QTest::newRow("own") << u"btEigeneVerteilung_0"_s << true;
        QTest::newRow("table") << u"btPBLLV"_s << true;
        QTest::newRow("gauss") << u"btGaußverteilung_0"_s << false;
    }
    void NurDieGaussVerteilungBewertetOhneGesamtpunktzahlNicht() {
        QFETCH(QString, Name);
        Datenbank.Faecher[0].Proben[1].Gesamtpunktzahl.clear();
        Fuellen();
        Welt.Boxen.ErwarteMeldung({});
        QSignalSpy Hinweise(Ansicht.get(), &Ansicht::HinweisGewuenscht);
        Klicken(Name);
        QTEST(Hinweise.contains(QVariantList{MeldungUnplausibel}), "Bewertet");
    }

    void AutomatikStartetKeinenZaehler() {
        EigeneVerteilung[0].fill(50.0F);
        BLLVVerteilung[40].fill(9.0F);
        for (const QString& Name : {u"btEigeneVerteilung_0"_s, u"btPBLLV"_s, u"btGaußverteilung_0"_s}) {
            Klicken(Name);
            for (const qint16 Zaehler : EingabeZaehler)
                QVERIFY2(Zaehler <= 0, qPrintable(Name));
        }
        BLLVVerteilung[40] = {};
    }

    void BesserMerktDieAenderungAuchWennNichtsRueckt() {
        Datenbank.Faecher[0].Proben[1].NGrenze[5].clear();
        Fuellen();
        Klicken(u"btPSchlechter"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void BesserUndSchlechterVerschiebenEineGrenze() {
        Klicken(u"btPBesser"_s);
        QCOMPARE(Grenzen(), u"36 31 25 17,5 9"_s);
        QCOMPARE(GespeicherteGrenzen(), Grenzen());
        Klicken(u"btPSchlechter"_s);
        QCOMPARE(Grenzen(), u"36 31 25 17,5 9,5"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void BesserOhnePlausibleWerteMeldetNurDieHinweiszeile() {
        Datenbank.Faecher[0].Proben[1].NGrenze[5].clear();
        Fuellen();
        QSignalSpy Hinweise(Ansicht.get(), &Ansicht::HinweisGewuenscht);
        Klicken(u"btPBesser"_s);
        QCOMPARE(Hinweise.size(), 1);
        QCOMPARE(Hinweise.first().first().toString(), MeldungUnplausibel);
        QCOMPARE(Grenzen(), u"36 31 25 18 "_s);
    }

    void GetippteGesamtpunktzahlGiltBeimKlickAufDieVerteilung() {
        EigeneVerteilung[0].fill(50.0F);
        QTest::mouseClick(Feld(u"txtGesamtpunktzahl"_s), Qt::LeftButton);
        Tippen(u"12,5"_s);
        Klicken(u"btEigeneVerteilung_0"_s);
        QCOMPARE(Datenbank.Faecher[0].Proben[1].Gesamtpunktzahl, u"12,5"_s);
        QCOMPARE(Feld(u"txtNGrenze_0"_s)->text(), u"6"_s);
    }

    // --- students and subjects --------------------------------------------------------------------------

    void AbgebrocheneNeuaufnahmeGehtEineZeileHoch() {
        Schritte->Erwarte(u"dlgNeuerSchueler1"_s, [](QDialog& Dialog) { Dialog.reject(); });
        Klicken(u"btPTempSchueler"_s);
        QCOMPARE(Tabelle()->Row(), 4);
        QCOMPARE(Eingabe()->text(), u"Gast Emil"_s);
    }

    void NeuerZSchuelerStehtInDerListe() {
        Schritte->Erwarte(u"dlgNeuerSchueler1"_s, [](QDialog& Dialog) {
            QTest::mouseClick(Dialog.findChild<QRadioButton*>(u"rbZSchueler1"_s), Qt::LeftButton);
            auto* Name = Dialog.findChild<QLineEdit*>(u"txtSchuelername"_s);
            Name->setText(u"Aal Udo"_s);
            QTest::keyClick(Name, Qt::Key_Return);
        });
        Anklicken(4, 0);
        Taste(Qt::Key_Return); // from the last participant on to the entry row
        QCOMPARE(Datenbank.AnzZSchueler, qint16(2));
        QCOMPARE(Zeilen().first(), u"Aal Udo||ne"_s);
        QCOMPARE(Tabelle()->Row(), Tabelle()->Rows() - 2);
        QCOMPARE(Eingabe()->isVisible(), true);
        QCOMPARE(DatenGeaendert, true);
    }

    void MausklickAufDieEintragszeileOeffnetDenDialogEinmal() {
        Schritte->Erwarte(u"dlgNeuerSchueler1"_s, [](QDialog& Dialog) {
            QCOMPARE(Dialog.windowTitle().isEmpty(), false);
            Dialog.reject();
        });
        Anklicken(5, 1);
        QCOMPARE(Tabelle()->Row(), 4);
    }

    void ErsterTeilnehmerEinerLeerenListe() {
        Liste(u"cbPKlasseFach"_s)->setListIndex(1);
        Schritte->Erwarte(u"dlgNeuerSchueler1"_s, [](QDialog& Dialog) { Dialog.reject(); });
        Klicken(u"btPTempSchueler"_s);
        QCOMPARE(Tabelle()->Row(), 1);
        Schritte->Erwarte(u"dlgNeuerSchueler1"_s, [](QDialog& Dialog) {
            QTest::mouseClick(Dialog.findChild<QRadioButton*>(u"rbZSchueler1"_s), Qt::LeftButton);
            auto* Name = Dialog.findChild<QLineEdit*>(u"txtSchuelername"_s);
            Name->setText(u"Aal Udo"_s);
            QTest::keyClick(Name, Qt::Key_Return);
        });
        Klicken(u"btPTempSchueler"_s);
        QCOMPARE(Zeilen(), QStringList(u"Aal Udo||"_s));
        QCOMPARE(Tabelle()->Row(), 1);
        QVERIFY(Eingabe()->isVisible());
    }

    void ZSchuelerLoeschenFragtNicht() {
        TestbuchLaden(u"ZSchueler 50000 1 P=9 Zander Ute"_s);
        Fuellen();
        QCOMPARE(Tabelle()->TextMatrix(ZeileVon(u"Zander Ute"_s), 3), u"1"_s);
        Anklicken(ZeileVon(u"Gast Emil"_s), 1);
        Klicken(u"btPTempSchuelerLoeschen"_s);
        QCOMPARE(Datenbank.AnzZSchueler, qint16(1));
        QCOMPARE(ZeileVon(u"Gast Emil"_s), -1);
        QCOMPARE(Tabelle()->TextMatrix(ZeileVon(u"Zander Ute"_s), 3), u"0"_s);
        QCOMPARE(DatenGeaendert, true);
    }

    void SchuelerLoeschenFragt_data() {
        QTest::addColumn<Antwort>("Gegeben");
        QTest::addColumn<int>("Anzahl");
        QTest::newRow("yes") << Antwort::Ja << 3;
        QTest::newRow("no") << Antwort::Nein << 4;
    }
    void SchuelerLoeschenFragt() {
        QFETCH(Antwort, Gegeben);
        Anklicken(1, 1);
        Welt.Boxen.ErwarteFrage(u"Soll der Schüler wirklich gelöscht werden?"_s, Gegeben);
        Klicken(u"btPTempSchuelerLoeschen"_s);
        QTEST(static_cast<int>(Datenbank.AnzSchueler), "Anzahl");
        QTEST(Tabelle()->Rows() - 2, "Anzahl");
        QVERIFY(Eingabe()->isHidden());
    }

    void GetipptePunkteVorDemLoeschenEinesAnderenGehenNichtVerloren() {
        Anklicken(3, 1);
        Tippen(u"33"_s);
        Welt.Boxen.ErwarteFrage(u"Soll der Schüler wirklich gelöscht werden?"_s, Antwort::Nein);
        Klicken(u"btPTempSchuelerLoeschen"_s);
        QCOMPARE(Zeile(SchuelerB).P[1], u"33"_s);
    }

    void FachLoeschenFragtUndFuelltNeu() {
        Welt.Boxen.ErwarteFrage(u"Wollen Sie das Fach 7a Mathematik wirklich löschen?"_s, Antwort::Ja);
        Klicken(u"btPFachLoeschen"_s);
        QCOMPARE(Datenbank.AnzFaecher, qint16(1));
        QCOMPARE(AktFachID, 50001);
        QCOMPARE(Tabelle()->Rows(), 2);
        Welt.Boxen.ErwarteFrage(u"Wollen Sie das Fach 7a Physik wirklich löschen?"_s, Antwort::Nein);
        Klicken(u"btPFachLoeschen"_s);
        QCOMPARE(Datenbank.AnzFaecher, qint16(1));
    }

    void GetipptesFachGehtZumAssistenten() {
        Schritte->Erwarte(u"dlgNeuesFach1"_s, [](QDialog& Dialog) {
            QCOMPARE(Dialog.findChild<QLineEdit*>(u"txtKlasse"_s)->text(), u"8b"_s);
            QCOMPARE(Dialog.findChild<QLineEdit*>(u"txtFach"_s)->text(), u"Werken und Technik"_s);
            QTest::mouseClick(Dialog.findChild<QPushButton*>(u"btEnde"_s), Qt::LeftButton);
        });
        Liste(u"cbPKlasseFach"_s)->setFocus();
        Tippen(u"8b Werken und Technik"_s);
        QTest::keyClick(Liste(u"cbPKlasseFach"_s), Qt::Key_Return);
        QCOMPARE(Liste(u"cbPKlasseFach"_s)->currentText(), u"8b Werken und Technik"_s);
        QCOMPARE(AktFachID, 50002);
        QCOMPARE(Liste(u"cbPProbe"_s)->itemText(0), u"1. Probe 8"_s);
    }

    void AbgebrochenerAssistentNimmtWiederDasAlteFach() {
        Schritte->Erwarte(u"dlgNeuesFach1"_s, [](QDialog& Dialog) { Dialog.reject(); });
        Liste(u"cbPKlasseFach"_s)->setFocus();
        Tippen(u"8b Werken"_s);
        QTest::mouseClick(Feld(u"txtPThema"_s), Qt::LeftButton);
        QCOMPARE(Liste(u"cbPKlasseFach"_s)->currentText(), u"7a Mathematik"_s);
        QCOMPARE(AktFachID, 50000);
    }

    void NeuesFachKnopfWaehltDasNeueFach() {
        Schritte->Erwarte(u"dlgNeuesFach1"_s, [](QDialog& Dialog) {
            Dialog.findChild<QLineEdit*>(u"txtKlasse"_s)->setText(u"9c"_s);
            Dialog.findChild<QLineEdit*>(u"txtFach"_s)->setText(u"Latein"_s);
            QTest::mouseClick(Dialog.findChild<QPushButton*>(u"btEnde"_s), Qt::LeftButton);
        });
        Klicken(u"btPNeuesFach"_s);
        QCOMPARE(Liste(u"cbPKlasseFach"_s)->currentText(), u"9c Latein"_s);
    }

    // --- charts -----------------------------------------------------------------------------------------

    void DiagrammeFolgenDerAuswertung() {
        const QImage Vorher = Teil<Bildfeld>(u"picNoten"_s)->grab().toImage();
        QCOMPARE(Vorher.pixel(0, 0), QRgb(0xFFFFFFFF));
        Anklicken(3, 1);
        Tippen(u"40"_s);
        Taste(Qt::Key_Return);
        QVERIFY(Teil<Bildfeld>(u"picNoten"_s)->grab().toImage() != Vorher);
    }
};

TESTKLASSE(TestAnsichtP)
#include "tst_ansichtp.moc"
