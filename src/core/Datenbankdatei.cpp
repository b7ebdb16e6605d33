#include "core/Datenbankdatei.h"

#include "core/AutoDatei.h"
#include "core/Datenbankleser.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Fremdschuelerleser.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"
#include "core/NeuesBuch.h"
#include "core/Oberflaeche.h"
#include "core/Originalschutz.h"
#include "core/Parametervorgaben.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Datenbankdatei", Text);
}

/// What a file gave: its bytes, all or those before a read error, or nothing if it could not be opened.
struct Dateiinhalt {
    std::optional<QByteArray> Bytes;
    bool Ganz = false;
};

Dateiinhalt Holen(const QString& Pfad) {
    Dateifehler Fehler;
    QByteArray Anfang;
    if (auto Alles = DateiLesen(Pfad, &Fehler, &Anfang))
        return {std::move(Alles), true};
    if (Fehler.Geoeffnet)
        return {std::move(Anfang), false};
    return {};
}

/// The first line was refused: the records stay, but no file belongs to them.
void Ablehnen(const QString& Meldung) {
    Berichten(Meldung);
    AutoDateiSetzen(Unbenannt);
    SetzeParameterDefaults();
}

void Scheitern(const QString& Pfad, const Leseergebnis& Ergebnis) {
    Berichten(Schadensbericht(Tr("Fehler beim Einlesen der Datenbank!"), Pfad, Ergebnis.Stelle));
    DatenGeaendert = false;
    if (!Ergebnis.InParameter) {
        BuchVerwerfen();
        return;
    }
    SetzeParameterDefaults();
    AutoDateiSetzen(Pfad);
}

void NichtGefunden(const QString& Pfad) {
    Berichten(Tr("Die zuletzt benutzte Notendatenbank ") + Pfad + Tr(" konnte nicht gefunden werden!") +
              QStringLiteral("\r\n") + Tr("Es wird eine neue Datenbank angelegt."));
    BuchVerwerfen();
}

void Uebernehmen(const QString& Pfad, const Leseergebnis& Ergebnis) {
    switch (Ergebnis.Ende) {
    case Leseergebnis::Ausgang::Gelesen:
        AutoDateiSetzen(Pfad);
        break;
    case Leseergebnis::Ausgang::KeineDatenbank:
        Ablehnen(Tr("Die Datei ") + Pfad + Tr("ist keine NotenDatenbank!"));
        break;
    case Leseergebnis::Ausgang::FremdeVersion:
        Ablehnen(Versionsbericht(Ergebnis.Version));
        break;
    case Leseergebnis::Ausgang::Fehlgeschlagen:
        Scheitern(Pfad, Ergebnis);
        break;
    }
}

bool EinlesenUndMelden(const QString& Pfad) {
    const Dateiinhalt Inhalt = Holen(Pfad);
    if (!Inhalt.Bytes) {
        NichtGefunden(Pfad);
        return false;
    }
    const Leseergebnis Ergebnis = DatenbankLesen(*Inhalt.Bytes, Inhalt.Ganz, FeldwarnungZeigen);
    LadebefundMerken(Pfad, !Inhalt.Ganz, Ergebnis.Entfallen);
    Uebernehmen(Pfad, Ergebnis);
    return Ergebnis.Ende == Leseergebnis::Ausgang::Gelesen;
}

void Speichern(const QString& Pfad, char Version) {
    AktuelleOberflaeche().FokusNehmen();
    const QByteArray Bytes = DatenbankBytes(Version);
    const QString Kopie = OriginalSichern(Pfad);
    if (auto Fehler = DateiSchreiben(Pfad, Bytes))
        throw Schreibfehler(std::move(*Fehler));
    AutoDateiSetzen(Pfad);
    DatenGeaendert = false;
    TitelAktualisieren();
    if (!Kopie.isEmpty())
        MeldungZeigen(
            Tr("Beim Laden dieser Datei konnten einige Zeilen nicht zugeordnet werden; sie sind in der "
               "gespeicherten Datei nicht mehr enthalten. Die ursprüngliche Datei liegt in %1.")
                .arg(Kopie));
}

} // namespace

bool LadeDatenbank(const QString& Pfad) {
    DatenGeaendert = false;
    const bool Geladen = EinlesenUndMelden(Pfad);
    TitelAktualisieren();
    AktuelleOberflaeche().JahrgangWaehlen();
    return Geladen;
}

bool LadeFremdSchueler(const QString& Pfad) {
    const Dateiinhalt Inhalt = Holen(Pfad);
    if (!Inhalt.Bytes) {
        Berichten(Tr("Die Datei ") + Pfad + Tr(" ist nicht vorhanden!"));
        return false;
    }
    const Leseergebnis Ergebnis = FremdSchuelerLesen(*Inhalt.Bytes, Inhalt.Ganz, FeldwarnungZeigen);
    if (Ergebnis.Ende == Leseergebnis::Ausgang::KeineDatenbank)
        Berichten(Tr("Die Datei ist keine NotenDatenbank!"));
    else if (Ergebnis.Ende == Leseergebnis::Ausgang::FremdeVersion)
        Berichten(Versionsbericht(Ergebnis.Version));
    else if (Ergebnis.Ende == Leseergebnis::Ausgang::Fehlgeschlagen)
        Berichten(Schadensbericht(Tr("Fehler beim Einlesen der Schüler aus einer Notendatenbank!"), Pfad,
                                  Ergebnis.Stelle));
    return Ergebnis.Ende == Leseergebnis::Ausgang::Gelesen;
}

void SpeichernDatenbank3(const QString& Pfad) {
    Speichern(Pfad, '3');
}

void SpeichernDatenbank2(const QString& Pfad) {
    Speichern(Pfad, '2');
}
