#include "common/Bildprobe.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "controls/Gitter.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "views/AnsichtS.h"

#include <QApplication>
#include <QtTest>

class AnsichtSBildTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() {
        QApplication::setPalette(Vorher);
        Welt.Aufraeumen();
    }

    void AllesIstInJederGroesseLesbar_data() {
        QTest::addColumn<QSize>("Groesse");
        QTest::addColumn<bool>("Dunkel");
        QTest::newRow("halbe Breite") << QSize(512, 350) << false;
        QTest::newRow("1024x700") << QSize(1024, 700) << false;
        QTest::newRow("Full HD") << QSize(1920, 1080) << false;
        QTest::newRow("dunkel") << QSize(1024, 700) << true;
    }

    void AllesIstInJederGroesseLesbar() {
        QFETCH(const QSize, Groesse);
        QFETCH(const bool, Dunkel);
        if (Dunkel)
            QApplication::setPalette(DunklePalette());
        QVERIFY(LadeDatenbank(QStringLiteral(LIEFERDATEN "/Beispiel.txt")));
        AnsichtS Ansicht;
        Ansicht.resize(Groesse);
        Ansicht.show();
        QVERIFY(QTest::qWaitForWindowActive(&Ansicht));
        Ansicht.Fuellen();
        auto* Tabelle = Ansicht.findChild<Gitter*>(QStringLiteral("tblSSchueler"));
        Tabelle->Enter(3, 1);
        QCOMPARE(Unlesbar(Ansicht).join(u'|'), QString());
        BildSpeichern(Ansicht, QStringLiteral("S %1").arg(QString::fromUtf8(QTest::currentDataTag())));
    }

  private:
    Testwelt Welt;
    const QPalette Vorher = QApplication::palette();
};

TESTKLASSE(AnsichtSBildTest)
#include "tst_ansichts_bild.moc"
