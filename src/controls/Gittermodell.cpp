#include "controls/Gittermodell.h"

#include "core/Reihe.h"

#include <QStringList>

#include <algorithm>

namespace {

void IndexPruefen(int Index, int Anzahl) {
    if (Index < 0 || Index >= Anzahl)
        IndexFehler(Index, static_cast<std::size_t>(Anzahl));
}

} // namespace

Gittermodell::Gittermodell(QObject* Eltern)
    : QAbstractTableModel(Eltern) {}

int Gittermodell::rowCount(const QModelIndex& Eltern) const {
    return Eltern.isValid() ? 0 : Zeilen();
}

int Gittermodell::columnCount(const QModelIndex& Eltern) const {
    return Eltern.isValid() ? 0 : Spalten();
}

QVariant Gittermodell::data(const QModelIndex& Stelle, int Rolle) const {
    if (!Stelle.isValid() || !Enthaelt(Stelle.row(), Stelle.column()))
        return {};
    const Gitterzelle& Eine = Zelle(Stelle.row(), Stelle.column());
    switch (Rolle) {
    case Qt::DisplayRole:
        return Eine.Text;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Ausrichtung(Stelle.column()));
    case Qt::ForegroundRole:
        return Eine.Vordergrund == 0 ? QVariant() : QVariant(QColor(Eine.Vordergrund));
    case Qt::BackgroundRole:
        return Eine.Hintergrund == 0 ? QVariant() : QVariant(QColor(Eine.Hintergrund));
    case Qt::AccessibleDescriptionRole:
        return Bedeutung(Stelle.row(), Stelle.column());
    case DatumRolle:
        return Zeilendatum(Stelle.row());
    default:
        return {};
    }
}

QVariant Gittermodell::headerData(int Abschnitt, Qt::Orientation Richtung, int Rolle) const {
    if (Rolle != Qt::DisplayRole)
        return {};
    if (Richtung == Qt::Horizontal)
        return Kopftext(Abschnitt);
    return AnzFesteSpalten > 0 ? Zelle(Abschnitt, 0).Text : QString::number(Abschnitt);
}

QString Gittermodell::Kopftext(int Spalte) const {
    QStringList Texte;
    for (int z = 0; z < qMin(AnzFesteZeilen, Zeilen()); ++z)
        if (const QString& Text = Zelle(z, Spalte).Text; !Text.isEmpty())
            Texte.append(Text);
    return Texte.join(u' ');
}

Qt::ItemFlags Gittermodell::flags(const QModelIndex& Stelle) const {
    return Stelle.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                            : Qt::NoItemFlags;
}

bool Gittermodell::Enthaelt(int Zeile, int Spalte) const {
    return Zeile >= 0 && Zeile < Zeilen() && Spalte >= 0 && Spalte < Spalten();
}

const Gitterzelle& Gittermodell::Zelle(int Zeile, int Spalte) const {
    static const Gitterzelle Leer;
    return Enthaelt(Zeile, Spalte) ? Zellen[Platz(Zeile, Spalte)] : Leer;
}

int Gittermodell::Zeilendatum(int Zeile) const {
    return Zeile >= 0 && Zeile < Zeilen() ? Zeilendaten[static_cast<std::size_t>(Zeile)] : 0;
}

int Gittermodell::Spaltendatum(int Spalte) const {
    return Spalte >= 0 && Spalte < Spalten() ? Spaltendaten[static_cast<std::size_t>(Spalte)].Datum : 0;
}

Qt::Alignment Gittermodell::Ausrichtung(int Spalte) const {
    return Spalte >= 0 && Spalte < Spalten() ? Spaltendaten[static_cast<std::size_t>(Spalte)].Ausrichtung
                                             : Qt::AlignLeft | Qt::AlignVCenter;
}

void Gittermodell::TextbreitenVergessen() {
    std::fill(Breiten.begin(), Breiten.end(), -1);
}

std::size_t Gittermodell::Geprueft(int Zeile, int Spalte) const {
    IndexPruefen(Zeile, Zeilen());
    IndexPruefen(Spalte, Spalten());
    return Platz(Zeile, Spalte);
}

