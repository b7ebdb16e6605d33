#include "core/Parameterleser.h"

#include "core/Bytezeilen.h"
#include "core/Codeseite.h"
#include "core/Definitionen.h"
#include "core/FktAllgemein.h"
#include "core/Parameterabschnitte.h"

#include <QCoreApplication>

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

void NotenwerteSetzen(Reihe<float, 5>& Ziel, const Zeilenfelder& Felder) {
    for (int Note = 0; Note < Ziel.size(); ++Note)
        Ziel[Note] = ZahlAusText(Felder[static_cast<std::size_t>(Note) + 1]);
}

void VerteilungszeileLesen(Reihe<Reihe<float, 5>, 5>& Verteilung, int Satz, const Zeilenfelder& Felder) {
    if (Satz < Verteilung.size())
        NotenwerteSetzen(Verteilung[Satz], Felder);
}

void PunktezeileLesen(const Zeilenfelder& Felder) {
    constexpr int KleinsteGesamtzahl = 10;
    const int Gesamtzahl = GanzzahlAusText(Felder[0]);
    if (Gesamtzahl >= KleinsteGesamtzahl && Gesamtzahl < BLLVVerteilung.size())
        NotenwerteSetzen(BLLVVerteilung[Gesamtzahl], Felder);
}

void BezeichnungszeileLesen(const Zeilenfelder& Felder) {
    const int Stufe = GanzzahlAusText(Felder[0]);
    if (Stufe < 1 || Stufe >= Probenbezeichnung.size())
        return;
    Probenbezeichnung[Stufe] = Felder[1];
    ExtemporalenBezeichnung[Stufe] = Felder[2];
}

/// Satz is the number of the row in its section, from 0.
void ZeileLesen(std::string_view Abschnitt, int Satz, std::string_view Zeile) {
    const Zeilenfelder Felder = Zerlegen(Zeile);
    if (Abschnitt == Eigene)
        VerteilungszeileLesen(EigeneVerteilung, Satz, Felder);
    else if (Abschnitt == Gauss)
        VerteilungszeileLesen(GaussVerteilung, Satz, Felder);
    else if (Abschnitt == BLLV)
        PunktezeileLesen(Felder);
    else if (Abschnitt == Bezeichnungen)
        BezeichnungszeileLesen(Felder);
}

} // namespace

QString ParameterLesen(const QByteArray& Bytes) {
    Bytezeilen Zeilen({Bytes.constData(), static_cast<std::size_t>(Bytes.size())});
    const QString Grund = Ablehnung(Zeilen.Naechste());
    if (!Grund.isEmpty())
        return Grund;
    std::string_view Abschnitt;
    int Satz = 0;
    while (!Zeilen.AmEnde()) {
        const std::string_view Zeile = Zeilen.Naechste();
        if (Alle.find(Zeile) != Alle.npos) {
            Abschnitt = Zeile;
            Satz = 0;
            Zeilen.Naechste();
        } else {
            ZeileLesen(Abschnitt, Satz++, Zeile);
        }
    }
    return {};
}
