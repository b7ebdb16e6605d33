#include "core/AutoDatei.h"
#include "core/Dateischutz.h"
#include "core/Datenbankdatei.h"
#include "core/Datum.h"
#include "core/Dokument.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Ladebericht.h"
#include "core/Meldungen.h"
#include "core/Oberflaeche.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

namespace {

constexpr qsizetype LaengeEndung = 4; ///< ".txt"

QString Tr(const char* Text) {
    return QCoreApplication::translate("Sicherung", Text);
}

QString MitEndung(const QString& Pfad, const QString& Endung) {
    return Pfad.chopped(LaengeEndung) + Endung;
}

QString Sicherheitskopie(const QString& Pfad) {
    return MitEndung(Pfad, QStringLiteral(".bak"));
}

QString Altdatei(const QString& Pfad) {
    return MitEndung(Pfad, QStringLiteral("_err.txt"));
}

/// Whether files with other endings can belong to the grade book at this path.
bool HatDatei(const QString& Pfad) {
    return Pfad != Unbenannt && Pfad.size() > LaengeEndung;
}

/// Nothing on success.
std::optional<Dateifehler> Kopieren(const QString& Von, const QString& Nach) {
    Dateifehler Fehler;
    const auto Inhalt = DateiLesen(Von, &Fehler);
    return Inhalt ? DateiSchreiben(Nach, *Inhalt) : Fehler;
}

bool WiederherstellungErlaubt(const QString& Kopie) {
    const QDateTime Zeit = QFileInfo(Kopie).lastModified();
    return FrageJaNein(
        Tr("Zu Ihrer aktuellen Datenbank existiert eine Sicherheitskopie vom ") + DatumKurz(Zeit.date()) +
            u' ' + ZeitKurz(Zeit.time()) + Tr(" Uhr.") + u'\n' +
            Tr("Möchten Sie wirklich alle seitdem gemachten Änderungen verwerfen und Ihre Daten aus dieser") +
            u'\n' + Tr("Sicherheitskopie wiederherstellen?"),
        Tr("Sicherheitsabfrage:"));
}

/// Puts the backup in the place of the grade book, which is kept beside it. Without that second copy the
/// first is not given up.
std::optional<Dateifehler> Zuruecklegen(const QString& Pfad) {
    const auto Fehler = Kopieren(Pfad, Altdatei(Pfad));
    if (Fehler && DateiExistiert(Pfad))
        return Fehler;
    return Kopieren(Sicherheitskopie(Pfad), Pfad);
}

} // namespace

void SicherheitskopieErstellen() {
    AktuelleOberflaeche().FokusNehmen();
    if (!FrageSpeichern())
        return;
    const QString Pfad = AutoDatei();
    if (!HatDatei(Pfad)) {
        MeldungZeigen(
            Tr("Die Datei bitte erst speichern, bevor eine Sicherheitskopie angelegt werden kann!"));
        return;
    }
    if (const auto Fehler = Kopieren(Pfad, Sicherheitskopie(Pfad)))
        Berichten(Fehler->Text);
    else
        MeldungZeigen(Tr("Von Ihrer Datenbank wurde eine Sicherheitskopie erstellt!"));
}

void DatenbankWiederherstellen(const QString& Pfad) {
    AktuelleOberflaeche().FokusNehmen();
    if (!HatDatei(Pfad) || !DateiExistiert(Sicherheitskopie(Pfad)) ||
        !WiederherstellungErlaubt(Sicherheitskopie(Pfad)))
        return;
    const auto Fehler = Zuruecklegen(Pfad);
    LadeDatenbank(Pfad);
    AktuelleOberflaeche().AnsichtAktualisieren();
    if (Fehler)
        Berichten(Fehler->Text);
    else
        Berichten(Tr("Die aktuelle Datenbank wurde aus ihrer Sicherheitskopie wiederhergestellt!") + u'\n' +
                  Tr("Die ursprüngliche Datei wurde in ") + Altdatei(Pfad) + Tr(" umbenannt!"));
}
