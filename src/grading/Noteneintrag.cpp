#include "grading/Noteneintrag.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "core/Zahlen.h"
#include "grading/Gesamtnoten.h"

#include <cmath>

namespace {

/// Points that say: the grade was set by hand.
QString VonHand(const QString& Punkte) {
    const float Betrag = std::fabs(ZahlAusText(Punkte));
    return ZahlText(Betrag == 0.0F ? -0.1F : -Betrag);
}

} // namespace

bool NoteEintragen(qint32 Schueler_ID, qint32 Fach_ID, int Nummer, const QString& Note) {
    const int Platz = NotenIndex(Schueler_ID, Fach_ID);
    if (Platz < 0 || Datenbank.Noten[Platz].N[Nummer] == Note)
        return false;
    Notenzeile& Zeile = Datenbank.Noten[Platz];
    Zeile.N[Nummer] = Note;
    if (Nummer <= Notenspalte::LetzterTest)
        Zeile.P[Nummer] = Note.isEmpty() ? QString() : VonHand(Zeile.P[Nummer]);
    DatenGeaendert = true;
    return true;
}

bool ZeugnisnoteEintragen(qint32 Schueler_ID, qint32 Fach_ID, bool Halbjahr, const QString& Note) {
    const int Platz = NotenIndex(Schueler_ID, Fach_ID);
    if (Platz < 0)
        return false;
    QString& Ziel = Halbjahr ? Datenbank.Noten[Platz].Gesamt1 : Datenbank.Noten[Platz].Gesamt2;
    if (Ziel == Note)
        return false;
    Ziel = Note;
    DatenGeaendert = true;
    return true;
}
