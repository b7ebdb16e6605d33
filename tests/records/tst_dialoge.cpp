#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "controls/Textfeld.h"
#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "records/Satzdialoge.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace {

template <class Art>
Art* Teil(const QWidget& Fenster, const QString& Name) {
    auto* Gefunden = Fenster.findChild<Art*>(Name);
    if (!Gefunden)
        qFatal("kein %s", qPrintable(Name));
    return Gefunden;
}

QPushButton* Knopf(const QWidget& Fenster, const QString& Name) {
    return Teil<QPushButton>(Fenster, Name);
}

void Druecken(const QWidget& Fenster, const QString& Name) {
    QTest::mouseClick(Knopf(Fenster, Name), Qt::LeftButton);
}

void Tippen(const QWidget& Fenster, const QString& Name, const QString& Text) {
    auto* Feld = Teil<Textfeld>(Fenster, Name);
    QTest::mouseClick(Feld, Qt::LeftButton);
    Feld->selectAll();
    QTest::keyClicks(Feld, Text);
}

void ZelleKlicken(Gitter& Tabelle, int Zeile, int Spalte) {
    const QPoint Ort = Tabelle.viewport()->mapFrom(&Tabelle, Tabelle.CellRect(Zeile, Spalte).center());
    QTest::mouseClick(Tabelle.viewport(), Qt::LeftButton, {}, Ort);
}

QStringList Spalte(const Gitter& Tabelle, int Nummer) {
    QStringList Texte;
    for (int Zeile = 0; Zeile < Tabelle.Rows(); ++Zeile)
        Texte.append(Tabelle.TextMatrix(Zeile, Nummer));
    return Texte;
}

QStringList Texte(const char* Mit) {
    return QString::fromUtf8(Mit).split(u'|');
}

const QString Fach1 = QStringLiteral("dlgNeuesFach1");
const QString Fach2 = QStringLiteral("dlgNeuesFach2");
const QString Schueler1 = QStringLiteral("dlgNeuerSchueler1");
const QString Schueler11 = QStringLiteral("dlgNeuerSchueler11");
const QString Schueler2 = QStringLiteral("dlgNeuerSchueler2");
const QString Auto = QStringLiteral("dlgAutoTeilnahme");

} // namespace

class DialogeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Schritte = std::make_unique<Dialogschritte>();
    }
    void cleanup() {
        Schritte.reset();
        Welt.Aufraeumen();
    }

    void DerAssistentZeigtDieVorgegebenenTexte() {
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) {
            QCOMPARE(Dialog.windowTitle(),
                     QStringLiteral("Assistent zum Anlegen neuer Klassen und Fächer - Schritt 1 von 2"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbEinleitung"))->text(),
                     QStringLiteral("Sie wollen ein neues Fach einrichten. Wenn die Angaben korrekt sind, "
                                    "klicken Sie bitte auf 'Weiter>' !"));
            QCOMPARE(Teil<QGroupBox>(Dialog, QStringLiteral("fmZusammengelegt"))->title(),
                     QStringLiteral("Hinweis für zusammengelegte Klassen:"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbZusammengelegt"))->text(),
                     QStringLiteral("Wenn Sie ein Fach in zusammengelegten Klassen unterrichten, geben Sie "
                                    "dazu als Klasse z.B. \"3bc\" ein!"));
            QCOMPARE(Teil<QGroupBox>(Dialog, QStringLiteral("fmGleichnamig"))->title(),
                     QStringLiteral("Hinweis für gleichnamige Klassen an mehreren Schulen:"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbGleichnamig"))->text(),
                     QStringLiteral("Wenn Sie an mehreren Schulen unterrichten und dort gleichnamige Klassen "
                                    "haben, setzen Sie zur Unterscheidung einen Buchstaben (z.B. den "
                                    "Anfangsbuchstaben der Schule) vor die Klassenbezeichnung, also z.B. "
                                    "\"A1a\" oder \"B1a\"."));
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtKlasse"))->toolTip(),
                     QStringLiteral("z.B. \"1a\", \"1ab\", \"A1a\", \"A1ab\""));
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtFach"))->toolTip(),
                     QStringLiteral("z.B.\"Religion (kath.)\", \"Mathe\", etc."));
            QCOMPARE(Knopf(Dialog, QStringLiteral("btWeiter"))->text(), QStringLiteral("Weiter>"));
            QCOMPARE(Knopf(Dialog, QStringLiteral("btEnde"))->text(), QStringLiteral("Ende"));
            QCOMPARE(Knopf(Dialog, QStringLiteral("btAbbrechen"))->text(), QStringLiteral("Abbrechen"));
            Druecken(Dialog, QStringLiteral("btAbbrechen"));
        });
        QVERIFY(!NeuesFachAssistent(nullptr, {}, {}));
        QCOMPARE(Datenbank.AnzFaecher, qint16{0});
        QVERIFY(!DatenGeaendert);
    }

    void WeiterUndEndeVerlangenFachUndKlassenstufe_data() {
        QTest::addColumn<QString>("Klasse");
        QTest::addColumn<QString>("Fach");
        QTest::addColumn<bool>("Erlaubt");
        QTest::newRow("gut") << QStringLiteral("3b") << QStringLiteral("Mathe") << true;
        QTest::newRow("ohne Fach") << QStringLiteral("3b") << QString() << false;
        QTest::newRow("ohne Ziffer") << QStringLiteral("abc") << QStringLiteral("Mathe") << false;
        QTest::newRow("Stufe 0") << QStringLiteral("0a") << QStringLiteral("Mathe") << false;
        QTest::newRow("Stufe 13") << QStringLiteral("13") << QStringLiteral("Mathe") << true;
        QTest::newRow("Stufe 14") << QStringLiteral("14a") << QStringLiteral("Mathe") << false;
    }

    void WeiterUndEndeVerlangenFachUndKlassenstufe() {
        QFETCH(const QString, Klasse);
        QFETCH(const QString, Fach);
        QFETCH(const bool, Erlaubt);
        Schritte->Erwarte(Fach1, [&](QDialog& Dialog) {
            Tippen(Dialog, QStringLiteral("txtKlasse"), Klasse);
            Tippen(Dialog, QStringLiteral("txtFach"), Fach);
            QCOMPARE(NeueKlasseName, Klasse);
            QCOMPARE(NeuesFachName, Fach);
            QCOMPARE(Knopf(Dialog, QStringLiteral("btWeiter"))->isEnabled(), Erlaubt);
            QCOMPARE(Knopf(Dialog, QStringLiteral("btEnde"))->isEnabled(), Erlaubt);
            QTest::keyClick(&Dialog, Qt::Key_Escape);
        });
        NeuesFachAssistent(nullptr, {}, {});
    }

    void DerErsteFokusLiegtAufDemErstenLeerenFeld_data() {
        QTest::addColumn<QString>("Klasse");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("beide leer") << QString() << QStringLiteral("txtKlasse");
        QTest::newRow("Fach leer") << QStringLiteral("3b") << QStringLiteral("txtFach");
    }

    void DerErsteFokusLiegtAufDemErstenLeerenFeld() {
        QFETCH(const QString, Klasse);
        QFETCH(const QString, Erwartet);
        Schritte->Erwarte(Fach1, [&](QDialog& Dialog) {
            QTRY_VERIFY(Dialog.focusWidget());
            QCOMPARE(Dialog.focusWidget()->objectName(), Erwartet);
            Dialog.close();
        });
        NeuesFachAssistent(nullptr, Klasse, {});
        QVERIFY(!DialogErgebnis);
    }

    void ReturnFuehrtVonDerKlasseZumFachUndWeiter() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nSchueler 10000 3b Bauer Anna"));
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) {
            Tippen(Dialog, QStringLiteral("txtKlasse"), QStringLiteral("3b"));
            QTest::keyClick(Dialog.focusWidget(), Qt::Key_Return);
            QCOMPARE(Dialog.focusWidget()->objectName(), QStringLiteral("txtFach"));
            QTest::keyClick(Dialog.focusWidget(), Qt::Key_Return);
            QVERIFY(Dialog.isVisible()); // not yet allowed
            QTest::keyClicks(Dialog.focusWidget(), QStringLiteral("Mathe"));
            QTest::keyClick(Dialog.focusWidget(), Qt::Key_Return);
        });
        Schritte->Erwarte(Fach2, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btEnde")); });
        QVERIFY(NeuesFachAssistent(nullptr, {}, {}));
        QCOMPARE(Datenbank.AnzFaecher, qint16{1});
        QCOMPARE(AktFachID, 50000);
    }

    void SchrittZweiZeigtDieSchuelerSortiertMitIhrenNummern() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nSchueler 10000 3b zander Eva\nSchueler 10001 3c Bauer Anna\n"
                                     "Schueler 10002 3b Äpfel Tom\nSchueler 10003 3a Fremd Max"));
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btWeiter")); });
        Schritte->Erwarte(Fach2, [](QDialog& Dialog) {
            QCOMPARE(Dialog.windowTitle(),
                     QStringLiteral("Assistent zum Anlegen neuer Klassen und Fächer - Schritt 2 von 2"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbEinleitung"))->text(),
                     QStringLiteral("Wählen Sie jetzt die Schüler aus, die an dem Fach teilnehmen:"));
            const auto& Tabelle = *Teil<Gitter>(Dialog, QStringLiteral("tblTeilnehmer"));
            QCOMPARE(Spalte(Tabelle, 0), Texte("Schüler|Äpfel Tom|Bauer Anna|zander Eva"));
            QCOMPARE(Spalte(Tabelle, 1), Texte("Teilnahme|ja|ja|ja"));
            QCOMPARE(Spalte(Tabelle, 2), Texte("|10002|10001|10000"));
            QVERIFY(Tabelle.isColumnHidden(2));
            const double Breite = Tabelle.viewport()->width();
            QVERIFY(qAbs(Tabelle.ColWidth(0) / Breite - 0.63) < 0.01);
            QVERIFY(qAbs(Tabelle.ColWidth(1) / Breite - 0.37) < 0.01);
            for (const auto& [Name, Text] : {std::pair("btAlle", "Alle auswählen"),
                                             {"btKeinen", "Auswahl löschen"},
                                             {"btZurück", "<Zurück"},
                                             {"btEnde", "Ende"},
                                             {"btAbbrechen", "Abbrechen"}})
                QCOMPARE(Knopf(Dialog, QString::fromUtf8(Name))->text(), QString::fromUtf8(Text));
            Druecken(Dialog, QStringLiteral("btAbbrechen"));
        });
        QVERIFY(!NeuesFachAssistent(nullptr, QStringLiteral("3bc"), QStringLiteral("Religion")));
        QCOMPARE(Datenbank.AnzFaecher, qint16{0});
    }

    void TeilnahmeWirdDurchKlickUndLeertasteUmgekehrtUndSoGespeichert() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nSchueler 10000 3b Adam Eva\nSchueler 10001 3b Bauer Anna\n"
                                     "Schueler 10002 3b Conz Tom"));
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btWeiter")); });
        Schritte->Erwarte(Fach2, [](QDialog& Dialog) {
            auto& Tabelle = *Teil<Gitter>(Dialog, QStringLiteral("tblTeilnehmer"));
            Druecken(Dialog, QStringLiteral("btKeinen"));
            QCOMPARE(Spalte(Tabelle, 1), Texte("Teilnahme|nein|nein|nein"));
            Druecken(Dialog, QStringLiteral("btAlle"));
            QCOMPARE(Spalte(Tabelle, 1), Texte("Teilnahme|ja|ja|ja"));
            ZelleKlicken(Tabelle, 2, 1);
            ZelleKlicken(Tabelle, 3, 0);
            ZelleKlicken(Tabelle, 3, 1);
            ZelleKlicken(Tabelle, 0, 1);
            QCOMPARE(Spalte(Tabelle, 1), Texte("Teilnahme|ja|nein|ja"));
            ZelleKlicken(Tabelle, 1, 0);
            QTest::keyClick(&Tabelle, Qt::Key_Space);
            QTest::keyClick(&Tabelle, Qt::Key_Down);
            QTest::keyClick(&Tabelle, Qt::Key_Space);
            QTest::keyClick(&Tabelle, Qt::Key_Space);
            QCOMPARE(Spalte(Tabelle, 1), Texte("Teilnahme|ja|nein|ja"));
            Druecken(Dialog, QStringLiteral("btEnde"));
        });
        QVERIFY(NeuesFachAssistent(nullptr, QStringLiteral("3b"), QStringLiteral("Mathe")));
        QCOMPARE(Datenbank.AnzNoten, qint16{3});
        QCOMPARE(Datenbank.Noten[NotenIndex(10000, 50000)].Teilnahme, QStringLiteral("ja"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10001, 50000)].Teilnahme, QStringLiteral("nein"));
    }

    void ZurueckBehaeltDieEingaben() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nSchueler 10000 3b Adam Eva"));
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) {
            Tippen(Dialog, QStringLiteral("txtKlasse"), QStringLiteral("3b"));
            Tippen(Dialog, QStringLiteral("txtFach"), QStringLiteral("Mathe"));
            Druecken(Dialog, QStringLiteral("btWeiter"));
        });
        Schritte->Erwarte(Fach2, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btZurück")); });
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) {
            QVERIFY(WizardZurueck);
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtKlasse"))->text(), QStringLiteral("3b"));
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtFach"))->text(), QStringLiteral("Mathe"));
            Druecken(Dialog, QStringLiteral("btEnde"));
        });
        QVERIFY(NeuesFachAssistent(nullptr, {}, {}));
        QCOMPARE(Datenbank.AnzFaecher, qint16{1});
        QCOMPARE(Datenbank.Noten[0].Teilnahme, QStringLiteral("ja"));
    }

    void EndeInSchrittEinsLegtOhneFrageAn() {
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btEnde")); });
        QVERIFY(NeuesFachAssistent(nullptr, QStringLiteral("3b"), QStringLiteral("Mathe")));
        QCOMPARE(Datenbank.AnzFaecher, qint16{1});
        QCOMPARE(Datenbank.AnzNoten, qint16{0});
        QCOMPARE(Datenbank.Klassen[0].Name, QStringLiteral("3b"));
    }

    void OhneSchuelerEndetSchrittZweiVonSelbst() {
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btWeiter")); });
        QVERIFY(NeuesFachAssistent(nullptr, QStringLiteral("3bc"), QStringLiteral("Religion")));
        QCOMPARE(Datenbank.Faecher[0].Klasse, QStringLiteral("3bc"));
        QCOMPARE(Datenbank.AnzKlassen, qint16{2});
    }

    void EinVollesFeldMeldetDenFehlerUndLegtNichtsAn() {
        Datenbank.AnzFaecher = 501;
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btEnde")); });
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Index außerhalb des gültigen Bereichs: 501"));
        QVERIFY(!NeuesFachAssistent(nullptr, QStringLiteral("3b"), QStringLiteral("Mathe")));
        QCOMPARE(Datenbank.AnzKlassen, qint16{0});
        QVERIFY(!DatenGeaendert);
    }

    void ZuVieleBuchstabenWerdenGemeldet() {
        Schritte->Erwarte(Fach1, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btWeiter")); });
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Zu viele Klassen"));
        QVERIFY(!NeuesFachAssistent(nullptr, QStringLiteral("3abcdefghijk"), QStringLiteral("Mathe")));
        QCOMPARE(Datenbank.AnzFaecher, qint16{0});
    }

    void EinNeuerSchuelerWaehltSeineFaecher() {
        TestbuchLaden(
            QStringLiteral("Klasse 3b\nFach 50000 3bc Religion\nFach 50001 3b Mathe\nFach 50002 3a Sport"));
        Schritte->Erwarte(Schueler2, [](QDialog& Dialog) {
            QCOMPARE(Dialog.windowTitle(), QStringLiteral("Teilnahmeliste"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbEinleitung"))->text(),
                     QStringLiteral(
                         "Bitte wählen Sie aus, an welchen weiteren Fächern der Schüler noch teilnimmt:"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbKlasse"))->text(), QStringLiteral("3b"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbSchueler"))->text(),
                     QStringLiteral("Bauer Anna"));
            auto& Tabelle = *Teil<Gitter>(Dialog, QStringLiteral("tblTeilnahme"));
            QCOMPARE(Spalte(Tabelle, 0), Texte("Fach|Mathe|Religion"));
            QCOMPARE(Spalte(Tabelle, 2), Texte("|50001|50000"));
            ZelleKlicken(Tabelle, 0, 0);
            ZelleKlicken(Tabelle, 2, 1);
            QCOMPARE(Spalte(Tabelle, 1), Texte("Teilnahme|ja|nein"));
            Druecken(Dialog, QStringLiteral("OKButton"));
        });
        QVERIFY(NeuerSchueler(nullptr, QStringLiteral("3b"), QStringLiteral("Bauer Anna")));
        QCOMPARE(AktSchuelerID, 10000);
        QCOMPARE(Datenbank.Schueler[0].Klasse, QStringLiteral("3b"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10000, 50000)].Teilnahme, QStringLiteral("nein"));
        QCOMPARE(Datenbank.Noten[NotenIndex(10000, 50001)].Teilnahme, QStringLiteral("ja"));
        QCOMPARE(NotenIndex(10000, 50002), qint16{-1});
    }

    void AuchDasSchliessfeldLegtDenSchuelerAn_data() {
        QTest::addColumn<int>("Weg");
        QTest::newRow("Schliessfeld") << 0;
        QTest::newRow("Escape") << 1;
    }

    void AuchDasSchliessfeldLegtDenSchuelerAn() {
        QFETCH(const int, Weg);
        TestbuchLaden(QStringLiteral("Klasse 3b\nFach 50001 3b Mathe"));
        Schritte->Erwarte(Schueler2, [Weg](QDialog& Dialog) {
            if (Weg == 0)
                Dialog.close();
            else
                QTest::keyClick(&Dialog, Qt::Key_Escape);
        });
        QVERIFY(NeuerSchueler(nullptr, QStringLiteral("3b"), QStringLiteral("Bauer Anna")));
        QCOMPARE(Datenbank.AnzSchueler, qint16{1});
        QCOMPARE(Datenbank.AnzNoten, qint16{1});
    }

    void OhneFaecherEntstehtDerSchuelerOhneFrage() {
        QVERIFY(NeuerSchueler(nullptr, QStringLiteral("3b"), QStringLiteral("Bauer Anna")));
        QCOMPARE(Datenbank.AnzSchueler, qint16{1});
        QCOMPARE(Datenbank.AnzNoten, qint16{0});
    }

    void GedrehteNamenWerdenZurueckgedreht() {
        NamenUmgekehrt = true;
        NeuerSchueler(nullptr, QStringLiteral("3b"), QStringLiteral("Anna Bauer"));
        QCOMPARE(Datenbank.Schueler[0].Name, QStringLiteral("Bauer Anna"));
    }

    void EinVollesFeldMeldetDenFehlerUndLegtKeinenHalbenSchuelerAn() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nFach 50001 3b Mathe"));
        Datenbank.AnzNoten = 10001;
        Schritte->Erwarte(Schueler2, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("OKButton")); });
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Index außerhalb des gültigen Bereichs: 10001"));
        QVERIFY(!NeuerSchueler(nullptr, QStringLiteral("3b"), QStringLiteral("Bauer Anna")));
        QCOMPARE(Datenbank.AnzSchueler, qint16{0});
        QCOMPARE(NaechsteSchuelerID, 10000);
        QCOMPARE(AktSchuelerID, 0);
    }

    void DieKlassenwahlMerktSichDieLetzteKlasse() {
        LetzteKlassenWahl = 1;
        Schritte->Erwarte(Schueler11, [](QDialog& Dialog) {
            QCOMPARE(Dialog.windowTitle(), QStringLiteral("Neuen Schüler aufnehmen:"));
            auto& Liste = *Teil<Kombinationsfeld>(Dialog, QStringLiteral("cbKlasse"));
            QCOMPARE(Liste.itemText(0), QStringLiteral("3c"));
            QCOMPARE(Liste.itemText(1), QStringLiteral("3b"));
            QCOMPARE(Liste.ListIndex(), 1);
            QCOMPARE(Dialog.focusWidget()->objectName(), QStringLiteral("txtSchuelername"));
            QVERIFY(!Knopf(Dialog, QStringLiteral("OKButton"))->isEnabled());
            QTest::keyClick(&Liste, Qt::Key_Up);
            QCOMPARE(LetzteKlassenWahl, qint16{0});
            Tippen(Dialog, QStringLiteral("txtSchuelername"), QStringLiteral("Bauer Anna"));
            QVERIFY(Knopf(Dialog, QStringLiteral("OKButton"))->isEnabled());
            QTest::keyClick(Dialog.focusWidget(), Qt::Key_Return);
        });
        QVERIFY(NeuerSchuelerMitKlassenwahl(nullptr, {50, 50}, QStringLiteral("3bc Religion")));
        QCOMPARE(Datenbank.Schueler[0].Klasse, QStringLiteral("3c"));
        QVERIFY(DialogErgebnis);
    }

    void EscUndPfeilAufVerlassenDieKlassenwahl_data() {
        QTest::addColumn<int>("Taste");
        QTest::newRow("Esc") << int(Qt::Key_Escape);
        QTest::newRow("Auf") << int(Qt::Key_Up);
        QTest::newRow("Return ohne Namen, dann Abbrechen") << int(Qt::Key_Return);
    }

    void EscUndPfeilAufVerlassenDieKlassenwahl() {
        QFETCH(const int, Taste);
        DialogErgebnis = true;
        Schritte->Erwarte(Schueler11, [Taste](QDialog& Dialog) {
            QTest::keyClick(Dialog.focusWidget(), Qt::Key(Taste));
            QCOMPARE(Dialog.isVisible(), Taste == Qt::Key_Return);
            if (Dialog.isVisible())
                Druecken(Dialog, QStringLiteral("CancelButton"));
        });
        QVERIFY(!NeuerSchuelerMitKlassenwahl(nullptr, {50, 50}, QStringLiteral("3bc Religion")));
        QVERIFY(!DialogErgebnis);
        QCOMPARE(Datenbank.AnzSchueler, qint16{0});
    }

    void DieProbeNimmtJemandenNurFuerSichAuf() {
        ZSchuelerArt = 2;
        Schritte->Erwarte(Schueler1, [](QDialog& Dialog) {
            auto* Nur = Teil<QRadioButton>(Dialog, QStringLiteral("rbZSchueler1"));
            auto* Klasse = Teil<QRadioButton>(Dialog, QStringLiteral("rbZSchueler2"));
            QCOMPARE(Nur->text(), QStringLiteral("Schüler nur für diese Probe aufnehmen"));
            QCOMPARE(Klasse->text(), QStringLiteral("Schüler in die Klasse 7a aufnehmen"));
            QVERIFY(Klasse->isChecked());
            QVERIFY(!Teil<Kombinationsfeld>(Dialog, QStringLiteral("cbKlasse"))->isVisible());
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtSchuelername"))->toolTip(), QString());
            QTest::mouseClick(Nur, Qt::LeftButton, {}, QPoint(8, Nur->height() / 2));
            QCOMPARE(ZSchuelerArt, 1);
            Tippen(Dialog, QStringLiteral("txtSchuelername"), QStringLiteral("Gast Emil"));
            Druecken(Dialog, QStringLiteral("OKButton"));
        });
        QVERIFY(NeuerSchuelerDerProbe(nullptr, {50, 50}, QStringLiteral("7a Mathe"), 50000, 11));
        QVERIFY(Datenbank.ZSchueler[0] ==
                (ZSchueler{11, 50000, QStringLiteral("Gast Emil"), QString(), QString()}));
        QCOMPARE(Datenbank.AnzSchueler, qint16{0});
        QVERIFY(DialogErgebnis);
    }

    void DieProbeNimmtJemandenInEineVonMehrerenKlassenAuf() {
        ZSchuelerArt = 1;
        Schritte->Erwarte(Schueler1, [](QDialog& Dialog) {
            auto* Nur = Teil<QRadioButton>(Dialog, QStringLiteral("rbZSchueler1"));
            auto* Klasse = Teil<QRadioButton>(Dialog, QStringLiteral("rbZSchueler2"));
            QVERIFY(Nur->isChecked());
            QCOMPARE(Klasse->text(), QStringLiteral("Schüler in die Klasse                    aufnehmen"));
            QTest::mouseClick(Klasse, Qt::LeftButton, {}, QPoint(8, Klasse->height() / 2));
            QCOMPARE(ZSchuelerArt, 2);
            auto& Liste = *Teil<Kombinationsfeld>(Dialog, QStringLiteral("cbKlasse"));
            QVERIFY(Liste.isVisible());
            QTest::keyClick(&Liste, Qt::Key_Down);
            QCOMPARE(Liste.currentText(), QStringLiteral("3b"));
            QCOMPARE(
                Teil<Textfeld>(Dialog, QStringLiteral("txtSchuelername"))->toolTip(),
                QStringLiteral("Nicht vergessen, für den neuen Schüler die richtige Klasse auszuwählen !!"));
            Tippen(Dialog, QStringLiteral("txtSchuelername"), QStringLiteral("Bauer Anna"));
            Druecken(Dialog, QStringLiteral("OKButton"));
        });
        QVERIFY(NeuerSchuelerDerProbe(nullptr, {50, 50}, QStringLiteral("3bc Religion"), 50000, 1));
        QCOMPARE(Datenbank.Schueler[0].Klasse, QStringLiteral("3b"));
        QCOMPARE(Datenbank.AnzZSchueler, qint16{0});
    }

    void DieAutomatischeTeilnahmeNimmtDieZellenDerListe() {
        TestbuchLaden(QStringLiteral(
            "Klasse 3b\nFach 50000 3b Religion\nSchueler 10000 3b Adam Eva\n"
            "Schueler 10001 3b Bauer Anna\nNote 10000 50000 Teilnahme=nein\nNote 10001 50000"));
        Gitter Liste;
        Liste.setCols(16);
        Liste.setRows(5);
        Liste.setFixedRows(2);
        Liste.setColData(1, 50000);
        Liste.setRowData(2, 10000);
        Liste.setRowData(3, 10001);
        Liste.setTextMatrix(2, 1 + 4, QStringLiteral("rk"));
        Liste.setTextMatrix(3, 1 + 4, QStringLiteral("ev"));
        Liste.setCell(1, 1);
        Schritte->Erwarte(Auto, [](QDialog& Dialog) {
            QCOMPARE(Dialog.windowTitle(), QStringLiteral("Teilnahme automatisch ausfüllen"));
            QCOMPARE(Teil<QLabel>(Dialog, QStringLiteral("lbTitel"))->text(),
                     QStringLiteral("Automatische Teilnahme:"));
            QCOMPARE(
                Teil<QLabel>(Dialog, QStringLiteral("lbEinleitung"))->text(),
                QStringLiteral("Alle Schüler nehmen an dem Fach Teil, wenn folgende Bedingung erfüllt ist:"));
            auto& Felder = *Teil<Kombinationsfeld>(Dialog, QStringLiteral("cbVergleich"));
            QCOMPARE(Felder.count(), 14);
            QCOMPARE(Felder.ListIndex(), 0);
            QCOMPARE(Felder.itemText(3), QStringLiteral("Religion"));
            for (int i = 0; i < 3; ++i)
                QTest::keyClick(&Felder, Qt::Key_Down);
            Tippen(Dialog, QStringLiteral("txtVergleich"), QStringLiteral("rk"));
            Druecken(Dialog, QStringLiteral("btOK"));
        });
        QVERIFY(AutoTeilnahme(nullptr, &Liste, 1));
        QVERIFY(DialogErgebnis);
        QVERIFY(DatenGeaendert);
        QCOMPARE(Liste.TextMatrix(2, 1), QStringLiteral("ja"));
        QCOMPARE(Liste.TextMatrix(3, 1), QStringLiteral("nein"));
        QCOMPARE(Datenbank.Noten[0].Teilnahme, QStringLiteral("ja"));
        QCOMPARE(Datenbank.Noten[1].Teilnahme, QStringLiteral("nein"));
        Schritte->Erwarte(Auto, [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btAbbrechen")); });
        DatenGeaendert = false;
        QVERIFY(!AutoTeilnahme(nullptr, &Liste, 1));
        QVERIFY(!DatenGeaendert);
    }

    void EineGetippteKlasseEntstehtNachFrageUndIstGewaehlt() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Liste.setEditText(QStringLiteral("7a"));
        Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie eine neue Klasse mit dem Namen 7a erstellen?"),
                                Antwort::Ja);
        int Klicks = 0;
        connect(&Liste, &Kombinationsfeld::Klick, this, [&Klicks] { ++Klicks; });
        KlasseAnlegen(Liste, true);
        QCOMPARE(Welt.Boxen.Gezeigt[0].Titel, QStringLiteral("Sicherheitsabfrage"));
        QCOMPARE(Datenbank.Klassen[0].Name, QStringLiteral("7a"));
        QCOMPARE(Liste.ListIndex(), 0);
        QCOMPARE(Klicks, 1);
        QVERIFY(DatenGeaendert);
    }

    void EinTextOhneZifferIstKeineKlasseUndBleibtStehen() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Liste.Hinzufuegen(QStringLiteral("7a"));
        Liste.setEditText(QStringLiteral("abc"));
        KlasseAnlegen(Liste, true);
        QCOMPARE(Liste.currentText(), QStringLiteral("abc"));
        QCOMPARE(Liste.ListIndex(), -1);
        QCOMPARE(Datenbank.AnzKlassen, qint16{0});
    }

    void NeinWaehltDieErsteKlasse() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Liste.Hinzufuegen(QStringLiteral("7a"));
        Liste.setEditText(QStringLiteral("8a"));
        Welt.Boxen.ErwarteFrage(QStringLiteral("Wollen Sie eine neue Klasse"), Antwort::Nein);
        KlasseAnlegen(Liste, true);
        QCOMPARE(Liste.currentText(), QStringLiteral("7a"));
        QCOMPARE(Datenbank.AnzKlassen, qint16{0});
        QVERIFY(!DatenGeaendert);
    }

    void EineBekannteKlasseWirdOhneFrageGewaehlt() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Liste.Hinzufuegen(QStringLiteral("7a"));
        Liste.setEditText(QStringLiteral("7a"));
        KlasseAnlegen(Liste, true);
        QCOMPARE(Liste.ListIndex(), 0);
        QCOMPARE(Datenbank.AnzKlassen, qint16{0});
    }

    void OhneFrageUndMitEigenemFuellen() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Liste.setEditText(QStringLiteral("8a"));
        KlasseAnlegen(Liste, false, [&Liste] {
            Liste.Leeren();
            Liste.Hinzufuegen(QStringLiteral("7a"));
            Liste.Hinzufuegen(QStringLiteral("8a"));
        });
        QCOMPARE(Liste.ListIndex(), 1);
        QCOMPARE(Datenbank.Klassen[0].Name, QStringLiteral("8a"));
    }

    void DieHundertzweiteKlasseWirdGemeldet() {
        Datenbank.AnzKlassen = 101;
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Liste.setEditText(QStringLiteral("8a"));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Index außerhalb des gültigen Bereichs: 101"));
        KlasseAnlegen(Liste, false);
        QCOMPARE(Liste.count(), 0);
    }

    void EinGetipptesFachWirdAmErstenLeerzeichenGeteilt_data() {
        QTest::addColumn<QString>("Getippt");
        QTest::addColumn<QString>("Klasse");
        QTest::addColumn<QString>("Fach");
        QTest::newRow("Klasse und Fach") << QStringLiteral("3b Religion (kath.)") << QStringLiteral("3b")
                                         << QStringLiteral("Religion (kath.)");
        QTest::newRow("nur Fach") << QStringLiteral("Mathe") << QString() << QStringLiteral("Mathe");
    }

    void EinGetipptesFachWirdAmErstenLeerzeichenGeteilt() {
        QFETCH(const QString, Getippt);
        QFETCH(const QString, Klasse);
        QFETCH(const QString, Fach);
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        Schritte->Erwarte(Fach1, [&](QDialog& Dialog) {
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtKlasse"))->text(), Klasse);
            QCOMPARE(Teil<Textfeld>(Dialog, QStringLiteral("txtFach"))->text(), Fach);
            Tippen(Dialog, QStringLiteral("txtKlasse"), QStringLiteral("4a"));
            Druecken(Dialog, QStringLiteral("btEnde"));
        });
        int Gefuellt = 0;
        FachAnlegen(nullptr, Liste, Getippt, [&] {
            ++Gefuellt;
            Liste.Leeren();
            Liste.Hinzufuegen(QStringLiteral("3a Anderes"), 49999);
            Liste.Hinzufuegen(QStringLiteral("4a ") + Fach, AktFachID);
        });
        QCOMPARE(Gefuellt, 1);
        QCOMPARE(Liste.ListIndex(), 1);
    }

    void EinAbgebrochenerAssistentFuelltNachTippenNeuAberNichtNachDemKnopf() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        int Gefuellt = 0;
        for (int i = 0; i < 2; ++i)
            Schritte->Erwarte(Fach1,
                              [](QDialog& Dialog) { Druecken(Dialog, QStringLiteral("btAbbrechen")); });
        FachAnlegen(nullptr, Liste, QStringLiteral("3b Mathe"), [&Gefuellt] { ++Gefuellt; });
        QCOMPARE(Gefuellt, 1);
        NeuesFachMitAssistent(nullptr, Liste, [&Gefuellt] { ++Gefuellt; });
        QCOMPARE(Gefuellt, 1);
        QCOMPARE(NeueKlasseName, QString());
    }

    void EinGetippterSchuelerEntstehtUndIstGewaehlt() {
        Kombinationsfeld Liste;
        Liste.setEditable(true);
        SchuelerAnlegen(nullptr, Liste, QStringLiteral("3b"), QStringLiteral("Bauer Anna"), [&Liste] {
            Liste.Leeren();
            Liste.Hinzufuegen(QStringLiteral("Adam Eva"));
            Liste.Hinzufuegen(Datenbank.Schueler[0].Name, Datenbank.Schueler[0].ID);
        });
        QCOMPARE(Liste.AktDatum(), 10000);
    }

    void JederKnopfUndJedesFeldHatEinenNamenFuerVorleseprogramme() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nFach 50000 3b Mathe"));
        Schritte->Erwarte(Schueler1, [](QDialog& Dialog) {
            for (QWidget* Eines : Dialog.findChildren<QWidget*>()) {
                if (Eines->focusPolicy() == Qt::NoFocus || !Eines->isVisible() ||
                    Eines->objectName().isEmpty() || Eines->objectName().startsWith(QStringLiteral("qt_")))
                    continue;
                QAccessibleInterface* Auskunft = QAccessible::queryAccessibleInterface(Eines);
                QVERIFY2(!Auskunft->text(QAccessible::Name).isEmpty(), qPrintable(Eines->objectName()));
            }
            Dialog.close();
        });
        NeuerSchuelerDerProbe(nullptr, {50, 50}, QStringLiteral("3bc Religion"), 50000, 1);
    }

  private:
    Testwelt Welt;
    std::unique_ptr<Dialogschritte> Schritte;
};

TESTKLASSE(DialogeTest)
#include "tst_dialoge.moc"
