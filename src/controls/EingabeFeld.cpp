#include "controls/EingabeFeld.h"

#include "controls/Gitter.h"
#include "controls/Zellanker.h"
#include "controls/Zellfarben.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>

EingabeFeld::EingabeFeld(Gitter* Eigner)
    : Textfeld(Eigner)
    , Tabelle(Eigner)
    , Anker(new Zellanker(this, Eigner)) {
    setFrame(false);
    setAttribute(Qt::WA_OpaquePaintEvent); // it fills itself: a key does not repaint the grid below
    setTextMargins(1, 0, 1, 0);
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
    Anker->Zeigen();
}

void EingabeFeld::Verbergen() {
    OhneVerlassen();
    Anker->Verbergen();
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

void EingabeFeld::mouseDoubleClickEvent(QMouseEvent* Ereignis) {
    Textfeld::mouseDoubleClickEvent(Ereignis);
    Q_EMIT Doppelgeklickt();
}

/// The wheel scrolls the grid on the box as beside it.
void EingabeFeld::wheelEvent(QWheelEvent* Ereignis) {
    QCoreApplication::sendEvent(Tabelle->viewport(), Ereignis);
}

void EingabeFeld::changeEvent(QEvent* Ereignis) {
    Textfeld::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::ApplicationPaletteChange)
        FarbeSetzen(Farbe);
}

/// The frame that the current cell of the grid has; the box covers it.
void EingabeFeld::paintEvent(QPaintEvent* Ereignis) {
    Textfeld::paintEvent(Ereignis);
    if (!hasFocus())
        return;
    QPainter Stift(this);
    Stift.setPen(palette().color(QPalette::Highlight));
    Stift.drawRect(rect().adjusted(0, 0, -1, -1));
}

void EingabeFeld::FarbeSetzen(const QColor& Schriftfarbe) {
    Farbe = Schriftfarbe;
    QPalette Eigene = Tabelle->palette();
    const Zellfarben Paar = ZellfarbenFuer(Farbe.isValid() ? Farbe.rgb() : 0, 0, Eigene, /*Kopf*/ false);
    Eigene.setColor(QPalette::Text, QColor(Paar.Text));
    setPalette(Eigene);
}
