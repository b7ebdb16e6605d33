#include "core/Dateischutz.h"
#include "frame/Anwendung.h"
#include "frame/Fenstermeldungen.h"
#include "frame/Programmstart.h"
#include "frame/Sitzungsende.h"
#include "frame/frmMain.h"

int main(int argc, char** argv) {
    DateischutzVorbereiten();
    Anwendung Programm(argc, argv);
    Fenstermeldungen Boxen;
    MeldungsdienstSetzen(&Boxen);
    const std::unique_ptr<frmMain> Fenster = Programmstart();
    if (!Fenster)
        return 1;
    const Sitzungsende Waechter(*Fenster);
    return Fenster->isVisible() ? Anwendung::exec() : 0;
}
