#include "assessments/Smileyleiste.h"

#include "assessments/Formulierungsspeicher.h"
#include "controls/Sinnbilder.h"

#include <QEvent>
#include <QFrame>
#include <QToolButton>

namespace {

constexpr int Kante = 24; ///< of a smiley's button
constexpr int Abstand = 2;
constexpr const char* Bilder[AnzMarken] = {"positiv", "neutral", "negativ"};

int Links(int Nummer) {
    return Abstand + Nummer * (Kante + Abstand);
}

} // namespace

Smileyleiste::Smileyleiste(QWidget* Eltern)
    : QWidget(Eltern)
    , Rahmen(new QFrame(this)) {
    setFixedSize(Links(AnzMarken), Kante + 2 * Abstand);
    for (int Nummer = 0; Nummer < AnzMarken; ++Nummer)
        SmileyBauen(Nummer);
    Rahmen->setObjectName(QStringLiteral("spSmileySelect"));
    Rahmen->setFrameStyle(QFrame::Box | QFrame::Plain);
    Rahmen->setLineWidth(2);
    Rahmen->setAttribute(Qt::WA_TransparentForMouseEvents);
    Rahmen->raise();
    Auswaehlen(0);
}

QToolButton* Smileyleiste::SmileyBauen(int Nummer) {
    auto* Knopf = new QToolButton(this);
    Knopf->setObjectName(QStringLiteral("picSmiley_%1").arg(Nummer));
    Knopf->setIcon(Sinnbild(QLatin1String(Bilder[Nummer])));
    Knopf->setToolTip(QString::fromUtf8(Marke(Nummer).Beschriftung));
    Knopf->setAccessibleName(QString::fromUtf8(Marke(Nummer).Beschriftung));
    Knopf->setAutoRaise(true);
    Knopf->setFocusPolicy(Qt::TabFocus);
    Knopf->setGeometry(Links(Nummer), Abstand, Kante, Kante);
    Knopf->installEventFilter(this);
    connect(Knopf, &QToolButton::clicked, this, [this, Nummer] { Q_EMIT Geklickt(Nummer); });
    return Knopf;
}

void Smileyleiste::Auswaehlen(int Nummer) {
    Rahmen->setGeometry(Links(Nummer) - Abstand, 0, Kante + 2 * Abstand, Kante + 2 * Abstand);
}

bool Smileyleiste::HatFokus() const {
    const auto Knoepfe = findChildren<QToolButton*>();
    return std::any_of(Knoepfe.begin(), Knoepfe.end(),
                       [](const QWidget* Knopf) { return Knopf->hasFocus(); });
}

bool Smileyleiste::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    if (Ereignis->type() == QEvent::FocusOut)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (!HatFokus())
                    Q_EMIT FokusVerloren();
            },
            Qt::QueuedConnection);
    return QWidget::eventFilter(Objekt, Ereignis);
}
