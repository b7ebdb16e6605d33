#include "common/Bildprobe.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "assessments/AnsichtB.h"
#include "assessments/Formulierungen.h"
#include "assessments/Formulierungstabelle.h"
#include "assessments/Ziehgut.h"
#include "core/Datenbankdatei.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QtTest>

class AnsichtBBildTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    const QPalette Vorher = QApplication::palette();
    const QFont Schrift = QApplication::font();

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() {
        QApplication::setPalette(Vorher);
        QApplication::setFont(Schrift);
        Welt.Aufraeumen();
    }

    void EverythingCanBeReadAtEverySize_data() {
        QTest::addColumn<QSize>("Groesse");
        QTest::addColumn<bool>("Dunkel");
        QTest::newRow("1024x700") << QSize(1024, 700) << false;
        QTest::newRow("Full HD") << QSize(1920, 1080) << false;
        QTest::newRow("halbe Breite") << QSize(960, 540) << false;
        QTest::newRow("dunkel") << QSize(1024, 700) << true;
        QTest::newRow("Full HD dunkel") << QSize(1920, 1080) << true;
    }

    void EverythingCanBeReadAtEverySize() {
        QFETCH(const QSize, Groesse);
        QFETCH(const bool, Dunkel);
        if (Dunkel)
            QApplication::setPalette(DunklePalette());
        QVERIFY(LadeDatenbank(QStringLiteral(LIEFERDATEN "/Beispiel.txt")));
        QVERIFY(FormulierungenLaden(QStringLiteral(LIEFERDATEN "/Formulierungen.txt"), false));
        AnsichtB Ansicht;
        Ansicht.resize(Groesse);
        Ansicht.show();
        QVERIFY(QTest::qWaitForWindowActive(&Ansicht));
        Ansicht.Fuellen();
        QCoreApplication::processEvents();
        auto* Schueler = Ansicht.findChild<Gitter*>(QStringLiteral("tblBeurteilungen"));
        auto* Floskeln = Ansicht.findChild<Formulierungstabelle*>(QStringLiteral("tblBFloskel"));
        Schueler->Enter(2, 1);
        Floskeln->Enter(3, 0);
        const auto Daten = ZiehgutPacken(Ziehart::Formulierung);
        QDragMoveEvent Zug(QPoint(40, 60), Qt::MoveAction, Daten.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(Floskeln->viewport(), &Zug);
        QCoreApplication::processEvents();
        QCOMPARE(Unlesbar(Ansicht).join(u'|'), QString());
        BildSpeichern(Ansicht, QStringLiteral("B %1").arg(QString::fromUtf8(QTest::currentDataTag())));
    }
};

TESTKLASSE(AnsichtBBildTest)
#include "tst_ansichtb_bild.moc"
