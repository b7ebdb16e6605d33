#pragma once

#include <QString>

#include <vector>

/// True if both are one text object: then nobody has written either since one was copied from the other.
/// Compares no letter.
inline bool NochDieselben(const QString& Eines, const QString& Anderes) {
    return Eines.constData() == Anderes.constData() && Eines.size() == Anderes.size();
}

/// Keeps a value worked out of texts, such as their width, for each place where they stand. It is worked out
/// anew when other texts stand there. Whoever writes a text makes it another one, since a copy of what has
/// been seen is kept here; so no value outlives its texts, whoever has changed them.
///
/// Gemerktes is the copy: a QString, or something made of a record, with a function NochDieselben(Gemerktes,
/// record) that says whether they are still the same text objects.
template <class Gemerktes, class Wert>
class Textmerker {
  public:
    /// The value for what stands at this place; Rechnen(Jetzt) gives it where it is not known.
    template <class Quelle, class Rechnung>
    const Wert& operator()(std::size_t Platz, const Quelle& Jetzt, const Rechnung& Rechnen) {
        if (Platz >= Eintraege.size())
            Eintraege.resize(Platz + 1);
        Eintrag& Einer = Eintraege[Platz];
        if (!Einer.Bekannt || !NochDieselben(Einer.Texte, Jetzt))
            Einer = {Gemerktes(Jetzt), Rechnen(Jetzt), true};
        return Einer.Ergebnis;
    }
    /// For when the values hang on something else that has changed, such as the font.
    void Vergessen() { Eintraege.clear(); }

  private:
    struct Eintrag {
        Gemerktes Texte;
        Wert Ergebnis{};
        bool Bekannt = false;
    };

    std::vector<Eintrag> Eintraege;
};
