// Long lists: a list that is filled again shows what one filled for the first time shows, whatever has
// changed in between and whatever of it has been looked at; rows that have not been looked at yet are as good
// as those that have.

#include "assessments/AnsichtB.h"
#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "controls/EingabeFeld.h"
#include "controls/EingabeText.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/FktSpeziell.h"
#include "records/Loeschen.h"
#include "views/AnsichtN1.h"
#include "views/AnsichtN2.h"
#include "views/AnsichtS.h"

#include <QtTest>

#include <functional>

namespace {

constexpr int Schuelerzahl = 60;
constexpr qint32 Mathe = 50000;
constexpr qint32 Deutsch = 50001;
constexpr qint32 Einer = 10030; ///< a student far down in the list
constexpr int Gemessen = 20;    ///< pixels

/// A class with two subjects, more students than a window shows, and another class.
QString Buch() {
    QString Zeilen = QStringLiteral("Klasse 7a\nKlasse 7b\nFach 50000 7a Mathe\nFach 50001 7a Deutsch\n"
                                    "Schueler 10900 7b Zorn Uwe\nNote 10900 50001 N1=3\n");
    for (int i = 0; i < Schuelerzahl; ++i)
        Zeilen += QStringLiteral("Schueler %1 7a Name%2 Tom\nNote %1 50000 N1=%3 P1=%4 N21=2 G1=3\n"
                                 "Note %1 50001 N1=4 N11=1\n")
                      .arg(10000 + i)
                      .arg(i * 37 % 61, 2, 10, QLatin1Char('0'))
                      .arg(i % 6 + 1)
                      .arg(i);
    return Zeilen;
}

Schueler& SchuelerMit(qint32 ID) {
    return Datenbank.Schueler[SchuelerIndex(ID)];
}

Notenzeile& NoteVon(qint32 Schueler_ID, qint32 Fach_ID = Mathe) {
    return Datenbank.Noten[NotenIndex(Schueler_ID, Fach_ID)];
}

Fach& FachMit(qint32 ID) {
    return Datenbank.Faecher[FachIndex(ID)];
}

/// All that a grid shows, from outside: sizes, row data, texts and colours, a line for each row. Without rows
/// the header keeps what it said last.
QStringList Abschrift(const Gitter& Tabelle) {
    QStringList Zeilen{QStringLiteral("%1 x %2").arg(Tabelle.Rows()).arg(Tabelle.Cols())};
    const bool Leer = Tabelle.Rows() == Tabelle.FixedRows() + 1;
    for (int z = Leer ? Tabelle.FixedRows() : 0; z < Tabelle.Rows(); ++z) {
        QStringList Zellen{QString::number(Tabelle.RowData(z)), QString::number(Tabelle.RowHeight(z))};
        for (int s = 0; s < Tabelle.Cols(); ++s)
            Zellen.append(Tabelle.TextMatrix(z, s) + u'/' + Tabelle.CellForeColor(z, s).name() + u'/' +
                          Tabelle.CellBackColor(z, s).name());
        Zeilen.append(Zellen.join(u'|'));
    }
    QStringList Breiten;
    for (int s = 0; s < Tabelle.Cols(); ++s)
        Breiten.append(QString::number(Tabelle.ColWidth(s)));
    Zeilen.append(Breiten.join(u'|'));
    return Zeilen;
}

/// A view in a window, filled.
template <class Art>
class Gefuellte {
  public:
    explicit Gefuellte(int Breite = 1200) {
        Sicht.resize(Breite, 400);
        Sicht.show();
        Sicht.Fuellen();
        QCoreApplication::processEvents();
    }
    void Fuellen() {
        Sicht.Fuellen();
        QCoreApplication::processEvents();
    }
    template <class Teilart>
    Teilart& Teil(const char* Name) {
        return *Sicht.template findChild<Teilart*>(QString::fromLatin1(Name));
    }
    Gitter& Liste() { return Teil<Gitter>(Gittername()); }

    Art Sicht;

