#include "records/Teilnahme.h"

#include "core/Definitionen.h"

#include <QHash>

namespace {

/// First row of each student in the subject.
QHash<qint32, int> ZeilenDesFachs(qint32 Fach_ID) {
    QHash<qint32, int> Zeilen;
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        if (Zeile.Fach_ID == Fach_ID && !Zeilen.contains(Zeile.Schueler_ID))
            Zeilen.insert(Zeile.Schueler_ID, i);
    }
    return Zeilen;
}

} // namespace

std::vector<QString> TeilnahmeNachBedingung(qint32 Fach_ID, const std::vector<Feldwert>& Werte,
                                            const QString& Vergleich) {
    const QHash<qint32, int> Zeilen = ZeilenDesFachs(Fach_ID);
    std::vector<QString> Gesetzt;
    Gesetzt.reserve(Werte.size());
    for (const Feldwert& Wert : Werte) {
        const int Zeile = Zeilen.value(Wert.Schueler_ID, -1);
        if (Zeile < 0) {
            Gesetzt.emplace_back();
            continue;
        }
        const QString Teilnahme = Wert.Text == Vergleich ? QStringLiteral("ja") : QStringLiteral("nein");
        Datenbank.Noten[Zeile].Teilnahme = Teilnahme;
        Gesetzt.push_back(Teilnahme);
    }
    DatenGeaendert = true;
    return Gesetzt;
}
