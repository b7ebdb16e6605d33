#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "records/Loeschen.h"
#include "records/Loeschfragen.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

/// The rules told as single deletions: each row closes its gap by moving the later ones down one place.
namespace Einzeln {

template <class Feld>
void Entfernen(Feld& Alle, qint16& Anzahl, int Platz) {
    for (int i = Platz; i + 1 < Anzahl; ++i)
        Alle[i] = Alle[i + 1];
    --Anzahl;
}

void SchuelerLoeschen(qint32 ID) {
    const QString Name = Datenbank.Schueler[SchuelerIndex(ID)].Name;
    for (int i = 0; i < Datenbank.AnzNoten;) {
        const Notenzeile Zeile = Datenbank.Noten[i];
        if (Zeile.Schueler_ID != ID || Zeile.Teilnahme != QStringLiteral("ja")) {
            ++i;
            continue;
        }
        for (int k = 1; k <= 20; ++k) {
            const QString& Note = Zeile.N[k];
            if (Note.isEmpty() || Note == QStringLiteral("ne") || Note == QStringLiteral("kr"))
                continue;
            Datenbank.ZSchueler[Datenbank.AnzZSchueler] = {k, Zeile.Fach_ID, Name, Zeile.P[k], Note};
            ++Datenbank.AnzZSchueler;
        }
        Entfernen(Datenbank.Noten, Datenbank.AnzNoten, i);
    }
    Entfernen(Datenbank.Schueler, Datenbank.AnzSchueler, SchuelerIndex(ID));
}

void FachLoeschen(qint32 ID) {
    for (int i = Datenbank.AnzNoten - 1; i >= 0; --i)
        if (Datenbank.Noten[i].Fach_ID == ID)
            Entfernen(Datenbank.Noten, Datenbank.AnzNoten, i);
    for (int i = Datenbank.AnzZSchueler - 1; i >= 0; --i)
        if (Datenbank.ZSchueler[i].Fach_ID == ID)
            Entfernen(Datenbank.ZSchueler, Datenbank.AnzZSchueler, i);
    Entfernen(Datenbank.Faecher, Datenbank.AnzFaecher, FachIndex(ID));
}

bool FachDerKlasse(const Fach& Eines, const QString& Name) {
    if (Eines.Jahr != Datenbank.AktJahr)
        return false;
    KlassenTrennen(Eines.Klasse);
    for (int i = 0; !KlassenTeile[i].isEmpty(); ++i)
        if (KlassenTeile[i] == Name)
            return true;
    return false;
}

bool EinFachDerKlasseLoeschen(const QString& Name) {
    for (int i = 0; i < Datenbank.AnzFaecher; ++i)
        if (FachDerKlasse(Datenbank.Faecher[i], Name)) {
            FachLoeschen(Datenbank.Faecher[i].ID);
            return true;
        }
    return false;
}

bool EinenSchuelerDerKlasseLoeschen(const QString& Name) {
    for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        if (Einer.Klasse == Name && Einer.Jahr == Datenbank.AktJahr) {
            SchuelerLoeschen(Einer.ID);
            return true;
        }
    }
    return false;
}

void KlasseLoeschen(const QString& Name) {
    while (EinFachDerKlasseLoeschen(Name)) {
    }
    while (EinenSchuelerDerKlasseLoeschen(Name)) {
    }
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        if (Datenbank.Klassen[i] == Klasse{Datenbank.AktJahr, Name}) {
            Entfernen(Datenbank.Klassen, Datenbank.AnzKlassen, i);
            return;
        }
}

} // namespace Einzeln

