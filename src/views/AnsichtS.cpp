#include "views/AnsichtS.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Fehlerfang.h"
#include "core/FktSpeziell.h"
#include "records/Loeschfragen.h"
#include "records/Satzdialoge.h"
#include "views/AnsichtSSpalten.h"
#include "views/Fuellsperre.h"

#include "ui_AnsichtS.h"

namespace {

constexpr QRgb FarbeName = qRgb(238, 238, 238);
constexpr QRgb FarbeTeilnahme = qRgb(221, 239, 255);
constexpr QRgb FarbeFeld = qRgb(221, 255, 221);

constexpr double GroessteTextbreite = 2000; // twips
constexpr double Zellrand = 150;            // twips

const QString HinweisKlasse = QStringLiteral(
    "Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung eingeben und Return drücken!");

QRgb Spaltenfarbe(int Spalte, int AnzTeilnahmeSpalten) {
    if (Spalte == 0)
        return FarbeName;
    return Spalte <= AnzTeilnahmeSpalten ? FarbeTeilnahme : FarbeFeld;
}

std::vector<Gitterzelle> Schuelerzellen(const Schuelerliste& Liste, int Zeile) {
    std::vector<Gitterzelle> Zellen;
    Zellen.reserve(static_cast<std::size_t>(Liste.Spalten()));
    for (int Spalte = 0; Spalte < Liste.Spalten(); ++Spalte)
        Zellen.push_back({Liste.Text(static_cast<std::size_t>(Zeile), Spalte), 0,
                          Spaltenfarbe(Spalte, Liste.Faecherzahl())});
    return Zellen;
}

} // namespace

AnsichtS::AnsichtS(QWidget* Eltern)
    : Ansicht(Eltern)
    , Form(std::make_unique<Ui::AnsichtS>()) {
    Form->setupUi(this);
    tblSSchueler = Form->tblSSchueler;
    cbSKlasse = Form->cbSKlasse;
    GitterEinrichten();
    EingabeEinrichten();

    cbSKlasse->setSortiert(true);
    connect(cbSKlasse, &Kombinationsfeld::Klick, this, [this] { Ausfuehren([this] { KlasseGewaehlt(); }); });
    connect(cbSKlasse, &Kombinationsfeld::Anlegen, this, [this] { KlasseAnlegen(*cbSKlasse, true); });
    connect(cbSKlasse, &Kombinationsfeld::Betreten, this,
            [this] { Q_EMIT HinweisGewuenscht(HinweisKlasse); });

    connect(Form->btSNeuesFach, &QPushButton::clicked, this, &AnsichtS::NeuesFach);
    connect(Form->btSFachLoeschen, &QPushButton::clicked, this, &AnsichtS::FachLoeschen);
    connect(Form->btSNeuerSchueler, &QPushButton::clicked, this, &AnsichtS::NeuerSchueler);
    connect(Form->btSSchuelerLoeschen, &QPushButton::clicked, this, &AnsichtS::SchuelerLoeschen);
    connect(Form->btSNeueKlasse, &QPushButton::clicked, this, &AnsichtS::NeueKlasse);
    connect(Form->btSKlasseLoeschen, &QPushButton::clicked, this, &AnsichtS::KlasseLoeschen);
    // There is nothing yet that it could open.
    Form->btSAlteKlassen->setEnabled(false);
    AnsichtSAktiv(false);
}

AnsichtS::~AnsichtS() = default;

void AnsichtS::GitterEinrichten() {
    tblSSchueler->setCols(1 + AnzFelder);
    tblSSchueler->setRows(3);
    tblSSchueler->setFixedRows(2);
    tblSSchueler->setFixedCols(1);
    tblSSchueler->setMergeRow(0, true);
    tblSSchueler->setTextMatrix(1, 0, QStringLiteral("Schüler"));
}

void AnsichtS::Fuellen() {
    Ausfuehren([this] { KlassenlisteFuellen(); });
}

void AnsichtS::KlassenlisteFuellen() {
    const qint32 Gewaehlt = AktSchuelerID;
    const int Platz = SchuelerIndex(Gewaehlt);
    if (Platz >= 0)
        AktKlasse = Datenbank.Schueler[Platz].Klasse;
    SortSpalteS = 0;

    cbSKlasse->Leeren();
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        if (Datenbank.Klassen[i].Jahr == Datenbank.AktJahr)
            cbSKlasse->Hinzufuegen(Datenbank.Klassen[i].Name);
    if (cbSKlasse->count() == 0) {
        SchuelerlisteFuellen();
        return;
    }
    int Index = 0;
    for (int i = 0; i < cbSKlasse->count(); ++i)
        if (cbSKlasse->itemText(i) == AktKlasse)
            Index = i;
    cbSKlasse->setListIndex(Index);

    // Choosing a class drops the student; coming back to his class does not.
    if (Platz >= 0 && Datenbank.Schueler[Platz].Klasse == AktKlasse) {
        AktSchuelerID = Gewaehlt;
        Q_EMIT PassbildGewuenscht();
    }
}

void AnsichtS::KlasseGewaehlt() {
    SchuelerlisteFuellen();
    AktKlasse = cbSKlasse->currentText();
    AktSchuelerID = 0;
    Q_EMIT PassbildGewuenscht();
}

