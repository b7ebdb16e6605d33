#pragma once

#include "common/Testwelt.h"
#include "controls/Gitter.h"
#include "controls/Textfeld.h"
#include "grading/dlgOptions.h"

#include <QAbstractButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>

#include <memory>

/// The options dialog in an empty world with small tables: totals 10 and 40, the same row in all variants.
class Optionenwelt {
  public:
    void Herstellen();
    void Aufraeumen();
    void Oeffnen();

    /// A control of the dialog; a name that is not there is fatal.
    template <class T>
    T* Teil(const char* Name) const {
        T* Gefunden = Dialog->findChild<T*>(QString::fromUtf8(Name));
        if (!Gefunden)
            qFatal("no control %s", Name);
        return Gefunden;
    }
    Gitter* Tabelle(const char* Name) const { return Teil<Gitter>(Name); }
    QScrollBar* Leiste(const char* Name) const { return Teil<QScrollBar>(Name); }
    Textfeld* Box(const char* Name) const { return Teil<Textfeld>(Name); }

    void Seite(int Nummer) const { Teil<QTabWidget>("tabOptions")->setCurrentIndex(Nummer); }
    void Klick(const char* Knopf) const;
    void Tippen(const char* Name, const QString& Text) const; ///< in place of what stood there
    static QString Zeile(Gitter* Tabelle, int Nummer);        ///< texts of a row, joined by |
    static QString Parameterdatei();                          ///< path

    Testwelt Welt;
    std::unique_ptr<dlgOptions> Dialog;
};
