#include "Fuzzziel.h"

#include "common/Rundreise.h"

FUZZZIEL(FormulierungenRundreise)
