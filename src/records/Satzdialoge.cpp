#include "records/Satzdialoge.h"

#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/Fehlerfang.h"
#include "core/FktSpeziell.h"
#include "core/Meldungen.h"
#include "records/Anlegen.h"
#include "records/Klassenfeld.h"
#include "records/dlgAutoTeilnahme.h"
#include "records/dlgNeuerSchueler1.h"
#include "records/dlgNeuerSchueler11.h"
#include "records/dlgNeuerSchueler2.h"
#include "records/dlgNeuesFach1.h"
#include "records/dlgNeuesFach2.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

/// First entry with exactly this text; -1 if none.
int EintragIndex(const Kombinationsfeld& Liste, const QString& Text) {
    for (int i = 0; i < Liste.count(); ++i)
        if (Liste.itemText(i) == Text)
            return i;
    return -1;
}

void EintragWaehlen(Kombinationsfeld& Liste, const QString& Text) {
    const int Index = EintragIndex(Liste, Text);
    if (Index >= 0)
        Liste.setListIndex(Index);
}

bool KlasseErlaubt(const QString& Name) {
    return FrageJaNein(QStringLiteral("Wollen Sie eine neue Klasse mit dem Namen ") + Name +
                           QStringLiteral(" erstellen?"),
                       QStringLiteral("Sicherheitsabfrage"));
}

/// Opens the dialog at a place on the screen, moved so far that all of it is seen.
int AnOrtZeigen(QDialog& Dialog, QPoint Ort) {
    const QScreen* Schirm = QGuiApplication::screenAt(Ort);
    if (!Schirm)
        Schirm = QGuiApplication::primaryScreen();
    Dialog.adjustSize();
    const QRect Platz = Schirm->availableGeometry();
    const QPoint Letzter = Platz.bottomRight() - QPoint(Dialog.width(), Dialog.height());
    Dialog.move(qMax(Platz.left(), qMin(Ort.x(), Letzter.x())),
                qMax(Platz.top(), qMin(Ort.y(), Letzter.y())));
    return Dialog.exec();
}

/// The classes of a field; none if it cannot be split, which has been reported.
QStringList KlassenOderKeine(const QString& Klassenfeld) {
    QStringList Klassen;
    Ausfuehren([&] { Klassen = KlassenDesFelds(Klassenfeld); });
    return Klassen;
}

} // namespace

void KlasseAnlegen(Kombinationsfeld& Klassen, bool Fragen, const std::function<void()>& Fuellen) {
    const QString Name = Klassen.currentText();
    if (ErsteZahl(Name) < 1)
        return;
    if (EintragIndex(Klassen, Name) < 0) {
        if (!Fragen || KlasseErlaubt(Name)) {
            if (!Ausfuehren([&] { KlasseErstellen(Name); }))
                return;
            if (Fuellen)
                Fuellen();
            else
                Klassen.Hinzufuegen(Name);
        } else if (Klassen.count() > 0) {
            Klassen.setListIndex(0);
        }
    }
    EintragWaehlen(Klassen, Name);
}

bool NeuesFachAssistent(QWidget* Eltern, const QString& Klasse, const QString& Fach) {
    NeueKlasseName = Klasse;
    NeuesFachName = Fach;
    DialogErgebnis = false;
    dlgNeuesFach1 Schritt1(Eltern);
    while (Schritt1.exec() == QDialog::Accepted) {
        dlgNeuesFach2 Schritt2(Eltern);
        Schritt2.Durchlaufen();
        if (DialogErgebnis || !WizardZurueck)
            break;
    }
    return DialogErgebnis;
}

void NeuesFachMitAssistent(QWidget* Eltern, Kombinationsfeld& Faecher, const std::function<void()>& Fuellen) {
    if (!NeuesFachAssistent(Eltern, {}, {}))
        return;
    Fuellen();
    EintragWaehlen(Faecher, NeueKlasseName + u' ' + NeuesFachName);
}

void FachAnlegen(QWidget* Eltern, Kombinationsfeld& Faecher, const QString& Text,
                 const std::function<void()>& Fuellen) {
    const qsizetype Leerzeichen = Text.indexOf(u' ');
    const bool Angelegt =
        NeuesFachAssistent(Eltern, Text.left(qMax(Leerzeichen, qsizetype{0})), Text.mid(Leerzeichen + 1));
    Fuellen();
    if (Angelegt)
        EintragWaehlen(Faecher, NeueKlasseName + u' ' + NeuesFachName);
}

bool NeuerSchueler(QWidget* Eltern, const QString& Klasse, const QString& Name) {
    return dlgNeuerSchueler2(Klasse, Name, Eltern).Durchlaufen();
}

void SchuelerAnlegen(QWidget* Eltern, Kombinationsfeld& Namen, const QString& Klasse, const QString& Name,
                     const std::function<void()>& Fuellen) {
    NeuerSchueler(Eltern, Klasse, Name);
    Fuellen();
    EintragWaehlen(Namen, Name);
}

bool NeuerSchuelerMitKlassenwahl(QWidget* Eltern, QPoint Ort, const QString& Klassenfeld) {
    DialogErgebnis = false;
    const QStringList Klassen = KlassenOderKeine(Klassenfeld);
    if (Klassen.isEmpty())
        return false;
    dlgNeuerSchueler11 Dialog(Klassen, Eltern);
    if (AnOrtZeigen(Dialog, Ort) == QDialog::Accepted)
        DialogErgebnis = NeuerSchueler(Eltern, Dialog.Klasse(), Dialog.Name());
    return DialogErgebnis;
}

bool NeuerSchuelerDerProbe(QWidget* Eltern, QPoint Ort, const QString& KlasseFach, qint32 Fach_ID,
                           qint32 Probe_ID) {
    DialogErgebnis = false;
    const QStringList Klassen = KlassenOderKeine(KlasseFach);
    dlgNeuerSchueler1 Dialog(Klassen, Eltern);
    if (AnOrtZeigen(Dialog, Ort) != QDialog::Accepted)
        return false;
    if (Dialog.NurDieseProbe())
        DialogErgebnis = Ausfuehren([&] { ZSchuelerErstellen(Dialog.Name(), Fach_ID, Probe_ID); });
    else
        DialogErgebnis = NeuerSchueler(Eltern, Dialog.Klasse(), Dialog.Name());
    return DialogErgebnis;
}

bool AutoTeilnahme(QWidget* Eltern, Gitter* Liste, int LetzteFachspalte) {
    dlgAutoTeilnahme Dialog(Liste, LetzteFachspalte, Eltern);
    return Dialog.exec() == QDialog::Accepted;
}
