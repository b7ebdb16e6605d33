#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Every file of the program is read and written here, so that none is ever lost: the new content stands as a
// rescue copy in the state folder, synced, before the old one is destroyed; the target is opened without
// truncating, then truncated in place, written, synced and read back. Nothing is renamed over it.

/// Why a file could not be read or written. Texts are German and fit for a message box.
struct Dateifehler {
    enum class Art { NichtVorhanden, KeinZugriff, Schreibgeschuetzt, Voll, Ordner, EinAusgabe, Sonstiges };
    Art Grund = Art::Sonstiges;
    int Fehlernummer = 0;  ///< errno
    QString Schritt;       ///< what was being done: "Öffnen", "Schreiben" ...
    QString Text;          ///< whole sentence for the user, with the path
    QString Rettungskopie; ///< path of the rescue copy that holds the new content, empty if there is none
};

/// Reads a whole file. Nothing on failure, and *Fehler tells why; *Gelesen then holds the bytes read before
/// an I/O error.
std::optional<QByteArray> DateiLesen(const QString& Pfad, Dateifehler* Fehler, QByteArray* Gelesen = nullptr);

/// Writes Inhalt to Pfad by the protocol. Nothing on success. On failure before the target was truncated it
/// is untouched and no rescue copy stays; on a later failure the rescue copy stays and Dateifehler names it.
std::optional<Dateifehler> DateiSchreiben(const QString& Pfad, const QByteArray& Inhalt);
