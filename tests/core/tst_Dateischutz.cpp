#include "common/Testprogramm.h"
#include "common/Testwelt.h"

#include "Rettungsprobe.h"

#include "core/Dateischutz.h"
#include "core/Orte.h"
#include "core/Rettungslage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

QString Fehlertext(const std::optional<Dateifehler>& Fehler) {
    return Fehler ? Fehler->Text : QString();
}

quint64 Inode(const QString& Pfad) {
    struct stat Stand {};
    return ::stat(QFile::encodeName(Pfad).constData(), &Stand) == 0 ? Stand.st_ino : 0;
}

} // namespace

class TestDateischutz : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { Welt.Herstellen(); }
    void cleanup() { Welt.Aufraeumen(); }

    void EinNeuesZielEntstehtMitDemInhalt();
    void DerInhaltErsetztDenAlten_data();
    void DerInhaltErsetztDenAlten();
    void ZweiSpeicherungenLassenKeineRettungskopie();
    void EinSymbolischerVerweisBleibtUndSeinZielWirdGeschrieben();
    void EinVerweisInsLeereBekommtSeinZiel();
    void EinHarterVerweisZeigtDenNeuenInhalt();
    void RechteDerDateiBleiben();
    void ScheitertDasOeffnenBleibtNichts_data();
    void ScheitertDasOeffnenBleibtNichts();
    void LesenGibtDieBytes_data();
    void LesenGibtDieBytes();
    void LesenSagtDenGrund_data();
    void LesenSagtDenGrund();
    void EineRoehreHaeltWederLesenNochSchreibenAuf();
    void DerRettungsordnerIstNurFuerDenBenutzer();
    void OhneRettungsordnerWirdNichtGespeichert();
    void FremdeRettungskopienBleibenBeimSpeichern();
    void EineErledigteRettungskopieGehtBeimSpeichern();

  private:
    Testwelt Welt;
};

void TestDateischutz::EinNeuesZielEntstehtMitDemInhalt() {
    const QString Pfad = Welt.Pfad(QStringLiteral("neu.txt"));
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "Inhalt")), QString());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), QByteArray("Inhalt"));
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestDateischutz::DerInhaltErsetztDenAlten_data() {
    QTest::addColumn<QByteArray>("Alt");
    QTest::addColumn<QByteArray>("Neu");
    QTest::newRow("laenger") << QByteArray("alt") << QByteArray("neuer Inhalt");
    QTest::newRow("kuerzer") << QByteArray("alter Inhalt") << QByteArray("neu");
    QTest::newRow("gleich") << QByteArray("gleich") << QByteArray("gleich");
    QTest::newRow("leer") << QByteArray("alt") << QByteArray();
    QTest::newRow("vorher leer") << QByteArray() << QByteArray("neu");
    QTest::newRow("gross") << QByteArray(3'000'001, 'a') << QByteArray(4'000'003, 'b');
    QTest::newRow("ein Puffer genau") << QByteArray(65'536, 'a') << QByteArray(65'536, 'b');
    QTest::newRow("mit NUL") << QByteArray("a\0b", 3) << QByteArray("\0\0c", 3);
}

void TestDateischutz::DerInhaltErsetztDenAlten() {
    QFETCH(QByteArray, Alt);
    QFETCH(QByteArray, Neu);
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), Alt);
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, Neu)), QString());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), Neu);
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestDateischutz::ZweiSpeicherungenLassenKeineRettungskopie() {
    const QString Pfad = Welt.Pfad(QStringLiteral("buch.txt"));
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "erster")), QString());
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "zweiter Stand")), QString());
    QCOMPARE(Testwelt::DateiInhalt(Pfad), QByteArray("zweiter Stand"));
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestDateischutz::EinSymbolischerVerweisBleibtUndSeinZielWirdGeschrieben() {
    const QString Ziel = Welt.DateiAnlegen(QStringLiteral("ziel.txt"), "alt");
    const QString Verweis = Welt.Pfad(QStringLiteral("verweis.txt"));
    QVERIFY(QFile::link(Ziel, Verweis));
    QCOMPARE(Fehlertext(DateiSchreiben(Verweis, "neu")), QString());
    QCOMPARE(QFileInfo(Verweis).symLinkTarget(), Ziel);
    QCOMPARE(Testwelt::DateiInhalt(Ziel), QByteArray("neu"));
}

