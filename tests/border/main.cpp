// The kern stands without Widgets: this program links every object of it and nothing of QtWidgets.
#include "core/Definitionen.h"

int main() {
    return Datenbank.AnzSchueler;
}
