#include "Zufallsbediener.h"

#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Eingabezaehler.h"
#include "frame/frmMain.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QtTest>

namespace {

struct Ansichtsteile {
    const char* Tabelle;
    QStringList Kombis;
    QStringList Felder;
};

const Ansichtsteile& Teile(int Nummer) {
    static const auto Liste = [](const char* Namen) {
        return QString::fromUtf8(Namen).split(u' ', Qt::SkipEmptyParts);
    };
    static const Ansichtsteile Alle[] = {
        {"tblSSchueler", Liste("cbSKlasse"), {}},
        {"tblPPunkte", Liste("cbPKlasseFach cbPProbe cbPSortierung"),
         Liste("txtGesamtpunktzahl txtNGrenze_0 txtNGrenze_2 txtNGrenze_4 txtPThema")},
        {"tblN1Noten", Liste("cbN1KlasseFach"), {}},
        {"tblN2Noten", Liste("cbN2Klasse cbN2Name"), {}},
        {"tblBeurteilungen", Liste("cbBKlasse cbBHalbjahr"), Liste("txtBVorname")},
    };
    return Alle[Nummer];
}

} // namespace

Zufallsbediener::Zufallsbediener(frmMain& Wo, quint32 Saat)
    : Fenster(Wo)
    , Zufall(Saat) {
    MeldungsdienstSetzen(this);
    QTimer::singleShot(1, this, &Zufallsbediener::DialogBedienen);
}

Zufallsbediener::~Zufallsbediener() {
    MeldungsdienstSetzen(nullptr);
}

void Zufallsbediener::Schritt() {
    switch (Wahl(16)) {
    case 0:
    case 1:
    case 2:
        return ReiterWechseln();
    case 3:
    case 4:
        return Auswaehlen();
    case 5:
        return Wahl(4) == 0 ? JahrWechseln() : Ticken();
    case 6:
        return FeldBearbeiten();
    case 7:
        return Wahl(3) == 0 ? KnopfDruecken() : Ticken();
    case 8:
    case 9:
        return ZelleVerlassen();
    default:
        return ZelleBearbeiten();
    }
}

int Zufallsbediener::Reiter() const {
    return Fenster.findChild<QTabWidget*>(QStringLiteral("tabAnsicht"))->currentIndex();
}

Gitter* Zufallsbediener::Tabelle() const {
    return Fenster.findChild<Gitter*>(QString::fromUtf8(Teile(Reiter()).Tabelle));
}

QString Zufallsbediener::Text() {
    static const QStringList Worte =
        QStringLiteral("1|2-|3+|6|ne|kr|12|33,5|-4|0|40||Zander Nora|x y|Bergstraße 1|rk").split(u'|');
    return Worte[Wahl(static_cast<int>(Worte.size()))];
}

void Zufallsbediener::ReiterWechseln() {
    auto* Leiste = Fenster.findChild<QTabWidget*>(QStringLiteral("tabAnsicht"))->tabBar();
    const int Nummer = Wahl(Leiste->count());
    Verlauf.append(QStringLiteral("Reiter %1").arg(Nummer));
    QTest::mouseClick(Leiste, Qt::LeftButton, {}, Leiste->tabRect(Nummer).center());
}

void Zufallsbediener::Auswaehlen() {
    const QStringList& Namen = Teile(Reiter()).Kombis;
    const QString Name = Namen[Wahl(static_cast<int>(Namen.size()))];
    auto* Feld = Fenster.findChild<Kombinationsfeld*>(Name);
    if (!Feld->isEnabled())
        return;
    const Qt::Key Taste = Wahl(2) == 0 ? Qt::Key_Down : Qt::Key_Up;
    Verlauf.append(QStringLiteral("%1 %2").arg(Name, Taste == Qt::Key_Down ? QStringLiteral("ab")
                                                                           : QStringLiteral("auf")));
    Feld->setFocus();
    QTest::keyClick(Feld, Taste);
}

void Zufallsbediener::JahrWechseln() {
    auto* Feld = Fenster.findChild<Kombinationsfeld*>(QStringLiteral("cbJahrgang"));
    Verlauf.append(QStringLiteral("Jahrgang"));
    Feld->setFocus();
    QTest::keyClick(Feld, Wahl(2) == 0 ? Qt::Key_Down : Qt::Key_Up);
}

void Zufallsbediener::Ticken() {
    Verlauf.append(QStringLiteral("Ticks"));
    for (int i = Wahl(8); i >= 0; --i)
        EingabezaehlerTick();
}

void Zufallsbediener::Tippen(const QString& Was) {
    QWidget* Ziel = QApplication::focusWidget();
    if (!Ziel)
        return;
    if (auto* Zeile = qobject_cast<QLineEdit*>(Ziel))
        Zeile->selectAll();
    if (Was.isEmpty())
        QTest::keyClick(Ziel, Qt::Key_Delete);
    else
        QTest::keyClicks(Ziel, Was);
}

