#include "core/NeuererStand.h"

#include "core/Einstellungen.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace {

/// How a document begins, and the setting that names the one to load at start.
struct Dokumentart {
    const char* Anfang;
    const char* Einstellung;
};
constexpr std::array<Dokumentart, 2> Dokumentarten{
    {{"[Tafelquell ", "AutoDatei"}, {"[Beurteilungsvorlagen f\xFCr Tafelquell", "Formulierungen"}}};

const Dokumentart* ArtVon(const QByteArray& Inhalt) {
    const auto* const Art = std::find_if(Dokumentarten.cbegin(), Dokumentarten.cend(),
                                         [&](const auto& Eine) { return Inhalt.startsWith(Eine.Anfang); });
    return Art == Dokumentarten.cend() ? nullptr : Art;
}

struct Vormerkung {
    QByteArray Kopie;                 ///< path of the rescue copy
    std::optional<QByteArray> Inhalt; ///< nothing once it was opened
};

/// By target.
QHash<QByteArray, Vormerkung>& Vormerkungen() {
    static QHash<QByteArray, Vormerkung> Alle;
    return Alle;
}

QByteArray ZielVon(const QString& Pfad) {
    QByteArray Ziel;
    EchterPfad(QFile::encodeName(Pfad), &Ziel);
    return Ziel;
}

} // namespace

bool IstDokument(const QByteArray& Inhalt) {
    return ArtVon(Inhalt) != nullptr;
}

void NeuerenStandVormerken(const Rettungsfund& Fund, const QByteArray& Inhalt) {
    Vormerkungen().insert(Fund.Kopf.Ziel, {Fund.Pfad, Inhalt});
}

void NeuerenStandBeimStartVormerken(const Rettungsfund& Fund, const QByteArray& Inhalt) {
    NeuerenStandVormerken(Fund, Inhalt);
    const Dokumentart* const Art = ArtVon(Inhalt);
    if (!Art)
        return;
    const QString Schluessel = QString::fromLatin1(Art->Einstellung);
    // A link that leads there keeps its name.
    if (ZielVon(EinstellungLesen(Schluessel, {})) != Fund.Kopf.Ziel)
        EinstellungSchreiben(Schluessel, QFile::decodeName(Fund.Kopf.Ziel));
}

bool NeuererStandVorgemerkt(const QByteArray& Ziel) {
    return Vormerkungen().contains(Ziel);
}

void NeuerenStandVergessen(const QByteArray& Ziel) {
    Vormerkungen().remove(Ziel);
}

void AlleNeuerenStaendeVergessen() {
    Vormerkungen().clear();
}

std::optional<QByteArray> NeuererStand(const QString& Pfad) {
    if (Vormerkungen().isEmpty())
        return {};
    const auto Eine = Vormerkungen().find(ZielVon(Pfad));
    if (Eine == Vormerkungen().end())
        return {};
    if (!Eine->Inhalt)
        Vormerkungen().erase(Eine); // the document that came from the copy is left
    else
        return std::exchange(Eine->Inhalt, std::nullopt);
    return {};
}

void NeuererStandGespeichert(const QString& Pfad) try {
    if (Vormerkungen().isEmpty())
        return;
    const QByteArray Ziel = ZielVon(Pfad);
    if (!Vormerkungen().contains(Ziel) || Vormerkungen().value(Ziel).Inhalt)
        return;
    Rettungskopie Kopie;
    QByteArray Wohin;
    // A copy that equals the file is gone by now; one that cannot be moved is offered once more.
    if (RettungOeffnen(Vormerkungen().take(Ziel).Kopie, &Kopie) == 0)
        RettungBeiseiteLegen(&Kopie, QByteArrayLiteral("beiseite"), &Wohin);
} catch (const std::bad_alloc&) {
    return; // the file is written, and that is what counts
}
