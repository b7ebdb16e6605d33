#pragma once

#include <QStringList>

class QAbstractButton;
class QAction;
class QFileDialog;
class QMessageBox;
class QWidget;

// What a user can do to a window, by the names of its parts.

QWidget* Finden(const QString& Name);       ///< visible widget of that objectName; nullptr
QAction* AktionFinden(const QString& Name); ///< entry of that objectName; nullptr
QMessageBox* OffenerKasten();               ///< message box on top; nullptr
QFileDialog* OffenerDateidialog();          ///< file dialog on top; nullptr

/// The button with this caption (without access key), if it can be pressed; nullptr.
QAbstractButton* KnopfFinden(const QWidget* Fenster, const QString& Aufschrift);
void DateiEintragen(QFileDialog* Dialog, const QString& Pfad);
void Tippen(QWidget* Ziel, const QString& Text);
void TasteDruecken(QWidget* Ziel, const QString& Tasten); ///< "Ctrl+S", "Return", "F2"
bool EintragWaehlen(QWidget* Auswahl, const QString& Text);
/// All rows of a grid, its columns separated by tabs.
QStringList GitterZeilen(QWidget* Gitter);
QString EigenschaftText(QWidget* Ziel, const QString& Eigenschaft);
