#include "core/Parameterleser.h"

#include "core/Bytezeilen.h"
#include "core/Codeseite.h"
#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/Parameterabschnitte.h"
#include "core/Zahlen.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

using namespace Parameterabschnitte;

QString AlsText(std::string_view Bytes) {
    return AusCodeseite(Bytes.data(), static_cast<qsizetype>(Bytes.size()));
}

/// Why the file is refused; empty if it is not.
QString Ablehnung(std::string_view Kopf) {
    if (!Kopf.starts_with(Kennung))
        return QCoreApplication::translate("Parameterleser",
                                           "Die Parameter-Datei TAFELQUELL.INI hat ein ungültiges Format!");
    if (Kopf.size() > Kennung.size() && Kopf.substr(Kennung.size() + 1, Version.size()) == Version)
        return {};
    // The place is that of the version in a grade book, and lies here within the words; it stays as it is.
    constexpr std::size_t Stelle = 17;
    return QCoreApplication::translate("Parameterleser", "Die Datei TAFELQUELL.INI ist nicht ladbar.") +
           u'\r' +
           QCoreApplication::translate("Parameterleser", "Um sie zu laden, benötigen Sie die Version ") +
           AlsText(Kopf.substr(Stelle, 3)) +
           QCoreApplication::translate("Parameterleser", " der Tafelquell!");
}

/// The first six fields of a row; no section has more.
using Zeilenfelder = std::array<QString, 6>;

Zeilenfelder Zerlegen(std::string_view Zeile) {
    Zeilenfelder Felder;
    for (QString& Feld : Felder) {
        const std::size_t Tab = Zeile.find('\t');
        Feld = AlsText(Zeile.substr(0, Tab));
        Zeile.remove_prefix(Tab == Zeile.npos ? Zeile.size() : Tab + 1);
    }
    return Felder;
}

// What each row sets. Each gives how much of it was lost: 1 for a row without a place, or its fields that
// should be numbers and are none.

int NotenwerteSetzen(Reihe<float, 5>& Ziel, const Zeilenfelder& Felder) {
    int KeineZahl = 0;
    for (int Note = 0; Note < Ziel.size(); ++Note) {
        const QString& Text = Felder[static_cast<std::size_t>(Note) + 1];
        Ziel[Note] = ZahlAusText(Text);
        if (Ziel[Note] == 0 && !Text.isEmpty() && !ZahlLesen(Text))
            ++KeineZahl;
    }
    return KeineZahl;
}

int VerteilungszeileLesen(Reihe<Reihe<float, 5>, 5>& Verteilung, int Satz, const Zeilenfelder& Felder) {
    return Satz < Verteilung.size() ? NotenwerteSetzen(Verteilung[Satz], Felder) : 1;
}

int PunktezeileLesen(const Zeilenfelder& Felder) {
    constexpr int KleinsteGesamtzahl = 10;
    const int Gesamtzahl = GanzzahlAusText(Felder[0]);
    if (Gesamtzahl < KleinsteGesamtzahl || Gesamtzahl >= BLLVVerteilung.size())
        return 1;
    return NotenwerteSetzen(BLLVVerteilung[Gesamtzahl], Felder);
}

int BezeichnungszeileLesen(const Zeilenfelder& Felder) {
    const int Stufe = GanzzahlAusText(Felder[0]);
    if (Stufe < 1 || Stufe >= Probenbezeichnung.size())
        return 1;
    Probenbezeichnung[Stufe] = Felder[1];
    ExtemporalenBezeichnung[Stufe] = Felder[2];
    return 0;
}

/// Satz is the number of the row in its section, from 0.
int ZeileLesen(std::string_view Abschnitt, int Satz, const Zeilenfelder& Felder) {
    if (Abschnitt == Eigene)
        return VerteilungszeileLesen(EigeneVerteilung, Satz, Felder);
    if (Abschnitt == Gauss)
        return VerteilungszeileLesen(GaussVerteilung, Satz, Felder);
    if (Abschnitt == BLLV)
        return PunktezeileLesen(Felder);
    if (Abschnitt == Bezeichnungen)
        return BezeichnungszeileLesen(Felder);
    return 1;
}

/// Calls Tun with section, number of the row in it, and fields of each row behind the first line.
template <class Aktion>
void ZeilenDurchgehen(Bytezeilen Zeilen, Aktion Tun) {
    std::string_view Abschnitt;
    int Satz = 0;
    while (!Zeilen.AmEnde()) {
        const std::string_view Zeile = Zeilen.Naechste();
        if (Alle.find(Zeile) != Alle.npos) {
            Abschnitt = Zeile;
            Satz = 0;
            Zeilen.Naechste();
        } else {
            Tun(Abschnitt, Satz++, Zerlegen(Zeile));
        }
    }
}

/// With the decimal sign of the other languages: "7.5" for "7,5", and "7,5" for "7.5".
QString Umgezeichnet(QString Feld) {
    for (QChar& Zeichen : Feld)
        if (Zeichen == u',' || Zeichen == u'.')
            Zeichen = Zeichen == u',' ? u'.' : u',';
    return Feld;
}

/// True if numbers of the tables can be read only with the other decimal sign, and none only with the
/// system's.
bool InAndererZahlform(const Bytezeilen& Zeilen) {
    bool Eigene = false;
    bool Andere = false;
    ZeilenDurchgehen(Zeilen, [&](std::string_view Abschnitt, int /*Satz*/, const Zeilenfelder& Felder) {
        if (Abschnitt == Bezeichnungen)
            return;
        for (const QString& Feld : Felder) {
            const bool Lesbar = ZahlLesen(Feld).has_value();
            const bool AndersLesbar = ZahlLesen(Umgezeichnet(Feld)).has_value();
            Eigene = Eigene || (Lesbar && !AndersLesbar);
            Andere = Andere || (AndersLesbar && !Lesbar);
        }
    });
    return Andere && !Eigene;
}

/// Reads all rows; gives what was lost.
int ZeilenLesen(const Bytezeilen& Zeilen, bool AndereZahlform) {
    int Entfallen = 0;
    ZeilenDurchgehen(Zeilen, [&](std::string_view Abschnitt, int Satz, Zeilenfelder Felder) {
        if (AndereZahlform && Abschnitt != Bezeichnungen)
            std::transform(Felder.begin(), Felder.end(), Felder.begin(), Umgezeichnet);
        Entfallen += ZeileLesen(Abschnitt, Satz, Felder);
    });
    return Entfallen;
}

} // namespace

Parameterbefund ParameterLesen(const QByteArray& Bytes) {
    Bytezeilen Zeilen({Bytes.constData(), static_cast<std::size_t>(Bytes.size())});
    if (const QString Grund = Ablehnung(Zeilen.Naechste()); !Grund.isEmpty())
        return {Grund, 0};
    int Entfallen = ZeilenLesen(Zeilen, false);
    if (Entfallen > 0 && InAndererZahlform(Zeilen))
        Entfallen = ZeilenLesen(Zeilen, true);
    return {{}, Entfallen};
}
