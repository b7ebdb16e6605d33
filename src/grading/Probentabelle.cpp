#include "grading/Probentabelle.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/FktSpeziell.h"
#include "core/Zahlen.h"
#include "records/Aendern.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

bool TextSetzen(QString& Ziel, const QString& Neu) {
    if (Ziel == Neu)
        return false;
    Ziel = Neu;
    DatenGeaendert = true;
    return true;
}

/// Where points and grade of a participant are stored; nullptr if nobody has the ID.
struct Eintrag {
    QString* Punkte = nullptr;
    QString* Note = nullptr;
};

Eintrag ZSchuelerEintrag(qint32 ID) {
    if (ID < 0 || ID >= Datenbank.AnzZSchueler)
        return {};
    return {&Datenbank.ZSchueler[ID].Punkte, &Datenbank.ZSchueler[ID].Note};
}

Eintrag EintragDer(Notenzeile& Zeile, int Probe_ID) {
    return {&Zeile.P[Probe_ID], &Zeile.N[Probe_ID]};
}

Eintrag EintragSuchen(qint32 ID, qint32 Fach_ID, int Probe_ID) {
    if (IstZSchueler(ID))
        return ZSchuelerEintrag(ID);
    const int Index = NotenIndex(ID, Fach_ID);
    return Index < 0 ? Eintrag{} : EintragDer(Datenbank.Noten[Index], Probe_ID);
}

/// Writes the names behind the IDs with one run over the students.
void NamenEintragen(std::vector<Probenteilnehmer>& Teilnehmer) {
    constexpr int Offen = -1;
    QHash<qint32, int> Plaetze;
    Plaetze.reserve(static_cast<qsizetype>(Teilnehmer.size()));
    for (const Probenteilnehmer& Einer : Teilnehmer)
        Plaetze.insert(Einer.ID, Offen);
    qsizetype Fehlend = Plaetze.size();
    for (int i = 0; i < Datenbank.AnzSchueler && Fehlend > 0; ++i) {
        const auto Stelle = Plaetze.find(Datenbank.Schueler[i].ID);
        if (Stelle == Plaetze.end() || *Stelle != Offen)
            continue;
        *Stelle = i;
        --Fehlend;
    }
    for (Probenteilnehmer& Einer : Teilnehmer)
        if (Einer.Platz = Plaetze.value(Einer.ID); Einer.Platz != Offen)
            Einer.Name = Datenbank.Schueler[Einer.Platz].Name;
}

bool NimmtTeil(const Notenzeile& Zeile, qint32 Fach_ID) {
    return Zeile.Fach_ID == Fach_ID && Zeile.Teilnahme == QStringLiteral("ja");
}

bool InDerProbe(const ZSchueler& Einer, qint32 Fach_ID, int Probe_ID) {
    return Einer.Fach_ID == Fach_ID && Einer.Probe_ID == Probe_ID;
}

/// True if both are one text object: nobody has written the record since it was copied from there.
bool Derselbe(const QString& Eines, const QString& Anderes) {
    return Eines.constData() == Anderes.constData() && Eines.size() == Anderes.size();
}

bool NameSteht(const Probenteilnehmer& Einer) {
    if (Einer.Platz < 0)
        return Einer.Name.isEmpty() && SchuelerIndex(Einer.ID) < 0;
    const Schueler& Person = Datenbank.Schueler[Einer.Platz];
    return Einer.Platz < Datenbank.AnzSchueler && Person.ID == Einer.ID && Derselbe(Person.Name, Einer.Name);
}

} // namespace

std::vector<Probenteilnehmer> TeilnehmerDerProbe(qint32 Fach_ID, int Probe_ID) {
    std::vector<Probenteilnehmer> Teilnehmer;
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        if (NimmtTeil(Zeile, Fach_ID))
            Teilnehmer.push_back({Zeile.Schueler_ID, {}, Zeile.P[Probe_ID], Zeile.N[Probe_ID], i, -1});
    }
    NamenEintragen(Teilnehmer);
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i) {
        const ZSchueler& Einer = Datenbank.ZSchueler[i];
        if (InDerProbe(Einer, Fach_ID, Probe_ID))
            Teilnehmer.push_back({i, Einer.Name, Einer.Punkte, Einer.Note, i, -1});
    }
    std::reverse(Teilnehmer.begin(), Teilnehmer.end());
    return Teilnehmer;
}

