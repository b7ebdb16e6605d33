#include "Fuzzziel.h"

#include "core/Pruefsumme.h"
#include "core/Rettungslage.h"

namespace {

/// What is accepted is spelled as this program spells it, and a copy made from it is accepted again.
QString KopfPruefen(const QByteArray& Bytes) {
    const auto Gelesen = RettungskopfLesen(Bytes);
    if (!Gelesen)
        return {};
    if (RettungskopfBytes(Gelesen->Kopf) != Bytes.left(Gelesen->Ende))
        return QStringLiteral("angenommen, aber anders geschrieben");
    Rettungskopf Kopf = Gelesen->Kopf;
    const QByteArray Inhalt = Bytes.mid(Gelesen->Ende);
    Kopf.Inhalt = MarkeVon(Inhalt);
    const auto Ganz = RettungsinhaltLesen(RettungskopfBytes(Kopf) + Inhalt);
    if (!Ganz || Ganz->Kopf != Kopf || Ganz->Inhalt != Inhalt)
        return QStringLiteral("die eigene Kopie wird nicht angenommen");
    return {};
}

/// The same bytes as a content and as what became of it.
QString LagePruefen(const QByteArray& Bytes) {
    const QByteArray Inhalt = Bytes.left(Bytes.size() / 2);
    const QByteArray Ziel = Bytes.mid(Inhalt.size());
    Rettungskopf Kopf;
    Kopf.Vorher = {-1, 0};
    if (LageBestimmen(Kopf, Inhalt, Inhalt) != Rettungslage::Gleich)
        return QStringLiteral("gleich ist nicht gleich");
    if (!Inhalt.isEmpty() && LageBestimmen(Kopf, Inhalt, Inhalt.chopped(1)) != Rettungslage::Abgebrochen)
        return QStringLiteral("ein Anfang ist nicht abgebrochen");
    if (LageBestimmen(Kopf, Inhalt, Ziel) == Rettungslage::Abgebrochen && Ziel.size() > Inhalt.size())
        return QStringLiteral("abgebrochen und doch laenger");
    return {};
}

/// The head's own checksum would stop nearly every change: it is put right once more.
QString Pruefen(const QByteArray& Bytes) {
    const QByteArray Summe = QByteArray::number(Pruefsumme(Bytes.constData(), Bytes.size()), 16);
    const QByteArray MitSumme = Bytes + "Kopfpruefsumme: " + Summe.rightJustified(8, '0') + "\n\nInhalt";
    QString Befund = KopfPruefen(Bytes);
    if (Befund.isEmpty())
        Befund = KopfPruefen(MitSumme);
    return Befund.isEmpty() ? LagePruefen(Bytes) : Befund;
}

} // namespace

FUZZZIEL(Pruefen)
