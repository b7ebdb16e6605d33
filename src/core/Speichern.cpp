#include "core/Speichern.h"

#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/Dokumentdateien.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Speichern", Text);
}

/// A path of the user's choice; empty if there is none.
QString AnderenPfadFragen() {
    const auto Wahl = Meldungen().Speichern(
        {Tr("Speichern unter..."), {{Tr("Notendatenbank"), QStringLiteral("*.txt")}}, AutoDatei()});
    return Wahl && ErsetzenErlaubt(Wahl->Pfad) ? Wahl->Pfad : QString();
}

/// One attempt, and what the user wants if it failed; nothing if it succeeded.
std::optional<Schreibweg> Versuchen(const QString& Pfad, const Schreiber& Schreiben) {
    try {
        Schreiben(Pfad);
        return {};
    } catch (const Schreibfehler& Fehler) {
        return SchreibfehlerZeigen(Fehler.Fehler);
    } catch (const Laufzeitfehler& Fehler) {
        Berichten(Fehler.Text());
        return Schreibweg::Abbrechen;
    }
}

} // namespace

bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben) {
    QString Ziel = Pfad;
    Schreiber Aktueller = Schreiben;
    while (const auto Weg = Versuchen(Ziel, Aktueller)) {
        if (*Weg == Schreibweg::Abbrechen)
            return false;
        if (*Weg == Schreibweg::Nochmals)
            continue;
        // A dialog that was cancelled leads back to the failure: it must not close without an answer.
        if (const QString Anderer = AnderenPfadFragen(); !Anderer.isEmpty()) {
            Ziel = Anderer;
            Aktueller = SpeichernDatenbank3;
        }
    }
    return true;
}
