#include "common/Testwelt.h"

#include "core/Definitionen.h"
#include "core/Eingabezaehler.h"
#include "core/Einstellungen.h"
#include "core/NeuererStand.h"
#include "core/Oberflaeche.h"
#include "core/Orte.h"
#include "core/Rettungsorte.h"
#include "core/Uhr.h"
#include "core/Zahlen.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

#ifdef MIT_FENSTERN
#include <QApplication>
#include <QWidget>
#endif

Testwelt::Testwelt() = default;

Testwelt::~Testwelt() {
    MeldungsdienstSetzen(nullptr);
}

namespace {

void RecordsLeeren() {
    // Also beyond the counters: a test must not see what an earlier one left there.
    for (auto& Einer : Datenbank.Schueler)
        Einer = {};
    for (auto& Eine : Datenbank.Noten)
        Eine = {};
    for (auto& Eines : Datenbank.Faecher)
        Eines = {};
    for (auto& Eine : Datenbank.Klassen)
        Eine = {};
    for (auto& Einer : Datenbank.ZSchueler)
        Einer = {};
    Datenbank.AnzSchueler = Datenbank.AnzNoten = Datenbank.AnzFaecher = 0;
    Datenbank.AnzKlassen = Datenbank.AnzZSchueler = 0;
}

void ParameterVorgeben() {
    Datenbank.AktJahr = QStringLiteral("2003/04");
    Datenbank.Halbjahreswechsel = QStringLiteral("24.02.");
    Datenbank.Endjahreswechsel = QStringLiteral("12.09.");
    Datenbank.GrenznotenBerechnen = true;
    Datenbank.GrenznotenPunkteAbstand = 0.5F;
    Datenbank.GrenznotenBeruecksichtigen = false;
    Datenbank.GrenznotenNotenAbstand = 0.3F;
    Datenbank.NotenberechnenMethode = QStringLiteral("1");
    Datenbank.GewichtungE = 1.0F;
    Datenbank.GewichtungM = 0.5F;
    const QStringList Titel{QStringLiteral("Strasse"),    QStringLiteral("Ort"),
                            QStringLiteral("Tel"),        QStringLiteral("Religion"),
                            QStringLiteral("Geschlecht"), QStringLiteral("Staat"),
                            QStringLiteral("Geburtstag")};
    for (int i = 1; i <= 14; ++i)
        Datenbank.SchuelerFeldTitel[i] = i <= 7 ? Titel[i - 1] : QStringLiteral("Daten%1").arg(i - 7);
}

void ZustandVorgeben() {
    NaechsteSchuelerID = ErsteSchuelerID;
    NaechsteFachID = ErsteFachID;
    DatenGeaendert = FormulierungenGeaendert = false;
    AktSchuelerID = AktFachID = AktProbe = 0;
    AktKlasse.clear();
    GridEreignisseAktiv = true;
    FormularBereit = true;
    EingabezaehlerLeeren();
    DialogErgebnis = WizardZurueck = NamenUmgekehrt = false;
    NeueKlasseName.clear();
    NeuesFachName.clear();
    LetzteKlassenWahl = 0;
    ZSchuelerArt = 0;
    MaxNote = 6;
    Notenformat = QStringLiteral("0.0");
    AnzFremdSchueler = 0;
    AnzLernbereiche = 0;
    Lernbereiche[0].Anzahl = 0;
    NotenAnzahl = {};
    PunkteVerteilung = {};
}

} // namespace

void Testwelt::Herstellen() {
    Temp = std::make_unique<QTemporaryDir>();
    QVERIFY(Temp->isValid());
    // QSettings asks for XDG_CONFIG_HOME only once in a process, so the path is set by its own means.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       Temp->filePath(QStringLiteral("config")));
    EinstellungenVergessen();
    QDir(Temp->path()).mkpath(QStringLiteral("programm"));
    ProgrammverzeichnisSetzen(Temp->filePath(QStringLiteral("programm")));
    ZustandsverzeichnisSetzen(Temp->filePath(QStringLiteral("zustand")));
    qunsetenv("XDG_RUNTIME_DIR"); // no second place for rescue copies, unless a test makes one
    AusweichhinweisVergessen();
    AlleNeuerenStaendeVergessen();
    UhrStellen(QDateTime(QDate(2003, 10, 12), QTime(10, 30)));
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    OberflaecheSetzen(nullptr);
    Boxen.Vergessen();
    MeldungsdienstSetzen(&Boxen);
    RecordsLeeren();
    ParameterVorgeben();
    ZustandVorgeben();
    for (int Platz = 0; Platz < EingabeZaehler.size(); ++Platz)
        EingabezaehlerAktion(Platz, {});
}

void Testwelt::Aufraeumen() {
#ifdef MIT_FENSTERN
    const auto Fenster = QApplication::topLevelWidgets();
    for (QWidget* Eines : Fenster)
        Eines->close();
#endif
    const QStringList Offen = Boxen.Offen();
    Boxen.Vergessen();
    MeldungsdienstSetzen(nullptr);
    OberflaecheSetzen(nullptr);
    Temp.reset();
    QCOMPARE(Offen, QStringList());
}

QString Testwelt::Ordner() const {
    return Temp->path();
}

QString Testwelt::Pfad(const QString& Name) const {
    return Temp->filePath(Name);
}

QString Testwelt::DateiAnlegen(const QString& Name, const QByteArray& Inhalt) const {
    QFile Datei(Pfad(Name));
    if (!Datei.open(QIODevice::WriteOnly) || Datei.write(Inhalt) != Inhalt.size())
        qFatal("Testdatei nicht geschrieben: %s", qPrintable(Pfad(Name)));
    return Pfad(Name);
}

QByteArray Testwelt::DateiInhalt(const QString& Pfad) {
    QFile Datei(Pfad);
    return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}
