#pragma once

#include <QString>

#include <vector>

/// True if both are one text object: then nobody has written either since one was copied from the other.
/// Compares no letter.
inline bool DerselbeText(const QString& Eines, const QString& Anderes) {
    return Eines.constData() == Anderes.constData() && Eines.size() == Anderes.size();
}

/// Keeps a value worked out of a text, such as its width, for each place where a text stands. It is worked
/// out anew when another text stands there: whoever writes a text makes it another one, since this keeps a
/// copy of what it has seen.
template <class Wert>
class Textmerker {
  public:
    /// The value of the text that stands at this place; Rechnen(Text) gives it where it is not known.
    template <class Rechnung>
    const Wert& operator()(std::size_t Platz, const QString& Text, const Rechnung& Rechnen) {
        if (Platz >= Eintraege.size())
            Eintraege.resize(Platz + 1);
        Eintrag& Einer = Eintraege[Platz];
        if (!Einer.Bekannt || !DerselbeText(Einer.Text, Text))
            Einer = {Text, Rechnen(Text), true};
        return Einer.Ergebnis;
    }
    /// For when the values hang on something else that has changed, such as the font.
    void Vergessen() { Eintraege.clear(); }

  private:
    struct Eintrag {
        QString Text;
        Wert Ergebnis{};
        bool Bekannt = false;
    };

    std::vector<Eintrag> Eintraege;
};
