#include "controls/Eintragsmodell.h"

int Eintragsmodell::rowCount(const QModelIndex& Eltern) const {
    return Eltern.isValid() ? 0 : static_cast<int>(Eintraege.size());
}

QVariant Eintragsmodell::data(const QModelIndex& Stelle, int Rolle) const {
    if (!Stelle.isValid()) // a box without a current entry asks for its text all the same
        return {};
    const Listeneintrag& Einer = Eintraege[static_cast<std::size_t>(Stelle.row())];
    if (Rolle == Qt::DisplayRole || Rolle == Qt::EditRole)
        return Einer.Text;
    return Rolle == Qt::UserRole ? QVariant(Einer.Datum) : QVariant();
}

bool Eintragsmodell::setData(const QModelIndex& Stelle, const QVariant& Wert, int Rolle) {
    if (!checkIndex(Stelle, CheckIndexOption::IndexIsValid))
        return false;
    Listeneintrag& Einer = Eintraege[static_cast<std::size_t>(Stelle.row())];
    if (Rolle == Qt::DisplayRole || Rolle == Qt::EditRole)
        Einer.Text = Wert.toString();
    else if (Rolle == Qt::UserRole)
        Einer.Datum = Wert.toInt();
    else
        return false;
    Q_EMIT dataChanged(Stelle, Stelle, {Rolle});
    return true;
}

bool Eintragsmodell::insertRows(int Zeile, int Anzahl, const QModelIndex& Eltern) {
    if (Eltern.isValid() || Zeile < 0 || Zeile > rowCount() || Anzahl < 1)
        return false;
    beginInsertRows({}, Zeile, Zeile + Anzahl - 1);
    Eintraege.insert(Eintraege.begin() + Zeile, static_cast<std::size_t>(Anzahl), {});
    endInsertRows();
    return true;
}

bool Eintragsmodell::removeRows(int Zeile, int Anzahl, const QModelIndex& Eltern) {
    if (Eltern.isValid() || Zeile < 0 || Anzahl < 1 || Zeile + Anzahl > rowCount())
        return false;
    beginRemoveRows({}, Zeile, Zeile + Anzahl - 1);
    Eintraege.erase(Eintraege.begin() + Zeile, Eintraege.begin() + Zeile + Anzahl);
    endRemoveRows();
    return true;
}

void Eintragsmodell::Ersetzen(std::vector<Listeneintrag> Neue) {
    beginResetModel();
    Eintraege = std::move(Neue);
    endResetModel();
}
