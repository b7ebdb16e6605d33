#include "treiber/Handgriffe.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

QWidget* Finden(const QString& Name) {
    const QWidgetList Alle = QApplication::allWidgets();
    for (QWidget* Eines : Alle)
        if (Eines->objectName() == Name && Eines->isVisible())
            return Eines;
    return nullptr;
}

QAction* AktionFinden(const QString& Name) {
    const QWidgetList Fenster = QApplication::topLevelWidgets();
    for (QWidget* Eines : Fenster)
        if (auto* Aktion = Eines->findChild<QAction*>(Name))
            return Aktion;
    return nullptr;
}

QMessageBox* OffenerKasten() {
    auto* Kasten = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    return Kasten && Kasten->isVisible() ? Kasten : nullptr;
}

QFileDialog* OffenerDateidialog() {
    auto* Dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    return Dialog && Dialog->isVisible() ? Dialog : nullptr;
}

QAbstractButton* KnopfFinden(const QWidget* Fenster, const QString& Aufschrift) {
    const auto Knoepfe = Fenster->findChildren<QAbstractButton*>();
    for (QAbstractButton* Einer : Knoepfe)
        if (Einer->text().remove(u'&') == Aufschrift && Einer->isEnabled())
            return Einer;
    return nullptr;
}

void DateiEintragen(QFileDialog* Dialog, const QString& Pfad) {
    if (auto* Zeile = Dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        Zeile->setText(Pfad);
    QMetaObject::invokeMethod(Dialog, "accept");
}

void Tippen(QWidget* Ziel, const QString& Text) {
    Ziel->setFocus(Qt::OtherFocusReason);
    if (auto* Zeile = qobject_cast<QLineEdit*>(Ziel))
        Zeile->selectAll();
    QTest::keyClicks(Ziel, Text);
}

void TasteDruecken(QWidget* Ziel, const QString& Tasten) {
    const QKeySequence Folge(Tasten);
    for (int i = 0; i < Folge.count(); ++i)
        QTest::keyClick(Ziel, Folge[static_cast<uint>(i)].key(),
                        Folge[static_cast<uint>(i)].keyboardModifiers());
}

bool EintragWaehlen(QWidget* Auswahl, const QString& Text) {
    auto* Liste = qobject_cast<QComboBox*>(Auswahl);
    const int Index = Liste ? Liste->findText(Text) : -1;
    if (Index < 0)
        return false;
    Liste->setFocus(Qt::OtherFocusReason);
    Liste->setCurrentIndex(Index);
    QMetaObject::invokeMethod(Liste, "activated", Q_ARG(int, Index));
    return true;
}

QStringList GitterZeilen(QWidget* Gitter) {
    QStringList Zeilen;
    for (int Zeile = 0; Zeile < Gitter->property("Rows").toInt(); ++Zeile) {
        QStringList Felder;
        for (int Spalte = 0; Spalte < Gitter->property("Cols").toInt(); ++Spalte) {
            QString Feld;
            QMetaObject::invokeMethod(Gitter, "TextMatrix", Q_RETURN_ARG(QString, Feld), Q_ARG(int, Zeile),
                                      Q_ARG(int, Spalte));
            Felder.append(Feld);
        }
        Zeilen.append(Felder.join(u'\t'));
    }
    return Zeilen;
}

QString EigenschaftText(QWidget* Ziel, const QString& Eigenschaft) {
    return Ziel->property(Eigenschaft.toUtf8().constData()).toString();
}
