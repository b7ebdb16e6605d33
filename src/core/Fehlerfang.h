#pragma once

#include <functional>

/// Runs what an event asks for. A Laufzeitfehler in it is reported by Fehlermeldung instead of travelling
/// through the event loop. True if it ran through.
bool Ausfuehren(const std::function<void()>& Aktion);
