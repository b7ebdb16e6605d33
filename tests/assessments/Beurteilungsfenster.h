#pragma once

#include "Lernbereichsprobe.h"
#include "assessments/AnsichtB.h"
#include "assessments/Formulierungstabelle.h"
#include "assessments/Lernbereichsbaum.h"
#include "common/Testwelt.h"
#include "controls/EingabeText.h"
#include "controls/Kombinationsfeld.h"
#include "controls/Textfeld.h"

#include <QPushButton>
#include <QRadioButton>

#include <memory>

/// The assessment view in a window of its own, with shortcuts to its controls, a class 7a of three students
/// and areas A (four phrases), B (one) and C (none).
class Beurteilungsfenster {
  public:
    Beurteilungsfenster();

    static void RecordsAnlegen();

    template <class Art>
    Art& Feld(const char* Name) const {
        auto* Gefunden = Ansicht->findChild<Art*>(QString::fromUtf8(Name));
        if (!Gefunden)
            qFatal("kein Feld %s", Name);
        return *Gefunden;
    }
    QWidget& Teil(const char* Name) const { return Feld<QWidget>(Name); }

    Gitter& Schueler() const { return Feld<Gitter>("tblBeurteilungen"); }
    Formulierungstabelle& Floskeln() const { return Feld<Formulierungstabelle>("tblBFloskel"); }
    Lernbereichsbaum& Baum() const { return Feld<Lernbereichsbaum>("tvBFloskel"); }
    EingabeText& Text() const { return Feld<EingabeText>("txtBEingabe"); }
    EingabeText& Editor() const { return Feld<EingabeText>("txtBEingabe2"); }
    Textfeld& Vorname() const { return Feld<Textfeld>("txtBVorname"); }

    QStringList Zeilen() const;                  ///< texts of the phrase table, the empty row included
    QStringList Knoten() const;                  ///< labels of the tree; the bold one in "<...>"
    QStringList Namen() const;                   ///< column 0 of the students
    static QStringList Gespeichert(int Bereich); ///< lines of the store

    // Mouse.
    void KlickAufSchueler(int Zeile) const;
    void KlickAufFloskel(int Zeile) const;
    void DoppelklickAufFloskel(int Zeile) const;
    void KlickAufKnoten(int Knoten) const;
    void KnotenDruecken(int Knoten) const; ///< and no release: a drag follows

    // Drags, by the events Qt sends. Places in the viewport of the target.
    bool Darueber(QWidget& Ziel, Ziehart Art, QPoint Ort) const; ///< true if a drop is possible there
    void Ablegen(QWidget& Ziel, Ziehart Art, QPoint Ort) const;  ///< moves there and drops
    QPoint KnotenOrt(int Knoten) const;
    QPoint FloskelOrt(int Zeile) const;
    QPoint SchuelerOrt(int Zeile) const;

    std::unique_ptr<AnsichtB> Ansicht;
    QString Hinweis; ///< last text of the hint line
};
