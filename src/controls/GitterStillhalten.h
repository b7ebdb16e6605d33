#pragma once

#include "controls/Gitter.h"

/// While one lives, its grid does not tell that another cell has become current.
class Gitter::Stillhalten {
  public:
    explicit Stillhalten(Gitter& Tabelle)
        : Ziel(Tabelle) {
        ++Ziel.Stille;
    }
    ~Stillhalten() { --Ziel.Stille; }
    Q_DISABLE_COPY_MOVE(Stillhalten)

  private:
    Gitter& Ziel;
};
