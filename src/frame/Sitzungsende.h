#pragma once

#include <QObject>

class frmMain;
class QSessionManager;

/// Guards the end from outside: the desktop ends the session, or the process gets SIGTERM, SIGHUP or SIGINT.
/// Where no box is allowed, unsaved changes become a rescue copy that the next start offers.
class Sitzungsende : public QObject {
    Q_OBJECT

  public:
    explicit Sitzungsende(frmMain& Hauptfenster);
    ~Sitzungsende() override;

  private:
    void SitzungEndet(QSessionManager& Verwaltung);
    void SignalAngekommen();
    void OhneFrageSichern();

    frmMain& Fenster;
    int Ausgang = -1; ///< end of the socket pair that the event loop reads
};
