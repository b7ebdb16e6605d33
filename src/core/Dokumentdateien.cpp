#include "core/Dokumentdateien.h"

#include "core/Dateischutz.h"
#include "core/Datum.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"

#include <QFileInfo>

namespace {

constexpr qsizetype Endungslaenge = 4; ///< ".txt"

/// Whether files with other endings can belong to the document at this path.
bool HatDatei(const QString& Pfad) {
    return Pfad != Unbenannt && Pfad.size() > Endungslaenge;
}

QString DateiZeit(const QString& Pfad) {
    const QDateTime Zeit = QFileInfo(Pfad).lastModified();
    return DatumKurz(Zeit.date()) + u' ' + ZeitKurz(Zeit.time());
}

/// Nothing on success.
std::optional<Dateifehler> Kopieren(const QString& Von, const QString& Nach) {
    Dateifehler Fehler;
    const auto Inhalt = DateiLesen(Von, &Fehler);
    return Inhalt ? DateiSchreiben(Nach, *Inhalt) : Fehler;
}

/// Puts the backup in the place of the document, which is kept beside it.
std::optional<Dateifehler> Zuruecklegen(const QString& Kopie, const QString& Pfad) {
    const auto Fehler = Kopieren(Pfad, MitEndung(Pfad, QStringLiteral("_err.txt")));
    if (Fehler && DateiExistiert(Pfad))
        return Fehler;
    return Kopieren(Kopie, Pfad);
}

} // namespace

QString MitEndung(const QString& Pfad, const QString& Endung) {
    return Pfad.chopped(qMin(Endungslaenge, Pfad.size())) + Endung;
}

void SicherheitskopieAnlegen(const QString& Pfad, const QString& Erfolg) {
    if (!HatDatei(Pfad))
        MeldungZeigen(QStringLiteral(
            "Die Datei bitte erst speichern, bevor eine Sicherheitskopie angelegt werden kann!"));
    else if (const auto Fehler = Kopieren(Pfad, MitEndung(Pfad, QStringLiteral(".bak"))))
        Berichten(Fehler->Text);
    else
        MeldungZeigen(Erfolg);
}

std::optional<QString> SicherheitskopieZurueckholen(const QString& Pfad,
                                                    const std::function<QString(const QString&)>& Frage) {
    const QString Kopie = MitEndung(Pfad, QStringLiteral(".bak"));
    if (!HatDatei(Pfad) || !DateiExistiert(Kopie) ||
        !FrageJaNein(Frage(DateiZeit(Kopie)), QStringLiteral("Sicherheitsabfrage:")))
        return {};
    const auto Fehler = Zuruecklegen(Kopie, Pfad);
    return Fehler ? Fehler->Text : QString();
}
