#pragma once

#include <exception>
#include <functional>

/// Tells the user of a failure and logs it. After it, grids listen again.
void FehlerBerichten(const std::exception& Fehler);

/// Runs Was and reports what it throws. True if it came through.
bool Geschuetzt(const std::function<void()>& Was);
