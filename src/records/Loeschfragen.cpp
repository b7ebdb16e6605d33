#include "records/Loeschfragen.h"

#include "core/Fehlerfang.h"
#include "core/Meldungen.h"
#include "records/Loeschen.h"

#include <QStringList>

bool KlasseLoeschenFragen(const QString& Name) {
    const QStringList Zeilen{
        QStringLiteral("Wollen Sie die Klasse ") + Name + QStringLiteral(" wirklich löschen?"),
        QStringLiteral("Die Notendaten und Namen aller Schüler der Klasse gehen dabei verloren!"),
        QStringLiteral("Achtung!!! Es werden auch Fächer aus anderen Klassen gelöscht"),
        QStringLiteral("(und damit auch die Noten der Schüler anderer Klassen), wenn es Fächer"),
        QStringLiteral("mit zusammengelegten Klassen gibt, bei der die Klasse ") + Name +
            QStringLiteral(" dabei ist!!!"),
    };
    return FrageJaNein(Zeilen.join(u'\r')) && Ausfuehren([&] { KlasseLoeschen(Name); });
}

bool FachLoeschenFragen(qint32 ID, const QString& Bezeichnung) {
    const QString Frage =
        QStringLiteral("Wollen Sie das Fach ") + Bezeichnung +
        QStringLiteral(" wirklich löschen?\rDie Notendaten aller Schüler gehen dabei verloren!!!");
    return FrageJaNein(Frage) && Ausfuehren([&] { FachLoeschen(ID); });
}

bool SchuelerLoeschenFragen(qint32 ID) {
    return FrageJaNein(QStringLiteral("Soll der Schüler wirklich gelöscht werden?")) &&
           Ausfuehren([&] { SchuelerLoeschen(ID); });
}