bool TeilnehmerStehenNoch(const std::vector<Probenteilnehmer>& Teilnehmer, qint32 Fach_ID, int Probe_ID) {
    auto Naechster = Teilnehmer.rbegin();
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        if (!NimmtTeil(Zeile, Fach_ID))
            continue;
        if (Naechster == Teilnehmer.rend() || Naechster->Zeile != i || Naechster->ID != Zeile.Schueler_ID ||
            !Derselbe(Naechster->Punkte, Zeile.P[Probe_ID]) ||
            !Derselbe(Naechster->Note, Zeile.N[Probe_ID]) || !NameSteht(*Naechster))
            return false;
        ++Naechster;
    }
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i) {
        const ZSchueler& Einer = Datenbank.ZSchueler[i];
        if (!InDerProbe(Einer, Fach_ID, Probe_ID))
            continue;
        if (Naechster == Teilnehmer.rend() || Naechster->ID != i || !Derselbe(Naechster->Name, Einer.Name) ||
            !Derselbe(Naechster->Punkte, Einer.Punkte) || !Derselbe(Naechster->Note, Einer.Note))
            return false;
        ++Naechster;
    }
    return Naechster == Teilnehmer.rend();
}

void NotenSpeichern(const std::vector<qint32>& IDs, const std::vector<Zeilenergebnis>& Ergebnisse,
                    qint32 Fach_ID, int Probe_ID) {
    const QHash<qint32, int> Zeilen = ErsteNotenzeilen(Fach_ID);
    for (std::size_t i = 0; i < IDs.size(); ++i) {
        if (!Ergebnisse[i].Note)
            continue;
        if (IstZSchueler(IDs[i])) {
            if (const Eintrag Stelle = ZSchuelerEintrag(IDs[i]); Stelle.Note)
                TextSetzen(*Stelle.Note, *Ergebnisse[i].Note);
        } else if (const int Index = Zeilen.value(IDs[i], -1); Index >= 0) {
            TextSetzen(Datenbank.Noten[Index].N[Probe_ID], *Ergebnisse[i].Note);
        }
    }
}

bool PunkteAendern(qint32 ID, qint32 Fach_ID, int Probe_ID, const QString& Punkte) {
    const Eintrag Stelle = EintragSuchen(ID, Fach_ID, Probe_ID);
    return Stelle.Punkte && TextSetzen(*Stelle.Punkte, Punkte);
}

QString HandPunkte(const QString& Punkte) {
    const float Wert = -std::fabs(ZahlAusText(Punkte));
    return ZahlText(Wert == 0 ? -0.1F : Wert);
}

bool NoteVonHandSetzen(qint32 ID, qint32 Fach_ID, int Probe_ID, const QString& Note, QString& Punkte) {
    const Eintrag Stelle = EintragSuchen(ID, Fach_ID, Probe_ID);
    if (!Stelle.Note || !TextSetzen(*Stelle.Note, Note))
        return false;
    *Stelle.Punkte = HandPunkte(*Stelle.Punkte);
    Punkte = *Stelle.Punkte;
    return true;
}

void TeilnehmerNamenAendern(qint32 ID, const QString& Name) {
    if (!IstZSchueler(ID))
        SchuelerNamenAendern(ID, Name);
    else if (ID >= 0 && ID < Datenbank.AnzZSchueler)
        TextSetzen(Datenbank.ZSchueler[ID].Name, Name);
}

void ZSchuelerEntfernen(int Index) {
    if (Index < 0 || Index >= Datenbank.AnzZSchueler)
        return;
    std::move(Datenbank.ZSchueler.begin() + Index + 1, Datenbank.ZSchueler.begin() + Datenbank.AnzZSchueler,
              Datenbank.ZSchueler.begin() + Index);
    --Datenbank.AnzZSchueler;
    DatenGeaendert = true;
}
