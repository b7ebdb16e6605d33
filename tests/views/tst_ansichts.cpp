#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"
#include "core/FktSpeziell.h"
#include "views/AnsichtS.h"

#include <QAccessible>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

namespace {

const QString HinweisTeilnahme = QStringLiteral(
    "Um die Teilnahme eines Schülers an dem Fach zu ändern, bitte die Leerzeichen-Taste benutzen!");
const QString HinweisZelle =
    QStringLiteral("Mit gedrückter Umschalt-Taste und den Cursortasten kann die Zelle gewechselt werden!");
const QString HinweisEingabezeile = QStringLiteral("Zur Aufnahme eines neuen Schülers in die Klasse hier den "
                                                   "Namen des Schülers (Nachname Vorname) eingeben!");
const QString HinweisKlasse = QStringLiteral(
    "Zur Aufnahme einer neuen Klasse hier die Klassenbezeichnung eingeben und Return drücken!");

/// Class 3b with a subject of its own and a merged one, three students out of order; class 3c.
const QString Buch = QStringLiteral(R"(Klasse 3b
    Klasse 3c
    Fach 50000 3b Mathe
    Fach 50001 3bc Religion
    Fach 50002 3c Deutsch
    Schueler 10000 3b Conz Tom
    Schueler 10001 3b adam Eva
    Schueler 10002 3c Huber Max
    Schueler 10003 3b Bauer Anna
    Note 10000 50000 N1=2
    Note 10001 50000 Teilnahme=nein
    Note 10003 50000
    Note 10000 50001
    Note 10001 50001
    Note 10003 50001 Teilnahme=nein
    Note 10002 50001
    Note 10002 50002)");

QStringList Worte(const char* Mit) {
    return QString::fromUtf8(Mit).split(u'|');
}

} // namespace

class AnsichtSTest : public QObject {
    Q_OBJECT

  private:
    Testwelt Welt;
    std::unique_ptr<Dialogschritte> Schritte;
    std::unique_ptr<QWidget> Fenster;
    AnsichtS* Ansicht = nullptr;
    Gitter* Tabelle = nullptr;
    Kombinationsfeld* Klassen = nullptr;
    EingabeFeld* Feld = nullptr;
    QStringList Hinweise;
    QList<bool> Importe;
    int Passbilder = 0;

    template <class Art>
    Art* Teil(const char* Name) {
        auto* Gefunden = Fenster->findChild<Art*>(QString::fromUtf8(Name));
        if (!Gefunden)
            qFatal("kein %s", Name);
        return Gefunden;
    }

    QPushButton* Knopf(const char* Name) { return Teil<QPushButton>(Name); }
    void Druecken(const char* Name) { QTest::mouseClick(Knopf(Name), Qt::LeftButton); }

    /// Shows the view in a window with these records.
    void Zeigen(const QString& Zeilen, const QString& Klasse = {}) {
        TestbuchLaden(Zeilen);
        AktKlasse = Klasse;
        Fenster = std::make_unique<QWidget>();
        auto* Aufbau = new QVBoxLayout(Fenster.get());
        Ansicht = new AnsichtS;
        Aufbau->addWidget(Ansicht);
        Tabelle = Teil<Gitter>("tblSSchueler");
        Klassen = Teil<Kombinationsfeld>("cbSKlasse");
        Feld = Teil<EingabeFeld>("txtSEingabe");
        connect(Ansicht, &AnsichtS::HinweisGewuenscht, this,
                [this](const QString& Text) { Hinweise.append(Text); });
        connect(Ansicht, &AnsichtS::ImportErlaubt, this, [this](bool Erlaubt) { Importe.append(Erlaubt); });
        connect(Ansicht, &AnsichtS::PassbildGewuenscht, this, [this] { ++Passbilder; });
        connect(Ansicht, &AnsichtS::AktualisierenGewuenscht, this, [this] { Ansicht->Fuellen(); });
        Fenster->resize(1000, 500);
        Fenster->show();
        QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
        Ansicht->Fuellen();
    }

    void Klicken(int Zeile, int Spalte, Qt::MouseButton Taste = Qt::LeftButton) {
        const QPoint Ort = Tabelle->viewport()->mapFrom(Tabelle, Tabelle->CellRect(Zeile, Spalte).center());
        QTest::mouseClick(Tabelle->viewport(), Taste, {}, Ort);
    }

    void Taste(Qt::Key Welche, Qt::KeyboardModifiers Dazu = {}) {
        QTest::keyClick(QApplication::focusWidget(), Welche, Dazu);
    }

