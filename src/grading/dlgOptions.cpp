#include "grading/dlgOptions.h"

#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/Fehlerfang.h"
#include "core/FktAllgemein.h"
#include "core/Meldungen.h"
#include "core/Zahlen.h"
#include "grading/Optionen.h"
#include "grading/Optionsgitter.h"
#include "grading/Verteilungsleiste.h"

#include "ui_dlgOptions.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>

namespace {

constexpr int ErsteVerteilungsseite = 2;
const QString FormatEineStelle = QStringLiteral("0.0");
const QString FormatZweiStellen = QStringLiteral("0.00");

/// Selects one radio button of a group, or none for an index outside.
void Waehlen(const std::vector<QRadioButton*>& Knoepfe, int Index) {
    for (int i = 0; i < static_cast<int>(Knoepfe.size()); ++i) {
        QRadioButton* Knopf = Knoepfe[static_cast<std::size_t>(i)];
        // Qt keeps the last button of a group checked; only alone it can be unchecked.
        Knopf->setAutoExclusive(false);
        Knopf->setChecked(i == Index);
        Knopf->setAutoExclusive(true);
    }
}

} // namespace

bool OptionenZeigen(QWidget* Eltern) {
    dlgOptions Dialog(Eltern);
    return Dialog.exec() == QDialog::Accepted;
}

dlgOptions::dlgOptions(QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgOptions>()) {
    Form->setupUi(this);
    for (std::size_t i = 0; i < Bezeichnungen1.size(); ++i) {
        Bezeichnungen1[i] = findChild<Textfeld*>(QStringLiteral("txtProbenBezeichnung1_%1").arg(i));
        Bezeichnungen2[i] = findChild<Textfeld*>(QStringLiteral("txtProbenBezeichnung2_%1").arg(i));
    }
    Pruefboxen = {{{Form->txtGewichtungE, Optionsfeld::GewichtungE},
                   {Form->txtGewichtungM, Optionsfeld::GewichtungM},
                   {Form->txtPunkteabstand, Optionsfeld::Punkteabstand},
                   {Form->txtNotenabstand, Optionsfeld::Notenabstand},
                   {Form->txtHalbjahreswechsel, Optionsfeld::Halbjahreswechsel},
                   {Form->txtEndjahreswechsel, Optionsfeld::Endjahreswechsel}}};
    for (QScrollArea* Seite : {Form->SeiteAllgemeines, Form->SeiteNotenberechnung}) {
        // The ground of a tab page shines through, as on the other pages.
        Seite->viewport()->setAutoFillBackground(false);
        Seite->widget()->setAutoFillBackground(false);
    }
    TabellenEinrichten();
    Verbinden();
    Laden();
    Platzieren();
}

dlgOptions::~dlgOptions() = default;

/// Over the window that asked for it, and not beyond the screen.
void dlgOptions::Platzieren() {
    const QRect Platz = screen()->availableGeometry();
    const QFontMetrics Mass = fontMetrics();
    resize(QSize(130 * Mass.averageCharWidth(), 48 * Mass.height()).boundedTo(Platz.size()));
    if (!parentWidget())
        return;
    const QPoint Ecke = parentWidget()->window()->pos() + QPoint(Gitter::TwipsInPixel(220), 0);
    move(qBound(Platz.left(), Ecke.x(), qMax(Platz.left(), Platz.right() - width())),
         qBound(Platz.top(), Ecke.y(), qMax(Platz.top(), Platz.bottom() - height())));
}

void dlgOptions::TabellenEinrichten() {
    const auto Leiste = [](Gitter* Tabelle, Verteilungsart Art, const QString& Name) {
        auto* Neue = new Verteilungsleiste(Tabelle, Art);
        Neue->setObjectName(Name);
        return Neue;
    };
    Leisten = {Leiste(Form->tblBLLVVerteilung, Verteilungsart::Punkte, QStringLiteral("ScrollbarB")),
               Leiste(Form->tblGaussVerteilung, Verteilungsart::Anteil, QStringLiteral("ScrollbarG")),
               Leiste(Form->tblEigeneVerteilung, Verteilungsart::Prozent, QStringLiteral("ScrollbarE"))};
    // Room for the two arrows of the bar.
    Form->tblBLLVVerteilung->verticalHeader()->setDefaultSectionSize(2 * fontMetrics().height());
    for (Gitter* Tabelle : {Form->tblGaussVerteilung, Form->tblEigeneVerteilung})
        connect(Tabelle, &Gitter::LageGeaendert, this, [Tabelle] { ZeilenAngleichen(*Tabelle); });
    // Only the bars are put in place. The tab widget, which the form leaves out of its order, and the buttons
    // stand right already: moved with all that belongs to them, they would cut Qt's ring of widgets in two,
    // and one half would never get the focus.
    QWidget* Vorher = Form->txtNotenabstand;
    for (Verteilungsleiste* Naechste : Leisten) {
        setTabOrder(Vorher, Naechste);
        Vorher = Naechste;
    }
}

