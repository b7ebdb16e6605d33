#include "core/Dateischreiber.h"

#include "core/Rettungslage.h"
#include "core/Rettungsorte.h"
#include "core/Uhr.h"

#include <QFile>
#include <QSysInfo>

#include <new>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

Dateischreiber::Dateischreiber(const QString& ZielPfad, const QByteArray& NeuerInhalt)
    : Pfad(ZielPfad)
    , Inhalt(NeuerInhalt)
    , Name(QFile::encodeName(ZielPfad)) {}

Dateischreiber::Dateischreiber(const QByteArray& Zielname, const QByteArray& NeuerInhalt,
                               Rettungskopie Vorhandene)
    : Pfad(QFile::decodeName(Zielname))
    , Inhalt(NeuerInhalt)
    , Name(Zielname)
    , Selbstgerettet(false)
    , Rettung(std::move(Vorhandene)) {}

std::optional<Dateifehler> Dateischreiber::Schreiben() {
    if (const int Fehler = Vorbereiten())
        return Abbrechen(Fehler);
    if (const int Fehler = Ersetzen())
        return Unterbrochen(Fehler);
    RettungEntfernen(&Rettung); // a copy that stays equals its target and goes at the next opportunity
    if (WeitereRettungen)
        ErledigteRettungenEntfernen(Name);
    return {};
}

int Dateischreiber::Vorbereiten() try {
    int Fehler = Oeffnen();
    if (Fehler == 0)
        Fehler = Retten();
    return Fehler == 0 ? Reservieren() : Fehler;
} catch (const std::bad_alloc&) {
    return ENOMEM;
}

int Dateischreiber::Oeffnen() {
    Wo = Schritt::Oeffnen;
    if (Name.isEmpty())
        return ENOENT;
    // Readable too, for the checksum of the old content; non-blocking, lest a pipe stop the program.
    int Fehler = DateiOeffnen(Name, O_RDWR | O_NONBLOCK, &Ziel);
    if (Fehler == ENOENT)
        Fehler = NeuAnlegen();
    return Fehler == 0 ? ZielPruefen() : Fehler;
}

int Dateischreiber::NeuAnlegen() {
    int Fehler = DateiOeffnen(Name, O_RDWR | O_CREAT | O_EXCL, &Ziel, 0666);
    Neu = Fehler == 0;
    if (Fehler == EEXIST) {
        // A symbolic link that leads to no file yet. Taking back removes that file, so its own path is
        // needed.
        Fehler = DateiOeffnen(Name, O_RDWR | O_CREAT | O_NONBLOCK, &Ziel, 0666);
        if (Fehler == 0)
            Fehler = EchterPfad(Name, &Name);
        Neu = Fehler == 0;
    }
    return Fehler;
}

int Dateischreiber::ZielPruefen() {
    int Fehler = DateiStand(Ziel, &Stand);
    if (Fehler == 0 && !S_ISREG(Stand.st_mode))
        Fehler = EINVAL;
    if (Fehler == 0)
        Fehler = EchterPfad(Name, &Name);
    Ordner = OrdnerVon(Name);
    if (Fehler == 0)
        Fehler = MarkeLesen(Ziel, &Vorher);
    return Fehler;
}

int Dateischreiber::Retten() {
    if (!Selbstgerettet)
        return 0;
    Wo = Schritt::Retten;
    WeitereRettungen = ErledigteRettungenEntfernen(Name);
    Rettungskopf Kopf;
    Kopf.Ziel = Name;
    Kopf.Geraet = Stand.st_dev;
    Kopf.Inode = Stand.st_ino;
    Kopf.Inhalt = MarkeVon(Inhalt);
    Kopf.NeueDatei = Neu;
    Kopf.Vorher = Vorher;
    Kopf.Zeit = Jetzt();
    Kopf.Rechner = QSysInfo::machineHostName().toUtf8();
    Kopf.Prozess = getpid();
    return RettungAnlegen(Kopf, Inhalt, &Rettung);
}

int Dateischreiber::Reservieren() {
    Wo = Schritt::Reservieren;
    const off_t Mehr = Inhalt.size() - Stand.st_size;
    if (Mehr <= 0)
        return 0;
    // The size stays as it is: a program that ends here must leave the old content, without zeros behind it.
    const int Ergebnis = Beharrlich(
        [&] { return Aufrufe().Fallocate(Ziel.Nummer(), FALLOC_FL_KEEP_SIZE, Stand.st_size, Mehr); });
    const int Fehler = Ergebnis == -1 ? errno : 0;
    if (Fehler == 0 || Fehler == EOPNOTSUPP || Fehler == EINVAL || Fehler == ENOSYS)
        return 0;
    Aufrufe().Ftruncate(Ziel.Nummer(), Stand.st_size); // gives back what was reserved in part
    return Fehler;
}

