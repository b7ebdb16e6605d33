#include "Hauptfenster.h"
#include "Listenpruefung.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "frame/Ansichten.h"

#include <QLabel>
#include <QtTest>

namespace {

const QString Schule = QStringLiteral(R"(Klasse 7a
Klasse 7b
Fach 50000 7a Mathematik
Fach 50001 7a Deutsch
Fach 50002 7b Mathematik
Fach 50003 7ab Musik
Probe 50000 1 Gesamt=40 Grenzen=36;31;25;18;9 Thema=Bruchrechnen
Probe 50000 2 Gesamt=20 Grenzen=18;15;12;9;4 Thema=Prozente
Probe 50002 1 Gesamt=30 Grenzen=27;23;18;13;7 Thema=Terme
Schueler 10000 7a Bauer Anna
Schueler 10001 7a Dorn Felix
Schueler 10002 7a Ebner Leonie
Schueler 10003 7b Fuchs Mia
Schueler 10004 7b Graf Tim
Note 10000 50000 Teilnahme=ja N1=2 P1=33 N21=1
Note 10001 50000 Teilnahme=ja N1=4 P1=20
Note 10002 50000 Teilnahme=nein
Note 10000 50001 Teilnahme=ja N1=3
Note 10001 50001 Teilnahme=ja
Note 10002 50001 Teilnahme=ja N21=2
Note 10003 50002 Teilnahme=ja N1=1 P1=28
Note 10004 50002 Teilnahme=ja
Note 10000 50003 Teilnahme=ja N21=1
Note 10001 50003 Teilnahme=nein
Note 10002 50003 Teilnahme=ja
Note 10003 50003 Teilnahme=ja
Note 10004 50003 Teilnahme=nein
)");

} // namespace

