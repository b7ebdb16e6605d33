#include "controls/EingabeText.h"

#include "controls/Eingabereinigung.h"
#include "controls/Fokuswaechter.h"
#include "controls/Gitter.h"
#include "controls/Zellanker.h"
#include "controls/Zellfarben.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

EingabeText::EingabeText(Gitter* Eigner)
    : QPlainTextEdit(Eigner)
    , Tabelle(Eigner)
    , Anker(new Zellanker(this, Eigner))
    , Waechter(new Fokuswaechter(this)) {
    setFrameStyle(Box | Plain); // shows where one writes, also while the focus is elsewhere
    setLineWidth(1);
    document()->setDocumentMargin(Gitter::UmbruchRand - lineWidth());
    setViewportMargins(
        0, 0, 1, 0); // breaks lines where TextPositionBerechnen does: 2 pixels and a blank from the edge
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    connect(Waechter, &Fokuswaechter::Betreten, this, &EingabeText::Betreten);
    connect(Waechter, &Fokuswaechter::Verlassen, this, &EingabeText::Verlassen);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!Still)
            Q_EMIT Geaendert();
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &EingabeText::MarkeInSicht);
}

void EingabeText::setMehrzeilig(bool Mehrere) {
    Mehrzeilig = Mehrere;
}

QString EingabeText::Text() const {
    // Not toPlainText: it makes blanks of no-break spaces.
    static const QString Zeilenende = QStringLiteral("\r\n");
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, Zeilenende)
        .replace(QChar::LineSeparator, Zeilenende);
}

