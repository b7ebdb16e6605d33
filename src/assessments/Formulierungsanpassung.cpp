#include "assessments/Formulierungsanpassung.h"

#include <array>

namespace {

struct Ersetzung {
    QStringView Maennlich;
    QStringView Weiblich;
};

/// In the order in which they are applied, both ways.
constexpr std::array<Ersetzung, 18> Ersetzungen{{
    {u" er ", u" sie "},
    {u"Er ", u"Sie "},
    {u" sein ", u" ihr "},
    {u"Sein ", u"Ihr "},
    {u" seine ", u" ihre "},
    {u"Seine ", u"Ihre "},
    {u" seiner ", u" ihrer "},
    {u"Seiner ", u"Ihrer "},
    {u" seinen ", u" ihren "},
    {u"Seinen ", u"Ihren "},
    {u"ihm ", u"ihr "},
    {u"Ihm ", u"Ihr "},
    {u"ihn ", u"sie "},
    {u"Ihn ", u"Sie "},
    {u"ruhiger ", u"ruhige "},
    {u"loser ", u"lose "},
    {u"Schüler ", u"Schülerin "},
    {u"Schüler.", u"Schülerin."},
}};

void Ersetzen(QString& Text, QStringView Alt, QStringView Neu) {
    Text.replace(Alt.data(), Alt.size(), Neu.data(), Neu.size());
}

} // namespace

QString FormulierungAngepasst(const QString& Zeile, const QString& Name, bool Maennlich) {
    QString Text = Zeile;
    Text.replace(Namensplatzhalter, Name);
    if (!Maennlich)
        for (const Ersetzung& Eine : Ersetzungen)
            Ersetzen(Text, Eine.Maennlich, Eine.Weiblich);
    return Text.mid(2);
}

QString FormulierungZurueck(const QString& Text, const QString& Name, bool Weiblich) {
    QString Zurueck = Text;
    if (!Name.isEmpty())
        Zurueck.replace(Name, Namensplatzhalter);
    if (Weiblich)
        for (const Ersetzung& Eine : Ersetzungen)
            Ersetzen(Zurueck, Eine.Weiblich, Eine.Maennlich);
    return Zurueck;
}

QString VornameAus(const QString& Name) {
    const QString Getrimmt = Name.trimmed();
    return Getrimmt.mid(Getrimmt.lastIndexOf(u' ') + 1);
}
