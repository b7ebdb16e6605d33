#pragma once

#include "core/Definitionen.h"

#include <QScopedValueRollback>

/// While it lives, a grid is filled by code: handlers of grids do nothing. On every way out they are as
/// before.
class Fuellsperre {
  public:
    Fuellsperre()
        : Vorher(GridEreignisseAktiv, false) {}

  private:
    QScopedValueRollback<bool> Vorher;
};
