#include "core/Fehlerfang.h"

#include "core/FktAllgemein.h"
#include "core/Laufzeitfehler.h"
#include "core/Meldungen.h"

bool Ausfuehren(const std::function<void()>& Aktion) {
    try {
        Aktion();
        return true;
    } catch (const Laufzeitfehler& Grund) {
        try {
            Fehlermeldung(Grund.Text());
        } catch (const Laufzeitfehler& Protokollfehler) {
            // The failure itself has been shown; only its line in the log is missing.
            MeldungZeigen(Protokollfehler.Text(), {}, Symbol::Warnung);
        }
        return false;
    }
}
