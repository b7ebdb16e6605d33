#include "core/Parametervorgaben.h"

#include "core/Datum.h"
#include "core/Definitionen.h"
#include "core/Laufzeitfehler.h"
#include "core/Oberflaeche.h"
#include "core/Uhr.h"

#include <QCoreApplication>

namespace {

const QString Halbjahresvorgabe = QStringLiteral("24.02.");
const QString Endjahresvorgabe = QStringLiteral("12.09.");
constexpr int Pruefjahr = 1999; ///< any year that is no leap year serves
constexpr float PunkteAbstandVorgabe = 0.5F;
constexpr float NotenAbstandVorgabe = 0.3F;
constexpr float GewichtungEVorgabe = 1.0F;
constexpr float GewichtungMVorgabe = 0.5F;
constexpr float GewichtungMErsatz = 1.0F; ///< repair and default differ here, on purpose

void SetzeTitelvorgaben() {
    const QStringList Titel{QStringLiteral("Strasse"),    QStringLiteral("Ort"),
                            QStringLiteral("Tel"),        QStringLiteral("Religion"),
                            QStringLiteral("Geschlecht"), QStringLiteral("Staat"),
                            QStringLiteral("Geburtstag")};
    const int Benannte = static_cast<int>(Titel.size());
    for (int i = 1; i < Datenbank.SchuelerFeldTitel.size(); ++i)
        Datenbank.SchuelerFeldTitel[i] =
            i <= Benannte ? Titel[i - 1] : QStringLiteral("Daten%1").arg(i - Benannte);
}

bool TitelFehlt() {
    for (int i = 1; i < Datenbank.SchuelerFeldTitel.size(); ++i)
        if (Datenbank.SchuelerFeldTitel[i].isEmpty())
            return true;
    return false;
}

void PruefeTag(QString& Tag, const QDate& Von, const QDate& Bis, const QString& Vorgabe) {
    const auto Datum = DatumLesen(Tag, Pruefjahr);
    if (!Datum)
        throw Laufzeitfehler(
            QCoreApplication::translate("Parametervorgaben", "\"%1\" ist kein Datum.").arg(Tag));
    if (*Datum < Von || *Datum > Bis)
        Tag = Vorgabe;
}

void PruefeAbstand(float& Abstand, float Hoechstens, float Ersatz) {
    if (!(Abstand > 0 && Abstand <= Hoechstens))
        Abstand = Ersatz;
}

void PruefeGewichtung(float& Gewichtung, float Ersatz) {
    constexpr float Hoechstens = 5;
    if (!(Gewichtung >= 0 && Gewichtung <= Hoechstens))
        Gewichtung = Ersatz;
}

} // namespace

void SetzeParameterDefaults() {
    Datenbank.Halbjahreswechsel = Halbjahresvorgabe;
    Datenbank.Endjahreswechsel = Endjahresvorgabe;
    Datenbank.GrenznotenBerechnen = true;
    Datenbank.GrenznotenBeruecksichtigen = false;
    Datenbank.GrenznotenPunkteAbstand = PunkteAbstandVorgabe;
    Datenbank.GrenznotenNotenAbstand = NotenAbstandVorgabe;
    Datenbank.GewichtungE = GewichtungEVorgabe;
    Datenbank.GewichtungM = GewichtungMVorgabe;
    Datenbank.NotenberechnenMethode = QStringLiteral("1");
    Datenbank.AktJahr = Schuljahr(Heute());
    SetzeTitelvorgaben();
}

void PruefeParameter() {
    if (!IstSchuljahr(Datenbank.AktJahr))
        Datenbank.AktJahr = Schuljahr(Heute());
    AktuelleOberflaeche().JahrgangWaehlen();
    const QDate Jahresmitte(Pruefjahr, 7, 1);
    PruefeTag(Datenbank.Halbjahreswechsel, QDate(Pruefjahr, 1, 1), Jahresmitte, Halbjahresvorgabe);
    PruefeTag(Datenbank.Endjahreswechsel, Jahresmitte, QDate(Pruefjahr, 12, 31), Endjahresvorgabe);
    PruefeAbstand(Datenbank.GrenznotenPunkteAbstand, 10, PunkteAbstandVorgabe);
    PruefeAbstand(Datenbank.GrenznotenNotenAbstand, 0.5F, NotenAbstandVorgabe);
    PruefeGewichtung(Datenbank.GewichtungE, GewichtungEVorgabe);
    PruefeGewichtung(Datenbank.GewichtungM, GewichtungMErsatz);
    const QString& Methode = Datenbank.NotenberechnenMethode;
    if (Methode != QStringLiteral("1") && Methode != QStringLiteral("2"))
        Datenbank.NotenberechnenMethode = QStringLiteral("1");
    if (TitelFehlt())
        SetzeTitelvorgaben();
}
