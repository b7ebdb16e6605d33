#pragma once

#include "controls/Eintragsmodell.h"

#include <QComboBox>

/// The combo boxes of the program. The editable ones differ from Qt's: typed text has index -1 until it is
/// chosen or created; nothing is completed or inserted by itself. A choice by the user or by code is Klick;
/// Return on a typed text, and leaving the box with one, is Anlegen. Leaving it empty selects the first
/// entry. The wheel does nothing without the focus; Return never reaches a default button.
class Kombinationsfeld : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(bool editable READ isEditable WRITE setEditable)

  public:
    explicit Kombinationsfeld(QWidget* Eltern = nullptr);

    /// In place of Qt's: the line is a Textfeld, and nothing completes it.
    void setEditable(bool Bearbeitbar);

    void setSortiert(bool Sortiert); ///< entries are kept sorted by the locale's collation, case ignored
    void Leeren();                   ///< no entries, no text, no Klick
    /// Adds an entry with its hidden datum; returns its index. Never selects and never emits Klick.
    int Hinzufuegen(const QString& Text, int Datum = 0);
    /// These entries in place of all there were; otherwise as Leeren and Hinzufuegen of each, and quick for
    /// thousands.
    void Fuellen(std::vector<Listeneintrag> Eintraege);
    int IndexMitDatum(int Datum) const; ///< the last entry with this datum, -1 if there is none
    int Datum(int Index) const;         ///< 0 if there is none
    int AktDatum() const;               ///< datum of the selected entry, 0 without selection
    /// Selects; emits Klick if the index changes to an entry. -1: no selection, the text stays.
    void setListIndex(int Index);
    int ListIndex() const; ///< -1: typed text or nothing

  Q_SIGNALS:
    void Klick();                      ///< an entry was chosen (also the same again, by the user)
    void Anlegen(const QString& Text); ///< a typed, not empty text is to become something new
    void Betreten();                   ///< got the focus

  public:
    void showPopup() override;

  protected:
    void keyPressEvent(QKeyEvent* Ereignis) override;
    void wheelEvent(QWheelEvent* Ereignis) override;

  private:
    std::vector<Listeneintrag> Geordnet(std::vector<Listeneintrag> Eintraege) const;
    int Platz(const QString& Text) const;
    void AuswahlLoesen();
    void TextGewechselt(const QString& Text);
    void IndexGewechselt(int Index);
    void VomBenutzerGewaehlt();
    void VerlassenPruefen();

    Eintragsmodell* Liste;
    bool Sortiert = false;
    bool Still = false;         ///< a fill is no Klick
    bool SchonGemeldet = false; ///< the index has changed since the list was opened
};
