#include "core/Rettungslage.h"

#include <algorithm>

#include <fcntl.h>

namespace {

int ZielLesen(const QByteArray& Pfad, QByteArray* Inhalt, QDateTime* Zeit) {
    Deskriptor Datei;
    if (const int Fehler = DateiOeffnen(Pfad, O_RDONLY | O_NONBLOCK, &Datei))
        return Fehler;
    struct stat Stand {};
    if (const int Fehler = DateiStand(Datei, &Stand))
        return Fehler;
    if (!S_ISREG(Stand.st_mode))
        return EINVAL;
    *Zeit = QDateTime::fromSecsSinceEpoch(Stand.st_mtime);
    return GanzLesen(Datei, Inhalt);
}

bool NurNullen(const char* Anfang, const char* Ende) {
    return std::all_of(Anfang, Ende, [](char Zeichen) { return Zeichen == '\0'; });
}

/// A beginning of Inhalt, and then nothing or zeros: blocks that were given to the file but never filled.
bool Abgebrochen(const QByteArray& Inhalt, const QByteArray& Zielinhalt) {
    if (Zielinhalt.size() > Inhalt.size())
        return false;
    const auto Stelle = std::mismatch(Zielinhalt.cbegin(), Zielinhalt.cend(), Inhalt.cbegin()).first;
    return NurNullen(Stelle, Zielinhalt.cend());
}

} // namespace

Rettungslage LageBestimmen(const Rettungskopf& Kopf, const QByteArray& Inhalt, const QByteArray& Zielinhalt) {
    if (Zielinhalt == Inhalt)
        return Rettungslage::Gleich;
    // An empty file says nothing about what was there before.
    if (!Zielinhalt.isEmpty() && MarkeVon(Zielinhalt) == Kopf.Vorher)
        return Rettungslage::Vorher;
    return Abgebrochen(Inhalt, Zielinhalt) ? Rettungslage::Abgebrochen : Rettungslage::Anders;
}

std::optional<Rettungsfund> RettungEinordnen(const Rettungskopie& Kopie, QByteArray* Inhalt) {
    QByteArray Bytes;
    if (GanzLesen(Kopie.Datei, &Bytes) != 0)
        return {};
    const auto Gelesen = RettungsinhaltLesen(Bytes);
    if (!Gelesen)
        return Rettungsfund{Kopie.Pfad, Rettungslage::Defekt, {}, {}};
    *Inhalt = Gelesen->Inhalt;
    QByteArray Zielinhalt;
    QDateTime Zielzeit;
    if (ZielLesen(Gelesen->Kopf.Ziel, &Zielinhalt, &Zielzeit) != 0)
        return Rettungsfund{Kopie.Pfad, Rettungslage::Fehlt, Gelesen->Kopf, {}};
    return Rettungsfund{Kopie.Pfad, LageBestimmen(Gelesen->Kopf, *Inhalt, Zielinhalt), Gelesen->Kopf,
                        Zielzeit};
}

std::vector<Rettungsfund> RettungenSuchen(int* Fehler) {
    QList<QByteArray> Pfade;
    const int Suchfehler = RettungenAuflisten(&Pfade);
    if (Fehler)
        *Fehler = Suchfehler;
    std::vector<Rettungsfund> Funde;
    for (const QByteArray& Pfad : Pfade) {
        Rettungskopie Kopie;
        QByteArray Inhalt;
        if (RettungOeffnen(Pfad, &Kopie) != 0)
            continue;
        if (const auto Fund = RettungEinordnen(Kopie, &Inhalt))
            Funde.push_back(*Fund);
    }
    return Funde;
}

int ErledigteRettungEntfernen(Rettungskopie* Kopie, const QByteArray& Ziel) {
    // What was read may stand in memory only, if the program was ended before its sync.
    Deskriptor Datei;
    int Fehler = DateiOeffnen(Ziel, O_RDONLY | O_NONBLOCK, &Datei);
    if (Fehler == 0)
        Fehler = Synchronisieren(Datei);
    if (Fehler == 0)
        Fehler = OrdnerSynchronisieren(OrdnerVon(Ziel));
    return Fehler == 0 ? RettungEntfernen(Kopie) : Fehler;
}

bool ErledigteRettungenEntfernen(const QByteArray& Ziel) {
    QList<QByteArray> Pfade;
    RettungenAuflisten(&Pfade);
    for (const QByteArray& Pfad : Pfade) {
        Rettungskopie Kopie;
        QByteArray Inhalt;
        if (RettungOeffnen(Pfad, &Kopie) != 0)
            continue;
        const auto Fund = RettungEinordnen(Kopie, &Inhalt);
        if (Fund && Fund->Lage == Rettungslage::Gleich && Fund->Kopf.Ziel == Ziel)
            ErledigteRettungEntfernen(&Kopie, Ziel);
    }
    return !Pfade.isEmpty();
}
