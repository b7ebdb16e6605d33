#include "Beurteilungsfenster.h"

#include "assessments/Ziehgut.h"
#include "common/Testbuch.h"
#include "core/Definitionen.h"

#include <QDropEvent>
#include <QMimeData>
#include <QtTest>

Beurteilungsfenster::Beurteilungsfenster() {
    RecordsAnlegen();
    Ansicht = std::make_unique<AnsichtB>();
    QObject::connect(Ansicht.get(), &::Ansicht::HinweisGewuenscht, Ansicht.get(),
                     [this](const QString& Text) { Hinweis = Text; });
    Ansicht->resize(1000, 620);
    Ansicht->show();
    (void)QTest::qWaitForWindowActive(Ansicht.get());
    Ansicht->Fuellen();
    QCoreApplication::processEvents();
}

void Beurteilungsfenster::RecordsAnlegen() {
    TestbuchLaden(QStringLiteral("Klasse 7a\nKlasse 7b\n"
                                 "Schueler 10000 7a Bauer Anna\n"
                                 "Schueler 10001 7a Adler Max Emil\n"
                                 "Schueler 10002 7b Zorn Ida\n"
                                 "Schueler 10003 7a Conrad Eva\n"));
    Datenbank.Schueler[1].Feld[5] = QStringLiteral("Männlich");
    BereichAnlegen(QStringLiteral("A"),
                   {QStringLiteral("+ ***** hilft seinen Freunden."), QStringLiteral("o er liest."),
                    QStringLiteral("- Er stört."), QStringLiteral("? unbekannt")});
    BereichAnlegen(QStringLiteral("B"), {QStringLiteral("o vier")});
    BereichAnlegen(QStringLiteral("C"), {});
}

QStringList Beurteilungsfenster::Zeilen() const {
    QStringList Alle;
    for (int i = 0; i < Floskeln().Rows(); ++i)
        Alle.append(Floskeln().TextMatrix(i, 0));
    return Alle;
}

QStringList Beurteilungsfenster::Knoten() const {
    QStringList Alle;
    for (int i = 0; i < Baum().topLevelItemCount(); ++i) {
        const QTreeWidgetItem* Einer = Baum().topLevelItem(i);
        Alle.append(Einer->font(0).bold() ? u'<' + Einer->text(0) + u'>' : Einer->text(0));
    }
    return Alle;
}

QStringList Beurteilungsfenster::Namen() const {
    QStringList Alle;
    for (int i = 0; i < Schueler().Rows(); ++i)
        Alle.append(Schueler().TextMatrix(i, 0));
    return Alle;
}

QStringList Beurteilungsfenster::Gespeichert(int Bereich) {
    QStringList Alle;
    for (int i = 0; i < Lernbereiche[Bereich].Anzahl; ++i)
        Alle.append(Lernbereiche[Bereich].Formulierung[i]);
    return Alle;
}

QPoint Beurteilungsfenster::KnotenOrt(int Nummer) const {
    return Baum().visualItemRect(Baum().topLevelItem(Nummer)).center();
}

QPoint Beurteilungsfenster::FloskelOrt(int Zeile) const {
    return Floskeln().CellRect(Zeile, 0).center() - Floskeln().viewport()->geometry().topLeft();
}

QPoint Beurteilungsfenster::SchuelerOrt(int Zeile) const {
    return Schueler().CellRect(Zeile, 1).center() - Schueler().viewport()->geometry().topLeft();
}

void Beurteilungsfenster::KlickAufSchueler(int Zeile) const {
    QTest::mouseClick(Schueler().viewport(), Qt::LeftButton, {}, SchuelerOrt(Zeile));
}

void Beurteilungsfenster::KlickAufFloskel(int Zeile) const {
    QTest::mouseClick(Floskeln().viewport(), Qt::LeftButton, {}, FloskelOrt(Zeile));
}

void Beurteilungsfenster::DoppelklickAufFloskel(int Zeile) const {
    KlickAufFloskel(Zeile);
    QTest::mouseDClick(Floskeln().viewport(), Qt::LeftButton, {}, FloskelOrt(Zeile));
}

void Beurteilungsfenster::KlickAufKnoten(int Nummer) const {
    QTest::mouseClick(Baum().viewport(), Qt::LeftButton, {}, KnotenOrt(Nummer));
}

void Beurteilungsfenster::KnotenDruecken(int Nummer) const {
    QTest::mousePress(Baum().viewport(), Qt::LeftButton, {}, KnotenOrt(Nummer));
}

bool Beurteilungsfenster::Darueber(QWidget& Ziel, Ziehart Art, QPoint Ort) const {
    const auto Daten = ZiehgutPacken(Art);
    QDragEnterEvent Hinein(Ort, Qt::MoveAction, Daten.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Ziel, &Hinein);
    QDragMoveEvent Zug(Ort, Qt::MoveAction, Daten.get(), Qt::LeftButton, Qt::NoModifier);
    Zug.ignore();
    QCoreApplication::sendEvent(&Ziel, &Zug);
    return Hinein.isAccepted() && Zug.isAccepted();
}

void Beurteilungsfenster::Ablegen(QWidget& Ziel, Ziehart Art, QPoint Ort) const {
    Darueber(Ziel, Art, Ort);
    const auto Daten = ZiehgutPacken(Art);
    QDropEvent Ablage(Ort, Qt::MoveAction, Daten.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Ziel, &Ablage);
    QCoreApplication::processEvents();
}
