#include "views/AnsichtN1.h"

#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "core/FktSpeziell.h"
#include "grading/dlgHJGrenzen.h"
#include "records/Aendern.h"
#include "records/Klassenfeld.h"
#include "records/Loeschfragen.h"
#include "records/Satzdialoge.h"

#include "ui_AnsichtN1.h"

AnsichtN1::AnsichtN1(QWidget* Eltern)
    : Ansicht(Eltern)
    , Form(std::make_unique<Ui::AnsichtN1>()) {
    Form->setupUi(this);
    Form->cbN1KlasseFach->setSortiert(true);
    Liste = new Notenliste(Form->tblN1Noten, *this);
    connect(Liste, &Notenliste::HinweisGewuenscht, this, &Ansicht::HinweisGewuenscht);
    KnoepfeVerbinden();
    AktivSetzen(false);
    Form->btN1FachLoeschen->setEnabled(false);
    Form->btN1SchuelerLoeschen->setEnabled(false);
}

AnsichtN1::~AnsichtN1() {
    delete Liste; // while what it asks of this view is still there
}

void AnsichtN1::KnoepfeVerbinden() {
    Kombinationsfeld* Faecher = Form->cbN1KlasseFach;
    connect(Faecher, &Kombinationsfeld::Klick, this, &AnsichtN1::FachGewaehlt);
    connect(Faecher, &Kombinationsfeld::Anlegen, this, [this, Faecher](const QString& Text) {
        FachAnlegen(window(), *Faecher, Text, [this] { FachKombinationFuellen(); });
    });
    connect(Faecher, &Kombinationsfeld::Betreten, this, [this] {
        Q_EMIT HinweisGewuenscht(QStringLiteral("Zur Aufnahme eines neuen Fachs hier die Klasse und den "
                                                "Fachnamen eingeben und Return drücken!"));
    });
    connect(Form->btN1NeuesFach, &QPushButton::clicked, this, &AnsichtN1::NeuesFach);
    connect(Form->btN1FachLoeschen, &QPushButton::clicked, this, &AnsichtN1::FachLoeschen);
    connect(Form->btN1NeuerSchueler, &QPushButton::clicked, Liste, &Notenliste::ZurEingabezeile);
    connect(Form->btN1SchuelerLoeschen, &QPushButton::clicked, this, &AnsichtN1::SchuelerLoeschen);
    connect(Form->btN1HJGrenzenFestlegen, &QPushButton::clicked, this, &AnsichtN1::HJGrenzenFestlegen);
}

void AnsichtN1::Fuellen() {
    Ausfuehren([this] { FachKombinationFuellen(); });
}

void AnsichtN1::FachKombinationFuellen() {
    Kombinationsfeld& Faecher = *Form->cbN1KlasseFach;
    std::vector<Listeneintrag> Eintraege;
    for (int i = 0; i < Datenbank.AnzFaecher; ++i)
        if (const Fach& Eines = Datenbank.Faecher[i]; Eines.Jahr == Datenbank.AktJahr)
            Eintraege.push_back({Eines.Klasse + QLatin1Char(' ') + Eines.Name, Eines.ID});
    Faecher.Fuellen(std::move(Eintraege));
    const bool Vorhanden = Faecher.count() > 0;
    Form->btN1FachLoeschen->setEnabled(Vorhanden);
    if (!Vorhanden) {
        NotenlisteFachFuellen();
        return;
    }
    Faecher.setListIndex(qMax(0, Faecher.IndexMitDatum(AktFachID)));
}

void AnsichtN1::FachGewaehlt() {
    NotenlisteFachFuellen();
    AktFachID = Form->cbN1KlasseFach->AktDatum();
}

void AnsichtN1::NotenlisteFachFuellen() {
    Ausfuehren([this] { Liste->Fuellen(); });
}

