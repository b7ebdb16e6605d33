#include "assessments/Formulierungen.h"

#include "common/Lesefehler.h"
#include "common/Schlechtes.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "common/Unprivilegiert.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <cerrno>

namespace {

const QByteArray Kopfzeile("[Beurteilungsvorlagen f\xFCr Tafelquell 3.0]\r\n");
const QByteArray Gut = Kopfzeile + "[Deutsch]\r\n+ Gut.\r\no Mittel.\r\n[Sport]\r\n- Schlecht.\r\n" +
                       "o Und noch ein Satz, damit die Datei in mehr als zwei St\xFC" + "cken kommt.\r\n";
const QString Dateianfang = QStringLiteral("Die BeurteilungsFormulierungen-Datei ");
const QString Schadensanfang = QStringLiteral("Fehler beim Einlesen der Beurteilungsvorlagen!\r\n");
const QString Speichern = QStringLiteral("Speichern unter...");

} // namespace

/// Phrase files that are not as they should be: the message, what the store holds, and that nothing is
/// written over them in silence.
class FormulierungenSchlecht : public QObject {
    Q_OBJECT

    Testwelt Welt;

    QString Pfad() const { return Welt.Pfad(QStringLiteral("a.txt")); }
    void Anlegen(const QByteArray& Inhalt) { Welt.DateiAnlegen(QStringLiteral("a.txt"), Inhalt); }
    static bool Laden(const QString& Datei) { return FormulierungenLaden(Datei, false); }
    QString Nichtgefunden() const {
        return Dateianfang + Pfad() + QStringLiteral(" konnte nicht gefunden werden!");
    }
    /// The copies of what stood in a file before it was written over.
    QStringList Aufgehobene() const {
        const QDir Zustand(Welt.Pfad(QStringLiteral("zustand")));
        QStringList Pfade;
        for (const QString& Name : Zustand.entryList({QStringLiteral("*a.txt")}, QDir::Files))
            Pfade.append(Zustand.filePath(Name));
        return Pfade;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Anlegen(Gut);
        EinstellungSchreiben(QStringLiteral("Formulierungen"), Pfad());
    }
    void cleanup() { Welt.Aufraeumen(); }

    void AnUnreadableFileCountsAsMissingAndIsNotWrittenOver() {
        QFile::setPermissions(Pfad(), {});
        {
            const Unprivilegiert Benutzer(Welt.Ordner());
            Welt.Boxen.ErwarteMeldung(Nichtgefunden());
            QVERIFY(!Laden(Pfad()));
            QCOMPARE(AnzLernbereiche, qint16(0));
            Welt.Boxen.ErwarteMeldung(
                QStringLiteral("Die Datei \"%1\" konnte nicht gelesen werden: kein Zugriff erlaubt.")
                    .arg(Pfad()));
            QVERIFY(!FormulierungenSpeichern());
        }
        QFile::setPermissions(Pfad(), QFile::ReadOwner);
        QCOMPARE(Testwelt::DateiInhalt(Pfad()), Gut);
    }