void dlgOptions::Verbinden() {
    for (const Pruefbox& Box : Pruefboxen)
        connect(Box.Feld, &Textfeld::Verlassen, this, [this, Box] { Pruefen(Box); });

    const auto Gewaehlt = [this](QRadioButton* Knopf, auto Aktion) {
        connect(Knopf, &QRadioButton::toggled, this, [this, Aktion](bool An) {
            if (An && !Laedt)
                Aktion();
        });
    };
    Gewaehlt(Form->obNotensystem_0, [this] { NotensystemGewaehlt(0); });
    Gewaehlt(Form->obNotensystem_1, [this] { NotensystemGewaehlt(1); });
    Gewaehlt(Form->rbNotenformat_0, [this] { NotenformatGewaehlt(0); });
    Gewaehlt(Form->rbNotenformat_1, [this] { NotenformatGewaehlt(1); });
    for (QRadioButton* Knopf : {Form->rbNotenBerechnungsMethode_0, Form->rbNotenBerechnungsMethode_1,
                                Form->rbNotenBerechnungsMethode_2})
        connect(Knopf, &QRadioButton::toggled, this, &dlgOptions::MethodeGewaehlt);
    connect(Form->cbGrenznotenBerechnen, &QCheckBox::toggled, Form->txtPunkteabstand, &QWidget::setEnabled);
    connect(Form->cbGrenznotenBeruecksichtigen, &QCheckBox::toggled, Form->txtNotenabstand,
            &QWidget::setEnabled);

    connect(Form->tabOptions, &QTabWidget::currentChanged, this, &dlgOptions::LeisteDerSeiteZeigen);
    const auto Weiter = [this](QKeySequence::StandardKey Taste, int Schritt) {
        connect(new QShortcut(Taste, this), &QShortcut::activated, this, [this, Schritt] {
            const int Anzahl = Form->tabOptions->count();
            Form->tabOptions->setCurrentIndex((Form->tabOptions->currentIndex() + Anzahl + Schritt) % Anzahl);
        });
    };
    Weiter(QKeySequence::NextChild, 1);
    Weiter(QKeySequence::PreviousChild, -1);

    connect(Form->btOK, &QPushButton::clicked, this, &dlgOptions::Uebernehmen);
    connect(Form->btAbbruch, &QPushButton::clicked, this, &dlgOptions::reject);
}

void dlgOptions::Laden() {
    const QScopedValueRollback Still(Laedt, true);
    const Optionen Werte = OptionenInKraft();
    KnoepfeLaden();
    FelderLaden(Werte);
    {
        const QScopedValueRollback Ruhe(GridEreignisseAktiv, false);
        TabellenFuellen(*Form->tblBLLVVerteilung, Werte, MaxNote);
        GaussFuellen(*Form->tblGaussVerteilung, Werte, MaxNote);
        EigeneFuellen(*Form->tblEigeneVerteilung, Werte, MaxNote);
    }
    LeisteDerSeiteZeigen();
}

void dlgOptions::KnoepfeLaden() {
    const bool EineStelle =
        EinstellungLesen(QStringLiteral("Notenformat"), FormatEineStelle) == FormatEineStelle;
    Waehlen({Form->rbNotenformat_0, Form->rbNotenformat_1}, EineStelle ? 0 : 1);
    Waehlen({Form->obNotensystem_0, Form->obNotensystem_1}, 6 - MaxNote);
    Waehlen({Form->rbNotenBerechnungsMethode_0, Form->rbNotenBerechnungsMethode_1,
             Form->rbNotenBerechnungsMethode_2},
            GanzzahlAusText(Datenbank.NotenberechnenMethode) - 1);
    MethodeGewaehlt();
}

void dlgOptions::FelderLaden(const Optionen& Werte) {
    for (int i = 0; i < 13; ++i) {
        Bezeichnungen1[static_cast<std::size_t>(i)]->setText(Werte.Probenbezeichnung[i + 1]);
        Bezeichnungen2[static_cast<std::size_t>(i)]->setText(Werte.ExtemporalenBezeichnung[i + 1]);
    }
    Form->txtHalbjahreswechsel->setText(Werte.Halbjahreswechsel);
    Form->txtEndjahreswechsel->setText(Werte.Endjahreswechsel);
    Form->cbGrenznotenBerechnen->setChecked(Werte.GrenznotenBerechnen);
    Form->txtPunkteabstand->setText(ZahlText(Werte.GrenznotenPunkteAbstand));
    Form->txtPunkteabstand->setEnabled(Werte.GrenznotenBerechnen);
    Form->cbGrenznotenBeruecksichtigen->setChecked(Werte.GrenznotenBeruecksichtigen);
    Form->txtNotenabstand->setText(ZahlText(Werte.GrenznotenNotenAbstand));
    Form->txtNotenabstand->setEnabled(Werte.GrenznotenBeruecksichtigen);
    Form->txtGewichtungE->setText(ZahlText(Werte.GewichtungE));
    Form->txtGewichtungM->setText(ZahlText(Werte.GewichtungM));
}

