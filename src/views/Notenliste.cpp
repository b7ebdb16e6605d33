#include "views/Notenliste.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "grading/Gesamtnoten.h"
#include "views/Fuellsperre.h"

#include <QtMath>

namespace {

constexpr int Halbjahrzeile = 1;
constexpr int ErsteZeile = 2;
constexpr QRgb VonHand = qRgb(255, 0, 0);
constexpr QRgb Berechnet = qRgb(0, 0, 0);

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

bool PunkteVonHand(const Notenzeile& Zeile, int Spalte) {
    return Spalte <= Notenspalte::LetzterTest && Zeile.P[Spalte].contains(u'-') &&
           ZahlAusText(Zeile.P[Spalte]) < 0;
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

/// A whole row of the list with its colours, the averages included.
Gitterzeile NeueGitterzeile(const Notenlistenzeile& Quelle, const Gesamtregeln& Regeln) {
    const Notenzeile& Satz = Datenbank.Noten[Quelle.Platz];
    Gitterzeile Zeile{Quelle.Datum, std::vector<Gitterzelle>(Notenspalte::Anzahl)};
    const auto Zelle = [&Zeile](int Spalte) -> Gitterzelle& {
        return Zeile.Zellen[static_cast<std::size_t>(Spalte)];
    };
    Zelle(Notenspalte::Name).Text = Quelle.Name;
    for (int Spalte = 1; Spalte <= Notenspalte::LetzteNote; ++Spalte) {
        Zelle(Spalte).Text = Satz.N[Spalte];
        Zelle(Spalte).Vordergrund = PunkteVonHand(Satz, Spalte) ? VonHand : Berechnet;
    }
    Zelle(Notenspalte::HalbjahrZeugnis).Text = Satz.Gesamt1;
    Zelle(Notenspalte::JahrZeugnis).Text = Satz.Gesamt2;
    if (Quelle.FachPlatz < 0)
        return Zeile;
    const Halbjahresbeginn Beginn = HalbjahresbeginnVon(Datenbank.Faecher[Quelle.FachPlatz]);
    const Durchschnitte Beide = DurchschnitteBerechnen(Satz.N, Beginn, Regeln);
    Zelle(Notenspalte::HalbjahrDurchschnitt).Text = Beide.Halbjahr;
    Zelle(Notenspalte::JahrDurchschnitt).Text = Beide.Jahr;
    for (int Spalte = 0; Spalte < Notenspalte::Anzahl; ++Spalte)
        Zelle(Spalte).Hintergrund = Notenspaltenfarbe(Spalte, Beginn);
    return Zeile;
}

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
    Tabelle->setColorMeaning(QColor(VonHand), QStringLiteral("Note von Hand gesetzt"));
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
    const int Stufe = qBound(1, Art.Stufe(), Probenbezeichnung.size() - 1);
    for (int i = 1; i <= 10; ++i) {
        Tabelle->setTextMatrix(0, i, Probenbezeichnung[Stufe]);
        Tabelle->setTextMatrix(0, 10 + i, ExtemporalenBezeichnung[Stufe]);
        Tabelle->setTextMatrix(0, 20 + i, QStringLiteral("Mündlich"));
    }
}

void Notenliste::ZeilenSchreiben() {
    const Gesamtregeln Regeln = AktuelleGesamtregeln();
    std::vector<Gitterzeile> Zeilen;
    for (const Notenlistenzeile& Eine : Art.Zeilen())
        Zeilen.push_back(NeueGitterzeile(Eine, Regeln));
    Tabelle->ZeilenSetzen(std::move(Zeilen));
    if (Art.NachNamen() && Tabelle->Rows() >= 5)
        Tabelle->Sortieren(Notenspalte::Name, ErsteZeile, Tabelle->Rows() - 2, Sortierart::TextAufsteigend);
    Tabelle->setCell(ErsteZeile, Notenspalte::Name);
    HalbjahrtitelSchreiben();
    Tabelle->setCellBackColor(Tabelle->Rows() - 1, Notenspalte::Name,
                              Notenspaltenfarbe(Notenspalte::Name, {}));
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
    Fachsuche Suche;
    for (int Zeile = ErsteZeile; Zeile <= Tabelle->Rows() - 2; ++Zeile) {
        const Fach* Eines = Suche(Art.FachID(Tabelle->RowData(Zeile)));
        if (!Eines)
            continue;
        const Halbjahresbeginn Beginn = HalbjahresbeginnVon(*Eines);
        for (int Spalte = 0; Spalte < Notenspalte::Anzahl; ++Spalte)
            Tabelle->setCellBackColor(Zeile, Spalte, Notenspaltenfarbe(Spalte, Beginn));
    }
}

void Notenliste::GesamtnotenBerechnen() {
    const Gesamtregeln Regeln = AktuelleGesamtregeln();
    Fachsuche Suche;
    for (int Zeile = ErsteZeile; Zeile <= Tabelle->Rows() - 2; ++Zeile) {
        const Fach* Eines = Suche(Art.FachID(Tabelle->RowData(Zeile)));
        if (!Eines)
            continue;
        const Durchschnitte Beide =
            DurchschnitteBerechnen(Notentexte(*Tabelle, Zeile), HalbjahresbeginnVon(*Eines), Regeln);
        Tabelle->setTextMatrix(Zeile, Notenspalte::HalbjahrDurchschnitt, Beide.Halbjahr);
        Tabelle->setTextMatrix(Zeile, Notenspalte::JahrDurchschnitt, Beide.Jahr);
    }
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
