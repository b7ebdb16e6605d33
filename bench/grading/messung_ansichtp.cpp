#include "common/Grossbuch.h"
#include "common/Messung.h"
#include "grading/Vergleichsfenster.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "core/Definitionen.h"
#include "grading/AnsichtP.h"
#include "grading/Bildfeld.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>

// View P on a book at all bounds: entering its tab, a key in the open box, Return in it.

namespace {

constexpr QSize Fenstergroesse(1000, 700);

void Taste(QWidget* Ziel, int Welche, const QString& Text = {}) {
    QKeyEvent Druck(QEvent::KeyPress, Welche, Qt::NoModifier, Text);
    QCoreApplication::sendEvent(Ziel, &Druck);
    QKeyEvent Los(QEvent::KeyRelease, Welche, Qt::NoModifier, Text);
    QCoreApplication::sendEvent(Ziel, &Los);
}

/// The participants of a subject become these many, each with points in the first test.
void TeilnehmerSetzen(qint32 Fach_ID, int Anzahl) {
    for (int i = 0; i < Datenbank.AnzNoten; ++i)
        if (Datenbank.Noten[i].Fach_ID == Fach_ID)
            Datenbank.Noten[i].Fach_ID = -1;
    for (int i = 0, Gesetzt = 0; i < Datenbank.AnzNoten && Gesetzt < Anzahl; ++i) {
        Notenzeile& Zeile = Datenbank.Noten[i];
        if (Zeile.Fach_ID == Datenbank.Faecher[0].ID || Zeile.Fach_ID == Datenbank.Faecher[1].ID)
            continue;
        Zeile.Fach_ID = Fach_ID;
        Zeile.Schueler_ID = Datenbank.Schueler[Gesetzt % Datenbank.AnzSchueler].ID;
        Zeile.Teilnahme = QStringLiteral("ja");
        Zeile.P[1] = QString::number(Gesetzt % 40);
        ++Gesetzt;
    }
    Datenbank.AnzZSchueler = 0;
}

void ProbeSetzen(Fach& Eines) {
    const char* const Grenzen[] = {"36", "31", "25", "18", "9"};
    Eines.Jahr = Datenbank.AktJahr;
    Eines.Proben[1].Gesamtpunktzahl = QStringLiteral("40");
    for (int j = 1; j <= 5; ++j)
        Eines.Proben[1].NGrenze[j] = QLatin1String(Grenzen[j - 1]);
}

/// A window with two tabs: an empty one, and view P on one subject.
struct Reiterfenster {
    explicit Reiterfenster(qint32 NeueFach_ID)
        : Fach_ID(NeueFach_ID) {
        Fenster.addTab(new QWidget, QStringLiteral("leer"));
        Fenster.addTab(Sicht, QStringLiteral("P"));
        Fenster.resize(Fenstergroesse);
        Fenster.show();
        Wechseln();
    }

    /// Entering the tab of the view until it is painted, as the main window does it.
    double Wechseln() {
        Fenster.setCurrentIndex(0);
        QCoreApplication::processEvents();
        AktFachID = Fach_ID;
        AktProbe = 0;
        return Dauer([this] {
            Fenster.setCurrentIndex(1);
            Sicht->Fuellen();
            QCoreApplication::processEvents();
        });
    }

