#pragma once

#include "records/Anlegen.h"

#include <QObject>

class Gitter;

/// A grid as a participation list: name, "ja" or "nein", and a hidden column with the ID. A click or a blank
/// turns the participation of a row round.
class Teilnahmegitter : public QObject {
    Q_OBJECT

  public:
    /// Anteile: shares of the two visible columns.
    Teilnahmegitter(Gitter* Tabelle, const QString& Kopf, double AnteilName, double AnteilTeilnahme);

    void Fuellen(const std::vector<Teilnahmezeile>& Zeilen);
    void Sortieren(); ///< by name, case ignored
    void AlleSetzen(const QString& Teilnahme);
    std::vector<Teilnahmezeile> Zeilen() const;

  private:
    void Umschalten();

    Gitter* Tabelle;
    QString Kopf;
    bool KlickAufKopf = false; ///< the last mouse release was on the header
};
