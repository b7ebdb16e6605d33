#pragma once

#include "core/Meldungen.h"

#include <QObject>
#include <QRandomGenerator>
#include <QStringList>

class Gitter;
class QDialog;
class frmMain;

/// A user who does anything: changes tabs, chooses, types, toggles, creates and deletes, leaves a cell by any
/// key or not at all, and answers every box and dialog. The same seed does the same.
class Zufallsbediener : public QObject, public Meldungsdienst {
    Q_OBJECT

  public:
    Zufallsbediener(frmMain& Wo, quint32 Saat);
    ~Zufallsbediener() override;

    void Schritt();
    QStringList Verlauf; ///< what was done
    QStringList Fehler;  ///< boxes that tell of a failure

    // Meldungsdienst
    Antwort Zeigen(const Meldungstext& Meldung) override;
    int Waehlen(const Auswahlfrage& Frage) override;
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& Wunsch) override;
    std::optional<Dateiwahl> Speichern(const Dateiwunsch& Wunsch) override;

  private:
    int Wahl(int Anzahl) { return static_cast<int>(Zufall.bounded(Anzahl)); }
    QString Text();
    Gitter* Tabelle() const; ///< of the view on top
    int Reiter() const;
    void ReiterWechseln();
    void Auswaehlen();
    void JahrWechseln();
    void ZelleBearbeiten();
    void ZelleVerlassen();
    void FeldBearbeiten();
    void KnopfDruecken();
    void Ticken();
    void Tippen(const QString& Was);
    void DialogBedienen();

    frmMain& Fenster;
    QRandomGenerator Zufall;
};
