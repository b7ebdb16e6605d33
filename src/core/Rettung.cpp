#include "core/Rettung.h"

#include "core/Dateischreiber.h"
#include "core/Datum.h"
#include "core/FktAllgemein.h"
#include "core/Laufzeitfehler.h"
#include "core/Meldungen.h"
#include "core/NeuererStand.h"
#include "core/Rettungsorte.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

enum class Rettungswahl { Oeffnen, Uebernehmen, SpeichernUnter, Behalten, Spaeter };

/// The question of one case: the captions, what each does, and which is preselected.
struct Angebot {
    QString Text;
    QStringList Knoepfe;
    QList<Rettungswahl> Wahlen;
    int Vorgabe;
};

QString Zeitpunkt(const QDateTime& Zeit) {
    const QDateTime Hier = Zeit.toLocalTime();
    return QStringLiteral("%1, %2 Uhr").arg(DatumKurz(Hier.date()), ZeitKurz(Hier.time()));
}

const QString Spaeter = QStringLiteral("Später entscheiden");

Angebot AngebotVorher(const QString& Datei, const QString& Dateizeit, const QString& Kopiezeit,
                      bool Dokument) {
    return {QStringLiteral(
                "Der letzte Stand der Datei\n\"%1\"\nwurde nicht mehr gespeichert (%3): Das Speichern wurde "
                "unterbrochen, oder das Programm endete vorher. Die Datei hat noch den alten Stand vom %2.\n"
                "Der neuere Stand ist in einer Rettungskopie erhalten.\n\n"
                "Soll der neuere Stand übernommen werden?")
                    .arg(Datei, Dateizeit, Kopiezeit) +
                (Dokument ? QStringLiteral(" In der Datei steht er erst, wenn Sie speichern.") : QString()),
            {QStringLiteral("Neueren Stand übernehmen"), QStringLiteral("Alten Stand behalten"), Spaeter},
            {Rettungswahl::Oeffnen, Rettungswahl::Behalten, Rettungswahl::Spaeter},
            2};
}

Angebot AngebotAbgebrochen(const QString& Datei, const QString& Kopiezeit) {
    return {
        QStringLiteral("Die Datei\n\"%1\"\nist unvollständig, weil das Speichern unterbrochen wurde (%2).\n"
                       "Ihr vollständiger Inhalt ist in einer Rettungskopie erhalten.\n\n"
                       "Soll die Datei daraus wiederhergestellt werden?")
            .arg(Datei, Kopiezeit),
        {QStringLiteral("Wiederherstellen"), QStringLiteral("Datei so lassen"), Spaeter},
        {Rettungswahl::Uebernehmen, Rettungswahl::Behalten, Rettungswahl::Spaeter},
        0};
}

Angebot AngebotAnders(const QString& Datei, const QString& Dateizeit, const QString& Kopiezeit) {
    return {
        QStringLiteral("Zur Datei\n\"%1\"\ngibt es eine Rettungskopie mit einem anderen Inhalt.\n\n"
                       "Datei: zuletzt geändert am %2\n"
                       "Rettungskopie: von einem unterbrochenen Speichern am %3\n\n"
                       "Die Datei wurde seitdem geändert oder ist beschädigt. Sie bleibt, wie sie ist; "
                       "die Rettungskopie kann unter anderem Namen gespeichert werden.")
            .arg(Datei, Dateizeit, Kopiezeit),
        {QStringLiteral("Rettungskopie speichern unter..."), QStringLiteral("Nicht mehr anbieten"), Spaeter},
        {Rettungswahl::SpeichernUnter, Rettungswahl::Behalten, Rettungswahl::Spaeter},
        2};
}

Angebot AngebotFehlt(const QString& Datei, const QString& Kopiezeit) {
    return {
        QStringLiteral("Die Datei\n\"%1\"\nist nicht vorhanden oder nicht lesbar. Von einem unterbrochenen "
                       "Speichern (%2) ist ihr Inhalt in einer Rettungskopie erhalten.\n\n"
                       "Soll sie unter einem anderen Namen gespeichert werden?")
            .arg(Datei, Kopiezeit),
        {QStringLiteral("Speichern unter..."), QStringLiteral("Nicht mehr anbieten"), Spaeter},
        {Rettungswahl::SpeichernUnter, Rettungswahl::Behalten, Rettungswahl::Spaeter},
        2};
}

Angebot AngebotFuer(const Rettungsfund& Fund, bool Dokument) {
    const QString Datei = QFile::decodeName(Fund.Kopf.Ziel);
    const QString Dateizeit = Zeitpunkt(Fund.Zielzeit);
    const QString Kopiezeit = Zeitpunkt(Fund.Kopf.Zeit);
    switch (Fund.Lage) {
    case Rettungslage::Vorher:
        return AngebotVorher(Datei, Dateizeit, Kopiezeit, Dokument);
    case Rettungslage::Abgebrochen:
        return AngebotAbgebrochen(Datei, Kopiezeit);
    case Rettungslage::Fehlt:
        return AngebotFehlt(Datei, Kopiezeit);
    default:
        return AngebotAnders(Datei, Dateizeit, Kopiezeit);
    }
}

