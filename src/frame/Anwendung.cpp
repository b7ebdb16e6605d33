#include "frame/Anwendung.h"

#include "controls/Sinnbilder.h"
#include "core/Fehlerfang.h"
#include "core/Zahlen.h"

#include <QTranslator>

Anwendung::Anwendung(int& Anzahl, char** Argumente)
    : QApplication(Anzahl, Argumente) {
    setApplicationName(QStringLiteral("Tafelquell"));
    setApplicationVersion(QStringLiteral(TAFELQUELL_VERSION));
    setDesktopFileName(QStringLiteral("de.tafelquell.Tafelquell"));
    setWindowIcon(Programmsinnbild());
    QLocale::setDefault(SystemSprache());

    auto* Deutsch = new QTranslator(this);
    if (Deutsch->load(QStringLiteral(":/uebersetzung/qtbase_de.qm")))
        installTranslator(Deutsch);
}

bool Anwendung::notify(QObject* Empfaenger, QEvent* Ereignis) {
    try {
        return QApplication::notify(Empfaenger, Ereignis);
    } catch (const std::exception& Fehler) {
        // The event is lost, nothing else: exceptions must not pass through the event loop.
        FehlerBerichten(Fehler);
    }
    return true;
}

#include "moc_Anwendung.cpp"
