#include "controls/Textfeld.h"

#include "controls/Eingabereinigung.h"
#include "controls/Fokuswaechter.h"

#include <QKeyEvent>
#include <QValidator>

namespace {

/// Cleans whatever way a text takes into the box. Qt asks a validator after each of them.
class Bereinigung : public QValidator {
  public:
    explicit Bereinigung(Textfeld* Eigner)
        : QValidator(Eigner)
        , Feld(Eigner) {}

    State validate(QString& Text, int& Stelle) const override {
        int Entfallen = 0;
        const QString Sauber = EingabeBereinigt(Text, /*Mehrzeilig*/ false, &Entfallen);
        if (Sauber == Text)
            return Acceptable;
        Stelle = static_cast<int>(EingabeBereinigt(Text.left(Stelle), /*Mehrzeilig*/ false).size());
        Text = Sauber;
        if (Entfallen > 0 && Feld->hasFocus())
            EntfallenMelden(Feld);
        return Acceptable;
    }

  private:
    Textfeld* Feld;
};

} // namespace

Textfeld::Textfeld(QWidget* Eltern)
    : QLineEdit(Eltern)
    , Waechter(new Fokuswaechter(this)) {
    setValidator(new Bereinigung(this));
    connect(Waechter, &Fokuswaechter::Betreten, this, &Textfeld::Betreten);
    connect(Waechter, &Fokuswaechter::Verlassen, this, &Textfeld::Verlassen);
}

void Textfeld::keyPressEvent(QKeyEvent* Ereignis) {
    // Stopped before the box, its undo stays; the validator would set the text anew.
    if (TasteUnbrauchbar(Ereignis->text())) {
        EntfallenMelden(this);
        Ereignis->accept();
        return;
    }
    QLineEdit::keyPressEvent(Ereignis);
}

void Textfeld::OhneVerlassen() {
    Waechter->Vergessen();
}