void Gittermodell::TextSetzen(int Zeile, int Spalte, const QString& Text) {
    const std::size_t Ziel = Geprueft(Zeile, Spalte);
    if (Zellen[Ziel].Text == Text)
        return;
    Zellen[Ziel].Text = Text;
    Breiten[Ziel] = -1;
    const QModelIndex Stelle = index(Zeile, Spalte);
    Q_EMIT dataChanged(Stelle, Stelle, {Qt::DisplayRole});
    if (Zeile < AnzFesteZeilen)
        Q_EMIT headerDataChanged(Qt::Horizontal, Spalte, Spalte);
}

void Gittermodell::FarbenSetzen(int Zeile, int Spalte, QRgb Vordergrund, QRgb Hintergrund) {
    Gitterzelle& Ziel = Zellen[Geprueft(Zeile, Spalte)];
    if (Ziel.Vordergrund == Vordergrund && Ziel.Hintergrund == Hintergrund)
        return;
    Ziel.Vordergrund = Vordergrund;
    Ziel.Hintergrund = Hintergrund;
    const QModelIndex Stelle = index(Zeile, Spalte);
    Q_EMIT dataChanged(Stelle, Stelle, {Qt::ForegroundRole, Qt::BackgroundRole});
}

void Gittermodell::BedeutungSetzen(QRgb Farbe, const QString& Neue) {
    Bedeutungen.insert(Farbe, Neue);
}

QString Gittermodell::Bedeutung(int Zeile, int Spalte) const {
    return Bedeutungen.value(Zelle(Zeile, Spalte).Vordergrund);
}

void Gittermodell::ZeilendatumSetzen(int Zeile, int Datum) {
    IndexPruefen(Zeile, Zeilen());
    Zeilendaten[static_cast<std::size_t>(Zeile)] = Datum;
}

void Gittermodell::SpaltendatumSetzen(int Spalte, int Datum) {
    IndexPruefen(Spalte, Spalten());
    Spaltendaten[static_cast<std::size_t>(Spalte)].Datum = Datum;
}

void Gittermodell::AusrichtungSetzen(int Spalte, Qt::Alignment Neue) {
    IndexPruefen(Spalte, Spalten());
    Spaltendaten[static_cast<std::size_t>(Spalte)].Ausrichtung = Neue;
    if (Zeilen() > 0)
        Q_EMIT dataChanged(index(0, Spalte), index(Zeilen() - 1, Spalte), {Qt::TextAlignmentRole});
}

void Gittermodell::VerbindenSetzen(int Zeile, bool Verbinden) {
    IndexPruefen(Zeile, Zeilen());
    if (static_cast<int>(Verbunden.size()) <= Zeile)
        Verbunden.resize(static_cast<std::size_t>(Zeile) + 1, false);
    Verbunden[static_cast<std::size_t>(Zeile)] = Verbinden;
}

void Gittermodell::ZeilenanzahlSetzen(int Anzahl) {
    const int Bisher = Zeilen();
    if (Anzahl < 0)
        IndexFehler(Anzahl, 0);
    if (Anzahl == Bisher)
        return;
    if (Anzahl > Bisher)
        beginInsertRows({}, Bisher, Anzahl - 1);
    else
        beginRemoveRows({}, Anzahl, Bisher - 1);
    Zeilendaten.resize(static_cast<std::size_t>(Anzahl));
    Zellen.resize(Platz(Anzahl, 0));
    Breiten.resize(Zellen.size(), -1);
    if (Anzahl > Bisher)
        endInsertRows();
    else
        endRemoveRows();
}

void Gittermodell::SpaltenanzahlSetzen(int Anzahl) {
    const int Bisher = Spalten();
    if (Anzahl < 0)
        IndexFehler(Anzahl, 0);
    if (Anzahl == Bisher)
        return;
    if (Anzahl > Bisher)
        beginInsertColumns({}, Bisher, Anzahl - 1);
    else
        beginRemoveColumns({}, Anzahl, Bisher - 1);
    std::vector<Gitterzelle> Neue(Zeilendaten.size() * static_cast<std::size_t>(Anzahl));
    for (int z = 0; z < Zeilen(); ++z)
        for (int s = 0; s < qMin(Bisher, Anzahl); ++s)
            Neue[static_cast<std::size_t>(z) * static_cast<std::size_t>(Anzahl) +
                 static_cast<std::size_t>(s)] = std::move(Zellen[Platz(z, s)]);
    Zellen = std::move(Neue);
    Breiten.assign(Zellen.size(), -1);
    Spaltendaten.resize(static_cast<std::size_t>(Anzahl));
    if (Anzahl > Bisher)
        endInsertColumns();
    else
        endRemoveColumns();
}

