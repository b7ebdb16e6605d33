#include "Buchdatei.h"

#include "common/Lesefehler.h"
#include "common/Testbuch.h"
#include "common/Testoberflaeche.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"
#include "common/Unprivilegiert.h"

#include "core/AutoDatei.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Dokument.h"
#include "core/Einstellungen.h"
#include "core/Parameterdatei.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <cerrno>

namespace {

const QString Schadensanfang = QStringLiteral("Fehler beim Einlesen der Datenbank!\r\n");
const QString Fremdschaden = QStringLiteral("Fehler beim Einlesen der Schüler aus einer Notendatenbank!\r\n");
const QString SpeichernTitel = QStringLiteral("Speichern unter...");

QString Nichtgefunden(const QString& Pfad) {
    return QStringLiteral("Die zuletzt benutzte Notendatenbank ") + Pfad +
           QStringLiteral(" konnte nicht gefunden werden!\r\nEs wird eine neue Datenbank angelegt.");
}

QString Nichtvorhanden(const QString& Pfad) {
    return QStringLiteral("Die Datei ") + Pfad + QStringLiteral(" ist nicht vorhanden!");
}

QString Laufzeitfehlertext(void (*Ablauf)()) {
    try {
        Ablauf();
        return {};
    } catch (const Laufzeitfehler& Fehler) {
        return Fehler.Text();
    }
}

} // namespace

/// Files that are there and cannot be read, or not to their end: the message, what memory holds, and that
/// nothing is written over them in silence.
class UnlesbareDatei : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { Welt.Aufraeumen(); }

    void EineVerschlosseneDatenbankGiltAlsNichtGefundenUndBleibt();
    void EineDatenbankDieSichNichtOeffnenLaesstWirdNurNachFrageErsetzt_data();
    void EineDatenbankDieSichNichtOeffnenLaesstWirdNurNachFrageErsetzt();
    void EineVerschlosseneDatenbankWirdNichtAusIhrerKopieUeberschrieben();
    void JederLesefehlerDerDatenbankSchuetztDieDatei();
    void EineVerschlosseneFremdeDatenbankLaesstAllesWieEsWar();
    void JederLesefehlerDerFremdenDatenbankGibtKeineSchueler();
    void EinOrdnerAlsFremdeDatenbankIstNichtVorhanden();
    void EineVerschlosseneParameterdateiBeendetDenStart();
    void JederLesefehlerDerParameterdateiLaesstDieTabellen();
    void EinOrdnerAlsParameterdateiBeendetDenStart();

  private:
    QString Datei(const QByteArray& Inhalt) { return Welt.DateiAnlegen(QStringLiteral("buch.txt"), Inhalt); }
    /// Nobody may read or write the file. The rest of the world stays open to the user.
    QString Verschlossene(const QString& Pfad) {
        QFile::setPermissions(Pfad, {});
        return Pfad;
    }
    QString Parameterdatei() const { return Welt.Pfad(QStringLiteral("programm/Tafelquell.ini")); }
    void ParameterdateiAnlegen() {
        Welt.DateiAnlegen(QStringLiteral("programm/Tafelquell.ini"),
                          Testwelt::DateiInhalt(QStringLiteral(LIEFERDATEN "/Tafelquell.ini")));
    }

    Testwelt Welt;
    Testoberflaeche Fenster;
};

void UnlesbareDatei::init() {
    Welt.Herstellen();
    OberflaecheSetzen(&Fenster);
    Fenster = {};
    Datenbank.AnzKlassen = 1;
    Datenbank.Klassen[0] = {QStringLiteral("2003/04"), QStringLiteral("vorher")};
    AnzFremdSchueler = 1;
    FremdSchueler[0].Name = QStringLiteral("von vorher");
    EigeneVerteilung = {};
}

