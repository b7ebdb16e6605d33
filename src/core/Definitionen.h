#pragma once

// The records, global arrays and scalar globals of the program: plain data, no procedures. One grade book is
// open at a time. Views and procedures read and write it directly; whoever changes a record sets
// DatenGeaendert (whoever changes the phrase store: FormulierungenGeaendert) after the record is complete.
//
// Conventions: arrays have fixed bounds and keep what stood in an entry beyond their counter; emptying is
// setting the counter to 0. "Text value" is a number or a text, always held and compared in its text form.
// Unset is the empty text, never 0. A look-up gives the first match, or -1.

#include "core/Reihe.h"

#include <QString>

/// A class of one school year. It has no ID: Name and Jahr together are its identity.
struct Klasse {
    QString Jahr; ///< school year, "2003/04"
    QString Name; ///< "7a"

    bool operator==(const Klasse&) const = default;
};

/// One test of a subject. Empty when all fields but Datum are empty.
struct Probe {
    QString Datum;             ///< date as typed
    QString Name;              ///< theme
    QString Dateiname;         ///< free reference to a file
    QString Gesamtpunktzahl;   ///< text value: total of points
    Reihe<QString, 6> NGrenze; ///< text values 1..5: lowest points that still earn grade j; [0] holds nothing

    bool operator==(const Probe&) const = default;
};

/// One subject taught in one class, or in several that are taught together ("3bc").
struct Fach {
    qint32 ID = 0; ///< 50000 and above
    QString Name;
    QString Klasse; ///< one class name, or a stem and letters
    QString Jahr;
    QString GrenzeP;         ///< text value 1..11: first Probe of the second half-year
    QString GrenzeE;         ///< the same for Lernzielkontrollen
    QString GrenzeM;         ///< the same for oral grades
    Reihe<Probe, 21> Proben; ///< 1..10 Proben, 11..20 Lernzielkontrollen; [0] holds nothing

    bool operator==(const Fach&) const = default;
};

/// A student in one school year.
struct Schueler {
    qint32 ID = 0; ///< 10000..49999: five digits, the file format depends on it
    QString Name;  ///< "Nachname Vorname"
    QString Klasse;
    QString Jahr;
    Reihe<QString, 15> Feld; ///< free fields 1..14; Feld[5] holds the sex "m" or "w"; [0] holds nothing
    Reihe<QString, 12> Beurteilung; ///< written assessments 0..11, lines separated by CR LF

    bool operator==(const Schueler&) const = default;
};

/// A person who sat one test only and belongs to no class list.
struct ZSchueler {
    qint32 Probe_ID = 0; ///< test number 1..20
    qint32 Fach_ID = 0;
    QString Name;
    QString Punkte; ///< text value
    QString Note;

    bool operator==(const ZSchueler&) const = default;
};

/// One student in one subject; there is one for each pair, whether or not the student takes part.
struct Notenzeile {
    qint32 Fach_ID = 0;
    qint32 Schueler_ID = 0;
    QString Teilnahme;    ///< "ja" or "nein"
    QString Gesamt1;      ///< report grade of the first half-year
    QString Gesamt2;      ///< report grade of the end of the year
    Reihe<QString, 31> N; ///< grades: 1..10 Proben, 11..20 Lernzielkontrollen, 21..30 oral; [0] holds nothing
    Reihe<QString, 21>
        P; ///< points of tests 1..20, text values; negative: grade set by hand; [0] holds nothing

    bool operator==(const Notenzeile&) const = default;
};