  private:
    static const char* Gittername() {
        if constexpr (std::is_same_v<Art, AnsichtS>)
            return "tblSSchueler";
        else if constexpr (std::is_same_v<Art, AnsichtN1>)
            return "tblN1Noten";
        else if constexpr (std::is_same_v<Art, AnsichtN2>)
            return "tblN2Noten";
        else
            return "tblBeurteilungen";
    }
};

struct Aenderung {
    const char* Name;
    std::function<void()> Tun;
};

QList<Aenderung> Aenderungen() {
    return {
        {"nothing", [] {}},
        {"a grade", [] { NoteVon(Einer).N[1] = QStringLiteral("6"); }},
        {"a grade in place", [] { NoteVon(Einer).N[1] += QStringLiteral("-"); }},
        {"points that mark a grade set by hand", [] { NoteVon(Einer).P[1] = QStringLiteral("-12"); }},
        {"a report grade", [] { NoteVon(Einer).Gesamt2 = QStringLiteral("5"); }},
        {"a name that moves its row", [] { SchuelerMit(Einer).Name = QStringLiteral("Aal Eva"); }},
        {"a name changed in place", [] { SchuelerMit(Einer).Name[0] = u'Z'; }},
        {"a long name", [] { SchuelerMit(Einer).Name += QStringLiteral(" von und zu Hohenberg"); }},
        {"a field", [] { SchuelerMit(Einer).Feld[3] = QStringLiteral("Hauptstraße 3"); }},
        {"a field made shorter in place",
         [] {
             for (int i = 0; i < Datenbank.AnzSchueler; ++i)
                 Datenbank.Schueler[i].Feld[1].truncate(2);
         }},
        {"a title of a field", [] { Datenbank.SchuelerFeldTitel[2] = QStringLiteral("Wohnort und Straße"); }},
        {"an assessment", [] { SchuelerMit(Einer).Beurteilung[0] = QStringLiteral("lang ").repeated(200); }},
        {"an assessment made shorter in place", [] { SchuelerMit(10001).Beurteilung[0].truncate(5); }},
        {"participation", [] { NoteVon(Einer).Teilnahme = QStringLiteral("nein"); }},
        {"a long word as participation",
         [] { NoteVon(Einer).Teilnahme = QStringLiteral("beurlaubt seit Mai"); }},
        {"a subject's name", [] { FachMit(Mathe).Name = QStringLiteral("Mathematik und Physik"); }},
        {"a boundary of half-years", [] { FachMit(Mathe).GrenzeP = QStringLiteral("1"); }},
        {"a merged class field", [] { FachMit(Mathe).Klasse = QStringLiteral("7ab"); }},
        {"the weights of averages", [] { Datenbank.GewichtungM = 5; }},
        {"the method of averages", [] { Datenbank.NotenberechnenMethode = QStringLiteral("2"); }},
        {"the format of averages",
         [] { EinstellungSchreiben(QStringLiteral("Notenformat"), QStringLiteral("0.00")); }},
        {"a student more",
         [] {
             TestbuchLaden(
                 QStringLiteral("Schueler 10700 7a Mitte Kai\nNote 10700 50000 N1=2\nNote 10700 50001"));
         }},
        {"a student less", [] { SchuelerLoeschen(10001); }},
        {"a subject less", [] { FachLoeschen(Deutsch); }},
        {"a student of another class", [] { SchuelerMit(Einer).Klasse = QStringLiteral("7b"); }},
        {"a row of grades that goes to another student", [] { NoteVon(Einer).Schueler_ID = 10900; }},
        {"two students who change places", [] { std::swap(Datenbank.Schueler[3], Datenbank.Schueler[40]); }},
        {"two rows of grades that change places", [] { std::swap(Datenbank.Noten[3], Datenbank.Noten[40]); }},
        {"a student of another year", [] { SchuelerMit(Einer).Jahr = QStringLiteral("2002/03"); }},
        {"another school year", [] { Datenbank.AktJahr = QStringLiteral("2002/03"); }},
        {"all students of the same name",
         [] {
             for (int i = 0; i < Datenbank.AnzSchueler; ++i)
                 Datenbank.Schueler[i].Name = QStringLiteral("Name Tom");
         }},
        {"an empty book",
         [] {
             Datenbank.AnzSchueler = Datenbank.AnzNoten = Datenbank.AnzKlassen = Datenbank.AnzFaecher = 0;
         }},
    };
}

void VorherAnsehen(Gitter& Tabelle, const QString& Was) {
    if (Was == QStringLiteral("all"))
        Abschrift(Tabelle);
}

/// The rule itself, for one view.
template <class Art>
void NeuGefuelltWieZumErstenMal() {
    QFETCH(const int, Nummer);
    QFETCH(const QString, Angesehen);
    AktFachID = Mathe;
    AktKlasse = QStringLiteral("7a");
    AktSchuelerID = std::is_same_v<Art, AnsichtN2> ? Einer : 0;
    Gefuellte<Art> Eine;
    VorherAnsehen(Eine.Liste(), Angesehen);
    const qint32 Gewaehlter = AktSchuelerID;
    Aenderungen()[Nummer].Tun();
    Eine.Fuellen();
    AktSchuelerID = Gewaehlter;
    Gefuellte<Art> Neue;
    const QStringList Gezeigt = Abschrift(Eine.Liste());
    const QStringList Erwartet = Abschrift(Neue.Liste());
    QCOMPARE(Gezeigt.size(), Erwartet.size());
    for (qsizetype i = 0; i < Gezeigt.size(); ++i)
        QCOMPARE(Gezeigt[i], Erwartet[i]);
}

} // namespace

class LangeListenTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        TestbuchLaden(Buch());
        for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
            Datenbank.Schueler[i].Feld[1] = QStringLiteral("Feld %1").arg(i);
            Datenbank.Schueler[i].Beurteilung[0] = QStringLiteral("Text %1 ").arg(i).repeated(i);
        }
        Schritte = std::make_unique<Dialogschritte>();
    }
    void cleanup() {
        Schritte.reset();
        Welt.Aufraeumen();
    }

    void viewSIsAnewAfter_data() { Faelle(); }
    void viewSIsAnewAfter() { NeuGefuelltWieZumErstenMal<AnsichtS>(); }
    void viewN1IsAnewAfter_data() { Faelle(); }
    void viewN1IsAnewAfter() { NeuGefuelltWieZumErstenMal<AnsichtN1>(); }
    void viewN2IsAnewAfter_data() { Faelle(); }
    void viewN2IsAnewAfter() { NeuGefuelltWieZumErstenMal<AnsichtN2>(); }
    void viewBIsAnewAfter_data() { Faelle(); }
    void viewBIsAnewAfter() { NeuGefuelltWieZumErstenMal<AnsichtB>(); }

    void everyViewLeavesRowsThatNobodyLooksAt();
    void aRowFirstSeenLaterShowsItsRecordAsItIsThen();
    void aRowWhoseRecordHasMovedFindsIt();
    void aRowWhoseRecordIsGoneShowsNoOtherGrades();
    void aStudentWhoHasMovedIsFound();
    void committedGradeReachesTheRecordBehindAnUnseenRow();
    void averagesOfUnseenRowsFollowNewRules();
    void takeoverReachesUnseenRows();
    void columnsAreAsWideAsTheirUnseenTexts();
    void aColumnGetsNarrowerWhenItsWidestTextGoes();
    void aColumnOfParticipationFollowsItsTexts();
    void rowsOfAssessmentsAreAsHighAsTheirUnseenTexts();
    void heightsFollowTheWidthOfTheWindow();
    void sortingBroughtIntoViewSIsStableOverUnseenRows();

  private:
    static void Faelle() {
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<QString>("Angesehen");
        const QList<Aenderung> Alle = Aenderungen();
        for (const char* Angesehen : {"only what is in sight", "all"})
            for (int i = 0; i < Alle.size(); ++i)
                QTest::addRow("%s; before: %s", Alle[i].Name, Angesehen)
                    << i << QString::fromLatin1(Angesehen);
    }

    Testwelt Welt;
    std::unique_ptr<Dialogschritte> Schritte;
};

