#include "assessments/AnsichtB.h"

#include "assessments/Formulierungsanpassung.h"
#include "controls/EingabeText.h"
#include "core/Datum.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Fehlerfang.h"
#include "core/FktSpeziell.h"
#include "core/Uhr.h"
#include "records/Satzdialoge.h"
#include "views/Fuellsperre.h"
#include "views/Schuelerliste.h"

#include "ui_AnsichtB.h"

#include <QKeyEvent>
#include <QSignalBlocker>

namespace {

constexpr int Namensplatz = 11; ///< of txtBVorname in EingabeZaehler
constexpr QRgb Namensgrund = qRgb(0xDD, 0xDD, 0xDD);

const QString Zeilenende = QStringLiteral("\r\n");

QStringList Zeitraeume() {
    QStringList Alle{QStringLiteral("1. Halbjahr"), QStringLiteral("2. Halbjahr")};
    for (const auto& Art :
         {QStringLiteral("Zwischenbeurteilungen %1"), QStringLiteral("Schülerbeobachtungen %1")})
        for (int i = 1; i <= 5; ++i)
            Alle.append(Art.arg(i));
    return Alle;
}

std::vector<Gitterzelle> Beurteilungszellen(const Schuelerliste& Liste, int Zeile, int Zeitraum) {
    const Schueler* Einer = Liste.Satz(static_cast<std::size_t>(Zeile));
    if (!Einer)
        return {{QString(), 0, Namensgrund}};
    return {{Einer->Name, 0, Namensgrund}, {Einer->Beurteilung[Zeitraum]}};
}

} // namespace

AnsichtB::AnsichtB(QWidget* Eltern)
    : Ansicht(Eltern)
    , Form(std::make_unique<Ui::AnsichtB>())
    , Mass(font()) {
    Form->setupUi(this);
    txtBEingabe = new EingabeText(Form->tblBeurteilungen);
    txtBEingabe2 = new EingabeText(Form->tblBFloskel);
    SchuelerseiteEinrichten();
    FloskelseiteEinrichten();
    NameEinrichten();
    ZieleEinrichten();
    setTabOrder(Form->tblBeurteilungen, txtBEingabe);
    setTabOrder(txtBEingabe, Form->btBDatum);
    setTabOrder(Form->tblBFloskel, txtBEingabe2);
    setTabOrder(txtBEingabe2, Form->picSmileyContainer);
    for (int Seite = 0; Seite < Form->Teiler->count(); ++Seite)
        Form->Teiler->setStretchFactor(Seite, 1);
    Form->Teiler->setSizes({width(), width()});
    LernbereicheFuellen();
}

/// The controls outlive this part of the view by a moment, and some still have something to tell.
AnsichtB::~AnsichtB() {
    EingabezaehlerAktion(Namensplatz, {});
    const auto Teile = findChildren<QObject*>();
    for (QObject* Teil : Teile) {
        Teil->disconnect(this);
        Teil->removeEventFilter(this);
    }
}

void AnsichtB::SchuelerseiteEinrichten() {
    // They cover the panel: the mouse over them counts as over it.
    Form->Teiler->setMouseTracking(true);
    Form->Schuelerseite->setMouseTracking(true);
    Gitter* Tabelle = Form->tblBeurteilungen;
    Tabelle->setCols(2);
    Tabelle->setRows(2);
    Tabelle->setFixedRows(1);
    Tabelle->setFixedCols(1);
    Tabelle->setWordWrapCells(true);
    Tabelle->setColShares({0.28, 0.72});
    Tabelle->setColAlignment(1, Qt::AlignLeft | Qt::AlignTop);
    Tabelle->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or the width would change with the heights
    HoehenFolgenDerBreite(*Tabelle, 1, [this] { BeurteilungshoehenAnpassen(); });
    connect(Tabelle, &Gitter::ZelleBetreten, this, [this] { Ausfuehren([this] { SchuelerBetreten(); }); });

    txtBEingabe->setObjectName(QStringLiteral("txtBEingabe"));
    txtBEingabe->setAccessibleName(QStringLiteral("Beurteilung"));
    txtBEingabe->setTastenregel([this](QKeyEvent* Taste) { return BeurteilungTaste(Taste); });
    connect(txtBEingabe, &EingabeText::Geaendert, this,
            [this] { Ausfuehren([this] { BeurteilungGeaendert(); }); });
    QSizePolicy Platz = Form->btBDatum->sizePolicy();
    Platz.setRetainSizeWhenHidden(true);
    Form->btBDatum->setSizePolicy(Platz);
    Form->btBDatum->hide();
    connect(Form->btBDatum, &QPushButton::clicked, this, &AnsichtB::DatumEinfuegen);

    for (const QString& Einer : Zeitraeume())
        Form->cbBHalbjahr->Hinzufuegen(Einer);
    Form->cbBHalbjahr->setListIndex(0);
    connect(Form->cbBHalbjahr, &Kombinationsfeld::Klick, this,
            [this] { Ausfuehren([this] { BeurteilungenFuellen(); }); });
    connect(Form->cbBKlasse, &Kombinationsfeld::Klick, this,
            [this] { Ausfuehren([this] { KlasseGewaehlt(); }); });
    connect(Form->cbBKlasse, &Kombinationsfeld::Anlegen, this,
            [this] { KlasseAnlegen(*Form->cbBKlasse, false); });
    connect(Form->cbBKlasse, &Kombinationsfeld::Betreten, this, [this] {
        Hinweis(QStringLiteral(
            "Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung eingeben und Return drücken!"));
    });
}

