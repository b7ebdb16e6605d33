#include "common/Referenzdatei.h"

#include "core/Definitionen.h"

#include <QFile>
#include <QHash>
#include <QStringList>
#include <QTextStream>

namespace {

/// Where the assessment lines go: student and slot of the last marker.
struct Ziel {
    int Index = -1;
    int Platz = 0;
};

void FachLesen(const QStringList& F, QHash<qint32, int>& Faecher) {
    Fach& Neues = Datenbank.Faecher[Datenbank.AnzFaecher];
    Neues.ID = F[0].toInt();
    Neues.Name = F[1];
    Neues.Klasse = F[2];
    Neues.Jahr = F[3];
    Neues.GrenzeP = F[4];
    Neues.GrenzeE = F[5];
    Neues.GrenzeM = F[6];
    Faecher.insert(Neues.ID, Datenbank.AnzFaecher++);
}

void ProbeLesen(const QStringList& F, const QHash<qint32, int>& Faecher) {
    Probe& Eine = Datenbank.Faecher[Faecher.value(F[1].toInt())].Proben[F[0].toInt()];
    Eine.Datum = F[2];
    Eine.Name = F[3];
    Eine.Dateiname = F[4];
    Eine.Gesamtpunktzahl = F[5];
    for (int i = 1; i <= 5; ++i)
        Eine.NGrenze[i] = F[5 + i];
}

void SchuelerLesen(const QStringList& F, QHash<qint32, int>& Schueler) {
    auto& Neuer = Datenbank.Schueler[Datenbank.AnzSchueler];
    Neuer.ID = F[0].toInt();
    Neuer.Name = F[1];
    Neuer.Klasse = F[2];
    Neuer.Jahr = F[3];
    for (int i = 1; i <= 14; ++i)
        Neuer.Feld[i] = F[3 + i];
    Schueler.insert(Neuer.ID, Datenbank.AnzSchueler++);
}

void NotenzeileLesen(const QStringList& F) {
    Notenzeile& Neue = Datenbank.Noten[Datenbank.AnzNoten++];
    Neue.Fach_ID = F[0].toInt();
    Neue.Schueler_ID = F[1].toInt();
    Neue.Teilnahme = F[2];
    Neue.Gesamt1 = F[3];
    Neue.Gesamt2 = F[4];
    for (int i = 1; i <= 30; ++i)
        Neue.N[i] = F[4 + i];
    for (int i = 1; i <= 20; ++i)
        Neue.P[i] = F[34 + i];
}

void BeurteilungLesen(const QString& Zeile, Ziel& Wohin, const QHash<qint32, int>& Schueler) {
    if (Zeile.startsWith(u'#') && Zeile.endsWith(u'#')) {
        Wohin.Index = Schueler.value(Zeile.mid(1, 5).toInt(), -1);
        Wohin.Platz = Zeile.mid(7, Zeile.size() - 8).toInt() - 1;
        return;
    }
    if (Wohin.Index < 0)
        return;
    QString& Text = Datenbank.Schueler[Wohin.Index].Beurteilung[Wohin.Platz];
    if (!Text.isEmpty())
        Text += QStringLiteral("\r\n");
    Text += Zeile;
}

void ParameterLesen(const QStringList& F) {
    Datenbank.AktJahr = F[0];
    Datenbank.Halbjahreswechsel = F[1];
    Datenbank.Endjahreswechsel = F[2];
}

void ZeileLesen(const QString& Abschnitt, const QString& Zeile, QHash<qint32, int>& Faecher,
                QHash<qint32, int>& Schueler, Ziel& Wohin) {
    if (Abschnitt == QStringLiteral("[Beurteilungen]")) {
        BeurteilungLesen(Zeile, Wohin, Schueler);
        return;
    }
    const QStringList F = Zeile.split(u'\t');
    if (Abschnitt == QStringLiteral("[Klassen]"))
        Datenbank.Klassen[Datenbank.AnzKlassen++] = {F[0], F[1]};
    else if (Abschnitt == QStringLiteral("[Fächer]"))
        FachLesen(F, Faecher);
    else if (Abschnitt == QStringLiteral("[Proben]"))
        ProbeLesen(F, Faecher);
    else if (Abschnitt == QStringLiteral("[Schüler]"))
        SchuelerLesen(F, Schueler);
    else if (Abschnitt == QStringLiteral("[ZSchüler]"))
        Datenbank.ZSchueler[Datenbank.AnzZSchueler++] = {F[0].toInt(), F[1].toInt(), F[2], F[3], F[4]};
    else if (Abschnitt == QStringLiteral("[Noten]"))
        NotenzeileLesen(F);
    else if (Abschnitt == QStringLiteral("[Parameter]"))
        ParameterLesen(F);
}

void ProbenSchreiben(QTextStream& S) {
    for (int f = 0; f < Datenbank.AnzFaecher; ++f) {
        for (int i = 1; i <= 20; ++i) {
            const Probe& Eine = Datenbank.Faecher[f].Proben[i];
            if (Eine.Name.isEmpty() && Eine.Gesamtpunktzahl.isEmpty() && Eine.Dateiname.isEmpty())
                continue;
            S << i << "\t" << Datenbank.Faecher[f].ID << "\t" << Eine.Datum << "\t" << Eine.Name << "\t"
              << Eine.Dateiname << "\t" << Eine.Gesamtpunktzahl;
            for (int Note = 1; Note <= 5; ++Note)
                S << "\t" << Eine.NGrenze[Note];
            S << "\r\n";
        }
    }
}

void SchuelerSchreiben(QTextStream& S) {
    for (int s = 0; s < Datenbank.AnzSchueler; ++s) {
        const Schueler& Einer = Datenbank.Schueler[s];
        S << Einer.ID << "\t" << Einer.Name << "\t" << Einer.Klasse << "\t" << Einer.Jahr;
        for (int i = 1; i <= 14; ++i)
            S << "\t" << Einer.Feld[i];
        S << "\r\n";
    }
}

void NotenSchreiben(QTextStream& S) {
    for (int n = 0; n < Datenbank.AnzNoten; ++n) {
        const Notenzeile& Eine = Datenbank.Noten[n];
        S << Eine.Fach_ID << "\t" << Eine.Schueler_ID << "\t" << Eine.Teilnahme << "\t" << Eine.Gesamt1
          << "\t" << Eine.Gesamt2;
        for (int i = 1; i <= 30; ++i)
            S << "\t" << Eine.N[i];
        for (int i = 1; i <= 20; ++i)
            S << "\t" << Eine.P[i];
        S << "\r\n";
    }
}

void BeurteilungenSchreiben(QTextStream& S) {
    for (int s = 0; s < Datenbank.AnzSchueler; ++s)
        for (int i = 0; i < 12; ++i)
            if (!Datenbank.Schueler[s].Beurteilung[i].isEmpty())
                S << "#" << Datenbank.Schueler[s].ID << "_" << i + 1 << "#\r\n"
                  << Datenbank.Schueler[s].Beurteilung[i] << "\r\n";
}

} // namespace