    qint32 Fach_ID;
    QTabWidget Fenster;
    AnsichtP* Sicht = new AnsichtP;
};

void WechselMessen() {
    Reiterfenster Klein(Datenbank.Faecher[0].ID);
    Reiterfenster Gross(Datenbank.Faecher[1].ID);
    const Messreihe Reihe = Vergleichen([&] { return Gross.Wechseln(); }, [&] { return Klein.Wechseln(); });
    Zeile(QStringLiteral("view P, 5000 rows against 35: switch and paint"), Reihe.Verhaeltnis(), 1.05, 1.2);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
}

/// A fill that has to build the list anew, at 1x, 2x and 4x of 1250 rows.
void FuellungMessen() {
    std::vector<double> Zeiten;
    for (const int Anzahl : {1250, 2500, 5000}) {
        GrossbuchFuellen(4);
        ProbeSetzen(Datenbank.Faecher[0]);
        TeilnehmerSetzen(Datenbank.Faecher[0].ID, Anzahl);
        Reiterfenster Eines(Datenbank.Faecher[0].ID);
        std::vector<double> Runden;
        for (int i = 0; i < Runden11; ++i) {
            MaxNote = MaxNote == 6 ? 5 : 6;
            Runden.push_back(Eines.Wechseln());
        }
        MaxNote = 6;
        Zeiten.push_back(Median(Runden));
        Anmerkung(QStringLiteral("view P, %1 rows filled anew: %2 ms").arg(Anzahl).arg(Zeiten.back() * 1e3));
    }
    Zeile(QStringLiteral("view P, fill anew: time 2x/1x over size"), Zeiten[1] / Zeiten[0] / 2, 1, 1.15);
    Zeile(QStringLiteral("view P, fill anew: time 4x/1x over size"), Zeiten[2] / Zeiten[0] / 4, 1, 1.15);
}

void EingabeMessen() {
    Reiterfenster Eines(Datenbank.Faecher[0].ID);
    auto* Tabelle = Eines.Sicht->findChild<Gitter*>(QStringLiteral("tblPPunkte"));
    auto* Eingabe = Eines.Sicht->findChild<EingabeFeld*>(QStringLiteral("txtEingabe"));
    auto* Bild = Eines.Sicht->findChild<Bildfeld*>(QStringLiteral("picPunkte"));
    Vergleichsfenster Referenz(35, Tabelle->size(), Bild->size());
    Referenz.show();
    Referenz.AllesMalen();
    Eines.Fenster.activateWindow();
    QCoreApplication::processEvents();

    int Punkte = 0;
    const Messreihe MitReturn = Vergleichen(
        [&] {
            Tabelle->Enter(1 + Punkte % 30, 1);
            Eingabe->setText(QString::number(++Punkte % 40) + QStringLiteral(",5"));
            QCoreApplication::processEvents();
            return Dauer([&] {
                Taste(Eingabe, Qt::Key_Return);
                QCoreApplication::processEvents();
            });
        },
        [&] { return Dauer([&] { Referenz.AllesMalen(); }); });
    Zeile(QStringLiteral("view P, Return in the points box to both charts painted"), MitReturn.Verhaeltnis(),
          0.6, 1.0);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Median(MitReturn.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(MitReturn.Referenz) * 1e3, 0, 'f', 2));

    QLineEdit Allein;
    Allein.resize(Eingabe->width(), Allein.sizeHint().height());
    Allein.show();
    QCoreApplication::processEvents();
    Tabelle->Enter(2, 1);
    const auto Zeichen = [](QLineEdit* Feld) {
        Feld->clear();
        QCoreApplication::processEvents();
        return Dauer([Feld] {
            for (int i = 0; i < 8; ++i) {
                Taste(Feld, Qt::Key_3, QStringLiteral("3"));
                QCoreApplication::processEvents();
            }
        });
    };
    const Messreihe MitZeichen =
        Vergleichen([&] { return Zeichen(Eingabe); }, [&] { return Zeichen(&Allein); });
    Zeile(QStringLiteral("view P, a character in the open box, painted"), MitZeichen.Verhaeltnis(), 1.2, 2);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Median(MitZeichen.Eigene) / 8 * 1e3, 0, 'f', 3)
                  .arg(Median(MitZeichen.Referenz) / 8 * 1e3, 0, 'f', 3));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Ordner;
    qputenv("XDG_CONFIG_HOME", Ordner.path().toLocal8Bit());
    const QApplication Programm(argc, argv);
    GrossbuchFuellen(4);
    for (int i = 0; i < Datenbank.AnzFaecher; ++i)
        Datenbank.Faecher[i].Jahr = i < 10 ? Datenbank.AktJahr : QStringLiteral("2002/03");
    ProbeSetzen(Datenbank.Faecher[0]);
    ProbeSetzen(Datenbank.Faecher[1]);
    TeilnehmerSetzen(Datenbank.Faecher[0].ID, 35);
    TeilnehmerSetzen(Datenbank.Faecher[1].ID, 5000);
    WechselMessen();
    EingabeMessen();
    FuellungMessen();
    return 0;
}
