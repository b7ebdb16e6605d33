#include "core/Ladebericht.h"

#include "core/FktAllgemein.h"
#include "core/Laufzeitfehler.h"
#include "core/Meldungen.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString Tr(const char* Text) {
    return QCoreApplication::translate("Ladebericht", Text);
}

} // namespace

void FeldwarnungZeigen(const Feldwarnung& Warnung) {
    const QStringList Zeilen{
        Tr("Die Anzahl der Daten in der %1.ten Zeile der Sektion %2 stimmt nicht!")
            .arg(QString::number(Warnung.Satz), Warnung.Abschnitt),
        Tr("Es sind %1 statt %2 Einträge in der Datenbank").arg(Warnung.Gefunden).arg(Warnung.Erwartet),
        QString(),
        Tr("Die Daten sind möglicherweise defekt und können ein Fehlverhalten des Programms verursachen!"),
        Tr("Es wird empfohlen, die Daten unter anderem Namen abzuspeichern!"),
        Tr("Funktioniert das Programm trotzdem nicht mehr einwandfrei, wird empfohlen, "),
        Tr("sich mit dem Author in Verbindung zu setzen!"),
        QString()};
    MeldungZeigen(Zeilen.join(u'\r'), Tr("Warnung:"), Symbol::Warnung);
}

QString Schadensbericht(const QString& Leitzeile, const QString& Pfad, const Lesestelle& Stelle) {
    const QStringList Zeilen{Leitzeile,
                             Tr("Die Datei ") + Pfad + Tr(" ist beschädigt oder hat ungültige Daten!"),
                             QString(),
                             Tr("Fehlerindizien:"),
                             QString(50, u'-'),
                             Tr("fehlerhafte Zeile in der Datei:       ") + QString::number(Stelle.Zeile),
                             Tr("fehlerhafte Zeile in der Sektion:   ") + QString::number(Stelle.Satz),
                             Tr("Sektion:                                       ") + Stelle.Abschnitt,
                             QString(),
                             Tr("fehlerhafte Zeile: "),
                             QString(28, u'-'),
                             Stelle.Text,
                             QString()};
    return Zeilen.join(QStringLiteral("\r\n"));
}

QString Versionsbericht(const QString& Version) {
    return Tr("Die Datei ist nicht ladbar.") + u'\r' + Tr("Um sie zu laden, benötigen Sie die Version ") +
           Version + Tr(" der Tafelquell!");
}

void Berichten(const QString& Meldung) {
    try {
        Fehlermeldung(Meldung);
    } catch (const Laufzeitfehler&) {
        // It was shown before the log was opened.
    }
}
