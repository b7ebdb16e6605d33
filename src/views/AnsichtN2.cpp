#include "views/AnsichtN2.h"

#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "core/FktSpeziell.h"
#include "records/Aendern.h"
#include "records/Loeschfragen.h"
#include "records/Satzdialoge.h"

#include <QLineEdit>

#include "ui_AnsichtN2.h"

AnsichtN2::AnsichtN2(QWidget* Eltern)
    : Ansicht(Eltern)
    , Form(std::make_unique<Ui::AnsichtN2>()) {
    Form->setupUi(this);
    Form->cbN2Klasse->setSortiert(true);
    Form->cbN2Name->setSortiert(true);
    Liste = new Notenliste(Form->tblN2Noten, *this);
    connect(Liste, &Notenliste::HinweisGewuenscht, this, &Ansicht::HinweisGewuenscht);
    KombinationenVerbinden();
    KnoepfeVerbinden();
    AktivSetzen(false);
    Form->btN2FachLoeschen->setEnabled(false);
}

AnsichtN2::~AnsichtN2() {
    delete Liste; // while what it asks of this view is still there
}

void AnsichtN2::KombinationenVerbinden() {
    connect(Form->cbN2Klasse, &Kombinationsfeld::Klick, this, &AnsichtN2::KlasseGewaehlt);
    connect(Form->cbN2Klasse, &Kombinationsfeld::Anlegen, this,
            [this] { KlasseAnlegen(*Form->cbN2Klasse, true, [this] { KlasseN2Fuellen(); }); });
    connect(Form->cbN2Klasse, &Kombinationsfeld::Betreten, this, [this] {
        Q_EMIT HinweisGewuenscht(QStringLiteral(
            "Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung eingeben und Return drücken!"));
    });
    connect(Form->cbN2Name, &Kombinationsfeld::Klick, this, &AnsichtN2::NameGewaehlt);
    connect(Form->cbN2Name, &Kombinationsfeld::Anlegen, this, &AnsichtN2::NameGetippt);
    connect(Form->cbN2Name, &Kombinationsfeld::Betreten, this, [this] {
        Q_EMIT HinweisGewuenscht(QStringLiteral("Zur Aufnahme eines neuen Schülers hier den Namen (Nachname "
                                                "Vorname) eingeben und Return drücken!"));
    });
}

void AnsichtN2::KnoepfeVerbinden() {
    connect(Form->btN2NeueKlasse, &QPushButton::clicked, this, &AnsichtN2::NeueKlasse);
    connect(Form->btN2KlasseLoeschen, &QPushButton::clicked, this, &AnsichtN2::KlasseLoeschen);
    connect(Form->btN2NeuesFach, &QPushButton::clicked, this, &AnsichtN2::NeuesFach);
    connect(Form->btN2FachLoeschen, &QPushButton::clicked, this, &AnsichtN2::FachLoeschen);
    connect(Form->btN2NeuerSchueler, &QPushButton::clicked, this, &AnsichtN2::NeuerSchuelerName);
    connect(Form->btN2SchuelerLoeschen, &QPushButton::clicked, this, &AnsichtN2::SchuelerLoeschen);
}

void AnsichtN2::Fuellen() {
    Ausfuehren([this] { KlasseN2Fuellen(); });
}

void AnsichtN2::KlasseN2Fuellen() {
    if (const int Platz = SchuelerIndex(AktSchuelerID); Platz >= 0)
        AktKlasse = Datenbank.Schueler[Platz].Klasse;
    Kombinationsfeld& Klassen = *Form->cbN2Klasse;
    Klassen.Leeren();
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        if (Datenbank.Klassen[i].Jahr == Datenbank.AktJahr)
            Klassen.Hinzufuegen(Datenbank.Klassen[i].Name);
    const bool Vorhanden = Klassen.count() > 0;
    Form->cbN2Name->setEnabled(Vorhanden);
    Form->btN2NeuerSchueler->setEnabled(Vorhanden);
    Form->btN2KlasseLoeschen->setEnabled(Vorhanden);
    Form->btN2FachLoeschen->setEnabled(false);
    if (!Vorhanden) {
        Form->cbN2Name->Leeren();
        Form->btN2SchuelerLoeschen->setEnabled(false);
        NotenlisteSchuelerFuellen();
        return;
    }
    int Index = 0;
    for (int i = 0; i < Klassen.count(); ++i)
        if (Klassen.itemText(i) == AktKlasse)
            Index = i;
    Klassen.setListIndex(Index);
}

void AnsichtN2::KlasseGewaehlt() {
    NamenlisteFuellen();
    AktKlasse = Form->cbN2Klasse->currentText();
}

