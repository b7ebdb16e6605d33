#include "assessments/Ziehgut.h"

#include "controls/Zellfarben.h"

#include <QCoreApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <optional>

namespace {

QString Typ(Ziehart Art) {
    return Art == Ziehart::Formulierung ? QStringLiteral("application/x-tafelquell-formulierung")
                                        : QStringLiteral("application/x-tafelquell-lernbereich");
}

std::optional<Ziehart> ArtVon(const QMimeData& Daten) {
    for (const Ziehart Art : {Ziehart::Formulierung, Ziehart::Lernbereich})
        if (IstZiehgut(Daten, Art))
            return Art;
    return {};
}

/// The text in its colour on a slip of paper.
QPixmap Ziehbild(const QWidget& Muster, const QString& Text, const QColor& Grund) {
    constexpr int Breite = 320;
    constexpr int Rand = 5;
    const QFontMetrics Mass = Muster.fontMetrics();
    const QString Kurz = Mass.elidedText(Text, Qt::ElideRight, Breite);
    const QSize Groesse(Mass.horizontalAdvance(Kurz) + 2 * Rand, Mass.height() + 2 * Rand);
    QPixmap Bild(Groesse * Muster.devicePixelRatioF());
    Bild.setDevicePixelRatio(Muster.devicePixelRatioF());
    const Zellfarben Paar =
        ZellfarbenFuer(0, Grund.isValid() ? Grund.rgb() : 0, Muster.palette(), /*Kopf*/ false);
    Bild.fill(QColor(Paar.Grund));
    QPainter Stift(&Bild);
    Stift.setFont(Muster.font());
    Stift.setPen(QColor(Paar.Text));
    Stift.drawText(QRect(QPoint(), Groesse), Qt::AlignCenter, Kurz);
    Stift.drawRect(QRectF(0.5, 0.5, Groesse.width() - 1, Groesse.height() - 1));
    return Bild;
}

} // namespace

std::unique_ptr<QMimeData> ZiehgutPacken(Ziehart Art) {
    auto Daten = std::make_unique<QMimeData>();
    Daten->setData(Typ(Art), QByteArray::number(QCoreApplication::applicationPid()));
    return Daten;
}

bool IstZiehgut(const QMimeData& Daten, Ziehart Art) {
    return Daten.data(Typ(Art)) == QByteArray::number(QCoreApplication::applicationPid());
}

void Ziehen(QWidget* Quelle, Ziehart Art, const QString& Text, QColor Grund) {
    auto* Zug = new QDrag(Quelle);
    Zug->setMimeData(ZiehgutPacken(Art).release());
    Zug->setPixmap(Ziehbild(*Quelle, Text, Grund));
    Zug->setHotSpot(QPoint(-8, -8)); // beside the pointer: what lies under it stays readable
    Zug->exec(Qt::MoveAction);
}

Ziehziel::Ziehziel(QWidget* Feld, Regel Neue)
    : QObject(Feld)
    , Was(std::move(Neue)) {
    Feld->setAcceptDrops(true);
    Feld->installEventFilter(this);
}

bool Ziehziel::eventFilter(QObject* Objekt, QEvent* Ereignis) {
    const auto Typ = Ereignis->type();
    if (Typ == QEvent::DragLeave) {
        Was.Verlassen();
        return false;
    }
    if (Typ != QEvent::DragEnter && Typ != QEvent::DragMove && Typ != QEvent::Drop)
        return QObject::eventFilter(Objekt, Ereignis);
    auto* Zug = static_cast<QDropEvent*>(Ereignis);
    const auto Art = ArtVon(*Zug->mimeData());
    if (!Art)
        return false;
    const QPoint Ort = Zug->position().toPoint();
    const bool Moeglich = Was.Darueber(*Art, Ort);
    if (Typ == QEvent::Drop) {
        Was.Verlassen(); // first: what the drop has to say stays to be read
        if (Moeglich)
            Was.Ablegen(*Art, Ort);
    }
    Zug->setDropAction(Qt::MoveAction);
    // An enter is always taken, or there would be no moves.
    Zug->setAccepted(Moeglich || Typ == QEvent::DragEnter);
    return true;
}
