#include "Ansichtsvergleich.h"

#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "frame/Ansichten.h"
#include "frame/frmMain.h"
#include "grading/Gesamtnoten.h"

#include <QTabWidget>

namespace {

/// Compares cells of one grid with texts of the records.
class Vergleich {
  public:
    Vergleich(const frmMain& Fenster, const char* Name)
        : Tabelle(*Fenster.findChild<Gitter*>(QString::fromUtf8(Name))) {}

    const Gitter& Tabelle;
    QStringList Unterschiede;

    void Zelle(int Zeile, int Spalte, const QString& Soll) {
        const QString Ist = Tabelle.TextMatrix(Zeile, Spalte);
        if (Ist != Soll)
            Unterschiede.append(
                QStringLiteral("%1 (%2, %3): \"%4\" statt \"%5\"")
                    .arg(Tabelle.objectName(), QString::number(Zeile), QString::number(Spalte), Ist, Soll));
    }
    void Zeilenzahl(int Soll) {
        const int Ist = Tabelle.Rows() - Tabelle.FixedRows() - 1;
        if (Ist != Soll)
            Unterschiede.append(QStringLiteral("%1: %2 Zeilen statt %3")
                                    .arg(Tabelle.objectName(), QString::number(Ist), QString::number(Soll)));
    }
    /// Rows with a record, without headers and entry row.
    int Erste() const { return Tabelle.FixedRows(); }
    int Letzte() const { return Tabelle.Rows() - 2; }
};

int SchuelerDerKlasse() {
    int Anzahl = 0;
    for (int Platz = 0; Platz < Datenbank.AnzSchueler; ++Platz)
        Anzahl += Datenbank.Schueler[Platz].Klasse == AktKlasse &&
                  Datenbank.Schueler[Platz].Jahr == Datenbank.AktJahr;
    return Anzahl;
}

int Teilnehmer(qint32 Fach_ID) {
    int Anzahl = 0;
    for (int Platz = 0; Platz < Datenbank.AnzNoten; ++Platz)
        Anzahl += Datenbank.Noten[Platz].Fach_ID == Fach_ID &&
                  Datenbank.Noten[Platz].Teilnahme == QStringLiteral("ja");
    return Anzahl;
}

QStringList VergleichS(const frmMain& Fenster) {
    Vergleich Einer(Fenster, "tblSSchueler");
    Einer.Zeilenzahl(SchuelerDerKlasse());
    const int Faecher = Einer.Tabelle.Cols() - 15;
    for (int Zeile = Einer.Erste(); Zeile <= Einer.Letzte(); ++Zeile) {
        const qint32 ID = Einer.Tabelle.RowData(Zeile);
        const Schueler& Kind = Datenbank.Schueler[SchuelerIndex(ID)];
        Einer.Zelle(Zeile, 0, Kind.Name);
        for (int Spalte = 1; Spalte <= Faecher; ++Spalte)
            Einer.Zelle(Zeile, Spalte,
                        Datenbank.Noten[NotenIndex(ID, Einer.Tabelle.ColData(Spalte))].Teilnahme);
        for (int Feld = 1; Feld <= 14; ++Feld)
            Einer.Zelle(Zeile, Faecher + Feld, Kind.Feld[Feld]);
    }
    return Einer.Unterschiede;
}

QStringList VergleichP(const frmMain& Fenster) {
    Vergleich Einer(Fenster, "tblPPunkte");
    for (int Zeile = Einer.Erste(); Zeile <= Einer.Letzte(); ++Zeile) {
        const qint32 ID = Einer.Tabelle.TextMatrix(Zeile, 3).toInt();
        if (ID < ErsteSchuelerID)
            continue;
        const Notenzeile& Eine = Datenbank.Noten[NotenIndex(ID, AktFachID)];
        Einer.Zelle(Zeile, 0, Datenbank.Schueler[SchuelerIndex(ID)].Name);
        Einer.Zelle(Zeile, 2, Eine.N[AktProbe + 1]);
        if (!Eine.P[AktProbe + 1].startsWith(u'-'))
            Einer.Zelle(Zeile, 1, Eine.P[AktProbe + 1]);
    }
    return Einer.Unterschiede;
}

void NotenVergleichen(Vergleich& Einer, int Zeile, const Notenzeile& Eine) {
    for (int Spalte = 1; Spalte <= Notenspalte::LetzteNote; ++Spalte)
        Einer.Zelle(Zeile, Spalte, Eine.N[Spalte]);
    Einer.Zelle(Zeile, Notenspalte::HalbjahrZeugnis, Eine.Gesamt1);
    Einer.Zelle(Zeile, Notenspalte::JahrZeugnis, Eine.Gesamt2);
}

QStringList VergleichN1(const frmMain& Fenster) {
    Vergleich Einer(Fenster, "tblN1Noten");
    Einer.Zeilenzahl(Teilnehmer(AktFachID));
    for (int Zeile = Einer.Erste(); Zeile <= Einer.Letzte(); ++Zeile) {
        const qint32 ID = Einer.Tabelle.RowData(Zeile);
        Einer.Zelle(Zeile, 0, Datenbank.Schueler[SchuelerIndex(ID)].Name);
        NotenVergleichen(Einer, Zeile, Datenbank.Noten[NotenIndex(ID, AktFachID)]);
    }
    return Einer.Unterschiede;
}

QStringList VergleichN2(const frmMain& Fenster) {
    Vergleich Einer(Fenster, "tblN2Noten");
    for (int Zeile = Einer.Erste(); Zeile <= Einer.Letzte(); ++Zeile) {
        const qint32 ID = Einer.Tabelle.RowData(Zeile);
        Einer.Zelle(Zeile, 0, Datenbank.Faecher[FachIndex(ID)].Name);
        NotenVergleichen(Einer, Zeile, Datenbank.Noten[NotenIndex(AktSchuelerID, ID)]);
    }
    return Einer.Unterschiede;
}

QStringList VergleichB(const frmMain& Fenster) {
    Vergleich Einer(Fenster, "tblBeurteilungen");
    for (int Zeile = Einer.Erste(); Zeile < Einer.Tabelle.Rows(); ++Zeile)
        if (const int Platz = SchuelerIndex(Einer.Tabelle.RowData(Zeile)); Platz >= 0)
            Einer.Zelle(Zeile, 0, Datenbank.Schueler[Platz].Name);
    return Einer.Unterschiede;
}

} // namespace

QStringList Abweichungen(const frmMain& Fenster) {
    switch (Fenster.findChild<QTabWidget*>(QStringLiteral("tabAnsicht"))->currentIndex()) {
    case Reiter::S:
        return VergleichS(Fenster);
    case Reiter::P:
        return VergleichP(Fenster);
    case Reiter::N1:
        return VergleichN1(Fenster);
    case Reiter::N2:
        return VergleichN2(Fenster);
    default:
        return VergleichB(Fenster);
    }
}
