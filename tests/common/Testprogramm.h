#pragma once

#include <QObject>

/// Registers a test class with the one main of its test program.
bool TestklasseAnmelden(QObject* (*Erzeugen)());

#define TESTKLASSE(Klasse)                                                                                   \
    [[maybe_unused]] static const bool Klasse##Angemeldet =                                                  \
        TestklasseAnmelden([]() -> QObject* { return new Klasse; });
