#include "records/dlgAutoTeilnahme.h"

#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "records/Teilnahme.h"

#include "ui_dlgAutoTeilnahme.h"

namespace {

constexpr int ErsteZeile = 2;

} // namespace

dlgAutoTeilnahme::dlgAutoTeilnahme(Gitter* ListeNeu, int LetzteFachspalteNeu, QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgAutoTeilnahme>())
    , Liste(ListeNeu)
    , LetzteFachspalte(LetzteFachspalteNeu) {
    Form->setupUi(this);
    for (int k = 1; k <= 14; ++k)
        Form->cbVergleich->Hinzufuegen(Datenbank.SchuelerFeldTitel[k]);
    Form->cbVergleich->setListIndex(0);
    connect(Form->btOK, &QPushButton::clicked, this, [this] {
        if (!Ausfuehren([this] { Uebernehmen(); }))
            return;
        DialogErgebnis = true;
        accept();
    });
    connect(Form->btAbbrechen, &QPushButton::clicked, this, &dlgAutoTeilnahme::reject);
}

dlgAutoTeilnahme::~dlgAutoTeilnahme() = default;

void dlgAutoTeilnahme::Uebernehmen() {
    const int Spalte = Liste->Col();
    const int Feldspalte = LetzteFachspalte + Form->cbVergleich->ListIndex() + 1;
    std::vector<Feldwert> Werte;
    for (int Zeile = ErsteZeile; Zeile <= Liste->Rows() - 2; ++Zeile)
        Werte.push_back({Liste->RowData(Zeile), Liste->TextMatrix(Zeile, Feldspalte)});

    const auto Gesetzt = TeilnahmeNachBedingung(Liste->ColData(Spalte), Werte, Form->txtVergleich->text());
    for (std::size_t i = 0; i < Gesetzt.size(); ++i)
        if (!Gesetzt[i].isEmpty())
            Liste->setTextMatrix(ErsteZeile + static_cast<int>(i), Spalte, Gesetzt[i]);
}