void EingabeText::Zeigen(const QString& Neuer, QColor Grund) {
    Zellgrund = Grund;
    FarbenSetzen();
    Anker->Anlegen(); // first, so that the text is laid out once and in its width
    Still = true;
    setPlainText(QString(Neuer).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    Still = false;
    moveCursor(QTextCursor::End);
    Anker->Zeigen();
    MarkeInSicht();
}

void EingabeText::Verbergen() {
    Waechter->Vergessen();
    Anker->Verbergen();
}

void EingabeText::Einfuegen(const QString& Neuer) {
    QTextCursor Marke = textCursor();
    Marke.clearSelection();
    Marke.insertText(QString(Neuer).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    setTextCursor(Marke);
}

bool EingabeText::MarkeAmEnde() const {
    return textCursor().atEnd();
}

void EingabeText::MarkeSetzen(int Stelle) {
    QTextCursor Marke = textCursor();
    Marke.setPosition(Stelle);
    setTextCursor(Marke);
}

namespace {

/// Line of a laid out paragraph at this height below its top; none below its last line.
QTextLine ZeileBei(const QTextLayout& Absatz, double Y) {
    for (int i = 0; i < Absatz.lineCount(); ++i)
        if (Y < Absatz.lineAt(i).rect().bottom())
            return Absatz.lineAt(i);
    return {};
}

int WortInZeile(const QString& Absatz, const QTextLine& Zeile, double X, double Leerzeichen) {
    int Ende = Zeile.textStart() + Zeile.textLength();
    while (Ende > Zeile.textStart() && Absatz[Ende - 1] == u' ' && Ende < Absatz.size())
        --Ende;
    if (X > Zeile.cursorToX(Ende) + Leerzeichen)
        return Ende;
    int Stelle = qMin(Ende, Zeile.xToCursor(X, QTextLine::CursorOnCharacter));
    while (Stelle > 0 && Absatz[Stelle - 1] != u' ')
        --Stelle;
    return Stelle;
}

} // namespace

int EingabeText::WortstelleBei(QPoint Ort) const {
    QTextBlock Absatz = firstVisibleBlock();
    QRectF Platz = blockBoundingGeometry(Absatz).translated(contentOffset());
    while (Absatz.isValid()) {
        const QTextLine Zeile = ZeileBei(*Absatz.layout(), Ort.y() - Platz.top());
        if (Zeile.isValid())
            return Absatz.position() + WortInZeile(Absatz.text(), Zeile, Ort.x() - Platz.left(),
                                                   fontMetrics().horizontalAdvance(u' '));
        Absatz = Absatz.next();
        Platz = blockBoundingGeometry(Absatz).translated(contentOffset());
    }
    return document()->characterCount() - 1;
}

void EingabeText::setTastenregel(std::function<bool(QKeyEvent*)> Regel) {
    Tastenregel = std::move(Regel);
}

bool EingabeText::event(QEvent* Ereignis) {
    if (Ereignis->type() == QEvent::KeyPress && Tastenregel &&
        Tastenregel(static_cast<QKeyEvent*>(Ereignis))) {
        Ereignis->accept();
        return true;
    }
    return QPlainTextEdit::event(Ereignis);
}

void EingabeText::changeEvent(QEvent* Ereignis) {
    QPlainTextEdit::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::ApplicationPaletteChange)
        FarbenSetzen();
}

void EingabeText::FarbenSetzen() {
    QPalette Eigene = Tabelle->palette();
    const Zellfarben Paar =
        ZellfarbenFuer(0, Zellgrund.isValid() ? Zellgrund.rgb() : 0, Eigene, /*Kopf*/ false);
    Eigene.setColor(QPalette::Text, QColor(Paar.Text));
    Eigene.setColor(QPalette::Base, QColor(Paar.Grund));
    setPalette(Eigene);
}

QString EingabeText::Bereinigt(const QString& Roher) {
    int Entfallen = 0;
    QString Sauber = EingabeBereinigt(Roher, Mehrzeilig, &Entfallen);
    if (Entfallen > 0)
        EntfallenMelden(this);
    return Sauber;
}

/// A mark typed behind a letter makes one letter with it, or is not taken.
void EingabeText::AkzentSetzen(const QString& Akzent) {
    QTextCursor Davor = textCursor();
    Davor.clearSelection();
    Davor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    const QString Buchstabe = EingabeBereinigt(Davor.selectedText() + Akzent, Mehrzeilig);
    if (Buchstabe.size() == 1 && Buchstabe != Davor.selectedText())
        Davor.insertText(Buchstabe);
    else
        EntfallenMelden(this);
}

void EingabeText::keyPressEvent(QKeyEvent* Ereignis) {
    const QString Zeichen = Ereignis->text();
    const bool Umbruch = Ereignis->key() == Qt::Key_Return || Ereignis->key() == Qt::Key_Enter;
    Ereignis->accept();
    if (Umbruch && !Mehrzeilig)
        return;
    if (!Zeichen.isEmpty() && Zeichen.front().isMark())
        AkzentSetzen(Zeichen);
    else if (TasteUnbrauchbar(Zeichen))
        EntfallenMelden(this);
    else if (Umbruch)
        insertPlainText(QStringLiteral("\n")); // Shift+Return would make a break that is none in the records
    else if (Zeichen.size() > 1)               // of a composing keyboard
        insertPlainText(Bereinigt(Zeichen));
    else
        QPlainTextEdit::keyPressEvent(Ereignis);
}

/// Stays here: the grid below must not take a Delete for its own.
void EingabeText::keyReleaseEvent(QKeyEvent* Ereignis) {
    QPlainTextEdit::keyReleaseEvent(Ereignis);
    Ereignis->accept();
}

void EingabeText::inputMethodEvent(QInputMethodEvent* Ereignis) {
    const QString Fertig = Ereignis->commitString();
    if (Fertig.isEmpty()) {
        QPlainTextEdit::inputMethodEvent(Ereignis);
        return;
    }
    QInputMethodEvent Sauber(Ereignis->preeditString(), Ereignis->attributes());
    Sauber.setCommitString(Bereinigt(Fertig), Ereignis->replacementStart(), Ereignis->replacementLength());
    QPlainTextEdit::inputMethodEvent(&Sauber);
    Ereignis->setAccepted(Sauber.isAccepted());
}

bool EingabeText::canInsertFromMimeData(const QMimeData* Quelle) const {
    return Quelle->hasText();
}

void EingabeText::insertFromMimeData(const QMimeData* Quelle) {
    insertPlainText(Bereinigt(Quelle->text()));
}

/// The box is as high as its text; what is scrolled is the grid.
void EingabeText::wheelEvent(QWheelEvent* Ereignis) {
    QCoreApplication::sendEvent(Tabelle->viewport(), Ereignis);
}

/// A text higher than the grid: the grid follows the caret.
void EingabeText::MarkeInSicht() {
    if (!isVisible() || !hasFocus())
        return;
    const QRect Sichtbar = Tabelle->SichtbarerTeil(Tabelle->Row(), Tabelle->Col());
    const QRect Marke = cursorRect().translated(mapTo(Tabelle, QPoint()));
    QScrollBar* Leiste = Tabelle->verticalScrollBar();
    const QRect Fenster = Tabelle->viewport()->geometry();
    if (Marke.bottom() > Fenster.bottom())
        Leiste->setValue(Leiste->value() + Marke.bottom() - Fenster.bottom());
    else if (!Sichtbar.isEmpty() && Marke.top() < Sichtbar.top())
        Leiste->setValue(Leiste->value() - (Sichtbar.top() - Marke.top()));
}
