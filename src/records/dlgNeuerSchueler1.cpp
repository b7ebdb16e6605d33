#include "records/dlgNeuerSchueler1.h"

#include "core/Definitionen.h"
#include "records/Schuelereingabe.h"

#include "ui_dlgNeuerSchueler1.h"

#include <QStyleOptionButton>

namespace {

const QString Vor = QStringLiteral("Schüler in die Klasse ");
const QString Luecke = QStringLiteral("                  ");
const QString Nach = QStringLiteral(" aufnehmen");

} // namespace

dlgNeuerSchueler1::dlgNeuerSchueler1(const QStringList& Klassen, QWidget* Eltern)
    : QDialog(Eltern)
    , Form(std::make_unique<Ui::dlgNeuerSchueler1>())
    , EinzigeKlasse(Klassen.value(0))
    , Klassenzahl(Klassen.size()) {
    Form->setupUi(this);
    Eingabe = new Schuelereingabe(this, Form->cbKlasse, Form->txtSchuelername, Form->OKButton);
    Form->rbZSchueler2->setText(Vor + (MitKlassenwahl() ? Luecke : EinzigeKlasse) + Nach);
    Form->cbKlasse->setVisible(MitKlassenwahl());
    if (MitKlassenwahl()) {
        Eingabe->KlassenSetzen(Klassen);
        Form->txtSchuelername->setToolTip(
            QStringLiteral("Nicht vergessen, für den neuen Schüler die richtige Klasse auszuwählen !!"));
    }
    (ZSchuelerArt == 1 ? Form->rbZSchueler1 : Form->rbZSchueler2)->setChecked(true);
    connect(Form->rbZSchueler1, &QRadioButton::clicked, this, [] { ZSchuelerArt = 1; });
    connect(Form->rbZSchueler2, &QRadioButton::clicked, this, [] { ZSchuelerArt = 2; });
    connect(Form->CancelButton, &QPushButton::clicked, this, &dlgNeuerSchueler1::reject);
}

dlgNeuerSchueler1::~dlgNeuerSchueler1() = default;

bool dlgNeuerSchueler1::NurDieseProbe() const {
    return Form->rbZSchueler1->isChecked();
}

QString dlgNeuerSchueler1::Klasse() const {
    return MitKlassenwahl() ? Form->cbKlasse->currentText() : EinzigeKlasse;
}

QString dlgNeuerSchueler1::Name() const {
    return Form->txtSchuelername->text();
}

void dlgNeuerSchueler1::showEvent(QShowEvent* Ereignis) {
    QDialog::showEvent(Ereignis);
    Eingabe->Vorbereiten();
    KlassenwahlPlatzieren();
}

void dlgNeuerSchueler1::resizeEvent(QResizeEvent* Ereignis) {
    QDialog::resizeEvent(Ereignis);
    KlassenwahlPlatzieren();
}

void dlgNeuerSchueler1::changeEvent(QEvent* Ereignis) {
    QDialog::changeEvent(Ereignis);
    if (Ereignis->type() == QEvent::FontChange || Ereignis->type() == QEvent::StyleChange)
        KlassenwahlPlatzieren();
}

/// Lays the list of classes over the gap in the caption of the radio button, as the font measures it.
void dlgNeuerSchueler1::KlassenwahlPlatzieren() {
    QRadioButton* Knopf = Form->rbZSchueler2;
    QStyleOptionButton Option;
    Option.initFrom(Knopf);
    const QRect Text = Knopf->style()->subElementRect(QStyle::SE_RadioButtonContents, &Option, Knopf);
    const QFontMetrics Mass = Knopf->fontMetrics();
    const int Hoehe = Form->cbKlasse->sizeHint().height();
    if (MitKlassenwahl())
        Knopf->setMinimumHeight(Hoehe);
    Form->cbKlasse->setGeometry(Text.left() + Mass.horizontalAdvance(Vor), (Knopf->height() - Hoehe) / 2,
                                Mass.horizontalAdvance(Luecke), Hoehe);
}
