#pragma once

#include "core/Dateifehler.h"
#include "core/Rettungskopie.h"

#include <optional>

/// One save by the protocol. The steps in order:
///
///   Oeffnen    the target, without truncating: missing rights and folders show here
///   Retten     rescue copy, durable
///   Reservieren  room for what the file grows
///   ---- from here on the old content is gone; no memory is asked for, nothing is shown ----
///   Ersetzen   truncate, write, sync, close, read back and compare; once more from the start if that fails
///   Abschliessen  the rescue copy goes
class Dateischreiber {
  public:
    Dateischreiber(const QString& Pfad, const QByteArray& Inhalt);
    /// A save whose rescue copy exists already, since the content comes from it.
    Dateischreiber(const QByteArray& Name, const QByteArray& Inhalt, Rettungskopie Vorhandene);

    std::optional<Dateifehler> Schreiben();

  private:
    enum class Schritt { Oeffnen, Retten, Reservieren, Schreiben, Nachlesen };

    int Vorbereiten();
    int Oeffnen();
    int NeuAnlegen();
    int ZielPruefen();
    int Retten();
    int Reservieren();
    int Ersetzen();
    int EinmalErsetzen();
    int Nachlesen();
    int ErneutOeffnen(int Schalter, Deskriptor* Datei) const;
    Dateifehler Abbrechen(int Nummer);          ///< before the target was touched: as if nothing had been
    Dateifehler Unterbrochen(int Nummer) const; ///< afterwards: the rescue copy is what counts
    QString Schrittname() const;

    QString Pfad;
    QByteArray Inhalt;
    QByteArray Name;   ///< path as given, then without symbolic links
    QByteArray Ordner; ///< folder of the target
    Deskriptor Ziel;
    struct stat Stand {};
    bool Neu = false;             ///< the target was made by this save
    bool Selbstgerettet = true;   ///< the rescue copy is this save's own
    bool WeitereRettungen = true; ///< there may be copies besides it
    Inhaltsmarke Vorher;
    Rettungskopie Rettung;
    Schritt Wo = Schritt::Oeffnen; ///< where a failure happened
};
