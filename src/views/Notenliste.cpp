#include "views/Notenliste.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "grading/Gesamtnoten.h"
#include "views/Fuellsperre.h"
#include "views/Notenzeilenquelle.h"

#include <QtMath>

namespace {

constexpr int Halbjahrzeile = 1;
constexpr int ErsteZeile = 2;

// Shares of the width: the name, thirty grades, and twice average and report grade.
constexpr double AnteilNote = 0.0232;
constexpr double AnteilDurchschnitt = 0.035;
constexpr double AnteilZeugnis = 0.055;
constexpr double AnteilName = 1 - 30 * AnteilNote - 2 * AnteilDurchschnitt - 2 * AnteilZeugnis;

QList<double> Spaltenanteile() {
    QList<double> Anteile{AnteilName};
    Anteile.append(QList<double>(30, AnteilNote));
    Anteile.append({AnteilDurchschnitt, AnteilZeugnis, AnteilDurchschnitt, AnteilZeugnis});
    return Anteile;
}

/// So wide that no grade is ever cut short; in a narrower window the list scrolls.
int Mindestbreite(const QFontMetrics& Mass) {
    const int Note =
        qMax(Mass.horizontalAdvance(QStringLiteral("3+")), Mass.horizontalAdvance(QStringLiteral("ne")));
    return qCeil((Note + 3) / AnteilNote);
}

Reihe<QString, 31> Notentexte(const Gitter& Tabelle, int Zeile) {
    Reihe<QString, 31> Texte;
    for (int Spalte = 1; Spalte <= Notenspalte::LetzteNote; ++Spalte)
        Texte[Spalte] = Tabelle.TextMatrix(Zeile, Spalte);
    return Texte;
}

/// Looks up subjects row by row; the rows of one list mostly have the same.
class Fachsuche {
  public:
    const Fach* operator()(qint32 ID) {
        if (ID != Letzte)
            Platz = FachIndex(ID);
        Letzte = ID;
        return Platz < 0 ? nullptr : &Datenbank.Faecher[Platz];
    }

  private:
    qint32 Letzte = 0;
    int Platz = -1;
};

} // namespace

Notenliste::Notenliste(Gitter* Liste, Listenart& WelcheArt)
    : QObject(Liste)
    , Tabelle(Liste)
    , Feld(new EingabeFeld(Liste))
    , Art(WelcheArt) {
    GitterEinrichten();
    EingabeEinrichten();
}

Notenliste::~Notenliste() {
    EingabezaehlerAktion(Art.Zaehlerplatz(), {});
}

void Notenliste::GitterEinrichten() {
    Tabelle->setCols(Notenspalte::Anzahl);
    Tabelle->setRows(ErsteZeile + 1);
    Tabelle->setFixedRows(ErsteZeile);
    Tabelle->setFixedCols(1);
    Tabelle->setMergeRow(0, true);
    Tabelle->setMergeRow(Halbjahrzeile, true);
    Tabelle->setColShares(Spaltenanteile(), Mindestbreite(Tabelle->fontMetrics()));
    for (int Spalte = 1; Spalte < Notenspalte::Anzahl; ++Spalte)
        Tabelle->setColAlignment(Spalte, Qt::AlignCenter);
    Tabelle->setColorMeaning(QColor(NoteVonHand), QStringLiteral("Note von Hand gesetzt"));
    Tabelle->setTextMatrix(0, Notenspalte::Name, Art.Kopf());
    for (const int Spalte : {Notenspalte::HalbjahrDurchschnitt, Notenspalte::HalbjahrZeugnis})
        Tabelle->setTextMatrix(0, Spalte, QStringLiteral("Halbjahr"));
    for (const int Spalte : {Notenspalte::JahrDurchschnitt, Notenspalte::JahrZeugnis})
        Tabelle->setTextMatrix(0, Spalte, QStringLiteral("Endjahr"));
    for (const int Spalte : {Notenspalte::HalbjahrDurchschnitt, Notenspalte::JahrDurchschnitt})
        Tabelle->setTextMatrix(Halbjahrzeile, Spalte, QStringLiteral("Ø"));
    for (const int Spalte : {Notenspalte::HalbjahrZeugnis, Notenspalte::JahrZeugnis})
        Tabelle->setTextMatrix(Halbjahrzeile, Spalte, QStringLiteral("Zeugnis"));
}

void Notenliste::Fuellen() {
    const Fuellsperre Sperre;
    Feld->Verbergen();
    Art.EingabeAbgebrochen();
    const bool Gewaehlt = Art.Gewaehlt();
    Art.AktivSetzen(Gewaehlt);
    if (!Gewaehlt) {
        Tabelle->ZeilenSetzen({});
        return;
    }
    TitelSchreiben();
    ZeilenSchreiben();
    EingabezaehlerLeeren();
}

