#include "Optionenwelt.h"
#include "common/Testprogramm.h"

#include "controls/Zellfarben.h"
#include "core/Definitionen.h"
#include "grading/AnsichtP.h"
#include "grading/Probenauswertung.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// "name: text" of each control named in Erwartet, in the same order, so that a difference shows as a line.
QStringList Gefundene(const QWidget& Form, const QStringList& Erwartet) {
    QStringList Texte;
    for (const QString& Zeile : Erwartet) {
        const QString Name = Zeile.section(u": "_s, 0, 0);
        const auto* Teil = Form.findChild<QWidget*>(Name);
        const auto* Schild = qobject_cast<const QLabel*>(Teil);
        const auto* Knopf = qobject_cast<const QAbstractButton*>(Teil);
        const auto* Rahmen = qobject_cast<const QGroupBox*>(Teil);
        Texte.append(Name + u": "_s +
                     (Schild   ? Schild->text()
                      : Knopf  ? Knopf->text()
                      : Rahmen ? Rahmen->title()
                               : u"missing"_s));
    }
    return Texte;
}

} // namespace

/// The words on the forms, letter for letter.
class TestBeschriftungen : public QObject {
    Q_OBJECT
    Optionenwelt O;

  private Q_SLOTS:
    void init() { O.Herstellen(); }
    void cleanup() { O.Aufraeumen(); }

    void AnsichtPTraegtIhreTexte() {
        const AnsichtP Form;
        QStringList Texte{u"lbPKlasseFach: Klasse/Fach:"_s,
                          u"lbPProbe: Probe:"_s,
                          u"lbPSortierung: Sortierung:"_s,
                          u"lbPDatum: Datum:"_s,
                          u"lbPThema: Thema:"_s,
                          u"lbPDateiname: Dateiname:"_s,
                          u"lbGesamtpunktzahl: Gesamtpunktzahl:"_s,
                          u"fmPNotengrenzen: Notengrenzen festlegen"_s,
                          u"fmPAutomatik: Automatik"_s,
                          u"lbPTabelle: Tabellen-Verteilung"_s,
                          u"lbPGauss: Gauß-Verteilung"_s,
                          u"lbPEigene: Eigene Verteilung"_s,
                          u"btPBesser: Besser"_s,
                          u"btPSchlechter: Schlechter"_s,
                          u"lbPNotenschnitt: Notenschnitt"_s,
                          u"btPTempSchueler: Neuer Schüler"_s,
                          u"btPTempSchuelerLoeschen: Schüler löschen"_s,
                          u"btPNeuesFach: Neues Fach"_s,
                          u"btPFachLoeschen: Fach löschen"_s};
        const QStringList Varianten{u"[--]"_s, u"[-]"_s, u"[o]"_s, u"[+]"_s, u"[++]"_s};
        for (int i = 0; i < 5; ++i) {
            Texte.append(u"lbNGrenze_%1: Note %2 ab"_s.arg(i).arg(i + 1));
            Texte.append(u"lbPunkten_%1: Punkten"_s.arg(i));
            Texte.append(u"btGaußverteilung_%1: %2"_s.arg(i).arg(Varianten.at(i)));
            Texte.append(u"btEigeneVerteilung_%1: %2"_s.arg(i).arg(Varianten.at(i)));
        }
        QCOMPARE(Gefundene(Form, Texte), Texte);
    }

    void OptionenTragenIhreTexte() {
        O.Oeffnen();
        QCOMPARE(O.Dialog->windowTitle(), u"Optionen"_s);
        QStringList Texte{
            u"Frame1: Notensystem"_s,
            u"Frame2: Genauigkeit  der Gesamtnote"_s,
            u"fm2: Jahreswechsel"_s,
            u"fm1: Bezeichnung der Proben"_s,
            u"obNotensystem_0: Noten 1 bis 6"_s,
            u"obNotensystem_1: Noten 1 bis 5"_s,
            u"rbNotenformat_0: 1 Nachkommastelle"_s,
            u"rbNotenformat_1: 2 Nachkommastellen"_s,
            u"lbHalbjahreswechsel: Halbjahreswechsel ist am"_s,
            u"lbEndjahreswechsel: Endjahreswechsel ist am"_s,
            u"lbSchuljahr: Schuljahr"_s,
            u"lbBezeichnung1: Bezeichnung der Proben"_s,
            u"lbBezeichnung2: Bezeichnung der Lernzielkontrollen"_s,
            u"fmNotenberechnungsmethode: Notenberechnungsmethode"_s,
            u"fmGewichtung: Gewichtungen der einzelnen Notenblöcke"_s,
            u"fmGrenznoten: Auf- und Abwertungen"_s,
            u"lbGewichtungP: Gewichtung der Proben"_s,
            u"lbGewichtungE: Gewichtung der Lernzielkontrollen"_s,
            u"lbGewichtungM: Gewichtung der Mündlichen Noten"_s,
            u"lbPunkteabstand: Abstand (in Punkten):"_s,
            u"lbNotenabstand: Notenanteil (z.B. 0,3):"_s,
            u"btAbbruch: Abbrechen"_s,
        };
        for (int i = 0; i < 13; ++i)
            Texte.append(u"lbStufe_%1: %2"_s.arg(i).arg(i + 1));
        QCOMPARE(Gefundene(*O.Dialog, Texte), Texte);
    }

