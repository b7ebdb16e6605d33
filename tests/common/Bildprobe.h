#pragma once

#include <QString>
#include <QStringList>

class QPalette;
class QWidget;

/// Stores what the window shows as a picture for a person to look at, in the folder that the environment
/// variable TAFELQUELL_BILDER names; without it, nothing is stored.
void BildSpeichern(QWidget& Fenster, const QString& Name);

/// The visible buttons, boxes and labels of the window that are too small for their text or lie over each
/// other; empty if all can be read.
QStringList Unlesbar(const QWidget& Fenster);

/// A dark palette as desktops have it.
QPalette DunklePalette();
