#include "Hauptfenster.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "core/Definitionen.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

struct Taste {
    const char* Name;
    Qt::Key Wert;
    Qt::KeyboardModifiers Zusatz;
};

/// Keys that no list names: Qt's views would move the cell on all of them.
const Taste Tasten[] = {{"Tab", Qt::Key_Tab, {}},
                        {"Backtab", Qt::Key_Backtab, Qt::ShiftModifier},
                        {"Ctrl+Tab", Qt::Key_Tab, Qt::ControlModifier},
                        {"Ctrl+Home", Qt::Key_Home, Qt::ControlModifier},
                        {"Ctrl+Shift+Home", Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier},
                        {"Ctrl+End", Qt::Key_End, Qt::ControlModifier},
                        {"Alt+Home", Qt::Key_Home, Qt::AltModifier},
                        {"Alt+Left", Qt::Key_Left, Qt::AltModifier},
                        {"Alt+Right", Qt::Key_Right, Qt::AltModifier},
                        {"Meta+Left", Qt::Key_Left, Qt::MetaModifier},
                        {"Ctrl+Alt+Right", Qt::Key_Right, Qt::ControlModifier | Qt::AltModifier}};

/// A cell of a list, what is typed into it, and where the record holds it then.
struct Liste {
    const char* Gitter;
    const char* Feld;
    int Reiter;
    int Zeile;
    int Spalte;
    const char* Text;
    const QString* Satz;
};

} // namespace

