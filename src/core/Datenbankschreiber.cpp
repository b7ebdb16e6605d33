#include "core/Datenbankschreiber.h"

#include "core/Abschnitte.h"
#include "core/Definitionen.h"
#include "core/Satzspalten.h"
#include "core/Zahlen.h"
#include "core/Zeilenschreiber.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {

/// The visitor that writes the names of the columns.
class Kopfschreiber {
  public:
    explicit Kopfschreiber(Zeilenschreiber& Ziel)
        : Z(Ziel) {}
    void Zahl(QStringView Name, qint32 /*Wert*/) { Z.Name(Name); }
    void Text(QStringView Name, const QString& /*Wert*/) { Z.Name(Name); }
    void Teilnahme(QStringView Name, const QString& /*Wert*/) { Z.Name(Name); }
    void Wahrheit(QStringView Name, bool /*Wert*/) { Z.Name(Name); }
    void Kommazahl(QStringView Name, float /*Wert*/) { Z.Name(Name); }
    template <class Reihe>
    void Texte(QStringView Name, const Reihe& /*Werte*/, int Von, int Bis) {
        for (int i = Von; i <= Bis; ++i)
            Z.Name(Name, i);
    }
    template <class Reihe>
    void Freie(const Reihe& /*Werte*/, int Von, int Bis) {
        for (int i = Von; i <= Bis; ++i)
            Z.Feld(Datenbank.SchuelerFeldTitel[i]);
    }

  private:
    Zeilenschreiber& Z;
};

/// The visitor that writes the values of a record.
class Satzschreiber {
  public:
    explicit Satzschreiber(Zeilenschreiber& Ziel)
        : Z(Ziel) {}
    void Zahl(QStringView /*Name*/, qint32 Wert) { Z.Feld(Wert); }
    void Text(QStringView /*Name*/, const QString& Wert) { Z.Feld(Wert); }
    void Teilnahme(QStringView /*Name*/, const QString& Wert) { Z.Feld(Wert); }
    void Wahrheit(QStringView /*Name*/, bool Wert) { Z.Feld(WahrheitText(Wert)); }
    void Kommazahl(QStringView /*Name*/, float Wert) { Z.Feld(ZahlText(Wert)); }
    template <class Reihe>
    void Texte(QStringView /*Name*/, const Reihe& Werte, int Von, int Bis) {
        for (int i = Von; i <= Bis; ++i)
            Z.Feld(Werte[i]);
    }
    template <class Reihe>
    void Freie(const Reihe& Werte, int Von, int Bis) {
        Texte({}, Werte, Von, Bis);
    }

  private:
    Zeilenschreiber& Z;
};

/// Marker and header line of a section; Spalten calls the column list with a visitor.
template <class Spaltenliste>
void Kopf(Zeilenschreiber& Z, Abschnitt Einer, Spaltenliste Spalten) {
    Z.Zeile(Abschnittsmarke(Einer));
    Spalten(Kopfschreiber(Z));
    Z.ZeileEnden();
}

/// A whole section of records that each make one row.
template <class Satzreihe, class Spaltenliste>
void Abschnittschreiben(Zeilenschreiber& Z, Abschnitt Einer, const Satzreihe& Saetze, int Anzahl,
                        Spaltenliste Spalten) {
    Kopf(Z, Einer, [&](auto&& B) { Spalten(Saetze[0], B); });
    for (int i = 0; i < Anzahl; ++i) {
        Spalten(Saetze[i], Satzschreiber(Z));
        Z.ZeileEnden();
    }
}

/// A date alone makes no test.
bool ProbeLeer(const Probe& Eine) {
    bool Leer = Eine.Dateiname.isEmpty() && Eine.Name.isEmpty() && Eine.Gesamtpunktzahl.isEmpty();
    for (int i = 1; i < Eine.NGrenze.size(); ++i)
        Leer = Leer && Eine.NGrenze[i].isEmpty();
    return Leer;
}

void ProbenSchreiben(Zeilenschreiber& Z) {
    const qint32 OhneID = 0;
    Kopf(Z, Abschnitt::Proben,
         [&](auto&& B) { ProbeSpalten(OhneID, OhneID, Datenbank.Faecher[0].Proben[0], B); });
    for (int f = 0; f < Datenbank.AnzFaecher; ++f) {
        const Fach& Eines = Datenbank.Faecher[f];
        for (qint32 i = 1; i < Eines.Proben.size(); ++i) {
            if (ProbeLeer(Eines.Proben[i]))
                continue;
            ProbeSpalten<const qint32>(i, Eines.ID, Eines.Proben[i], Satzschreiber(Z));
            Z.ZeileEnden();
        }
    }
}

