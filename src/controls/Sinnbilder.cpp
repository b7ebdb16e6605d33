#include "controls/Sinnbilder.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QtMath>

#include <algorithm>
#include <array>

namespace {

/// Each picture is there for single, double and triple scale.
constexpr int Stufen = 3;

/// With the format named, Qt's own reader takes it. A file name alone would first load every plug-in that
/// reads pictures, which costs the start more than all of ours together.
QPixmap Lesen(const QString& Name, int Stufe) {
    const QString Zusatz = Stufe == 1 ? QString() : QStringLiteral("@%1x").arg(Stufe);
    QFile Datei(QStringLiteral(":/symbole/%1%2.png").arg(Name, Zusatz));
    QImageReader Leser(&Datei, "png");
    Leser.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(Leser.read());
}

/// The pictures of one icon, each read when it is first wanted.
class Sinnbildmaschine : public QIconEngine {
  public:
    Sinnbildmaschine(const QString& Bildname, int Seite)
        : Name(Bildname)
        , Kante(Seite) {}

    QIconEngine* clone() const override { return new Sinnbildmaschine(*this); }
    QString iconName() override { return Name; }
    /// Those of the screens at hand: window managers are given every one of these, read or not.
    QList<QSize> availableSizes(QIcon::Mode /*Art*/, QIcon::State /*Zustand*/) override {
        QList<QSize> Groessen;
        const int Hoechste = std::clamp(qCeil(qGuiApp->devicePixelRatio()), 1, Stufen);
        for (int Stufe = 1; Stufe <= Hoechste; ++Stufe)
            Groessen.append(Groesse(Stufe));
        return Groessen;
    }
    /// Not more than there is: a picture is made smaller, never larger.
    QSize actualSize(const QSize& Gewuenscht, QIcon::Mode /*Art*/, QIcon::State /*Zustand*/) override {
        return Groesse(1).scaled(Gewuenscht.boundedTo(Groesse(Stufen)), Qt::KeepAspectRatio);
    }
    QPixmap pixmap(const QSize& Gewuenscht, QIcon::Mode Art, QIcon::State Zustand) override {
        const QSize Wirklich = actualSize(Gewuenscht, Art, Zustand);
        QPixmap Eines = Passendes(Wirklich.width());
        if (Eines.size() != Wirklich)
            Eines = Eines.scaled(Wirklich, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (Art == QIcon::Normal)
            return Eines;
        QStyleOption Hell;
        Hell.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(Art, Eines, &Hell);
    }
    QPixmap scaledPixmap(const QSize& InPunkten, QIcon::Mode Art, QIcon::State Zustand,
                         qreal /*Massstab*/) override {
        return pixmap(InPunkten, Art, Zustand);
    }
    void paint(QPainter* Maler, const QRect& Platz, QIcon::Mode Art, QIcon::State Zustand) override {
        const qreal Massstab = Maler->device()->devicePixelRatio();
        QPixmap Eines = pixmap((QSizeF(Platz.size()) * Massstab).toSize(), Art, Zustand);
        Eines.setDevicePixelRatio(Massstab);
        QRectF Ort(QPointF(), Eines.deviceIndependentSize());
        Ort.moveCenter(QRectF(Platz).center());
        Maler->drawPixmap(Ort.topLeft(), Eines);
    }

  private:
    QSize Groesse(int Stufe) const { return QSize(Kante, Kante) * Stufe; }
    /// The smallest that need not be enlarged.
    const QPixmap& Passendes(int Breite) {
        const int Stufe = std::clamp((Breite + Kante - 1) / Kante, 1, Stufen);
        QPixmap& Eines = Bilder.at(static_cast<std::size_t>(Stufe - 1));
        if (Eines.isNull())
            Eines = Lesen(Name, Stufe);
        return Eines;
    }

    QString Name;
    int Kante; ///< of the picture in single scale, in pixels
    std::array<QPixmap, Stufen> Bilder;
};

} // namespace

QIcon Sinnbild(const QString& Name) {
    return QIcon(new Sinnbildmaschine(Name, 24));
}

QIcon Programmsinnbild() {
    return QIcon(new Sinnbildmaschine(QStringLiteral("tafelquell"), 96));
}
