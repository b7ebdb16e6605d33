#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/Dokument.h"
#include "core/Dokumentdateien.h"
#include "core/Ladebericht.h"
#include "core/Oberflaeche.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Sicherung", Text);
}

QString Wiederherstellungsfrage(const QString& Zeit) {
    return Tr("Zu Ihrer aktuellen Datenbank existiert eine Sicherheitskopie vom ") + Zeit + Tr(" Uhr.") +
           u'\n' +
           Tr("Möchten Sie wirklich alle seitdem gemachten Änderungen verwerfen und Ihre Daten aus dieser") +
           u'\n' + Tr("Sicherheitskopie wiederherstellen?");
}

} // namespace

void SicherheitskopieErstellen() {
    AktuelleOberflaeche().FokusNehmen();
    if (FrageSpeichern())
        SicherheitskopieAnlegen(AutoDatei(), Tr("Von Ihrer Datenbank wurde eine Sicherheitskopie erstellt!"));
}

void DatenbankWiederherstellen(const QString& Pfad) {
    AktuelleOberflaeche().FokusNehmen();
    QString Grund;
    if (!SicherheitskopieZurueckholen(Pfad, Wiederherstellungsfrage, &Grund))
        return;
    LadeDatenbank(Pfad);
    AktuelleOberflaeche().AnsichtAktualisieren();
    if (!Grund.isEmpty())
        Berichten(Grund);
    else
        Berichten(Tr("Die aktuelle Datenbank wurde aus ihrer Sicherheitskopie wiederhergestellt!") + u'\n' +
                  Tr("Die ursprüngliche Datei wurde in ") + MitEndung(Pfad, QStringLiteral("_err.txt")) +
                  Tr(" umbenannt!"));
}
