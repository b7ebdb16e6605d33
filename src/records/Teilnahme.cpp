#include "records/Teilnahme.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"

std::vector<QString> TeilnahmeNachBedingung(qint32 Fach_ID, const std::vector<Feldwert>& Werte,
                                            const QString& Vergleich) {
    const QHash<qint32, int> Zeilen = ErsteNotenzeilen(Fach_ID);
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
