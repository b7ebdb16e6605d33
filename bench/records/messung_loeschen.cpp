#include "common/Grossbuch.h"
#include "common/Messung.h"

#include "core/Definitionen.h"
#include "records/Loeschen.h"

#include <QCoreApplication>

#include <algorithm>

// Deleting a class of 50 students with 10 subjects against one linear pass over all records.

namespace {

constexpr int Schuelerzahl = 50;
constexpr int Fachzahl = 10;
const QString Klassenname = QStringLiteral("1z");

/// The first records of each array become the class: everything behind them has to move.
void KlasseVornEinrichten() {
    Datenbank.Klassen[0] = {Datenbank.AktJahr, Klassenname};
    for (int i = 0; i < Schuelerzahl; ++i) {
        Datenbank.Schueler[i].Klasse = Klassenname;
        Datenbank.Schueler[i].Jahr = Datenbank.AktJahr;
    }
    for (int i = 0; i < Fachzahl; ++i) {
        Datenbank.Faecher[i].Klasse = Klassenname;
        Datenbank.Faecher[i].Jahr = Datenbank.AktJahr;
    }
    for (int i = 0; i < Schuelerzahl * Fachzahl; ++i) {
        Datenbank.Noten[i].Schueler_ID = Datenbank.Schueler[i / Fachzahl].ID;
        Datenbank.Noten[i].Fach_ID = Datenbank.Faecher[i % Fachzahl].ID;
    }
}

template <class Texte>
qsizetype Laenge(const Texte& Alle) {
    qsizetype Summe = 0;
    for (const QString& Einer : Alle)
        Summe += Einer.size();
    return Summe;
}

qsizetype ProbenLaenge(const Fach& Eines) {
    qsizetype Summe = 0;
    for (const Probe& Eine : Eines.Proben)
        Summe += Eine.Datum.size() + Eine.Name.size() + Eine.Dateiname.size() + Eine.Gesamtpunktzahl.size() +
                 Laenge(Eine.NGrenze);
    return Summe;
}

/// The reference: the lengths of all texts of all records.
qsizetype AlleDurchgehen() {
    qsizetype Summe = 0;
    for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        Summe += Einer.Name.size() + Einer.Klasse.size() + Einer.Jahr.size() + Laenge(Einer.Feld) +
                 Laenge(Einer.Beurteilung);
    }
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        Summe += Eines.Name.size() + Eines.Klasse.size() + Eines.Jahr.size() + ProbenLaenge(Eines);
    }
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Eine = Datenbank.Noten[i];
        Summe += Eine.Teilnahme.size() + Eine.Gesamt1.size() + Eine.Gesamt2.size() + Laenge(Eine.N) +
                 Laenge(Eine.P);
    }
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i) {
        const ZSchueler& Einer = Datenbank.ZSchueler[i];
        Summe += Einer.Name.size() + Einer.Punkte.size() + Einer.Note.size();
    }
    return Summe;
}

/// The seconds that the deletion takes in a new book of so many quarters of all bounds.
double Loeschdauer(int Viertel) {
    GrossbuchFuellen(Viertel);
    KlasseVornEinrichten();
    return Dauer([] { KlasseLoeschen(Klassenname); });
}

void Messen(int Viertel, const QString& Name) {
    volatile qsizetype Summe = 0; // the pass is not optimised away
    const Messreihe Reihe = Vergleichen([Viertel] { return Loeschdauer(Viertel); },
                                        [Viertel, &Summe] {
                                            GrossbuchFuellen(Viertel);
                                            return Dauer([&Summe] { Summe = AlleDurchgehen(); });
                                        });
    Zeile(Name, Reihe.Verhaeltnis(), 3, 3);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms, kleinste %3 gegen %4")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2)
                  .arg(*std::min_element(Reihe.Eigene.begin(), Reihe.Eigene.end()) * 1e3, 0, 'f', 2)
                  .arg(*std::min_element(Reihe.Referenz.begin(), Reihe.Referenz.end()) * 1e3, 0, 'f', 2));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication Programm(argc, argv);
    Messen(1, QStringLiteral("delete a class of 50 with 10 subjects, 1x"));
    Messen(2, QStringLiteral("delete a class of 50 with 10 subjects, 2x"));
    Messen(4, QStringLiteral("delete a class of 50 with 10 subjects, 4x (all bounds)"));
    Wachstum(QStringLiteral("delete"),
             {[] { return Loeschdauer(1); }, [] { return Loeschdauer(2); }, [] { return Loeschdauer(4); }});
    return 0;
}
