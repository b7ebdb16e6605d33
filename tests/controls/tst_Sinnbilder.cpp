#include "common/Testprogramm.h"
#include "controls/Sinnbilder.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

class TestSinnbilder : public QObject {
    Q_OBJECT

    static QImage Bild(const QIcon& Eines, int Kante, QIcon::Mode Art = QIcon::Normal) {
        return Eines.pixmap(QSize(Kante, Kante), 1.0, Art).toImage().convertToFormat(QImage::Format_ARGB32);
    }
    /// Point for point, whatever scale the name says.
    static QImage Datei(const QString& Name) {
        QImage Gelesen(QStringLiteral(":/symbole/") + Name);
        Gelesen.setDevicePixelRatio(1);
        return Gelesen.convertToFormat(QImage::Format_ARGB32);
    }

  private Q_SLOTS:
    void JedesIstInSeinerGroesseDasGezeichnete_data() {
        QTest::addColumn<QString>("Name");
        for (const QString& Name :
             {QStringLiteral("new"), QStringLiteral("open"), QStringLiteral("save"), QStringLiteral("print"),
              QStringLiteral("cut"), QStringLiteral("copy"), QStringLiteral("paste"),
              QStringLiteral("positiv"), QStringLiteral("neutral"), QStringLiteral("negativ")})
            QTest::newRow(qPrintable(Name)) << Name;
    }
    void JedesIstInSeinerGroesseDasGezeichnete() {
        QFETCH(const QString, Name);
        QCOMPARE(Bild(Sinnbild(Name), 24), Datei(Name + QStringLiteral(".png")));
        QCOMPARE(Bild(Sinnbild(Name), 48), Datei(Name + QStringLiteral("@2x.png")));
        QCOMPARE(Bild(Sinnbild(Name), 72), Datei(Name + QStringLiteral("@3x.png")));
    }

    void DasDesProgrammsIstViermalSoBreit() {
        QCOMPARE(Bild(Programmsinnbild(), 96), Datei(QStringLiteral("tafelquell.png")));
    }

    void FensterverwaltungenBekommenNurWasDerBildschirmBraucht() {
        QCOMPARE(qGuiApp->devicePixelRatio(), 1.0);
        QCOMPARE(Programmsinnbild().availableSizes(), QList<QSize>({QSize(96, 96)}));
    }

    void EsWirdVerkleinertAberNieVergroessert_data() {
        QTest::addColumn<int>("Gewuenscht");
        QTest::addColumn<int>("Gegeben");
        QTest::newRow("kleiner als das kleinste") << 16 << 16;
        QTest::newRow("zwischen zweien") << 30 << 30;
        QTest::newRow("das groesste") << 72 << 72;
        QTest::newRow("darueber") << 500 << 72;
    }
    void EsWirdVerkleinertAberNieVergroessert() {
        QFETCH(const int, Gewuenscht);
        QFETCH(const int, Gegeben);
        const QIcon Eines = Sinnbild(QStringLiteral("save"));
        QCOMPARE(Bild(Eines, Gewuenscht).size(), QSize(Gegeben, Gegeben));
        QCOMPARE(Eines.actualSize(QSize(Gewuenscht, Gewuenscht)), QSize(Gegeben, Gegeben));
    }

    void InDoppeltemMassstabWirdDasDoppelteGemalt() {
        QImage Flaeche(48, 48, QImage::Format_ARGB32_Premultiplied);
        Flaeche.setDevicePixelRatio(2);
        Flaeche.fill(Qt::transparent);
        QPainter Maler(&Flaeche);
        Sinnbild(QStringLiteral("open")).paint(&Maler, 0, 0, 24, 24);
        Maler.end();
        const QImage Wie = Datei(QStringLiteral("open@2x.png")).convertToFormat(Flaeche.format());
        Flaeche.setDevicePixelRatio(1);
        QCOMPARE(Flaeche, Wie);
    }

    void AbgeschaltetSiehtEsAndersAus() {
        const QIcon Eines = Sinnbild(QStringLiteral("save"));
        QVERIFY(Bild(Eines, 24, QIcon::Disabled) != Bild(Eines, 24));
        QCOMPARE(Bild(Eines, 24, QIcon::Disabled).size(), QSize(24, 24));
    }
};

TESTKLASSE(TestSinnbilder)
#include "tst_Sinnbilder.moc"