void AnsichtB::NameEinrichten() {
    connect(Form->txtBVorname, &QLineEdit::textChanged, this, [] { EingabeZaehler[Namensplatz] = 2; });
    connect(Form->txtBVorname, &Textfeld::Verlassen, this, [this] {
        Hinweis({});
        VornameGeaendert();
    });
    connect(Form->txtBVorname, &Textfeld::Betreten, this, [this] {
        Hinweis(QStringLiteral("Hier steht der Name, wie er in der Formulierung verwendet werden soll"));
    });
    EingabezaehlerAktion(Namensplatz, [this] { VornameGeaendert(); });
    // Before a student is entered the phrases read as for a girl, and must be taken back from that form.
    Form->obBWeiblich->setChecked(true);
    const auto Geschlecht = [this](QRadioButton* Knopf, const QString& Wert) {
        connect(Knopf, &QRadioButton::toggled, this, [this, Wert](bool An) {
            if (!An || !GridEreignisseAktiv)
                return;
            FormulierungenFuellen();
            GeschlechtSpeichern(Wert);
        });
        // A click on the button that is on already confirms what was only assumed.
        connect(Knopf, &QRadioButton::clicked, this, [this, Wert] { GeschlechtSpeichern(Wert); });
    };
    Geschlecht(Form->obBMännlich, QStringLiteral("m"));
    Geschlecht(Form->obBWeiblich, QStringLiteral("w"));
}

void AnsichtB::Fuellen() {
    const qint32 Gewaehlt = AktSchuelerID;
    const int Platz = SchuelerIndex(Gewaehlt);
    if (Platz >= 0)
        AktKlasse = Datenbank.Schueler[Platz].Klasse;
    {
        const QSignalBlocker Still(Form->cbBHalbjahr);
        Form->cbBHalbjahr->setListIndex(0);
    }
    KlassenFuellen();
    // Choosing a class drops the student; coming back to his class does not.
    if (Platz >= 0 && Datenbank.Schueler[Platz].Klasse == AktKlasse) {
        AktSchuelerID = Gewaehlt;
        Q_EMIT PassbildGewuenscht();
    }
    LernbereicheFuellen();
}

void AnsichtB::KlassenFuellen() {
    Kombinationsfeld& Klassen = *Form->cbBKlasse;
    Klassen.Leeren();
    int Index = 0;
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        if (Datenbank.Klassen[i].Jahr == Datenbank.AktJahr) {
            const int Eintrag = Klassen.Hinzufuegen(Datenbank.Klassen[i].Name);
            if (Datenbank.Klassen[i].Name == AktKlasse)
                Index = Eintrag;
        }
    if (Klassen.count() == 0 || Klassen.ListIndex() == Index)
        BeurteilungenFuellen();
    else
        Klassen.setListIndex(Index);
}

void AnsichtB::KlasseGewaehlt() {
    BeurteilungenFuellen();
    AktKlasse = Form->cbBKlasse->currentText();
    AktSchuelerID = 0;
    Q_EMIT PassbildGewuenscht();
}

