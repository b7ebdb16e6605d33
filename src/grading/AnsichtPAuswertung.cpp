// View P: from grid and boxes to grades, and the automatic boundaries.

#include "controls/EingabeFeld.h"
#include "core/Eingabezaehler.h"
#include "core/FktAllgemein.h"
#include "core/Meldungen.h"
#include "core/Zahlen.h"
#include "grading/AnsichtP.h"
#include "grading/Diagramme.h"
#include "grading/Probenspalten.h"
#include "ui_AnsichtP.h"

Probenmassstab AnsichtP::Massstab() const {
    Probenmassstab Werte;
    Werte.Gesamtpunktzahl = Form->txtGesamtpunktzahl->text();
    for (int j = 0; j < txtNGrenze.size(); ++j)
        Werte.NGrenze[j] = txtNGrenze[j]->text();
    return Werte;
}

void AnsichtP::ProbeAuswerten() {
    // A grade in the open box may be outdated now, and leaving the box would set it by hand. The commit of
    // the box itself keeps it open.
    if (!InUebernahme)
        EingabeVerbergen();
    GezeigterStand.reset();
    std::vector<Auswertungszeile> Zeilen;
    std::vector<qint32> IDs;
    for (int i = 1; i <= TeilnehmerAnzahl(); ++i) {
        Zeilen.push_back({Form->tblPPunkte->TextMatrix(i, Probenspalte::Punkte),
                          Form->tblPPunkte->TextMatrix(i, Probenspalte::Note)});
        IDs.push_back(ZeilenID(i));
    }
    const Auswertung Eine = ProbeBewerten(Massstab(), Zeilen, AktuelleNotenregeln());
    NotenSpeichern(IDs, Eine.Zeilen, GewaehltesFach(), GewaehlteProbe());
    ErgebnisseZeigen(Eine);
}

void AnsichtP::ErgebnisseZeigen(const Auswertung& Eine) {
    for (int i = 1; i <= TeilnehmerAnzahl(); ++i) {
        const Zeilenergebnis& Zeile = Eine.Zeilen[static_cast<std::size_t>(i - 1)];
        if (Zeile.Note && *Zeile.Note != Form->tblPPunkte->TextMatrix(i, Probenspalte::Note))
            Form->tblPPunkte->setTextMatrix(i, Probenspalte::Note, *Zeile.Note);
        if (Zeile.Farbe && QColor(*Zeile.Farbe) != Form->tblPPunkte->CellForeColor(i, Probenspalte::Note))
            Form->tblPPunkte->setCellForeColor(i, Probenspalte::Note, QColor(*Zeile.Farbe));
    }
    Plausibel = Eine.Plausibel;
    Q_EMIT HinweisGewuenscht(Plausibel ? QString() : MeldungUnplausibel);
    NotenAnzahl = Eine.NotenAnzahl;
    PunkteVerteilung = Eine.PunkteVerteilung;
    Form->txtPNotenschnitt->setText(ZahlFormat(Eine.Notenschnitt, QStringLiteral("0.00")));
    DiagrammeZeichnen();
}

void AnsichtP::DiagrammeZeichnen() {
    Form->picPunkte->Zeichnen(
        [Werte = Massstab(), Verteilung = PunkteVerteilung, Noten = MaxNote](Zeichenflaeche& Flaeche) {
            PunkteDiagramm(Flaeche, {}, Werte, Verteilung, Noten);
        });
    Form->picNoten->Zeichnen([Anzahlen = NotenAnzahl, Noten = MaxNote](Zeichenflaeche& Flaeche) {
        NotenDiagramm(Flaeche, {}, Anzahlen, Noten);
    });
}

void AnsichtP::GrenzenSetzen(const QStringList& Grenzen) {
    Probe* Eine = AktuelleProbe();
    if (!Eine)
        return;
    for (int j = 0; j < Grenzen.size(); ++j) {
        txtNGrenze[j]->setText(Grenzen[j]);
        Eine->NGrenze[j + 1] = txtNGrenze[j]->text();
    }
    // What was just written needs no delayed commit.
    EingabezaehlerLeeren();
}

void AnsichtP::TabellenVerteilung() {
    DatenGeaendert = true;
    const QStringList Grenzen = TabellenGrenzen(GanzzahlAusText(Form->txtGesamtpunktzahl->text()), MaxNote);
    GrenzenSetzen(Grenzen);
    ProbeAuswerten();
    if (Grenzen.isEmpty())
        MeldungZeigen(MeldungOhneGesamtpunktzahl, QStringLiteral("Hinweis:"));
}

void AnsichtP::EigeneVerteilungAnwenden(int Variante) {
    DatenGeaendert = true;
    const QStringList Grenzen =
        EigeneGrenzen(GanzzahlAusText(Form->txtGesamtpunktzahl->text()), EigeneVerteilung[Variante], MaxNote);
    GrenzenSetzen(Grenzen);
    ProbeAuswerten();
    if (Grenzen.isEmpty())
        MeldungZeigen(MeldungOhneGesamtpunktzahl, QStringLiteral("Hinweis:"));
}

void AnsichtP::GaussVerteilungAnwenden(int Variante) {
    DatenGeaendert = true;
    const qint16 Gesamt = GanzzahlAusText(Form->txtGesamtpunktzahl->text());
    if (Gesamt <= 0) {
        MeldungZeigen(MeldungGaussOhneGesamtpunktzahl, QStringLiteral("Hinweis:"));
        return;
    }
    std::vector<QString> Punkte;
    for (int i = 1; i <= TeilnehmerAnzahl(); ++i)
        Punkte.push_back(Form->tblPPunkte->TextMatrix(i, Probenspalte::Punkte));
    GrenzenSetzen(GaussGrenzen(Gesamt, Punkte, GaussVerteilung[Variante], MaxNote));
    ProbeAuswerten();
}

void AnsichtP::GrenzeVerschieben(const Grenzschritt& Schritt) {
    DatenGeaendert = true;
    Q_EMIT HinweisGewuenscht(Schritt.Plausibel ? QString() : MeldungUnplausibel);
    Probe* Eine = AktuelleProbe();
    if (Schritt.Index < 0 || !Eine)
        return;
    txtNGrenze[Schritt.Index]->setText(Schritt.Text);
    Eine->NGrenze[Schritt.Index + 1] = Schritt.Text;
    EingabezaehlerLeeren();
    ProbeAuswerten();
}
