#include "common/Messung.h"

#include "assessments/AnsichtB.h"
#include "assessments/Formulierungsanpassung.h"
#include "assessments/Formulierungstabelle.h"
#include "controls/EingabeText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTemporaryDir>

// View B: a key in a long assessment, and the change of student with a full area beside it.

namespace {

constexpr int Klassenstaerke = 35;

QString Satz(int Nummer) {
    return QStringLiteral("***** löst Aufgabe %1 selbstständig, erklärt seinen Weg und hilft dabei anderen.")
        .arg(Nummer);
}

void RecordsFuellen() {
    Datenbank.AktJahr = QStringLiteral("2003/04");
    Datenbank.Klassen[0] = {Datenbank.AktJahr, QStringLiteral("7a")};
    Datenbank.AnzKlassen = 1;
    for (int i = 0; i < Klassenstaerke; ++i) {
        Schueler& Einer = Datenbank.Schueler[i];
        Einer.ID = ErsteSchuelerID + i;
        Einer.Name = QStringLiteral("Nachname%1 Vorname%1").arg(i);
        Einer.Klasse = QStringLiteral("7a");
        Einer.Jahr = Datenbank.AktJahr;
        Einer.Feld[5] = i % 2 ? QStringLiteral("m") : QStringLiteral("w");
        for (int j = 0; Einer.Beurteilung[0].size() < 5000; ++j)
            Einer.Beurteilung[0] += Satz(j) + u' ';
        Einer.Beurteilung[0].truncate(5000);
    }
    Datenbank.AnzSchueler = Klassenstaerke;
    Lernbereiche[0].Name = QStringLiteral("voll");
    for (int i = 0; i < 200; ++i)
        Lernbereiche[0].Formulierung[i] = QStringLiteral("o ") + Satz(i);
    Lernbereiche[0].Anzahl = 200;
    AnzLernbereiche = 1;
}

/// Eight keys at the end of the text, each painted, and taken back outside the time.
double Tippen(QPlainTextEdit& Feld) {
    Feld.moveCursor(QTextCursor::End);
    QCoreApplication::processEvents();
    const double Sekunden = Dauer([&Feld] {
        for (int i = 0; i < 8; ++i) {
            QKeyEvent Taste(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
            QCoreApplication::sendEvent(&Feld, &Taste);
            QCoreApplication::processEvents();
        }
    });
    for (int i = 0; i < 8; ++i)
        Feld.textCursor().deletePreviousChar();
    QCoreApplication::processEvents();
    return Sekunden;
}

/// The 200 texts laid out and painted once in the width of the table.
double TexteMalen(const Formulierungstabelle& Tabelle) {
    QStringList Texte;
    for (int i = 0; i < 200; ++i)
        Texte.append(Satz(i));
    QImage Bild(Tabelle.viewport()->width(), 4000, QImage::Format_ARGB32_Premultiplied);
    return Dauer([&] {
        QPainter Stift(&Bild);
        Stift.setFont(Tabelle.font());
        int Oben = 0;
        for (const QString& Text : Texte) {
            QRect Platz;
            Stift.drawText(QRect(2, Oben % 3900, Bild.width() - 4, 100), Qt::TextWordWrap, Text, &Platz);
            Oben += Platz.height();
        }
    });
}

void Melden(const QString& Name, const Messreihe& Reihe, int Teiler, double Ziel, double Grenze) {
    Zeile(Name, Reihe.Verhaeltnis(), Ziel, Grenze);
    Anmerkung(QStringLiteral("%1 ms gegen %2 ms")
                  .arg(Median(Reihe.Eigene) / Teiler * 1e3, 0, 'f', 3)
                  .arg(Median(Reihe.Referenz) / Teiler * 1e3, 0, 'f', 3));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Ordner;
    qputenv("XDG_CONFIG_HOME", Ordner.path().toLocal8Bit());
    QApplication Programm(argc, argv);
    RecordsFuellen();
    FormularBereit = true;
    AnsichtB Sicht;
    Sicht.resize(1024, 700);
    Sicht.show();
    Sicht.Fuellen();
    auto& Schueler = *Sicht.findChild<Gitter*>(QStringLiteral("tblBeurteilungen"));
    auto& Floskeln = *Sicht.findChild<Formulierungstabelle*>(QStringLiteral("tblBFloskel"));
    auto& Text = *Sicht.findChild<EingabeText*>(QStringLiteral("txtBEingabe"));
    Schueler.Enter(1, 1);
    QCoreApplication::processEvents();

    // Alone in a window of the size that is seen of the box.
    QPlainTextEdit Allein;
    Allein.resize(Text.width(), Schueler.viewport()->height());
    Allein.setPlainText(Datenbank.Schueler[0].Beurteilung[0]);
    Allein.show();
    QCoreApplication::processEvents();
    Melden(QStringLiteral("view B, a key in 5000 characters, painted"),
           Vergleichen([&Text] { return Tippen(Text); }, [&Allein] { return Tippen(Allein); }), 8, 1.5, 3);

    int Zeile = 1;
    Melden(QStringLiteral("view B, next student beside an area of 200 phrases"),
           Vergleichen(
               [&] {
                   Zeile = Zeile % 30 + 1;
                   return Dauer([&] {
                       Schueler.setCell(Zeile, 1);
                       QCoreApplication::processEvents();
                   });
               },
               [&Floskeln] { return TexteMalen(Floskeln); }),
           1, 1.0, 1.5);
    return 0;
}