void AnsichtS::SchuelerlisteFuellen() {
    const bool MitKlasse = cbSKlasse->ListIndex() >= 0;
    const Fuellsperre Sperre;
    txtSEingabe->Verbergen();
    Form->btSFachLoeschen->setEnabled(false);
    Form->btSSchuelerLoeschen->setEnabled(false);
    AnsichtSAktiv(MitKlasse);
    tblSSchueler->setUpdatesEnabled(false);
    Liste = std::make_shared<Schuelerliste>(MitKlasse ? SchuelerlisteDerKlasse(cbSKlasse->currentText())
                                                      : Schuelerliste());
    KopfFuellen();
    const std::vector<double> Breiten = Spaltenbreiten(); // while the rows stand in record order
    ZeilenFuellen();
    for (int Spalte = 0; Spalte < tblSSchueler->Cols(); ++Spalte)
        SpalteAnpassen(Spalte, Breiten);
    tblSSchueler->setCell(1, SortSpalteS);
    EingabezaehlerLeeren();
    tblSSchueler->setUpdatesEnabled(true);
}

void AnsichtS::KopfFuellen() {
    AnzTeilnahmeSpalten = Liste->Faecherzahl();
    const int P = AnzTeilnahmeSpalten;
    tblSSchueler->setCols(1 + P + AnzFelder);
    for (int j = 1; j <= P; ++j) {
        const Fachspalte& Spalte = Liste->Faecher[static_cast<std::size_t>(j - 1)];
        tblSSchueler->setTextMatrix(0, j, QStringLiteral("Teilnahme"));
        tblSSchueler->setTextMatrix(1, j, Spalte.Kopf);
        tblSSchueler->setColData(j, Spalte.Fach_ID);
    }
    for (int k = 1; k <= AnzFelder; ++k) {
        tblSSchueler->setTextMatrix(0, P + k, QStringLiteral("Schülerdaten"));
        tblSSchueler->setTextMatrix(1, P + k, Datenbank.SchuelerFeldTitel[k]);
        tblSSchueler->setColData(P + k, 0);
    }
}

void AnsichtS::ZeilenFuellen() {
    // A class with fewer subjects may not have the column that the last one was sorted by.
    if (SortSpalteS >= tblSSchueler->Cols())
        SortSpalteS = 0;
    NachSpalteOrdnen(*Liste, SortSpalteS);
    tblSSchueler->ZeilenSetzen(Zeilendaten(*Liste),
                               [Von = Liste](int Nummer) { return Schuelerzellen(*Von, Nummer); });
    for (int Spalte = 0; Spalte < tblSSchueler->Cols(); ++Spalte)
        tblSSchueler->setCellBackColor(tblSSchueler->Rows() - 1, Spalte,
                                       QColor(Spaltenfarbe(Spalte, AnzTeilnahmeSpalten)));
}

void AnsichtS::AnsichtSAktiv(bool Aktiv) {
    Form->btSKlasseLoeschen->setEnabled(Aktiv);
    Form->btSNeuerSchueler->setEnabled(Aktiv);
    tblSSchueler->setEnabled(Aktiv);
    Q_EMIT ImportErlaubt(Aktiv);
}

std::vector<double> AnsichtS::Spaltenbreiten() {
    Mass.SchriftSetzen(window()->font());
    return Mass.Breiteste(*Liste);
}

/// The title and all rows count, seen or not.
void AnsichtS::SpalteAnpassen(int Spalte, const std::vector<double>& Breiten) {
    const double Breite =
        qMax(Mass.Breite(tblSSchueler->TextMatrix(1, Spalte)), Breiten[static_cast<std::size_t>(Spalte)]);
    const double Twips = qMin(Gitter::PixelInTwips(Breite), GroessteTextbreite) + Zellrand;
    tblSSchueler->setColWidth(Spalte, Gitter::TwipsInPixel(Twips));
}

/// By the column of the header that was clicked, what is equal there as it stood.
void AnsichtS::Sortieren() {
    const Fuellsperre Sperre;
    if (tblSSchueler->Rows() >= 5)
        tblSSchueler->Sortieren(SortSpalteS, 2, tblSSchueler->Rows() - 2, Sortierart::TextAufsteigend);
    tblSSchueler->setCell(1, SortSpalteS);
}

void AnsichtS::NeuesFach() {
    if (NeuesFachAssistent(window(), cbSKlasse->currentText(), {}))
        Fuellen();
}

void AnsichtS::FachLoeschen() {
    const int Spalte = tblSSchueler->Col();
    if (!InFachspalte())
        return;
    FachLoeschenFragen(tblSSchueler->ColData(Spalte), tblSSchueler->TextMatrix(1, Spalte));
    Ausfuehren([this] { SchuelerlisteFuellen(); });
}

void AnsichtS::NeuerSchueler() {
    const int Eingabezeile = tblSSchueler->Rows() - 1;
    if (tblSSchueler->Row() == Eingabezeile)
        SchuelerZelleBetreten();
    else
        tblSSchueler->setRow(Eingabezeile);
}

void AnsichtS::SchuelerLoeschen() {
    const qint32 ID = tblSSchueler->RowData(tblSSchueler->Row());
    if (ID > 1000 && SchuelerLoeschenFragen(ID))
        Ausfuehren([this] { SchuelerlisteFuellen(); });
}

void AnsichtS::NeueKlasse() {
    cbSKlasse->setFocus();
    cbSKlasse->lineEdit()->selectAll();
}

void AnsichtS::KlasseLoeschen() {
    if (KlasseLoeschenFragen(cbSKlasse->currentText()))
        Q_EMIT AktualisierenGewuenscht();
}
