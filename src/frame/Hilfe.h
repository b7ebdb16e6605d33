#pragma once

// The two entry points of the help: contents and search. While no help file is set, both say so in a box.

void HilfeInhalt();
void HilfeSuche();
