#pragma once

#include <QString>

// A grade book in some lines of text, and back. Each line is one record:
//
//   Klasse 7a
//   Fach 50000 7a Mathematik
//   Probe 50000 1 Gesamt=40 Grenzen=36;31;25;18;9 Thema=Bruchrechnen
//   Schueler 10000 7a Bauer Anna
//   Note 10000 50000 Teilnahme=ja N1=2 P1=33 N21=1 G1=2 G2=3
//   ZSchueler 50000 1 P=12 N=4 Gast Emil
//
// The year is Datenbank.AktJahr. IDs move the counters as a load does.

/// Adds the records to Datenbank. A line it does not know is fatal: the test is wrong.
void TestbuchLaden(const QString& Zeilen);
