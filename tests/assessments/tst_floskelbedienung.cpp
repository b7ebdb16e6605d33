#include "Beurteilungsfenster.h"

#include "common/Testprogramm.h"
#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "core/Uhr.h"

#include <QtTest>

/// Phrases by mouse and editor: what a text belongs to, and how long a hint stands.
class TestFloskelbedienung : public QObject {
    Q_OBJECT

    Testwelt Welt;
    std::unique_ptr<Beurteilungsfenster> F;

    const QString Schreibhinweis =
        QStringLiteral("Schreiben/Ändern Sie die Formulierung so, wie wenn Sie sie für den ausgewählten "
                       "Schüler schreiben würden.");
    const QString Klickhinweis =
        QStringLiteral("Zum Ändern der Formulierung noch einmal auf die Formulierung klicken!");

    void EditorOeffnen(int Zeile) {
        F->KlickAufFloskel(Zeile);
        UhrStellen(Jetzt().addMSecs(900));
        F->KlickAufFloskel(Zeile);
    }

    /// Leaving the editor will be answered by a message.
    void UnerlaubtesTippen() {
        Lernbereiche[0].Formulierung[0] = QStringLiteral("[ alt");
        F->Ansicht->FormulierungenFuellen();
        EditorOeffnen(0);
        F->Editor().selectAll();
        QTest::keyClicks(&F->Editor(), QStringLiteral("neu]"));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Diese Formulierung darf nicht mit \"]\" enden"));
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        F = std::make_unique<Beurteilungsfenster>();
        F->KlickAufSchueler(2); // Bauer Anna
    }
    void cleanup() {
        F.reset();
        Welt.Aufraeumen();
    }

    void EinAbgelehnterTextTrifftKeineAndereFormulierung() {
        UnerlaubtesTippen();
        F->KlickAufFloskel(1);
        QTRY_VERIFY(F->Editor().hasFocus());
        QCOMPARE(F->Floskeln().Row(), 0);
        F->Editor().selectAll();
        QTest::keyClicks(&F->Editor(), QStringLiteral("gut"));
        F->Baum().setFocus();
        QCOMPARE(F->Gespeichert(0).mid(0, 2),
                 QStringList({QStringLiteral("[ gut"), QStringLiteral("o er liest.")}));
    }

    void EinAbgelehnterTextFolgtNichtInEinenAnderenBereich() {
        UnerlaubtesTippen();
        F->KlickAufKnoten(1);
        QCoreApplication::processEvents();
        QVERIFY(F->Editor().isHidden());
        QCOMPARE(F->Gespeichert(0).first(), QStringLiteral("[ alt"));
        QCOMPARE(F->Gespeichert(1), QStringList(QStringLiteral("o vier")));
    }

    void EinGeschuetztesLeerzeichenBleibtImEditor() {
        const QString Alt = QStringLiteral("o 10\u00A0kg.");
        Lernbereiche[0].Formulierung[0] = Alt;
        F->Ansicht->FormulierungenFuellen();
        EditorOeffnen(0);
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QCOMPARE(Lernbereiche[0].Formulierung[0], Alt);
        QVERIFY(!FormulierungenGeaendert);
    }

    void EinGeschuetztesLeerzeichenBleibtInDerBeurteilung() {
        F->Text().Einfuegen(QStringLiteral("10\u00A0kg\r\nund mehr"));
        QCOMPARE(F->Text().Text(), QStringLiteral("10\u00A0kg\r\nund mehr"));
    }

    void EnterIstEinKlickUndBeginntEineNeueFormulierung() {
        F->Floskeln().Enter(4, 0);
        QVERIFY(F->Editor().isVisible());
        QCOMPARE(F->Hinweis, Schreibhinweis);
    }

    void ZweiLangsameEnterOeffnenDenEditor() {
        F->Floskeln().Enter(1, 0);
        QCOMPARE(F->Hinweis, Klickhinweis);
        UhrStellen(Jetzt().addMSecs(900));
        F->Floskeln().Enter(1, 0);
        QVERIFY(F->Editor().isVisible());
    }

    void DerSchreibhinweisStehtBisDerEditorGeht() {
        F->KlickAufFloskel(4);
        QCOMPARE(F->Hinweis, Schreibhinweis);
        QTest::keyClick(&F->Editor(), Qt::Key_Escape);
        QVERIFY(F->Editor().isHidden());
        QCOMPARE(F->Hinweis, QString());
    }

    void EinDruckUnterDenZeilenGiltDerLeerenWennSieDieAktuelleIst() {
        F->KlickAufKnoten(2);
        QCOMPARE(F->Floskeln().Rows(), 1);
        QCOMPARE(F->Floskeln().Row(), 0);
        QWidget* Flaeche = F->Floskeln().viewport();
        QTest::mouseClick(Flaeche, Qt::LeftButton, {}, QPoint(20, Flaeche->height() - 5));
        QVERIFY(F->Editor().isVisible());
    }

    void WerAufDerEigenenZeileAblegtLiestDenKlickhinweis() {
        F->Floskeln().setCell(1, 0);
        F->Ablegen(*F->Floskeln().viewport(), Ziehart::Formulierung, F->FloskelOrt(1));
        QCOMPARE(F->Hinweis, Klickhinweis);
    }

    void EinKlickAufDenKopfLaesstDieBeurteilungOffen() {
        QVERIFY(F->Text().isVisible());
        Gitter& Liste = F->Schueler();
        QTest::mouseClick(Liste.viewport(), Qt::LeftButton, {},
                          Liste.viewport()->mapFrom(&Liste, Liste.CellRect(0, 1).center()));
        QVERIFY(F->Text().isVisible());
        QCOMPARE(Liste.Row(), 2);
        QTest::mouseClick(&F->Teil("obBMännlich"), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(Datenbank.Schueler[SchuelerIndex(Liste.RowData(2))].Feld[5], QStringLiteral("m"));
    }

    void DieTabelleHatVonAnfangAnEineAktuelleZeile() {
        F.reset();
        F = std::make_unique<Beurteilungsfenster>();
        QCOMPARE(F->Floskeln().Row(), 0);
    }

    void OhneKlasseOeffnetAuchEnterNichts() {
        F->Schueler().setEnabled(false);
        QTest::keyClick(&F->Text(), Qt::Key_Escape);
        QVERIFY(F->Text().isHidden());
        F->Schueler().Enter(1, 1);
        QVERIFY(F->Text().isHidden());
    }
};

TESTKLASSE(TestFloskelbedienung)

#include "tst_floskelbedienung.moc"
