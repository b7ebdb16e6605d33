#pragma once

#include <QPoint>
#include <QString>

#include <functional>

class Gitter;
class Kombinationsfeld;
class QWidget;

// What the views call to create classes, subjects and students with the user. All dialogs are modal; failures
// have been reported when these return. The caller refills its lists and refreshes the photo.

/// A class typed into a class combo becomes a class, after a question if Fragen; then its entry is selected.
/// A text without a digit is no class and stays as it is. Fuellen refills the combo from the records; without
/// it the entry is added.
void KlasseAnlegen(Kombinationsfeld& Klassen, bool Fragen, const std::function<void()>& Fuellen = {});

/// The wizard for a new subject, preset with class and name. True if the subject was created: AktFachID is
/// its ID then, NeueKlasseName and NeuesFachName what was typed. DialogErgebnis says the same.
bool NeuesFachAssistent(QWidget* Eltern, const QString& Klasse, const QString& Fach);

/// The wizard with empty boxes; if a subject was created, Fuellen refills the combo, and the first entry
/// class, blank, name is selected.
void NeuesFachMitAssistent(QWidget* Eltern, Kombinationsfeld& Faecher, const std::function<void()>& Fuellen);

/// A text typed into a combo of subjects, class, blank, name (all of it the name without a blank), goes
/// through the wizard; Fuellen refills the combo in any case.
void FachAnlegen(QWidget* Eltern, Kombinationsfeld& Faecher, const QString& Text,
                 const std::function<void()>& Fuellen);

/// The list of subjects for a new student; true if he was created. AktSchuelerID is his ID then.
bool NeuerSchueler(QWidget* Eltern, const QString& Klasse, const QString& Name);

/// A name typed into the combo of students becomes a student of the class; Fuellen refills the combo, and the
/// first entry of that name is selected.
void SchuelerAnlegen(QWidget* Eltern, Kombinationsfeld& Namen, const QString& Klasse, const QString& Name,
                     const std::function<void()>& Fuellen);

/// Asks class and name of a new student for a subject of several classes, at a place on the screen, then his
/// subjects. True (and DialogErgebnis) if he was created.
bool NeuerSchuelerMitKlassenwahl(QWidget* Eltern, QPoint Ort, const QString& Klassenfeld);

/// A new student from the list of a test: as a ZSchueler of this test (1..20) or as a student of the class.
/// KlasseFach is the text of the subject, its class field first. True (and DialogErgebnis) if created.
bool NeuerSchuelerDerProbe(QWidget* Eltern, QPoint Ort, const QString& KlasseFach, qint32 Fach_ID,
                           qint32 Probe_ID);

/// Sets participation by a condition for the subject in the current column of view S's list, whose last
/// subject column is LetzteFachspalte. True if it was set; the cells show it already.
bool AutoTeilnahme(QWidget* Eltern, Gitter* Liste, int LetzteFachspalte);
