#pragma once

#include "core/Oberflaeche.h"

#include <QStringList>

/// A main window for tests of procedures: notes what is asked of it, in order, and the title.
class Testoberflaeche : public Oberflaeche {
  public:
    bool IstSichtbar = true;
    QString Titel;
    QStringList Gerufen;

    bool Sichtbar() const override { return IstSichtbar; }
    void FokusNehmen() override { Gerufen.append(QStringLiteral("Fokus")); }
    void TitelSetzen(const QString& Neuer) override { Titel = Neuer; }
    void JahrgangWaehlen() override { Gerufen.append(QStringLiteral("Jahrgang")); }
    void AnsichtAktualisieren() override { Gerufen.append(QStringLiteral("Ansicht")); }
};
