#include "core/Textordnung.h"

#include "core/Zahlen.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <memory>

namespace {

/// A text met before. Texts that the collation does not tell apart have the same rank.
struct Bekannter {
    QCollatorSortKey Schluessel;
    int Rang = 0;
};

/// All texts met under one locale, in order.
class Textraenge {
  public:
    explicit Textraenge(const QLocale& WelcheSprache)
        : Sprache(WelcheSprache)
        , Ordnung(WelcheSprache) {
        Ordnung.setCaseSensitivity(Qt::CaseInsensitive);
    }

    const QLocale& InSprache() const { return Sprache; }
    std::size_t Anzahl() const { return Reihenfolge.size(); }

    /// The ranks of these texts, below Anzahl.
    std::vector<int> operator()(const std::vector<QString>& Texte) {
        std::vector<const Bekannter*> Gesuchte;
        Gesuchte.reserve(Texte.size());
        const std::size_t Vorher = Reihenfolge.size();
        for (const QString& Text : Texte)
            Gesuchte.push_back(Suchen(Text));
        if (Reihenfolge.size() != Vorher)
            Einordnen(static_cast<std::ptrdiff_t>(Vorher));
        std::vector<int> Raenge;
        Raenge.reserve(Texte.size());
        for (const Bekannter* Einer : Gesuchte)
            Raenge.push_back(Einer->Rang);
        return Raenge;
    }

  private:
    const Bekannter* Suchen(const QString& Text) {
        Bekannter*& Einer = Alle[Text];
        if (!Einer) {
            Reihenfolge.push_back(std::make_unique<Bekannter>(Bekannter{Ordnung.sortKey(Text)}));
            Einer = Reihenfolge.back().get();
        }
        return Einer;
    }

    /// Merges the new texts, which stand at the end, with the old ones.
    void Einordnen(std::ptrdiff_t Vorher) {
        const auto Kleiner = [](const auto& Links, const auto& Rechts) {
            return Links->Schluessel < Rechts->Schluessel;
        };
        std::sort(Reihenfolge.begin() + Vorher, Reihenfolge.end(), Kleiner);
        std::inplace_merge(Reihenfolge.begin(), Reihenfolge.begin() + Vorher, Reihenfolge.end(), Kleiner);
        int Rang = 0;
        for (std::size_t i = 0; i < Reihenfolge.size(); ++i) {
            if (i > 0 && Kleiner(Reihenfolge[i - 1], Reihenfolge[i]))
                ++Rang;
            Reihenfolge[i]->Rang = Rang;
        }
    }

    QLocale Sprache;
    QCollator Ordnung;
    QHash<QString, Bekannter*> Alle;
    std::vector<std::unique_ptr<Bekannter>> Reihenfolge;
};

/// The ranks kept from call to call; they begin anew in another locale, and before they grow without end.
Textraenge& AktuelleRaenge() {
    constexpr std::size_t Gedaechtnis = 40000; // several times the texts of a column of the longest list
    static std::unique_ptr<Textraenge> Raenge;
    if (!Raenge || Raenge->InSprache() != SystemSprache() || Raenge->Anzahl() > Gedaechtnis)
        Raenge = std::make_unique<Textraenge>(SystemSprache());
    return *Raenge;
}

} // namespace

std::vector<int> Textfolge(const std::vector<QString>& Texte) {
    Textraenge& Raenge = AktuelleRaenge();
    const std::vector<int> Rang = Raenge(Texte);
    // Ranks are small numbers: counting how many come before each puts all into place in one pass.
    std::vector<int> Beginn(Raenge.Anzahl() + 1);
    for (const int Einer : Rang)
        ++Beginn[static_cast<std::size_t>(Einer) + 1];
    for (std::size_t i = 1; i < Beginn.size(); ++i)
        Beginn[i] += Beginn[i - 1];
    std::vector<int> Folge(Texte.size());
    for (std::size_t i = 0; i < Rang.size(); ++i)
        Folge[static_cast<std::size_t>(Beginn[static_cast<std::size_t>(Rang[i])]++)] = static_cast<int>(i);
    return Folge;
}