namespace {

int ZeileMit(const Gitter& Tabelle, qint32 Datum) {
    for (int z = 0; z < Tabelle.Rows(); ++z)
        if (Tabelle.RowData(z) == Datum)
            return z;
    qFatal("keine Zeile %d", Datum);
}

int StehendeZeilen(const Gitter& Tabelle) {
    int Zahl = 0;
    for (int z = 0; z < Tabelle.Rows(); ++z)
        Zahl += Tabelle.ZeileSteht(z) ? 1 : 0;
    return Zahl;
}

/// The last row of the list, far out of sight, and not yet asked for.
int UnterstesUngesehenes(const Gitter& Tabelle) {
    const int Zeile = Tabelle.Rows() - 2;
    if (Tabelle.ZeileSteht(Zeile))
        qFatal("Zeile %d steht schon", Zeile);
    return Zeile;
}

} // namespace

void LangeListenTest::everyViewLeavesRowsThatNobodyLooksAt() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> N1;
    QVERIFY(StehendeZeilen(N1.Liste()) < 40);
    Gefuellte<AnsichtS> S;
    QVERIFY(StehendeZeilen(S.Liste()) < 40);
    Gefuellte<AnsichtB> B;
    QVERIFY(StehendeZeilen(B.Liste()) < 40);
}

void LangeListenTest::aRowFirstSeenLaterShowsItsRecordAsItIsThen() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> Eine;
    const int Zeile = UnterstesUngesehenes(Eine.Liste());
    const qint32 ID = Eine.Liste().RowData(Zeile);
    NoteVon(ID).N[2] = QStringLiteral("1");
    QCOMPARE(Eine.Liste().TextMatrix(Zeile, 2), QStringLiteral("1"));
    QCOMPARE(Eine.Liste().TextMatrix(Zeile, 0), SchuelerMit(ID).Name);
}

void LangeListenTest::aRowWhoseRecordHasMovedFindsIt() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> Eine;
    const int Zeile = UnterstesUngesehenes(Eine.Liste());
    const qint32 ID = Eine.Liste().RowData(Zeile);
    NoteVon(ID).N[3] = QStringLiteral("x");
    std::rotate(Datenbank.Noten.begin(), Datenbank.Noten.begin() + 1,
                Datenbank.Noten.begin() + Datenbank.AnzNoten);
    QCOMPARE(Eine.Liste().TextMatrix(Zeile, 3), QStringLiteral("x"));
}

void LangeListenTest::aRowWhoseRecordIsGoneShowsNoOtherGrades() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> Eine;
    const int Zeile = UnterstesUngesehenes(Eine.Liste());
    Datenbank.AnzNoten = 0;
    for (int s = 1; s < Eine.Liste().Cols(); ++s)
        QCOMPARE(Eine.Liste().TextMatrix(Zeile, s), QString());
    Gefuellte<AnsichtS> Klasse;
    const int Unten = UnterstesUngesehenes(Klasse.Liste());
    Datenbank.AnzSchueler = 0;
    for (int s = 0; s < Klasse.Liste().Cols(); ++s)
        QCOMPARE(Klasse.Liste().TextMatrix(Unten, s), QString());
}

void LangeListenTest::aStudentWhoHasMovedIsFound() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> N1;
    Gefuellte<AnsichtS> S;
    Gefuellte<AnsichtB> B;
    const int ZeileN1 = UnterstesUngesehenes(N1.Liste());
    const int ZeileS = UnterstesUngesehenes(S.Liste());
    const int ZeileB = UnterstesUngesehenes(B.Liste());
    std::rotate(Datenbank.Schueler.begin(), Datenbank.Schueler.begin() + 1,
                Datenbank.Schueler.begin() + Datenbank.AnzSchueler);
    QCOMPARE(N1.Liste().TextMatrix(ZeileN1, 0), SchuelerMit(N1.Liste().RowData(ZeileN1)).Name);
    QCOMPARE(S.Liste().TextMatrix(ZeileS, 0), SchuelerMit(S.Liste().RowData(ZeileS)).Name);
    QCOMPARE(S.Liste().TextMatrix(ZeileS, 3), SchuelerMit(S.Liste().RowData(ZeileS)).Feld[1]);
    QCOMPARE(B.Liste().TextMatrix(ZeileB, 1), SchuelerMit(B.Liste().RowData(ZeileB)).Beurteilung[0]);
}

