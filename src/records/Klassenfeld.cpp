#include "records/Klassenfeld.h"

#include "core/FktSpeziell.h"

QStringList KlassenDesFelds(const QString& Klassenfeld) {
    KlassenTrennen(Klassenfeld);
    QStringList Klassen;
    for (const QString& Teil : KlassenTeile) {
        if (Teil.isEmpty())
            break;
        // A letter written twice names no second class: a student has one row in a subject.
        if (!Klassen.contains(Teil))
            Klassen.append(Teil);
    }
    return Klassen;
}

bool FeldNenntKlasse(const QString& Klassenfeld, const QString& Klasse) {
    // A field begins with the stem of each of its classes: most fields need not be split.
    if (Klasse.isEmpty() || !Klassenfeld.startsWith(QStringView(Klasse).chopped(1)))
        return false;
    return KlassenDesFelds(Klassenfeld).contains(Klasse);
}