void ReferenzLaden(const QString& Pfad) {
    QFile Datei(Pfad);
    if (!Datei.open(QIODevice::ReadOnly))
        return;
    QTextStream Strom(&Datei);
    Strom.setEncoding(QStringConverter::Latin1);
    QHash<qint32, int> Faecher;
    QHash<qint32, int> Schueler;
    QString Abschnitt;
    Ziel Wohin;
    Strom.readLine();
    while (!Strom.atEnd()) {
        const QString Zeile = Strom.readLine();
        if (Zeile.startsWith(u'[') && Zeile.endsWith(u']')) {
            Abschnitt = Zeile;
            Strom.readLine();
        } else {
            ZeileLesen(Abschnitt, Zeile, Faecher, Schueler, Wohin);
        }
    }
}

void ReferenzSpeichern(const QString& Pfad) {
    QFile Datei(Pfad);
    if (!Datei.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    QTextStream S(&Datei);
    S.setEncoding(QStringConverter::Latin1);
    S << "[Tafelquell 3.0]\r\n[Klassen]\r\nJahr\tName\r\n";
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        S << Datenbank.Klassen[i].Jahr << "\t" << Datenbank.Klassen[i].Name << "\r\n";
    S << QStringLiteral("[Fächer]\r\nID\tName\tKlasse\tJahr\tGrenzeP\tGrenzeE\tGrenzeM\r\n");
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& F = Datenbank.Faecher[i];
        S << F.ID << "\t" << F.Name << "\t" << F.Klasse << "\t" << F.Jahr << "\t" << F.GrenzeP << "\t"
          << F.GrenzeE << "\t" << F.GrenzeM << "\r\n";
    }
    S << "[Proben]\r\nProbe_ID\r\n";
    ProbenSchreiben(S);
    S << QStringLiteral("[Schüler]\r\nID\r\n");
    SchuelerSchreiben(S);
    S << QStringLiteral("[ZSchüler]\r\nProbe_ID\r\n");
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i) {
        const ZSchueler& Z = Datenbank.ZSchueler[i];
        S << Z.Probe_ID << "\t" << Z.Fach_ID << "\t" << Z.Name << "\t" << Z.Punkte << "\t" << Z.Note
          << "\r\n";
    }
    S << "[Noten]\r\nFach_ID\r\n";
    NotenSchreiben(S);
    S << "[Beurteilungen]\r\n#Schueler_ID _ Halbjahr#\r\n";
    BeurteilungenSchreiben(S);
    S << "[Parameter]\r\nAktJahr\r\n"
      << Datenbank.AktJahr << "\t" << Datenbank.Halbjahreswechsel << "\t" << Datenbank.Endjahreswechsel
      << "\r\n";
}
