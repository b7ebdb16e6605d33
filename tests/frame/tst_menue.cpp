#include "Hauptfenster.h"
#include "common/Testprogramm.h"

#include <QMenuBar>
#include <QToolBar>
#include <QtTest>

namespace {

/// The whole menu tree as text, one line an entry: name, caption, keys, state.
QString Baumtext(const QMenuBar& Leiste) {
    QString Text;
    const auto Zeile = [&Text](const QString& Name, const QAction& Aktion) {
        Text += Name + u'|' + (Aktion.isSeparator() ? QStringLiteral("-") : Aktion.text()) + u'|' +
                Aktion.shortcut().toString(QKeySequence::PortableText) + u'|' +
                (Aktion.isVisible() ? QString() : QStringLiteral("versteckt")) +
                (Aktion.isCheckable() && Aktion.isChecked() ? QStringLiteral("gesetzt") : QString()) + u'\n';
    };
    const auto Menues = Leiste.actions();
    for (const QAction* Kopf : Menues) {
        Zeile(Kopf->menu()->objectName(), *Kopf);
        const auto Eintraege = Kopf->menu()->actions();
        for (const QAction* Eintrag : Eintraege)
            Zeile(QStringLiteral("  ") + Eintrag->objectName(), *Eintrag);
    }
    return Text;
}

const QString Soll = QStringLiteral(R"(mnuFile|&Datei||
  mnuFileNew|&Neu|Ctrl+N|
  mnuFileOpen|Ö&ffnen...||
  mnuFileClose|S&chließen||
  mnuFileBar1|-||
  mnuFileSave|&Speichern|Ctrl+S|
  mnuFileSaveAs|Speichern &unter...||
  mnuFileBar2|-||
  mnuFileImport|&Importieren||
  mnuFileExport|E&xportieren||
  mnuFileBar3|-||
  mnuFileBackup|Sicherheits&kopie erstellen||
  mnuFileRestore|&Wiederherstellen aus Sicherheitskopie||
  mnuFileBar4|-||
  mnuFilePrintPreview|Seiten&ansicht||
  mnuFilePageSetup|Drucker ein&richten...||
  mnuFilePrint|&Drucken...||
  mnuFileBar5|-||versteckt
  mnuFileMRU_1|||versteckt
  mnuFileMRU_2|||versteckt
  mnuFileMRU_3|||versteckt
  mnuFileBar6|-||
  mnuFileExit|&Beenden||
mnuEdit|&Bearbeiten||
  mnuEditCut|A&usschneiden|Ctrl+X|
  mnuEditCopy|&Kopieren|Ctrl+C|
  mnuEditPaste|E&infügen|Ctrl+V|
mnuView|&Ansicht||
  mnuViewToolbar|&Symbolleisten||gesetzt
  mnuViewStatusBar|S&tatuszeile||gesetzt
  mnuViewPassbild|&Passbild||
mnuFormulierungen|Beurteilungs&formulierungen||versteckt
  mnuFormulierungenNeu|&Neu||
  mnuFormulierungenOpen|Ö&ffnen...||
  mnuFormulierungenHinzufuegen|&Hinzufügen...||
  mnuBBar1|-||
  mnuFormulierungenSave|&Speichern||
  mnuFormulierungenSaveAs|Speichern &unter...||
  mnuBBar2|-||
  mnuFormulierungenBackup|Sicherheits&kopie erstellen||
  mnuFormulierungenRestore|&Wiederherstellen aus Sicherheitskopie||
mnumnuExtras|E&xtras||
  mnuExtrasOptionen|&Optionen...||
  mnuPassbilderErstellen|Passbilder erstellen||
mnuHelp|&Hilfe||
  mnuHelpContents|&Inhalt||
  mnuHelpSearchForHelpOn|&Suche||
  mnuHelpBar0|-||
  mnuHelpAbout|Inf&o||
)");

} // namespace

class TestMenue : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        Fenster.Starten();
    }
    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void DerMenuebaumIstVollstaendigUndInDerReihenfolge() {
        QCOMPARE(Baumtext(*Fenster->menuBar()).split(u'\n'), Soll.split(u'\n'));
    }

    void ZugriffstastenSindInnerhalbEinesMenuesEindeutig() {
        const auto Koepfe = Fenster->menuBar()->actions();
        for (const QAction* Kopf : Koepfe) {
            QStringList Tasten;
            const auto Eintraege = Kopf->menu()->actions();
            for (const QAction* Eintrag : Eintraege)
                if (const auto Stelle = Eintrag->text().indexOf(u'&'); Stelle >= 0)
                    Tasten.append(Eintrag->text().mid(Stelle + 1, 1).toLower());
            QCOMPARE(QSet<QString>(Tasten.begin(), Tasten.end()).size(), Tasten.size());
        }
    }

    void ExportIstBeimStartGesperrt() { QVERIFY(!Fenster.Aktion("mnuFileExport")->isEnabled()); }

    void DieWerkzeugleisteTraegtSchluesselUndHinweise() {
        QStringList Knoepfe;
        const auto Aktionen = Fenster.Kind<QToolBar>("tbToolBar")->actions();
        for (const QAction* Aktion : Aktionen)
            if (!Aktion->objectName().isEmpty())
                Knoepfe.append(Aktion->objectName() + u' ' + Aktion->toolTip() +
                               (Aktion->icon().isNull() ? QStringLiteral(" ohne Bild") : QString()));
        QCOMPARE(Knoepfe, QStringList({QStringLiteral("New Neu"), QStringLiteral("Open Öffnen"),
                                       QStringLiteral("Save Speichern"), QStringLiteral("Print Drucken"),
                                       QStringLiteral("Cut Ausschneiden"), QStringLiteral("Copy Kopieren"),
                                       QStringLiteral("Paste Einfügen")}));
    }

    void DieLeistenFolgenIhremHaken_data() {
        QTest::addColumn<QString>("Befehl");
        QTest::addColumn<QString>("Leiste");
        QTest::newRow("Werkzeuge") << "mnuViewToolbar"
                                   << "tbToolBar";
        QTest::newRow("Status") << "mnuViewStatusBar"
                                << "sbStatusBar";
    }
    void DieLeistenFolgenIhremHaken() {
        QFETCH(QString, Befehl);
        QFETCH(QString, Leiste);
        auto* Aktion = Fenster->findChild<QAction*>(Befehl);
        const auto* Feld = Fenster->findChild<QWidget*>(Leiste);
        QVERIFY(Feld->isVisible());
        Aktion->trigger();
        QVERIFY(!Aktion->isChecked());
        QVERIFY(!Feld->isVisible());
        Aktion->trigger();
        QVERIFY(Feld->isVisible());
    }

    void DieHilfeSagtDassEsSieNochNichtGibt() {
        for (const char* Name : {"mnuHelpContents", "mnuHelpSearchForHelpOn"}) {
            Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Hilfefunktion ist noch nicht verfügbar!"));
            Fenster.Aktion(Name)->trigger();
            QVERIFY(Welt.Boxen.Gezeigt.last().Bild == Symbol::Hinweis);
        }
    }

    void TastenDesMenuesWirkenImFenster() {
        Welt.Boxen.ErwarteSpeichern(QStringLiteral("Speichern unter..."), {});
        QTest::keyClick(Fenster.Reiter(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(Welt.Boxen.AllesGefragt());
    }
};

TESTKLASSE(TestMenue)
#include "tst_menue.moc"
