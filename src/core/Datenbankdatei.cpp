#include "core/Datenbankdatei.h"

#include "core/AutoDatei.h"
#include "core/Datenbankleser.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Fremdschuelerleser.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"
#include "core/NeuererStand.h"
#include "core/NeuesBuch.h"
#include "core/Oberflaeche.h"
#include "core/Originalschutz.h"
#include "core/Parametervorgaben.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Datenbankdatei", Text);
}

/// The marker of an assessment has room for five digits.
constexpr qint32 GroessteFuenfstelligeID = 99999;

/// What a file gave: its bytes, all or those before a read error, or nothing if it could not be opened.
struct Dateiinhalt {
    std::optional<QByteArray> Bytes;
    bool Ganz = false;
    bool Ungespeichert = false; ///< from a rescue copy; the file holds something older
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

Dateiinhalt DokumentHolen(const QString& Pfad) {
    if (auto Neuerer = NeuererStand(Pfad))
        return {std::move(Neuerer), true, true};
    return Holen(Pfad);
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
    const Dateiinhalt Inhalt = DokumentHolen(Pfad);
    if (!Inhalt.Bytes) {
        NichtGefunden(Pfad);
        return false;
    }
    const Leseergebnis Ergebnis = DatenbankLesen(*Inhalt.Bytes, Inhalt.Ganz, FeldwarnungZeigen);
    // The line of a failure and those behind it are not in memory either.
    const bool Abgebrochen = Ergebnis.Ende == Leseergebnis::Ausgang::Fehlgeschlagen;
    LadebefundMerken(Pfad, !Inhalt.Ganz, Ergebnis.Entfallen + (Abgebrochen ? 1 : 0));
    Uebernehmen(Pfad, Ergebnis);
    const bool Gelesen = Ergebnis.Ende == Leseergebnis::Ausgang::Gelesen;
    if (Gelesen && Inhalt.Ungespeichert)
        DatenGeaendert = true;
    return Gelesen;
}

bool GiltAlsMarke(QStringView Zeile) {
    return !Zeile.isEmpty() && ((Zeile.front() == u'#' && Zeile.back() == u'#') ||
                                (Zeile.front() == u'[' && Zeile.back() == u']'));
}

/// The first line of a text that loading would take for a marker; empty if there is none.
QString Markenzeile(const QString& Text) {
    if (!Text.contains(u'#') && !Text.contains(u']'))
        return {};
    for (const QStringView Zeile : QStringView(Text).split(u'\n')) {
        const QStringView Ohne = Zeile.endsWith(u'\r') ? Zeile.chopped(1) : Zeile;
        if (GiltAlsMarke(Ohne))
            return Ohne.toString();
    }
    return {};
}

/// Why loading would not find this assessment again; empty if it will.
QString Beurteilungsfehler(const Schueler& Einer, const QString& Text) {
    if (const QString Zeile = Markenzeile(Text); !Zeile.isEmpty())
        return Tr("enthält die Zeile \"%1\". Eine Zeile, die mit # beginnt und endet oder in eckigen "
                  "Klammern steht, hält das "
                  "Programm beim nächsten Laden nicht für Text; die Datei lässt sich dann womöglich nicht "
                  "mehr öffnen. Bitte "
                  "ändern Sie die Zeile und speichern Sie noch einmal!")
            .arg(Zeile.left(80));
    if (Einer.ID > GroessteFuenfstelligeID && !Text.isEmpty())
        return Tr("lässt sich nicht wieder laden, weil die Nummer %1 des Schülers mehr als fünf Stellen hat. "
                  "Bitte heben Sie den "
                  "Text anderswo auf, löschen Sie ihn hier und speichern Sie noch einmal!")
            .arg(Einer.ID);
    return {};
}

/// The format has no way to write such an assessment. It is written as it stands, but not in silence: the
/// next load would fail at it, or lose what stands behind it.
void BeurteilungsfehlerMelden() {
    for (int s = 0; s < Datenbank.AnzSchueler; ++s)
        for (const QString& Text : Datenbank.Schueler[s].Beurteilung)
            if (const QString Fehler = Beurteilungsfehler(Datenbank.Schueler[s], Text); !Fehler.isEmpty()) {
                MeldungZeigen(Tr("Die Datei ist gespeichert, aber die Beurteilung von %1 (%2) ")
                                      .arg(Datenbank.Schueler[s].Name, Datenbank.Schueler[s].Klasse) +
                                  Fehler,
                              {}, Symbol::Warnung);
                return;
            }
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
    if (Version == '3')
        BeurteilungsfehlerMelden();
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
