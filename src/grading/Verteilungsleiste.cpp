#include "grading/Verteilungsleiste.h"

#include "controls/Gitter.h"
#include "core/Definitionen.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

Verteilungsleiste::Verteilungsleiste(Gitter* Ziel, Verteilungsart Werteart)
    : QScrollBar(Qt::Vertical, Ziel)
    , Tabelle(Ziel)
    , Art(Werteart) {
    setSingleStep(1);
    setPageStep(1);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    Tabelle->setFocusProxy(this);
    Tabelle->setTabKeyNavigation(false); // Tab leaves the table
    hide();
    connect(Tabelle, &Gitter::ZelleBetreten, this, [this] {
        if (GridEreignisseAktiv)
            Zeigen();
    });
    connect(Tabelle, &Gitter::LageGeaendert, this, &Verteilungsleiste::Platzieren);
    connect(this, &QScrollBar::valueChanged, this, [this] {
        if (GridEreignisseAktiv)
            Uebernehmen();
    });
    // A slider drawn past what the row allows has left the value behind; it comes back to it.
    connect(this, &QScrollBar::sliderReleased, this, &Verteilungsleiste::StandSetzen);
}

bool Verteilungsleiste::UeberWert() const {
    return Tabelle->Row() >= ErsteZeile && Tabelle->Col() >= ErsteSpalte;
}

QStringList Verteilungsleiste::Zeile() const {
    QStringList Texte;
    for (int Spalte = 0; Spalte < Tabelle->Cols(); ++Spalte)
        Texte.append(Tabelle->TextMatrix(Tabelle->Row(), Spalte));
    return Texte;
}

void Verteilungsleiste::Zeigen() {
    setVisible(UeberWert());
    if (!UeberWert())
        return;
    StandSetzen();
    setAccessibleName(tr("%1, Note %2")
                          .arg(Tabelle->TextMatrix(Tabelle->Row(), 0),
                               Tabelle->TextMatrix(ErsteZeile - 1, Tabelle->Col())));
    Platzieren();
    raise();
    setFocus();
}

void Verteilungsleiste::StandSetzen() {
    const Leistenstand Stand = LeisteFuer(Art, Zeile(), Tabelle->Col());
    const QScopedValueRollback Ruhe(GridEreignisseAktiv, false);
    setRange(Stand.Min, Stand.Max);
    setValue(Stand.Value);
}

/// A cell that has been scrolled away takes the bar with it; hiding the bar would lose the focus.
void Verteilungsleiste::Platzieren() {
    const QRect Zelle = Tabelle->SichtbarerTeil(Tabelle->Row(), Tabelle->Col());
    if (Zelle.isEmpty())
        move(-width(), -height());
    else
        setGeometry(Zelle.x(), Zelle.y(), sizeHint().width(), Zelle.height());
}

void Verteilungsleiste::Uebernehmen() {
    if (!UeberWert())
        return;
    if (Art == Verteilungsart::Anteil)
        AnteilUebernehmen();
    else
        Tabelle->setTextMatrix(Tabelle->Row(), Tabelle->Col(),
                               Zelltext(Art, {minimum(), maximum(), value()}));
}

void Verteilungsleiste::AnteilUebernehmen() {
    const int Neu = minimum() + maximum() - value();
    const auto Geaendert = AnteilGeaendert(Zeile(), Tabelle->Col(), Neu);
    if (!Geaendert) {
        const QScopedValueRollback Ruhe(GridEreignisseAktiv, false);
        setValue(value() + 1); // one step back
        return;
    }
    for (int Spalte = ErsteSpalte; Spalte < Tabelle->Cols(); ++Spalte)
        Tabelle->setTextMatrix(Tabelle->Row(), Spalte, Geaendert->at(Spalte));
}

void Verteilungsleiste::keyPressEvent(QKeyEvent* Ereignis) {
    const bool Aendern = Ereignis->modifiers().testFlag(Qt::ShiftModifier);
    switch (Ereignis->key()) {
    case Qt::Key_Up:
        if (Aendern)
            setValue(value() - 1);
        else if (Tabelle->Row() > ErsteZeile)
            Tabelle->setRow(Tabelle->Row() - 1);
        break;
    case Qt::Key_Down:
        if (Aendern)
            setValue(value() + 1);
        else
            Tabelle->setRow(Tabelle->Row() + 1); // the grid ignores a row it does not have
        break;
    case Qt::Key_Left:
        if (Tabelle->Col() > ErsteSpalte)
            Tabelle->setCol(Tabelle->Col() - 1);
        break;
    case Qt::Key_Right:
        Tabelle->setCol(Tabelle->Col() + 1);
        break;
    default:
        break;
    }
    Ereignis->accept();
}

/// The wheel scrolls the table; it never changes a value by accident.
void Verteilungsleiste::wheelEvent(QWheelEvent* Ereignis) {
    Ereignis->ignore();
}
