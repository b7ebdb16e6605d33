#include "frame/Fehlerschutz.h"

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
    } catch (const std::exception& Zweiter) {
        // The first message has been shown; only the log could not be written.
        MeldungZeigen(Fehlertext(Zweiter), {}, Symbol::Warnung);
    }
}

bool Geschuetzt(const std::function<void()>& Was) {
    try {
        Was();
        return true;
    } catch (const std::exception& Fehler) {
        FehlerBerichten(Fehler);
        return false;
    }
}
