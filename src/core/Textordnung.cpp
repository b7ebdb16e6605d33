#include "core/Textordnung.h"

#include "core/Textmerker.h"
#include "core/Zahlen.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <deque>
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

/// Ranks are small numbers: counting how many come before each puts all into place in one pass.
std::vector<int> NachRang(const std::vector<int>& Rang, std::size_t AnzahlRaenge) {
    std::vector<int> Beginn(AnzahlRaenge + 1);
    for (const int Einer : Rang)
        ++Beginn[static_cast<std::size_t>(Einer) + 1];
    for (std::size_t i = 1; i < Beginn.size(); ++i)
        Beginn[i] += Beginn[i - 1];
    std::vector<int> Folge(Rang.size());
    for (std::size_t i = 0; i < Rang.size(); ++i)
        Folge[static_cast<std::size_t>(Beginn[static_cast<std::size_t>(Rang[i])]++)] = static_cast<int>(i);
    return Folge;
}

/// A list that has been put in order.
struct Geordnete {
    std::vector<QString> Texte;
    std::vector<int> Folge;
};

/// All that is kept from call to call under one locale.
class Gedaechtnis {
  public:
    explicit Gedaechtnis(const QLocale& Sprache)
        : Raenge(Sprache) {}

    bool Gilt() const {
        constexpr std::size_t Genug = 40000; // several times the texts of a column of the longest list
        return Raenge.InSprache() == SystemSprache() && Raenge.Anzahl() <= Genug;
    }

    std::vector<int> Folge(std::size_t Anzahl, const std::function<const QString&(std::size_t)>& Text) {
        for (const Geordnete& Eine : Listen)
            if (Eine.Texte.size() == Anzahl && Stehen(Eine.Texte, Text))
                return Eine.Folge;
        std::vector<QString> Texte;
        Texte.reserve(Anzahl);
        for (std::size_t i = 0; i < Anzahl; ++i)
            Texte.push_back(Text(i));
        const std::vector<int> Rang = Raenge(Texte);
        std::vector<int> Neue = NachRang(Rang, Raenge.Anzahl());
        if (Anzahl >= LangeListe)
            Merken({std::move(Texte), Neue});
        return Neue;
    }

  private:
    static constexpr std::size_t LangeListe = 200; ///< shorter ones are in order in no time
    static constexpr std::size_t AnzahlListen = 4;

    static bool Stehen(const std::vector<QString>& Texte,
                       const std::function<const QString&(std::size_t)>& Text) {
        for (std::size_t i = 0; i < Texte.size(); ++i)
            if (!NochDieselben(Texte[i], Text(i)))
                return false;
        return true;
    }
    void Merken(Geordnete&& Neue) {
        if (Listen.size() == AnzahlListen)
            Listen.pop_back();
        Listen.push_front(std::move(Neue));
    }

    Textraenge Raenge;
    std::deque<Geordnete> Listen; ///< the last long ones
};

} // namespace

std::vector<int> Textfolge(std::size_t Anzahl, const std::function<const QString&(std::size_t)>& Text) {
    static std::unique_ptr<Gedaechtnis> Bisheriges;
    if (!Bisheriges || !Bisheriges->Gilt())
        Bisheriges = std::make_unique<Gedaechtnis>(SystemSprache());
    return Bisheriges->Folge(Anzahl, Text);
}
