#include "frame/Sitzungsende.h"

#include "assessments/Formulierungen.h"
#include "core/Dokument.h"
#include "core/Fehlerfang.h"
#include "frame/frmMain.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int Beendende[] = {SIGTERM, SIGHUP, SIGINT};

int Eingang = -1; ///< end of the socket pair that the signal handler writes

/// Runs in a signal handler: one write and nothing else.
void SignalMelden(int /*Nummer*/) {
    const char Zeichen = 1;
    [[maybe_unused]] const auto Geschrieben = ::write(Eingang, &Zeichen, 1);
}

void SignaleFangen(void (*Behandlung)(int)) {
    struct sigaction Aktion {};
    Aktion.sa_handler = Behandlung;
    Aktion.sa_flags = SA_RESTART;
    sigemptyset(&Aktion.sa_mask);
    for (const int Nummer : Beendende)
        sigaction(Nummer, &Aktion, nullptr);
}

} // namespace

Sitzungsende::Sitzungsende(frmMain& Hauptfenster)
    : Fenster(Hauptfenster) {
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Sitzungsende::SitzungEndet,
            Qt::DirectConnection);
    int Paar[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, Paar) != 0)
        return;
    Eingang = Paar[0];
    Ausgang = Paar[1];
    auto* Leser = new QSocketNotifier(Ausgang, QSocketNotifier::Read, this);
    connect(Leser, &QSocketNotifier::activated, this, &Sitzungsende::SignalAngekommen);
    SignaleFangen(SignalMelden);
}

Sitzungsende::~Sitzungsende() {
    if (Ausgang < 0)
        return;
    SignaleFangen(SIG_DFL);
    ::close(Eingang);
    ::close(Ausgang);
}

void Sitzungsende::OhneFrageSichern() {
    Ausfuehren([this] { Fenster.ZustandSichern(); });
}

void Sitzungsende::SitzungEndet(QSessionManager& Verwaltung) {
    if (!Verwaltung.allowsInteraction()) {
        OhneFrageSichern();
        return;
    }
    Ausfuehren([&Verwaltung] {
        const bool OhneFormulierungen = FormulierungenAbfrage();
        if (!FrageSpeichern() || !OhneFormulierungen)
            Verwaltung.cancel();
    });
    Verwaltung.release();
}

void Sitzungsende::SignalAngekommen() {
    OhneFrageSichern();
    QCoreApplication::exit(0);
}

#include "moc_Sitzungsende.cpp"