void LangeListenTest::committedGradeReachesTheRecordBehindAnUnseenRow() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> Eine;
    const int Zeile = UnterstesUngesehenes(Eine.Liste());
    const qint32 ID = Eine.Liste().RowData(Zeile);
    Eine.Liste().Enter(Zeile, 22);
    auto& Feld = Eine.Teil<EingabeFeld>("txtN1Eingabe");
    QTest::keyClicks(&Feld, QStringLiteral("6"));
    QTest::keyClick(&Feld, Qt::Key_Return);
    QCOMPARE(NoteVon(ID).N[22], QStringLiteral("6"));
    const QStringList Gezeigt = Abschrift(Eine.Liste());
    Gefuellte<AnsichtN1> Neue;
    QCOMPARE(Gezeigt[Zeile + 1], Abschrift(Neue.Liste())[Zeile + 1]);
}

void LangeListenTest::averagesOfUnseenRowsFollowNewRules() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> Eine;
    UnterstesUngesehenes(Eine.Liste());
    EinstellungSchreiben(QStringLiteral("Notenformat"), QStringLiteral("0.00"));
    Eine.Liste().Enter(2, 22);
    auto& Feld = Eine.Teil<EingabeFeld>("txtN1Eingabe");
    QTest::keyClicks(&Feld, QStringLiteral("6"));
    QTest::keyClick(&Feld, Qt::Key_Return); // a commit computes the averages of the whole list
    for (int z = 2; z < Eine.Liste().Rows() - 1; ++z)
        QCOMPARE(Eine.Liste().TextMatrix(z, 33).section(u',', 1).size(), 2);
}

void LangeListenTest::takeoverReachesUnseenRows() {
    AktFachID = Mathe;
    Gefuellte<AnsichtN1> Eine;
    const qint32 ID = Eine.Liste().RowData(UnterstesUngesehenes(Eine.Liste()));
    Eine.Liste().Enter(2, 34);
    Welt.Boxen.ErwarteFrage(
        QStringLiteral("Sollen die errechneten Durchschnittsnoten als Zeugnisnoten übernommen werden?"),
        Antwort::Ja);
    QTest::mouseDClick(&Eine.Teil<EingabeFeld>("txtN1Eingabe"), Qt::LeftButton);
    for (int z = 2; z < Eine.Liste().Rows() - 1; ++z)
        QCOMPARE(Eine.Liste().TextMatrix(z, 34), NoteVon(Eine.Liste().RowData(z)).Gesamt2);
    QVERIFY(!NoteVon(ID).Gesamt2.isEmpty());
}

void LangeListenTest::columnsAreAsWideAsTheirUnseenTexts() {
    Gefuellte<AnsichtS> Vorher;
    const int Schmal = Vorher.Liste().ColWidth(4);
    const qint32 ID = Vorher.Liste().RowData(UnterstesUngesehenes(Vorher.Liste()));
    SchuelerMit(ID).Feld[2] = QStringLiteral("Wilhelmstraße");
    Vorher.Fuellen();
    UnterstesUngesehenes(Vorher.Liste());
    QVERIFY(Vorher.Liste().ColWidth(4) > Schmal + Gemessen);
}

void LangeListenTest::aColumnGetsNarrowerWhenItsWidestTextGoes() {
    Gefuellte<AnsichtS> Eine;
    const int Schmal = Eine.Liste().ColWidth(4);
    const int Zeile = Eine.Liste().Rows() - 2;
    for (const char* Text : {"Wilhelmstraße", "x"}) {
        Eine.Liste().Enter(Zeile, 4);
        auto& Feld = Eine.Teil<EingabeFeld>("txtSEingabe");
        Feld.setText(QString::fromUtf8(Text));
        QTest::keyClick(&Feld, Qt::Key_Return);
        QCOMPARE(Eine.Liste().ColWidth(4) > Schmal, QString::fromUtf8(Text).size() > 1);
    }
    QCOMPARE(Eine.Liste().ColWidth(4), Schmal);
}

