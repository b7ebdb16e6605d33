#include "common/Testprogramm.h"
#include "core/Datum.h"
#include "core/Zahlen.h"

#include <QtTest>

#include <cstdio>

/// What the environment says about numbers and dates, seen by a process of its own: Qt asks for it once.
class TestSystemsprache : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void folgtDerUmgebung_data() {
        QTest::addColumn<QStringList>("Umgebung");
        QTest::addColumn<QString>("Ausgabe");
        const auto Zeile = [](const char* Name, const QStringList& Umgebung, const char* Ausgabe) {
            QTest::newRow(Name) << Umgebung << QString::fromLatin1(Ausgabe);
        };
        const QString De = QStringLiteral("LANG=de_DE.UTF-8");
        const QString Us = QStringLiteral("LANG=en_US.UTF-8");
        Zeile("nothing set", {}, "1,5 12.10.2003");
        Zeile("C", {QStringLiteral("LANG=C")}, "1,5 12.10.2003");
        Zeile("C.UTF-8", {QStringLiteral("LC_ALL=C.UTF-8")}, "1,5 12.10.2003");
        Zeile("POSIX", {QStringLiteral("LANG=POSIX")}, "1,5 12.10.2003");
        Zeile("German", {De}, "1,5 12.10.2003");
        Zeile("American", {Us}, "1.5 10/12/2003");
        Zeile("German, numbers of C", {De, QStringLiteral("LC_NUMERIC=C")}, "1.5 12.10.2003");
        Zeile("American, numbers and dates German",
              {Us, QStringLiteral("LC_NUMERIC=de_DE.UTF-8"), QStringLiteral("LC_TIME=de_DE.UTF-8")},
              "1,5 12.10.2003");
        Zeile("American, translated", {Us, QStringLiteral("LANGUAGE=de:en")}, "1.5 10/12/2003");
    }
    void folgtDerUmgebung() {
        QFETCH(const QStringList, Umgebung);
        QFETCH(const QString, Ausgabe);
        QProcessEnvironment Eigene;
        Eigene.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        Eigene.insert(QStringLiteral("HOME"), QDir::tempPath());
        Eigene.insert(QStringLiteral("SPRACHPROBE"), QStringLiteral("1"));
        for (const QString& Paar : Umgebung)
            Eigene.insert(Paar.section(u'=', 0, 0), Paar.section(u'=', 1));
        QProcess Kind;
        Kind.setProcessEnvironment(Eigene);
        Kind.start(QCoreApplication::applicationFilePath(),
                   {QStringLiteral("TestSystemsprache:sprachprobe")});
        QVERIFY(Kind.waitForFinished());
        const QString Gesagt = QString::fromUtf8(Kind.readAllStandardOutput());
        QVERIFY2(Gesagt.contains(u'[' + Ausgabe + u']'), qPrintable(Gesagt));
    }

    /// The other half of the test above: run in the child, which has not set a locale.
    void sprachprobe() {
        if (!qEnvironmentVariableIsSet("SPRACHPROBE"))
            return;
        const QString Probe = ZahlText(1.5) + u' ' + DatumKurz(QDate(2003, 10, 12));
        std::printf("[%s]\n", qPrintable(Probe));
        std::fflush(stdout);
        QCOMPARE(ZahlLesen(ZahlText(1.5)), std::optional<double>(1.5));
        QCOMPARE(DatumLesen(DatumKurz(QDate(2003, 10, 12)), 1999), QDate(2003, 10, 12));
    }
};

TESTKLASSE(TestSystemsprache)
#include "tst_systemsprache.moc"
