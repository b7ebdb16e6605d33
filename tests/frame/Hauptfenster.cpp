#include "Hauptfenster.h"

#include "core/Einstellungen.h"
#include "core/Orte.h"

#include <QFile>
#include <QTimer>
#include <QtTest>

void Hauptfenster::OrdnerAnlegen() {
    for (const QString& Name : {QStringLiteral("Tafelquell.ini"), QStringLiteral("Formulierungen.txt")})
        QVERIFY(QFile::copy(QStringLiteral(LIEFERDATEN) + u'/' + Name, Programmverzeichnis() + u'/' + Name));
    EinstellungSchreiben(QStringLiteral("ErstesMal"), QStringLiteral("nein"));
}

void Hauptfenster::Starten() {
    Fenster = std::make_unique<frmMain>();
    Fenster->Laden();
    Kind<QTimer>("timTimer")->stop();
    Fenster->show();
    QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
}

QAction* Hauptfenster::Aktion(const char* Name) const {
    return Kind<QAction>(Name);
}

QMenu* Hauptfenster::Menue(const char* Name) const {
    return Kind<QMenu>(Name);
}

QTabWidget* Hauptfenster::Reiter() const {
    return Kind<QTabWidget>("tabAnsicht");
}
