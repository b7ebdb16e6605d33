#include "Hauptfenster.h"

#include "controls/Ansicht.h"
#include "core/Einstellungen.h"
#include "core/Orte.h"
#include "frame/Ansichten.h"

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
    QTRY_VERIFY(AlleAnsichtenDa());
}

bool Hauptfenster::AlleAnsichtenDa() const {
    for (int Nummer = 0; Nummer < AnzahlAnsichten; ++Nummer)
        if (!Kind<Ansicht>(qPrintable(QStringLiteral("picAnsicht_%1").arg(Nummer))))
            return false;
    return true;
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
