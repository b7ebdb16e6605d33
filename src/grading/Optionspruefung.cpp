#include "grading/Optionspruefung.h"

#include "core/Datum.h"
#include "core/FktAllgemein.h"
#include "core/Zahlen.h"

namespace {

constexpr int Pruefjahr = 1999;

/// Above 0 and up to Hoechstens.
struct Zahlregel {
    float Hoechstens;
    float Vorgabe;
    QString Meldung;
};

struct Datumsregel {
    QDate Von;
    QDate Bis;
    QString Vorgabe;
};

Optionspruefung ZahlPruefen(const Zahlregel& Regel, const QString& Text) {
    const float Wert = ZahlAusText(Text);
    if (Wert > 0 && Wert <= Regel.Hoechstens)
        return {ZahlText(Wert), {}};
    return {ZahlText(Regel.Vorgabe), Regel.Meldung};
}

Optionspruefung DatumPruefen(const Datumsregel& Regel, const QString& Text) {
    const std::optional<QDate> Tag = DatumLesen(Text + QString::number(Pruefjahr), Pruefjahr);
    if (Tag && *Tag >= Regel.Von && *Tag <= Regel.Bis)
        return {Text, {}};
    return {Regel.Vorgabe, QStringLiteral("Der Wert ist nicht plausibel!")};
}

} // namespace

Optionspruefung OptionPruefen(Optionsfeld Feld, const QString& Text) {
    const QString Gewicht = QStringLiteral("Der Wert muß zwischen 0 und 3 liegen!");
    const QString Punkte = QStringLiteral("Der Wert muß zwischen 0 und 3 Punkten liegen!");
    const QString Notenteil = QStringLiteral("Der Wert muß zwischen 0 und 0,5 liegen!");
    switch (Feld) {
    case Optionsfeld::GewichtungE:
        return ZahlPruefen({3.0F, 1.0F, Gewicht}, Text);
    case Optionsfeld::GewichtungM:
        return ZahlPruefen({3.0F, 0.5F, Gewicht}, Text);
    case Optionsfeld::Punkteabstand:
        return ZahlPruefen({3.0F, 0.5F, Punkte}, Text);
    case Optionsfeld::Notenabstand:
        return ZahlPruefen({0.5F, 0.3F, Notenteil}, Text);
    case Optionsfeld::Halbjahreswechsel:
        return DatumPruefen({QDate(Pruefjahr, 1, 1), QDate(Pruefjahr, 7, 1), QStringLiteral("24.02.")}, Text);
    case Optionsfeld::Endjahreswechsel:
        return DatumPruefen({QDate(Pruefjahr, 7, 1), QDate(Pruefjahr, 12, 31), QStringLiteral("12.09.")},
                            Text);
    }
    Q_UNREACHABLE();
}
