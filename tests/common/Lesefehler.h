#pragma once

#include "core/Systemaufrufe.h"

#include <QString>

/// While it lives, a file comes in pieces of some bytes, and the n-th read fails with EIO.
class Lesefehler {
  public:
    explicit Lesefehler(int Nummer);
    ~Lesefehler();
    Lesefehler(const Lesefehler&) = delete;
    Lesefehler& operator=(const Lesefehler&) = delete;

    bool Getroffen() const; ///< there was an n-th read

  private:
    Systemaufrufe Tabelle;
};

/// While it lives, the file of this path cannot be opened, for this reason.
class Oeffnungsfehler {
  public:
    Oeffnungsfehler(const QString& Pfad, int Fehlernummer);
    ~Oeffnungsfehler();
    Oeffnungsfehler(const Oeffnungsfehler&) = delete;
    Oeffnungsfehler& operator=(const Oeffnungsfehler&) = delete;

  private:
    Systemaufrufe Tabelle;
};
