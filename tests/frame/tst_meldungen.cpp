#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "frame/Fenstermeldungen.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

namespace {

/// Runs Schritt on the modal dialog that comes up next, and closes it whatever happens.
template <class Dialog>
class Bediener {
  public:
    explicit Bediener(std::function<void(Dialog&)> Schritt) {
        QTimer::singleShot(0, qApp, [this, Schritt = std::move(Schritt)] {
            auto* Offener = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (Offener) {
                Gelaufen = true;
                Schritt(*Offener);
            }
            if (QWidget* Rest = QApplication::activeModalWidget())
                Rest->close();
        });
    }
    bool Gelaufen = false;
};

} // namespace

class TestMeldungen : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Fenstermeldungen Boxen;

    static QStringList Knopftexte(const QMessageBox& Kasten) {
        QStringList Texte;
        for (const QAbstractButton* Knopf : Kasten.findChildren<QAbstractButton*>())
            if (Knopf->isVisible())
                Texte.append(Knopf->objectName() + u' ' + Knopf->text());
        Texte.sort();
        return Texte;
    }

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void DieKnoepfeSindDeutsch() {
        QStringList Texte;
        const Bediener<QMessageBox> Hand([&](QMessageBox& Kasten) { Texte = Knopftexte(Kasten); });
        Boxen.Zeigen({QStringLiteral("Frage?"), {}, Knoepfe::JaNeinAbbrechen, Symbol::Frage});
        QVERIFY(Hand.Gelaufen);
        QCOMPARE(Texte, QStringList({QStringLiteral("btAbbrechen Abbrechen"), QStringLiteral("btJa Ja"),
                                     QStringLiteral("btNein Nein")}));
    }

    void JederKnopfIstSeineAntwort_data() {
        QTest::addColumn<QString>("Name");
        QTest::addColumn<int>("Erwartet");
        QTest::newRow("Ja") << "btJa" << int(Antwort::Ja);
        QTest::newRow("Nein") << "btNein" << int(Antwort::Nein);
        QTest::newRow("Abbrechen") << "btAbbrechen" << int(Antwort::Abbrechen);
    }
    void JederKnopfIstSeineAntwort() {
        QFETCH(QString, Name);
        QFETCH(int, Erwartet);
        const Bediener<QMessageBox> Hand(
            [&](QMessageBox& Kasten) { Kasten.findChild<QPushButton*>(Name)->click(); });
        QCOMPARE(int(Boxen.Zeigen({QStringLiteral("?"), {}, Knoepfe::JaNeinAbbrechen, Symbol::Ohne})),
                 Erwartet);
    }

    void EscapeHeisstDasHarmloseste_data() {
        QTest::addColumn<int>("Auswahl");
        QTest::addColumn<int>("Erwartet");
        QTest::newRow("OK") << int(Knoepfe::Ok) << int(Antwort::Ok);
        QTest::newRow("JaNein") << int(Knoepfe::JaNein) << int(Antwort::Nein);
        QTest::newRow("JaNeinAbbrechen") << int(Knoepfe::JaNeinAbbrechen) << int(Antwort::Abbrechen);
    }
    void EscapeHeisstDasHarmloseste() {
        QFETCH(int, Auswahl);
        QFETCH(int, Erwartet);
        const Bediener<QMessageBox> Hand(
            [](QMessageBox& Kasten) { QTest::keyClick(&Kasten, Qt::Key_Escape); });
        QCOMPARE(int(Boxen.Zeigen({QStringLiteral("?"), {}, Knoepfe(Auswahl), Symbol::Ohne})), Erwartet);
    }

    void DerAnfangsbuchstabeGenuegt() {
        const Bediener<QMessageBox> Hand([](QMessageBox& Kasten) {
            QTest::keyClick(&Kasten, Qt::Key_N);
            // The press is shown for a moment before the box ends.
            QTRY_VERIFY(!Kasten.isVisible());
        });
        QVERIFY(Boxen.Zeigen({QStringLiteral("?"), {}, Knoepfe::JaNeinAbbrechen, Symbol::Ohne}) ==
                Antwort::Nein);
    }

    void TexteSindNieAuszeichnung() {
        const QString Text = QStringLiteral("C:/a<b>.txt & <br/> ersetzt?");
        QString Gezeigt;
        Qt::TextFormat Form = Qt::AutoText;
        const Bediener<QMessageBox> Hand([&](QMessageBox& Kasten) {
            const auto* Feld = Kasten.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
            Gezeigt = Feld->text();
            Form = Feld->textFormat();
        });
        Boxen.Zeigen({Text, {}, Knoepfe::Ok, Symbol::Ohne});
        QCOMPARE(Gezeigt, Text);
        QCOMPARE(Form, Qt::PlainText);
    }

    void OhneEigenenTitelStehtDerNameDesProgramms() {
        QStringList Titel;
        for (const QString& Eigener : {QString(), QStringLiteral("Sicherheitsabfrage:")}) {
            const Bediener<QMessageBox> Hand(
                [&](QMessageBox& Kasten) { Titel.append(Kasten.windowTitle()); });
            Boxen.Zeigen({QStringLiteral("?"), Eigener, Knoepfe::Ok, Symbol::Ohne});
        }
        QCOMPARE(Titel, QStringList({QStringLiteral("Tafelquell"), QStringLiteral("Sicherheitsabfrage:")}));
    }

    void ZeilenendenBrechenDieZeileUm() {
        QCOMPARE(BoxText(QStringLiteral("a\r\nb\rc\nd")), QStringLiteral("a\nb\nc\nd"));
    }

    void EinLangerPfadStehtWortFuerWortInDerBox() {
        const QString Pfad = QStringLiteral("/home/lehrerin/Dokumente/Schule/Noten/2003-2004/Grundschule/") +
                             QStringLiteral("Jahrgangsstufen/klasse7a_2003_04.txt");
        QString Gezeigt;
        const Bediener<QMessageBox> Hand([&](QMessageBox& Kasten) { Gezeigt = Kasten.text(); });
        Boxen.Zeigen({Pfad, {}, Knoepfe::Ok, Symbol::Ohne});
        QCOMPARE(Gezeigt, Pfad);
    }

    void EinEndlosesWortPasstAufDenBildschirm() {
        int Breite = 0;
        const Bediener<QMessageBox> Hand([&](QMessageBox& Kasten) { Breite = Kasten.width(); });
        Boxen.Zeigen({QString(3000, u'x'), {}, Knoepfe::Ok, Symbol::Ohne});
        QVERIFY(Breite > 0 && Breite <= 800);
    }

    void EineAuswahlGibtDenIndexDesKnopfs() {
        const QStringList Texte{QStringLiteral("Erneut versuchen"), QStringLiteral("Speichern unter ..."),
                                QStringLiteral("Abbrechen")};
        QString Vorgabe;
        const Bediener<QMessageBox> Hand([&](QMessageBox& Kasten) {
            Vorgabe = Kasten.defaultButton()->text();
            Kasten.findChild<QPushButton*>(QStringLiteral("btWahl_1"))->click();
        });
        QCOMPARE(Boxen.Waehlen({QStringLiteral("?"), {}, Texte, 0}), 1);
        QCOMPARE(Vorgabe, Texte.first());
        const Bediener<QMessageBox> Schliesser([](QMessageBox& Kasten) { Kasten.close(); });
        QCOMPARE(Boxen.Waehlen({QStringLiteral("?"), {}, Texte, 0}), 2);
    }

    // File dialogs.

    void DieEndungKommtVomFilter_data() {
        QTest::addColumn<QString>("Name");
        QTest::addColumn<QString>("Muster");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("ohne") << "/a/liste"
                              << "*.txt"
                              << "/a/liste.txt";
        QTest::newRow("vorhanden") << "/a/liste.txt"
                                   << "*.txt"
                                   << "/a/liste.txt";
        QTest::newRow("gross") << "/a/liste.TXT"
                               << "*.txt"
                               << "/a/liste.TXT";
        QTest::newRow("andere") << "/a/liste.bak"
                                << "*.txt"
                                << "/a/liste.bak";
        QTest::newRow("Punkt im Namen") << "/a/klasse 3.b"
                                        << "*.txt"
                                        << "/a/klasse 3.b.txt";
        QTest::newRow("Datum im Namen") << "/a/Stand 12.10"
                                        << "*.txt"
                                        << "/a/Stand 12.10.txt";
        QTest::newRow("Punkt im Ordner") << "/a.bcd/liste"
                                         << "*.txt"
                                         << "/a.bcd/liste.txt";
        QTest::newRow("alle Dateien") << "/a/liste"
                                      << "*.*"
                                      << "/a/liste";
    }
    void DieEndungKommtVomFilter() {
        QFETCH(QString, Name);
        QFETCH(QString, Muster);
        QFETCH(QString, Erwartet);
        QCOMPARE(EndungErgaenzt(Name, Muster), Erwartet);
    }

    void SpeichernGibtPfadUndFilterUndFragtNichtNach() {
        Welt.DateiAnlegen(QStringLiteral("alt.txt"), "alt");
        const Bediener<QFileDialog> Hand([](QFileDialog& Dialog) {
            Dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->setCurrentIndex(1);
            Dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("alt"));
            static_cast<QDialog&>(Dialog).accept();
        });
        const auto Wahl = Boxen.Speichern(
            {QStringLiteral("Speichern unter..."),
             {{QStringLiteral("Notendatenbank"), QStringLiteral("*.txt")},
              {QStringLiteral("Notendatenbank (ältere Version 2.0)"), QStringLiteral("*.txt")}},
             Welt.Pfad(QStringLiteral("klasse.txt"))});
        QVERIFY(Hand.Gelaufen);
        QVERIFY(Wahl);
        QCOMPARE(Wahl->Pfad, Welt.Pfad(QStringLiteral("alt.txt")));
        QCOMPARE(Wahl->FilterIndex, 2);
    }

    void SpeichernSchlaegtDenBisherigenNamenVor() {
        QString Vorschlag;
        const Bediener<QFileDialog> Hand([&](QFileDialog& Dialog) {
            Vorschlag = Dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
        });
        const auto Wahl = Boxen.Speichern({QStringLiteral("Speichern unter..."),
                                           {{QStringLiteral("Notendatenbank"), QStringLiteral("*.txt")}},
                                           Welt.Pfad(QStringLiteral("klasse.txt"))});
        QCOMPARE(Vorschlag, QStringLiteral("klasse.txt"));
        QVERIFY(!Wahl);
    }

    void OeffnenGibtEineVorhandeneDatei() {
        const QString Pfad = Welt.DateiAnlegen(QStringLiteral("klasse.txt"), "x");
        const Bediener<QFileDialog> Hand([&](QFileDialog& Dialog) {
            Dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(Pfad);
            static_cast<QDialog&>(Dialog).accept();
        });
        const auto Wahl =
            Boxen.Oeffnen({QStringLiteral("Öffnen"),
                           {{QStringLiteral("Notendatenbank (*.txt)"), QStringLiteral("*.txt")}},
                           {}});
        QVERIFY(Wahl);
        QCOMPARE(Wahl->Pfad, Pfad);
        QCOMPARE(Wahl->FilterIndex, 1);
    }

    void EinMusterImNamenStehtNichtDoppelt() {
        QCOMPARE(FilterText({QStringLiteral("Notendatenbank (*.txt)"), QStringLiteral("*.txt")}),
                 QStringLiteral("Notendatenbank (*.txt)"));
        QCOMPARE(FilterText({QStringLiteral("Notendatenbank"), QStringLiteral("*.txt")}),
                 QStringLiteral("Notendatenbank (*.txt)"));
    }
};

TESTKLASSE(TestMeldungen)
#include "tst_meldungen.moc"
