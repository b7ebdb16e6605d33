#pragma once

#include "treiber/Skript.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Works the program by a script, one step at a time, from inside its event loop: boxes and dialogs that a
/// step opens are answered by the steps that follow.
class Treiber : public QObject {
    Q_OBJECT

  public:
    Treiber(const QList<Befehl>& Skript, const QString& Protokollpfad, int FristMs);

  private:
    enum class Stand { Fertig, Wartend, Falsch };
    using Handgriff = Stand (Treiber::*)(const QStringList&);
    struct Regel {
        const char* Name;
        qsizetype Argumente;
        Handgriff Ausfuehren;
        bool BeiKasten; ///< may run while a message box or a file dialog is open
    };
    static const Regel Regeln[];
    static const Regel* RegelFuer(const Befehl& Einer);

    void Takt();
    bool KastenBeantworten();
    Stand Schritt(const Befehl& Einer);
    bool FensterGehtNoch() const;
    void Beantworten(QWidget* Fenster, const std::function<void()>& Tat);
    void Spaeter(const std::function<void()>& Tat);
    bool Aktiviert(const QWidget* Ziel) const;
    Stand AnWidget(const QString& Name, const std::function<void(QWidget*)>& Tat);
    void Melden(const QString& Art, const QString& Text);
    [[noreturn]] void Aufgeben(const QString& Grund);

    Stand Warte(const QStringList& Worte);
    Stand WarteMs(const QStringList& Worte);
    Stand Aktion(const QStringList& Worte);
    Stand Klick(const QStringList& Worte);
    Stand Text(const QStringList& Worte);
    Stand Taste(const QStringList& Worte);
    Stand Wahl(const QStringList& Worte);
    Stand Reiter(const QStringList& Worte);
    Stand Zelle(const QStringList& Worte);
    Stand Knopf(const QStringList& Worte);
    Stand Datei(const QStringList& Worte);
    Stand Antworten(const QStringList& Worte);
    Stand Lies(const QStringList& Worte);
    Stand Gitter(const QStringList& Worte);
    Stand Bild(const QStringList& Worte);
    Stand Melde(const QStringList& Worte);

    QList<Befehl> Skript;
    qsizetype Naechster = 0;
    int Unbegonnen = 0;              ///< actions that are queued and have not yet started
    QPointer<QWidget> Beantwortetes; ///< the last box that was answered
    int Stufe = 0;                   ///< depth of event loops when that was
    int Frist;
    QStringList Standantworten;
    QElapsedTimer Schrittzeit;
    QTimer Uhrwerk;
    QFile Protokoll;
};
