#include "assessments/Formulierungsdatei.h"

#include "core/Anzeigetext.h"
#include "core/Codeseite.h"
#include "core/Zeilenschreiber.h"
#include "core/Zeilenteiler.h"

namespace {

constexpr QByteArrayView Kopf("[Beurteilungsvorlagen f\xFCr Tafelquell");
constexpr QByteArrayView Version("3.0");
constexpr qsizetype VersionsStelle = Kopf.size() + 1; // one character, a blank, stands between them

QString Decodiert(QByteArrayView Bytes) {
    return AusCodeseite(Bytes.data(), Bytes.size());
}

bool IstBereich(QByteArrayView Zeile) {
    return Zeile.size() > 1 && Zeile.front() == '[' && Zeile.back() == ']';
}

Formulierungsbefund::Art KopfPruefen(QByteArrayView Zeile, QString& GeleseneVersion) {
    using Art = Formulierungsbefund::Art;
    if (!Zeile.startsWith(Kopf))
        return Art::FalscherKopf;
    const QByteArrayView Gelesen =
        Zeile.sliced(qMin(VersionsStelle, Zeile.size())).first(qBound(0, Zeile.size() - VersionsStelle, 3));
    GeleseneVersion = Decodiert(Gelesen);
    return Gelesen == Version ? Art::Gut : Art::FalscheVersion;
}

/// False if there is no room; then nothing has changed.
bool BereichBeginnen(QByteArrayView Zeile, Lernbereichsreihe& Bereiche, qint16& Anzahl) {
    if (Anzahl >= MaxLernbereiche)
        return false;
    Bereiche[Anzahl].Name = Decodiert(Zeile.sliced(1).chopped(1));
    ++Anzahl;
    Bereiche[Anzahl].Anzahl = 0;
    return true;
}

/// False without an area, or if it is full; then nothing has changed.
bool FormulierungAnhaengen(QByteArrayView Zeile, Lernbereichsreihe& Bereiche, qint16 Anzahl) {
    if (Anzahl < 1 || Bereiche[Anzahl - 1].Anzahl >= MaxFormulierungen)
        return false;
    Lernbereich& Letzter = Bereiche[Anzahl - 1];
    Letzter.Formulierung[Letzter.Anzahl] = Decodiert(Zeile);
    ++Letzter.Anzahl;
    return true;
}

Formulierungsbefund Schaden(qint32 Zeilennummer, int Bereich, QByteArrayView Zeile) {
    return {Formulierungsbefund::Art::Beschaedigt,
            {},
            Zeilennummer,
            static_cast<qint16>(Bereich),
            Anzeigetext({Zeile.data(), static_cast<std::size_t>(Zeile.size())})};
}

} // namespace

void LernbereicheLeeren(Lernbereichsreihe& Bereiche, qint16& Anzahl) {
    Anzahl = 0;
    Bereiche[0].Anzahl = 0;
}

Formulierungsbefund FormulierungenLesen(QByteArrayView Bytes, Lernbereichsreihe& Bereiche, qint16& Anzahl) {
    Zeilenteiler Zeilen(Bytes);
    QByteArrayView Zeile;
    Formulierungsbefund Befund;
    if (!Zeilen.Naechste(Zeile))
        return Schaden(Befund.Zeile, Anzahl, {});
    Befund.Was = KopfPruefen(Zeile, Befund.Version);
    if (Befund.Was != Formulierungsbefund::Art::Gut)
        return Befund;
    while (Zeilen.Naechste(Zeile)) {
        ++Befund.Zeile;
        const bool NeuerBereich = IstBereich(Zeile);
        const bool Aufgenommen = NeuerBereich ? BereichBeginnen(Zeile, Bereiche, Anzahl)
                                              : FormulierungAnhaengen(Zeile, Bereiche, Anzahl);
        if (!Aufgenommen)
            return Schaden(Befund.Zeile, Anzahl + (NeuerBereich ? 1 : 0), Zeile);
    }
    Befund.Bereich = Anzahl;
    return Befund;
}

QByteArray FormulierungenBytes(const Lernbereichsreihe& Bereiche, qint16 Anzahl) {
    Zeilenschreiber Z;
    Z.Zeile("[Beurteilungsvorlagen f\xFCr Tafelquell 3.0]");
    for (int i = 0; i < Anzahl; ++i) {
        const Lernbereich& Einer = Bereiche[i];
        Z.Textzeile(u'[' + Einer.Name + u']');
        for (int j = 0; j < Einer.Anzahl; ++j)
            Z.Textzeile(Einer.Formulierung[j]);
    }
    return Z.Bytes();
}

bool IstBereichszeile(const QString& Zeile) {
    return Zeile.size() > 1 && Zeile.front() == u'[' && Zeile.back() == u']';
}
