#include "controls/EingabeFeld.h"

#include "controls/Gitter.h"
#include "controls/Zellfarben.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool BeginntEingabe(const QKeyEvent& Taste) {
    if (Taste.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    return !Taste.text().isEmpty() && Taste.text().front().isPrint();
}

} // namespace

EingabeFeld::EingabeFeld(Gitter* Eigner)
    : Textfeld(Eigner)
    , Tabelle(Eigner) {
    setFrame(false);
    setTextMargins(1, 0, 1, 0);
    hide();
    Tabelle->installEventFilter(this);
    connect(Tabelle, &Gitter::LageGeaendert, this, &EingabeFeld::Anlegen);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!Still)
            Q_EMIT Geaendert();
    });
}

void EingabeFeld::Zeigen(const QString& Text, QColor Schriftfarbe) {
    Still = true;
    setText(Text); // also when equal: what was typed for another cell is not undone here
    Still = false;
    FarbeSetzen(Schriftfarbe);
    Anlegen();
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
}

void EingabeFeld::Verbergen() {
    OhneVerlassen();
    if (hasFocus())
        Tabelle->setFocus(Qt::OtherFocusReason);
    hide();
}

void EingabeFeld::TextSetzen(const QString& Text) {
    if (Text == text())
        return;
    Still = true;
    setText(Text);
    Still = false;
}

void EingabeFeld::setTastenregel(std::function<bool(QKeyEvent*)> Regel) {
    Tastenregel = std::move(Regel);
}

bool EingabeFeld::event(QEvent* Ereignis) {
    // Here and not in keyPressEvent: Tab never gets that far.
    if (Ereignis->type() == QEvent::KeyPress && Tastenregel) {
        auto* Taste = static_cast<QKeyEvent*>(Ereignis);
        if (Tastenregel(Taste)) {
            Taste->accept();
            return true;
        }
    }
    return Textfeld::event(Ereignis);
}

/// A character typed on the grid itself belongs into the box of the current cell.
bool EingabeFeld::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    if (Objekt == Tabelle && Ereignis->type() == QEvent::KeyPress &&
        BeginntEingabe(*static_cast<QKeyEvent*>(Ereignis))) {
        if (!isVisible())
            Tabelle->Wiederbetreten();
        if (isVisible()) {
            setFocus(Qt::OtherFocusReason);
            QCoreApplication::sendEvent(this, Ereignis);
            return true;
        }
    }
    return Textfeld::eventFilter(Objekt, Ereignis);
}

void EingabeFeld::mouseDoubleClickEvent(QMouseEvent* Ereignis) {
    Textfeld::mouseDoubleClickEvent(Ereignis);
    Q_EMIT Doppelgeklickt();
}

void EingabeFeld::changeEvent(QEvent* Ereignis) {
    Textfeld::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::ApplicationPaletteChange)
        FarbeSetzen(Farbe);
}

void EingabeFeld::FarbeSetzen(const QColor& Schriftfarbe) {
    Farbe = Schriftfarbe;
    QPalette Eigene = Tabelle->palette();
    const Zellfarben Paar = ZellfarbenFuer(Farbe.isValid() ? Farbe.rgb() : 0, 0, Eigene, /*Kopf*/ false);
    Eigene.setColor(QPalette::Text, QColor(Paar.Text));
    setPalette(Eigene);
}

/// Lies over the current cell, inside its lines, and shows only what the scrolled cell shows.
void EingabeFeld::Anlegen() {
    const QRect Zelle = Tabelle->CellRect(Tabelle->Row(), Tabelle->Col());
    const QRect Sichtbar = Tabelle->SichtbarerTeil(Tabelle->Row(), Tabelle->Col());
    if (Zelle.isEmpty() || Sichtbar.isEmpty()) {
        // Out of sight but not hidden: it keeps the focus and what is typed.
        move(-2 * width() - 100, -2 * height() - 100);
        return;
    }
    setGeometry(Zelle);
    if (Sichtbar == Zelle)
        clearMask();
    else
        setMask(Sichtbar.translated(-Zelle.topLeft()));
}
