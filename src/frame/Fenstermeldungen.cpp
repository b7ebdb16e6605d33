#include "frame/Fenstermeldungen.h"

#include "core/AutoDatei.h"
#include "core/Definitionen.h"
#include "frame/Programmname.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

/// The window over which a box belongs; while none is active, the main window.
QWidget* Besitzer() {
    if (QWidget* Dialog = QApplication::activeModalWidget())
        return Dialog;
    if (QWidget* Aktives = QApplication::activeWindow())
        return Aktives;
    const auto Fenster = QApplication::topLevelWidgets();
    for (QWidget* Eines : Fenster)
        if (Eines->isVisible() && qobject_cast<QMainWindow*>(Eines))
            return Eines;
    return nullptr;
}

QMessageBox::Icon Kastenbild(Symbol Bild) {
    switch (Bild) {
    case Symbol::Ohne:
        return QMessageBox::NoIcon;
    case Symbol::Hinweis:
        return QMessageBox::Information;
    case Symbol::Frage:
        return QMessageBox::Question;
    case Symbol::Warnung:
        return QMessageBox::Warning;
    case Symbol::Fehler:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// A button of the boxes: caption, key that presses it alone or with Alt, place, and what it means.
struct Knopf {
    const char* Name;
    const char* Text;
    const char* Taste;
    QMessageBox::ButtonRole Platz;
    Antwort Bedeutung;
};

constexpr Knopf Ok{"btOk", "OK", "", QMessageBox::AcceptRole, Antwort::Ok};
constexpr Knopf Ja{"btJa", "Ja", "Alt+J", QMessageBox::YesRole, Antwort::Ja};
constexpr Knopf Nein{"btNein", "Nein", "Alt+N", QMessageBox::NoRole, Antwort::Nein};
constexpr Knopf Abbrechen{"btAbbrechen", "Abbrechen", "", QMessageBox::RejectRole, Antwort::Abbrechen};

/// The buttons of a box; the first is the default, the last is what closing the box means.
QList<Knopf> KnopfListe(Knoepfe Auswahl) {
    switch (Auswahl) {
    case Knoepfe::Ok:
        return {Ok};
    case Knoepfe::JaNein:
        return {Ja, Nein};
    case Knoepfe::JaNeinAbbrechen:
        return {Ja, Nein, Abbrechen};
    }
    return {Ok};
}

void Einrichten(QMessageBox& Kasten, const QString& Text, const QString& Titel, Symbol Bild) {
    Kasten.setObjectName(QStringLiteral("Meldung"));
    Kasten.setTextFormat(Qt::PlainText);
    Kasten.setTextInteractionFlags(Qt::TextSelectableByMouse);
    Kasten.setWindowTitle(Titel.isEmpty() ? Programmname : Titel);
    Kasten.setText(BoxText(Text));
    Kasten.setIcon(Kastenbild(Bild));
}

QStringList Filtertexte(const Dateiwunsch& Wunsch) {
    QStringList Texte;
    for (const Dateifilter& Einer : Wunsch.Filter)
        Texte.append(FilterText(Einer));
    return Texte;
}

/// Where a dialog without a preset folder begins: beside the open grade book, else at the user's documents.
QString Anfangsordner() {
    const QFileInfo Offene(AutoDatei());
    if (Offene.isAbsolute() && Offene.dir().exists())
        return Offene.absolutePath();
    const QString Dokumente = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(Dokumente).isDir() ? Dokumente : QDir::homePath();
}

void VorgabeSetzen(QFileDialog& Dialog, const QString& Vorgabe) {
    const QFileInfo Datei(Vorgabe);
    Dialog.setDirectory(Datei.isAbsolute() ? Datei.absolutePath() : Anfangsordner());
    if (!Datei.fileName().isEmpty())
        Dialog.selectFile(Datei.fileName());
}

void Beschriften(QFileDialog& Dialog, const QString& Annehmen) {
    Dialog.setLabelText(QFileDialog::Accept, Annehmen);
    Dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Abbrechen"));
    Dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Datei&name:"));
    Dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Dateityp:"));
    Dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Suchen in:"));
}

std::optional<Dateiwahl> DateiWaehlen(QFileDialog& Dialog, const Dateiwunsch& Wunsch,
                                      const QString& Annehmen) {
    const QStringList Filter = Filtertexte(Wunsch);
    Dialog.setObjectName(QStringLiteral("dlgCommonDialog"));
    Dialog.setWindowTitle(Wunsch.Titel);
    Dialog.setNameFilters(Filter);
    VorgabeSetzen(Dialog, Wunsch.Vorgabe);
    Beschriften(Dialog, Annehmen);
    Dialog.resize(760, 480);
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty())
        return {};
    const auto Index = qMax(qsizetype(0), Filter.indexOf(Dialog.selectedNameFilter()));
    return Dateiwahl{Dialog.selectedFiles().constFirst(), static_cast<int>(Index) + 1};
}

} // namespace