void Zufallsbediener::ZelleBearbeiten() {
    Gitter* Liste = Tabelle();
    if (!Liste->isEnabled() || Liste->Rows() < 1 || Liste->Cols() < 1)
        return;
    const int Zeile = Wahl(Liste->Rows());
    const int Spalte = Wahl(Liste->Cols());
    const QString Was = Wahl(4) == 0 ? QStringLiteral(" ") : Text();
    Verlauf.append(
        QStringLiteral("%1 (%2, %3) \"%4\"").arg(Liste->objectName()).arg(Zeile).arg(Spalte).arg(Was));
    Liste->Enter(Zeile, Spalte);
    Tippen(Was);
    if (Wahl(2) == 0)
        ZelleVerlassen();
}

void Zufallsbediener::ZelleVerlassen() {
    static const QList<QPair<Qt::Key, Qt::KeyboardModifiers>> Tasten{{Qt::Key_Return, {}},
                                                                     {Qt::Key_Up, {}},
                                                                     {Qt::Key_Down, {}},
                                                                     {Qt::Key_Right, Qt::ShiftModifier},
                                                                     {Qt::Key_Left, Qt::ShiftModifier},
                                                                     {Qt::Key_Tab, {}},
                                                                     {Qt::Key_Escape, {}},
                                                                     {Qt::Key_PageDown, {}}};
    QWidget* Ziel = QApplication::focusWidget();
    const auto [Taste, Dazu] = Tasten[Wahl(static_cast<int>(Tasten.size()))];
    Verlauf.append(QStringLiteral("Taste %1").arg(QKeySequence(Taste | Dazu).toString()));
    if (Ziel)
        QTest::keyClick(Ziel, Taste, Dazu);
}

void Zufallsbediener::FeldBearbeiten() {
    const QStringList& Namen = Teile(Reiter()).Felder;
    if (Namen.isEmpty())
        return ZelleBearbeiten();
    const QString Name = Namen[Wahl(static_cast<int>(Namen.size()))];
    auto* Feld = Fenster.findChild<QLineEdit*>(Name);
    if (!Feld->isEnabled() || !Feld->isVisible())
        return;
    const QString Was = Text();
    Verlauf.append(QStringLiteral("%1 \"%2\"").arg(Name, Was));
    Feld->setFocus();
    Tippen(Was);
}

void Zufallsbediener::KnopfDruecken() {
    const QList<QPushButton*> Alle = Fenster.findChild<QTabWidget*>(QStringLiteral("tabAnsicht"))
                                         ->currentWidget()
                                         ->findChildren<QPushButton*>();
    QList<QPushButton*> Moegliche;
    for (QPushButton* Einer : Alle)
        if (Einer->isEnabled() && Einer->isVisible())
            Moegliche.append(Einer);
    if (Moegliche.isEmpty())
        return;
    QPushButton* Knopf = Moegliche[Wahl(static_cast<int>(Moegliche.size()))];
    Verlauf.append(QStringLiteral("Knopf %1").arg(Knopf->objectName()));
    QTest::mouseClick(Knopf, Qt::LeftButton);
}

/// Fills and ends the dialog in front, then looks again.
void Zufallsbediener::DialogBedienen() {
    QTimer::singleShot(1, this, &Zufallsbediener::DialogBedienen);
    auto* Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!Dialog || !Dialog->isVisible())
        return;
    for (QLineEdit* Feld : Dialog->findChildren<QLineEdit*>())
        if (Feld->isVisible() && Feld->text().isEmpty())
            Feld->setText(Feld->objectName() == QStringLiteral("txtKlasse") ? QStringLiteral("4bc")
                                                                            : QStringLiteral("Neu Nina"));
    QList<QPushButton*> Knoepfe;
    for (QPushButton* Einer : Dialog->findChildren<QPushButton*>())
        if (Einer->isEnabled() && Einer->isVisible())
            Knoepfe.append(Einer);
    const int Welcher = Wahl(static_cast<int>(Knoepfe.size()) + 1);
    Verlauf.append(QStringLiteral("%1 %2").arg(Dialog->objectName(), Welcher < Knoepfe.size()
                                                                         ? Knoepfe[Welcher]->objectName()
                                                                         : QStringLiteral("schliessen")));
    if (Welcher < Knoepfe.size())
        QTest::mouseClick(Knoepfe[Welcher], Qt::LeftButton);
    else
        Dialog->close();
}

Antwort Zufallsbediener::Zeigen(const Meldungstext& Meldung) {
    Verlauf.append(QStringLiteral("Box: ") + Meldung.Text.left(40));
    if (Meldung.Text.startsWith(QStringLiteral("Index")))
        Fehler.append(Meldung.Text);
    return Meldung.Auswahl == Knoepfe::Ok ? Antwort::Ok : Wahl(3) == 0 ? Antwort::Ja : Antwort::Nein;
}

int Zufallsbediener::Waehlen(const Auswahlfrage& Frage) {
    return static_cast<int>(Frage.Knoepfe.size()) - 1;
}

std::optional<Dateiwahl> Zufallsbediener::Oeffnen(const Dateiwunsch&) {
    return {};
}

std::optional<Dateiwahl> Zufallsbediener::Speichern(const Dateiwunsch&) {
    return {};
}
