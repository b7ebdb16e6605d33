#pragma once

#include <exception>
#include <functional>

/// Tells the user of a failure through Fehlermeldung; after it, grids listen again.
void FehlerBerichten(const std::exception& Fehler);

/// Runs what an event asks for. What it throws is reported instead of travelling through the event loop. True
/// if it ran through.
bool Ausfuehren(const std::function<void()>& Aktion);
