#include "Beurteilungsfenster.h"

#include "common/Testprogramm.h"
#include "core/Definitionen.h"

#include <QGuiApplication>
#include <QProcess>
#include <QtTest>

/// Drag and drop by the real pointer of a virtual X screen; tests/program/ziehen.sh runs it there. On the
/// offscreen platform there is no pointer, and the events of ZiehenTest take its place.
class ZeigerTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    std::unique_ptr<Beurteilungsfenster> F;

    static QString Bewegung(QPoint Wohin) {
        return QStringLiteral("xdotool mousemove %1 %2; sleep 0.1;").arg(Wohin.x()).arg(Wohin.y());
    }
    /// Presses at one place of the screen, moves in steps to another and releases there.
    static void Ziehen(QProcess& Zeiger, QPoint Von, QPoint Nach) {
        QString Befehle = Bewegung(Von) + QStringLiteral("xdotool mousedown 1; sleep 0.1;");
        for (int Schritt = 1; Schritt <= 8; ++Schritt)
            Befehle += Bewegung(Von + (Nach - Von) * Schritt / 8);
        Befehle += Bewegung(Nach + QPoint(1, 0)) + QStringLiteral("sleep 0.2; xdotool mouseup 1");
        Zeiger.start(QStringLiteral("sh"), {QStringLiteral("-c"), Befehle});
    }

    static bool MitZeiger() { return QGuiApplication::platformName() == QStringLiteral("xcb"); }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        F = std::make_unique<Beurteilungsfenster>();
        F->KlickAufSchueler(2);
    }
    void cleanup() {
        F.reset();
        Welt.Aufraeumen();
    }

    void APhraseIsCarriedIntoTheAssessment() {
        if (!MitZeiger())
            QSKIP("no pointer on this platform");
        F->Text().setPlainText(QStringLiteral("Anna kann rechnen."));
        QTextCursor Marke = F->Text().textCursor();
        Marke.setPosition(7);
        QProcess Zeiger;
        Ziehen(Zeiger, F->Floskeln().viewport()->mapToGlobal(F->FloskelOrt(1)),
               F->Text().viewport()->mapToGlobal(F->Text().cursorRect(Marke).center()));
        QTRY_COMPARE_WITH_TIMEOUT(Datenbank.Schueler[0].Beurteilung[0],
                                  QStringLiteral("Anna sie liest. kann rechnen."), 20000);
        QTRY_COMPARE(Zeiger.state(), QProcess::NotRunning);
        QCOMPARE(F->Gespeichert(0).size(), 4);
    }

    void APhraseIsCarriedToAnotherArea() {
        if (!MitZeiger())
            QSKIP("no pointer on this platform");
        QProcess Zeiger;
        Ziehen(Zeiger, F->Floskeln().viewport()->mapToGlobal(F->FloskelOrt(1)),
               F->Baum().viewport()->mapToGlobal(F->KnotenOrt(1)));
        QTRY_COMPARE_WITH_TIMEOUT(F->Gespeichert(1).size(), 2, 20000);
        QTRY_COMPARE(Zeiger.state(), QProcess::NotRunning);
        QCOMPARE(F->Gespeichert(0).size(), 3);
    }

    void AnAreaIsCarriedWithinTheTree() {
        if (!MitZeiger())
            QSKIP("no pointer on this platform");
        QProcess Zeiger;
        Ziehen(Zeiger, F->Baum().viewport()->mapToGlobal(F->KnotenOrt(0)),
               F->Baum().viewport()->mapToGlobal(F->KnotenOrt(2)));
        QTRY_COMPARE_WITH_TIMEOUT(F->Knoten().first(), QStringLiteral("<B>"), 20000);
        QTRY_COMPARE(Zeiger.state(), QProcess::NotRunning);
    }
};

TESTKLASSE(ZeigerTest)
#include "tst_zeiger.moc"
