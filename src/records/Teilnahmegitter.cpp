#include "records/Teilnahmegitter.h"

#include "controls/Gitter.h"

#include <QKeyEvent>

namespace {

enum Spalte { SpalteName, SpalteTeilnahme, SpalteID, AnzSpalten };

} // namespace

Teilnahmegitter::Teilnahmegitter(Gitter* TabelleNeu, const QString& KopfNeu, double AnteilName,
                                 double AnteilTeilnahme)
    : QObject(TabelleNeu)
    , Tabelle(TabelleNeu)
    , Kopf(KopfNeu) {
    Tabelle->setCols(AnzSpalten);
    Tabelle->setRows(2);
    Tabelle->setFixedRows(1);
    Tabelle->setFixedCols(0);
    Tabelle->setColumnHidden(SpalteID, true);
    Tabelle->setColShares({AnteilName, AnteilTeilnahme, 0});

    connect(Tabelle, &Gitter::MausLosgelassen, this, [this](Qt::MouseButton, QPoint Ort) {
        KlickAufKopf = Tabelle->RowAt(Ort.y()) < Tabelle->FixedRows();
    });
    connect(Tabelle, &Gitter::Geklickt, this, [this] {
        // A click on the header leaves the current row where it was.
        if (!std::exchange(KlickAufKopf, false))
            Umschalten();
    });
    connect(Tabelle, &Gitter::TasteGedrueckt, this, [this](QKeyEvent* Ereignis) {
        if (Ereignis->key() != Qt::Key_Space)
            return;
        Umschalten();
        Ereignis->accept();
    });
}

void Teilnahmegitter::Fuellen(const std::vector<Teilnahmezeile>& Zeilen) {
    std::vector<Gitterzeile> Neue;
    Neue.reserve(Zeilen.size());
    for (const Teilnahmezeile& Zeile : Zeilen)
        Neue.push_back({Zeile.ID, {{Zeile.Name}, {Zeile.Teilnahme}, {QString::number(Zeile.ID)}}});
    Tabelle->ZeilenSetzen(std::move(Neue));
    if (Zeilen.empty())
        return;
    Tabelle->setTextMatrix(0, SpalteName, Kopf);
    Tabelle->setTextMatrix(0, SpalteTeilnahme, QStringLiteral("Teilnahme"));
    Tabelle->setRows(Tabelle->Rows() - 1);
    Tabelle->setCell(1, SpalteName);
}

void Teilnahmegitter::Sortieren() {
    Tabelle->Sortieren(SpalteName, 1, Tabelle->Rows() - 1, Sortierart::TextAufsteigend);
}

void Teilnahmegitter::AlleSetzen(const QString& Teilnahme) {
    for (int Zeile = 1; Zeile < Tabelle->Rows(); ++Zeile)
        Tabelle->setTextMatrix(Zeile, SpalteTeilnahme, Teilnahme);
}

std::vector<Teilnahmezeile> Teilnahmegitter::Zeilen() const {
    std::vector<Teilnahmezeile> Alle;
    for (int Zeile = 1; Zeile < Tabelle->Rows(); ++Zeile) {
        const QString ID = Tabelle->TextMatrix(Zeile, SpalteID);
        if (!ID.isEmpty())
            Alle.push_back({ID.toInt(), Tabelle->TextMatrix(Zeile, SpalteName),
                            Tabelle->TextMatrix(Zeile, SpalteTeilnahme)});
    }
    return Alle;
}

void Teilnahmegitter::Umschalten() {
    const int Zeile = Tabelle->Row();
    if (Zeile < 1 || Zeile >= Tabelle->Rows())
        return;
    const bool Ja = Tabelle->TextMatrix(Zeile, SpalteTeilnahme) == QStringLiteral("ja");
    Tabelle->setTextMatrix(Zeile, SpalteTeilnahme, Ja ? QStringLiteral("nein") : QStringLiteral("ja"));
}