void AnsichtB::BeurteilungenFuellen() {
    Gitter& Tabelle = *Form->tblBeurteilungen;
    const Fuellsperre Sperre;
    BeurteilungSchliessen();
    Tabelle.setUpdatesEnabled(false);
    const bool MitKlasse = Form->cbBKlasse->ListIndex() >= 0;
    Tabelle.setEnabled(MitKlasse);
    Liste = std::make_shared<Schuelerliste>(MitKlasse ? SchuelerDerKlasse(Form->cbBKlasse->currentText())
                                                      : Schuelerliste());
    if (!MitKlasse) {
        Tabelle.ZeilenSetzen({});
    } else {
        Tabelle.setTextMatrix(0, 0, QStringLiteral("Schüler"));
        Tabelle.setTextMatrix(0, 1, QStringLiteral("Beurteilung"));
        NachSpalteOrdnen(*Liste, 0);
        Tabelle.ZeilenSetzen(Zeilendaten(*Liste),
                             [Von = Liste, Zeitraum = Form->cbBHalbjahr->ListIndex()](int Nummer) {
                                 return Beurteilungszellen(*Von, Nummer, Zeitraum);
                             });
        Tabelle.setCellBackColor(Tabelle.Rows() - 1, 0, QColor(Namensgrund));
        Tabelle.setCell(1, 0);
        BetreteneZeile = 1;
    }
    BeurteilungshoehenAnpassen();
    Tabelle.setUpdatesEnabled(true);
}

void AnsichtB::BeurteilungSchliessen() {
    txtBEingabe->Verbergen();
    Form->btBDatum->hide();
}

bool AnsichtB::InSchuelerzeile() const {
    return Form->tblBeurteilungen->Row() > 0 &&
           Form->tblBeurteilungen->Row() < Form->tblBeurteilungen->Rows() - 1;
}

void AnsichtB::SchuelerBetreten() {
    if (!GridEreignisseAktiv)
        return;
    Gitter& Tabelle = *Form->tblBeurteilungen;
    if (Tabelle.Row() < 1) {
        KopfzeileVerlassen();
        return;
    }
    const Fuellsperre Sperre;
    BeurteilungSchliessen();
    BetreteneZeile = Tabelle.Row();
    if (Tabelle.Col() != 1)
        Tabelle.setCol(1);
    NameUndGeschlechtZeigen();
    txtBEingabe->Zeigen(Tabelle.TextMatrix(Tabelle.Row(), 1));
    Form->btBDatum->show();
    if (InSchuelerzeile()) {
        AktSchuelerID = Tabelle.RowData(Tabelle.Row());
        Q_EMIT PassbildGewuenscht();
    }
    FormulierungenFuellen();
}

/// A click on the header changes nothing: the row entered last stays the current one, and its text open.
void AnsichtB::KopfzeileVerlassen() {
    const Fuellsperre Sperre;
    Gitter& Tabelle = *Form->tblBeurteilungen;
    if (BetreteneZeile < Tabelle.Rows())
        Tabelle.setCell(BetreteneZeile, 1);
}

void AnsichtB::NameUndGeschlechtZeigen() {
    Form->txtBVorname->setText(
        VornameAus(Form->tblBeurteilungen->TextMatrix(Form->tblBeurteilungen->Row(), 0)));
    const int Index = Schuelerindex();
    if (Index < 0)
        return;
    const bool Maennlich = Datenbank.Schueler[Index].Feld[5].startsWith(u'm', Qt::CaseInsensitive);
    (Maennlich ? Form->obBMännlich : Form->obBWeiblich)->setChecked(true);
}

int AnsichtB::Schuelerindex() const {
    const Gitter& Tabelle = *Form->tblBeurteilungen;
    return SchuelerIndex(Tabelle.RowData(Tabelle.Row()));
}

void AnsichtB::BeurteilungGeaendert() {
    if (!GridEreignisseAktiv)
        return;
    Gitter& Tabelle = *Form->tblBeurteilungen;
    const int Index = Schuelerindex();
    if (Index >= 0) {
        const QString Text = txtBEingabe->Text();
        Tabelle.setTextMatrix(Tabelle.Row(), 1, Text);
        Datenbank.Schueler[Index].Beurteilung[Form->cbBHalbjahr->ListIndex()] = Text;
        ZeilenhoeheAnpassen(Tabelle, Tabelle.Row(), 1);
    }
    DatenGeaendert = true;
}

bool AnsichtB::BeurteilungTaste(QKeyEvent* Taste) {
    Gitter& Tabelle = *Form->tblBeurteilungen;
    const bool Umschalt = Taste->modifiers().testFlag(Qt::ShiftModifier);
    if (Taste->key() == Qt::Key_Escape)
        BeurteilungSchliessen();
    else if (Umschalt && Taste->key() == Qt::Key_Up && Tabelle.Row() > 1)
        Tabelle.setRow(Tabelle.Row() - 1);
    else if (Umschalt && Taste->key() == Qt::Key_Down && Tabelle.Row() < Tabelle.Rows() - 1)
        Tabelle.setRow(Tabelle.Row() + 1);
    else
        return Umschalt && (Taste->key() == Qt::Key_Up || Taste->key() == Qt::Key_Down);
    return true;
}

