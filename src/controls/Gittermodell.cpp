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

bool Gittermodell::Gefragt(int Zeile) const {
    return Zeile >= 0 && Zeile < Zeilen() && Alle[static_cast<std::size_t>(Zeile)].Nummer == Gegeben;
}

const Gittermodell::Modellzeile& Gittermodell::Geholt(int Zeile) const {
    Modellzeile& Eine = Alle[static_cast<std::size_t>(Zeile)];
    if (Eine.Nummer != Gegeben) {
        Eine.Zellen = Quelle(Eine.Nummer);
        Eine.Zellen.resize(Spaltendaten.size());
        Eine.Nummer = Gegeben;
    }
    return Eine;
}

const Gitterzelle& Gittermodell::Zelle(int Zeile, int Spalte) const {
    static const Gitterzelle Leer;
    if (!Enthaelt(Zeile, Spalte))
        return Leer;
    const Modellzeile& Eine = Geholt(Zeile);
    return Eine.Zellen.empty() ? Leer : Eine.Zellen[static_cast<std::size_t>(Spalte)];
}

Gitterzelle& Gittermodell::Schreibzelle(int Zeile, int Spalte) {
    IndexPruefen(Zeile, Zeilen());
    IndexPruefen(Spalte, Spalten());
    Geholt(Zeile);
    std::vector<Gitterzelle>& Zellen = Alle[static_cast<std::size_t>(Zeile)].Zellen;
    Zellen.resize(Spaltendaten.size());
    return Zellen[static_cast<std::size_t>(Spalte)];
}

void Gittermodell::BreiteVergessen(int Zeile, int Spalte) {
    std::vector<int>& Breiten = Alle[static_cast<std::size_t>(Zeile)].Breiten;
    if (!Breiten.empty())
        Breiten[static_cast<std::size_t>(Spalte)] = -1;
}

int Gittermodell::Zeilendatum(int Zeile) const {
    return Zeile >= 0 && Zeile < Zeilen() ? Alle[static_cast<std::size_t>(Zeile)].Datum : 0;
}

int Gittermodell::Spaltendatum(int Spalte) const {
    return Spalte >= 0 && Spalte < Spalten() ? Spaltendaten[static_cast<std::size_t>(Spalte)].Datum : 0;
}

Qt::Alignment Gittermodell::Ausrichtung(int Spalte) const {
    return Spalte >= 0 && Spalte < Spalten() ? Spaltendaten[static_cast<std::size_t>(Spalte)].Ausrichtung
                                             : Qt::AlignLeft | Qt::AlignVCenter;
}

void Gittermodell::TextbreitenVergessen() {
    for (Modellzeile& Eine : Alle)
        Eine.Breiten.clear();
}

void Gittermodell::TextSetzen(int Zeile, int Spalte, const QString& Text) {
    Gitterzelle& Ziel = Schreibzelle(Zeile, Spalte);
    if (Ziel.Text == Text)
        return;
    Ziel.Text = Text;
    BreiteVergessen(Zeile, Spalte);
    const QModelIndex Stelle = index(Zeile, Spalte);
    Q_EMIT dataChanged(Stelle, Stelle, {Qt::DisplayRole});
    if (Zeile < AnzFesteZeilen)
        Q_EMIT headerDataChanged(Qt::Horizontal, Spalte, Spalte);
}

void Gittermodell::FarbenSetzen(int Zeile, int Spalte, QRgb Vordergrund, QRgb Hintergrund) {
    Gitterzelle& Ziel = Schreibzelle(Zeile, Spalte);
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
    Alle[static_cast<std::size_t>(Zeile)].Datum = Datum;
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
    Alle.resize(static_cast<std::size_t>(Anzahl));
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
    for (Modellzeile& Eine : Alle) {
        Eine.Zellen.resize(Eine.Zellen.empty() ? 0 : static_cast<std::size_t>(Anzahl));
        Eine.Breiten.clear();
    }
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

void Gittermodell::RumpfErsetzen(std::vector<Modellzeile> Neue, Zeilenquelle NeueQuelle) {
    beginResetModel();
    const std::size_t Fest = qMin(static_cast<std::size_t>(AnzFesteZeilen), Alle.size());
    for (std::size_t z = 0; z < Fest; ++z)
        Neue[z] = std::move(Alle[z]);
    Alle = std::move(Neue);
    Quelle = std::move(NeueQuelle);
    endResetModel();
}

void Gittermodell::RumpfSetzen(std::vector<Gitterzeile> Neue) {
    const std::size_t Fest = qMin(static_cast<std::size_t>(AnzFesteZeilen), Alle.size());
    std::vector<Modellzeile> Rumpf(Fest + Neue.size() + 1);
    for (std::size_t z = 0; z < Neue.size(); ++z) {
        Neue[z].Zellen.resize(Spaltendaten.size());
        Rumpf[Fest + z].Datum = Neue[z].Datum;
        Rumpf[Fest + z].Zellen = std::move(Neue[z].Zellen);
    }
    RumpfErsetzen(std::move(Rumpf), {});
}

void Gittermodell::RumpfSetzen(const std::vector<qint32>& Daten, Zeilenquelle NeueQuelle) {
    const std::size_t Fest = qMin(static_cast<std::size_t>(AnzFesteZeilen), Alle.size());
    std::vector<Modellzeile> Rumpf(Fest + Daten.size() + 1);
    for (std::size_t z = 0; z < Daten.size(); ++z) {
        Rumpf[Fest + z].Datum = Daten[z];
        Rumpf[Fest + z].Nummer = static_cast<int>(z);
    }
    RumpfErsetzen(std::move(Rumpf), std::move(NeueQuelle));
}

void Gittermodell::Umordnen(int Von, const std::vector<int>& Reihenfolge) {
    if (Reihenfolge.empty())
        return;
    const auto Erste = Alle.begin() + Von;
    std::vector<Modellzeile> Bisher(std::make_move_iterator(Erste),
                                    std::make_move_iterator(Erste + std::ssize(Reihenfolge)));
    for (std::size_t i = 0; i < Reihenfolge.size(); ++i)
        Erste[static_cast<std::ptrdiff_t>(i)] = std::move(Bisher[static_cast<std::size_t>(Reihenfolge[i])]);
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