// Records consist of numbers and texts only, so their bytes may be moved to another place.
Q_DECLARE_TYPEINFO(Fach, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(Schueler, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(ZSchueler, Q_RELOCATABLE_TYPE);
Q_DECLARE_TYPEINFO(Notenzeile, Q_RELOCATABLE_TYPE);

/// All that a grade book file holds.
struct Notendatenbank {
    Reihe<::Schueler, 5001> Schueler;
    Reihe<Klasse, 101> Klassen;
    Reihe<Fach, 501> Faecher;
    Reihe<Notenzeile, 10001> Noten;
    Reihe<::ZSchueler, 1001> ZSchueler;
    qint16 AnzSchueler = 0;
    qint16 AnzKlassen = 0;
    qint16 AnzFaecher = 0;
    qint16 AnzNoten = 0;
    qint16 AnzZSchueler = 0;

    QString AktJahr;                         ///< current school year, an entry of cbJahrgang
    QString Halbjahreswechsel;               ///< day and month, "24.02."
    QString Endjahreswechsel;                ///< day and month, "12.09."
    bool GrenznotenBerechnen = false;        ///< evaluation appends "+" and "-"
    float GrenznotenPunkteAbstand = 0;       ///< distance in points for "+" and "-"
    bool GrenznotenBeruecksichtigen = false; ///< "+" and "-" change the number of a grade
    float GrenznotenNotenAbstand = 0;        ///< how much of a grade they are worth, above 0 up to 0.5
    QString NotenberechnenMethode;           ///< text value "1", "2" or "3"
    float GewichtungE = 0;                   ///< weight of Lernzielkontrollen
    float GewichtungM = 0;                   ///< weight of oral grades
    Reihe<QString, 15> SchuelerFeldTitel;    ///< titles 1..14 of Schueler.Feld; [0] holds nothing
};

/// The open grade book.
extern Notendatenbank& Datenbank;

/// Students of another grade book while they are taken over; never saved.
extern Reihe<Schueler, 5001>& FremdSchueler;
extern qint16 AnzFremdSchueler;

extern qint32 NaechsteSchuelerID; ///< next student ID to give out
extern qint32 NaechsteFachID;     ///< next subject ID to give out
inline constexpr qint32 ErsteSchuelerID = 10000;
inline constexpr qint32 ErsteFachID = 50000;

extern bool DatenGeaendert;          ///< the grade book differs from its file
extern bool FormulierungenGeaendert; ///< the phrase store differs from its file

// The selection that survives a change of tab.
extern qint32 AktSchuelerID; ///< 0 for none
extern qint32 AktFachID;     ///< 0 for none
extern qint32 AktProbe;      ///< number of the test minus 1, 0..19
extern QString AktKlasse;    ///< "" for none

extern bool GridEreignisseAktiv;    ///< false while code fills a grid: grid handlers then do nothing
extern bool FormularBereit;         ///< false until frmMain is loaded and while it lays itself out
extern const QString Programmtitel; ///< "Tafelquell 3.1"

/// Countdowns of the delayed commits, in ticks of 500 ms; -1 and below: at rest (core/Eingabezaehler.h).
extern Reihe<qint16, 12> EingabeZaehler;

// What a modal dialog hands back.
extern bool DialogErgebnis;      ///< it ended with its confirming button
extern QString NeueKlasseName;   ///< class of the subject wizard
extern QString NeuesFachName;    ///< subject of the subject wizard
extern bool WizardZurueck;       ///< step 2 of the subject wizard was left with "<Zurück"
extern qint16 LetzteKlassenWahl; ///< last choice of class in the student dialogs
extern int ZSchuelerArt;         ///< last choice in dlgNeuerSchueler1: 1 this test only, 2 the class
extern bool NamenUmgekehrt;      ///< view P shows first names first

// From the parameter file and the settings.
extern qint16 MaxNote;                             ///< 5 or 6, the lowest grade on the scale
extern QString Notenformat;                        ///< "0.0" or "0.00": format of averages
extern Reihe<Reihe<float, 5>, 5> EigeneVerteilung; ///< [variant][grade-1]: percentage of the total
extern Reihe<Reihe<float, 5>, 5> GaussVerteilung;  ///< [variant][grade-1]: cumulative percentage of students
extern Reihe<Reihe<float, 5>, 201> BLLVVerteilung; ///< [total][grade-1]: points; 0 for grade 1: no row
extern Reihe<QString, 14> Probenbezeichnung;       ///< name of a Probe by class level 1..13
extern Reihe<QString, 14> ExtemporalenBezeichnung; ///< name of a Lernzielkontrolle by class level 1..13

// Counts of the test evaluated last, for charts and print.
extern Reihe<qint16, 7> NotenAnzahl; ///< students with grade i; [0] takes what rounds to 0 and is never shown
extern Reihe<qint16, 401> PunkteVerteilung; ///< students who reached i/2 points

/// A learning area of the phrase store. Formulierung holds whole lines: mark, separator, text.
struct Lernbereich {
    qint32 Anzahl = 0; ///< phrases in use
    QString Name;
    Reihe<QString, 200> Formulierung;

    bool operator==(const Lernbereich&) const = default;
};

/// The phrase store: areas 0..AnzLernbereiche-1 in use; the record behind them always has Anzahl 0, so at
/// most 99.
extern Reihe<Lernbereich, 100>& Lernbereiche;
extern qint16 AnzLernbereiche;