/// All records in use, as lines.
QStringList Abzug() {
    QStringList Zeilen;
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        Zeilen.append(
            QStringLiteral("Klasse %1 %2").arg(Datenbank.Klassen[i].Name, Datenbank.Klassen[i].Jahr));
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        const Fach& Eines = Datenbank.Faecher[i];
        Zeilen.append(QStringLiteral("Fach %1 %2 %3 %4")
                          .arg(QString::number(Eines.ID), Eines.Klasse, Eines.Name, Eines.Jahr));
    }
    for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
        const Schueler& Einer = Datenbank.Schueler[i];
        Zeilen.append(QStringLiteral("Schueler %1 %2 %3 %4")
                          .arg(QString::number(Einer.ID), Einer.Klasse, Einer.Name, Einer.Jahr));
    }
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        QString Text =
            QStringLiteral("Note %1 %2 %3").arg(Zeile.Schueler_ID).arg(Zeile.Fach_ID).arg(Zeile.Teilnahme);
        for (int k = 1; k <= 30; ++k)
            Text += u';' + Zeile.N[k];
        for (int k = 1; k <= 20; ++k)
            Text += u';' + Zeile.P[k];
        Zeilen.append(Text + u';' + Zeile.Gesamt1 + u';' + Zeile.Gesamt2);
    }
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i) {
        const ZSchueler& Einer = Datenbank.ZSchueler[i];
        Zeilen.append(QStringLiteral("ZSchueler %1 %2 %3 P=%4 N=%5")
                          .arg(QString::number(Einer.Fach_ID), QString::number(Einer.Probe_ID), Einer.Name,
                               Einer.Punkte, Einer.Note));
    }
    return Zeilen;
}

QStringList NurArt(const QStringList& Zeilen, const QString& Art) {
    return Zeilen.filter(QRegularExpression(u'^' + Art + u' '));
}

QString Zufallsnote(QRandomGenerator& Zufall) {
    static const QStringList Noten{QString(),
                                   QStringLiteral("1"),
                                   QStringLiteral("3-"),
                                   QStringLiteral("ne"),
                                   QStringLiteral("kr"),
                                   QStringLiteral("6")};
    return Noten[Zufall.bounded(static_cast<int>(Noten.size()))];
}

/// A book with several classes, merged subjects, another year, orphan rows and rows in any order.
void Zufallsbuch(quint32 Saat) {
    QRandomGenerator Zufall(Saat);
    const QStringList Klassen{QStringLiteral("3a"), QStringLiteral("3b"), QStringLiteral("3c")};
    const QStringList Felder = Klassen + QStringList{QStringLiteral("3ab"), QStringLiteral("3bc")};
    const QStringList Jahre{Datenbank.AktJahr, QStringLiteral("2002/03")};
    for (const QString& Name : Klassen)
        for (const QString& Jahr : Jahre)
            Datenbank.Klassen[Datenbank.AnzKlassen++] = {Jahr, Name};
    for (int i = 0; i < 8; ++i) {
        Fach& Neues = Datenbank.Faecher[Datenbank.AnzFaecher++];
        Neues.ID = 50000 + i;
        Neues.Name = QStringLiteral("Fach%1").arg(i);
        Neues.Klasse = Felder[Zufall.bounded(static_cast<int>(Felder.size()))];
        Neues.Jahr = Jahre[Zufall.bounded(4) == 0 ? 1 : 0];
    }
    for (int i = 0; i < 15; ++i) {
        Schueler& Neuer = Datenbank.Schueler[Datenbank.AnzSchueler++];
        Neuer.ID = 10000 + i;
        Neuer.Name = QStringLiteral("Name%1").arg(i);
        Neuer.Klasse = Klassen[Zufall.bounded(3)];
        Neuer.Jahr = Jahre[Zufall.bounded(4) == 0 ? 1 : 0];
    }
    for (int i = 0; i < 60; ++i) {
        Notenzeile& Neue = Datenbank.Noten[Datenbank.AnzNoten++];
        Neue.Fach_ID = 50000 + Zufall.bounded(9); // one subject does not exist
        Neue.Schueler_ID = 10000 + Zufall.bounded(15);
        Neue.Teilnahme = Zufall.bounded(3) == 0 ? QStringLiteral("nein") : QStringLiteral("ja");
        for (int k = 1; k <= 30; ++k)
            Neue.N[k] = Zufall.bounded(5) == 0 ? Zufallsnote(Zufall) : QString();
        Neue.P[Zufall.bounded(1, 21)] = QString::number(Zufall.bounded(40));
    }
    for (int i = 0; i < 10; ++i)
        Datenbank.ZSchueler[Datenbank.AnzZSchueler++] = {Zufall.bounded(1, 21), 50000 + Zufall.bounded(8),
                                                         QStringLiteral("Gast%1").arg(i), QString(),
                                                         QStringLiteral("4")};
}

void ZSchuelerFuellen(int Anzahl, qint32 Fach_ID) {
    for (int i = 0; i < Anzahl; ++i)
        Datenbank.ZSchueler[i] = {1, Fach_ID, QStringLiteral("Gast"), QString(), QStringLiteral("3")};
    Datenbank.AnzZSchueler = static_cast<qint16>(Anzahl);
}

} // namespace

class LoeschenTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void NotenEinesGeloeschtenSchuelersBleibenInDenProbenAlsZSchueler() {
        TestbuchLaden(QStringLiteral(R"(Klasse 7a
            Fach 50000 7a Mathematik
            Schueler 10000 7a Bauer Anna
            Schueler 10001 7a Huber Max
            Note 10000 50000 N1=2 P1=33 N2=ne N3=kr N11=4+ P11=12 N21=1 G1=2 G2=3
            Note 10001 50000 N1=5 P1=3)"));
        SchuelerLoeschen(10000);
        QCOMPARE(NurArt(Abzug(), QStringLiteral("ZSchueler")),
                 (QStringList{QStringLiteral("ZSchueler 50000 1 Bauer Anna P=33 N=2"),
                              QStringLiteral("ZSchueler 50000 11 Bauer Anna P=12 N=4+")}));
        QCOMPARE(Datenbank.AnzNoten, qint16{1});
        QCOMPARE(Datenbank.Noten[0].Schueler_ID, 10001);
        QCOMPARE(NurArt(Abzug(), QStringLiteral("Schueler")),
                 (QStringList{QStringLiteral("Schueler 10001 7a Huber Max 2003/04")}));
        QVERIFY(DatenGeaendert);
    }

    void ZeilenOhneTeilnahmeBleibenOhneSchuelerZurueck() {
        TestbuchLaden(QStringLiteral(R"(Klasse 7a
            Fach 50000 7a Mathematik
            Fach 50001 7a Deutsch
            Schueler 10000 7a Bauer Anna
            Note 10000 50000 Teilnahme=nein N1=2
            Note 10000 50001 N1=3)"));
        SchuelerLoeschen(10000);
        QCOMPARE(Datenbank.AnzNoten, qint16{1});
        QCOMPARE(Datenbank.Noten[0].Fach_ID, 50000);
        QCOMPARE(Datenbank.AnzZSchueler, qint16{1});
    }

    void EinUnbekannterSchuelerOderEinUnbekanntesFachAendertNichts() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nSchueler 10000 7a Bauer Anna\n"
                                     "Note 10000 50000 N1=2"));
        const QStringList Vorher = Abzug();
        SchuelerLoeschen(10007);
        FachLoeschen(50007);
        QCOMPARE(Abzug(), Vorher);
        QVERIFY(!DatenGeaendert);
    }

    void EinSpaetererSchuelerGleichenNamensBleibtVomZSchuelerGetrennt() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nSchueler 10000 7a Bauer Anna\n"
                                     "Note 10000 50000 N1=2 P1=30"));
        SchuelerLoeschen(10000);
        TestbuchLaden(QStringLiteral("Schueler 10001 7a Bauer Anna\nNote 10001 50000 N1=5 P1=3"));
        QCOMPARE(Datenbank.ZSchueler[0].Note, QStringLiteral("2"));
        QCOMPARE(Datenbank.Noten[0].N[1], QStringLiteral("5"));
        QCOMPARE(Datenbank.AnzZSchueler, qint16{1});
    }

    void EinGeloeschtesFachNimmtSeineZeilenUndZSchuelerMit() {
        TestbuchLaden(QStringLiteral(R"(Klasse 7a
            Fach 50000 7a Mathematik
            Fach 50001 7a Deutsch
            Schueler 10000 7a Bauer Anna
            Note 10000 50000 N1=2
            Note 10000 50001 N1=3
            ZSchueler 50000 1 P=12 N=4 Gast Emil
            ZSchueler 50001 1 P=12 N=4 Gast Eva)"));
        FachLoeschen(50000);
        QCOMPARE(NurArt(Abzug(), QStringLiteral("Fach")),
                 (QStringList{QStringLiteral("Fach 50001 7a Deutsch 2003/04")}));
        QCOMPARE(Datenbank.AnzNoten, qint16{1});
        QCOMPARE(Datenbank.Noten[0].Fach_ID, 50001);
        QCOMPARE(Datenbank.AnzZSchueler, qint16{1});
        QCOMPARE(Datenbank.ZSchueler[0].Name, QStringLiteral("Gast Eva"));
        QCOMPARE(NaechsteFachID, 50002);
        QVERIFY(DatenGeaendert);
    }

    void EineKlasseNimmtEinZusammengelegtesFachAuchDerAnderenKlasse() {
        TestbuchLaden(QStringLiteral(R"(Klasse 3b
            Klasse 3c
            Fach 50000 3bc Religion
            Fach 50001 3c Deutsch
            Schueler 10000 3b Bauer Anna
            Schueler 10001 3c Huber Max
            Note 10000 50000 N1=2
            Note 10001 50000 N1=3
            Note 10001 50001 N1=1)"));
        KlasseLoeschen(QStringLiteral("3b"));
        QCOMPARE(
            Abzug().filter(QRegularExpression(QStringLiteral("^(Klasse|Fach|Schueler|ZSchueler) "))),
            (QStringList{QStringLiteral("Klasse 3c 2003/04"), QStringLiteral("Fach 50001 3c Deutsch 2003/04"),
                         QStringLiteral("Schueler 10001 3c Huber Max 2003/04")}));
        QCOMPARE(Datenbank.AnzNoten, qint16{1});
        QCOMPARE(Datenbank.Noten[0].Fach_ID, 50001);
    }

    void EinFachOhneTeilnehmerGehtMitSeinerKlasse() {
        TestbuchLaden(QStringLiteral(R"(Klasse 3b
            Fach 50000 3b Religion
            Schueler 10000 3b Bauer Anna
            Note 10000 50000 Teilnahme=nein N1=2)"));
        KlasseLoeschen(QStringLiteral("3b"));
        QCOMPARE(Abzug(), QStringList());
    }

    void GleichnamigeKlassenAndererJahreBleiben() {
        TestbuchLaden(QStringLiteral("Klasse 3b\nFach 50000 3b Religion\nSchueler 10000 3b Bauer Anna"));
        Datenbank.AktJahr = QStringLiteral("2004/05");
        TestbuchLaden(QStringLiteral("Klasse 3b\nFach 50001 3b Religion\nSchueler 10001 3b Bauer Anna"));
        KlasseLoeschen(QStringLiteral("3b"));
        QCOMPARE(Abzug(), (QStringList{QStringLiteral("Klasse 3b 2003/04"),
                                       QStringLiteral("Fach 50000 3b Religion 2003/04"),
                                       QStringLiteral("Schueler 10000 3b Bauer Anna 2003/04")}));
    }

    void EinDurchgangGibtDasselbeWieEinzelnesLoeschen() {
        const auto NachAllem = [](quint32 Saat, auto Schueler, auto Fach, auto Klasse) {
            Datenbank.AnzKlassen = Datenbank.AnzFaecher = Datenbank.AnzSchueler = 0;
            Datenbank.AnzNoten = Datenbank.AnzZSchueler = 0;
            std::fill_n(Datenbank.Noten.begin(), 60, Notenzeile());
            Zufallsbuch(Saat);
            Schueler(10000 + static_cast<qint32>(Saat % 15));
            Fach(50000 + static_cast<qint32>(Saat % 8));
            Klasse(QStringLiteral("3b"));
            return QStringList{QStringLiteral("Saat %1").arg(Saat)} + Abzug();
        };
        for (quint32 Saat = 1; Saat <= 300; ++Saat) {
            const QStringList Erwartet =
                NachAllem(Saat, Einzeln::SchuelerLoeschen, Einzeln::FachLoeschen, Einzeln::KlasseLoeschen);
            QCOMPARE(NachAllem(Saat, SchuelerLoeschen, FachLoeschen, KlasseLoeschen), Erwartet);
        }
    }

    void MehrfachVergebeneNummernEndenWieBeimEinzelnenLoeschen() {
        const auto Buch = [] {
            Datenbank.AnzKlassen = Datenbank.AnzFaecher = Datenbank.AnzSchueler = 0;
            Datenbank.AnzNoten = Datenbank.AnzZSchueler = 0;
            TestbuchLaden(QStringLiteral(R"(Klasse 3a
                Klasse 3b
                Fach 50000 3a Mathe
                Fach 50000 3b Deutsch
                Fach 50001 3a Musik
                Schueler 10000 3a Bauer Anna
                Schueler 10000 3b Huber Max
                Note 10000 50000 N1=2
                Note 10000 50001 N1=3)"));
        };
        Buch();
        Einzeln::KlasseLoeschen(QStringLiteral("3b"));
        const QStringList Erwartet = Abzug();
        Buch();
        KlasseLoeschen(QStringLiteral("3b"));
        QCOMPARE(Abzug(), Erwartet);
    }

    void OhnePlatzFuerZSchuelerGeschiehtNichts() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nFach 50001 7b Deutsch\n"
                                     "Schueler 10000 7a Bauer Anna\nNote 10000 50001 N1=2 N2=3"));
        ZSchuelerFuellen(1000, 50001);
        const QStringList Vorher = Abzug();
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, SchuelerLoeschen(10000));
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, KlasseLoeschen(QStringLiteral("7a")));
        QCOMPARE(Abzug(), Vorher);
        QVERIFY(!DatenGeaendert);
    }

    void DerPlatzDerMitgeloeschtenZSchuelerZaehltAlsFrei() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nFach 50001 7b Deutsch\n"
                                     "Schueler 10000 7a Bauer Anna\nNote 10000 50001 N1=2 N2=3"));
        ZSchuelerFuellen(1001, 50000);
        KlasseLoeschen(QStringLiteral("7a"));
        QCOMPARE(Datenbank.AnzZSchueler, qint16{2});
    }

    void EinFehlerBeimLoeschenWirdGemeldet() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50001 7b Deutsch\n"
                                     "Schueler 10000 7a Bauer Anna\nNote 10000 50001 N1=2"));
        ZSchuelerFuellen(1001, 50001);
        Welt.Boxen.ErwarteFrage(QStringLiteral("Soll der Schüler wirklich gelöscht werden?"), Antwort::Ja);
        Welt.Boxen.ErwarteMeldung(QStringLiteral("Index außerhalb des gültigen Bereichs: 1001"));
        QVERIFY(!SchuelerLoeschenFragen(10000));
        QCOMPARE(Datenbank.AnzSchueler, qint16{1});
        QVERIFY(QFile::exists(Welt.Pfad(QStringLiteral("programm/Fehlermeldungen.txt"))));
    }

    void DieFragenLautenWieVorgegebenUndHabenKeinenTitel() {
        TestbuchLaden(QStringLiteral("Klasse 7a\nFach 50000 7a Mathematik\nSchueler 10000 7a Bauer Anna"));
        const QString Klasse =
            QStringLiteral("Wollen Sie die Klasse 7a wirklich löschen?\r"
                           "Die Notendaten und Namen aller Schüler der Klasse gehen dabei verloren!\r"
                           "Achtung!!! Es werden auch Fächer aus anderen Klassen gelöscht\r"
                           "(und damit auch die Noten der Schüler anderer Klassen), wenn es Fächer\r"
                           "mit zusammengelegten Klassen gibt, bei der die Klasse 7a dabei ist!!!");
        const QString Fach = QStringLiteral("Wollen Sie das Fach 7a Mathematik wirklich löschen?\r"
                                            "Die Notendaten aller Schüler gehen dabei verloren!!!");
        const QString Schueler = QStringLiteral("Soll der Schüler wirklich gelöscht werden?");
        for (const QString& Text : {Klasse, Fach, Schueler})
            Welt.Boxen.ErwarteFrage(Text, Antwort::Nein);
        QVERIFY(!KlasseLoeschenFragen(QStringLiteral("7a")));
        QVERIFY(!FachLoeschenFragen(50000, QStringLiteral("7a Mathematik")));
        QVERIFY(!SchuelerLoeschenFragen(10000));
        QCOMPARE(Abzug().size(), qsizetype{3});
        for (const QString& Text : {Schueler, Fach, Klasse})
            Welt.Boxen.ErwarteFrage(Text, Antwort::Ja);
        QVERIFY(SchuelerLoeschenFragen(10000));
        QVERIFY(FachLoeschenFragen(50000, QStringLiteral("7a Mathematik")));
        QVERIFY(KlasseLoeschenFragen(QStringLiteral("7a")));
        QCOMPARE(Abzug(), QStringList());
        const QStringList Texte{Klasse, Fach, Schueler, Schueler, Fach, Klasse};
        for (qsizetype i = 0; i < Texte.size(); ++i)
            QCOMPARE(Welt.Boxen.Gezeigt[i].Text, Texte[i]);
        for (const Meldungstext& Box : Welt.Boxen.Gezeigt) {
            QCOMPARE(Box.Titel, QString());
            QCOMPARE(Box.Auswahl, Knoepfe::JaNein);
        }
    }

  private:
    Testwelt Welt;
};

TESTKLASSE(LoeschenTest)
#include "tst_loeschen.moc"
