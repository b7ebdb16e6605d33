#include "common/Testbuch.h"
#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "records/Anlegen.h"
#include "records/Klassenfeld.h"
#include "records/Teilnahme.h"

#include <QtTest>

namespace {

using Zeilen = std::vector<Teilnahmezeile>;

const QString Ja = QStringLiteral("ja");
const QString Nein = QStringLiteral("nein");

QStringList Klassennamen() {
    QStringList Namen;
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        Namen.append(Datenbank.Klassen[i].Name + u' ' + Datenbank.Klassen[i].Jahr);
    return Namen;
}

struct Zaehler {
    qint16 Klassen = Datenbank.AnzKlassen;
    qint16 Faecher = Datenbank.AnzFaecher;
    qint16 Schueler = Datenbank.AnzSchueler;
    qint16 Noten = Datenbank.AnzNoten;
    qint16 ZSchueler = Datenbank.AnzZSchueler;
    qint32 SchuelerID = NaechsteSchuelerID;
    qint32 FachID = NaechsteFachID;
    bool Geaendert = DatenGeaendert;

    bool operator==(const Zaehler&) const = default;
};

} // namespace

class AnlegenTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void EinKlassenfeldNenntSeineKlassenJeEinmal_data() {
        QTest::addColumn<QString>("Feld");
        QTest::addColumn<QStringList>("Klassen");
        const auto Fall = [](const char* Feld, const QStringList& Klassen) {
            QTest::newRow(Feld) << QString::fromUtf8(Feld) << Klassen;
        };
        Fall("3bc", {QStringLiteral("3c"), QStringLiteral("3b")});
        Fall("3bc Religion", {QStringLiteral("3c"), QStringLiteral("3b")});
        Fall("A1ab", {QStringLiteral("A1b"), QStringLiteral("A1a")});
        Fall("10", {QStringLiteral("10")});
        Fall("7a", {QStringLiteral("7a")});
        Fall("3bb", {QStringLiteral("3b")});
        Fall("", {});
        Fall("3abcdefghij", QStringLiteral("3j 3i 3h 3g 3f 3e 3d 3c 3b 3a").split(u' '));
    }

    void EinKlassenfeldNenntSeineKlassenJeEinmal() {
        QFETCH(const QString, Feld);
        QFETCH(const QStringList, Klassen);
        QCOMPARE(KlassenDesFelds(Feld), Klassen);
        for (const QString& Klasse : Klassen)
            QVERIFY(FeldNenntKlasse(Feld, Klasse));
        QVERIFY(!FeldNenntKlasse(Feld, QString()));
        QVERIFY(!FeldNenntKlasse(Feld, QStringLiteral("9z")));
    }

    void EineNeueKlasseGehoertZumAktuellenSchuljahr() {
        KlasseErstellen(QStringLiteral("7a"));
        QCOMPARE(Klassennamen(), (QStringList{QStringLiteral("7a 2003/04")}));
        QVERIFY(DatenGeaendert);
        QVERIFY(KlasseVorhanden(QStringLiteral("7a")));
        Datenbank.AktJahr = QStringLiteral("2004/05");
        QVERIFY(!KlasseVorhanden(QStringLiteral("7a")));
    }

    void EinZusammengelegtesFachErschafftDieKlassenDieEsNennt() {
        TestbuchLaden(QStringLiteral("Klasse 3c"));
        const qint32 ID = FachErstellen(QStringLiteral("3bc"), QStringLiteral("Religion"), {});
        QCOMPARE(Klassennamen(), (QStringList{QStringLiteral("3c 2003/04"), QStringLiteral("3b 2003/04")}));
        const Fach& Neues = Datenbank.Faecher[FachIndex(ID)];
        QCOMPARE(ID, 50000);
        QCOMPARE(NaechsteFachID, 50001);
        QCOMPARE(Neues.Klasse, QStringLiteral("3bc"));
        QCOMPARE(Neues.Name, QStringLiteral("Religion"));
        QCOMPARE(Neues.Jahr, QStringLiteral("2003/04"));
        QCOMPARE((QStringList{Neues.GrenzeP, Neues.GrenzeE, Neues.GrenzeM}),
                 (QStringList{QStringLiteral("6"), QStringLiteral("6"), QStringLiteral("6")}));
        QCOMPARE(Datenbank.AnzNoten, qint16{0});
        QVERIFY(DatenGeaendert);
    }

    void EinNeuesFachHatAuchFuerNichtTeilnehmendeEineZeile() {
        const qint32 ID = FachErstellen(QStringLiteral("3b"), QStringLiteral("Religion"),
                                        {{10000, QString(), Ja}, {10001, QString(), Nein}});
        Notenzeile Erste;
        Erste.Fach_ID = ID;
        Erste.Schueler_ID = 10000;
        Erste.Teilnahme = Ja;
        Notenzeile Zweite = Erste;
        Zweite.Schueler_ID = 10001;
        Zweite.Teilnahme = Nein;
        QCOMPARE(Datenbank.AnzNoten, qint16{2});
        QVERIFY(Datenbank.Noten[0] == Erste);
        QVERIFY(Datenbank.Noten[1] == Zweite);
    }

    void NeueSaetzeHabenNichtsVonDemWasVorherDortStand() {
        Datenbank.Faecher[0].Proben[3].Name = QStringLiteral("alt");
        Datenbank.Schueler[0].Feld[3] = QStringLiteral("alt");
        Datenbank.Schueler[0].Beurteilung[0] = QStringLiteral("alt");
        Datenbank.Noten[0].N[5] = QStringLiteral("2");
        FachErstellen(QStringLiteral("3b"), QStringLiteral("Religion"), {});
        SchuelerErstellen(QStringLiteral("Bauer Anna"), QStringLiteral("3b"), {{50000, QString(), Ja}});
        QVERIFY(Datenbank.Faecher[0].Proben[3] == Probe());
        QCOMPARE(Datenbank.Schueler[0].Feld[3], QString());
        QCOMPARE(Datenbank.Schueler[0].Beurteilung[0], QString());
        QCOMPARE(Datenbank.Noten[0].N[5], QString());
    }

    void EinNeuerSchuelerHatEineZeileJeFach() {
        const qint32 ID = SchuelerErstellen(QStringLiteral("Bauer Anna"), QStringLiteral("3b"),
                                            {{50001, QString(), Nein}, {50000, QString(), Ja}});
        QCOMPARE(ID, 10000);
        QCOMPARE(NaechsteSchuelerID, 10001);
        const Schueler& Neuer = Datenbank.Schueler[0];
        QCOMPARE(Neuer.ID, ID);
        QCOMPARE(Neuer.Name, QStringLiteral("Bauer Anna"));
        QCOMPARE(Neuer.Klasse, QStringLiteral("3b"));
        QCOMPARE(Neuer.Jahr, QStringLiteral("2003/04"));
        QCOMPARE(Datenbank.AnzNoten, qint16{2});
        QCOMPARE(Datenbank.Noten[0].Fach_ID, 50001);
        QCOMPARE(Datenbank.Noten[0].Teilnahme, Nein);
        QCOMPARE(Datenbank.Noten[1].Schueler_ID, ID);
        QVERIFY(DatenGeaendert);
    }

    void EinZSchuelerGehoertZuFachUndProbe() {
        ZSchuelerErstellen(QStringLiteral("Gast Emil"), 50000, 11);
        QVERIFY(Datenbank.ZSchueler[0] ==
                (ZSchueler{11, 50000, QStringLiteral("Gast Emil"), QString(), QString()}));
        QCOMPARE(Datenbank.AnzZSchueler, qint16{1});
        QVERIFY(DatenGeaendert);
    }

    void DieTeilnehmerlisteStehtUmgekehrtUndNenntNurDasAktuelleJahr() {
        TestbuchLaden(QStringLiteral("Schueler 10000 3b Bauer Anna\nSchueler 10001 3c Huber Max\n"
                                     "Schueler 10002 3b Zander Eva\nSchueler 10003 3a Adam Tom"));
        Datenbank.Schueler[2].Jahr = QStringLiteral("2002/03");
        QVERIFY(
            SchuelerDerKlassen(QStringLiteral("3bc Religion")) ==
            (Zeilen{{10000, QStringLiteral("Bauer Anna"), Ja}, {10001, QStringLiteral("Huber Max"), Ja}}));
    }

    void DieFaecherEinesNeuenSchuelersStehenUmgekehrt() {
        TestbuchLaden(QStringLiteral("Fach 50000 3bc Religion\nFach 50001 3a Mathe\nFach 50002 3b Deutsch\n"
                                     "Fach 50003 3b Sport"));
        Datenbank.Faecher[3].Jahr = QStringLiteral("2002/03");
        QVERIFY(FaecherDerKlasse(QStringLiteral("3b")) ==
                (Zeilen{{50002, QStringLiteral("Deutsch"), Ja}, {50000, QStringLiteral("Religion"), Ja}}));
    }

    void AnDerGrenzeGeschiehtNichts_data() {
        QTest::addColumn<QByteArray>("Voll");
        for (const char* Voll :
             {"Klassen", "Faecher", "NotenDesFachs", "Schueler", "NotenDesSchuelers", "ZSchueler"})
            QTest::newRow(Voll) << QByteArray(Voll);
    }

    void AnDerGrenzeGeschiehtNichts() {
        QFETCH(const QByteArray, Voll);
        Datenbank.AnzKlassen = Voll == "Klassen" ? 100 : 0;
        Datenbank.AnzFaecher = Voll == "Faecher" ? 501 : 0;
        Datenbank.AnzNoten = Voll.startsWith("Noten") ? 10000 : 0;
        Datenbank.AnzSchueler = Voll == "Schueler" ? 5001 : 0;
        Datenbank.AnzZSchueler = Voll == "ZSchueler" ? 1001 : 0;
        const Zaehler Vorher;
        const Zeilen Zwei{{10000, QString(), Ja}, {10001, QString(), Ja}};
        const auto Fachversuch = [&] {
            FachErstellen(QStringLiteral("3bc"), QStringLiteral("Religion"), Zwei);
        };
        const auto Schuelerversuch = [&] {
            SchuelerErstellen(QStringLiteral("Bauer Anna"), QStringLiteral("3b"), Zwei);
        };
        if (Voll == "ZSchueler")
            QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, ZSchuelerErstellen(QStringLiteral("Gast"), 50000, 1));
        else if (Voll.contains("Schueler"))
            QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Schuelerversuch());
        else
            QVERIFY_THROWS_EXCEPTION(Laufzeitfehler, Fachversuch());
        QVERIFY(Zaehler() == Vorher);
    }

    void DerLetztePlatzIstNochFrei() {
        Datenbank.AnzKlassen = 100;
        Datenbank.AnzFaecher = 500;
        Datenbank.AnzSchueler = 5000;
        Datenbank.AnzNoten = 9999;
        Datenbank.AnzZSchueler = 1000;
        FachErstellen(QStringLiteral("3b"), QStringLiteral("Religion"), {{10000, QString(), Ja}});
        SchuelerErstellen(QStringLiteral("Bauer Anna"), QStringLiteral("3b"), {{50000, QString(), Ja}});
        ZSchuelerErstellen(QStringLiteral("Gast"), 50000, 1);
        QCOMPARE(Datenbank.AnzKlassen, qint16{101});
        QCOMPARE(Datenbank.AnzFaecher, qint16{501});
        QCOMPARE(Datenbank.AnzSchueler, qint16{5001});
        QCOMPARE(Datenbank.AnzNoten, qint16{10001});
        QCOMPARE(Datenbank.AnzZSchueler, qint16{1001});
    }

    void EinKlassenfeldMitElfBuchstabenAendertNichts() {
        const Zaehler Vorher;
        QVERIFY_THROWS_EXCEPTION(Laufzeitfehler,
                                 FachErstellen(QStringLiteral("3abcdefghijk"), QStringLiteral("X"), {}));
        QVERIFY(Zaehler() == Vorher);
    }

    void DieBedingungSetztDieTeilnahmeInBeideRichtungen() {
        TestbuchLaden(QStringLiteral(R"(Fach 50000 3b Religion
            Fach 50001 3b Ethik
            Schueler 10000 3b Bauer Anna
            Schueler 10001 3b Huber Max
            Schueler 10002 3b Zander Eva
            Note 10000 50000 Teilnahme=nein
            Note 10001 50000 Teilnahme=ja
            Note 10000 50001 Teilnahme=nein)"));
        const auto Gesetzt = TeilnahmeNachBedingung(
            50000,
            {{10000, QStringLiteral("rk")}, {10001, QStringLiteral("RK")}, {10002, QStringLiteral("rk")}},
            QStringLiteral("rk"));
        QVERIFY(Gesetzt == (std::vector<QString>{Ja, Nein, QString()}));
        QCOMPARE(Datenbank.Noten[0].Teilnahme, Ja);
        QCOMPARE(Datenbank.Noten[1].Teilnahme, Nein);
        QCOMPARE(Datenbank.Noten[2].Teilnahme, Nein);
        QVERIFY(DatenGeaendert);
    }

    void LeerzeichenUndGrossschreibungZaehlenInDerBedingung_data() {
        QTest::addColumn<QString>("Text");
        QTest::addColumn<QString>("Erwartet");
        QTest::newRow("gleich") << QStringLiteral("rk") << Ja;
        QTest::newRow("gross") << QStringLiteral("Rk") << Nein;
        QTest::newRow("Leerzeichen dahinter") << QStringLiteral("rk ") << Nein;
        QTest::newRow("leer") << QString() << Nein;
    }

    void LeerzeichenUndGrossschreibungZaehlenInDerBedingung() {
        QFETCH(const QString, Text);
        QFETCH(const QString, Erwartet);
        TestbuchLaden(QStringLiteral("Note 10000 50000"));
        TeilnahmeNachBedingung(50000, {{10000, Text}}, QStringLiteral("rk"));
        QCOMPARE(Datenbank.Noten[0].Teilnahme, Erwartet);
    }

  private:
    Testwelt Welt;
};

TESTKLASSE(AnlegenTest)
#include "tst_anlegen.moc"
