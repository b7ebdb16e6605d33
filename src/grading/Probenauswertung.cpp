#include "grading/Probenauswertung.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "core/Zahlen.h"

#include <algorithm>

const QString MeldungUnplausibel =
    QStringLiteral("Die Werte für Gesamtpunkte und/oder Notengrenzen sind nicht plausibel!");

Notenregeln AktuelleNotenregeln() {
    return {MaxNote, Datenbank.GrenznotenBerechnen, Datenbank.GrenznotenPunkteAbstand};
}

Grenzpruefung GrenzenPruefen(const Probenmassstab& Massstab, int HoechsteNote) {
    Grenzpruefung Werte;
    Werte.Gesamt = ZahlAusText(Massstab.Gesamtpunktzahl);
    Werte.Plausibel = Werte.Gesamt >= 1 && Werte.Gesamt <= 200;
    for (int j = 0; j <= HoechsteNote - 2; ++j) {
        const float Grenze = ZahlAusText(Massstab.NGrenze[j]);
        Werte.Grenze[j] = Grenze;
        if (Grenze <= 0 || Grenze > Werte.Gesamt || (j > 0 && Grenze >= Werte.Grenze[j - 1]))
            Werte.Plausibel = false;
    }
    return Werte;
}

namespace {

/// The highest points that are not evaluated any more, whatever the total: the counts end there.
constexpr float PunkteZuViel = 200;

/// The grade text for points from 0 on; the last boundary is a sentinel that all of them reach.
QString NoteZuPunkten(float Punkte, const Reihe<float, 6>& Grenze, const Notenregeln& Regeln) {
    int k = 0;
    while (Punkte < Grenze[k])
        ++k;
    QString Note = QString::number(k + 1);
    if (!Regeln.GrenznotenBerechnen)
        return Note;
    // The two tests are not symmetrical: a distance hit exactly gives no "-" but a "+".
    const float NahDarunter = Grenze[k] + Regeln.GrenznotenPunkteAbstand;
    if (Punkte < NahDarunter)
        Note += u'-';
    if (k > 0) {
        const float NahDarueber = Grenze[k - 1] - Regeln.GrenznotenPunkteAbstand;
        if (Punkte >= NahDarueber)
            Note += u'+';
    }
    return Note;
}

float Mittelwert(const Reihe<qint16, 7>& NotenAnzahl, int HoechsteNote) {
    float Anzahl = 0;
    float Summe = 0;
    for (int i = 1; i <= HoechsteNote; ++i) {
        Anzahl += NotenAnzahl[i];
        Summe += static_cast<float>(i * NotenAnzahl[i]);
    }
    return Anzahl > 0 ? Summe / Anzahl : 0.0F;
}

/// One evaluation while it runs through the rows of a test that has points.
class Bewertung {
  public:
    Bewertung(const Grenzpruefung& Pruefung, const Notenregeln& NeueRegeln, Auswertung& NeuesErgebnis)
        : Regeln(NeueRegeln)
        , Grenze(Pruefung.Grenze)
        , Ergebnis(NeuesErgebnis) {
        Grenze[Regeln.MaxNote - 1] = -1;
    }

    Zeilenergebnis Bewerten(const Auswertungszeile& Zeile) {
        if (Zeile.Punkte.trimmed().isEmpty())
            return {QStringLiteral("ne"), FarbeNichtErbracht};
        const float Punkte = ZahlAusText(Zeile.Punkte);
        if (Punkte < 0) {
            NoteZaehlen(Zeile.Note);
            return {{}, FarbeVonHand};
        }
        if (!Ergebnis.Plausibel || Punkte >= PunkteZuViel)
            return {};
        const QString Note = NoteZuPunkten(Punkte, Grenze, Regeln);
        NoteZaehlen(Note);
        const float Doppelt = 2 * Punkte;
        ++Ergebnis.PunkteVerteilung[Runden(Doppelt)];
        return {Note, FarbeBerechnet};
    }

  private:
    void NoteZaehlen(const QString& Note) { ++Ergebnis.NotenAnzahl[Runden(NoteAlsZahl(Note))]; }

    const Notenregeln& Regeln;
    Reihe<float, 6> Grenze;
    Auswertung& Ergebnis;
};

} // namespace

Auswertung ProbeBewerten(const Probenmassstab& Massstab, const std::vector<Auswertungszeile>& Zeilen,
                         const Notenregeln& Regeln) {
    const Grenzpruefung Pruefung = GrenzenPruefen(Massstab, Regeln.MaxNote);
    Auswertung Ergebnis;
    Ergebnis.Plausibel = Pruefung.Plausibel;
    const bool HatPunkte = std::any_of(Zeilen.begin(), Zeilen.end(), [](const Auswertungszeile& Zeile) {
        return !Zeile.Punkte.trimmed().isEmpty();
    });
    if (!HatPunkte) {
        Ergebnis.Zeilen.assign(Zeilen.size(), {QString(), {}});
        return Ergebnis;
    }
    Bewertung Lauf(Pruefung, Regeln, Ergebnis);
    Ergebnis.Zeilen.reserve(Zeilen.size());
    for (const Auswertungszeile& Zeile : Zeilen)
        Ergebnis.Zeilen.push_back(Lauf.Bewerten(Zeile));
    Ergebnis.Notenschnitt = Mittelwert(Ergebnis.NotenAnzahl, Regeln.MaxNote);
    return Ergebnis;
}