void LangeListenTest::aColumnOfParticipationFollowsItsTexts() {
    FachMit(Mathe).Name = QStringLiteral("M");
    for (int i = 0; i < Schuelerzahl; ++i)
        NoteVon(10000 + i).Teilnahme = QStringLiteral("j");
    Gefuellte<AnsichtS> Eine;
    const int Schmal = Eine.Liste().ColWidth(1);
    const int Zeile = Eine.Liste().Rows() - 2;
    auto& Feld = Eine.Teil<EingabeFeld>("txtSEingabe");
    Eine.Liste().Enter(Zeile, 1);
    QTest::keyClick(&Feld, Qt::Key_Space, Qt::NoModifier); // becomes "nein"
    QTest::keyClick(&Feld, Qt::Key_Return);
    QVERIFY(Eine.Liste().ColWidth(1) > Schmal);
    NoteVon(Eine.Liste().RowData(Zeile)).Teilnahme = QStringLiteral("j");
    Eine.Fuellen();
    QCOMPARE(Eine.Liste().ColWidth(1), Schmal);
}

void LangeListenTest::rowsOfAssessmentsAreAsHighAsTheirUnseenTexts() {
    Gefuellte<AnsichtB> Eine;
    const int Zeile = UnterstesUngesehenes(Eine.Liste());
    const int Vorher = Eine.Liste().RowHeight(Zeile);
    SchuelerMit(Eine.Liste().RowData(Zeile)).Beurteilung[0] += QStringLiteral("\r\nund\r\nso\r\nweiter");
    Eine.Fuellen();
    UnterstesUngesehenes(Eine.Liste());
    QVERIFY(Eine.Liste().RowHeight(Zeile) > Vorher + 2 * Gemessen);
}

void LangeListenTest::heightsFollowTheWidthOfTheWindow() {
    Gefuellte<AnsichtB> Eine;
    Eine.Sicht.resize(700, 400);
    QCoreApplication::processEvents();
    QStringList Hoehen;
    for (int z = 0; z < Eine.Liste().Rows(); ++z)
        Hoehen.append(QString::number(Eine.Liste().RowHeight(z)));
    const int Breite = Eine.Liste().ColWidth(1);
    // Nothing is known to a view that has never been wider.
    Gefuellte<AnsichtB> Neue(700);
    QCOMPARE(Neue.Liste().ColWidth(1), Breite);
    for (int z = 0; z < Eine.Liste().Rows(); ++z)
        QCOMPARE(Hoehen[z], QString::number(Neue.Liste().RowHeight(z)));
}

void LangeListenTest::sortingBroughtIntoViewSIsStableOverUnseenRows() {
    for (int i = 0; i < Schuelerzahl; ++i)
        SchuelerMit(10000 + i).Feld[1] = i % 2 == 0 ? QStringLiteral("b") : QStringLiteral("A");
    Gefuellte<AnsichtS> Eine;
    QTest::mouseClick(Eine.Liste().viewport(), Qt::RightButton, {}, Eine.Liste().CellRect(1, 3).center());
    QStringList Gezeigt;
    for (int z = 2; z < Eine.Liste().Rows() - 1; ++z)
        Gezeigt.append(Eine.Liste().TextMatrix(z, 3) + Eine.Liste().TextMatrix(z, 0));
    QStringList Erwartet = Gezeigt;
    std::sort(Erwartet.begin(), Erwartet.end());
    QCOMPARE(Gezeigt, Erwartet);
    QCOMPARE(Gezeigt.size(), Schuelerzahl);
    QCOMPARE(SchuelerMit(Eine.Liste().RowData(ZeileMit(Eine.Liste(), Einer))).ID, Einer);
}

TESTKLASSE(LangeListenTest)
#include "tst_langelisten.moc"
