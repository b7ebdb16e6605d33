#include "frame/Zwischenablage.h"

#include "grading/Bildfeld.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace {

QClipboard& Ablage() {
    return *QGuiApplication::clipboard();
}

void TextAblegen(const QString& Text) {
    if (!Text.isEmpty())
        Ablage().setText(Text);
}

// What the three commands do with each kind of control.

void InAblage(const QLineEdit& Feld) {
    TextAblegen(Feld.selectedText());
}

void Entfernen(QLineEdit& Feld) {
    if (Feld.hasSelectedText() && !Feld.isReadOnly())
        Feld.del();
}

void AusAblage(QLineEdit& Feld) {
    if (!Feld.isReadOnly()) // Qt itself would paste into it
        Feld.paste();
}

void InAblage(QPlainTextEdit& Feld) {
    Feld.copy();
}

void Entfernen(QPlainTextEdit& Feld) {
    if (!Feld.isReadOnly())
        Feld.textCursor().removeSelectedText();
}

void AusAblage(QPlainTextEdit& Feld) {
    Feld.paste();
}

/// A list that only offers its entries gives its text, but takes none.
void TextSetzen(QComboBox& Feld, const QString& Text) {
    if (Feld.isEditable())
        Feld.setEditText(Text);
}

void InAblage(const QComboBox& Feld) {
    TextAblegen(Feld.currentText());
}

void Entfernen(QComboBox& Feld) {
    TextSetzen(Feld, {});
}

void AusAblage(QComboBox& Feld) {
    TextSetzen(Feld, Ablage().text());
}

void InAblage(const QLabel& Feld) {
    if (const QPixmap Bild = Feld.pixmap(); !Bild.isNull())
        Ablage().setPixmap(Bild);
}

void Entfernen(QLabel& Feld) {
    Feld.clear();
}

void AusAblage(QLabel& Feld) {
    Feld.setPixmap(Ablage().pixmap());
}

void InAblage(Bildfeld& Feld) {
    Ablage().setPixmap(Feld.Bild());
}

void Entfernen(Bildfeld& Feld) {
    Feld.BildZeigen({});
}

void AusAblage(Bildfeld& Feld) {
    Feld.BildZeigen(Ablage().pixmap());
}

void InAblage(const QListWidget& Feld) {
    if (const QListWidgetItem* Eintrag = Feld.currentItem())
        TextAblegen(Eintrag->text());
}

void Entfernen(QListWidget& Feld) {
    delete Feld.takeItem(Feld.currentRow());
}

void AusAblage(QListWidget& Feld) {
    Feld.addItem(Ablage().text());
}

/// Runs Tat on the active control as what it is, tested in this order; on none if it is of no such kind.
template <class Aktion>
void AmAktiven(Aktion Tat) {
    QWidget* Aktiv = QApplication::focusWidget();
    auto* Zeile = qobject_cast<QLineEdit*>(Aktiv);
    auto* Kombination = qobject_cast<QComboBox*>(Zeile ? Zeile->parentWidget() : Aktiv);
    if (Zeile && !Kombination)
        Tat(*Zeile);
    else if (auto* Flaeche = qobject_cast<QPlainTextEdit*>(Aktiv))
        Tat(*Flaeche);
    else if (Kombination)
        Tat(*Kombination);
    else if (auto* Bild = qobject_cast<QLabel*>(Aktiv))
        Tat(*Bild);
    else if (auto* Gemaltes = qobject_cast<Bildfeld*>(Aktiv))
        Tat(*Gemaltes);
    else if (auto* Liste = qobject_cast<QListWidget*>(Aktiv))
        Tat(*Liste);
}

bool IstAblagetaste(QKeyCombination Taste) {
    return Taste == (Qt::CTRL | Qt::Key_X) || Taste == (Qt::CTRL | Qt::Key_C) ||
           Taste == (Qt::CTRL | Qt::Key_V);
}

} // namespace

void Kopieren() {
    Ablage().clear();
    AmAktiven([](auto& Feld) { InAblage(Feld); });
}

void Ausschneiden() {
    Kopieren();
    AmAktiven([](auto& Feld) { Entfernen(Feld); });
}

void Einfuegen() {
    AmAktiven([](auto& Feld) { AusAblage(Feld); });
}

Zwischenablagewaechter::Zwischenablagewaechter(QWidget* Fenster)
    : QObject(Fenster) {
    connect(qApp, &QApplication::focusChanged, this, &Zwischenablagewaechter::FokusGewechselt);
}

void Zwischenablagewaechter::FokusGewechselt(QWidget* Alt, QWidget* Neu) {
    if (Alt)
        Alt->removeEventFilter(this);
    if (!Neu || Neu->window() != parent())
        return;
    Neu->installEventFilter(this);
    if (Verlassenes && Verlassenes == Neu)
        Verlassenes->setSelection(Anfang, Laenge);
    if (!qobject_cast<QMenuBar*>(Neu))
        Verlassenes = nullptr;
}

bool Zwischenablagewaechter::eventFilter(QObject* Ziel, QEvent* Ereignis) {
    if (Ereignis->type() == QEvent::ShortcutOverride &&
        IstAblagetaste(static_cast<QKeyEvent*>(Ereignis)->keyCombination())) {
        Ereignis->ignore();
        return true;
    }
    if (Ereignis->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(Ereignis)->reason() == Qt::MenuBarFocusReason) {
        if (auto* Feld = qobject_cast<QLineEdit*>(Ziel))
            AuswahlMerken(Feld);
    }
    return QObject::eventFilter(Ziel, Ereignis);
}

void Zwischenablagewaechter::AuswahlMerken(QLineEdit* Feld) {
    Verlassenes = Feld->hasSelectedText() ? Feld : nullptr;
    if (Verlassenes) {
        Anfang = Feld->selectionStart();
        Laenge = Feld->selectionLength();
    }
}

#include "moc_Zwischenablage.cpp"
