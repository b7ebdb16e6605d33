#include "Hauptfenster.h"
#include "common/Testprogramm.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTabWidget>
#include <QtTest>

/// A grade book and a phrase file full of markup: all of it is text, in every view.
class TestAuszeichnung : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

    /// The small book with markup in every name.
    static QByteArray Buch() {
        QByteArray Bytes = Testwelt::DateiInhalt(QStringLiteral(TESTDATEN "/klein.txt"));
        Bytes.replace("Anna Bauer", "<img src=x>Anna");
        Bytes.replace("Mathematik", "<b>Mathe</b>");
        Bytes.replace("Bruchrechnen", "<h1>Br&uuml;che</h1>");
        Bytes.replace("Strasse", "<i>Strasse</i>");
        Bytes.replace("7a", "<s>7a");
        return Bytes;
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        const QString Phrasen = Welt.DateiAnlegen(
            QStringLiteral("phrasen.txt"),
            "[Beurteilungsvorlagen f\xFCr Tafelquell 3.0]\r\n[<b>A</b>]\r\n+ <u>*****</u> lobt.\r\n");
        EinstellungSchreiben(QStringLiteral("Formulierungen"), Phrasen);
        EinstellungSchreiben(QStringLiteral("AutoDatei"),
                             Welt.DateiAnlegen(QStringLiteral("<b>buch.txt"), Buch()));
        Fenster.Starten();
    }
    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void KeinTextEinerDateiWirdAlsAuszeichnungGezeigt() {
        QCOMPARE(Datenbank.AnzSchueler, 1);
        QCOMPARE(AnzLernbereiche, qint16(1));
        QTabWidget* const Reiter = Fenster.Reiter();
        for (int Nummer = 0; Nummer < Reiter->count(); ++Nummer) {
            Reiter->setCurrentIndex(Nummer);
            const auto Felder = Fenster->findChildren<QLabel*>();
            for (const QLabel* Feld : Felder)
                QVERIFY2(Feld->textFormat() == Qt::PlainText || !Qt::mightBeRichText(Feld->text()),
                         qPrintable(Feld->objectName() + u' ' + Feld->text()));
        }
        QVERIFY(Fenster->windowTitle().endsWith(QStringLiteral("<b>buch.txt")));
    }

    void JedesTextfeldDasMarkenZeigenKoennteIstAlsReinerTextGesetzt() {
        // A view is made when it is first shown.
        for (int Nummer = 0; Nummer < Fenster.Reiter()->count(); ++Nummer)
            Fenster.Reiter()->setCurrentIndex(Nummer);
        const auto Felder = Fenster->findChildren<QLabel*>();
        QVERIFY(Felder.size() > 30);
        for (const QLabel* Feld : Felder)
            if (Feld->pixmap().isNull())
                QVERIFY2(Feld->textFormat() == Qt::PlainText, qPrintable(Feld->objectName()));
    }
};

TESTKLASSE(TestAuszeichnung)
#include "tst_auszeichnung.moc"
