#pragma once

#include <QAbstractListModel>

#include <vector>

/// An entry of a combo box with its hidden datum.
struct Listeneintrag {
    QString Text;
    int Datum = 0;
};

/// The entries of a combo box. A list of thousands is set in one go; what Qt's own interface of the box does
/// with its model works as ever.
class Eintragsmodell : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& Eltern = {}) const override;
    QVariant data(const QModelIndex& Stelle, int Rolle) const override;
    bool setData(const QModelIndex& Stelle, const QVariant& Wert, int Rolle) override;
    bool insertRows(int Zeile, int Anzahl, const QModelIndex& Eltern = {}) override;
    bool removeRows(int Zeile, int Anzahl, const QModelIndex& Eltern = {}) override;

    const std::vector<Listeneintrag>& Alle() const { return Eintraege; }
    void Ersetzen(std::vector<Listeneintrag> Neue);

  private:
    std::vector<Listeneintrag> Eintraege;
};
