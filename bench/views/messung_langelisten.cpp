#include "common/Grossbuch.h"
#include "common/Messung.h"

#include "assessments/AnsichtB.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Zahlen.h"
#include "views/AnsichtN1.h"
#include "views/AnsichtN2.h"
#include "views/AnsichtS.h"

#include <QApplication>
#include <QTabWidget>
#include <QTemporaryDir>

#include <memory>

// A list of 5000 rows against one of 35 in the same book, in each view that has one: entering its tab, and
// choosing what it lists, each until it is painted. 35 rows fill the window, so both sides paint the same.

namespace {

constexpr QSize Fenstergroesse(1280, 700);
constexpr int Lang = 5000;
constexpr int Kurz = 35;

const QString LangeKlasse = QStringLiteral("7a");   ///< whose list is measured
const QString AndereKlasse = QStringLiteral("7b");  ///< the rest of the students
const QString KleineKlasse = QStringLiteral("7c");  ///< a single student; chosen before
const qint32& FachL = Datenbank.Faecher[0].ID;      ///< whose list is measured
const qint32& FachRest = Datenbank.Faecher[1].ID;   ///< the rest of the rows
const qint32& SchuelerL = Datenbank.Schueler[0].ID; ///< whose list is measured

/// A book at all bounds with three classes and ten subjects in its year; no list is long yet.
void BuchFuellen() {
    GrossbuchFuellen(4);
    for (int i = 0; i < Datenbank.AnzFaecher; ++i)
        Datenbank.Faecher[i].Jahr = i < 10 ? Datenbank.AktJahr : QStringLiteral("2002/03");
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        Datenbank.Klassen[i].Jahr = QStringLiteral("2002/03");
    // Each student has a name of his own, as a school has them.
    for (int i = 0; i < Datenbank.AnzSchueler; ++i)
        Datenbank.Schueler[i].Name += QString::number(i % 7919 * 31 % 5003);
    int Nummer = 0;
    for (const QString& Name : {LangeKlasse, AndereKlasse, KleineKlasse})
        Datenbank.Klassen[Nummer++] = {Datenbank.AktJahr, Name};
    AktKlasse = LangeKlasse;
    AktFachID = FachL;
    AktSchuelerID = 0;
}

void KlasseSetzen(int Anzahl) {
    for (int i = 0; i < Datenbank.AnzSchueler; ++i)
        Datenbank.Schueler[i].Klasse = i < Anzahl ? LangeKlasse : AndereKlasse;
    Datenbank.Schueler[Datenbank.AnzSchueler - 1].Klasse = KleineKlasse;
}

/// Each student has a row of grades in the two first subjects.
void TeilnahmeSetzen() {
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        Datenbank.Noten[i].Fach_ID = i < Lang ? FachL : FachRest;
        Datenbank.Noten[i].Schueler_ID = Datenbank.Schueler[i % Lang].ID;
    }
    for (int i = 0; i < Datenbank.AnzFaecher; ++i)
        Datenbank.Faecher[i].Klasse = i < 2 ? LangeKlasse : AndereKlasse;
}

void FachlisteSetzen(int Anzahl) {
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        Datenbank.Noten[i].Fach_ID = i < Anzahl ? FachL : FachRest;
        Datenbank.Noten[i].Schueler_ID = Datenbank.Schueler[i % Lang].ID;
    }
}

/// One student has these many rows, over all subjects of the book.
void SchuelerlisteSetzen(int Anzahl) {
    KlasseSetzen(Kurz);
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        Datenbank.Noten[i].Fach_ID = Datenbank.Faecher[i % Datenbank.AnzFaecher].ID;
        Datenbank.Noten[i].Schueler_ID = i < Anzahl ? SchuelerL : Datenbank.Schueler[Lang].ID;
    }
}

/// Every text that the lists show gets other letters: nothing of it is known from before.
void TexteErneuern() {
    static int Runde = 0;
    const QString Endung = QString::number(++Runde % 10);
    const auto Erneuern = [&Endung](QString& Text) { Text = Text.chopped(Text.isEmpty() ? 0 : 1) + Endung; };
    for (int i = 0; i < Datenbank.AnzSchueler; ++i) {
        Schueler& Einer = Datenbank.Schueler[i];
        Einer.Name = QStringLiteral("%1 Nachname%2 %3").arg(i * 31 % 5003).arg(i).arg(Runde);
        for (QString& Text : Einer.Feld)
            Erneuern(Text);
        for (QString& Text : Einer.Beurteilung)
            Erneuern(Text);
    }
}

/// A view behind an empty tab, as the main window has it.
template <class Art>
class Reiterfenster {
  public:
    Reiterfenster() {
        Fenster.addTab(new QWidget, QStringLiteral("leer"));
        Fenster.addTab(Sicht, QStringLiteral("Liste"));
        Fenster.resize(Fenstergroesse);
        Fenster.show();
        Betreten();
    }

    /// Entering the tab of the view until it is painted.
    double Betreten() {
        Fenster.setCurrentIndex(0);
        QCoreApplication::processEvents();
        return Dauer([this] {
            Fenster.setCurrentIndex(1);
            Sicht->Fuellen();
            QCoreApplication::processEvents();
        });
    }

