#include "controls/Textfeld.h"

#include "controls/Fokuswaechter.h"
#include "core/Codeseite.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStatusTipEvent>
#include <QToolTip>
#include <QValidator>

namespace {

/// Tabs and line breaks separate fields and lines in the files: each becomes one blank.
QString OhneTrenner(QString Text) {
    static const QRegularExpression Trenner(QStringLiteral("\r\n|[\t\r\n\\x{2028}\\x{2029}]"));
    return Text.replace(Trenner, QStringLiteral(" "));
}

/// Cleans whatever way a text takes into the box. Qt asks a validator after each of them.
class Bereinigung : public QValidator {
  public:
    explicit Bereinigung(Textfeld* Eigner)
        : QValidator(Eigner)
        , Feld(Eigner) {}

    State validate(QString& Text, int& Stelle) const override {
        int Entfallen = 0;
        const QString Sauber = CodeseiteBereinigt(OhneTrenner(Text), &Entfallen);
        if (Sauber == Text)
            return Acceptable;
        Stelle = static_cast<int>(CodeseiteBereinigt(OhneTrenner(Text.left(Stelle))).size());
        Text = Sauber;
        if (Entfallen > 0 && Feld->hasFocus())
            Feld->EntfallenMelden();
        return Acceptable;
    }

  private:
    Textfeld* Feld;
};

/// True for the text of a key that would be dropped; a combining mark may still become part of a letter.
bool Unbrauchbar(const QString& Tastentext) {
    if (Tastentext.isEmpty() || Tastentext.front().isMark() || !Tastentext.front().isPrint())
        return false;
    return CodeseiteBereinigt(Tastentext).isEmpty();
}

} // namespace

Textfeld::Textfeld(QWidget* Eltern)
    : QLineEdit(Eltern)
    , Waechter(new Fokuswaechter(this)) {
    setValidator(new Bereinigung(this));
    connect(Waechter, &Fokuswaechter::Betreten, this, &Textfeld::Betreten);
    connect(Waechter, &Fokuswaechter::Verlassen, this, &Textfeld::Verlassen);
}

void Textfeld::EntfallenMelden() {
    const QString Hinweis = tr("Dieses Zeichen kann in den Dateien nicht gespeichert werden.");
    QStatusTipEvent Ereignis(Hinweis);
    QCoreApplication::sendEvent(this, &Ereignis);
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), Hinweis, this);
}

void Textfeld::keyPressEvent(QKeyEvent* Ereignis) {
    // Stopped before the box, its undo stays; the validator would set the text anew.
    if (Unbrauchbar(Ereignis->text())) {
        EntfallenMelden();
        Ereignis->accept();
        return;
    }
    QLineEdit::keyPressEvent(Ereignis);
}

void Textfeld::OhneVerlassen() {
    Waechter->Vergessen();
}
