#pragma once

#include "core/Definitionen.h"

#include <QStringView>

// The columns of each section of the grade book file, every one named once and in the order of the file. The
// reader, the writer and the header lines are visitors that walk the same list, so they cannot disagree.
//
// A visitor has: Zahl(name, qint32), Text(name, QString), Teilnahme(name, QString), Texte(name, row, first,
// last), Freie(row, first, last) for the free student fields whose names are their titles, Wahrheit(name,
// bool) and Kommazahl(name, float).

template <class Satz, class Besucher>
void KlasseSpalten(Satz& Eine, Besucher&& B) {
    B.Text(u"Jahr", Eine.Jahr);
    B.Text(u"Name", Eine.Name);
}

template <class Satz, class Besucher>
void FachSpalten(Satz& Eines, Besucher&& B) {
    B.Zahl(u"ID", Eines.ID);
    B.Text(u"Name", Eines.Name);
    B.Text(u"Klasse", Eines.Klasse);
    B.Text(u"Jahr", Eines.Jahr);
    B.Text(u"GrenzeP", Eines.GrenzeP);
    B.Text(u"GrenzeE", Eines.GrenzeE);
    B.Text(u"GrenzeM", Eines.GrenzeM);
}

/// A test has no ID: its number and its subject stand in front of it.
template <class Zahl, class Satz, class Besucher>
void ProbeSpalten(Zahl& Probe_ID, Zahl& Fach_ID, Satz& Eine, Besucher&& B) {
    B.Zahl(u"Probe_ID", Probe_ID);
    B.Zahl(u"Fach_ID", Fach_ID);
    B.Text(u"Datum", Eine.Datum);
    B.Text(u"Name", Eine.Name);
    B.Text(u"Dateiname", Eine.Dateiname);
    B.Text(u"Gesamtpunktzahl", Eine.Gesamtpunktzahl);
    B.Texte(u"NGrenze", Eine.NGrenze, 1, 5);
}

template <class Satz, class Besucher>
void SchuelerSpalten(Satz& Einer, Besucher&& B) {
    B.Zahl(u"ID", Einer.ID);
    B.Text(u"Name", Einer.Name);
    B.Text(u"Klasse", Einer.Klasse);
    B.Text(u"Jahr", Einer.Jahr);
    B.Freie(Einer.Feld, 1, 14);
}

template <class Satz, class Besucher>
void ZSchuelerSpalten(Satz& Einer, Besucher&& B) {
    B.Zahl(u"Probe_ID", Einer.Probe_ID);
    B.Zahl(u"Fach_ID", Einer.Fach_ID);
    B.Text(u"Name", Einer.Name);
    B.Text(u"Punkte", Einer.Punkte);
    B.Text(u"Note", Einer.Note);
}

template <class Satz, class Besucher>
void NotenzeileSpalten(Satz& Eine, Besucher&& B) {
    B.Zahl(u"Fach_ID", Eine.Fach_ID);
    B.Zahl(u"Schüler_ID", Eine.Schueler_ID);
    B.Teilnahme(u"Teilnahme", Eine.Teilnahme);
    B.Text(u"Gesamt1", Eine.Gesamt1);
    B.Text(u"Gesamt2", Eine.Gesamt2);
    B.Texte(u"N", Eine.N, 1, 30);
    B.Texte(u"P", Eine.P, 1, 20);
}

template <class Buch, class Besucher>
void ParameterSpalten(Buch& Eines, Besucher&& B) {
    B.Text(u"AktJahr", Eines.AktJahr);
    B.Text(u"Halbjahreswechsel", Eines.Halbjahreswechsel);
    B.Text(u"Endjahreswechsel", Eines.Endjahreswechsel);
    B.Wahrheit(u"GrenznotenBerechnen", Eines.GrenznotenBerechnen);
    B.Kommazahl(u"GrenznotenPunkteAbstand", Eines.GrenznotenPunkteAbstand);
    B.Wahrheit(u"GrenznotenBeruecksichtigen", Eines.GrenznotenBeruecksichtigen);
    B.Kommazahl(u"GrenznotenNotenAbstand", Eines.GrenznotenNotenAbstand);
    B.Text(u"NotenberechnenMethode", Eines.NotenberechnenMethode);
    B.Kommazahl(u"GewichtungE", Eines.GewichtungE);
    B.Kommazahl(u"GewichtungM", Eines.GewichtungM);
}
