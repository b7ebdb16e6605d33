#include "grading/Vergleichsfenster.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStandardItemModel>

void Vergleichsdiagramm::paintEvent(QPaintEvent* /*Ereignis*/) {
    QPainter Maler(this);
    Maler.fillRect(rect(), Qt::white);
    const QRect Flaeche = rect().adjusted(30, 30, -20, -30);
    Maler.drawText(QRect(0, 4, width(), 20), Qt::AlignHCenter, QStringLiteral("Verteilung"));
    Maler.drawLine(Flaeche.bottomLeft(), Flaeche.bottomRight());
    Maler.drawLine(Flaeche.bottomLeft(), Flaeche.topLeft());
    for (int i = 0; i < Anzahl; ++i) {
        const int X = Flaeche.left() + i * Flaeche.width() / Anzahl;
        Maler.drawLine(X, Flaeche.bottom() - 3, X, Flaeche.bottom() + 3);
        if (i % 2 != 0)
            continue;
        Maler.drawText(X, Flaeche.bottom() + 20, QString::number(i));
        Maler.fillRect(X + 1, Flaeche.bottom() - 10 * (i % 8), 3, 10 * (i % 8), Qt::darkBlue);
    }
    for (int i = 1; i <= 8; ++i)
        Maler.drawText(8, Flaeche.bottom() - 12 * i, QString::number(i));
}

Vergleichsfenster::Vergleichsfenster(int Zeilen, QSize Tabellengroesse, QSize Diagrammgroesse)
    : Tabelle(new QTableView)
    , Punkte(new Vergleichsdiagramm(81))
    , Noten(new Vergleichsdiagramm(6)) {
    auto* Modell = new QStandardItemModel(Zeilen, 3, this);
    for (int z = 0; z < Zeilen; ++z) {
        Modell->setItem(z, 0, new QStandardItem(QStringLiteral("Nachname Vorname %1").arg(z)));
        Modell->setItem(z, 1, new QStandardItem(QString::number(z)));
        Modell->setItem(z, 2, new QStandardItem(QString::number(1 + z % 6)));
    }
    Tabelle->setModel(Modell);
    Tabelle->verticalHeader()->setDefaultSectionSize(20);
    Tabelle->setFixedSize(Tabellengroesse);
    Punkte->setFixedSize(Diagrammgroesse);
    Noten->setFixedSize(Diagrammgroesse);
    auto* Aufbau = new QHBoxLayout(this);
    Aufbau->addWidget(Tabelle);
    Aufbau->addWidget(Punkte);
    Aufbau->addWidget(Noten);
}

void Vergleichsfenster::AllesMalen() {
    Tabelle->viewport()->update();
    Punkte->update();
    Noten->update();
    QCoreApplication::processEvents();
}
