#pragma once

#include <memory>

class frmMain;

/// Starts the program: splash, load, main window shown, notice at the first run. Nothing if it cannot start;
/// the user has then been told why.
std::unique_ptr<frmMain> Programmstart();