    /// The failure passes, and the file could be written again.
    void AFileThatDidNotOpenIsKeptBeforeItIsWrittenOver_data() {
        QTest::addColumn<int>("Nummer");
        QTest::newRow("no access") << EACCES;
        QTest::newRow("I/O error") << EIO;
        QTest::newRow("too many open files") << EMFILE;
    }
    void AFileThatDidNotOpenIsKeptBeforeItIsWrittenOver() {
        QFETCH(int, Nummer);
        {
            const Oeffnungsfehler Verschlossen(Pfad(), Nummer);
            Welt.Boxen.ErwarteMeldung(Nichtgefunden());
            QVERIFY(!Laden(Pfad()));
        }
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Beim letzten Laden konnte nicht alles gelesen werden."));
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Aufgehobene().size(), 1);
        QCOMPARE(Testwelt::DateiInhalt(Aufgehobene().first()), Gut);
    }

    void AReadErrorAnywhereIsDamageAndTheFileIsKept() {
        for (int Nummer = 1;; ++Nummer) {
            Anlegen(Gut);
            QDir(Welt.Pfad(QStringLiteral("zustand"))).removeRecursively();
            {
                const Lesefehler Stelle(Nummer);
                Welt.Boxen.ErwarteMeldung(Schadensanfang);
                const bool Geladen = Laden(Pfad());
                if (!Stelle.Getroffen()) {
                    QVERIFY(Geladen);
                    QVERIFY(Nummer > 3);
                    Welt.Boxen.Vergessen(); // this load had nothing to tell
                    return;
                }
                QVERIFY(!Geladen);
            }
            QVERIFY(!FormulierungenGeaendert);
            Welt.Boxen.ErwarteMeldung(
                QStringLiteral("Beim letzten Laden konnte nicht alles gelesen werden."));
            QVERIFY(FormulierungenSpeichern());
            QCOMPARE(Aufgehobene().size(), 1);
            QCOMPARE(Testwelt::DateiInhalt(Aufgehobene().first()), Gut);
        }
    }

    void AFolderCountsAsMissing() {
        QVERIFY(QFile::remove(Pfad()));
        QVERIFY(QDir().mkdir(Pfad()));
        Welt.Boxen.ErwarteMeldung(Nichtgefunden());
        QVERIFY(!Laden(Pfad()));
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei \"%1\" wurde nicht gespeichert").arg(Pfad()), 2);
        QVERIFY(!FormulierungenSpeichern());
        QVERIFY(QFileInfo(Pfad()).isDir());
    }

    void AnotherCodingIsRefusedAndKept_data() {
        QTest::addColumn<QByteArray>("Inhalt");
        QTest::newRow("UTF-8") << InUtf8(Gut);
        QTest::newRow("UTF-8 with mark") << InUtf8MitMarke(Gut);
        QTest::newRow("UTF-16") << InUtf16(Gut);
        QTest::newRow("NUL bytes in front") << QByteArray(QByteArray(16, '\0') + Gut);
    }
    void AnotherCodingIsRefusedAndKept() {
        QFETCH(QByteArray, Inhalt);
        Anlegen(Inhalt);
        Welt.Boxen.ErwarteMeldung(Dateianfang + Pfad() + QStringLiteral(" hat ein ungültiges Format!"));
        QVERIFY(!Laden(Pfad()));
        QCOMPARE(AnzLernbereiche, qint16(0));
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Beim letzten Laden konnte nicht alles gelesen werden."));
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Aufgehobene().value(0)), Inhalt);
    }

    void NulBytesAndTabsAreCharactersLikeOthers() {
        const QByteArray Inhalt =
            Kopfzeile + "[A]\r\n+ x" + QByteArray(1, '\0') + "y" + QByteArray(100, '\t') + "z\r\n";
        Anlegen(Inhalt);
        QVERIFY(Laden(Pfad()));
        QCOMPARE(Lernbereiche[0].Formulierung[0].size(), 2 + 4 + 100);
        QVERIFY(FormulierungenSpeichern());
        QCOMPARE(Testwelt::DateiInhalt(Pfad()), Inhalt);
    }

    void AVeryLongLineIsReadAndItsReportStaysShort_data() {
        QTest::addColumn<int>("Laenge");
        QTest::newRow("40 MB") << LangeZeile;
        QTest::newRow("300 MB") << SehrLangeZeile;
    }
    void AVeryLongLineIsReadAndItsReportStaysShort() {
        QFETCH(int, Laenge);
        if (Laenge == SehrLangeZeile)
            NUR_IN_DER_LANGEN_FORM();
        const QByteArray Lang(Laenge, 'x');
        Anlegen(Kopfzeile + "[A]\r\n" + Lang + "\r\n");
        QVERIFY(Laden(Pfad()));
        QCOMPARE(Lernbereiche[0].Formulierung[0].size(), Laenge);
        Lernbereiche[0] = {};
        Anlegen(Kopfzeile + Lang + "\r\n");
        Welt.Boxen.ErwarteMeldung(Schadensanfang);
        QVERIFY(!Laden(Pfad()));
        QVERIFY(Welt.Boxen.Gezeigt.last().Text.size() < 3000);
    }
};

TESTKLASSE(FormulierungenSchlecht)
#include "tst_formulierungen_schlecht.moc"
