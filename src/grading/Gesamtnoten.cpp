#include "grading/Gesamtnoten.h"

#include "core/Einstellungen.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "core/Zahlen.h"

namespace {

/// Sum and number of the grades of one block in one span of time.
struct Notensumme {
    float Summe = 0;
    int Anzahl = 0;

    void Zaehlen(float Wert) {
        Summe += Wert;
        ++Anzahl;
    }
    Notensumme operator+(const Notensumme& Andere) const {
        return {Summe + Andere.Summe, Anzahl + Andere.Anzahl};
    }
};

/// The three blocks in one span of time.
struct Bloecke {
    Notensumme P;
    Notensumme E;
    Notensumme M;
};

/// What averages of blocks add up to.
struct Blockmittel {
    float Wert = 0;
    float Gewicht = 0;

    void Dazu(const Notensumme& Block, float Gewichtung) {
        if (Block.Anzahl <= 0)
            return;
        Wert += Gewichtung * Block.Summe / static_cast<float>(Block.Anzahl);
        Gewicht += Gewichtung;
    }
};

QString Einzelnoten(const Bloecke& Teil, const Gesamtregeln& Regeln) {
    const float Nenner = static_cast<float>(Teil.P.Anzahl) +
                         Regeln.GewichtungE * static_cast<float>(Teil.E.Anzahl) +
                         Regeln.GewichtungM * static_cast<float>(Teil.M.Anzahl);
    const bool OhneNoten = Teil.P.Anzahl + Teil.E.Anzahl + Teil.M.Anzahl == 0;
    // A weight of 0, which only a file can bring, can leave nothing to divide by.
    if (OhneNoten || Nenner == 0.0F)
        return {};
    const float Zaehler =
        Teil.P.Summe + Regeln.GewichtungE * Teil.E.Summe + Regeln.GewichtungM * Teil.M.Summe;
    return ZahlFormat(Zaehler / Nenner, Regeln.Format);
}

QString Blocknoten(const Bloecke& Teil, const Gesamtregeln& Regeln) {
    Blockmittel Mittel;
    Mittel.Dazu(Teil.P, 1);
    if (Regeln.Methode == 3) {
        Mittel.Dazu(Teil.M + Teil.E, Regeln.GewichtungE);
    } else {
        Mittel.Dazu(Teil.E, Regeln.GewichtungE);
        Mittel.Dazu(Teil.M, Regeln.GewichtungM);
    }
    return Mittel.Gewicht > 0 ? ZahlFormat(Mittel.Wert / Mittel.Gewicht, Regeln.Format) : QString();
}

QString Durchschnitt(const Bloecke& Teil, const Gesamtregeln& Regeln) {
    return Regeln.Methode == 2 || Regeln.Methode == 3 ? Blocknoten(Teil, Regeln) : Einzelnoten(Teil, Regeln);
}

void Zaehlen(Notensumme& Jahr, Notensumme& Halbjahr, const QString& Note, bool InHalbjahr) {
    const float Wert = NoteAlsZahl(Note);
    if (Wert <= 0)
        return;
    Jahr.Zaehlen(Wert);
    if (InHalbjahr)
        Halbjahr.Zaehlen(Wert);
}

int Beginn(const QString& Grenze) {
    return qBound(1, static_cast<int>(GanzzahlAusText(Grenze)), 11);
}

} // namespace

Halbjahresbeginn HalbjahresbeginnVon(const Fach& Eines) {
    return {Beginn(Eines.GrenzeP), Beginn(Eines.GrenzeE), Beginn(Eines.GrenzeM)};
}

Gesamtregeln AktuelleGesamtregeln() {
    Notenformat = EinstellungLesen(QStringLiteral("Notenformat"), QStringLiteral("0.0"));
    const int Methode = GanzzahlAusText(Datenbank.NotenberechnenMethode);
    return {Methode == 2 || Methode == 3 ? Methode : 1, Datenbank.GewichtungE, Datenbank.GewichtungM,
            Notenformat};
}

Durchschnitte DurchschnitteBerechnen(const Reihe<QString, 31>& Noten, const Halbjahresbeginn& Grenzen,
                                     const Gesamtregeln& Regeln) {
    Bloecke Jahr;
    Bloecke Halbjahr;
    for (int c = 1; c <= 10; ++c) {
        Zaehlen(Jahr.P, Halbjahr.P, Noten[c], c < Grenzen.P);
        Zaehlen(Jahr.E, Halbjahr.E, Noten[c + 10], c < Grenzen.E);
        Zaehlen(Jahr.M, Halbjahr.M, Noten[c + 20], c < Grenzen.M);
    }
    return {Durchschnitt(Halbjahr, Regeln), Durchschnitt(Jahr, Regeln)};
}

bool ErstesHalbjahr(int Spalte, const Halbjahresbeginn& Grenzen) {
    if (Spalte <= Notenspalte::LetzteProbe)
        return Spalte < Grenzen.P;
    if (Spalte <= Notenspalte::LetzterTest)
        return Spalte - 10 < Grenzen.E;
    return Spalte - 20 < Grenzen.M;
}

QString Halbjahrestitel(int Spalte, const Halbjahresbeginn& Grenzen) {
    return ErstesHalbjahr(Spalte, Grenzen) ? QStringLiteral(" 1.Hj") : QStringLiteral(" 2.Hj");
}

QRgb Notenspaltenfarbe(int Spalte, const Halbjahresbeginn& Grenzen) {
    constexpr QRgb Blau = qRgb(221, 239, 255);
    constexpr QRgb Gruen = qRgb(221, 255, 221);
    switch (Spalte) {
    case Notenspalte::Name:
        return qRgb(238, 238, 238);
    case Notenspalte::HalbjahrDurchschnitt:
        return Blau;
    case Notenspalte::HalbjahrZeugnis:
        return qRgb(204, 221, 255);
    case Notenspalte::JahrDurchschnitt:
        return Gruen;
    case Notenspalte::JahrZeugnis:
        return qRgb(204, 255, 204);
    default:
        return ErstesHalbjahr(Spalte, Grenzen) ? Blau : Gruen;
    }
}
