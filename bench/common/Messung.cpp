#include "common/Messung.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

double Median(std::vector<double> Werte) {
    std::sort(Werte.begin(), Werte.end());
    const std::size_t Mitte = Werte.size() / 2;
    return Werte.size() % 2 == 1 ? Werte[Mitte] : (Werte[Mitte - 1] + Werte[Mitte]) / 2;
}

double Dauer(const std::function<void()>& Tun) {
    QElapsedTimer Uhr;
    Uhr.start();
    Tun();
    return static_cast<double>(Uhr.nsecsElapsed()) / 1e9;
}

double Messreihe::Verhaeltnis() const {
    std::vector<double> Verhaeltnisse;
    for (std::size_t i = 0; i < Eigene.size(); ++i)
        Verhaeltnisse.push_back(Eigene[i] / Referenz[i]);
    return Median(Verhaeltnisse);
}

Messreihe Vergleichen(const std::function<double()>& Eigene, const std::function<double()>& Referenz) {
    Eigene();
    Referenz();
    Messreihe Reihe;
    for (int i = 0; i < Runden11; ++i) {
        const bool EigeneZuerst = i % 2 == 0;
        if (EigeneZuerst)
            Reihe.Eigene.push_back(Eigene());
        Reihe.Referenz.push_back(Referenz());
        if (!EigeneZuerst)
            Reihe.Eigene.push_back(Eigene());
    }
    return Reihe;
}

void Wachstum(const QString& Name, const std::array<std::function<double()>, 3>& Groessen) {
    for (const auto& Job : Groessen)
        Job();
    std::array<std::vector<double>, 3> Verhaeltnisse;
    for (int Runde = 0; Runde < Runden11; ++Runde) {
        const double Einfach = Groessen[0]();
        Verhaeltnisse[1].push_back(Groessen[1]() / Einfach / 2);
        Verhaeltnisse[2].push_back(Groessen[2]() / Einfach / 4);
    }
    Zeile(Name + QStringLiteral(": time 2x/1x over size"), Median(Verhaeltnisse[1]), 1, 1.15);
    Zeile(Name + QStringLiteral(": time 4x/1x over size"), Median(Verhaeltnisse[2]), 1, 1.15);
}

void Zeile(const QString& Name, double Verhaeltnis, double Ziel, double Grenze) {
    std::printf("%s\t%.3f\t%.2f\t%.2f\n", qPrintable(Name), Verhaeltnis, Ziel, Grenze);
    std::fflush(stdout);
}

void Anmerkung(const QString& Text) {
    std::printf("# %s\n", qPrintable(Text));
    std::fflush(stdout);
}
