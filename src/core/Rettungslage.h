#pragma once

#include "core/Rettungskopie.h"

#include <vector>

// What a rescue copy means, seen beside its target.

enum class Rettungslage {
    Gleich,      ///< target equals the copy: the save was complete
    Vorher,      ///< target has the content from before: the save had not begun to write
    Abgebrochen, ///< target is empty, or a beginning of the copy, or that and zeros: broken off while writing
    Anders,      ///< changed elsewhere since, or damaged: both are kept, the program decides nothing
    Fehlt,       ///< target missing or unreadable: moved, or its medium is not there
    Defekt       ///< the copy itself is not whole: broken off before the target was touched
};

struct Rettungsfund {
    QByteArray Pfad; ///< of the copy
    Rettungslage Lage = Rettungslage::Defekt;
    Rettungskopf Kopf;  ///< empty for Defekt
    QDateTime Zielzeit; ///< when the target was last changed; invalid for Fehlt
};

/// The rule alone: which case it is that the target holds Zielinhalt.
Rettungslage LageBestimmen(const Rettungskopf& Kopf, const QByteArray& Inhalt, const QByteArray& Zielinhalt);

/// Looks at an open copy. *Inhalt: its content. A copy that cannot be read at the moment: nothing, it stays.
std::optional<Rettungsfund> RettungEinordnen(const Rettungskopie& Kopie, QByteArray* Inhalt);

/// All rescue copies that no running program holds, the newest first. Changes nothing. *Fehler: errno if the
/// state folder could not be searched.
std::vector<Rettungsfund> RettungenSuchen(int* Fehler = nullptr);

/// Removes a copy whose target equals it, once that is durable. On failure the copy stays.
int ErledigteRettungEntfernen(Rettungskopie* Kopie, const QByteArray& Ziel);

/// The same for all copies of this target that it equals, byte for byte. Ziel without symbolic links.
/// False if there was no copy at all, of whatever file.
bool ErledigteRettungenEntfernen(const QByteArray& Ziel);
