#pragma once

#include "core/Uhr.h"
#include "core/Zahlen.h"

#include <QByteArray>
#include <QDateTime>
#include <QLocale>
#include <QString>

#include <cstdio>
#include <cstdlib>

// What every fuzz target is made of: a fixed clock and locale, and a check that ends the process when it has
// something to say.

#define FUZZZIEL(Pruefung)                                                                                   \
    extern "C" int LLVMFuzzerInitialize(int*, char***) {                                                     \
        UhrStellen(QDateTime(QDate(2003, 10, 12), QTime(10, 30)));                                           \
        SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));                                     \
        return 0;                                                                                            \
    }                                                                                                        \
    extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Daten, std::size_t Anzahl) {                  \
        const QString Befund =                                                                               \
            Pruefung(QByteArray(reinterpret_cast<const char*>(Daten), static_cast<qsizetype>(Anzahl)));      \
        if (!Befund.isEmpty()) {                                                                             \
            std::fprintf(stderr, "%s\n", qPrintable(Befund));                                                \
            std::abort();                                                                                    \
        }                                                                                                    \
        return 0;                                                                                            \
    }
