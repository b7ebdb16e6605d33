#include "Optionenwelt.h"

#include "core/Definitionen.h"
#include "core/Orte.h"
#include "core/Parameterdatei.h"

void Optionenwelt::Herstellen() {
    Welt.Herstellen();
    QVERIFY(QFile::copy(QStringLiteral(LIEFERDATEN "/Tafelquell.ini"), Parameterdatei()));
    LadeParameter();
    for (auto& Zeilen : BLLVVerteilung)
        Zeilen = {};
    const float Prozente[]{90, 75, 60, 45, 20};
    const float Summen[]{10, 30, 60, 80, 95};
    for (int Note = 0; Note < 5; ++Note) {
        BLLVVerteilung[10][Note] = 9.0F - static_cast<float>(Note);
        BLLVVerteilung[40][Note] = 36.5F - 5.0F * static_cast<float>(Note);
        for (int i = 0; i < 5; ++i) {
            EigeneVerteilung[i][Note] = Prozente[Note];
            GaussVerteilung[i][Note] = Summen[Note];
        }
    }
}

void Optionenwelt::Aufraeumen() {
    Dialog.reset();
    Welt.Aufraeumen();
}

void Optionenwelt::Oeffnen() {
    Dialog = std::make_unique<dlgOptions>();
    Dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(Dialog.get()));
}

void Optionenwelt::Klick(const char* Knopf) const {
    auto* Ziel = Teil<QAbstractButton>(Knopf);
    // Near the left edge: a radio button answers only on its mark and its text.
    QTest::mouseClick(Ziel, Qt::LeftButton, {}, QPoint(8, Ziel->height() / 2));
}

void Optionenwelt::Tippen(const char* Name, const QString& Text) const {
    Box(Name)->setFocus();
    Box(Name)->selectAll();
    QTest::keyClick(Box(Name), Qt::Key_Delete);
    QTest::keyClicks(Box(Name), Text);
}

QString Optionenwelt::Zeile(Gitter* Tabelle, int Nummer) {
    QStringList Texte;
    for (int Spalte = 0; Spalte < Tabelle->Cols(); ++Spalte)
        Texte.append(Tabelle->TextMatrix(Nummer, Spalte));
    return Texte.join(u'|');
}

QString Optionenwelt::Parameterdatei() {
    return Programmverzeichnis() + QStringLiteral("/Tafelquell.ini");
}
