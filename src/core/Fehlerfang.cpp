#include "core/Fehlerfang.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/Meldungen.h"

#include <new>

namespace {

QString Fehlertext(const std::exception& Fehler) {
    if (dynamic_cast<const std::bad_alloc*>(&Fehler))
        return QStringLiteral("Der Arbeitsspeicher reicht nicht aus.");
    return QString::fromUtf8(Fehler.what());
}

} // namespace

void FehlerBerichten(const std::exception& Fehler) {
    // A fill that broke off must not leave the grids deaf.
    GridEreignisseAktiv = true;
    try {
        Fehlermeldung(Fehlertext(Fehler));
    } catch (const std::exception& Protokollfehler) {
        // The failure itself has been shown; only its line in the log is missing.
        MeldungZeigen(Fehlertext(Protokollfehler), {}, Symbol::Warnung);
    }
}

bool Ausfuehren(const std::function<void()>& Aktion) {
    try {
        Aktion();
        return true;
    } catch (const std::exception& Fehler) {
        FehlerBerichten(Fehler);
        return false;
    }
}
