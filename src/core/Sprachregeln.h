#pragma once

#include <QLocale>
#include <QString>

/// What numbers and dates need of the locale, taken out of it once: asking a QLocale for each cell of a grid
/// would cost more than the conversion.
struct Sprachregeln {
    explicit Sprachregeln(const QLocale& Vorbild);

    QLocale Sprache;
    QChar Dezimalzeichen;
    QString Datumsform; ///< for QDate::toString: "dd.MM.yyyy"
    QString Folge;      ///< order of the short date: "dMy", "Mdy", "yMd" ...
};

/// The rules in force.
const Sprachregeln& AktuelleSprachregeln();