QString AnsichtN1::Eingabehinweis() const {
    return QStringLiteral("Zur Aufnahme eines neuen Schülers in die Klasse hier den Namen des Schülers "
                          "(Nachname Vorname) eingeben!");
}

bool AnsichtN1::Gewaehlt() const {
    return Form->cbN1KlasseFach->ListIndex() >= 0;
}

int AnsichtN1::Stufe() const {
    return ErsteZahl(Form->cbN1KlasseFach->currentText());
}

std::vector<Notenlistenzeile> AnsichtN1::Zeilen() const {
    return NotenzeilenDesFachs(FachID(0));
}

qint32 AnsichtN1::FachID(qint32 /*Datum*/) const {
    return Form->cbN1KlasseFach->AktDatum();
}

bool AnsichtN1::NamenAendern(qint32 Datum, const QString& Name) {
    return SchuelerNamenAendern(Datum, Name);
}

void AnsichtN1::AktivSetzen(bool Aktiv) {
    Form->btN1NeuerSchueler->setEnabled(Aktiv);
    Form->btN1HJGrenzenFestlegen->setEnabled(Aktiv);
    Form->tblN1Noten->setEnabled(Aktiv);
}

void AnsichtN1::ZeileBetreten(qint32 Datum) {
    Form->btN1SchuelerLoeschen->setEnabled(true);
    AktSchuelerID = Datum;
    Q_EMIT PassbildGewuenscht();
}

void AnsichtN1::EingabezeileBetreten() {
    Form->btN1SchuelerLoeschen->setEnabled(false);
    AktSchuelerID = 0;
    Q_EMIT PassbildGewuenscht();
}

void AnsichtN1::EingabeAbgebrochen() {
    Form->btN1SchuelerLoeschen->setEnabled(false);
}

/// In a subject of several classes a new student needs a class first.
bool AnsichtN1::MitKlassenwahl() const {
    return KlassenDesFelds(Form->cbN1KlasseFach->currentText()).size() > 1;
}

void AnsichtN1::Klassenwahl() {
    AktSchuelerID = 0;
    Q_EMIT PassbildGewuenscht();
    const Gitter& Tabelle = *Form->tblN1Noten;
    const QPoint Ort = Tabelle.mapToGlobal(Tabelle.CellRect(Tabelle.Row(), 0).bottomLeft());
    if (NeuerSchuelerMitKlassenwahl(window(), Ort, Form->cbN1KlasseFach->currentText())) {
        NotenlisteFachFuellen();
        Liste->AufLetzteZeile();
    } else {
        Liste->EineZeileHinauf();
    }
}

void AnsichtN1::NeueZeile(const QString& Text) {
    const QString Klasse = KlassenDesFelds(Form->cbN1KlasseFach->currentText()).value(0);
    NeuerSchueler(window(), Klasse, Text);
    NotenlisteFachFuellen();
    Liste->AufLetzteZeile();
}

void AnsichtN1::NeuesFach() {
    NeuesFachMitAssistent(window(), *Form->cbN1KlasseFach, [this] { FachKombinationFuellen(); });
}

void AnsichtN1::FachLoeschen() {
    const Kombinationsfeld& Faecher = *Form->cbN1KlasseFach;
    if (Faecher.ListIndex() < 0)
        return;
    FachLoeschenFragen(Faecher.AktDatum(), Faecher.currentText());
    FachKombinationFuellen();
}

void AnsichtN1::SchuelerLoeschen() {
    const qint32 ID = Liste->AktDatum();
    if (ID > 1000 && SchuelerLoeschenFragen(ID))
        NotenlisteFachFuellen();
}

void AnsichtN1::HJGrenzenFestlegen() {
    const Kombinationsfeld& Faecher = *Form->cbN1KlasseFach;
    if (!HJGrenzenZeigen(window(), Faecher.currentText(), Faecher.AktDatum()))
        return;
    Ausfuehren([this] {
        Liste->HalbjahreAnzeigen();
        Liste->GesamtnotenBerechnen();
    });
}