    /// Choosing an entry of a combo until the list is painted, from another entry on.
    double Waehlen(const char* Name, const QString& Vorher, const QString& Text) {
        auto* Feld = Sicht->template findChild<Kombinationsfeld*>(QString::fromLatin1(Name));
        Feld->setListIndex(Feld->findText(Vorher));
        QCoreApplication::processEvents();
        const int Index = Feld->findText(Text);
        return Dauer([&] {
            Feld->setListIndex(Index);
            QCoreApplication::processEvents();
        });
    }

  private:
    QTabWidget Fenster;
    Art* Sicht = new Art;
};

void Melden(const QString& Name, const Messreihe& Reihe) {
    Zeile(Name, Reihe.Verhaeltnis(), 1.05, 1.2);
    Anmerkung(QStringLiteral("%1 ms against %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
}

using Setzen = std::function<void(int)>;

/// The same twice, with a long list and with a short one.
Messreihe LangGegenKurz(const Setzen& Liste, const std::function<double()>& Messung) {
    const auto Seite = [&](int Anzahl) {
        return [&, Anzahl] {
            Liste(Anzahl);
            return Messung();
        };
    };
    return Vergleichen(Seite(Lang), Seite(Kurz));
}

/// Entering the tab.
template <class Art>
void BetretenMessen(const QString& Name, const Setzen& Liste) {
    Reiterfenster<Art> Eines;
    Melden(Name + QStringLiteral(", 5000 rows against 35: tab entered"),
           LangGegenKurz(Liste, [&] { return Eines.Betreten(); }));
}

/// A fill in which no text is known from before, at 1x, 2x and 4x of 1250 rows.
template <class Art>
void WachstumMessen(const QString& Name, const Setzen& Liste) {
    Reiterfenster<Art> Eines;
    std::vector<double> Zeiten;
    for (const int Anzahl : {1250, 2500, 5000}) {
        Liste(Anzahl);
        std::vector<double> Runden;
        for (int i = 0; i < Runden11; ++i) {
            TexteErneuern();
            Runden.push_back(Eines.Betreten());
        }
        Zeiten.push_back(Median(Runden));
        Anmerkung(
            QStringLiteral("%1, %2 rows of new texts: %3 ms").arg(Name).arg(Anzahl).arg(Zeiten.back() * 1e3));
    }
    Zeile(Name + QStringLiteral(", fill of new texts: time 2x/1x over size"), Zeiten[1] / Zeiten[0] / 2, 1,
          1.15);
    Zeile(Name + QStringLiteral(", fill of new texts: time 4x/1x over size"), Zeiten[2] / Zeiten[0] / 4, 1,
          1.15);
}

void FachlisteMessen() {
    BuchFuellen();
    FachlisteSetzen(Lang);
    const QString Name = QStringLiteral("view N1");
    BetretenMessen<AnsichtN1>(Name, FachlisteSetzen);
    Reiterfenster<AnsichtN1> Eines;
    Melden(
        Name + QStringLiteral(", 5000 rows against 35: subject chosen"), LangGegenKurz(FachlisteSetzen, [&] {
            return Eines.Waehlen("cbN1KlasseFach", QStringLiteral("7a Fach 3"), QStringLiteral("7a Fach 1"));
        }));
    WachstumMessen<AnsichtN1>(Name, FachlisteSetzen);
}

void SchuelernotenMessen() {
    BuchFuellen();
    SchuelerlisteSetzen(Lang);
    Datenbank.Schueler[0].Name = QStringLiteral("Aal Adam");
    Datenbank.Schueler[1].Name = QStringLiteral("Zuse Zoe");
    AktSchuelerID = SchuelerL;
    const QString Name = QStringLiteral("view N2");
    BetretenMessen<AnsichtN2>(Name, SchuelerlisteSetzen);
    Reiterfenster<AnsichtN2> Eines;
    Melden(Name + QStringLiteral(", 5000 rows against 35: student chosen"),
           LangGegenKurz(SchuelerlisteSetzen, [&] {
               return Eines.Waehlen("cbN2Name", QStringLiteral("Zuse Zoe"), QStringLiteral("Aal Adam"));
           }));
    AktSchuelerID = 0;
    Melden(
        Name + QStringLiteral(", class of 5000 names against 35: class chosen"),
        LangGegenKurz(KlasseSetzen, [&] { return Eines.Waehlen("cbN2Klasse", KleineKlasse, LangeKlasse); }));
}

template <class Art>
void KlasseMessen(const QString& Name, const char* Klassenfeld) {
    BuchFuellen();
    TeilnahmeSetzen();
    BetretenMessen<Art>(Name, KlasseSetzen);
    Reiterfenster<Art> Eines;
    Melden(Name + QStringLiteral(", 5000 rows against 35: class chosen"), LangGegenKurz(KlasseSetzen, [&] {
               return Eines.Waehlen(Klassenfeld, KleineKlasse, LangeKlasse);
           }));
    WachstumMessen<Art>(Name, KlasseSetzen);
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Ordner;
    qputenv("XDG_CONFIG_HOME", Ordner.path().toLocal8Bit());
    const QApplication Programm(argc, argv);
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    FormularBereit = true;
    FachlisteMessen();
    SchuelernotenMessen();
    KlasseMessen<AnsichtS>(QStringLiteral("view S"), "cbSKlasse");
    KlasseMessen<AnsichtB>(QStringLiteral("view B"), "cbBKlasse");
    return 0;
}