QString BoxText(const QString& Text) {
    QString Ergebnis = Text;
    Ergebnis.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    return Ergebnis;
}

QString EndungErgaenzt(const QString& Pfad, const QString& Muster) {
    static const QRegularExpression Endung(QStringLiteral("\\.[A-Za-z][A-Za-z0-9]{1,4}$"));
    const qsizetype Punkt = Muster.lastIndexOf(u'.');
    if (Punkt < 0 || Muster.endsWith(u'*') || Pfad.contains(Endung))
        return Pfad;
    return Pfad + Muster.mid(Punkt);
}

QString FilterText(const Dateifilter& Filter) {
    const QString Klammer = QStringLiteral("(%1)").arg(Filter.Muster);
    return Filter.Name.endsWith(Klammer) ? Filter.Name : Filter.Name + u' ' + Klammer;
}

Antwort Fenstermeldungen::Zeigen(const Meldungstext& Meldung) {
    QMessageBox Kasten(Besitzer());
    Einrichten(Kasten, Meldung.Text, Meldung.Titel, Meldung.Bild);
    const QList<Knopf> Liste = KnopfListe(Meldung.Auswahl);
    QHash<QAbstractButton*, Antwort> Antworten;
    for (const Knopf& Einer : Liste) {
        QPushButton* Taste = Kasten.addButton(QString::fromUtf8(Einer.Text), Einer.Platz);
        Taste->setObjectName(QString::fromUtf8(Einer.Name));
        Taste->setShortcut(QKeySequence(QString::fromUtf8(Einer.Taste)));
        Antworten.insert(Taste, Einer.Bedeutung);
        if (Antworten.size() == 1)
            Kasten.setDefaultButton(Taste);
        Kasten.setEscapeButton(Taste);
    }
    Kasten.exec();
    return Antworten.value(Kasten.clickedButton(), Liste.last().Bedeutung);
}

int Fenstermeldungen::Waehlen(const Auswahlfrage& Frage) {
    QMessageBox Kasten(Besitzer());
    Einrichten(Kasten, Frage.Text, Frage.Titel, Symbol::Frage);
    QList<QAbstractButton*> Tasten;
    for (const QString& Text : Frage.Knoepfe) {
        QPushButton* Taste = Kasten.addButton(Text, QMessageBox::ActionRole);
        Taste->setObjectName(QStringLiteral("btWahl_%1").arg(Tasten.size()));
        if (Tasten.size() == Frage.Vorgabe)
            Kasten.setDefaultButton(Taste);
        Kasten.setEscapeButton(Taste);
        Tasten.append(Taste);
    }
    Kasten.exec();
    const auto Gewaehlt = Tasten.indexOf(Kasten.clickedButton());
    return static_cast<int>(Gewaehlt < 0 ? Tasten.size() - 1 : Gewaehlt);
}

std::optional<Dateiwahl> Fenstermeldungen::Oeffnen(const Dateiwunsch& Wunsch) {
    QFileDialog Dialog(Besitzer());
    Dialog.setAcceptMode(QFileDialog::AcceptOpen);
    Dialog.setFileMode(QFileDialog::ExistingFile);
    return DateiWaehlen(Dialog, Wunsch, QStringLiteral("Ö&ffnen"));
}

std::optional<Dateiwahl> Fenstermeldungen::Speichern(const Dateiwunsch& Wunsch) {
    QFileDialog Dialog(Besitzer());
    // The callers ask about existing files in their own words, and two filters may have the same pattern:
    // only Qt's own dialog keeps to both.
    Dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    Dialog.setAcceptMode(QFileDialog::AcceptSave);
    Dialog.setFileMode(QFileDialog::AnyFile);
    auto Wahl = DateiWaehlen(Dialog, Wunsch, QStringLiteral("&Speichern"));
    if (Wahl && !Wunsch.Filter.isEmpty())
        Wahl->Pfad = EndungErgaenzt(Wahl->Pfad, Wunsch.Filter.at(Wahl->FilterIndex - 1).Muster);
    return Wahl;
}