void TestDateischutz::EinVerweisInsLeereBekommtSeinZiel() {
    const QString Ziel = Welt.Pfad(QStringLiteral("ziel.txt"));
    const QString Verweis = Welt.Pfad(QStringLiteral("verweis.txt"));
    QVERIFY(QFile::link(Ziel, Verweis));
    QCOMPARE(Fehlertext(DateiSchreiben(Verweis, "neu")), QString());
    QVERIFY(QFileInfo(Verweis).isSymLink());
    QCOMPARE(Testwelt::DateiInhalt(Ziel), QByteArray("neu"));
}

void TestDateischutz::EinHarterVerweisZeigtDenNeuenInhalt() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), "alt");
    const QString ZweiterName = Welt.Pfad(QStringLiteral("zweiter.txt"));
    QCOMPARE(::link(QFile::encodeName(Pfad).constData(), QFile::encodeName(ZweiterName).constData()), 0);
    const quint64 Vorher = Inode(Pfad);
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "neu")), QString());
    QCOMPARE(Testwelt::DateiInhalt(ZweiterName), QByteArray("neu"));
    QCOMPARE(Inode(Pfad), Vorher);
}

void TestDateischutz::RechteDerDateiBleiben() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), "alt");
    QFile::setPermissions(Pfad, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    const auto Vorher = QFile::permissions(Pfad);
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "neu")), QString());
    QCOMPARE(QFile::permissions(Pfad), Vorher);
}

void TestDateischutz::ScheitertDasOeffnenBleibtNichts_data() {
    QTest::addColumn<QString>("Name");
    QTest::addColumn<int>("Grund");
    QTest::addColumn<QString>("Ursache");
    using Art = Dateifehler::Art;
    QTest::newRow("kein Name") << QString() << int(Art::NichtVorhanden) << QStringLiteral("nicht vorhanden");
    QTest::newRow("kein Ordner") << QStringLiteral("fehlt/buch.txt") << int(Art::NichtVorhanden)
                                 << QStringLiteral("nicht vorhanden");
    QTest::newRow("Ordner") << QStringLiteral("programm") << int(Art::Ordner) << QStringLiteral("ein Ordner");
    QTest::newRow("Datei als Ordner") << QStringLiteral("datei.txt/buch.txt") << int(Art::NichtVorhanden)
                                      << QStringLiteral("nicht vorhanden");
}

