#pragma once

#include <QString>

/// Why a file could not be read or written. Texts are German and fit for a message box.
struct Dateifehler {
    enum class Art { NichtVorhanden, KeinZugriff, Schreibgeschuetzt, Voll, Ordner, EinAusgabe, Sonstiges };
    Art Grund = Art::Sonstiges;
    int Fehlernummer = 0;   ///< errno
    QString Schritt;        ///< what was being done: "Öffnen", "Schreiben" ...
    QString Text;           ///< whole sentence for the user, with the path
    QString Rettungskopie;  ///< path of the rescue copy that holds the new content, empty if there is none
    bool Geoeffnet = false; ///< reading had begun: the file is there, but gives not all its bytes
};

Dateifehler::Art FehlerArt(int Fehlernummer);
/// The cause as half a sentence: "der Datenträger ist voll".
QString FehlerUrsache(int Fehlernummer);