void AnsichtB::DatumEinfuegen() {
    txtBEingabe->moveCursor(QTextCursor::End);
    const QString Davor = txtBEingabe->Text().isEmpty() ? QString() : Zeilenende;
    txtBEingabe->Einfuegen(Davor + DatumKurz(Heute()) + u':' + Zeilenende);
    txtBEingabe->setFocus();
}

void AnsichtB::FormulierungEinfuegen() {
    const QString Phrase = Form->tblBFloskel->TextMatrix(Form->tblBFloskel->Row(), 0);
    const bool AmEnde = txtBEingabe->MarkeAmEnde() && !txtBEingabe->Text().isEmpty();
    txtBEingabe->Einfuegen(AmEnde ? u' ' + Phrase : Phrase + u' ');
}

void AnsichtB::VornameGeaendert() {
    if (GridEreignisseAktiv)
        FormulierungenFuellen();
}

void AnsichtB::GeschlechtSpeichern(const QString& Wert) {
    const int Index = Schuelerindex();
    if (Index < 0 || Datenbank.Schueler[Index].Feld[5] == Wert)
        return;
    Datenbank.Schueler[Index].Feld[5] = Wert;
    DatenGeaendert = true;
}

void AnsichtB::changeEvent(QEvent* Ereignis) {
    Ansicht::changeEvent(Ereignis);
    if (Ereignis->type() != QEvent::FontChange)
        return;
    Mass = Schriftmass(font());
    GemesseneBreite = -1;
    BeurteilungshoehenAnpassen();
    ZeilenhoehenAnpassen(*Form->tblBFloskel, 0);
}

int AnsichtB::Zeilenhoehe(const Gitter& Tabelle, const QString& Text, int Spalte) const {
    const double Breite = Gitter::PixelInTwips(Tabelle.ColWidth(Spalte));
    return Gitter::TwipsInPixel(ZeilenhoeheBerechnen(Mass, Text, Breite));
}

void AnsichtB::ZeilenhoeheAnpassen(Gitter& Tabelle, int Zeile, int Spalte) {
    Tabelle.setRowHeight(Zeile, Zeilenhoehe(Tabelle, Tabelle.TextMatrix(Zeile, Spalte), Spalte));
}

void AnsichtB::ZeilenhoehenAnpassen(Gitter& Tabelle, int Spalte) {
    std::vector<int> Hoehen;
    Hoehen.reserve(static_cast<std::size_t>(Tabelle.Rows()));
    for (int Zeile = 0; Zeile < Tabelle.Rows(); ++Zeile)
        Hoehen.push_back(Zeilenhoehe(Tabelle, Tabelle.TextMatrix(Zeile, Spalte), Spalte));
    Tabelle.setRowHeights(0, Hoehen);
}

/// The heights of all rows, seen or not. An assessment is measured again only when it has been written.
void AnsichtB::BeurteilungshoehenAnpassen() {
    Gitter& Tabelle = *Form->tblBeurteilungen;
    if (std::exchange(GemesseneBreite, Tabelle.ColWidth(1)) != Tabelle.ColWidth(1))
        Beurteilungshoehen.Vergessen();
    const auto Hoehe = [this, &Tabelle](const QString& Text) { return Zeilenhoehe(Tabelle, Text, 1); };
    const auto Zeitraum = static_cast<std::size_t>(Form->cbBHalbjahr->ListIndex());
    std::vector<int> Hoehen(Liste->Zeilen.size() + 2, Hoehe({}));
    Hoehen.front() = Hoehe(Tabelle.TextMatrix(0, 1));
    for (const std::size_t z : InSatzfolge(*Liste)) {
        const auto Platz = static_cast<std::size_t>(Liste->Zeilen[z].Platz);
        if (const Schueler* Einer = Liste->Satz(z))
            Hoehen[z + 1] = Beurteilungshoehen(Zeitraum * Datenbank.Schueler.size() + Platz,
                                               Einer->Beurteilung[static_cast<int>(Zeitraum)], Hoehe);
    }
    Tabelle.setRowHeights(0, Hoehen);
}

void AnsichtB::HoehenFolgenDerBreite(const Gitter& Tabelle, int Spalte,
                                     const std::function<void()>& Anpassen) {
    connect(&Tabelle, &Gitter::LageGeaendert, this, [&Tabelle, Spalte, Anpassen, Breite = -1]() mutable {
        if (std::exchange(Breite, Tabelle.ColWidth(Spalte)) != Tabelle.ColWidth(Spalte))
            Anpassen();
    });
}
