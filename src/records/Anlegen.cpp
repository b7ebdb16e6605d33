#include "records/Anlegen.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "records/Klassenfeld.h"

#include <algorithm>

namespace {

/// Throws the Laufzeitfehler of the bound unless the array takes this many more records.
template <class T, std::size_t N>
void PlatzPruefen(const Reihe<T, N>& /*Feld*/, int Anzahl, std::size_t Mehr) {
    if (static_cast<std::size_t>(Anzahl) + Mehr > N)
        IndexFehler(static_cast<int>(N), N);
}

template <class T, std::size_t N>
void Anfuegen(Reihe<T, N>& Feld, qint16& Anzahl, T Neuer) {
    Feld[Anzahl] = std::move(Neuer);
    ++Anzahl;
}

void NotenzeileAnfuegen(qint32 Schueler_ID, qint32 Fach_ID, const QString& Teilnahme) {
    Notenzeile Neue;
    Neue.Schueler_ID = Schueler_ID;
    Neue.Fach_ID = Fach_ID;
    Neue.Teilnahme = Teilnahme;
    Anfuegen(Datenbank.Noten, Datenbank.AnzNoten, std::move(Neue));
}

void KlasseAnfuegen(const QString& Name) {
    Anfuegen(Datenbank.Klassen, Datenbank.AnzKlassen, Klasse{Datenbank.AktJahr, Name});
}

QStringList FehlendeKlassen(const QString& Klassenfeld) {
    QStringList Klassen = KlassenDesFelds(Klassenfeld);
    Klassen.removeIf([](const QString& Name) { return KlasseVorhanden(Name); });
    return Klassen;
}

Fach NeuesFach(const QString& Klassenfeld, const QString& Name) {
    Fach Neues;
    Neues.ID = NaechsteFachID;
    Neues.Name = Name;
    Neues.Klasse = Klassenfeld;
    Neues.Jahr = Datenbank.AktJahr;
    Neues.GrenzeP = Neues.GrenzeE = Neues.GrenzeM = QStringLiteral("6");
    return Neues;
}

} // namespace

bool KlasseVorhanden(const QString& Name) {
    const auto Ende = Datenbank.Klassen.begin() + Datenbank.AnzKlassen;
    return std::find(Datenbank.Klassen.begin(), Ende, Klasse{Datenbank.AktJahr, Name}) != Ende;
}

void KlasseErstellen(const QString& Name) {
    PlatzPruefen(Datenbank.Klassen, Datenbank.AnzKlassen, 1);
    KlasseAnfuegen(Name);
    DatenGeaendert = true;
}

std::vector<Teilnahmezeile> SchuelerDerKlassen(const QString& Klassenfeld) {
    std::vector<Teilnahmezeile> Zeilen;
    for (const QString& Klasse : KlassenDesFelds(Klassenfeld))
        for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
            const Schueler& Einer = Datenbank.Schueler[i];
            if (Einer.Klasse == Klasse && Einer.Jahr == Datenbank.AktJahr)
                Zeilen.push_back({Einer.ID, Einer.Name, QStringLiteral("ja")});
        }
    std::reverse(Zeilen.begin(), Zeilen.end());
    return Zeilen;
}

std::vector<Teilnahmezeile> FaecherDerKlasse(const QString& Klasse) {
    std::vector<Teilnahmezeile> Zeilen;
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        if (Eines.Jahr == Datenbank.AktJahr && FeldNenntKlasse(Eines.Klasse, Klasse))
            Zeilen.push_back({Eines.ID, Eines.Name, QStringLiteral("ja")});
    }
    std::reverse(Zeilen.begin(), Zeilen.end());
    return Zeilen;
}

qint32 FachErstellen(const QString& Klassenfeld, const QString& Name,
                     const std::vector<Teilnahmezeile>& Teilnehmer) {
    const QStringList Klassen = FehlendeKlassen(Klassenfeld);
    PlatzPruefen(Datenbank.Klassen, Datenbank.AnzKlassen, static_cast<std::size_t>(Klassen.size()));
    PlatzPruefen(Datenbank.Faecher, Datenbank.AnzFaecher, 1);
    PlatzPruefen(Datenbank.Noten, Datenbank.AnzNoten, Teilnehmer.size());

    for (const QString& Klasse : Klassen)
        KlasseAnfuegen(Klasse);
    const qint32 ID = NaechsteFachID;
    Anfuegen(Datenbank.Faecher, Datenbank.AnzFaecher, NeuesFach(Klassenfeld, Name));
    ++NaechsteFachID;
    for (const Teilnahmezeile& Zeile : Teilnehmer)
        NotenzeileAnfuegen(Zeile.ID, ID, Zeile.Teilnahme);
    DatenGeaendert = true;
    return ID;
}

qint32 SchuelerErstellen(const QString& Name, const QString& Klasse,
                         const std::vector<Teilnahmezeile>& Faecher) {
    PlatzPruefen(Datenbank.Schueler, Datenbank.AnzSchueler, 1);
    PlatzPruefen(Datenbank.Noten, Datenbank.AnzNoten, Faecher.size());

    Schueler Neuer;
    Neuer.ID = NaechsteSchuelerID++;
    Neuer.Name = Name;
    Neuer.Klasse = Klasse;
    Neuer.Jahr = Datenbank.AktJahr;
    const qint32 ID = Neuer.ID;
    Anfuegen(Datenbank.Schueler, Datenbank.AnzSchueler, std::move(Neuer));
    for (const Teilnahmezeile& Zeile : Faecher)
        NotenzeileAnfuegen(ID, Zeile.ID, Zeile.Teilnahme);
    DatenGeaendert = true;
    return ID;
}

void ZSchuelerErstellen(const QString& Name, qint32 Fach_ID, qint32 Probe_ID) {
    PlatzPruefen(Datenbank.ZSchueler, Datenbank.AnzZSchueler, 1);
    ZSchueler Neuer;
    Neuer.Probe_ID = Probe_ID;
    Neuer.Fach_ID = Fach_ID;
    Neuer.Name = Name;
    Anfuegen(Datenbank.ZSchueler, Datenbank.AnzZSchueler, std::move(Neuer));
    DatenGeaendert = true;
}
