#include "Hauptfenster.h"
#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "controls/Ansicht.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "controls/Textfeld.h"
#include "core/Datenbankdatei.h"
#include "core/Datum.h"
#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Einstellungen.h"
#include "core/Oberflaeche.h"
#include "core/Orte.h"
#include "core/Uhr.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDialog>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <QtTest>

#include <tuple>

class TestHauptfenster : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

    QString Hinweis() const { return Fenster.Kind<QLabel>("sbStatusBar_1")->text(); }

    /// A text box on the view on top, which counts its commits.
    Textfeld* FeldAufAnsicht(int* Gemeldet) {
        auto* Feld = new Textfeld(Fenster->findChild<Ansicht*>(QStringLiteral("picAnsicht_1")));
        Feld->show();
        Feld->setFocus();
        connect(Feld, &Textfeld::Verlassen, Feld, [Gemeldet] { ++*Gemeldet; });
        return Feld;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
    }
    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    // What it is made of.

    void FuenfReiterUndDerZweiteObenauf() {
        Fenster.Starten();
        QStringList Titel;
        for (int Nummer = 0; Nummer < Fenster.Reiter()->count(); ++Nummer) {
            Titel.append(Fenster.Reiter()->tabText(Nummer));
            QVERIFY(Fenster->findChild<Ansicht*>(QStringLiteral("picAnsicht_%1").arg(Nummer)));
        }
        QCOMPARE(Titel,
                 QStringList({QStringLiteral("Schüler- und Fächerliste"), QStringLiteral("Probenauswertung"),
                              QStringLiteral("Notenliste eines Faches"),
                              QStringLiteral("Notenliste eines Schülers"), QStringLiteral("Beurteilungen")}));
        QCOMPARE(Fenster.Reiter()->currentIndex(), 1);
    }

    void EinDateinameStehtImTitelSoWieErIst() {
        Fenster.Starten();
        for (const char* Name : {"a[*].txt", "a[*][*].txt", "a & b.txt", "<b>.txt"}) {
            const QString Titel = QStringLiteral("Tafelquell 3.1 - ") + QString::fromLatin1(Name);
            Fenster->TitelSetzen(Titel);
            QCOMPARE(Fenster->windowHandle()->title(), Titel);
        }
    }

    void EinKnopfDessenKlickEinenDialogAusloestBleibtNichtUnten() {
        Fenster.Starten();
        auto* Liste = Fenster.Kind<Kombinationsfeld>("cbPKlasseFach");
        auto* Knopf = Fenster.Kind<QPushButton>("btPNeuesFach");
        Liste->setFocus();
        QTest::keyClicks(Liste, QStringLiteral("7a Physik"));
        Dialogschritte Schritte;
        // The box is left first, and its dialog gets the release of the mouse button.
        Schritte.Erwarte(QStringLiteral("dlgNeuesFach1"), [](QDialog& Dialog) {
            QTest::mouseRelease(&Dialog, Qt::LeftButton);
            Dialog.reject();
        });
        QTest::mousePress(Knopf, Qt::LeftButton);
        QTRY_VERIFY(!Knopf->isDown());
    }

    void DieListeDerSchuljahreHat35Eintraege() {
        Fenster.Starten();
        const auto* Liste = Fenster.Kind<Kombinationsfeld>("cbJahrgang");
        QCOMPARE(Liste->count(), 35);
        QCOMPARE(Liste->itemText(0), QStringLiteral("1995/96"));
        QCOMPARE(Liste->itemText(34), QStringLiteral("2029/30"));
        for (int Index = 0; Index < 35; ++Index)
            QVERIFY(IstSchuljahr(Liste->itemText(Index)));
        QVERIFY(!Liste->isEditable());
        QCOMPARE(Liste->currentText(), QStringLiteral("2003/04"));
    }

    void DieStatuszeileZeigtDatumUndUhrzeit() {
        Fenster.Starten();
        QCOMPARE(Fenster.Kind<QLabel>("sbStatusBar_2")->text(), QStringLiteral("12.10.2003"));
        QCOMPARE(Fenster.Kind<QLabel>("sbStatusBar_3")->text(), QStringLiteral("10:30"));
        UhrStellen(QDateTime(QDate(2003, 10, 13), QTime(0, 1)));
        QMetaObject::invokeMethod(Fenster.Kind<QTimer>("timTimer"), "timeout");
        QCOMPARE(Fenster.Kind<QLabel>("sbStatusBar_2")->text(), QStringLiteral("13.10.2003"));
        QCOMPARE(Fenster.Kind<QLabel>("sbStatusBar_3")->text(), QStringLiteral("00:01"));
    }

    void JedesBedienelementHatEinenNamenFuerVorleser() {
        Fenster.Starten();
        for (QWidget* Feld : Fenster->findChildren<QWidget*>()) {
            if (Feld->focusPolicy() == Qt::NoFocus || Feld->focusProxy() || !Feld->isVisible())
                continue;
            const auto* Zugang = QAccessible::queryAccessibleInterface(Feld);
            if (Zugang && Zugang->role() != QAccessible::PageTabList)
                QVERIFY2(!Zugang->text(QAccessible::Name).isEmpty(),
                         qPrintable(QString::fromLatin1(Feld->metaObject()->className()) + u' ' +
                                    Feld->objectName()));
        }
    }

    void DieUebrigenAnsichtenEntstehenNachDemErstenBild() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nSchueler 10000 7a Huber Anna"));
        SpeichernDatenbank3(Welt.Pfad(QStringLiteral("klasse.txt")));
        frmMain Eines;
        Eines.Laden();
        const auto Gebaute = [&Eines] {
            return Eines.findChildren<Ansicht*>(QRegularExpression(QStringLiteral("^picAnsicht_"))).size();
        };
        QCOMPARE(Gebaute(), 1);
        QVERIFY(Eines.findChild<Ansicht*>(QStringLiteral("picAnsicht_1")));
        const auto Auswahl = [] {
            return std::make_tuple(AktSchuelerID, AktFachID, AktProbe, AktKlasse, DatenGeaendert);
        };
        AktSchuelerID = 10000;
        const auto Vorher = Auswahl();
        Eines.show();
        QTRY_COMPARE(Gebaute(), 5);
        QVERIFY(Auswahl() == Vorher);
    }

    void EinWechselVorDemErstenBildBautSeineAnsicht() {
        frmMain Eines;
        Eines.Laden();
        Eines.findChild<QTabWidget*>(QStringLiteral("tabAnsicht"))->setCurrentIndex(4);
        QVERIFY(Eines.findChild<Ansicht*>(QStringLiteral("picAnsicht_4")));
        QVERIFY(!Eines.findChild<Ansicht*>(QStringLiteral("picAnsicht_2")));
    }

    void EinUngemaltesFensterHatNachEinemTickAlleAnsichten() {
        frmMain Eines;
        Eines.Laden();
        QVERIFY(!Eines.findChild<Ansicht*>(QStringLiteral("picAnsicht_2")));
        QMetaObject::invokeMethod(Eines.findChild<QTimer*>(QStringLiteral("timTimer")), "timeout");
        for (int Nummer = 0; Nummer < 5; ++Nummer)
            QVERIFY(Eines.findChild<Ansicht*>(QStringLiteral("picAnsicht_%1").arg(Nummer)));
    }

    void VonDenReiternFuehrtTabulatorInDieAnsichtUndVonIhrInDieLeiste() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik"));
        SpeichernDatenbank3(Welt.Pfad(QStringLiteral("klasse.txt")));
        Fenster.Starten();
        QTabWidget* const Reiter = Fenster.Reiter();
        const QWidget* const Leiste = Fenster.Kind<QWidget>("tbToolBar");
        const auto WeiterAus = [this](const QWidget* Teil) {
            while (Teil->isAncestorOf(Fenster->focusWidget()) || Teil == Fenster->focusWidget())
                QTest::keyClick(Fenster->focusWidget(), Qt::Key_Tab);
        };
        for (int Nummer = 0; Nummer < Reiter->count(); ++Nummer) {
            Reiter->setCurrentIndex(Nummer);
            Reiter->tabBar()->setFocus();
            WeiterAus(Reiter->tabBar());
            QVERIFY(Reiter->currentWidget()->isAncestorOf(Fenster->focusWidget()));
            // A grid keeps the key for its cells, so from here on the chain itself tells.
            QWidget* Naechstes = Fenster->focusWidget();
            while (Reiter->isAncestorOf(Naechstes) || Naechstes->focusPolicy() == Qt::NoFocus)
                Naechstes = Naechstes->nextInFocusChain();
            QVERIFY(Leiste->isAncestorOf(Naechstes));
        }
    }

    // Start.

    void OhneDateiStehtEineNeueDatenbank() {
        Fenster.Starten();
        QCOMPARE(Fenster->windowTitle(), QStringLiteral("Tafelquell 3.1 - Unbenannt"));
        QCOMPARE(Datenbank.AktJahr, QStringLiteral("2003/04"));
        QVERIFY(!DatenGeaendert);
        QVERIFY(FormularBereit);
        QCOMPARE(Hinweis(), QString());
    }

    void DieKnoepfeDerLeisteTragenIhrenNamen() {
        Fenster.Starten();
        for (const char* Name : {"New", "Open", "Save", "Print", "Cut", "Copy", "Paste"})
            QVERIFY2(Fenster.Kind<QToolButton>(Name), Name);
    }

    void DieSchuelerlisteHatIhrenKopfVorDemErstenBesuch() {
        Fenster.Starten();
        QTRY_VERIFY(Fenster.Kind<Gitter>("tblSSchueler"));
        QCOMPARE(Fenster.Kind<Gitter>("tblSSchueler")->TextMatrix(1, 0), QStringLiteral("Schüler"));
    }

    void DieLetzteDateiWirdGeladen() {
        const QString Pfad = Welt.Pfad(QStringLiteral("klasse.txt"));
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik"));
        SpeichernDatenbank3(Pfad);
        Fenster.Starten();
        QCOMPARE(Fenster->windowTitle(), QStringLiteral("Tafelquell 3.1 - klasse.txt"));
        QCOMPARE(Datenbank.AnzKlassen, qint16(1));
    }

    void NurEinFalschesAutoLadenHaeltDasLadenAuf_data() {
        QTest::addColumn<QString>("Wert");
        QTest::addColumn<QString>("Datei");
        const QString Geladen = QStringLiteral("klasse.txt");
        for (const char* Falsch : {"False", "false", "Falsch", "0"})
            QTest::newRow(Falsch) << QString::fromLatin1(Falsch) << Unbenannt;
        for (const char* Wahr : {"True", "Wahr", "1", "-1", ""})
            QTest::newRow(Wahr) << QString::fromLatin1(Wahr) << Geladen;
    }
    void NurEinFalschesAutoLadenHaeltDasLadenAuf() {
        QFETCH(QString, Wert);
        QFETCH(QString, Datei);
        SpeichernDatenbank3(Welt.Pfad(QStringLiteral("klasse.txt")));
        EinstellungSchreiben(QStringLiteral("AutoLaden"), Wert);
        Fenster.Starten();
        QCOMPARE(Fenster->windowTitle(), QStringLiteral("Tafelquell 3.1 - ") + Datei);
    }

    void EineVerschwundeneDateiFuehrtZuMeldungUndNeuerDatenbank() {
        const QString Pfad = Welt.Pfad(QStringLiteral("weg.txt"));
        EinstellungSchreiben(QStringLiteral("AutoDatei"), Pfad);
        Welt.Boxen.ErwarteMeldung(QString());
        Fenster.Starten();
        QVERIFY(Welt.Boxen.Gezeigt.first().Text.contains(Pfad));
        QCOMPARE(Fenster->windowTitle(), QStringLiteral("Tafelquell 3.1 - Unbenannt"));
        QCOMPARE(EinstellungLesen(QStringLiteral("AutoDatei"), {}), Unbenannt);
    }

    void DieFormulierungenDesProgrammverzeichnissesWerdenGeladen() {
        Fenster.Starten();
        QVERIFY(AnzLernbereiche > 0);
        QVERIFY(!FormulierungenGeaendert);
    }

    void DieEinstellungPassbildKommtWiederUndBleibt() {
        EinstellungSchreiben(QStringLiteral("Passbild"), QStringLiteral("1"));
        Fenster.Starten();
        QVERIFY(Fenster.Kind<QCheckBox>("cbPassbild")->isChecked());
        QVERIFY(Fenster.Aktion("mnuViewPassbild")->isChecked());
        Fenster.Kind<QCheckBox>("cbPassbild")->setChecked(false);
        Fenster->close();
        QCOMPARE(EinstellungLesen(QStringLiteral("Passbild"), {}), QStringLiteral("0"));
    }

    void DasFensterIstMindestens640Mal400() {
        EinstellungSchreiben(QStringLiteral("MainWidth"), QStringLiteral("150"));
        EinstellungSchreiben(QStringLiteral("MainHeight"), QStringLiteral("150"));
        Fenster.Starten();
        QCOMPARE(Fenster->size(), QSize(640, 400));
        Fenster->resize(100, 100);
        QCOMPARE(Fenster->size(), QSize(640, 400));
    }

    // Views and menus.

    void DieAnsichtBestimmtDieMenues_data() {
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<bool>("Formulierungen");
        for (int Nummer = 0; Nummer < 5; ++Nummer)
            QTest::addRow("Reiter %d", Nummer) << Nummer << (Nummer == 4);
    }
    void DieAnsichtBestimmtDieMenues() {
        QFETCH(int, Nummer);
        QFETCH(bool, Formulierungen);
        Fenster.Starten();
        Fenster.Reiter()->setCurrentIndex(Nummer);
        QCOMPARE(Fenster.Menue("mnuFormulierungen")->menuAction()->isVisible(), Formulierungen);
    }

    void EinTabwechselLeertDenHinweis() {
        Fenster.Starten();
        Q_EMIT Fenster.Kind<Ansicht>("picAnsicht_1")->HinweisGewuenscht(QStringLiteral("Hinweis"));
        QCOMPARE(Hinweis(), QStringLiteral("Hinweis"));
        Fenster.Reiter()->setCurrentIndex(0);
        QCOMPARE(Hinweis(), QString());
    }

    void DieMausUeberDerAnsichtLeertDenHinweis() {
        Fenster.Starten();
        auto* Flaeche = Fenster.Kind<Ansicht>("picAnsicht_1");
        Q_EMIT Flaeche->HinweisGewuenscht(QStringLiteral("Hinweis"));
        QTest::mouseMove(Flaeche, QPoint(1, 1));
        QTest::mouseMove(Flaeche, QPoint(2, 2));
        QTRY_COMPARE(Hinweis(), QString());
    }

    void EinLangerHinweisMachtDasFensterNichtBreiter() {
        Fenster.Starten();
        Q_EMIT Fenster.Kind<Ansicht>("picAnsicht_1")->HinweisGewuenscht(QString(400, u'x'));
        QCoreApplication::processEvents();
        QCOMPARE(Fenster->width(), 640);
        QVERIFY(Fenster->statusBar()->minimumSizeHint().width() < 640);
    }

    void EinTabwechselSchliesstDieEingabeAb_data() {
        QTest::addColumn<bool>("MitMaus");
        QTest::newRow("Maus") << true;
        QTest::newRow("Tasten") << false;
    }
    void EinTabwechselSchliesstDieEingabeAb() {
        QFETCH(bool, MitMaus);
        Fenster.Starten();
        int Gemeldet = 0;
        int Obenauf = -1;
        auto* Feld = FeldAufAnsicht(&Gemeldet);
        connect(Feld, &Textfeld::Verlassen, Feld, [&] { Obenauf = Fenster.Reiter()->currentIndex(); });
        if (MitMaus)
            QTest::mouseClick(Fenster.Reiter()->tabBar(), Qt::LeftButton, {},
                              Fenster.Reiter()->tabBar()->tabRect(0).center());
        else
            QTest::keyClick(Feld, Qt::Key_Backtab, Qt::ControlModifier);
        QCOMPARE(Gemeldet, 1);
        QCOMPARE(Obenauf, 1);
        QCOMPARE(Fenster.Reiter()->currentIndex(), 0);
    }

    // Commands take the focus.

    void EinBefehlSchliesstDieEingabeAb() {
        Fenster.Starten();
        int Gemeldet = 0;
        FeldAufAnsicht(&Gemeldet);
        Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), {});
        Fenster.Aktion("mnuFileSave")->trigger();
        QCOMPARE(Gemeldet, 1);
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(Fenster.Reiter()->tabBar()));
    }

    void EinBefehlSchliesstDieEingabeAuchInEinemFensterImHintergrundAb() {
        Fenster.Starten();
        int Gemeldet = 0;
        FeldAufAnsicht(&Gemeldet);
        QWidget Anderes;
        Anderes.show();
        Anderes.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Anderes));
        QCOMPARE(Gemeldet, 0);
        AktuelleOberflaeche().FokusNehmen();
        QCOMPARE(Gemeldet, 1);
        AktuelleOberflaeche().FokusNehmen();
        QCOMPARE(Gemeldet, 1);
    }

    void DerTickRuftDieFaelligenEingaben() {
        Fenster.Starten();
        int Gelaufen = 0;
        EingabezaehlerAktion(7, [&Gelaufen] { ++Gelaufen; });
        EingabeZaehler[7] = 6;
        for (int Tick = 1; Tick <= 5; ++Tick)
            QMetaObject::invokeMethod(Fenster.Kind<QTimer>("timTimer"), "timeout");
        QCOMPARE(Gelaufen, 0);
        QMetaObject::invokeMethod(Fenster.Kind<QTimer>("timTimer"), "timeout");
        QCOMPARE(Gelaufen, 1);
        EingabezaehlerAktion(7, {});
    }

    void DerTaktIstEineHalbeSekunde() {
        Fenster.Starten();
        QCOMPARE(Fenster.Kind<QTimer>("timTimer")->interval(), 500);
    }

    void EinFehlerImBefehlWirdGemeldetUndDasFensterBleibt() {
        Fenster.Starten();
        EingabezaehlerAktion(3, [] { throw Laufzeitfehler(QStringLiteral("Etwas ging nicht.")); });
        EingabeZaehler[3] = 1;
        GridEreignisseAktiv = false;
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Etwas ging nicht."));
        QMetaObject::invokeMethod(Fenster.Kind<QTimer>("timTimer"), "timeout");
        QVERIFY(Fenster->isVisible());
        QVERIFY(GridEreignisseAktiv);
        EingabezaehlerAktion(3, {});
    }

    // School year.

    void EinAnderesSchuljahrLeertDieAuswahl() {
        Fenster.Starten();
        AktSchuelerID = 10000;
        AktFachID = 50000;
        AktProbe = 3;
        AktKlasse = QStringLiteral("7a");
        auto* Liste = Fenster.Kind<Kombinationsfeld>("cbJahrgang");
        QTest::keyClick(Liste, Qt::Key_Down);
        QCOMPARE(Datenbank.AktJahr, QStringLiteral("2004/05"));
        QCOMPARE(AktSchuelerID, 0);
        QCOMPARE(AktFachID, 0);
        QCOMPARE(AktProbe, 0);
        QCOMPARE(AktKlasse, QString());
        QVERIFY(!DatenGeaendert);
    }

    void DasJahrDerDateiWirdGewaehltOhneDieAuswahlZuLeeren() {
        Fenster.Starten();
        AktFachID = 50000;
        Datenbank.AktJahr = QStringLiteral("1999/00");
        AktuelleOberflaeche().JahrgangWaehlen();
        QCOMPARE(Fenster.Kind<Kombinationsfeld>("cbJahrgang")->currentText(), QStringLiteral("1999/00"));
        QCOMPARE(AktFachID, 50000);
    }

    // A file dropped on the window.

    void EineHineingezogeneDateiWirdNachDerFrageGeladen() {
        const QString Pfad = Welt.Pfad(QStringLiteral("andere.txt"));
        TestbuchLaden(QStringLiteral("Klasse 8b"));
        SpeichernDatenbank3(Pfad);
        EinstellungSchreiben(QStringLiteral("AutoDatei"), Unbenannt);
        Fenster.Starten();
        QMimeData Daten;
        Daten.setUrls({QUrl::fromLocalFile(Pfad)});
        QDragEnterEvent Herein(QPoint(5, 5), Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&*Fenster, &Herein);
        QVERIFY(Herein.isAccepted());
        DatenGeaendert = true;
        Welt.Boxen.ErwarteFrage(QStringLiteral("Möchten Sie die Änderungen in "), Antwort::Nein);
        QDropEvent Fallen(QPoint(5, 5), Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&*Fenster, &Fallen);
        QTRY_COMPARE(Fenster->windowTitle(), QStringLiteral("Tafelquell 3.1 - andere.txt"));
    }

    void AnderesWirdNichtHereingelassen() {
        Fenster.Starten();
        QMimeData Daten;
        Daten.setUrls({QUrl::fromLocalFile(Welt.Pfad(QStringLiteral("bild.jpg")))});
        QDragEnterEvent Herein(QPoint(5, 5), Qt::CopyAction, &Daten, Qt::LeftButton, Qt::NoModifier);
        Herein.ignore();
        QCoreApplication::sendEvent(&*Fenster, &Herein);
        QVERIFY(!Herein.isAccepted());
    }
};

TESTKLASSE(TestHauptfenster)
#include "tst_hauptfenster.moc"
