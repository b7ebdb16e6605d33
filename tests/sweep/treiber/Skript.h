#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// One line of a script: a command and its arguments.
struct Befehl {
    int Zeile = 0;
    QString Name;
    QStringList Argumente;
};

/// Splits a script. Arguments are separated by blanks; "..." holds blanks, with \n, \t, \" and \\ in it.
/// Empty lines and lines that begin with # are none. Nothing, and *Grund, if a text is not closed.
std::optional<QList<Befehl>> SkriptLesen(const QString& Text, QString* Grund);