void TestDateischutz::ScheitertDasOeffnenBleibtNichts() {
    QFETCH(QString, Name);
    QFETCH(int, Grund);
    QFETCH(QString, Ursache);
    Welt.DateiAnlegen(QStringLiteral("datei.txt"), "alt");
    const QString Pfad = Name.isEmpty() ? QString() : Welt.Pfad(Name);
    const auto Fehler = DateiSchreiben(Pfad, "neu");
    QVERIFY(Fehler.has_value());
    QCOMPARE(int(Fehler->Grund), Grund);
    QVERIFY2(Fehler->Text.contains(Ursache), qPrintable(Fehler->Text));
    QVERIFY2(Fehler->Text.contains(Pfad), qPrintable(Fehler->Text));
    QCOMPARE(Fehler->Rettungskopie, QString());
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestDateischutz::LesenGibtDieBytes_data() {
    QTest::addColumn<QByteArray>("Inhalt");
    QTest::newRow("leer") << QByteArray("");
    QTest::newRow("ein Byte") << QByteArray("x");
    QTest::newRow("NUL") << QByteArray("a\0b\r\n", 5);
    QTest::newRow("gross") << QByteArray(5'000'000, 'z');
}

void TestDateischutz::LesenGibtDieBytes() {
    QFETCH(QByteArray, Inhalt);
    Dateifehler Fehler;
    const auto Gelesen = DateiLesen(Welt.DateiAnlegen(QStringLiteral("buch.txt"), Inhalt), &Fehler);
    QVERIFY(Gelesen.has_value());
    QCOMPARE(*Gelesen, Inhalt);
}

void TestDateischutz::LesenSagtDenGrund_data() {
    QTest::addColumn<QString>("Pfad");
    QTest::addColumn<int>("Grund");
    using Art = Dateifehler::Art;
    QTest::newRow("fehlt") << QStringLiteral("/gibt/es/nicht.txt") << int(Art::NichtVorhanden);
    QTest::newRow("leerer Pfad") << QString() << int(Art::NichtVorhanden);
    QTest::newRow("Ordner") << QStringLiteral("/") << int(Art::Ordner);
    QTest::newRow("Geraet") << QStringLiteral("/dev/zero") << int(Art::Sonstiges);
}

void TestDateischutz::LesenSagtDenGrund() {
    QFETCH(QString, Pfad);
    QFETCH(int, Grund);
    Dateifehler Fehler;
    QVERIFY(!DateiLesen(Pfad, &Fehler).has_value());
    QCOMPARE(int(Fehler.Grund), Grund);
    QVERIFY(
        Fehler.Text.startsWith(QStringLiteral("Die Datei \"%1\" konnte nicht gelesen werden:").arg(Pfad)));
}

void TestDateischutz::EineRoehreHaeltWederLesenNochSchreibenAuf() {
    const QString Pfad = Welt.Pfad(QStringLiteral("roehre"));
    QCOMPARE(::mkfifo(QFile::encodeName(Pfad).constData(), 0600), 0);
    Dateifehler Fehler;
    QVERIFY(!DateiLesen(Pfad, &Fehler).has_value());
    QVERIFY(DateiSchreiben(Pfad, "neu").has_value());
    QCOMPARE(Rettungsdateien(), QStringList());
}

void TestDateischutz::DerRettungsordnerIstNurFuerDenBenutzer() {
    const QString Ordner = Zustandsverzeichnis();
    QFile::setPermissions(Ordner, QFile::Permissions(0x7777));
    QCOMPARE(Fehlertext(DateiSchreiben(Welt.Pfad(QStringLiteral("buch.txt")), "neu")), QString());
    struct stat Stand {};
    QCOMPARE(::stat(QFile::encodeName(Ordner).constData(), &Stand), 0);
    QCOMPARE(int(Stand.st_mode & 0777), 0700);
}

void TestDateischutz::OhneRettungsordnerWirdNichtGespeichert() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), "alt");
    ZustandsverzeichnisSetzen(Welt.DateiAnlegen(QStringLiteral("im_weg"), {}) + QStringLiteral("/zustand"));
    const auto Fehler = DateiSchreiben(Pfad, "neu");
    QVERIFY(Fehler.has_value());
    QCOMPARE(Fehler->Schritt, QStringLiteral("Rettungskopie"));
    QVERIFY2(Fehler->Text.contains(QStringLiteral("ist unverändert")), qPrintable(Fehler->Text));
    QCOMPARE(Testwelt::DateiInhalt(Pfad), QByteArray("alt"));
}

void TestDateischutz::FremdeRettungskopienBleibenBeimSpeichern() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), "alt");
    QDir().mkpath(Zustandsverzeichnis());
    Welt.DateiAnlegen(QStringLiteral("zustand/r.1.rescue"), "keine rechte Kopie");
    Welt.DateiAnlegen(QStringLiteral("zustand/r.2.tmp"), "unfertig");
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "neu")), QString());
    QCOMPARE(Rettungsdateien(), QStringList({QStringLiteral("r.1.rescue"), QStringLiteral("r.2.tmp")}));
    QCOMPARE(Testwelt::DateiInhalt(Welt.Pfad(QStringLiteral("zustand/r.1.rescue"))),
             QByteArray("keine rechte Kopie"));
}

void TestDateischutz::EineErledigteRettungskopieGehtBeimSpeichern() {
    const QString Pfad = Welt.DateiAnlegen(QStringLiteral("buch.txt"), "voriger Stand");
    Rettungskopf Kopf;
    Kopf.Ziel = QFile::encodeName(QFileInfo(Pfad).canonicalFilePath());
    Kopf.Inhalt = MarkeVon("voriger Stand");
    Kopf.Zeit = QDateTime(QDate(2003, 10, 12), QTime(10, 0), Qt::UTC);
    QDir().mkpath(Zustandsverzeichnis());
    Welt.DateiAnlegen(QStringLiteral("zustand/r.7.rescue"), RettungskopfBytes(Kopf) + "voriger Stand");
    QCOMPARE(Fehlertext(DateiSchreiben(Pfad, "neu")), QString());
    QCOMPARE(Rettungsdateien(), QStringList());
}

TESTKLASSE(TestDateischutz)
#include "tst_Dateischutz.moc"
