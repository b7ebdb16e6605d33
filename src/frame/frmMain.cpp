#include "frame/frmMain.h"

#include "assessments/AnsichtB.h"
#include "assessments/Formulierungen.h"
#include "controls/Ansicht.h"
#include "controls/Kombinationsfeld.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Dokument.h"
#include "core/Eingabezaehler.h"
#include "core/Einstellungen.h"
#include "core/Fehlerfang.h"
#include "core/Parameterdatei.h"
#include "core/Rettung.h"
#include "core/Rettungsorte.h"
#include "frame/Ansichten.h"
#include "frame/Fensterlage.h"
#include "frame/Hinweiszeile.h"
#include "frame/Menue.h"
#include "frame/frmAbout.h"
#include "grading/dlgOptions.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QInputMethod>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QSignalBlocker>
#include <QStatusTipEvent>
#include <QTabWidget>
#include <QTimer>

frmMain::frmMain() {
    setObjectName(QStringLiteral("frmMain"));
    setMinimumSize(KleinstesFenster);
    setAcceptDrops(true);
    ReiterBauen();
    MenueBauen();
    LeisteBauen();
    StatuszeileBauen();
    timTimer = new QTimer(this);
    timTimer->setObjectName(QStringLiteral("timTimer"));
    timTimer->setInterval(500);
    connect(timTimer, &QTimer::timeout, this, &frmMain::Tick);
    OberflaecheSetzen(this);
}

frmMain::~frmMain() {
    OberflaecheSetzen(nullptr);
}

void frmMain::Laden() {
    FormularBereit = false;
    // The place is the frame's, so that a window put back does not wander by the height of its title.
    const QRect Lage = FensterlageLesen();
    move(Lage.topLeft());
    resize(Lage.size());
    Datenbank.AnzSchueler = Datenbank.AnzKlassen = Datenbank.AnzFaecher = 0;
    Datenbank.AnzNoten = Datenbank.AnzZSchueler = 0;
    DatenGeaendert = FormulierungenGeaendert = false;
    // Before any file is read, the parameter file too: what a broken-off save has left may be newer.
    Ausfuehren(RettungenAnbieten);
    LadeParameter();
    Ausfuehren(FormulierungenBeimStartLaden);
    tabAnsicht->setCurrentIndex(Reiter::P);
    Ausfuehren([this] { LetzteDateiLaden(); });
    cbPassbild->setChecked(EinstellungLesen(QStringLiteral("Passbild"), QStringLiteral("0")) ==
                           QStringLiteral("1"));
    FormularBereit = true;
    timTimer->start();
}

void frmMain::LetzteDateiLaden() {
    const QString Pfad = AutoDatei();
    if (AutoLaden() && Pfad != Unbenannt) {
        if (!LadeDatenbank(Pfad))
            DatenbankWiederherstellen(Pfad);
    } else {
        NeueDatenbank();
    }
    AnsichtAktualisieren();
}

bool frmMain::Sichtbar() const {
    return isVisible();
}

