#include "core/Dokumentdateien.h"

#include "core/Dateischutz.h"
#include "core/Datum.h"
#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/Meldungen.h"
#include "core/Orte.h"
#include "core/Uhr.h"

#include <QFileInfo>

namespace {

constexpr qsizetype Endungslaenge = 4;

bool HatDatei(const QString& Pfad) {
    return Pfad != Unbenannt && Pfad.size() > Endungslaenge;
}

QString DateiZeit(const QString& Pfad) {
    const QDateTime Zeit = QFileInfo(Pfad).lastModified();
    return DatumKurz(Zeit.date()) + u' ' + ZeitKurz(Zeit.time());
}

} // namespace

QString MitEndung(const QString& Pfad, const QString& Endung) {
    return Pfad.chopped(qMin(Endungslaenge, Pfad.size())) + Endung;
}

bool ErsetzenErlaubt(const QString& Pfad) {
    if (!DateiExistiert(Pfad))
        return true;
    const QString Frage =
        QStringLiteral("Soll die bereits existierende Datei ") + Pfad + QStringLiteral(" ersetzt werden?");
    return FrageJaNeinAbbrechen(Frage) == Antwort::Ja;
}

Schreibweg SchreibfehlerZeigen(const Dateifehler& Fehler) {
    const QStringList Wege{QStringLiteral("Erneut versuchen"), QStringLiteral("Speichern unter..."),
                           QStringLiteral("Abbrechen")};
    switch (Meldungen().Waehlen({Fehler.Text, QStringLiteral("Nicht gespeichert"), Wege, 0})) {
    case 0:
        return Schreibweg::Nochmals;
    case 1:
        return Schreibweg::SpeichernUnter;
    default:
        return Schreibweg::Abbrechen;
    }
}

Speicherausgang DokumentSchreiben(const QString& Pfad, const QByteArray& Inhalt) {
    while (const auto Fehler = DateiSchreiben(Pfad, Inhalt)) {
        const Schreibweg Weg = SchreibfehlerZeigen(*Fehler);
        if (Weg != Schreibweg::Nochmals)
            return Weg == Schreibweg::SpeichernUnter ? Speicherausgang::SpeichernUnter
                                                     : Speicherausgang::Abgebrochen;
    }
    return Speicherausgang::Gespeichert;
}

bool DateiKopieren(const QString& Von, const QString& Nach, QString* Grund) {
    Dateifehler Lesefehler;
    const auto Inhalt = DateiLesen(Von, &Lesefehler);
    const auto Fehler = Inhalt ? DateiSchreiben(Nach, *Inhalt) : Lesefehler;
    if (Fehler)
        *Grund = Fehler->Text;
    return !Fehler;
}

void SicherheitskopieAnlegen(const QString& Pfad, const QString& Erfolg) {
    if (!HatDatei(Pfad)) {
        MeldungZeigen(QStringLiteral(
            "Die Datei bitte erst speichern, bevor eine Sicherheitskopie angelegt werden kann!"));
        return;
    }
    QString Grund;
    const bool Kopiert = DateiKopieren(Pfad, MitEndung(Pfad, QStringLiteral(".bak")), &Grund);
    MeldungZeigen(Kopiert ? Erfolg : Grund, {}, Kopiert ? Symbol::Ohne : Symbol::Fehler);
}

bool SicherheitskopieZurueckholen(const QString& Pfad, const std::function<QString(const QString&)>& Frage,
                                  QString* Grund) {
    const QString Kopie = MitEndung(Pfad, QStringLiteral(".bak"));
    if (!HatDatei(Pfad) || !DateiExistiert(Kopie))
        return false;
    if (!FrageJaNein(Frage(DateiZeit(Kopie)), QStringLiteral("Sicherheitsabfrage:")))
        return false;
    const bool Bewahrt = DateiKopieren(Pfad, MitEndung(Pfad, QStringLiteral("_err.txt")), Grund);
    // What has no copy yet is not overwritten; what is not there needs none.
    if (Bewahrt || !DateiExistiert(Pfad)) {
        Grund->clear();
        DateiKopieren(Kopie, Pfad, Grund);
    }
    return true;
}

bool OriginalAufheben(const QString& Pfad) {
    if (!DateiExistiert(Pfad))
        return true;
    const QString Ziel =
        Zustandsverzeichnis() + u'/' + Jetzt().toString(QStringLiteral("yyyyMMdd-HHmmss-")) + DateiName(Pfad);
    QString Grund;
    if (!DateiKopieren(Pfad, Ziel, &Grund)) {
        MeldungZeigen(Grund, {}, Symbol::Fehler);
        return false;
    }
    MeldungZeigen(
        QStringLiteral("Beim letzten Laden konnte nicht alles gelesen werden. Der bisherige Inhalt der "
                       "Datei ") +
        Pfad + QStringLiteral(" ist deshalb aufgehoben in ") + Ziel);
    return true;
}
