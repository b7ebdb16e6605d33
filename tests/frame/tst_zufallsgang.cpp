#include "Hauptfenster.h"
#include "Listenpruefung.h"
#include "Zufallsbediener.h"

#include "common/Testprogramm.h"
#include "controls/Gitter.h"
#include "core/Datenbankdatei.h"
#include "core/Definitionen.h"
#include "core/Einstellungen.h"

#include <QScopedValueRollback>
#include <QTabBar>
#include <QtTest>

/// Walks through all views at random. Seeds and steps can be raised by the environment:
/// ZUFALLSGANG_SAATEN, ZUFALLSGANG_SCHRITTE.
class ZufallsgangTest : public QObject {
    Q_OBJECT

    Testwelt Welt;
    Hauptfenster Fenster;

    static int Zahl(const char* Name, int Vorgabe) {
        const int Wert = qEnvironmentVariableIntValue(Name);
        return Wert > 0 ? Wert : Vorgabe;
    }

    QString Bericht(const Zufallsbediener& Bediener, const QString& Fund) const {
        return Fund + QStringLiteral("\n  nach: ") +
               Bediener.Verlauf.mid(qMax(qsizetype{0}, Bediener.Verlauf.size() - 12))
                   .join(QStringLiteral("; "));
    }

    /// All records; the choice of a school year is no change of them.
    static QByteArray Saetze() {
        const QScopedValueRollback<QString> Jahr(Datenbank.AktJahr, QString());
        return DatenbankBytes();
    }

    /// The first difference between the view on top and the records, or a record changed without the flag.
    QString Befund(QByteArray& Stand) const {
        QString Fund = ListeGegenRecords(*Fenster, Fenster.Reiter()->currentIndex());
        const QByteArray Jetzt = Saetze();
        if (Fund.isEmpty() && Jetzt != Stand && !DatenGeaendert)
            Fund = QStringLiteral("ein Satz ist geändert, DatenGeaendert aber nicht gesetzt");
        if (Fund.isEmpty() && !GridEreignisseAktiv)
            Fund = QStringLiteral("GridEreignisseAktiv ist aus");
        if (DatenGeaendert)
            Stand = Jetzt;
        return Fund;
    }

    QString AlleReiterDurchgehen() const {
        QTabBar* Leiste = Fenster.Reiter()->tabBar();
        for (int i = 0; i < Leiste->count(); ++i) {
            QTest::mouseClick(Leiste, Qt::LeftButton, {}, Leiste->tabRect(i).center());
            if (const QString Fund = ListeGegenRecords(*Fenster, i); !Fund.isEmpty())
                return Fund;
        }
        return {};
    }

  private Q_SLOTS:
    void init() {
        Welt.Herstellen();
        Hauptfenster::OrdnerAnlegen();
        const QString Datei = Welt.Pfad(QStringLiteral("buch.txt"));
        QVERIFY(QFile::copy(QStringLiteral(LIEFERDATEN "/Beispiel.txt"), Datei));
        EinstellungSchreiben(QStringLiteral("AutoDatei"), Datei);
    }

    void cleanup() {
        Fenster.Schliessen();
        Welt.Aufraeumen();
    }

    void JedeListeZeigtNachJedemSchrittWasDieSaetzeHalten_data() {
        QTest::addColumn<int>("Saat");
        for (int Saat = 1; Saat <= Zahl("ZUFALLSGANG_SAATEN", 4); ++Saat)
            QTest::addRow("Saat %d", Saat) << Saat;
    }

    void JedeListeZeigtNachJedemSchrittWasDieSaetzeHalten() {
        QFETCH(const int, Saat);
        Fenster.Starten();
        QVERIFY(Datenbank.AnzSchueler > 0);
        Zufallsbediener Bediener(*Fenster, static_cast<quint32>(Saat));
        QByteArray Stand = Saetze();
        for (int Schritt = 1; Schritt <= Zahl("ZUFALLSGANG_SCHRITTE", 150); ++Schritt) {
            Bediener.Schritt();
            QString Fund = Befund(Stand);
            if (Fund.isEmpty() && Schritt % 10 == 0)
                Fund = AlleReiterDurchgehen();
            QVERIFY2(Fund.isEmpty(), qPrintable(Bericht(Bediener, Fund)));
            QVERIFY2(Bediener.Fehler.isEmpty(), qPrintable(Bericht(Bediener, Bediener.Fehler.join(u'|'))));
            DatenGeaendert = false;
            Stand = Saetze();
        }
    }
};

TESTKLASSE(ZufallsgangTest)
#include "tst_zufallsgang.moc"