void frmMain::FokusNehmen() {
    QGuiApplication::inputMethod()->commit();
    const QPointer<QWidget> Vorher = focusWidget();
    const bool Erhaelt = Vorher && Vorher->hasFocus();
    tabAnsicht->setFocus(Qt::OtherFocusReason);
    if (!Vorher || Erhaelt || Vorher == focusWidget())
        return;
    // In a window that is not the active one Qt moves the focus without telling: the box must still commit.
    QFocusEvent Abschied(QEvent::FocusOut, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(Vorher, &Abschied);
}

void frmMain::TitelSetzen(const QString& Titel) {
    const QString Marke = QStringLiteral("[*]"); // Qt's place for a star; doubled it stands for itself
    setWindowTitle(QString(Titel).replace(Marke, Marke + Marke));
}

void frmMain::JahrgangWaehlen() {
    const QSignalBlocker Still(cbJahrgang);
    cbJahrgang->setListIndex(cbJahrgang->findText(Datenbank.AktJahr, Qt::MatchFixedString));
}

void frmMain::JahrgangGewechselt() {
    if (isVisible())
        FokusNehmen();
    Datenbank.AktJahr = cbJahrgang->currentText();
    AktSchuelerID = AktFachID = AktProbe = 0;
    AktKlasse.clear();
    Ausfuehren([this] { AnsichtAktualisieren(); });
}

void frmMain::AnsichtAktualisieren() {
    const int Nummer = tabAnsicht->currentIndex();
    findChild<QMenu*>(QStringLiteral("mnuFormulierungen"))->menuAction()->setVisible(Nummer == Reiter::B);
    EintragErlauben(QStringLiteral("mnuFileExport"), AnsichtExportiert(Nummer));
    EintragErlauben(QStringLiteral("mnuFileImport"), false);
    AnsichtHolen(Nummer).Fuellen();
    Hinweis({});
}

template <class Art>
Art* frmMain::Sicht() const {
    for (Ansicht* Eine : picAnsicht)
        if (auto* Gesuchte = qobject_cast<Art*>(Eine))
            return Gesuchte;
    return nullptr;
}

void frmMain::LernbereicheFuellen() {
    if (auto* Eine = Sicht<AnsichtB>()) // a view that is built later fills itself
        Eine->LernbereicheFuellen();
}

void frmMain::FormulierungenFuellen() {
    if (auto* Eine = Sicht<AnsichtB>())
        Eine->FormulierungenFuellen();
}

void frmMain::EintragErlauben(const QString& Name, bool Erlaubt) {
    for (const Menueintrag& Eintrag : Menueeintraege())
        if (Name == QLatin1String(Eintrag.Name))
            findChild<QAction*>(Name)->setEnabled(Erlaubt && Eintrag.Ablauf);
}

void frmMain::BefehlAusfuehren(const Menueintrag& Eintrag) {
    if (Eintrag.Zuvor == Fokus::Nehmen)
        FokusNehmen();
    Ausfuehren([this, &Eintrag] { Eintrag.Ablauf(*this); });
    AusweichhinweisZeigen();
}

void frmMain::Beenden() {
    // Both prompts are shown, whatever the answer to the first.
    const bool OhneFormulierungen = FormulierungenAbfrage();
    if (FrageSpeichern() && OhneFormulierungen)
        close();
}

void frmMain::OptionenAendern() {
    OptionenZeigen(this);
    const int Nummer = tabAnsicht->currentIndex();
    if (Nummer == Reiter::P || Nummer == Reiter::N1 || Nummer == Reiter::N2)
        AnsichtAktualisieren();
}

void frmMain::InfoZeigen() {
    frmAbout(this).exec();
}

void frmMain::Hinweis(const QString& Text) {
    HinweisFeld->setText(Text);
}

void frmMain::Tick() {
    UebrigeAnsichtenBauen(); // a window that is covered or minimised is not painted
    UhrZeigen();
    Ausfuehren(EingabezaehlerTick);
}

void frmMain::ZustandSichern() {
    EinstellungSchreiben(QStringLiteral("Passbild"),
                         cbPassbild->isChecked() ? QStringLiteral("1") : QStringLiteral("0"));
    FokusNehmen();
    Ausfuehren(SpeichereParameter);
    FensterlageSchreiben(*this);
}

void frmMain::closeEvent(QCloseEvent* Ereignis) {
    timTimer->stop();
    Ausfuehren([this] { ZustandSichern(); });
    // At this point the end is settled: an answer "Abbrechen" leaves the changes unsaved.
    Ausfuehren([] { FrageSpeichern(); });
    Ausfuehren([] { FormulierungenAbfrage(); });
    AusweichhinweisZeigen();
    const auto Fenster = QApplication::topLevelWidgets();
    for (auto Eines = Fenster.crbegin(); Eines != Fenster.crend(); ++Eines)
        if (*Eines != this && (*Eines)->isVisible())
            (*Eines)->close();
    Ereignis->accept();
}

namespace {

/// The grade book a drag carries; empty if it is something else.
QString GezogeneDatei(const QMimeData& Daten) {
    const QList<QUrl> Adressen = Daten.urls();
    const QString Pfad = Adressen.size() == 1 ? Adressen.first().toLocalFile() : QString();
    return Pfad.endsWith(QStringLiteral(".txt"), Qt::CaseInsensitive) ? Pfad : QString();
}

} // namespace

void frmMain::dragEnterEvent(QDragEnterEvent* Ereignis) {
    if (!GezogeneDatei(*Ereignis->mimeData()).isEmpty())
        Ereignis->acceptProposedAction();
}

void frmMain::dropEvent(QDropEvent* Ereignis) {
    const QString Pfad = GezogeneDatei(*Ereignis->mimeData());
    Ereignis->acceptProposedAction();
    // The drag must end before a prompt comes up.
    QTimer::singleShot(0, this, [Pfad] { DatenbankOeffnen(Pfad); });
}

bool frmMain::event(QEvent* Ereignis) {
    // Boxes tell the status line what they did not take; menus without a hint send an empty text.
    if (Ereignis->type() == QEvent::StatusTip) {
        if (const QString Text = static_cast<QStatusTipEvent*>(Ereignis)->tip(); !Text.isEmpty())
            Hinweis(Text);
        return true;
    }
    // The other views can wait until the first one is to be seen.
    if (Ereignis->type() == QEvent::Paint && picAnsicht.contains(nullptr))
        QTimer::singleShot(0, this, &frmMain::UebrigeAnsichtenBauen);
    if (Ereignis->type() == QEvent::WindowUnblocked)
        QTimer::singleShot(0, this, &frmMain::KnoepfeLoesen);
    return QMainWindow::event(Ereignis);
}

/// A click on a button that leaves a box may open that box's dialog first, and the dialog gets the release.
void frmMain::KnoepfeLoesen() {
    if (QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const auto Knoepfe = findChildren<QAbstractButton*>();
    for (QAbstractButton* Knopf : Knoepfe)
        Knopf->setDown(false);
}

#include "moc_frmMain.cpp"