void UnlesbareDatei::EineVerschlosseneDatenbankGiltAlsNichtGefundenUndBleibt() {
    const QString Pfad = Verschlossene(Datei(Kleinbuch()));
    {
        const Unprivilegiert Benutzer(Welt.Ordner());
        Welt.Boxen.ErwarteMeldung(Nichtgefunden(Pfad));
        QVERIFY(!LadeDatenbank(Pfad));
        QCOMPARE(Datenbank.AnzKlassen, 0);
        QCOMPARE(AutoDatei(), Unbenannt);
        // Even whoever insists on this file gets it not.
        Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Pfad, 1});
        Welt.Boxen.ErwarteFrage(QStringLiteral("Soll die bereits existierende Datei "), Antwort::Ja);
        Welt.Boxen.ErwarteAuswahl(QStringLiteral("Die Datei \"%1\" wurde nicht gespeichert").arg(Pfad), 2);
        QVERIFY(!DatenbankSpeichern());
        QVERIFY(Welt.Boxen.Gezeigt.last().Text.contains(QStringLiteral("kein Zugriff erlaubt")));
    }
    QFile::setPermissions(Pfad, QFile::ReadOwner);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void UnlesbareDatei::EineDatenbankDieSichNichtOeffnenLaesstWirdNurNachFrageErsetzt_data() {
    QTest::addColumn<int>("Nummer");
    QTest::newRow("kein Zugriff") << EACCES;
    QTest::newRow("Ein-/Ausgabefehler") << EIO;
    QTest::newRow("zu viele offene Dateien") << EMFILE;
    QTest::newRow("Verweise im Kreis") << ELOOP;
}

/// The failure passes, and the file could be written again.
void UnlesbareDatei::EineDatenbankDieSichNichtOeffnenLaesstWirdNurNachFrageErsetzt() {
    QFETCH(int, Nummer);
    const QString Pfad = Datei(Kleinbuch());
    {
        const Oeffnungsfehler Verschlossen(Pfad, Nummer);
        Welt.Boxen.ErwarteMeldung(Nichtgefunden(Pfad));
        QVERIFY(!LadeDatenbank(Pfad));
    }
    QCOMPARE(Datenbank.AnzKlassen, 0);
    QCOMPARE(AutoDatei(), Unbenannt);
    Welt.Boxen.ErwarteSpeichern(SpeichernTitel, Dateiwahl{Pfad, 1});
    Welt.Boxen.ErwarteFrage(QStringLiteral("Soll die bereits existierende Datei "), Antwort::Nein);
    QVERIFY(!DatenbankSpeichern());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void UnlesbareDatei::EineVerschlosseneDatenbankWirdNichtAusIhrerKopieUeberschrieben() {
    const QString Pfad = Verschlossene(Datei(Kleinbuch()));
    Welt.DateiAnlegen(QStringLiteral("buch.bak"), Buch(QStringLiteral("[Klassen]\nJahr\tName\n")));
    {
        const Unprivilegiert Benutzer(Welt.Ordner());
        Welt.Boxen.ErwarteMeldung(Nichtgefunden(Pfad));
        Welt.Boxen.ErwarteFrage(QStringLiteral("Zu Ihrer aktuellen Datenbank"), Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(Nichtgefunden(Pfad)); // the load that follows the restore
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Die Datei \"%1\" konnte nicht gelesen werden").arg(Pfad));
        DatenbankOeffnen(Pfad);
    }
    QFile::setPermissions(Pfad, QFile::ReadOwner);
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
}

void UnlesbareDatei::JederLesefehlerDerDatenbankSchuetztDieDatei() {
    const QString Pfad = Datei(Kleinbuch());
    for (int Nummer = 1;; ++Nummer) {
        {
            const Lesefehler Stelle(Nummer);
            Welt.Boxen.ErwarteMeldung(Schadensanfang);
            const bool Geladen = LadeDatenbank(Pfad);
            if (!Stelle.Getroffen()) {
                QVERIFY(Geladen);
                QVERIFY(Nummer > 10);
                Welt.Boxen.Vergessen(); // this load had nothing to tell
                return;
            }
            QVERIFY(!Geladen);
        }
        // Nothing is left of what was read, but for a failure in [Parameter], where the rows stay.
        const bool InParameter = AutoDatei() == Pfad;
        QCOMPARE(Datenbank.AnzKlassen, InParameter ? 1 : 0);
        QCOMPARE(DatenGeaendert, false);
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, SpeichernDatenbank3(Pfad));
        QCOMPARE(Testwelt::DateiInhalt(Pfad), Kleinbuch());
    }
}

