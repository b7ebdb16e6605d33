#include "common/Bildprobe.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPixmap>

namespace {

QList<const QWidget*> Beschriftete(const QWidget& Fenster) {
    QList<const QWidget*> Alle;
    for (const QWidget* Eines : Fenster.findChildren<QWidget*>()) {
        const bool Gemeint = qobject_cast<const QAbstractButton*>(Eines) ||
                             qobject_cast<const QLabel*>(Eines) || qobject_cast<const QComboBox*>(Eines);
        if (Gemeint && Eines->isVisibleTo(&Fenster) && !Eines->objectName().isEmpty() &&
            !Eines->objectName().startsWith(QStringLiteral("qt_")))
            Alle.append(Eines);
    }
    return Alle;
}

bool ZuKlein(const QWidget& Eines) {
    const QSize Bedarf = Eines.hasHeightForWidth()
                             ? QSize(Eines.minimumSizeHint().width(), Eines.heightForWidth(Eines.width()))
                             : Eines.minimumSizeHint();
    return Eines.width() < Bedarf.width() || Eines.height() < Bedarf.height();
}

} // namespace

void BildSpeichern(QWidget& Fenster, const QString& Name) {
    const QString Ordner = qEnvironmentVariable("TAFELQUELL_BILDER");
    if (Ordner.isEmpty() || !QDir().mkpath(Ordner))
        return;
    Fenster.grab().save(QDir(Ordner).filePath(Name + QStringLiteral(".png")));
}

QStringList Unlesbar(const QWidget& Fenster) {
    QStringList Befund;
    const QList<const QWidget*> Alle = Beschriftete(Fenster);
    for (const QWidget* Eines : Alle) {
        const QRect Lage(Eines->mapTo(&Fenster, QPoint()), Eines->size());
        if (ZuKlein(*Eines) || !Fenster.rect().contains(Lage))
            Befund.append(QStringLiteral("abgeschnitten: ") + Eines->objectName());
        for (const QWidget* Anderes : Alle)
            if (Anderes != Eines && Anderes->parentWidget() == Eines->parentWidget() && Anderes < Eines &&
                Anderes->geometry().intersects(Eines->geometry()))
                Befund.append(QStringLiteral("übereinander: ") + Eines->objectName() + u' ' +
                              Anderes->objectName());
    }
    return Befund;
}

QPalette DunklePalette() {
    QPalette Dunkel(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
    Dunkel.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    Dunkel.setColor(QPalette::Text, QColor(0xfc, 0xfc, 0xfc));
    Dunkel.setColor(QPalette::WindowText, QColor(0xfc, 0xfc, 0xfc));
    Dunkel.setColor(QPalette::ButtonText, QColor(0xfc, 0xfc, 0xfc));
    for (const auto Rolle : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        Dunkel.setColor(QPalette::Disabled, Rolle, QColor(0x7f, 0x83, 0x86));
    return Dunkel;
}
