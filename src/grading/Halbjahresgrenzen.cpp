#include "grading/Halbjahresgrenzen.h"

#include "core/FktAllgemein.h"
#include "core/Zahlen.h"

std::optional<Halbjahresgrenzen> HalbjahresgrenzenLesen(const Halbjahresgrenzen& Getippt) {
    const auto Grenze = [](const QString& Text) {
        const int Wert = GanzzahlAusText(Text);
        return Wert > 0 && Wert < 11 ? ZahlText(Wert) : QString();
    };
    const Halbjahresgrenzen Gelesen{Grenze(Getippt.P), Grenze(Getippt.E), Grenze(Getippt.M)};
    if (Gelesen.P.isEmpty() || Gelesen.E.isEmpty() || Gelesen.M.isEmpty())
        return {};
    return Gelesen;
}