void UnlesbareDatei::EineVerschlosseneFremdeDatenbankLaesstAllesWieEsWar() {
    const QString Pfad = Verschlossene(Datei(Kleinbuch()));
    const Unprivilegiert Benutzer(Welt.Ordner());
    Welt.Boxen.ErwarteMeldung(Nichtvorhanden(Pfad));
    QVERIFY(!LadeFremdSchueler(Pfad));
    QCOMPARE(AnzFremdSchueler, 1);
    QCOMPARE(FremdSchueler[0].Name, QStringLiteral("von vorher"));
    QCOMPARE(Datenbank.AnzKlassen, 1);
}

void UnlesbareDatei::JederLesefehlerDerFremdenDatenbankGibtKeineSchueler() {
    const QString Pfad = Datei(Kleinbuch());
    const QByteArray Vorher = DatenbankBytes();
    for (int Nummer = 1;; ++Nummer) {
        const Lesefehler Stelle(Nummer);
        Welt.Boxen.ErwarteMeldung(Fremdschaden);
        const bool Geladen = LadeFremdSchueler(Pfad);
        if (!Stelle.Getroffen()) {
            QVERIFY(Geladen);
            QCOMPARE(AnzFremdSchueler, 1);
            Welt.Boxen.Vergessen();
            return;
        }
        QVERIFY(!Geladen);
        QCOMPARE(AnzFremdSchueler, 0);
        QCOMPARE(DatenbankBytes(), Vorher);
    }
}

void UnlesbareDatei::EinOrdnerAlsFremdeDatenbankIstNichtVorhanden() {
    Welt.Boxen.ErwarteMeldung(Nichtvorhanden(Welt.Ordner()));
    QVERIFY(!LadeFremdSchueler(Welt.Ordner()));
    QCOMPARE(FremdSchueler[0].Name, QStringLiteral("von vorher"));
}

void UnlesbareDatei::EineVerschlosseneParameterdateiBeendetDenStart() {
    ParameterdateiAnlegen();
    Verschlossene(Parameterdatei());
    const Unprivilegiert Benutzer(Welt.Ordner());
    QCOMPARE(Laufzeitfehlertext(LadeParameter),
             QStringLiteral("Die Datei \"%1\" konnte nicht gelesen werden: kein Zugriff erlaubt.")
                 .arg(Parameterdatei()));
    QCOMPARE(EigeneVerteilung[0][0], 0.0F);
}

/// Half a table is worse than none: the rest would be written at the end of the program.
void UnlesbareDatei::JederLesefehlerDerParameterdateiLaesstDieTabellen() {
    Welt.DateiAnlegen(QStringLiteral("programm/Tafelquell.ini"),
                      "[Parameter f\xFCr Tafelquell 3.0]\r\n[Eigene Verteilung]\r\nWertung\r\n"
                      "--\t9\t8\t7\t6\t5\r\n" +
                          QByteArray(500, 'x') + "\r\n");
    for (int Nummer = 1;; ++Nummer) {
        const Lesefehler Stelle(Nummer);
        const QString Text = Laufzeitfehlertext(LadeParameter);
        if (!Stelle.Getroffen()) {
            QCOMPARE(Text, QString());
            QCOMPARE(EigeneVerteilung[0][0], 9.0F);
            QVERIFY(Nummer > 5);
            return;
        }
        QVERIFY2(Text.contains(QStringLiteral("Ein-/Ausgabefehler")), qPrintable(Text));
        QCOMPARE(EigeneVerteilung[0][0], 0.0F);
    }
}

void UnlesbareDatei::EinOrdnerAlsParameterdateiBeendetDenStart() {
    QVERIFY(QDir().mkpath(Parameterdatei()));
    QVERIFY(Laufzeitfehlertext(LadeParameter).contains(QStringLiteral("ein Ordner und keine Datei")));
}

TESTKLASSE(UnlesbareDatei)
#include "tst_unlesbar.moc"
