#include "frame/Hilfe.h"

#include "core/Meldungen.h"

namespace {

void NochNichtVerfuegbar() {
    MeldungZeigen(QStringLiteral("Die Hilfefunktion ist noch nicht verfügbar!"), {}, Symbol::Hinweis);
}

} // namespace

void HilfeInhalt() {
    NochNichtVerfuegbar();
}

void HilfeSuche() {
    NochNichtVerfuegbar();
}
