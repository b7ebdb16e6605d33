#pragma once

#include "core/Orte.h"

#include <QByteArray>
#include <QDir>
#include <QStringList>

// What the tests of rescue copies share: two states of a file, the buttons of an offer, what lies in the
// state folder.

inline const QByteArray AlterStand = QByteArrayLiteral("alter Stand");
inline const QByteArray NeuerStand = QByteArrayLiteral("neuer Stand, laenger als der alte");

inline constexpr int Erster = 0;
inline constexpr int Zweiter = 1;
inline constexpr int Spaeter = 2;

inline QStringList Rettungsdateien() {
    return QDir(Zustandsverzeichnis()).entryList(QDir::Files, QDir::Name);
}
