#include "common/Testprogramm.h"
#include "core/Zahlen.h"
#include "grading/Optionspruefung.h"

#include <QtTest>

namespace {

const QString Gewicht = QStringLiteral("Der Wert muß zwischen 0 und 3 liegen!");
const QString Punkte = QStringLiteral("Der Wert muß zwischen 0 und 3 Punkten liegen!");
const QString Notenteil = QStringLiteral("Der Wert muß zwischen 0 und 0,5 liegen!");
const QString Unplausibel = QStringLiteral("Der Wert ist nicht plausibel!");

} // namespace

class TestOptionspruefung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany)); }

    void werteWerdenBeimVerlassenGeprueft_data() {
        QTest::addColumn<int>("Feld");
        QTest::addColumn<QString>("Getippt");
        QTest::addColumn<QString>("Danach");
        QTest::addColumn<QString>("Meldung");
        const auto Fall = [](const char* Name, Optionsfeld Feld, const char* Getippt, const char* Danach,
                             const QString& Meldung = {}) {
            QTest::addRow("%s '%s'", Name, Getippt) << static_cast<int>(Feld) << QString::fromLatin1(Getippt)
                                                    << QString::fromLatin1(Danach) << Meldung;
        };
        for (const auto& [Name, Feld, Vorgabe] :
             {std::tuple("GewichtungE", Optionsfeld::GewichtungE, "1"),
              std::tuple("GewichtungM", Optionsfeld::GewichtungM, "0,5")}) {
            Fall(Name, Feld, "0", Vorgabe, Gewicht);
            Fall(Name, Feld, "", Vorgabe, Gewicht);
            Fall(Name, Feld, "abc", Vorgabe, Gewicht);
            Fall(Name, Feld, "-1", Vorgabe, Gewicht);
            Fall(Name, Feld, "3,01", Vorgabe, Gewicht);
            Fall(Name, Feld, "1.5", Vorgabe, Gewicht); // a point is no decimal sign here
            Fall(Name, Feld, "3", "3");
            Fall(Name, Feld, "0,01", "0,01");
            Fall(Name, Feld, " 2,50 ", "2,5");
        }
        Fall("Punkteabstand", Optionsfeld::Punkteabstand, "0", "0,5", Punkte);
        Fall("Punkteabstand", Optionsfeld::Punkteabstand, "3,5", "0,5", Punkte);
        Fall("Punkteabstand", Optionsfeld::Punkteabstand, "3", "3");
        Fall("Notenabstand", Optionsfeld::Notenabstand, "0", "0,3", Notenteil);
        Fall("Notenabstand", Optionsfeld::Notenabstand, "0,51", "0,3", Notenteil);
        Fall("Notenabstand", Optionsfeld::Notenabstand, "0,5", "0,5");
        const Optionsfeld Halb = Optionsfeld::Halbjahreswechsel;
        Fall("Halbjahr", Halb, "24.02.", "24.02.");
        Fall("Halbjahr", Halb, "1.1.", "1.1.");
        Fall("Halbjahr", Halb, "1.7.", "1.7.");
        Fall("Halbjahr", Halb, "2.7.", "24.02.", Unplausibel);
        Fall("Halbjahr", Halb, "29.02.", "24.02.", Unplausibel); // 1999 has none
        Fall("Halbjahr", Halb, "24.02", "24.02.", Unplausibel);  // the year follows the text at once
        Fall("Halbjahr", Halb, "24.02.2004", "24.02.", Unplausibel);
        Fall("Halbjahr", Halb, "", "24.02.", Unplausibel);
        Fall("Halbjahr", Halb, "bald", "24.02.", Unplausibel);
        const Optionsfeld Ende = Optionsfeld::Endjahreswechsel;
        Fall("Endjahr", Ende, "12.09.", "12.09.");
        Fall("Endjahr", Ende, "1.7.", "1.7.");
        Fall("Endjahr", Ende, "31.12.", "31.12.");
        Fall("Endjahr", Ende, "30.6.", "12.09.", Unplausibel);
        Fall("Endjahr", Ende, "32.12.", "12.09.", Unplausibel);
    }
    void werteWerdenBeimVerlassenGeprueft() {
        QFETCH(const int, Feld);
        QFETCH(const QString, Getippt);
        QFETCH(const QString, Danach);
        QFETCH(const QString, Meldung);
        for (const QLocale& Sprache : {QLocale(QLocale::German, QLocale::Germany), QLocale::c()}) {
            SystemSpracheSetzen(Sprache);
            const Optionspruefung Ergebnis = OptionPruefen(static_cast<Optionsfeld>(Feld), Getippt);
            QCOMPARE(Ergebnis.Text, Danach);
            QCOMPARE(Ergebnis.Meldung, Meldung);
        }
    }

    void dieVorgabenSindInJederSpracheGueltig() {
        SystemSpracheSetzen(QLocale(QLocale::English, QLocale::UnitedStates));
        for (const Optionsfeld Feld :
             {Optionsfeld::GewichtungE, Optionsfeld::GewichtungM, Optionsfeld::Punkteabstand,
              Optionsfeld::Notenabstand, Optionsfeld::Halbjahreswechsel, Optionsfeld::Endjahreswechsel}) {
            const Optionspruefung Vorgabe = OptionPruefen(Feld, QStringLiteral("abc"));
            QVERIFY(!Vorgabe.Meldung.isEmpty());
            QCOMPARE(OptionPruefen(Feld, Vorgabe.Text), (Optionspruefung{Vorgabe.Text, {}}));
        }
        QCOMPARE(OptionPruefen(Optionsfeld::Notenabstand, {}).Text, QStringLiteral("0.3"));
    }
};

TESTKLASSE(TestOptionspruefung)
#include "tst_optionspruefung.moc"
