#include "frame/Sitzungsende.h"

#include "assessments/Formulierungen.h"
#include "assessments/Formulierungsdatei.h"
#include "core/Dateifehler.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Dokument.h"
#include "core/Einstellungen.h"
#include "core/Fehlerfang.h"
#include "core/Rettungsablage.h"
#include "core/Rettungsorte.h"
#include "frame/frmMain.h"

#include <QDebug>
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

void RettenUndMelden(const QString& Pfad, const QByteArray& Inhalt) {
    const QString Name = Pfad == Unbenannt ? Unbenannt + QStringLiteral(".txt") : Pfad;
    if (const int Fehler = UngespeichertesRetten(Name, Inhalt))
        qWarning().noquote() << "Keine Rettungskopie von" << Name << "-" << FehlerUrsache(Fehler);
    // Nobody is there to read a box; the session may be the one that takes the copy with it.
    if (const QString Hinweis = AusweichhinweisAbholen(); !Hinweis.isEmpty())
        qWarning().noquote() << Hinweis;
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
    Fenster.ZustandSichern();
    if (DatenGeaendert)
        RettenUndMelden(AutoDatei(), DatenbankBytes());
    if (FormulierungenGeaendert)
        RettenUndMelden(EinstellungLesen(QStringLiteral("Formulierungen"), Unbenannt),
                        FormulierungenBytes(Lernbereiche, AnzLernbereiche));
}

void Sitzungsende::SitzungEndet(QSessionManager& Verwaltung) {
    if (!Verwaltung.allowsInteraction()) {
        Ausfuehren([this] { OhneFrageSichern(); });
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
    char Zeichen = 0;
    [[maybe_unused]] const auto Gelesen = ::read(Ausgang, &Zeichen, 1);
    Ausfuehren([this] { OhneFrageSichern(); });
    QCoreApplication::exit(0);
}

#include "moc_Sitzungsende.cpp"