    void OptionenErklaerenIhreRegeln() {
        O.Oeffnen();
        const QStringList Texte{
            u"rbNotenBerechnungsMethode_0: Der Durchschnitt wird aus allen Einzelnoten mit der jeweiligen "
            "Gewichtung gebildet. Die Anzahl der Noten in einem Notenblock (Proben, Lernzielkontrollen, "
            "Mündliche Noten) beeinflußt dadurch auch die Gewichtung des Notenblockes auf die Gesamtnote."_s,
            u"rbNotenBerechnungsMethode_1: Es werden zunächst die Durchschnittsnoten der einzelnen "
            "Notenblöcke (Proben, Lernzielkontrollen, Mündliche Noten) gebildet. Aus diesen wird dann unter "
            "Berücksichtung der Gewichtung der einzelnen Blöcke die Gesamtdurchschnittsnote gebildet."_s,
            u"rbNotenBerechnungsMethode_2: wie die 2. Methode, jedoch werden Lernzielkontrollen wie "
            "mündliche Noten (gemeinsam) behandelt."_s,
            u"cbGrenznotenBerechnen: Auf- und Abwertungen (z.B. 3+ oder 3-) werden bei der Probenauswertung "
            "automatisch berechnet. Eine Note wird auf- bzw. abgewertet, wenn die Punktzahl der Probe einen "
            "gewissen Abstand zur Notengrenze der nächstbessere/-schlechtere Note unterschreitet. Der "
            "Abstand kann frei festgelegt werden."_s,
            u"cbGrenznotenBeruecksichtigen: Auf- bzw. abgewertete Noten werden bei der "
            "Gesamtnotenberechnung als bessere bzw. schlechtere Noten gewertet. Dazu wird die Note um einen "
            "bestimmten Notenanteil erniedrigt bzw. erhöht. Der Notenanteil kann frei festgelegt werden. "
            "(Beispiel: Bei einem Notenanteil von 0,3 zählt eine 3- als 3,3 und eine 3+ als 2,7)"_s,
            u"lbErklaerungTabellen: Bei der Tabellen-Verteilung können die Notengrenzen z.B. nach "
            "Empfehlungen von Lehrerverbänden in Tabellenform festgelegt werden. In der Tabelle werden die "
            "Notengrenzen für jede mögliche Gesamtpunktzahl explizit festgelegt. Falls sich Empfehlung "
            "einmal ändern sollte, kann die Tabelle auch geändert werden:"_s,
            u"lbErklaerungGauss: Bei der Gauß-Verteilung werden die Notengrenzen so festgesetzt, daß jeweils "
            "ein gewisser Prozentsatz der Schüler eine bestimmte Note bekommt. Der jeweilige Prozentsatz "
            "kann für fünf mögliche Verteilungen [--], [-], [o], [+] und [++] frei festgelegt werden:"_s,
            u"lbErklaerungEigene: Bei der Eigenen Verteilung werden die Notengrenzen so festgesetzt, daß die "
            "Notengrenze jeweils bei einem bestimmten Prozentsatz der Gesamtpunktzahl zu liegen kommt. Der "
            "jeweilige Prozentsatz kann für fünf mögliche Verteilungen [--], [-], [o], [+] und [++] frei "
            "festgelegt werden:"_s,
        };
        QCOMPARE(Gefundene(*O.Dialog, Texte), Texte);
    }

    void ZeilenDerProzenttabellenSindEinSiebtelHoch() {
        O.Oeffnen();
        const std::pair<int, const char*> Seiten[] = {{3, "tblGaussVerteilung"}, {4, "tblEigeneVerteilung"}};
        for (const auto& [Seite, Name] : Seiten) {
            O.Seite(Seite);
            const Gitter* Tabelle = O.Tabelle(Name);
            for (int Zeile = 1; Zeile <= 6; ++Zeile)
                QCOMPARE(Tabelle->RowHeight(Zeile), (Tabelle->height() - 2) / 7);
        }
    }

    void NotenfarbenSindAufJedemDunklenGrundLesbar_data() {
        QTest::addColumn<QRgb>("Farbe");
        QTest::newRow("ne") << FarbeNichtErbracht;
        QTest::newRow("set by hand") << FarbeVonHand;
        QTest::newRow("from points") << FarbeBerechnet;
    }
    void NotenfarbenSindAufJedemDunklenGrundLesbar() {
        QFETCH(const QRgb, Farbe);
        for (int Helligkeit = 0; Helligkeit < 128; ++Helligkeit) {
            QPalette Dunkel;
            Dunkel.setColor(QPalette::Base, QColor(Helligkeit, Helligkeit, Helligkeit));
            Dunkel.setColor(QPalette::Text, Qt::white);
            QVERIFY2(IstDunkel(Dunkel) || Helligkeit == 127, qPrintable(QString::number(Helligkeit)));
            const Zellfarben Paar = ZellfarbenFuer(Farbe, 0, Dunkel, /*Kopf*/ false);
            QVERIFY2(!IstDunkel(Dunkel) || Kontrast(Paar.Text, Paar.Grund) >= 4.5,
                     qPrintable(u"%1: %2"_s.arg(Helligkeit).arg(Kontrast(Paar.Text, Paar.Grund))));
        }
    }
};

TESTKLASSE(TestBeschriftungen)
#include "tst_beschriftungen.moc"