/// The selection lives across the tabs.
class TestAuswahl : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

    void ZumReiter(int Nummer) { Fenster.Reiter()->setCurrentIndex(Nummer); }

    /// The combo boxes by which the view on top is steered.
    QList<Kombinationsfeld*> Auswahllisten() const {
        static const QList<QStringList> Namen{{QStringLiteral("cbSKlasse")},
                                              {QStringLiteral("cbPKlasseFach"), QStringLiteral("cbPProbe")},
                                              {QStringLiteral("cbN1KlasseFach")},
                                              {QStringLiteral("cbN2Klasse"), QStringLiteral("cbN2Name")},
                                              {QStringLiteral("cbBKlasse")}};
        QList<Kombinationsfeld*> Listen;
        for (const QString& Name : Namen.at(Fenster.Reiter()->currentIndex()))
            Listen.append(Fenster->findChild<Kombinationsfeld*>(Name));
        return Listen;
    }

    Gitter* Tabelle() const {
        static const char* const Namen[] = {"tblSSchueler", "tblPPunkte", "tblN1Noten", "tblN2Noten",
                                            "tblBeurteilungen"};
        return Fenster.Kind<Gitter>(Namen[Fenster.Reiter()->currentIndex()]);
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        Fenster.Starten();
        Fenster->resize(790, 600);
        TestbuchLaden(Schule);
        Fenster->AnsichtAktualisieren();
    }
    void cleanup() {
        DatenGeaendert = false;
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void JedeReihenfolgeDerReiterBehaeltDieAuswahl() {
        AktFachID = 50002;
        AktProbe = 1;
        AktSchuelerID = 10004;
        QList<int> Folge{0, 1, 2, 3, 4};
        do {
            for (const int Nummer : Folge)
                ZumReiter(Nummer);
            QCOMPARE(AktFachID, 50002);
            QCOMPARE(AktProbe, 1);
            QCOMPARE(AktSchuelerID, 10004);
            QCOMPARE(AktKlasse, QStringLiteral("7b"));
        } while (std::next_permutation(Folge.begin(), Folge.end()));
    }

    void VonReiter2NachReiter0UndZurueckBleibtDasFach() {
        ZumReiter(Reiter::N1);
        AktFachID = 50003;
        AktSchuelerID = 10003;
        Fenster->AnsichtAktualisieren();
        ZumReiter(Reiter::S);
        QCOMPARE(Fenster.Kind<Kombinationsfeld>("cbSKlasse")->currentText(), QStringLiteral("7b"));
        ZumReiter(Reiter::N1);
        QCOMPARE(AktFachID, 50003);
        QCOMPARE(Fenster.Kind<Kombinationsfeld>("cbN1KlasseFach")->AktDatum(), 50003);
    }

    void JedeAuswahllisteGibtIhrenHinweis_data() {
        const auto Klasse = QStringLiteral(
            "Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung eingeben und Return drücken!");
        const auto Fach = QStringLiteral("Zur Aufnahme eines neuen Fachs hier die Klasse und den Fachnamen "
                                         "eingeben und Return drücken!");
        const auto Name = QStringLiteral("Zur Aufnahme eines neuen Schülers hier den Namen (Nachname "
                                         "Vorname) eingeben und Return drücken!");
        QTest::addColumn<int>("Nummer");
        QTest::addColumn<QString>("Hinweis");
        QTest::newRow("cbSKlasse") << 0 << Klasse;
        QTest::newRow("cbPKlasseFach") << 1 << Fach;
        QTest::newRow("cbN1KlasseFach") << 2 << Fach;
        QTest::newRow("cbN2Klasse") << 3 << Klasse;
        QTest::newRow("cbN2Name") << 3 << Name;
        QTest::newRow("cbBKlasse") << 4 << Klasse;
    }
    void JedeAuswahllisteGibtIhrenHinweis() {
        QFETCH(int, Nummer);
        QFETCH(QString, Hinweis);
        ZumReiter(Nummer);
        const auto* Statusfeld = Fenster.Kind<QLabel>("sbStatusBar_1");
        QCOMPARE(Statusfeld->text(), QString());
        Fenster.Kind<Kombinationsfeld>(QTest::currentDataTag())->setFocus();
        QCOMPARE(Statusfeld->text(), Hinweis);
    }

    void EineNummerDerProbeAusserhalbWirdNull() {
        for (const int Falsch : {-1, 20, 99}) {
            AktFachID = 50000;
            AktProbe = Falsch;
            Fenster->AnsichtAktualisieren();
            QCOMPARE(AktProbe, 0);
        }
    }

    void EinSchuljahrOhneKlassenZeigtLeereTabellen_data() {
        QTest::addColumn<int>("Nummer");
        for (int Nummer = 0; Nummer < AnzahlAnsichten; ++Nummer)
            QTest::addRow("Reiter %d", Nummer) << Nummer;
    }
    void EinSchuljahrOhneKlassenZeigtLeereTabellen() {
        QFETCH(int, Nummer);
        ZumReiter(Nummer);
        auto* Jahre = Fenster.Kind<Kombinationsfeld>("cbJahrgang");
        Jahre->setListIndex(Jahre->findText(QStringLiteral("1999/00")));
        QCOMPARE(AktKlasse, QString());
        QCOMPARE(AktSchuelerID, 0);
        for (const Kombinationsfeld* Liste : Auswahllisten())
            if (Liste->objectName() != QStringLiteral("cbPProbe"))
                QCOMPARE(Liste->count(), 0);
        for (int Zeile = Tabelle()->FixedRows(); Zeile < Tabelle()->Rows(); ++Zeile)
            QCOMPARE(Tabelle()->TextMatrix(Zeile, 0), QString());
    }

    void DerVergleichFindetEineFalscheZelle_data() {
        QTest::addColumn<int>("Nummer");
        for (int Nummer = 0; Nummer < AnzahlAnsichten; ++Nummer)
            QTest::addRow("Reiter %d", Nummer) << Nummer;
    }
    void DerVergleichFindetEineFalscheZelle() {
        QFETCH(int, Nummer);
        ZumReiter(Nummer);
        QCOMPARE(ListeGegenRecords(*Fenster, Nummer), QString());
        Tabelle()->setTextMatrix(Tabelle()->FixedRows(), 0, QStringLiteral("falsch"));
        QVERIFY(!ListeGegenRecords(*Fenster, Nummer).isEmpty());
    }
};

TESTKLASSE(TestAuswahl)
#include "tst_auswahl.moc"