void Gittermodell::FestSetzen(int FesteZeilen, int FesteSpalten) {
    AnzFesteZeilen = FesteZeilen;
    AnzFesteSpalten = FesteSpalten;
    if (Spalten() > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, Spalten() - 1);
    if (Zeilen() > 0)
        Q_EMIT headerDataChanged(Qt::Vertical, 0, Zeilen() - 1);
}

void Gittermodell::ZeileUebernehmen(std::size_t Ziel, Gitterzeile&& Zeile) {
    Zeilendaten[Ziel] = Zeile.Datum;
    const std::size_t Anzahl = qMin(Zeile.Zellen.size(), Spaltendaten.size());
    std::move(Zeile.Zellen.begin(), Zeile.Zellen.begin() + static_cast<std::ptrdiff_t>(Anzahl),
              Zellen.begin() + static_cast<std::ptrdiff_t>(Ziel * Spaltendaten.size()));
}

void Gittermodell::RumpfSetzen(std::vector<Gitterzeile> Neue) {
    beginResetModel();
    const std::size_t Fest = qMin(static_cast<std::size_t>(AnzFesteZeilen), Zeilendaten.size());
    Zeilendaten.resize(Fest);
    Zellen.resize(Fest * Spaltendaten.size());
    Zeilendaten.resize(Fest + Neue.size() + 1);
    Zellen.resize(Zeilendaten.size() * Spaltendaten.size());
    for (std::size_t z = 0; z < Neue.size(); ++z)
        ZeileUebernehmen(Fest + z, std::move(Neue[z]));
    Breiten.assign(Zellen.size(), -1);
    endResetModel();
}

void Gittermodell::Umordnen(int Von, const std::vector<int>& Reihenfolge) {
    if (Reihenfolge.empty())
        return;
    const std::vector<Gitterzelle> AlteZellen = Zellen;
    const std::vector<int> AlteBreiten = Breiten;
    const std::vector<qint32> AlteDaten = Zeilendaten;
    for (int i = 0; i < static_cast<int>(Reihenfolge.size()); ++i) {
        const int Quelle = Von + Reihenfolge[static_cast<std::size_t>(i)];
        Zeilendaten[static_cast<std::size_t>(Von + i)] = AlteDaten[static_cast<std::size_t>(Quelle)];
        for (int s = 0; s < Spalten(); ++s) {
            Zellen[Platz(Von + i, s)] = AlteZellen[Platz(Quelle, s)];
            Breiten[Platz(Von + i, s)] = AlteBreiten[Platz(Quelle, s)];
        }
    }
    const int Bis = Von + static_cast<int>(Reihenfolge.size()) - 1;
    Q_EMIT dataChanged(index(Von, 0), index(Bis, Spalten() - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, Von, Bis);
}

bool Gittermodell::Verbindet(int Zeile) const {
    return Zeile >= 0 && Zeile < AnzFesteZeilen && Zeile < static_cast<int>(Verbunden.size()) &&
           Verbunden[static_cast<std::size_t>(Zeile)];
}

bool Gittermodell::GehoertZusammen(int Zeile, int Links, int Rechts) const {
    // The fixed columns stand still and the others move: a group never reaches over that border.
    if (Links < 0 || Rechts >= Spalten() || Rechts == AnzFesteSpalten)
        return false;
    const QString& Text = Zelle(Zeile, Links).Text;
    return !Text.isEmpty() && Text == Zelle(Zeile, Rechts).Text;
}

std::pair<int, int> Gittermodell::Gruppe(int Zeile, int Spalte) const {
    int Erste = Spalte;
    int Letzte = Spalte;
    if (Verbindet(Zeile) && Enthaelt(Zeile, Spalte)) {
        while (GehoertZusammen(Zeile, Erste - 1, Erste))
            --Erste;
        while (GehoertZusammen(Zeile, Letzte, Letzte + 1))
            ++Letzte;
    }
    return {Erste, Letzte};
}
