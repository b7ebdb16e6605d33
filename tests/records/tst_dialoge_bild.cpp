#include "common/Bildprobe.h"
#include "common/Dialogschritte.h"
#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "records/Satzdialoge.h"

#include <QApplication>
#include <QtTest>

class DialogeBildTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Schritte = std::make_unique<Dialogschritte>();
        TestbuchLaden(
            QStringLiteral("Klasse 3b\nFach 50000 3bc Religion\nFach 50001 3b Mathe\n"
                           "Schueler 10000 3b Bauer Anna\nSchueler 10001 3b Özdemir-von Hohenlohe Ida"));
    }
    void cleanup() {
        QApplication::setPalette(Vorher);
        Schritte.reset();
        Welt.Aufraeumen();
    }

    void AllesIstLesbar_data() {
        QTest::addColumn<QString>("Name");
        QTest::addColumn<bool>("Dunkel");
        for (const char* Name : {"dlgNeuesFach1", "dlgNeuesFach2", "dlgNeuerSchueler1", "dlgNeuerSchueler11",
                                 "dlgNeuerSchueler2", "dlgAutoTeilnahme"})
            for (const bool Dunkel : {false, true})
                QTest::addRow("%s%s", Name, Dunkel ? " dunkel" : "") << QString::fromUtf8(Name) << Dunkel;
    }

    void AllesIstLesbar() {
        QFETCH(const QString, Name);
        QFETCH(const bool, Dunkel);
        if (Dunkel)
            QApplication::setPalette(DunklePalette());
        if (Name == QStringLiteral("dlgNeuesFach2"))
            Schritte->Erwarte(QStringLiteral("dlgNeuesFach1"), [](QDialog& Dialog) {
                QTest::keyClick(Dialog.findChild<QWidget*>(QStringLiteral("txtFach")), Qt::Key_Return);
            });
        Schritte->Erwarte(Name, [](QDialog& Dialog) {
            QCOMPARE(Unlesbar(Dialog).join(u'|'), QString());
            BildSpeichern(Dialog, QString::fromUtf8(QTest::currentDataTag()));
            Dialog.close();
        });
        Oeffnen(Name);
    }

  private:
    void Oeffnen(const QString& Name) {
        const QString Feld = QStringLiteral("3bc Religion");
        if (Name.startsWith(QStringLiteral("dlgNeuesFach")))
            NeuesFachAssistent(nullptr, QStringLiteral("3bc"), QStringLiteral("Ethik"));
        else if (Name == QStringLiteral("dlgNeuerSchueler1"))
            NeuerSchuelerDerProbe(nullptr, {20, 20}, Feld, 50000, 1);
        else if (Name == QStringLiteral("dlgNeuerSchueler11"))
            NeuerSchuelerMitKlassenwahl(nullptr, {20, 20}, Feld);
        else if (Name == QStringLiteral("dlgNeuerSchueler2"))
            NeuerSchueler(nullptr, QStringLiteral("3b"), QStringLiteral("Bauer Anna"));
        else
            AutoTeilnahme(nullptr, &Liste, 0);
    }

    Testwelt Welt;
    std::unique_ptr<Dialogschritte> Schritte;
    Gitter Liste;
    const QPalette Vorher = QApplication::palette();
};

TESTKLASSE(DialogeBildTest)
#include "tst_dialoge_bild.moc"
