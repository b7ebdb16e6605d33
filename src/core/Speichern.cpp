#include "core/Speichern.h"

#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/FktAllgemein.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Speichern", Text);
}

enum class Ausweg { Nochmals, Anderswo, Keiner };

Ausweg AuswegFragen(const Dateifehler& Fehler, const QString& Meldung) {
    const int Wahl = Meldungen().Waehlen(
        {Fehler.Text, Meldung, {Tr("Erneut versuchen"), Tr("Speichern unter..."), Tr("Abbrechen")}});
    return static_cast<Ausweg>(Wahl);
}

/// One attempt. Nothing if it succeeded, else the failure, already reported unless a rescue copy is all that
/// is left.
std::optional<Dateifehler> Versuchen(const QString& Pfad, const Schreiber& Schreiben) {
    try {
        Schreiben(Pfad);
        return {};
    } catch (const Schreibfehler& Fehler) {
        if (Fehler.Fehler.Rettungskopie.isEmpty())
            Berichten(Fehler.Text());
        return Fehler.Fehler;
    } catch (const Laufzeitfehler& Fehler) {
        Berichten(Fehler.Text());
        return Dateifehler{};
    }
}

} // namespace

bool UeberschreibenErlaubt(const QString& Pfad) {
    return !DateiExistiert(Pfad) || FrageJaNeinAbbrechen(Tr("Soll die bereits existierende Datei ") + Pfad +
                                                         Tr(" ersetzt werden?")) == Antwort::Ja;
}

QString SpeicherpfadFragen(const Dateifilter& Filter, const QString& Vorgabe) {
    const auto Wahl = Meldungen().Speichern({Tr("Speichern unter..."), {Filter}, Vorgabe});
    return Wahl && UeberschreibenErlaubt(Wahl->Pfad) ? Wahl->Pfad : QString();
}

bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben, const Ausweichweg& Anderswo) {
    QString Ziel = Pfad;
    Schreiber Aktueller = Schreiben;
    while (const auto Fehler = Versuchen(Ziel, Aktueller)) {
        if (Fehler->Rettungskopie.isEmpty())
            return false;
        const Ausweg Gewaehlt = AuswegFragen(*Fehler, Anderswo.Meldung);
        if (Gewaehlt == Ausweg::Keiner)
            return false;
        if (Gewaehlt == Ausweg::Nochmals)
            continue;
        if (const QString Neues = Anderswo.PfadFragen(); !Neues.isEmpty()) {
            Ziel = Neues;
            Aktueller = Anderswo.Schreiben;
        }
    }
    return true;
}

bool SpeichernUndMelden(const QString& Pfad, const Schreiber& Schreiben) {
    const auto Fragen = [] {
        return SpeicherpfadFragen({Tr("Notendatenbank"), QStringLiteral("*.txt")}, AutoDatei());
    };
    return SpeichernUndMelden(Pfad, Schreiben,
                              {Tr("Die Datenbank ist nicht gespeichert!"), Fragen, SpeichernDatenbank3});
}