void Notenliste::TitelSchreiben() {
    const int Stufe = qBound(0, Art.Stufe(), Probenbezeichnung.size() - 1);
    for (int i = 1; i <= 10; ++i) {
        Tabelle->setTextMatrix(0, i, Probenbezeichnung[Stufe]);
        Tabelle->setTextMatrix(0, 10 + i, ExtemporalenBezeichnung[Stufe]);
        Tabelle->setTextMatrix(0, 20 + i, QStringLiteral("Mündlich"));
    }
}

void Notenliste::ZeilenSchreiben() {
    std::vector<Notenlistenzeile> Zeilen = Art.Zeilen();
    if (Art.NachNamen())
        NachNamenOrdnen(Zeilen);
    std::vector<qint32> Daten;
    Daten.reserve(Zeilen.size());
    for (const Notenlistenzeile& Eine : Zeilen)
        Daten.push_back(Art.Datum(Eine));
    Quelle = std::make_shared<Notenzeilenquelle>(
        std::move(Zeilen), Art.NachNamen() ? SchuelernameDer : FachnameDer, AktuelleGesamtregeln());
    Tabelle->ZeilenSetzen(Daten, [Von = Quelle](int Nummer) { return Von->Zellen(Nummer); });
    Tabelle->setCell(ErsteZeile, Notenspalte::Name);
    HalbjahrtitelSchreiben();
    Tabelle->setCellBackColor(Tabelle->Rows() - 1, Notenspalte::Name,
                              Notenspaltenfarbe(Notenspalte::Name, {}));
}

/// Does this for the subject of each row that stands in the grid. The others are not looked at for it: they
/// will come from their records as these are then.
void Notenliste::FuerStehendeZeilen(const std::function<void(int, const Halbjahresbeginn&)>& Tun) {
    Fachsuche Suche;
    for (int Zeile = ErsteZeile; Zeile <= Tabelle->Rows() - 2; ++Zeile) {
        if (!Tabelle->ZeileSteht(Zeile))
            continue;
        if (const Fach* Eines = Suche(Art.FachID(Tabelle->RowData(Zeile))))
            Tun(Zeile, HalbjahresbeginnVon(*Eines));
    }
}

/// The half-years in the header follow the first row; without one they stay as they are.
void Notenliste::HalbjahrtitelSchreiben() {
    const int Platz = FachIndex(Art.FachID(Tabelle->RowData(ErsteZeile)));
    if (Platz < 0)
        return;
    const Halbjahresbeginn Beginn = HalbjahresbeginnVon(Datenbank.Faecher[Platz]);
    for (int Spalte = 1; Spalte <= Notenspalte::LetzteNote; ++Spalte)
        Tabelle->setTextMatrix(Halbjahrzeile, Spalte, Halbjahrestitel(Spalte, Beginn));
}

void Notenliste::HalbjahreAnzeigen() {
    const Fuellsperre Sperre;
    HalbjahrtitelSchreiben();
    FuerStehendeZeilen([this](int Zeile, const Halbjahresbeginn& Beginn) {
        for (int Spalte = 0; Spalte < Notenspalte::Anzahl; ++Spalte)
            Tabelle->setCellBackColor(Zeile, Spalte, Notenspaltenfarbe(Spalte, Beginn));
    });
}

void Notenliste::GesamtnotenBerechnen() {
    const Gesamtregeln Regeln = AktuelleGesamtregeln();
    if (Quelle)
        Quelle->RegelnSetzen(Regeln);
    FuerStehendeZeilen([this, &Regeln](int Zeile, const Halbjahresbeginn& Beginn) {
        const Durchschnitte Beide = DurchschnitteBerechnen(Notentexte(*Tabelle, Zeile), Beginn, Regeln);
        Tabelle->setTextMatrix(Zeile, Notenspalte::HalbjahrDurchschnitt, Beide.Halbjahr);
        Tabelle->setTextMatrix(Zeile, Notenspalte::JahrDurchschnitt, Beide.Jahr);
    });
    DurchschnittImFeldErneuern();
}

bool Notenliste::InEingabezeile() const {
    return Tabelle->Row() == Tabelle->Rows() - 1;
}

qint32 Notenliste::AktDatum() const {
    return Tabelle->RowData(Tabelle->Row());
}

QString Notenliste::Name() const {
    return Tabelle->TextMatrix(Tabelle->Row(), Notenspalte::Name);
}

void Notenliste::ZurEingabezeile() {
    if (InEingabezeile())
        ZelleBetreten();
    else
        Tabelle->setRow(Tabelle->Rows() - 1);
}

void Notenliste::AufLetzteZeile() {
    Tabelle->setRow(qMax(ErsteZeile, Tabelle->Rows() - 2));
}

void Notenliste::EineZeileHinauf() {
    if (Tabelle->Row() > ErsteZeile)
        Tabelle->setRow(Tabelle->Row() - 1);
}