    void Tippen(const QString& Text) {
        Feld->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), Text);
    }

    QStringList Zeile(int Nummer, int Von, int Bis) const {
        QStringList Texte;
        for (int Spalte = Von; Spalte <= Bis; ++Spalte)
            Texte.append(Tabelle->TextMatrix(Nummer, Spalte));
        return Texte;
    }

    QStringList Spalte(int Nummer) const {
        QStringList Texte;
        for (int z = 2; z < Tabelle->Rows() - 1; ++z)
            Texte.append(Tabelle->TextMatrix(z, Nummer));
        return Texte;
    }

    QPair<int, int> Zelle() const { return {Tabelle->Row(), Tabelle->Col()}; }

    bool FeldLiegtAufDerZelle() const {
        return Feld->isVisible() && Feld->geometry() == Tabelle->CellRect(Tabelle->Row(), Tabelle->Col());
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Schritte = std::make_unique<Dialogschritte>();
        Hinweise.clear();
        Importe.clear();
        Passbilder = 0;
    }

    void cleanup() {
        Schritte.reset();
        Fenster.reset();
        Welt.Aufraeumen();
    }

    // --- Filling ---

    void DieListeZeigtFaecherUndFelderMitIhrenGruppen() {
        Datenbank.SchuelerFeldTitel[1] = QStringLiteral("Strasse");
        Zeigen(Buch);
        QCOMPARE(Ansicht->objectName(), QStringLiteral("picAnsicht_0"));
        QCOMPARE(Klassen->currentText(), QStringLiteral("3b"));
        QCOMPARE(Tabelle->Cols(), 17);
        QCOMPARE(Tabelle->Rows(), 6);
        QCOMPARE(Tabelle->FixedRows(), 2);
        QCOMPARE(Tabelle->FixedCols(), 1);
        QCOMPARE(Zeile(0, 0, 4), Worte("|Teilnahme|Teilnahme|Schülerdaten|Schülerdaten"));
        QCOMPARE(Zeile(1, 0, 4), Worte("Schüler|Mathe|Religion*|Strasse|Ort"));
        QCOMPARE(Tabelle->TextMatrix(1, 16), QStringLiteral("Daten7"));
        QCOMPARE(Spalte(0), Worte("adam Eva|Bauer Anna|Conz Tom"));
        QCOMPARE(Spalte(1), Worte("nein|ja|ja"));
        QCOMPARE(Spalte(2), Worte("ja|nein|ja"));
        QCOMPARE(Tabelle->ColData(1), 50000);
        QCOMPARE(Tabelle->ColData(2), 50001);
        QCOMPARE(Tabelle->ColData(3), 0);
        QCOMPARE(
            (QList<int>{Tabelle->RowData(2), Tabelle->RowData(3), Tabelle->RowData(4), Tabelle->RowData(5)}),
            (QList<int>{10001, 10003, 10000, 0}));
        QCOMPARE(Zelle(), (QPair{1, 0}));
        QVERIFY(!Feld->isVisible());
        // The group stands once over its columns.
        QCOMPARE(Tabelle->CellRect(0, 1), Tabelle->CellRect(0, 2));
    }

    void DieFarbenFolgenDenGruppenBisInDieEingabezeile() {
        Zeigen(Buch);
        for (const int Zeile : {2, 4, 5}) {
            QCOMPARE(Tabelle->CellBackColor(Zeile, 0), QColor(238, 238, 238));
            QCOMPARE(Tabelle->CellBackColor(Zeile, 1), QColor(221, 239, 255));
            QCOMPARE(Tabelle->CellBackColor(Zeile, 2), QColor(221, 239, 255));
            QCOMPARE(Tabelle->CellBackColor(Zeile, 3), QColor(221, 255, 221));
            QCOMPARE(Tabelle->CellBackColor(Zeile, 16), QColor(221, 255, 221));
        }
    }

    void DieSpaltenSindSoBreitWieIhrTextAberHoechstensSo() {
        Zeigen(Buch);
        const auto Breite = [this](const QString& Text) {
            return Gitter::TwipsInPixel(
                qMin(Gitter::PixelInTwips(QFontMetricsF(Fenster->font()).horizontalAdvance(Text)), 2000.0) +
                150);
        };
        QVERIFY(qAbs(Tabelle->ColWidth(0) - Breite(QStringLiteral("Bauer Anna"))) <= 2);
        QVERIFY(qAbs(Tabelle->ColWidth(2) - Breite(QStringLiteral("Religion*"))) <= 2);
        Klicken(2, 3);
        Tippen(QString(200, u'W'));
        Taste(Qt::Key_Return);
        QCOMPARE(Tabelle->ColWidth(3), Gitter::TwipsInPixel(2150));
    }

    void OhneKlasseIstDieListeLeerUndGesperrt() {
        Zeigen(QString());
        QCOMPARE(Tabelle->Cols(), 15);
        QCOMPARE(Tabelle->Rows(), 3);
        QCOMPARE(Zeile(1, 0, 1), Worte("Schüler|Strasse"));
        QVERIFY(!Tabelle->isEnabled());
        QVERIFY(!Knopf("btSKlasseLoeschen")->isEnabled());
        QVERIFY(!Knopf("btSNeuerSchueler")->isEnabled());
        QVERIFY(!Knopf("btSFachLoeschen")->isEnabled());
        QVERIFY(!Knopf("btSSchuelerLoeschen")->isEnabled());
        QCOMPARE(Importe.last(), false);
        QVERIFY(GridEreignisseAktiv);
    }

    void MitKlasseIstAllesFreigegeben() {
        Zeigen(Buch);
        QVERIFY(Tabelle->isEnabled());
        QVERIFY(Knopf("btSKlasseLoeschen")->isEnabled());
        QVERIFY(Knopf("btSNeuerSchueler")->isEnabled());
        QVERIFY(!Knopf("btSFachLoeschen")->isEnabled());
        QVERIFY(!Knopf("btSSchuelerLoeschen")->isEnabled());
        QCOMPARE(Importe.last(), true);
    }

    void EineKlasseOhneFaecherHatNurFelder() {
        Zeigen(QStringLiteral("Klasse 7a\nSchueler 10000 7a Bauer Anna"));
        QCOMPARE(Tabelle->Cols(), 15);
        QCOMPARE(Tabelle->Rows(), 4);
        Druecken("btSNeuerSchueler");
        Tippen(QStringLiteral("Neu Nora"));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.AnzSchueler, qint16{2});
        QCOMPARE(Datenbank.AnzNoten, qint16{0});
    }

    void DieKlasseDesGewaehltenSchuelersWirdGezeigtUndErBleibtGewaehlt() {
        AktSchuelerID = 10002;
        Zeigen(Buch);
        QCOMPARE(Klassen->currentText(), QStringLiteral("3c"));
        QCOMPARE(AktKlasse, QStringLiteral("3c"));
        QCOMPARE(AktSchuelerID, 10002);
    }

    void DieGemerkteKlasseWirdGezeigt() {
        Zeigen(Buch, QStringLiteral("3c"));
        QCOMPARE(Klassen->currentText(), QStringLiteral("3c"));
    }

    void EinAnderesSchuljahrZeigtNichtsMehr() {
        Zeigen(Buch);
        Datenbank.AktJahr = QStringLiteral("2004/05");
        AktSchuelerID = AktFachID = 0;
        AktKlasse.clear();
        Ansicht->Fuellen();
        QCOMPARE(Klassen->count(), 0);
        QCOMPARE(Tabelle->Rows(), 3);
        QCOMPARE(Tabelle->Cols(), 15);
    }

    void EineKlasseWaehlenVergisstDenSchueler() {
        AktSchuelerID = 10001;
        Zeigen(Buch);
        Passbilder = 0;
        Klassen->setFocus();
        Taste(Qt::Key_Down);
        QCOMPARE(AktKlasse, QStringLiteral("3c"));
        QCOMPARE(AktSchuelerID, 0);
        QCOMPARE(Spalte(0), Worte("Huber Max"));
        QVERIFY(Passbilder > 0);
        QCOMPARE(Hinweise.last(), HinweisKlasse);
    }

    void DerErsteVonMehrerenNotensaetzenZaehlt() {
        Zeigen(QStringLiteral("Klasse 7a\nFach 50000 7a Mathe\nSchueler 10000 7a Bauer Anna\n"
                              "Note 10000 50000 Teilnahme=nein\nNote 10000 50000 Teilnahme=ja"));
        QCOMPARE(Tabelle->TextMatrix(2, 1), QStringLiteral("nein"));
    }

    // --- Cells ---

    void EinKlickLegtDasFeldAufDieZelleUndSetztDieAuswahl() {
        Zeigen(Buch);
        Klicken(3, 1);
        QCOMPARE(Zelle(), (QPair{3, 1}));
        QVERIFY(FeldLiegtAufDerZelle());
        QVERIFY(Feld->hasFocus());
        QCOMPARE(Feld->text(), QStringLiteral("ja"));
        QCOMPARE(AktSchuelerID, 10003);
        QCOMPARE(AktFachID, 50000);
        QVERIFY(Knopf("btSFachLoeschen")->isEnabled());
        QVERIFY(Knopf("btSSchuelerLoeschen")->isEnabled());
        QCOMPARE(Hinweise.last(), HinweisTeilnahme);
        QVERIFY(Passbilder > 0);
        Klicken(4, 5);
        QVERIFY(!Knopf("btSFachLoeschen")->isEnabled());
        QVERIFY(Knopf("btSSchuelerLoeschen")->isEnabled());
        QCOMPARE(Hinweise.last(), HinweisZelle);
        Klicken(5, 0);
        QVERIFY(!Knopf("btSSchuelerLoeschen")->isEnabled());
        QCOMPARE(Hinweise.last(), HinweisEingabezeile);
    }

    void EinKlickAufDenNamenWaehltDenNamen() {
        Zeigen(Buch);
        Klicken(3, 0);
        QCOMPARE(Zelle(), (QPair{3, 0}));
        QCOMPARE(Feld->text(), QStringLiteral("Bauer Anna"));
    }

    void EinKlickAufDieGruppeWaehltDenTitelDarunter() {
        Zeigen(Buch);
        Klicken(1, 3);
        QCOMPARE(Zelle(), (QPair{1, 3}));
        QCOMPARE(Feld->text(), QStringLiteral("Strasse"));
        Tabelle->Enter(0, 2);
        QCOMPARE(Zelle(), (QPair{1, 2}));
    }

    void DieEckeDesKopfesIstNieBearbeitbar() {
        Zeigen(Buch);
        Klicken(1, 0);
        QCOMPARE(Zelle(), (QPair{2, 1}));
        Klicken(0, 0);
        QCOMPARE(Zelle(), (QPair{2, 1}));
    }

    void EineAndereSpalteDerEingabezeileFuehrtInDieErste() {
        Zeigen(Buch);
        Klicken(5, 4);
        QCOMPARE(Zelle(), (QPair{5, 0}));
        QVERIFY(FeldLiegtAufDerZelle());
    }

    void EinNameWirdUmgeschnittenGespeichertUndDasPassbildZiehtMit() {
        EinstellungSchreiben(QStringLiteral("AutoDatei"), Welt.Pfad(QStringLiteral("noten.txt")));
        QVERIFY(QDir(Welt.Ordner()).mkpath(QStringLiteral("Passbilder/2003-04/3b")));
        Welt.DateiAnlegen(QStringLiteral("Passbilder/2003-04/3b/adam Eva.bmp"), "BM");
        Zeigen(Buch);
        Klicken(2, 0);
        Tippen(QStringLiteral("  Adam Evi  "));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.Schueler[SchuelerIndex(10001)].Name, QStringLiteral("Adam Evi"));
        QCOMPARE(Tabelle->TextMatrix(2, 0), QStringLiteral("Adam Evi"));
        QVERIFY(QFile::exists(Welt.Pfad(QStringLiteral("Passbilder/2003-04/3b/Adam Evi.bmp"))));
        QVERIFY(DatenGeaendert);
        QCOMPARE(Zelle(), (QPair{3, 0}));
    }

    void EinFeldWirdBeimVerlassenGespeichert() {
        Zeigen(Buch);
        Klicken(2, 4);
        Tippen(QStringLiteral("Ulm"));
        QVERIFY(!DatenGeaendert);
        Klassen->setFocus();
        QCOMPARE(Datenbank.Schueler[SchuelerIndex(10001)].Feld[2], QStringLiteral("Ulm"));
        QCOMPARE(Tabelle->TextMatrix(2, 4), QStringLiteral("Ulm"));
        QVERIFY(DatenGeaendert);
    }

    void EinNameMitGeschuetztemLeerzeichenBleibtBeimDurchgehen() {
        const QString Name = QStringLiteral("\u00A0adam Eva\u00A0");
        Zeigen(Buch);
        Datenbank.Schueler[SchuelerIndex(10001)].Name = Name;
        Ansicht->Fuellen();
        Tabelle->Enter(2, 0);
        QCOMPARE(Feld->text(), Name);
        Taste(Qt::Key_Down);
        QCOMPARE(Datenbank.Schueler[SchuelerIndex(10001)].Name, Name);
        QVERIFY(!DatenGeaendert);
    }

    void EinLeeresFeldWirdGespeichert() {
        Zeigen(Buch);
        Datenbank.Schueler[1].Feld[2] = QStringLiteral("Ulm");
        Ansicht->Fuellen();
        Klicken(2, 4);
        Feld->selectAll();
        Taste(Qt::Key_Delete);
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.Schueler[1].Feld[2], QString());
    }

    void GleicherTextAendertNichts() {
        Zeigen(Buch);
        for (const auto& [Zeile, Spalte] : {QPair{2, 0}, {2, 1}, {2, 4}, {1, 1}, {1, 4}}) {
            Klicken(Zeile, Spalte);
            Taste(Qt::Key_Return);
        }
        QVERIFY(!DatenGeaendert);
    }

    void EinTitelWirdFuerAlleSchuelerUmbenannt() {
        Zeigen(Buch);
        Klicken(1, 5);
        Tippen(QStringLiteral("Telefon"));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.SchuelerFeldTitel[3], QStringLiteral("Telefon"));
        Klicken(1, 1);
        Tippen(QStringLiteral("Rechnen"));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.Faecher[0].Name, QStringLiteral("Rechnen"));
        QCOMPARE(Tabelle->TextMatrix(1, 1), QStringLiteral("Rechnen"));
    }

    void DerSternEinesZusammengelegtenFachsWirdBeimVerlassenTeilDesNamens() {
        Zeigen(Buch);
        Klicken(1, 2);
        QCOMPARE(Feld->text(), QStringLiteral("Religion*"));
        Taste(Qt::Key_Down);
        QCOMPARE(Datenbank.Faecher[1].Name, QStringLiteral("Religion*"));
        QVERIFY(DatenGeaendert);
        QCOMPARE(Tabelle->TextMatrix(1, 2), QStringLiteral("Religion*"));
        Ansicht->Fuellen();
        QCOMPARE(Tabelle->TextMatrix(1, 2), QStringLiteral("Religion**"));
    }

    void DieLeertasteKehrtDieTeilnahmeUmUndAndereZeichenTunNichts() {
        Zeigen(Buch);
        Klicken(3, 1);
        QTest::keyClicks(Feld, QStringLiteral("x7"));
        Taste(Qt::Key_Backspace);
        Taste(Qt::Key_Delete);
        QCOMPARE(Feld->text(), QStringLiteral("ja"));
        QCOMPARE(Zelle(), (QPair{3, 1}));
        Taste(Qt::Key_Space);
        QCOMPARE(Feld->text(), QStringLiteral("nein"));
        QVERIFY(!DatenGeaendert); // only the box until the commit
        QCOMPARE(Datenbank.Noten[NotenIndex(10003, 50000)].Teilnahme, QStringLiteral("ja"));
        Taste(Qt::Key_Down);
        QCOMPARE(Datenbank.Noten[NotenIndex(10003, 50000)].Teilnahme, QStringLiteral("nein"));
        QCOMPARE(Tabelle->TextMatrix(3, 1), QStringLiteral("nein"));
        QVERIFY(DatenGeaendert);
        Taste(Qt::Key_Up);
        Taste(Qt::Key_Space);
        QCOMPARE(Feld->text(), QStringLiteral("ja"));
    }

    void DerDoppelklickKehrtDieTeilnahmeUm() {
        Zeigen(Buch);
        Klicken(3, 1);
        QTest::mouseDClick(Feld, Qt::LeftButton);
        QCOMPARE(Feld->text(), QStringLiteral("nein"));
        Klicken(3, 4);
        QTest::mouseDClick(Feld, Qt::LeftButton);
        QCOMPARE(Feld->text(), QString());
        QCOMPARE(Datenbank.Noten[NotenIndex(10003, 50000)].Teilnahme, QStringLiteral("nein"));
    }

    void DerDoppelklickAufEinFachOeffnetDieAutomatischeTeilnahme() {
        Zeigen(Buch);
        Datenbank.Schueler[SchuelerIndex(10003)].Feld[4] = QStringLiteral("rk");
        Ansicht->Fuellen();
        Klicken(1, 1);
        Schritte->Erwarte(QStringLiteral("dlgAutoTeilnahme"), [](QDialog& Dialog) {
            Dialog.findChild<Kombinationsfeld*>(QStringLiteral("cbVergleich"))->setListIndex(3);
            QTest::keyClicks(Dialog.findChild<QLineEdit*>(QStringLiteral("txtVergleich")),
                             QStringLiteral("rk"));
            QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("btOK")), Qt::LeftButton);
        });
        QTest::mouseDClick(Feld, Qt::LeftButton);
        QCOMPARE(Spalte(1), Worte("nein|ja|nein"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10000, 50000)].Teilnahme, QStringLiteral("nein"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10003, 50000)].Teilnahme, QStringLiteral("ja"));
    }

    void TabulatorenWerdenLeerzeichen() {
        Zeigen(Buch);
        Klicken(2, 4);
        Feld->setText(QStringLiteral("Neu\tUlm"));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.Schueler[1].Feld[2], QStringLiteral("Neu Ulm"));
    }

    // --- Keys ---

    void DieTastenWechselnDieZelle_data() {
        QTest::addColumn<int>("Zeile");
        QTest::addColumn<int>("Spalte");
        QTest::addColumn<int>("Welche");
        QTest::addColumn<bool>("Umschalt");
        QTest::addColumn<int>("NachZeile");
        QTest::addColumn<int>("NachSpalte");
        const auto Fall = [](const char* Name, int Zeile, int Spalte, Qt::Key Taste, bool Umschalt,
                             int NachZeile, int NachSpalte) {
            QTest::newRow(Name) << Zeile << Spalte << int(Taste) << Umschalt << NachZeile << NachSpalte;
        };
        Fall("Auf im Feld", 3, 4, Qt::Key_Up, false, 2, 4);
        Fall("Auf in den Titel", 2, 4, Qt::Key_Up, false, 1, 4);
        Fall("Auf im Titel bleibt", 1, 4, Qt::Key_Up, false, 1, 4);
        Fall("Auf beim ersten Namen bleibt", 2, 0, Qt::Key_Up, false, 2, 0);
        Fall("Auf beim zweiten Namen", 3, 0, Qt::Key_Up, false, 2, 0);
        Fall("Ab im Titel", 1, 4, Qt::Key_Down, false, 2, 4);
        Fall("Ab in die Eingabezeile", 4, 4, Qt::Key_Down, false, 5, 0);
        Fall("Ab in der Eingabezeile bleibt", 5, 0, Qt::Key_Down, false, 5, 0);
        Fall("Umschalt links", 3, 4, Qt::Key_Left, true, 3, 3);
        Fall("Umschalt links zum Namen", 3, 1, Qt::Key_Left, true, 3, 0);
        Fall("Umschalt links beim Namen bleibt", 3, 0, Qt::Key_Left, true, 3, 0);
        Fall("Umschalt links im Titel", 1, 2, Qt::Key_Left, true, 1, 1);
        Fall("Umschalt links im ersten Titel bleibt", 1, 1, Qt::Key_Left, true, 1, 1);
        Fall("Umschalt rechts", 3, 4, Qt::Key_Right, true, 3, 5);
        Fall("Umschalt rechts am Ende bleibt", 3, 16, Qt::Key_Right, true, 3, 16);
        Fall("links bleibt im Feld", 3, 4, Qt::Key_Left, false, 3, 4);
        Fall("rechts bleibt im Feld", 3, 4, Qt::Key_Right, false, 3, 4);
        Fall("Return", 3, 4, Qt::Key_Return, false, 4, 4);
        Fall("Enter auf dem Ziffernblock", 3, 4, Qt::Key_Enter, false, 4, 4);
        Fall("Return in der Eingabezeile bleibt", 5, 0, Qt::Key_Return, false, 5, 0);
        Fall("Bild ab bleibt", 2, 4, Qt::Key_PageDown, false, 2, 4);
    }

    void DieTastenWechselnDieZelle() {
        QFETCH(const int, Zeile);
        QFETCH(const int, Spalte);
        QFETCH(const int, Welche);
        QFETCH(const bool, Umschalt);
        QFETCH(const int, NachZeile);
        QFETCH(const int, NachSpalte);
        Zeigen(Buch);
        Klicken(Zeile, Spalte);
        Taste(Qt::Key(Welche), Umschalt ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(Zelle(), (QPair{NachZeile, NachSpalte}));
        QVERIFY(FeldLiegtAufDerZelle());
        QVERIFY(Feld->hasFocus());
        if (QPair{Zeile, Spalte} != Zelle())
            QCOMPARE(Feld->selectedText(), Feld->text());
        QCOMPARE(Datenbank.AnzSchueler, qint16{4});
    }

    void EscVerwirftUndSperrtDieLoeschknoepfe() {
        Zeigen(Buch);
        Klicken(2, 1);
        Klicken(2, 4);
        Tippen(QStringLiteral("Ulm"));
        Taste(Qt::Key_Escape);
        QVERIFY(!Feld->isVisible());
        QVERIFY(!Knopf("btSFachLoeschen")->isEnabled());
        QVERIFY(!Knopf("btSSchuelerLoeschen")->isEnabled());
        Klassen->setFocus();
        QCOMPARE(Datenbank.Schueler[1].Feld[2], QString());
        QVERIFY(!DatenGeaendert);
    }

    // --- Entry row ---

    void DieEingabezeileNimmtEinenSchuelerMitAllenFaechernAuf() {
        Zeigen(Buch);
        Druecken("btSNeuerSchueler");
        QCOMPARE(Zelle(), (QPair{5, 0}));
        QVERIFY(Feld->hasFocus());
        Tippen(QStringLiteral(" Zander Nora "));
        Taste(Qt::Key_Return);
        QCOMPARE(Spalte(0), Worte("adam Eva|Bauer Anna|Conz Tom|Zander Nora"));
        QCOMPARE(Zelle(), (QPair{6, 0}));
        QVERIFY(FeldLiegtAufDerZelle());
        QCOMPARE(Feld->text(), QString());
        const Schueler& Neuer = Datenbank.Schueler[4];
        QCOMPARE(Neuer.ID, 10004);
        QCOMPARE(Neuer.Name, QStringLiteral("Zander Nora"));
        QCOMPARE(Neuer.Klasse, QStringLiteral("3b"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10004, 50000)].Teilnahme, QStringLiteral("ja"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10004, 50001)].Teilnahme, QStringLiteral("ja"));
        QCOMPARE(NotenIndex(10004, 50002), qint16{-1});
        QVERIFY(DatenGeaendert);
        Tippen(QStringLiteral("Yps Ina"));
        Taste(Qt::Key_Up);
        QCOMPARE(Datenbank.AnzSchueler, qint16{6});
        QCOMPARE(Zelle(), (QPair{6, 0}));
        QCOMPARE(Feld->text(), QStringLiteral("Zander Nora"));
    }

    void DieEingabezeileVerlassenNimmtDenSchuelerEinmalAuf() {
        Zeigen(Buch);
        Druecken("btSNeuerSchueler");
        Tippen(QStringLiteral("Zander Nora"));
        Klicken(2, 0);
        QCOMPARE(Datenbank.AnzSchueler, qint16{5});
        QCOMPARE(Zelle(), (QPair{2, 0}));
        Klassen->setFocus();
        QCOMPARE(Datenbank.AnzSchueler, qint16{5});
    }

    void EineVolleListeMeldetDasUndBehaeltDenGetipptenNamen() {
        Zeigen(Buch);
        Datenbank.AnzNoten = 10001;
        Druecken("btSNeuerSchueler");
        Tippen(QStringLiteral("Zander Nora"));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Index außerhalb des gültigen Bereichs: 10001"));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.AnzSchueler, qint16{4});
        QCOMPARE(Feld->text(), QStringLiteral("Zander Nora"));
        Taste(Qt::Key_Escape);
    }

    // --- Sorting ---

    void EinRechtsklickAufDenKopfSortiertNachDerSpalte() {
        Zeigen(Buch);
        Klicken(1, 1, Qt::RightButton);
        QCOMPARE(Spalte(1), Worte("ja|ja|nein"));
        QCOMPARE(Spalte(0), Worte("Bauer Anna|Conz Tom|adam Eva"));
        QCOMPARE((QList<int>{Tabelle->RowData(2), Tabelle->RowData(4)}), (QList<int>{10003, 10001}));
        QVERIFY(!Feld->isVisible());
        QVERIFY(GridEreignisseAktiv);
        // The choice holds for the next class, and a fill of the view goes back to the name.
        Ansicht->Fuellen();
        QCOMPARE(Spalte(0), Worte("adam Eva|Bauer Anna|Conz Tom"));
    }

    void EinRechtsklickAufEineZeileSortiertNicht() {
        Zeigen(Buch);
        Klicken(3, 1, Qt::RightButton);
        QCOMPARE(Spalte(0), Worte("adam Eva|Bauer Anna|Conz Tom"));
    }

    void SortierenSpeichertErstWasImFeldSteht() {
        Zeigen(Buch);
        Klicken(4, 4);
        Tippen(QStringLiteral("Aalen"));
        Klicken(1, 4, Qt::RightButton);
        QCOMPARE(Datenbank.Schueler[0].Feld[2], QStringLiteral("Aalen"));
        QCOMPARE(Spalte(4), Worte("||Aalen"));
        QVERIFY(!Feld->isVisible());
        QCOMPARE(Datenbank.SchuelerFeldTitel[2], QStringLiteral("Ort"));
    }

    void EineKlasseMitWenigerSpaltenVergisstDieSortierspalte() {
        Zeigen(Buch +
               QStringLiteral("\nKlasse 4a\nSchueler 10009 4a Zander Eva\nSchueler 10010 4a Adam Eva"));
        Klicken(1, 16, Qt::RightButton);
        Klassen->setListIndex(2);
        QCOMPARE(Klassen->currentText(), QStringLiteral("4a"));
        QCOMPARE(Spalte(0), Worte("Adam Eva|Zander Eva"));
    }

    // --- The box and the grid ---

    void DasFeldFolgtDerZelleBeimRollenUndBeimAendernDerGroesse() {
        QString Viele = Buch;
        for (int i = 0; i < 60; ++i)
            Viele += QStringLiteral("\nSchueler %1 3b Name%2 Tom").arg(10100 + i).arg(i);
        Zeigen(Viele);
        Klicken(5, 4);
        Tippen(QStringLiteral("Ulm"));
        Tabelle->verticalScrollBar()->setValue(20);
        QVERIFY(FeldLiegtAufDerZelle());
        Tabelle->verticalScrollBar()->setValue(Tabelle->verticalScrollBar()->maximum());
        QVERIFY(!Tabelle->rect().intersects(Feld->geometry())); // out of sight with its cell
        Tabelle->verticalScrollBar()->setValue(0);
        Fenster->resize(700, 400);
        QTRY_VERIFY(FeldLiegtAufDerZelle());
        QCOMPARE(Feld->text(), QStringLiteral("Ulm"));
        Ansicht->Fuellen();
        QVERIFY(!Feld->isVisible());
    }

    // --- Classes and buttons ---

    void EineGetippteKlasseWirdNachFrageAngelegtUndGezeigt() {
        Zeigen(Buch);
        Druecken("btSNeueKlasse");
        QVERIFY(Klassen->lineEdit()->hasSelectedText());
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("4a"));
        Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie eine neue Klasse mit dem Namen 4a erstellen?"),
                                Antwort::Ja);
        Taste(Qt::Key_Return);
        QCOMPARE(Klassen->currentText(), QStringLiteral("4a"));
        QCOMPARE(Klassen->ListIndex(), 2);
        QCOMPARE(AktKlasse, QStringLiteral("4a"));
        QCOMPARE(Tabelle->Rows(), 3);
        QCOMPARE(Datenbank.AnzKlassen, qint16{3});
    }

    void EinTextOhneZifferInDerKlassenlisteBleibtStehen() {
        Zeigen(Buch);
        Druecken("btSNeueKlasse");
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("abc"));
        Taste(Qt::Key_Return);
        QCOMPARE(Klassen->currentText(), QStringLiteral("abc"));
        QCOMPARE(Datenbank.AnzKlassen, qint16{2});
    }

    void EinSchuelerGehoertZurGezeigtenKlasseAuchWennEinAndererTextInDerKlassenlisteSteht() {
        Zeigen(Buch);
        Druecken("btSNeueKlasse");
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("abc"));
        Klicken(5, 0);
        Tippen(QStringLiteral("Zander Nora"));
        Taste(Qt::Key_Return);
        QCOMPARE(Datenbank.Schueler[4].Name, QStringLiteral("Zander Nora"));
        QCOMPARE(Datenbank.Schueler[4].Klasse, QStringLiteral("3b"));
        QCOMPARE(Klassen->currentText(), QStringLiteral("3b"));
        QCOMPARE(Spalte(0), Worte("adam Eva|Bauer Anna|Conz Tom|Zander Nora"));
        QCOMPARE(Zelle(), (QPair{6, 0}));
    }

    void DerAssistentFuelltDieListeNeu() {
        Zeigen(Buch);
        Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [](QDialog& Dialog) {
            QCOMPARE(Dialog.findChild<QLineEdit*>(QStringLiteral("txtKlasse"))->text(), QStringLiteral("3b"));
            QTest::keyClicks(Dialog.findChild<QLineEdit*>(QStringLiteral("txtFach")),
                             QStringLiteral("Sport"));
            QTest::mouseClick(Dialog.findChild<QPushButton*>(QStringLiteral("btEnde")), Qt::LeftButton);
        });
        Druecken("btSNeuesFach");
        QCOMPARE(Zeile(1, 1, 3), Worte("Mathe|Religion*|Sport"));
        QCOMPARE(Spalte(3), Worte("ja|ja|ja"));
    }

    void EinFachWirdNachFrageGeloescht() {
        Zeigen(Buch);
        Klicken(3, 2);
        const QString Frage =
            QStringLiteral("Wollen Sie das Fach Religion* wirklich löschen?\rDie Notendaten aller "
                           "Schüler gehen dabei verloren!!!");
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Nein);
        Druecken("btSFachLoeschen");
        QCOMPARE(Datenbank.AnzFaecher, qint16{3});
        QVERIFY(!Feld->isVisible()); // refilled also on No
        Klicken(3, 2);
        Welt.Boxen.ErwarteFrage(Frage, Antwort::Ja);
        Druecken("btSFachLoeschen");
        QCOMPARE(Datenbank.AnzFaecher, qint16{2});
        QCOMPARE(Zeile(1, 1, 2), Worte("Mathe|Strasse"));
    }

    void EinSchuelerWirdNachFrageGeloescht() {
        Zeigen(Buch);
        Klicken(4, 0);
        Welt.Boxen.ErwarteFrage(QStringLiteral("Soll der Schüler wirklich gelöscht werden?"), Antwort::Ja);
        Druecken("btSSchuelerLoeschen");
        QCOMPARE(Spalte(0), Worte("adam Eva|Bauer Anna"));
        QCOMPARE(Datenbank.ZSchueler[0].Name, QStringLiteral("Conz Tom"));
    }

    void EineKlasseWirdNachFrageGeloescht() {
        Zeigen(Buch);
        Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie die Klasse 3b wirklich löschen?"), Antwort::Ja);
        Druecken("btSKlasseLoeschen");
        QCOMPARE(Klassen->currentText(), QStringLiteral("3c"));
        QCOMPARE(Zeile(1, 1, 2), Worte("Deutsch|Strasse"));
        QCOMPARE(Datenbank.AnzSchueler, qint16{1});
    }

    void EinNeinZurKlasseLaesstZelleUndSortierungStehen() {
        Zeigen(Buch);
        Klicken(1, 1, Qt::RightButton);
        Klicken(3, 4);
        Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie die Klasse 3b wirklich löschen?"), Antwort::Nein);
        Druecken("btSKlasseLoeschen");
        QCOMPARE(Spalte(0), Worte("Bauer Anna|Conz Tom|adam Eva"));
        QCOMPARE(Zelle(), (QPair{3, 4}));
        QVERIFY(FeldLiegtAufDerZelle());
        QVERIFY(Knopf("btSSchuelerLoeschen")->isEnabled());
    }

    void DieUebernahmeAusAltenKlassenIstGesperrt() {
        Zeigen(Buch);
        QVERIFY(Knopf("btSAlteKlassen")->isVisible());
        QVERIFY(!Knopf("btSAlteKlassen")->isEnabled());
    }

    void JedesElementHatEinenNamenFuerVorleseprogramme() {
        Zeigen(Buch);
        for (const char* Name : {"cbSKlasse", "tblSSchueler", "txtSEingabe", "btSNeuesFach",
                                 "btSFachLoeschen", "btSNeuerSchueler", "btSSchuelerLoeschen",
                                 "btSNeueKlasse", "btSKlasseLoeschen", "btSAlteKlassen"}) {
            auto* Auskunft = QAccessible::queryAccessibleInterface(Teil<QWidget>(Name));
            QVERIFY2(!Auskunft->text(QAccessible::Name).isEmpty(), Name);
        }
    }
};

TESTKLASSE(AnsichtSTest)
#include "tst_ansichts.moc"
