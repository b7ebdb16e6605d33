#pragma once

#include <QString>

// Single changes of records from the cells of the lists. Each takes the text as it is, gives true if it
// differed and is now stored (DatenGeaendert is set then), and false if nothing changed, also where the
// record does not exist.

bool SchuelerNamenAendern(qint32 Schueler_ID, const QString& Name);          ///< the photo is renamed first
bool SchuelerFeldAendern(qint32 Schueler_ID, int Feld, const QString& Text); ///< field 1..14
bool FeldTitelAendern(int Feld, const QString& Titel);                       ///< field 1..14
bool FachNamenAendern(qint32 Fach_ID, const QString& Name);
bool TeilnahmeAendern(qint32 Schueler_ID, qint32 Fach_ID, const QString& Teilnahme);
