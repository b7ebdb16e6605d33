// Dragging in the assessment view: a phrase into an assessment, to another student, within its table or to
// another area; an area within the tree.

#include "assessments/AnsichtB.h"
#include "assessments/Formulierungsspeicher.h"
#include "controls/EingabeText.h"
#include "core/Fehlerfang.h"
#include "views/Fuellsperre.h"

#include "ui_AnsichtB.h"

void AnsichtB::ZieleEinrichten() {
    const auto OhneHinweis = [this] { Hinweis({}); };
    new Ziehziel(txtBEingabe->viewport(),
                 {[this](Ziehart Art, QPoint Ort) { return UeberBeurteilung(Art, Ort); },
                  [this](Ziehart, QPoint) { FormulierungEinfuegen(); }, OhneHinweis});
    new Ziehziel(Form->tblBeurteilungen->viewport(),
                 {[this](Ziehart Art, QPoint Ort) { return UeberSchueler(Art, Ort); }, [](Ziehart, QPoint) {},
                  OhneHinweis});
    new Ziehziel(Form->tblBFloskel->viewport(),
                 {[this](Ziehart Art, QPoint Ort) { return UeberTabelle(Art, Ort); },
                  [this](Ziehart, QPoint Ort) { InTabelleAblegen(Ort); },
                  [this] {
                      Form->tblBFloskel->setZielzeile(-1);
                      Hinweis({});
                  }});
    new Ziehziel(Form->tvBFloskel->viewport(),
                 {[this](Ziehart Art, QPoint Ort) { return UeberBaum(Art, Ort); },
                  [this](Ziehart Art, QPoint Ort) { ImBaumAblegen(Art, Ort); },
                  [this] {
                      Form->tvBFloskel->setHervorgehoben(-1);
                      Hinweis({});
                  }});
    // A hint does not outlive the pointer's leaving a target.
    new Ziehziel(Form->fmFloskel, {[OhneHinweis](Ziehart, QPoint) {
                                       OhneHinweis();
                                       return false;
                                   },
                                   [](Ziehart, QPoint) {}, OhneHinweis});
    Form->fmFloskel->setMouseTracking(true);
    Form->fmFloskel->installEventFilter(this);
}

void AnsichtB::FormulierungZiehen() {
    const Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    if (!InLeerzeile())
        Ziehen(Form->tblBFloskel, Ziehart::Formulierung, Tabelle.TextMatrix(Tabelle.Row(), 0),
               Tabelle.CellBackColor(Tabelle.Row(), 0));
}

bool AnsichtB::UeberBeurteilung(Ziehart Art, QPoint Ort) {
    if (Art != Ziehart::Formulierung)
        return false;
    txtBEingabe->MarkeSetzen(txtBEingabe->WortstelleBei(Ort));
    txtBEingabe->setFocus();
    Hinweis(QStringLiteral("Formulierung in die Schülerbeurteilung einfügen"));
    return true;
}

/// The grid follows the pointer, so that a phrase can be carried to any student; what takes the phrase is the
/// box, which opens under the pointer.
bool AnsichtB::UeberSchueler(Ziehart Art, QPoint Ort) {
    Gitter& Tabelle = *Form->tblBeurteilungen;
    const int Zeile = SchuelerzeileBei(Ort.y());
    if (Art != Ziehart::Formulierung || Zeile < 1)
        return false;
    if (Tabelle.Col() != 1) {
        const Fuellsperre Sperre;
        Tabelle.setCol(1);
    }
    if (Zeile != Tabelle.Row())
        Tabelle.setRow(Zeile);
    else if (txtBEingabe->isHidden())
        Ausfuehren([this] { SchuelerBetreten(); });
    return false;
}

/// Row of the student for a height in the viewport; over the header the one above the topmost in sight.
int AnsichtB::SchuelerzeileBei(int Y) const {
    const Gitter& Tabelle = *Form->tblBeurteilungen;
    const int Letzte = Tabelle.Rows() - 2;
    if (Y <= Tabelle.RowHeight(0))
        return qMin(Letzte, qMax(1, Tabelle.TopRow() - 1));
    const int Zeile = Tabelle.RowAt(Y + Tabelle.viewport()->y());
    return Zeile < 0 || Zeile > Letzte ? Letzte : Zeile;
}

bool AnsichtB::UeberTabelle(Ziehart Art, QPoint Ort) {
    Formulierungstabelle& Tabelle = *Form->tblBFloskel;
    if (Art != Ziehart::Formulierung || AnzLernbereiche == 0) {
        Hinweis({});
        return false;
    }
    Hinweis(QStringLiteral("Anzeigereihenfolge der Formulierungen ändern"));
    Tabelle.RandRollen(Ort);
    Tabelle.setZielzeile(Tabelle.ZielzeileBei(Ort));
    return Tabelle.ZielzeileBei(Ort) >= 0;
}

void AnsichtB::InTabelleAblegen(QPoint Ort) {
    const int Ziel = Form->tblBFloskel->ZielzeileBei(Ort);
    if (Ziel == Form->tblBFloskel->Row()) {
        FloskelGeklickt();
        return;
    }
    FormulierungVerschieben(Bereich(), Form->tblBFloskel->Row(), Ziel);
    FormulierungenFuellen();
}

bool AnsichtB::UeberBaum(Ziehart Art, QPoint Ort) {
    Lernbereichsbaum& Baum = *Form->tvBFloskel;
    const bool Formulierung = Art == Ziehart::Formulierung;
    const int Knoten = Baum.KnotenBei(Ort);
    Baum.setHervorgehoben(Knoten);
    Hinweis(Formulierung ? QStringLiteral("Formulierung in einen anderen Lernbereich verschieben")
                         : QStringLiteral("Anzeigereihenfolge der Lernbereiche ändern"));
    if (Knoten < 0)
        return false;
    return Formulierung ? AnzLernbereiche > 0 && Knoten != Bereich()
                        : Knoten < AnzLernbereiche && Knoten != Baum.GezogenerKnoten();
}

void AnsichtB::ImBaumAblegen(Ziehart Art, QPoint Ort) {
    const Lernbereichsbaum& Baum = *Form->tvBFloskel;
    const int Ziel = Baum.KnotenBei(Ort);
    if (Art == Ziehart::Formulierung)
        FormulierungInBereich(Ziel);
    else if (LernbereichVerschieben(Baum.GezogenerKnoten(), Ziel))
        LernbereicheFuellen();
}

void AnsichtB::FormulierungInBereich(int Ziel) {
    const Ablehnung Grund = FormulierungUmziehen(Bereich(), Form->tblBFloskel->Row(), Ziel);
    if (Grund != Ablehnung::Keine) {
        // The drag must end before a box comes up.
        QMetaObject::invokeMethod(
            this, [Grund] { Angenommen(Grund); }, Qt::QueuedConnection);
        return;
    }
    FormulierungenFuellen();
    BaumAngleichen(Ziel);
}
