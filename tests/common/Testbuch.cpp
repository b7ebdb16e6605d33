#include "common/Testbuch.h"

#include "core/Definitionen.h"

#include <QStringList>

namespace {

void KlasseLesen(const QStringList& Worte) {
    Datenbank.Klassen[Datenbank.AnzKlassen] = {Datenbank.AktJahr, Worte.value(1)};
    ++Datenbank.AnzKlassen;
}

void FachLesen(const QStringList& Worte) {
    Fach Neues;
    Neues.ID = Worte.value(1).toInt();
    Neues.Klasse = Worte.value(2);
    Neues.Name = Worte.mid(3).join(u' ');
    Neues.Jahr = Datenbank.AktJahr;
    Neues.GrenzeP = Neues.GrenzeE = Neues.GrenzeM = QStringLiteral("6");
    Datenbank.Faecher[Datenbank.AnzFaecher] = Neues;
    ++Datenbank.AnzFaecher;
    NaechsteFachID = qMax(NaechsteFachID, Neues.ID + 1);
}

Fach& FachMitID(int ID) {
    for (int i = 0; i < Datenbank.AnzFaecher; ++i)
        if (Datenbank.Faecher[i].ID == ID)
            return Datenbank.Faecher[i];
    qFatal("Testbuch: kein Fach %d", ID);
}

void ProbeLesen(const QStringList& Worte) {
    Probe& Eine = FachMitID(Worte.value(1).toInt()).Proben[Worte.value(2).toInt()];
    for (const QString& Wort : Worte.mid(3)) {
        const QString Wert = Wort.section(u'=', 1);
        if (Wort.startsWith(QStringLiteral("Gesamt=")))
            Eine.Gesamtpunktzahl = Wert;
        else if (Wort.startsWith(QStringLiteral("Thema=")))
            Eine.Name = Wert;
        else if (Wort.startsWith(QStringLiteral("Datum=")))
            Eine.Datum = Wert;
        else if (Wort.startsWith(QStringLiteral("Grenzen=")))
            for (int j = 1; j <= 5; ++j)
                Eine.NGrenze[j] = Wert.section(u';', j - 1, j - 1);
    }
}

void SchuelerLesen(const QStringList& Worte) {
    Schueler Neuer;
    Neuer.ID = Worte.value(1).toInt();
    Neuer.Klasse = Worte.value(2);
    Neuer.Name = Worte.mid(3).join(u' ');
    Neuer.Jahr = Datenbank.AktJahr;
    Datenbank.Schueler[Datenbank.AnzSchueler] = Neuer;
    ++Datenbank.AnzSchueler;
    NaechsteSchuelerID = qMax(NaechsteSchuelerID, Neuer.ID + 1);
}

void NoteLesen(const QStringList& Worte) {
    Notenzeile Neue;
    Neue.Schueler_ID = Worte.value(1).toInt();
    Neue.Fach_ID = Worte.value(2).toInt();
    Neue.Teilnahme = QStringLiteral("ja");
    for (const QString& Wort : Worte.mid(3)) {
        const QString Name = Wort.section(u'=', 0, 0);
        const QString Wert = Wort.section(u'=', 1);
        if (Name == QStringLiteral("Teilnahme"))
            Neue.Teilnahme = Wert;
        else if (Name == QStringLiteral("G1"))
            Neue.Gesamt1 = Wert;
        else if (Name == QStringLiteral("G2"))
            Neue.Gesamt2 = Wert;
        else if (Name.startsWith(u'N'))
            Neue.N[Name.mid(1).toInt()] = Wert;
        else if (Name.startsWith(u'P'))
            Neue.P[Name.mid(1).toInt()] = Wert;
    }
    Datenbank.Noten[Datenbank.AnzNoten] = Neue;
    ++Datenbank.AnzNoten;
}

void ZSchuelerLesen(const QStringList& Worte) {
    ZSchueler Neuer;
    Neuer.Fach_ID = Worte.value(1).toInt();
    Neuer.Probe_ID = Worte.value(2).toInt();
    QStringList Name;
    for (const QString& Wort : Worte.mid(3)) {
        if (Wort.startsWith(QStringLiteral("P=")))
            Neuer.Punkte = Wort.mid(2);
        else if (Wort.startsWith(QStringLiteral("N=")))
            Neuer.Note = Wort.mid(2);
        else
            Name.append(Wort);
    }
    Neuer.Name = Name.join(u' ');
    Datenbank.ZSchueler[Datenbank.AnzZSchueler] = Neuer;
    ++Datenbank.AnzZSchueler;
}

} // namespace

void TestbuchLaden(const QString& Zeilen) {
    for (const QString& Zeile : Zeilen.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList Worte = Zeile.trimmed().split(u' ', Qt::SkipEmptyParts);
        if (Worte.isEmpty())
            continue;
        const QString& Art = Worte.first();
        if (Art == QStringLiteral("Klasse"))
            KlasseLesen(Worte);
        else if (Art == QStringLiteral("Fach"))
            FachLesen(Worte);
        else if (Art == QStringLiteral("Probe"))
            ProbeLesen(Worte);
        else if (Art == QStringLiteral("Schueler"))
            SchuelerLesen(Worte);
        else if (Art == QStringLiteral("Note"))
            NoteLesen(Worte);
        else if (Art == QStringLiteral("ZSchueler"))
            ZSchuelerLesen(Worte);
        else
            qFatal("Testbuch: unbekannte Zeile %s", qPrintable(Zeile));
    }
}
