#include "controls/Kombinationsfeld.h"

#include "controls/Fokuswaechter.h"
#include "controls/Textfeld.h"
#include "core/Textordnung.h"
#include "core/Zahlen.h"

#include <QAbstractItemView>
#include <QCollator>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <algorithm>

Kombinationsfeld::Kombinationsfeld(QWidget* Eltern)
    : QComboBox(Eltern)
    , Liste(new Eintragsmodell(this)) {
    setModel(Liste);
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus); // the wheel gives no focus
    auto* Waechter = new Fokuswaechter(this);
    connect(Waechter, &Fokuswaechter::Betreten, this, &Kombinationsfeld::Betreten);
    connect(Waechter, &Fokuswaechter::Verlassen, this, &Kombinationsfeld::VerlassenPruefen);
    connect(this, &QComboBox::currentIndexChanged, this, &Kombinationsfeld::IndexGewechselt);
    connect(this, &QComboBox::activated, this, &Kombinationsfeld::VomBenutzerGewaehlt);
}

void Kombinationsfeld::setEditable(bool Bearbeitbar) {
    if (!Bearbeitbar) {
        QComboBox::setEditable(false);
        return;
    }
    if (lineEdit())
        return;
    const QScopedValueRollback<bool> Ruhe(Still, true);
    auto* Feld = new Textfeld(this);
    setLineEdit(Feld);
    setCompleter(nullptr);
    // Qt selects an entry that equals the typed text when the box is left; here only its rule may.
    disconnect(Feld, &QLineEdit::editingFinished, this, nullptr);
    connect(Feld, &QLineEdit::textChanged, this, &Kombinationsfeld::TextGewechselt);
}

void Kombinationsfeld::setSortiert(bool Neu) {
    Sortiert = Neu;
}

void Kombinationsfeld::Leeren() {
    const QScopedValueRollback<bool> Ruhe(Still, true);
    clear();
    if (isEditable())
        clearEditText();
}

std::vector<Listeneintrag> Kombinationsfeld::Geordnet(std::vector<Listeneintrag> Eintraege) const {
    if (!Sortiert)
        return Eintraege;
    const auto Text = [&Eintraege](std::size_t i) -> const QString& { return Eintraege[i].Text; };
    std::vector<Listeneintrag> Neue;
    Neue.reserve(Eintraege.size());
    for (const int Stelle : Textfolge(Eintraege.size(), Text))
        Neue.push_back(std::move(Eintraege[static_cast<std::size_t>(Stelle)]));
    return Neue;
}

void Kombinationsfeld::Fuellen(std::vector<Listeneintrag> Eintraege) {
    const QScopedValueRollback<bool> Ruhe(Still, true);
    Liste->Ersetzen(Geordnet(std::move(Eintraege)));
    // Qt selects the first entry by itself.
    setCurrentIndex(-1);
    if (isEditable())
        clearEditText();
}

int Kombinationsfeld::IndexMitDatum(int Gesuchtes) const {
    const auto Mit = [Gesuchtes](const Listeneintrag& Einer) { return Einer.Datum == Gesuchtes; };
    const auto& Alle = Liste->Alle();
    return static_cast<int>(std::distance(std::find_if(Alle.rbegin(), Alle.rend(), Mit), Alle.rend())) - 1;
}

int Kombinationsfeld::Platz(const QString& Text) const {
    if (!Sortiert)
        return count();
    QCollator Ordnung(SystemSprache());
    Ordnung.setCaseSensitivity(Qt::CaseInsensitive);
    int Von = 0;
    int Bis = count();
    while (Von < Bis) {
        const int Mitte = (Von + Bis) / 2;
        if (Ordnung.compare(itemText(Mitte), Text) <= 0)
            Von = Mitte + 1;
        else
            Bis = Mitte;
    }
    return Von;
}

int Kombinationsfeld::Hinzufuegen(const QString& Text, int Datum) {
    const QScopedValueRollback<bool> Ruhe(Still, true);
    const bool OhneWahl = currentIndex() < 0;
    const int Index = Platz(Text);
    const QString Getippt = isEditable() ? currentText() : QString();
    insertItem(Index, Text, Datum);
    // Qt selects the first entry of an empty list by itself.
    if (OhneWahl && currentIndex() >= 0) {
        setCurrentIndex(-1);
        if (isEditable())
            setEditText(Getippt);
    }
    return Index;
}

int Kombinationsfeld::Datum(int Index) const {
    return itemData(Index).toInt();
}

int Kombinationsfeld::AktDatum() const {
    return Datum(currentIndex());
}

void Kombinationsfeld::setListIndex(int Index) {
    if (Index < 0)
        AuswahlLoesen();
    else
        setCurrentIndex(Index);
}

int Kombinationsfeld::ListIndex() const {
    return currentIndex();
}

/// No selection, but the text and its caret stay.
void Kombinationsfeld::AuswahlLoesen() {
    if (currentIndex() < 0)
        return;
    const QScopedValueRollback<bool> Ruhe(Still, true);
    if (!isEditable()) {
        setCurrentIndex(-1);
        return;
    }
    const QString Text = lineEdit()->text();
    const int Stelle = lineEdit()->cursorPosition();
    setCurrentIndex(-1);
    lineEdit()->setText(Text);
    lineEdit()->setCursorPosition(Stelle);
}

void Kombinationsfeld::TextGewechselt(const QString& Text) {
    if (!Still && currentIndex() >= 0 && Text != itemText(currentIndex()))
        AuswahlLoesen();
}

void Kombinationsfeld::IndexGewechselt(int Index) {
    if (Still || Index < 0)
        return;
    SchonGemeldet = true;
    Q_EMIT Klick();
}

void Kombinationsfeld::VomBenutzerGewaehlt() {
    // The same entry chosen again changes no index.
    if (!std::exchange(SchonGemeldet, false))
        Q_EMIT Klick();
}

void Kombinationsfeld::showPopup() {
    SchonGemeldet = false;
    QComboBox::showPopup();
}

void Kombinationsfeld::VerlassenPruefen() {
    if (!isEditable() || currentIndex() >= 0)
        return;
    if (!currentText().isEmpty())
        Q_EMIT Anlegen(currentText());
    else if (count() > 0)
        setListIndex(0);
}

void Kombinationsfeld::keyPressEvent(QKeyEvent* Ereignis) {
    if (Ereignis->key() != Qt::Key_Return && Ereignis->key() != Qt::Key_Enter) {
        QComboBox::keyPressEvent(Ereignis);
        return;
    }
    Ereignis->accept(); // no default button hears of it
    if (isEditable() && currentIndex() < 0 && !currentText().isEmpty())
        Q_EMIT Anlegen(currentText());
}

void Kombinationsfeld::wheelEvent(QWheelEvent* Ereignis) {
    if (hasFocus())
        QComboBox::wheelEvent(Ereignis);
    else
        Ereignis->ignore();
}
