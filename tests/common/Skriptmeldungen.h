#pragma once

#include "core/Meldungen.h"

#include <QList>

/// The scripted boxes of the tests: a queue of what must be asked, with the answer. A box that was not
/// expected, or whose text does not begin as expected, is a failure of the test; what is left over is one too
/// (Testwelt::Aufraeumen).
class Skriptmeldungen : public Meldungsdienst {
  public:
    void ErwarteMeldung(const QString& Text);                ///< box with OK
    void ErwarteFrage(const QString& Text, Antwort Gegeben); ///< question with its answer
    void ErwarteAuswahl(const QString& Text, int Index);
    void ErwarteOeffnen(const QString& Titel, const std::optional<Dateiwahl>& Wahl);
    void ErwarteSpeichern(const QString& Titel, const std::optional<Dateiwahl>& Wahl);

    bool AllesGefragt() const { return Erwartet.isEmpty(); }
    QStringList Offen() const;
    void Vergessen();
    QList<Meldungstext> Gezeigt; ///< every box with all its parts, in order
    QList<Dateiwunsch> Wuensche; ///< every file dialog

    Antwort Zeigen(const Meldungstext& Meldung) override;
    int Waehlen(const Auswahlfrage& Frage) override;
    std::optional<Dateiwahl> Oeffnen(const Dateiwunsch& Wunsch) override;
    std::optional<Dateiwahl> Speichern(const Dateiwunsch& Wunsch) override;

  private:
    struct Schritt {
        enum class Art { Meldung, Frage, Auswahl, Oeffnen, Speichern } Was;
        QString Text;
        Antwort Gegeben = Antwort::Ok;
        int Index = 0;
        std::optional<Dateiwahl> Wahl;
    };
    std::optional<Schritt> Naechster(Schritt::Art Was, const QString& Text);
    QList<Schritt> Erwartet;
};
