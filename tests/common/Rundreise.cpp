#include "common/Rundreise.h"

#include "assessments/Formulierungsdatei.h"
#include "core/Datenbankleser.h"
#include "core/Datenbankschreiber.h"
#include "core/Definitionen.h"
#include "core/Fremdschuelerleser.h"
#include "core/Parameterleser.h"
#include "core/Parametervorgaben.h"

namespace {

using Ausgang = Leseergebnis::Ausgang;

void Ueberhoeren(const Feldwarnung& /*Warnung*/) {}

/// A class whose row would read as a section marker. No name of a class and no year of the list looks so;
/// only a damaged file can hold one, and the format has no way to store it.
bool KlasseWieMarke() {
    for (int i = 0; i < Datenbank.AnzKlassen; ++i)
        if (Datenbank.Klassen[i].Jahr.startsWith(u'[') && Datenbank.Klassen[i].Name.endsWith(u']'))
            return true;
    return false;
}

/// A student of a damaged file whose number has more than five digits, with an assessment: the marker has no
/// room for it. Saving tells the user.
bool NummerZuLangFuerMarke() {
    for (int i = 0; i < Datenbank.AnzSchueler; ++i)
        for (const QString& Text : Datenbank.Schueler[i].Beurteilung)
            if (Datenbank.Schueler[i].ID > 99999 && !Text.isEmpty())
                return true;
    return false;
}

/// A file that cannot be read to its end never counts as loaded.
QString AbgebrochenRundreise(const QByteArray& Bytes) {
    constexpr bool Ganz = false;
    if (DatenbankLesen(Bytes, Ganz, Ueberhoeren).Ende == Ausgang::Gelesen)
        return QStringLiteral("eine halbe Datei gilt als gelesen");
    return {};
}

} // namespace

QString DatenbankRundreise(const QByteArray& Bytes) {
    SetzeParameterDefaults();
    if (Bytes.size() % 8 == 0)
        return AbgebrochenRundreise(Bytes);
    if (DatenbankLesen(Bytes, true, Ueberhoeren).Ende != Ausgang::Gelesen || KlasseWieMarke() ||
        NummerZuLangFuerMarke())
        return {};
    const QByteArray Geschrieben = DatenbankBytes();
    int Warnungen = 0;
    const Leseergebnis Wieder =
        DatenbankLesen(Geschrieben, true, [&](const Feldwarnung& /*Warnung*/) { ++Warnungen; });
    if (Wieder.Ende != Ausgang::Gelesen)
        return QStringLiteral("das Geschriebene lädt nicht: Zeile %1").arg(Wieder.Stelle.Zeile);
    if (Warnungen != 0 || Wieder.Entfallen != 0)
        return QStringLiteral("das Geschriebene lädt mit Verlust");
    if (DatenbankBytes() != Geschrieben)
        return QStringLiteral("zweimal geschrieben ist nicht dasselbe");
    return {};
}

QString FremdschuelerRundreise(const QByteArray& Bytes) {
    AnzFremdSchueler = 0;
    const Leseergebnis Ergebnis = FremdSchuelerLesen(Bytes, Bytes.size() % 8 != 0, Ueberhoeren);
    if (Ergebnis.Ende != Ausgang::Gelesen && AnzFremdSchueler != 0)
        return QStringLiteral("nach einem Fehler sind Schüler geblieben");
    return {};
}

QString ParameterRundreise(const QByteArray& Bytes) {
    BLLVVerteilung = {};
    if (!ParameterLesen(Bytes).Ablehnung.isEmpty())
        return {};
    const QByteArray Geschrieben = ParameterBytes();
    if (!ParameterLesen(Geschrieben).Ablehnung.isEmpty())
        return QStringLiteral("das Geschriebene wird abgelehnt");
    if (ParameterBytes() != Geschrieben)
        return QStringLiteral("zweimal geschrieben ist nicht dasselbe");
    return {};
}

namespace {

QString BereicheGeprueft() {
    if (AnzLernbereiche < 0 || AnzLernbereiche > MaxLernbereiche)
        return QStringLiteral("zu viele Lernbereiche: %1").arg(AnzLernbereiche);
    if (Lernbereiche[AnzLernbereiche].Anzahl != 0)
        return QStringLiteral("hinter dem letzten Lernbereich steht kein leerer");
    for (int i = 0; i < AnzLernbereiche; ++i)
        if (Lernbereiche[i].Anzahl < 0 || Lernbereiche[i].Anzahl > MaxFormulierungen)
            return QStringLiteral("zu viele Formulierungen: %1").arg(Lernbereiche[i].Anzahl);
    return {};
}

} // namespace

QString FormulierungenRundreise(const QByteArray& Bytes) {
    using Art = Formulierungsbefund::Art;
    LernbereicheLeeren(Lernbereiche, AnzLernbereiche);
    if (Bytes.size() % 8 == 0) // some are added to a store that holds something
        FormulierungenLesen(QByteArrayView(Bytes).first(Bytes.size() / 2), Lernbereiche, AnzLernbereiche);
    const Formulierungsbefund Befund = FormulierungenLesen(Bytes, Lernbereiche, AnzLernbereiche);
    if (const QString Falsch = BereicheGeprueft(); !Falsch.isEmpty() || Befund.Was != Art::Gut)
        return Falsch;
    const QByteArray Geschrieben = FormulierungenBytes(Lernbereiche, AnzLernbereiche);
    LernbereicheLeeren(Lernbereiche, AnzLernbereiche);
    if (FormulierungenLesen(Geschrieben, Lernbereiche, AnzLernbereiche).Was != Art::Gut)
        return QStringLiteral("das Geschriebene lädt nicht");
    if (FormulierungenBytes(Lernbereiche, AnzLernbereiche) != Geschrieben)
        return QStringLiteral("zweimal geschrieben ist nicht dasselbe");
    return {};
}