void dlgOptions::FelderLesen(Optionen& Werte) const {
    for (int i = 0; i < 13; ++i) {
        Werte.Probenbezeichnung[i + 1] = Bezeichnungen1[static_cast<std::size_t>(i)]->text();
        Werte.ExtemporalenBezeichnung[i + 1] = Bezeichnungen2[static_cast<std::size_t>(i)]->text();
    }
    Werte.Halbjahreswechsel = Form->txtHalbjahreswechsel->text();
    Werte.Endjahreswechsel = Form->txtEndjahreswechsel->text();
    Werte.GrenznotenBerechnen = Form->cbGrenznotenBerechnen->isChecked();
    Werte.GrenznotenPunkteAbstand = ZahlAusText(Form->txtPunkteabstand->text());
    Werte.GrenznotenBeruecksichtigen = Form->cbGrenznotenBeruecksichtigen->isChecked();
    Werte.GrenznotenNotenAbstand = ZahlAusText(Form->txtNotenabstand->text());
    const int Methode = Form->rbNotenBerechnungsMethode_0->isChecked()   ? 1
                        : Form->rbNotenBerechnungsMethode_1->isChecked() ? 2
                                                                         : 3;
    Werte.NotenberechnenMethode = ZahlText(Methode);
    Werte.GewichtungE = ZahlAusText(Form->txtGewichtungE->text());
    Werte.GewichtungM = ZahlAusText(Form->txtGewichtungM->text());
}

/// Takes effect at once; Abbrechen does not take it back.
void dlgOptions::NotenformatGewaehlt(int Index) {
    Notenformat = Index == 1 ? FormatZweiStellen : FormatEineStelle;
    EinstellungSchreiben(QStringLiteral("Notenformat"), Notenformat);
}

/// Takes effect at once; what was typed into the dialog before is lost, since all its tables change shape.
void dlgOptions::NotensystemGewaehlt(int Index) {
    const auto Neu = static_cast<qint16>(6 - Index);
    if (Neu == MaxNote)
        return;
    MaxNote = Neu;
    EinstellungSchreiben(QStringLiteral("MaxNote"), ZahlText(int(MaxNote)));
    Laden();
}

/// With the third method the oral grades count as Lernzielkontrollen and have no weight of their own.
void dlgOptions::MethodeGewaehlt() {
    const bool Gemeinsam = Form->rbNotenBerechnungsMethode_2->isChecked();
    Form->lbGewichtungM->setVisible(!Gemeinsam);
    Form->txtGewichtungM->setVisible(!Gemeinsam);
    Form->lbGewichtungE->setText(Gemeinsam ? tr("Gewichtung der Lernzielkontrollen und mündlichen Noten")
                                           : tr("Gewichtung der Lernzielkontrollen"));
}

void dlgOptions::LeisteDerSeiteZeigen() {
    const int Seite = Form->tabOptions->currentIndex() - ErsteVerteilungsseite;
    if (Seite < 0)
        return;
    Gitter* const Tabellen[]{Form->tblBLLVVerteilung, Form->tblGaussVerteilung, Form->tblEigeneVerteilung};
    {
        const QScopedValueRollback Ruhe(GridEreignisseAktiv, false);
        Tabellen[Seite]->setCell(Verteilungsleiste::ErsteZeile, Verteilungsleiste::ErsteSpalte);
    }
    Leisten[static_cast<std::size_t>(Seite)]->Zeigen();
}

/// A bad text is replaced and reported.
void dlgOptions::Pruefen(const Pruefbox& Box) {
    const Optionspruefung Ergebnis = OptionPruefen(Box.Was, Box.Feld->text());
    Box.Feld->setText(Ergebnis.Text);
    if (Ergebnis.Meldung.isEmpty())
        return;
    MeldungZeigen(Ergebnis.Meldung);
    // A click that left the box has lost its release to the message; it counts all the same.
    const auto Danach = [this] {
        const auto Knoepfe = findChildren<QAbstractButton*>();
        for (QAbstractButton* Knopf : Knoepfe)
            if (Knopf->isDown())
                Knopf->click();
    };
    QMetaObject::invokeMethod(this, Danach, Qt::QueuedConnection);
}

/// A box that still has the focus, as after Return, is checked first; what it was reset to counts.
void dlgOptions::Uebernehmen() {
    for (const Pruefbox& Box : Pruefboxen)
        if (Box.Feld->hasFocus())
            Pruefen(Box);
    Optionen Neue = OptionenInKraft();
    FelderLesen(Neue);
    TabellenAusZeilen(WerteZeilen(*Form->tblBLLVVerteilung), MaxNote, Neue);
    GaussAusZeilen(WerteZeilen(*Form->tblGaussVerteilung), MaxNote, Neue);
    EigeneAusZeilen(WerteZeilen(*Form->tblEigeneVerteilung), MaxNote, Neue);
    if (Ausfuehren([&] { OptionenUebernehmen(Neue); }))
        accept();
}