/// The reader takes exactly five characters of a marker as the ID, so a shorter one gets leading zeros.
std::string Beurteilungsmarke(qint32 SchuelerID, int Slot) {
    constexpr std::size_t Stellen = 5;
    const std::string Vorzeichen = SchuelerID < 0 ? "-" : "";
    const std::string Ziffern = std::to_string(std::abs(qint64{SchuelerID}));
    const std::size_t Geschrieben = std::min(Stellen, Vorzeichen.size() + Ziffern.size());
    return '#' + Vorzeichen + std::string(Stellen - Geschrieben, '0') + Ziffern + '_' +
           std::to_string(Slot + 1) + '#';
}

void BeurteilungenSchreiben(Zeilenschreiber& Z) {
    Z.Zeile(Abschnittsmarke(Abschnitt::Beurteilungen));
    Z.Zeile("#Schueler_ID _ Halbjahr#");
    for (int s = 0; s < Datenbank.AnzSchueler; ++s) {
        const Schueler& Einer = Datenbank.Schueler[s];
        for (int Slot = 0; Slot < Einer.Beurteilung.size(); ++Slot) {
            if (Einer.Beurteilung[Slot].isEmpty())
                continue;
            Z.Zeile(Beurteilungsmarke(Einer.ID, Slot));
            Z.Textzeile(Einer.Beurteilung[Slot]);
        }
    }
}

void ParameterSchreiben(Zeilenschreiber& Z) {
    Kopf(Z, Abschnitt::Parameter, [](auto&& B) { ParameterSpalten(std::as_const(Datenbank), B); });
    ParameterSpalten(std::as_const(Datenbank), Satzschreiber(Z));
    Z.ZeileEnden();
}

/// About how long the file becomes: the assessments are nearly all of it, and rows of the others are of much
/// the same length.
qsizetype ErwarteteLaenge() {
    constexpr qsizetype Marke = 16;
    constexpr qsizetype Zeile = 200;
    qsizetype Laenge = 4096 + Zeile * (Datenbank.AnzNoten + Datenbank.AnzSchueler + Datenbank.AnzZSchueler) +
                       Zeile * 10 * Datenbank.AnzFaecher;
    for (int s = 0; s < Datenbank.AnzSchueler; ++s)
        for (const QString& Text : Datenbank.Schueler[s].Beurteilung)
            Laenge += Text.isEmpty() ? 0 : Text.size() + Marke;
    return Laenge;
}

} // namespace

QByteArray DatenbankBytes(char Version) {
    const Notendatenbank& Buch = Datenbank;
    Zeilenschreiber Z(ErwarteteLaenge());
    Z.Zeile(Version == '3' ? "[Tafelquell 3.0]" : "[Tafelquell 2.0]");
    Abschnittschreiben(Z, Abschnitt::Klassen, Buch.Klassen, Buch.AnzKlassen,
                       [](auto& Satz, auto&& B) { KlasseSpalten(Satz, B); });
    Abschnittschreiben(Z, Abschnitt::Faecher, Buch.Faecher, Buch.AnzFaecher,
                       [](auto& Satz, auto&& B) { FachSpalten(Satz, B); });
    ProbenSchreiben(Z);
    Abschnittschreiben(Z, Abschnitt::Schueler, Buch.Schueler, Buch.AnzSchueler,
                       [](auto& Satz, auto&& B) { SchuelerSpalten(Satz, B); });
    Abschnittschreiben(Z, Abschnitt::ZSchueler, Buch.ZSchueler, Buch.AnzZSchueler,
                       [](auto& Satz, auto&& B) { ZSchuelerSpalten(Satz, B); });
    Abschnittschreiben(Z, Abschnitt::Noten, Buch.Noten, Buch.AnzNoten,
                       [](auto& Satz, auto&& B) { NotenzeileSpalten(Satz, B); });
    if (Version == '3')
        BeurteilungenSchreiben(Z);
    ParameterSchreiben(Z);
    return Z.Bytes();
}