/// A rescue copy opened for an action on it, if its case is still the one that was shown.
struct Griff {
    Rettungskopie Kopie;
    QByteArray Inhalt;
};

std::optional<Dateifehler> Ergreifen(const Rettungsfund& Fund, Griff* Einer) {
    int Fehler = RettungOeffnen(Fund.Pfad, &Einer->Kopie);
    if (Fehler == 0) {
        const auto Jetziger = RettungEinordnen(Einer->Kopie, &Einer->Inhalt);
        Fehler = !Jetziger ? EIO : Jetziger->Lage != Fund.Lage ? ESTALE : 0;
    }
    if (Fehler == 0)
        return {};
    const QString Pfad = QFile::decodeName(Fund.Pfad);
    return Dateifehler{FehlerArt(Fehler), Fehler, QStringLiteral("Rettungskopie"),
                       QStringLiteral("Die Rettungskopie \"%1\" konnte nicht verwendet werden und bleibt "
                                      "erhalten.\nGrund: %2.")
                           .arg(Pfad, FehlerUrsache(Fehler)),
                       Pfad};
}

std::optional<Dateifehler> Schreiben(Griff Einer, const QByteArray& Ziel) {
    return Dateischreiber(Ziel, Einer.Inhalt, std::move(Einer.Kopie)).Schreiben();
}

std::optional<Dateifehler> HerausSchreiben(const Rettungsfund& Fund, const QByteArray& Ziel) {
    Griff Einer;
    if (auto Fehler = Ergreifen(Fund, &Einer))
        return Fehler;
    return Schreiben(std::move(Einer), Ziel);
}

/// Takes the newer content into the program. A document is opened with it, and saved when the user saves.
std::optional<Dateifehler> NeuerenStandOeffnen(const Rettungsfund& Fund, bool BeimStart) {
    Griff Einer;
    if (auto Fehler = Ergreifen(Fund, &Einer))
        return Fehler;
    if (!IstDokument(Einer.Inhalt))
        return Schreiben(std::move(Einer), Fund.Kopf.Ziel);
    if (BeimStart)
        NeuerenStandBeimStartVormerken(Fund, Einer.Inhalt);
    else
        NeuerenStandVormerken(Fund, Einer.Inhalt);
    return {};
}

void FehlerZeigen(const std::optional<Dateifehler>& Fehler) {
    if (Fehler)
        MeldungZeigen(Fehler->Text, {}, Symbol::Fehler);
}

void Speichernunter(const Rettungsfund& Fund) {
    const auto Wahl = Meldungen().Speichern({QStringLiteral("Speichern unter..."),
                                             {{QStringLiteral("Textdatei (*.txt)"), QStringLiteral("*.txt")},
                                              {QStringLiteral("Alle Dateien (*)"), QStringLiteral("*")}},
                                             QFile::decodeName(Fund.Kopf.Ziel)});
    if (!Wahl)
        return;
    const QString Frage =
        QStringLiteral("Soll die bereits existierende Datei %1 ersetzt werden?").arg(Wahl->Pfad);
    if (DateiExistiert(Wahl->Pfad) && !FrageJaNein(Frage))
        return;
    FehlerZeigen(RettungSpeichernUnter(Fund, Wahl->Pfad));
}

void Behalten(const Rettungsfund& Fund) {
    QString Wohin;
    const auto Fehler = RettungZuruecklegen(Fund, &Wohin);
    if (Fehler)
        MeldungZeigen(Fehler->Text, {}, Symbol::Fehler);
    else
        MeldungZeigen(QStringLiteral("Die Rettungskopie bleibt erhalten als\n\"%1\".").arg(Wohin) +
                      Fluechtigkeitshinweis(QFile::encodeName(Wohin)));
}

void Ausfuehren(Rettungswahl Wahl, const Rettungsfund& Fund, bool BeimStart) {
    switch (Wahl) {
    case Rettungswahl::Oeffnen:
        return FehlerZeigen(NeuerenStandOeffnen(Fund, BeimStart));
    case Rettungswahl::Uebernehmen:
        return FehlerZeigen(RettungUebernehmen(Fund));
    case Rettungswahl::SpeichernUnter:
        return Speichernunter(Fund);
    case Rettungswahl::Behalten:
        return Behalten(Fund);
    case Rettungswahl::Spaeter:
        return;
    }
}

