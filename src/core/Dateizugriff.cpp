#include "core/Dateizugriff.h"

#include "core/GrosseSeiten.h"
#include "core/Pruefsumme.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// Fixed, so that reading back needs no memory while the target is the only thing that counts.
using Puffer = std::array<char, 64 * 1024>;

/// Beyond this no file of the program is: the book at all bounds has 27 MB.
constexpr qint64 GroessteDatei = qint64(1) << 30;

int FehlerVon(int Ergebnis) {
    return Ergebnis == -1 ? errno : 0;
}

/// Hands the file to Empfaenger in pieces, to its end; ends early if that gives false.
template <typename Empfaenger>
int Stueckweise(const Deskriptor& Datei, Empfaenger Nimm) {
    Puffer Stueck;
    for (;;) {
        const ssize_t Gelesen =
            Beharrlich([&] { return Aufrufe().Read(Datei.Nummer(), Stueck.data(), Stueck.size()); });
        if (Gelesen <= 0)
            return FehlerVon(static_cast<int>(Gelesen));
        if (!Nimm(Stueck.data(), Gelesen))
            return 0;
    }
}

/// Fills *Inhalt from *Stelle on up to the end of the file, growing where it does not suffice.
int InsFreieLesen(const Deskriptor& Datei, QByteArray* Inhalt, qsizetype* Stelle) {
    for (;;) {
        if (*Stelle == Inhalt->size()) {
            if (Inhalt->size() > GroessteDatei)
                return EFBIG;
            Inhalt->resize(Inhalt->size() + std::max<qsizetype>(Inhalt->size() / 2, sizeof(Puffer)));
        }
        char* const Ziel = Inhalt->data() + *Stelle;
        const auto Platz = static_cast<size_t>(Inhalt->size() - *Stelle);
        const ssize_t Gelesen = Beharrlich([&] { return Aufrufe().Read(Datei.Nummer(), Ziel, Platz); });
        if (Gelesen <= 0)
            return Gelesen == 0 ? 0 : errno;
        *Stelle += Gelesen;
    }
}

} // namespace

Deskriptor& Deskriptor::operator=(Deskriptor&& Anderer) noexcept {
    if (this != &Anderer) {
        Schliessen();
        Fd = Anderer.Abgeben();
    }
    return *this;
}

int Deskriptor::Abgeben() {
    return std::exchange(Fd, -1);
}

int Deskriptor::Schliessen() {
    if (!Offen())
        return 0;
    // After a broken-off close the descriptor is gone: closing again could hit another file.
    const int Fehler = FehlerVon(Aufrufe().Close(Abgeben()));
    return Fehler == EINTR ? 0 : Fehler;
}

Inhaltsmarke MarkeVon(const QByteArray& Inhalt) {
    return {Inhalt.size(), Pruefsumme(Inhalt.constData(), Inhalt.size())};
}

int DateiOeffnen(const QByteArray& Pfad, int Schalter, Deskriptor* Datei, mode_t Rechte) {
    const int Fd =
        Beharrlich([&] { return Aufrufe().Open(Pfad.constData(), Schalter | O_CLOEXEC | O_NOCTTY, Rechte); });
    if (Fd == -1)
        return errno;
    *Datei = Deskriptor(Fd);
    return 0;
}

int DateiStand(const Deskriptor& Datei, struct stat* Stand) {
    return FehlerVon(Beharrlich([&] { return Aufrufe().Fstat(Datei.Nummer(), Stand); }));
}

int GanzSchreiben(const Deskriptor& Datei, const QByteArray& Inhalt, qint64 Stelle) {
    const char* Rest = Inhalt.constData();
    const char* const Ende = Rest + Inhalt.size();
    while (Rest < Ende) {
        const auto Laenge = static_cast<size_t>(Ende - Rest);
        const ssize_t Geschrieben =
            Beharrlich([&] { return Aufrufe().Pwrite(Datei.Nummer(), Rest, Laenge, Stelle); });
        if (Geschrieben == -1)
            return errno;
        if (Geschrieben == 0) // nothing taken and no reason given: it would never end
            return EIO;
        Rest += Geschrieben;
        Stelle += Geschrieben;
    }
    return 0;
}

int GanzLesen(const Deskriptor& Datei, QByteArray* Inhalt) try {
    struct stat Stand {};
    if (const int Fehler = DateiStand(Datei, &Stand))
        return Fehler;
    // One byte more than expected: the read that finds the end needs room.
    Inhalt->resize(static_cast<qsizetype>(std::clamp<qint64>(Stand.st_size, 0, GroessteDatei)) + 1);
    GrosseSeitenErbitten(Inhalt->data(), Inhalt->size());
    qsizetype Stelle = 0;
    const int Fehler = InsFreieLesen(Datei, Inhalt, &Stelle);
    Inhalt->resize(Stelle);
    return Fehler;
} catch (const std::bad_alloc&) {
    Inhalt->clear();
    return ENOMEM;
}

int MarkeLesen(const Deskriptor& Datei, Inhaltsmarke* Marke) {
    *Marke = {};
    return Stueckweise(Datei, [&](const char* Stueck, ssize_t Laenge) {
        Marke->Summe = Pruefsumme(Stueck, Laenge, Marke->Summe);
        Marke->Laenge += Laenge;
        return true;
    });
}

int Vergleichen(const Deskriptor& Datei, const QByteArray& Inhalt) {
    qsizetype Stelle = 0;
    bool Gleich = true;
    const int Fehler = Stueckweise(Datei, [&](const char* Stueck, ssize_t Laenge) {
        Gleich = Laenge <= Inhalt.size() - Stelle &&
                 std::memcmp(Stueck, Inhalt.constData() + Stelle, static_cast<size_t>(Laenge)) == 0;
        Stelle += Laenge;
        return Gleich;
    });
    if (Fehler != 0)
        return Fehler;
    return Gleich && Stelle == Inhalt.size() ? 0 : EIO;
}

int Synchronisieren(const Deskriptor& Datei) {
    return FehlerVon(Beharrlich([&] { return Aufrufe().Fsync(Datei.Nummer()); }));
}

int OrdnerSynchronisieren(const QByteArray& Ordner) {
    Deskriptor Offener;
    if (const int Fehler = DateiOeffnen(Ordner, O_RDONLY | O_DIRECTORY, &Offener))
        return Fehler;
    const int Fehler = Synchronisieren(Offener);
    return Fehler == EINVAL || Fehler == EOPNOTSUPP ? 0 : Fehler;
}

int DateiLoeschen(const QByteArray& Pfad) {
    return FehlerVon(Beharrlich([&] { return Aufrufe().Unlink(Pfad.constData()); }));
}

int DateiUmbenennen(const QByteArray& Alt, const QByteArray& Neu) {
    return FehlerVon(Beharrlich([&] { return Aufrufe().Rename(Alt.constData(), Neu.constData()); }));
}

int EchterPfad(const QByteArray& Pfad, QByteArray* Echter) {
    char* const Text = Beharrlich([&] { return Aufrufe().Realpath(Pfad.constData(), nullptr); }, nullptr);
    if (!Text)
        return errno;
    const std::unique_ptr<char, void (*)(void*)> Eigner(Text, std::free);
    *Echter = QByteArray(Text);
    return 0;
}

QByteArray OrdnerVon(const QByteArray& Pfad) {
    const qsizetype Strich = Pfad.lastIndexOf('/');
    if (Strich < 0)
        return QByteArrayLiteral(".");
    return Strich == 0 ? QByteArrayLiteral("/") : Pfad.left(Strich);
}
