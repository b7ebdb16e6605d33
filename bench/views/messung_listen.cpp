#include "common/Grossbuch.h"
#include "common/Messung.h"

#include "controls/EingabeFeld.h"
#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Zahlen.h"
#include "views/AnsichtN1.h"
#include "views/AnsichtN2.h"
#include "views/AnsichtS.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>

// Lists: painting the grid, switching class, subject and student, and one committed grade.

namespace {

QImage Bild(const QWidget& Feld) {
    return {Feld.size(), QImage::Format_ARGB32_Premultiplied};
}

double Malen(QWidget& Feld, QImage& Ziel) {
    return Dauer([&] { Feld.render(&Ziel); });
}

/// The reference: texts and frames of the same cells, nothing else.
double BloszMalen(const Gitter& Tabelle, QImage& Ziel) {
    return Dauer([&] {
        QPainter Maler(&Ziel);
        Maler.setFont(Tabelle.font());
        Maler.fillRect(Ziel.rect(), Qt::white);
        for (int z = 0; z < Tabelle.Rows(); ++z)
            for (int s = 0; s < Tabelle.Cols(); ++s) {
                const QRect Zelle = Tabelle.visualRect(Tabelle.model()->index(z, s));
                if (!Ziel.rect().intersects(Zelle))
                    continue;
                Maler.setPen(Qt::lightGray);
                Maler.drawRect(Zelle);
                Maler.setPen(Qt::black);
                Maler.drawText(Zelle.adjusted(3, 0, -3, 0), Qt::AlignCenter, Tabelle.TextMatrix(z, s));
            }
    });
}

void MalenMessen(const QString& Name, Gitter& Tabelle) {
    QImage Eigenes = Bild(*Tabelle.viewport());
    QImage Anderes = Eigenes;
    const Messreihe Reihe = Vergleichen([&] { return Malen(*Tabelle.viewport(), Eigenes); },
                                        [&] { return BloszMalen(Tabelle, Anderes); });
    Zeile(Name, Reihe.Verhaeltnis(), 1.0, 1.5);
    Anmerkung(QStringLiteral("%1 ms against %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
}

void GitterMalen() {
    Gitter Tabelle;
    Tabelle.setCols(35);
    Tabelle.setRows(2);
    Tabelle.setFixedRows(2);
    Tabelle.setFixedCols(1);
    std::vector<Gitterzeile> Zeilen(37);
    for (std::size_t z = 0; z < Zeilen.size(); ++z)
        for (std::size_t s = 0; s < 35; ++s)
            Zeilen[z].Zellen.push_back({QString::number((z * 7 + s * 3) % 6 + 1),
                                        s % 5 == 0 ? qRgb(255, 0, 0) : 0U,
                                        s < 16 ? qRgb(221, 239, 255) : qRgb(221, 255, 221)});
    Tabelle.ZeilenSetzen(std::move(Zeilen));
    Tabelle.setColShares(QList<double>(35, 1.0 / 35));
    Tabelle.resize(1280, 40 * Tabelle.RowHeight(3) + 4);
    Tabelle.show();
    MalenMessen(QStringLiteral("repaint of a grid of 35 x 40 cells"), Tabelle);
}

/// A view in a window, and the grid in it.
template <class Art>
struct Fenster {
    Art Ansicht;
    Gitter* Tabelle = nullptr;
    QImage Flaeche;

    Fenster() {
        Ansicht.resize(1280, 900);
        Ansicht.show();
        Tabelle = Ansicht.template findChild<Gitter*>();
        QCoreApplication::processEvents();
        Flaeche = Bild(*Tabelle->viewport());
    }
    Kombinationsfeld* Wahl(const char* Name) {
        return Ansicht.template findChild<Kombinationsfeld*>(QString::fromLatin1(Name));
    }
    /// Chooses entries in turn until Anzahl switches have been painted; seconds for one.
    double Wechseln(Kombinationsfeld& Feld, int Erster, int Zweiter) {
        constexpr int Anzahl = 10;
        return Dauer([&] {
                   for (int i = 0; i < Anzahl; ++i) {
                       Feld.setCurrentIndex(i % 2 == 0 ? Zweiter : Erster);
                       Tabelle->viewport()->render(&Flaeche);
                   }
                   Feld.setCurrentIndex(Erster);
               }) /
               Anzahl;
    }
};

int ErsterEintragDer7a(const Kombinationsfeld& Feld) {
    for (int i = 0; i < Feld.count(); ++i)
        if (Feld.itemText(i).startsWith(QStringLiteral("7a")))
            return i;
    qFatal("keine Klasse 7a");
}

double FachWechseln() {
    Fenster<AnsichtN1> Eines;
    Eines.Ansicht.Fuellen();
    Kombinationsfeld& Faecher = *Eines.Wahl("cbN1KlasseFach");
    const int Erster = ErsterEintragDer7a(Faecher);
    return Eines.Wechseln(Faecher, Erster, Erster + 1);
}

double SchuelerWechseln() {
    AktKlasse = QStringLiteral("7a");
    AktSchuelerID = 0;
    Fenster<AnsichtN2> Eines;
    Eines.Ansicht.Fuellen();
    return Eines.Wechseln(*Eines.Wahl("cbN2Name"), 0, 1);
}

/// A class without students beside 7a, so that there is one to switch to in a book of one class, too.
QString LeereKlasse() {
    const QString Name = QStringLiteral("9z");
    const int Platz = qMin<int>(Datenbank.AnzKlassen, Datenbank.Klassen.size() - 2);
    Datenbank.Klassen[Platz] = {Datenbank.AktJahr, Name};
    Datenbank.AnzKlassen = qMax(Datenbank.AnzKlassen, static_cast<qint16>(Platz + 1));
    return Name;
}

double KlasseWechseln() {
    const QString Leere = LeereKlasse();
    AktKlasse = QStringLiteral("7a");
    AktSchuelerID = 0;
    Fenster<AnsichtS> Eines;
    Eines.Ansicht.Fuellen();
    Kombinationsfeld& Klassen = *Eines.Wahl("cbSKlasse");
    return Eines.Wechseln(Klassen, ErsterEintragDer7a(Klassen), Klassen.findText(Leere));
}

void WechselMessen(const QString& Name, const std::function<double()>& Wechsel) {
    const Messreihe Reihe = Vergleichen(
        [&] {
            GrossbuchFuellen(4);
            return Wechsel();
        },
        [&] {
            KlassenbuchFuellen();
            return Wechsel();
        });
    Zeile(Name, Reihe.Verhaeltnis(), 1.1, 1.5);
    Anmerkung(QStringLiteral("%1 ms against %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
}

/// The reference of a commit: a standard table view of the same cells, painted once.
class Standardtabelle {
  public:
    explicit Standardtabelle(const Gitter& Vorbild)
        : Modell(Vorbild.Rows(), Vorbild.Cols()) {
        for (int z = 0; z < Vorbild.Rows(); ++z)
            for (int s = 0; s < Vorbild.Cols(); ++s) {
                auto* Zelle = new QStandardItem(Vorbild.TextMatrix(z, s));
                Zelle->setBackground(Vorbild.CellBackColor(z, s));
                Modell.setItem(z, s, Zelle);
            }
        Tabelle.setModel(&Modell);
        Tabelle.horizontalHeader()->hide();
        Tabelle.verticalHeader()->hide();
        for (int s = 0; s < Vorbild.Cols(); ++s)
            Tabelle.setColumnWidth(s, Vorbild.ColWidth(s));
        Tabelle.resize(Vorbild.size());
        Tabelle.show();
        QCoreApplication::processEvents();
        Flaeche = Bild(*Tabelle.viewport());
    }
    double Malen() {
        return Dauer([this] { Tabelle.viewport()->render(&Flaeche); });
    }

  private:
    QStandardItemModel Modell;
    QTableView Tabelle;
    QImage Flaeche;
};

/// Return in the box: record, averages, and what has changed painted by the event loop.
double NoteEingeben(Fenster<AnsichtN1>& Eines, int Zeile) {
    Eines.Tabelle->Enter(Zeile, 3);
    auto* Feld = Eines.Ansicht.template findChild<EingabeFeld*>();
    Feld->setText(Feld->text() == QStringLiteral("1") ? QStringLiteral("2") : QStringLiteral("1"));
    QCoreApplication::processEvents();
    return Dauer([&] {
        QTest::keyClick(Feld, Qt::Key_Return);
        QCoreApplication::processEvents();
    });
}

void EingabeMessen() {
    GrossbuchFuellen(4);
    Fenster<AnsichtN1> Eines;
    Eines.Ansicht.Fuellen();
    Kombinationsfeld& Faecher = *Eines.Wahl("cbN1KlasseFach");
    Faecher.setCurrentIndex(ErsterEintragDer7a(Faecher));
    MalenMessen(QStringLiteral("repaint of the full grade list of 35 columns"), *Eines.Tabelle);
    Standardtabelle Standard(*Eines.Tabelle);
    int Zeilennummer = 2;
    const Messreihe Reihe = Vergleichen([&] { return NoteEingeben(Eines, 2 + Zeilennummer++ % 20); },
                                        [&] { return Standard.Malen(); });
    Zeile(QStringLiteral("committed grade with both averages painted / QTableView painted once"),
          Reihe.Verhaeltnis(), 0.6, 1.0);
    Anmerkung(QStringLiteral("%1 ms against %2 ms")
                  .arg(Median(Reihe.Eigene) * 1e3, 0, 'f', 2)
                  .arg(Median(Reihe.Referenz) * 1e3, 0, 'f', 2));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir Ordner;
    qputenv("XDG_CONFIG_HOME", Ordner.path().toLocal8Bit());
    const QApplication Programm(argc, argv);
    SystemSpracheSetzen(QLocale(QLocale::German, QLocale::Germany));
    GitterMalen();
    EingabeMessen();
    WechselMessen(QStringLiteral("switch of class, all bounds against one class"), KlasseWechseln);
    WechselMessen(QStringLiteral("switch of subject, all bounds against one class"), FachWechseln);
    WechselMessen(QStringLiteral("switch of student, all bounds against one class"), SchuelerWechseln);
    return 0;
}
