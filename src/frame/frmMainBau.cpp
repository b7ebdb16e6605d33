// How the main window builds itself from its lists.

#include "controls/Ansicht.h"
#include "controls/Kombinationsfeld.h"
#include "controls/Sinnbilder.h"
#include "core/Datum.h"
#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "core/Uhr.h"
#include "frame/Ansichten.h"
#include "frame/Hinweiszeile.h"
#include "frame/Menue.h"
#include "frame/Reiterfeld.h"
#include "frame/Zwischenablage.h"
#include "frame/frmMain.h"

#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>

void frmMain::ReiterBauen() {
    tabAnsicht = new Reiterfeld(this);
    tabAnsicht->setObjectName(QStringLiteral("tabAnsicht"));
    tabAnsicht->setAccessibleName(QStringLiteral("Ansichten"));
    picAnsicht.resize(AnzahlAnsichten);
    for (int Nummer = 0; Nummer < AnzahlAnsichten; ++Nummer)
        tabAnsicht->addTab(RollfeldBauen(), AnsichtTitel(Nummer));
    setCentralWidget(tabAnsicht);
    connect(tabAnsicht, &QTabWidget::currentChanged, this, [this] {
        if (FormularBereit)
            Ausfuehren([this] { AnsichtAktualisieren(); });
    });
}

/// A view that needs more room than a small or much enlarged screen has can be scrolled; nothing is cut off.
QScrollArea* frmMain::RollfeldBauen() {
    auto* Rollfeld = new QScrollArea;
    Rollfeld->setFrameShape(QFrame::NoFrame);
    Rollfeld->setFocusPolicy(Qt::NoFocus);
    Rollfeld->setWidgetResizable(true);
    return Rollfeld;
}

void frmMain::AnsichtBauen(int Nummer) {
    Ansicht* Neue = AnsichtErzeugen(Nummer);
    Neue->setObjectName(QStringLiteral("picAnsicht_%1").arg(Nummer));
    connect(Neue, &Ansicht::HinweisGewuenscht, this, &frmMain::Hinweis);
    connect(Neue, &Ansicht::AktualisierenGewuenscht, this, &frmMain::AnsichtAktualisieren);
    connect(Neue, &Ansicht::ImportErlaubt, this,
            [this](bool Erlaubt) { EintragErlauben(QStringLiteral("mnuFileImport"), Erlaubt); });
    qobject_cast<QScrollArea*>(tabAnsicht->widget(Nummer))->setWidget(Neue);
    picAnsicht[Nummer] = Neue;
    LeisteAnsEndeDerReihe();
}

Ansicht& frmMain::AnsichtHolen(int Nummer) {
    if (!picAnsicht.at(Nummer))
        AnsichtBauen(Nummer);
    return *picAnsicht.at(Nummer);
}

void frmMain::UebrigeAnsichtenBauen() {
    for (int Nummer = 0; Nummer < AnzahlAnsichten; ++Nummer)
        AnsichtHolen(Nummer);
}

/// The Tab key leads from the tabs into the view and then to the tool bar. A new view stands at the end of
/// the chain, so the controls of the tool bar go behind it.
void frmMain::LeisteAnsEndeDerReihe() {
    QWidget* Letztes = previousInFocusChain();
    while (Letztes->focusPolicy() == Qt::NoFocus && Letztes != this)
        Letztes = Letztes->previousInFocusChain();
    setTabOrder(Letztes, cbPassbild);
    setTabOrder(cbPassbild, cbJahrgang);
}

void frmMain::MenueBauen() {
    for (const Menueintrag& Eintrag : Menueeintraege()) {
        if (Eintrag.Art != Eintragsart::Menue) {
            EintragBauen(Eintrag);
            continue;
        }
        QMenu* Menue = menuBar()->addMenu(QString::fromUtf8(Eintrag.Text));
        Menue->setObjectName(QString::fromUtf8(Eintrag.Name));
        Menue->menuAction()->setVisible(Eintrag.Sichtbar);
    }
    new Zwischenablagewaechter(this);
}

void frmMain::EintragBauen(const Menueintrag& Eintrag) {
    auto* Aktion = new QAction(QString::fromUtf8(Eintrag.Text), this);
    Aktion->setObjectName(QString::fromUtf8(Eintrag.Name));
    Aktion->setSeparator(Eintrag.Art == Eintragsart::Strich);
    Aktion->setShortcut(QKeySequence(QString::fromUtf8(Eintrag.Tasten)));
    Aktion->setCheckable(Eintrag.Art == Eintragsart::Schalter);
    Aktion->setChecked(Eintrag.Gesetzt);
    Aktion->setVisible(Eintrag.Sichtbar);
    Aktion->setEnabled(Eintrag.Frei && (Eintrag.Ablauf || Eintrag.Art == Eintragsart::Strich));
    if (Eintrag.Ablauf)
        connect(Aktion, &QAction::triggered, this, [this, &Eintrag] { BefehlAusfuehren(Eintrag); });
    menuBar()->actions().constLast()->menu()->addAction(Aktion);
}