/// What is typed into a box over a cell is never dropped by a key.
class TestZellentasten : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

    static std::vector<Liste> Listen() {
        return {{"tblSSchueler", "txtSEingabe", 0, 2, 5, "Ulm", &Datenbank.Schueler[0].Feld[4]},
                {"tblPPunkte", "txtEingabe", 1, 1, 1, "7", &Datenbank.Noten[0].P[1]},
                {"tblN1Noten", "txtN1Eingabe", 2, 2, 22, "5", &Datenbank.Noten[0].N[22]},
                {"tblN2Noten", "txtN2Eingabe", 3, 2, 22, "5", &Datenbank.Noten[0].N[22]}};
    }

    void Oeffnen(const Liste& Welche) {
        Fenster.Reiter()->setCurrentIndex(Welche.Reiter);
        QCoreApplication::processEvents();
        auto* Tabelle = Fenster.Kind<Gitter>(Welche.Gitter);
        const QPoint Ort =
            Tabelle->viewport()->mapFrom(Tabelle, Tabelle->CellRect(Welche.Zeile, Welche.Spalte).center());
        QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Ort);
    }

    static void SechzigSchueler() {
        for (int i = 1; i < 60; ++i) {
            Datenbank.Schueler[i] = Datenbank.Schueler[0];
            Datenbank.Schueler[i].ID = 10000 + i;
            Datenbank.Noten[i] = Datenbank.Noten[0];
            Datenbank.Noten[i].Schueler_ID = 10000 + i;
        }
        Datenbank.AnzSchueler = Datenbank.AnzNoten = 60;
    }

    static void AlleListen() {
        QTest::addColumn<int>("Listennummer");
        for (int i = 0; i < 4; ++i)
            QTest::newRow(Listen()[static_cast<std::size_t>(i)].Gitter) << i;
    }

    static void TastenUndListen() {
        QTest::addColumn<int>("Listennummer");
        QTest::addColumn<int>("Tastennummer");
        const auto Alle = Listen();
        for (std::size_t i = 0; i < Alle.size(); ++i)
            for (std::size_t j = 0; j < std::size(Tasten); ++j)
                QTest::addRow("%s %s", Alle[i].Gitter, Tasten[j].Name)
                    << static_cast<int>(i) << static_cast<int>(j);
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        Fenster.Starten();
        Fenster->resize(1280, 700);
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nSchueler 10000 7a Bauer Anna\n"
                                     "Note 10000 50000 Teilnahme=ja"));
        Fenster->AnsichtAktualisieren();
    }
    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void KeineTasteVerwirftDasGetippte_data() { TastenUndListen(); }
    void KeineTasteVerwirftDasGetippte() {
        QFETCH(int, Listennummer);
        QFETCH(int, Tastennummer);
        const Liste Welche = Listen()[static_cast<std::size_t>(Listennummer)];
        Oeffnen(Welche);
        auto* Tabelle = Fenster.Kind<Gitter>(Welche.Gitter);
        auto* Feld = Fenster.Kind<EingabeFeld>(Welche.Feld);
        QVERIFY(Feld->hasFocus());
        QTest::keyClicks(Feld, QString::fromLatin1(Welche.Text));
        QTest::keyClick(Feld, Tasten[Tastennummer].Wert, Tasten[Tastennummer].Zusatz);

        const QString Zelle = Tabelle->TextMatrix(Welche.Zeile, Welche.Spalte);
        const bool NochOffen = Feld->hasFocus() && Feld->text() == QString::fromLatin1(Welche.Text) &&
                               Tabelle->Row() == Welche.Zeile && Tabelle->Col() == Welche.Spalte;
        QVERIFY2(NochOffen || *Welche.Satz == QString::fromLatin1(Welche.Text),
                 qPrintable(QStringLiteral("Zelle (%1,%2) '%3', Satz '%4', Feld '%5'")
                                .arg(Tabelle->Row())
                                .arg(Tabelle->Col())
                                .arg(Zelle, *Welche.Satz, Feld->text())));
    }

    void TabGehtVomFeldZumNachbarnDerListe_data() {
        QTest::addColumn<int>("Listennummer");
        QTest::addColumn<Qt::Key>("Taste");
        QTest::addColumn<Qt::KeyboardModifiers>("Zusatz");
        for (int i = 0; i < 4; ++i) {
            const char* Name = Listen()[static_cast<std::size_t>(i)].Gitter;
            QTest::addRow("%s Tab", Name) << i << Qt::Key_Tab << Qt::KeyboardModifiers();
            QTest::addRow("%s Backtab", Name)
                << i << Qt::Key_Backtab << Qt::KeyboardModifiers(Qt::ShiftModifier);
        }
    }
    void TabGehtVomFeldZumNachbarnDerListe() {
        QFETCH(int, Listennummer);
        QFETCH(Qt::Key, Taste);
        QFETCH(Qt::KeyboardModifiers, Zusatz);
        const Liste Welche = Listen()[static_cast<std::size_t>(Listennummer)];
        Oeffnen(Welche);
        auto* Tabelle = Fenster.Kind<Gitter>(Welche.Gitter);
        auto* Feld = Fenster.Kind<EingabeFeld>(Welche.Feld);
        QTest::keyClick(Feld, Taste, Zusatz);
        QVERIFY(!Feld->hasFocus());
        QVERIFY(!Tabelle->hasFocus());
        QVERIFY(QApplication::focusWidget());
    }

    /// At the size of a first start the larger views are only seen in part.
    void DasFeldBleibtAuchImKleinstenFensterInSicht_data() { AlleListen(); }
    void DasFeldBleibtAuchImKleinstenFensterInSicht() {
        QFETCH(int, Listennummer);
        const Liste Welche = Listen()[static_cast<std::size_t>(Listennummer)];
        SechzigSchueler();
        Fenster->resize(640, 400);
        Fenster.Reiter()->setCurrentIndex(Welche.Reiter);
        Fenster->AnsichtAktualisieren();
        QCoreApplication::processEvents();
        auto* Tabelle = Fenster.Kind<Gitter>(Welche.Gitter);
        auto* Feld = Fenster.Kind<EingabeFeld>(Welche.Feld);
        Tabelle->Enter(Welche.Zeile, 1);
        for (int i = 0; i < 70; ++i) {
            if (i < 35)
                QTest::keyClick(Feld, Qt::Key_Right, Qt::ShiftModifier);
            else
                QTest::keyClick(Feld, Qt::Key_Down);
            QVERIFY2(Feld->visibleRegion().boundingRect() == Feld->rect(),
                     qPrintable(QStringLiteral("Zelle (%1,%2)").arg(Tabelle->Row()).arg(Tabelle->Col())));
        }
    }

    /// The list scrolls by itself then, and its name column stays in sight.
    void ImKleinstenFensterRolltNurDieListeSeitwaerts_data() {
        QTest::addColumn<int>("Listennummer");
        for (const int i : {0, 2, 3}) // beside the list of a test there are charts, which need their room
            QTest::newRow(Listen()[static_cast<std::size_t>(i)].Gitter) << i;
    }
    void ImKleinstenFensterRolltNurDieListeSeitwaerts() {
        QFETCH(int, Listennummer);
        const Liste Welche = Listen()[static_cast<std::size_t>(Listennummer)];
        Fenster->resize(640, 400);
        Oeffnen(Welche);
        const auto* Rollfeld = qobject_cast<QScrollArea*>(Fenster.Reiter()->currentWidget());
        QCOMPARE(Rollfeld->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(Rollfeld->verticalScrollBar()->maximum(), 0);
    }

    void DasRadAufDemFeldRolltDieListe() {
        SechzigSchueler();
        Oeffnen(Listen()[2]);
        auto* Tabelle = Fenster.Kind<Gitter>("tblN1Noten");
        auto* Feld = Fenster.Kind<EingabeFeld>("txtN1Eingabe");
        const int Vorher = Tabelle->TopRow();
        const QPointF Ort(5, 5);
        QWheelEvent Rad(Ort, Feld->mapToGlobal(Ort), {}, QPoint(0, -240), Qt::NoButton, {}, Qt::NoScrollPhase,
                        false);
        QCoreApplication::sendEvent(Feld, &Rad);
        QVERIFY(Tabelle->TopRow() > Vorher);
    }
};

TESTKLASSE(TestZellentasten)

#include "tst_zellentasten.moc"