void DefekteBeiseiteLegen(Rettungskopie* Kopie) {
    QByteArray Wohin;
    if (RettungBeiseiteLegen(Kopie, QByteArrayLiteral("defekt"), &Wohin) != 0)
        return;
    try {
        Protokollieren(QStringLiteral("Eine unvollständige Rettungskopie wurde beiseitegelegt: %1\n"
                                      "Das Speichern brach ab, bevor die Datei verändert wurde.")
                           .arg(QFile::decodeName(Wohin)));
    } catch (const Laufzeitfehler&) {
        // The log only tells what the name r.N.defekt tells as well.
        return;
    }
}

/// Brings copies to their end that need no answer; the others are given back, with their content.
std::optional<Rettungsfund> OhneFrageErledigen(const QByteArray& Pfad, QByteArray* Inhalt) {
    Rettungskopie Kopie;
    if (RettungOeffnen(Pfad, &Kopie) != 0)
        return {};
    auto Fund = RettungEinordnen(Kopie, Inhalt);
    if (!Fund)
        return {};
    if (Fund->Lage == Rettungslage::Gleich)
        ErledigteRettungEntfernen(&Kopie, Fund->Kopf.Ziel);
    else if (Fund->Lage == Rettungslage::Defekt)
        DefekteBeiseiteLegen(&Kopie);
    else {
        // Whoever decides later, decides perhaps after the computer was switched off.
        if (IstFluechtig(Pfad) && RettungHeimholen(Fund->Kopf, *Inhalt, &Kopie) == 0)
            Fund->Pfad = Kopie.Pfad;
        return Fund;
    }
    return {};
}

void Fragen(const Rettungsfund& Fund, bool Dokument, bool BeimStart) {
    const Angebot Eines = AngebotFuer(Fund, Dokument);
    const int Knopf =
        Meldungen().Waehlen({Eines.Text + Fluechtigkeitshinweis(Fund.Pfad),
                             QStringLiteral("Rettungskopie gefunden"), Eines.Knoepfe, Eines.Vorgabe});
    Ausfuehren(Eines.Wahlen.value(Knopf, Rettungswahl::Spaeter), Fund, BeimStart);
}

/// Ziel empty: the copies of all files, at start.
void Anbieten(const QByteArray& Ziel) {
    QList<QByteArray> Pfade;
    QByteArray Unlesbar;
    if (const int Fehler = RettungenAuflisten(&Pfade, &Unlesbar))
        MeldungZeigen(QStringLiteral("Im Ordner \"%1\" konnte nicht nach Rettungskopien gesucht werden: %2.")
                          .arg(QFile::decodeName(Unlesbar), FehlerUrsache(Fehler)),
                      {}, Symbol::Warnung);
    for (const QByteArray& Pfad : Pfade) {
        // Looked at one by one: the answer for one copy can settle the next.
        QByteArray Inhalt;
        const auto Fund = OhneFrageErledigen(Pfad, &Inhalt);
        if (!Fund || (!Ziel.isEmpty() && Fund->Kopf.Ziel != Ziel) ||
            NeuererStandVorgemerkt(Fund->Kopf.Ziel)) // an older copy can wait until it is saved
            continue;
        Fragen(*Fund, IstDokument(Inhalt), Ziel.isEmpty());
    }
}

} // namespace

void RettungenAnbieten() {
    Anbieten({});
}

void RettungAnbietenFuer(const QString& Pfad) {
    const QByteArray Name = QFile::encodeName(QFileInfo(Pfad).absoluteFilePath());
    QByteArray Ziel;
    if (EchterPfad(Name, &Ziel) != 0)
        Ziel = Name;
    NeuerenStandVergessen(Ziel); // the answer is given anew
    Anbieten(Ziel);
}

std::optional<Dateifehler> RettungUebernehmen(const Rettungsfund& Fund) {
    return HerausSchreiben(Fund, Fund.Kopf.Ziel);
}

std::optional<Dateifehler> RettungSpeichernUnter(const Rettungsfund& Fund, const QString& Pfad) {
    return HerausSchreiben(Fund, QFile::encodeName(Pfad));
}

std::optional<Dateifehler> RettungZuruecklegen(const Rettungsfund& Fund, QString* Wohin) {
    Griff Eine;
    if (const auto Fehler = Ergreifen(Fund, &Eine))
        return Fehler;
    QByteArray Neuer;
    const int Fehler = RettungBeiseiteLegen(&Eine.Kopie, QByteArrayLiteral("beiseite"), &Neuer);
    *Wohin = QFile::decodeName(Neuer);
    if (Fehler == 0)
        return {};
    return Dateifehler{FehlerArt(Fehler), Fehler, QStringLiteral("Umbenennen"),
                       QStringLiteral("Die Rettungskopie \"%1\" bleibt, wo sie ist: %2.")
                           .arg(QFile::decodeName(Fund.Pfad), FehlerUrsache(Fehler)),
                       QFile::decodeName(Fund.Pfad)};
}