void AnsichtN2::NamenlisteFuellen() {
    Kombinationsfeld& Namen = *Form->cbN2Name;
    if (Form->cbN2Klasse->ListIndex() < 0) {
        Namen.Leeren();
        NotenlisteSchuelerFuellen();
        return;
    }
    const QString Klasse = Form->cbN2Klasse->currentText();
    std::vector<Listeneintrag> Eintraege;
    for (int i = 0; i < Datenbank.AnzSchueler; ++i)
        if (const Schueler& Einer = Datenbank.Schueler[i];
            Einer.Klasse == Klasse && Einer.Jahr == Datenbank.AktJahr)
            Eintraege.push_back({Einer.Name, Einer.ID});
    Namen.Fuellen(std::move(Eintraege));
    Form->btN2SchuelerLoeschen->setEnabled(Namen.count() > 0);
    if (Namen.count() == 0) {
        NotenlisteSchuelerFuellen();
        return;
    }
    Namen.setListIndex(qMax(0, Namen.IndexMitDatum(AktSchuelerID)));
}

void AnsichtN2::NameGewaehlt() {
    NotenlisteSchuelerFuellen();
    AktSchuelerID = Form->cbN2Name->AktDatum();
    Q_EMIT PassbildGewuenscht();
}

/// A text that is no class may stand in the combo of classes: the names are still those of the class chosen
/// before, which is then chosen again.
void AnsichtN2::NameGetippt(const QString& Name) {
    const bool KlasseSteht = Form->cbN2Klasse->ListIndex() >= 0;
    const QString Klasse = KlasseSteht ? Form->cbN2Klasse->currentText() : AktKlasse;
    SchuelerAnlegen(window(), *Form->cbN2Name, Klasse, Name, [this, KlasseSteht] {
        if (KlasseSteht)
            NamenlisteFuellen();
        else
            KlasseN2Fuellen();
    });
}

void AnsichtN2::NotenlisteSchuelerFuellen() {
    Ausfuehren([this] { Liste->Fuellen(); });
}

QString AnsichtN2::Eingabehinweis() const {
    return QStringLiteral("Zum Anlegen eines neuen Faches hier den Namen des Fachs eingeben!");
}

bool AnsichtN2::Gewaehlt() const {
    return Form->cbN2Klasse->ListIndex() >= 0 && Form->cbN2Name->ListIndex() >= 0;
}

int AnsichtN2::Stufe() const {
    return ErsteZahl(Form->cbN2Klasse->currentText());
}

std::vector<Notenlistenzeile> AnsichtN2::Zeilen() const {
    return NotenzeilenDesSchuelers(SchuelerID(0));
}

qint32 AnsichtN2::SchuelerID(qint32 /*Datum*/) const {
    return Form->cbN2Name->AktDatum();
}

bool AnsichtN2::NamenAendern(qint32 Datum, const QString& Name) {
    return FachNamenAendern(Datum, Name);
}

void AnsichtN2::AktivSetzen(bool Aktiv) {
    Form->tblN2Noten->setEnabled(Aktiv);
}

void AnsichtN2::ZeileBetreten(qint32 Datum) {
    Form->btN2FachLoeschen->setEnabled(true);
    AktFachID = Datum;
    Q_EMIT PassbildGewuenscht();
}

void AnsichtN2::EingabezeileBetreten() {
    Form->btN2FachLoeschen->setEnabled(false);
    Q_EMIT PassbildGewuenscht();
}

void AnsichtN2::EingabeAbgebrochen() {
    Form->btN2FachLoeschen->setEnabled(false);
}

void AnsichtN2::NeueZeile(const QString& Text) {
    if (NeuesFachAssistent(window(), Form->cbN2Klasse->currentText(), Text))
        Q_EMIT AktualisierenGewuenscht();
}

void AnsichtN2::NeueKlasse() {
    Form->cbN2Klasse->setFocus();
    Form->cbN2Klasse->lineEdit()->selectAll();
}

void AnsichtN2::KlasseLoeschen() {
    if (KlasseLoeschenFragen(Form->cbN2Klasse->currentText()))
        Q_EMIT AktualisierenGewuenscht();
}

void AnsichtN2::NeuesFach() {
    NeuesFachAssistent(window(), Form->cbN2Klasse->currentText(), {});
    Q_EMIT AktualisierenGewuenscht();
}

void AnsichtN2::FachLoeschen() {
    if (Liste->InEingabezeile() || Liste->AktDatum() <= 0)
        return;
    FachLoeschenFragen(Liste->AktDatum(), Liste->Name());
    Q_EMIT AktualisierenGewuenscht();
}

/// The name is typed into the combo. How much of its text is selected follows, oddly and for good, the length
/// of the class chosen in the student list.
void AnsichtN2::NeuerSchuelerName() {
    Form->cbN2Name->setFocus();
    const auto* KlasseS = window()->findChild<QComboBox*>(QStringLiteral("cbSKlasse"));
    const qsizetype Laenge = KlasseS ? KlasseS->currentText().size() : Form->cbN2Name->currentText().size();
    Form->cbN2Name->lineEdit()->setSelection(0, static_cast<int>(Laenge));
}

void AnsichtN2::SchuelerLoeschen() {
    const qint32 ID = Form->cbN2Name->AktDatum();
    if (ID > 1000 && SchuelerLoeschenFragen(ID))
        NamenlisteFuellen();
}
