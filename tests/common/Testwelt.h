#pragma once

#include "common/Skriptmeldungen.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

/// An empty world for each test: no records, default parameters, settings and all folders in a temporary
/// place, the clock at 12 October 2003, 10:30, German numbers and dates, scripted boxes. Call Herstellen in
/// init() and Aufraeumen in cleanup().
class Testwelt {
  public:
    Testwelt();
    ~Testwelt();

    void Herstellen();
    /// Fails the test if an expected box was never shown; closes windows that are left.
    void Aufraeumen();

    Skriptmeldungen Boxen;

    QString Ordner() const;                  ///< temporary folder of this test
    QString Pfad(const QString& Name) const; ///< a file in it
    QString DateiAnlegen(const QString& Name, const QByteArray& Inhalt) const; ///< returns its path
    static QByteArray DateiInhalt(const QString& Pfad);

  private:
    std::unique_ptr<QTemporaryDir> Temp;
};