int Dateischreiber::Ersetzen() {
    int Fehler = EinmalErsetzen();
    if (Fehler == 0)
        return 0;
    // The whole once more: a sync alone, repeated, can report success for pages already dropped.
    Ziel.Schliessen();
    if (ErneutOeffnen(O_WRONLY, &Ziel) == 0)
        Fehler = EinmalErsetzen();
    return Fehler;
}

int Dateischreiber::EinmalErsetzen() {
    Wo = Schritt::Schreiben;
    int Fehler = Beharrlich([&] { return Aufrufe().Ftruncate(Ziel.Nummer(), 0); }) == -1 ? errno : 0;
    if (Fehler == 0)
        Fehler = GanzSchreiben(Ziel, Inhalt);
    if (Fehler == 0)
        Fehler = Synchronisieren(Ziel);
    const int Schlussfehler = Ziel.Schliessen();
    if (Fehler == 0)
        Fehler = Schlussfehler;
    return Fehler == 0 ? Nachlesen() : Fehler;
}

int Dateischreiber::Nachlesen() {
    Wo = Schritt::Nachlesen;
    Deskriptor Gelesene;
    if (const int Fehler = ErneutOeffnen(O_RDONLY, &Gelesene))
        return Fehler;
    if (const int Fehler = Vergleichen(Gelesene, Inhalt))
        return Fehler;
    return Neu ? OrdnerSynchronisieren(Ordner) : 0;
}

/// ESTALE if another file stands there by now: it is not this save's to touch.
int Dateischreiber::ErneutOeffnen(int Schalter, Deskriptor* Datei) const {
    if (const int Fehler = DateiOeffnen(Name, Schalter | O_NONBLOCK, Datei))
        return Fehler;
    struct stat Jetziger {};
    if (const int Fehler = DateiStand(*Datei, &Jetziger))
        return Fehler;
    return Jetziger.st_dev == Stand.st_dev && Jetziger.st_ino == Stand.st_ino ? 0 : ESTALE;
}

Dateifehler Dateischreiber::Abbrechen(int Nummer) {
    if (Selbstgerettet && Rettung.Datei.Offen())
        RettungEntfernen(&Rettung);
    if (Neu)
        DateiLoeschen(Name);
    const bool WarDa = Ziel.Offen() && !Neu;
    Ziel.Schliessen();
    QString Grund = FehlerUrsache(Nummer);
    if (Wo == Schritt::Retten)
        Grund = QStringLiteral("Im Ordner \"%1\" konnte keine Rettungskopie angelegt werden (%2)")
                    .arg(QFile::decodeName(Rettungsordner()), Grund);
    const QString Bestand = WarDa ? QStringLiteral(" und ist unverändert") : QString();
    return {
        FehlerArt(Nummer),
        Nummer,
        Schrittname(),
        QStringLiteral("Die Datei \"%1\" wurde nicht gespeichert%2.\nGrund: %3.").arg(Pfad, Bestand, Grund),
        {}};
}

Dateifehler Dateischreiber::Unterbrochen(int Nummer) const {
    const QString Kopie = QFile::decodeName(Rettung.Pfad);
    return {FehlerArt(Nummer), Nummer, Schrittname(),
            QStringLiteral("Die Datei \"%1\" konnte nicht vollständig gespeichert werden.\nGrund: %2.\n"
                           "Der neue Stand steht vollständig in der Rettungskopie \"%3\".")
                    .arg(Pfad, FehlerUrsache(Nummer), Kopie) +
                Fluechtigkeitshinweis(Rettung.Pfad),
            Kopie};
}

QString Dateischreiber::Schrittname() const {
    switch (Wo) {
    case Schritt::Oeffnen:
        return QStringLiteral("Öffnen");
    case Schritt::Retten:
        return QStringLiteral("Rettungskopie");
    case Schritt::Reservieren:
        return QStringLiteral("Platz reservieren");
    case Schritt::Schreiben:
        return QStringLiteral("Schreiben");
    case Schritt::Nachlesen:
        return QStringLiteral("Nachlesen");
    }
    return {};
}
