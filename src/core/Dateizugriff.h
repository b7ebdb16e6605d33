#pragma once

#include "core/Systemaufrufe.h"

#include <QByteArray>
#include <QString>

#include <cerrno>

// The steps from which reading, writing and rescuing are made. Each goes through the table of calls, looks at
// every result, and repeats what a signal broke off. Functions that return int give 0, or errno.

/// Repeats a call that a signal broke off; not for ever, since a fault could make that endless. Misserfolg is
/// what the call gives when it fails.
template <typename Aufruf, typename Wert = int>
auto Beharrlich(Aufruf Einer, Wert Misserfolg = -1) {
    constexpr int Versuche = 100;
    for (int Versuch = 1;; ++Versuch) {
        const auto Ergebnis = Einer();
        if (Ergebnis != Misserfolg || errno != EINTR || Versuch == Versuche)
            return Ergebnis;
    }
}

/// An open file, closed at the end of the scope unless Schliessen was called.
class Deskriptor {
  public:
    Deskriptor() = default;
    explicit Deskriptor(int Offener)
        : Fd(Offener) {}
    Deskriptor(Deskriptor&& Anderer) noexcept
        : Fd(Anderer.Abgeben()) {}
    Deskriptor& operator=(Deskriptor&& Anderer) noexcept;
    Deskriptor(const Deskriptor&) = delete;
    Deskriptor& operator=(const Deskriptor&) = delete;
    ~Deskriptor() { Schliessen(); }

    int Nummer() const { return Fd; }
    bool Offen() const { return Fd >= 0; }
    int Schliessen(); ///< 0 also if it was not open

  private:
    int Abgeben();
    int Fd = -1;
};

/// Length and checksum of a content.
struct Inhaltsmarke {
    qint64 Laenge = 0;
    quint32 Summe = 0;
    bool operator==(const Inhaltsmarke&) const = default;
};

Inhaltsmarke MarkeVon(const QByteArray& Inhalt);

int DateiOeffnen(const QByteArray& Pfad, int Schalter, Deskriptor* Datei, mode_t Rechte = 0);
int DateiStand(const Deskriptor& Datei, struct stat* Stand);
/// Writes Inhalt at Stelle, wherever the file was read to before.
int GanzSchreiben(const Deskriptor& Datei, const QByteArray& Inhalt, qint64 Stelle = 0);
/// Replaces *Inhalt by the file, to its end; on failure what could be read stands there. Over 1 GiB: EFBIG.
int GanzLesen(const Deskriptor& Datei, QByteArray* Inhalt);
/// Reads to the end of the file through a fixed buffer.
int MarkeLesen(const Deskriptor& Datei, Inhaltsmarke* Marke);
/// Reads to the end of the file through a fixed buffer; EIO if it is not Inhalt, byte for byte.
int Vergleichen(const Deskriptor& Datei, const QByteArray& Inhalt);
int Synchronisieren(const Deskriptor& Datei);
/// Makes the entries of a folder durable. A file system that knows no such thing is no failure.
int OrdnerSynchronisieren(const QByteArray& Ordner);
int DateiLoeschen(const QByteArray& Pfad);
int DateiUmbenennen(const QByteArray& Alt, const QByteArray& Neu);
/// Path without symbolic links. Files that do not exist: ENOENT.
int EchterPfad(const QByteArray& Pfad, QByteArray* Echter);
QByteArray OrdnerVon(const QByteArray& Pfad);