void frmMain::LeisteBauen() {
    tbToolBar = addToolBar(QStringLiteral("Symbolleiste"));
    tbToolBar->setObjectName(QStringLiteral("tbToolBar"));
    tbToolBar->setMovable(false);
    // Shown and hidden by mnuViewToolbar alone.
    tbToolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    setContextMenuPolicy(Qt::PreventContextMenu);
    for (const Leisteneintrag& Eintrag : Leisteneintraege())
        KnopfBauen(Eintrag);
    tbToolBar->addSeparator();
    cbPassbild = new QCheckBox(QStringLiteral("Passbilder anzeigen"));
    cbPassbild->setObjectName(QStringLiteral("cbPassbild"));
    auto* Zwilling = findChild<QAction*>(QStringLiteral("mnuViewPassbild"));
    cbPassbild->setEnabled(Zwilling->isEnabled());
    connect(cbPassbild, &QCheckBox::toggled, Zwilling, &QAction::setChecked);
    tbToolBar->addWidget(cbPassbild);
    JahrgangBauen();
}

void frmMain::KnopfBauen(const Leisteneintrag& Eintrag) {
    if (*Eintrag.Name == '\0') {
        tbToolBar->addSeparator();
        return;
    }
    const QString Name = QString::fromUtf8(Eintrag.Name);
    QAction* Aktion = tbToolBar->addAction(Sinnbild(Name.toLower()), QString::fromUtf8(Eintrag.Text));
    Aktion->setObjectName(Name);
    tbToolBar->widgetForAction(Aktion)->setObjectName(Name);
    const QString Befehl = QString::fromUtf8(Eintrag.Befehl);
    auto* Vorbild = Befehl.isEmpty() ? nullptr : findChild<QAction*>(Befehl);
    Aktion->setEnabled(Vorbild && Vorbild->isEnabled());
    if (Vorbild)
        connect(Aktion, &QAction::triggered, Vorbild, &QAction::trigger);
}

void frmMain::JahrgangBauen() {
    cbJahrgang = new Kombinationsfeld;
    cbJahrgang->setObjectName(QStringLiteral("cbJahrgang"));
    cbJahrgang->setEditable(false);
    cbJahrgang->setAccessibleName(QStringLiteral("Schuljahr"));
    cbJahrgang->setToolTip(QStringLiteral("Schuljahr"));
    for (int Jahr = 1995; Jahr < 2030; ++Jahr)
        cbJahrgang->Hinzufuegen(Schuljahr(QDate(Jahr, 9, 1)));
    connect(cbJahrgang, &Kombinationsfeld::Klick, this, &frmMain::JahrgangGewechselt);
    tbToolBar->addWidget(cbJahrgang);
}

void frmMain::StatuszeileBauen() {
    QStatusBar* sbStatusBar = statusBar();
    sbStatusBar->setObjectName(QStringLiteral("sbStatusBar"));
    HinweisFeld = new Hinweiszeile;
    HinweisFeld->setObjectName(QStringLiteral("sbStatusBar_1"));
    HinweisFeld->setAccessibleName(QStringLiteral("Status"));
    sbStatusBar->addWidget(HinweisFeld, 1);
    DatumFeld = FeldBauen(QStringLiteral("sbStatusBar_2"), QStringLiteral("Datum"));
    ZeitFeld = FeldBauen(QStringLiteral("sbStatusBar_3"), QStringLiteral("Uhrzeit"));
    UhrZeigen();
}

QLabel* frmMain::FeldBauen(const QString& Name, const QString& Bedeutung) {
    auto* Feld = new QLabel;
    Feld->setObjectName(Name);
    Feld->setAccessibleName(Bedeutung);
    Feld->setTextFormat(Qt::PlainText);
    statusBar()->addPermanentWidget(Feld);
    return Feld;
}

void frmMain::UhrZeigen() {
    DatumFeld->setText(DatumKurz(Heute()));
    ZeitFeld->setText(ZeitKurz(Jetzt().time()));
}

void frmMain::LeistenZeigen() {
    tbToolBar->setVisible(findChild<QAction*>(QStringLiteral("mnuViewToolbar"))->isChecked());
    statusBar()->setVisible(findChild<QAction*>(QStringLiteral("mnuViewStatusBar"))->isChecked());
}
