#include "core/FktSpeziell.h"

#include "core/Definitionen.h"
#include "core/FktAllgemein.h"

#include <QCoreApplication>

#include <algorithm>

Reihe<QString, 11> KlassenTeile;

namespace {

/// Index of the first of Anzahl records that Passt; -1 if none.
template <class Feld, class Bedingung>
qint16 ErsterIndex(const Feld& Records, qint16 Anzahl, Bedingung Passt) {
    const auto Ende = Records.begin() + Anzahl;
    const auto Fund = std::find_if(Records.begin(), Ende, Passt);
    return Fund == Ende ? qint16(-1) : static_cast<qint16>(Fund - Records.begin());
}

bool IstZiffer(QChar Zeichen) {
    return Zeichen >= u'0' && Zeichen <= u'9';
}

} // namespace

qint16 FachIndex(qint32 ID) {
    return ErsterIndex(Datenbank.Faecher, Datenbank.AnzFaecher,
                       [ID](const Fach& Eines) { return Eines.ID == ID; });
}

qint16 SchuelerIndex(qint32 ID) {
    return ErsterIndex(Datenbank.Schueler, Datenbank.AnzSchueler,
                       [ID](const Schueler& Einer) { return Einer.ID == ID; });
}

qint16 NotenIndex(qint32 Schueler_ID, qint32 Fach_ID) {
    return ErsterIndex(Datenbank.Noten, Datenbank.AnzNoten, [=](const Notenzeile& Zeile) {
        return Zeile.Schueler_ID == Schueler_ID && Zeile.Fach_ID == Fach_ID;
    });
}

QHash<qint32, int> ErsteNotenzeilen(qint32 Fach_ID) {
    QHash<qint32, int> Zeilen;
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Zeile = Datenbank.Noten[i];
        if (Zeile.Fach_ID == Fach_ID && !Zeilen.contains(Zeile.Schueler_ID))
            Zeilen.insert(Zeile.Schueler_ID, i);
    }
    return Zeilen;
}

qint16 ErsteZahl(const QString& Text) {
    const auto Anfang = std::find_if(Text.begin(), Text.end(), IstZiffer);
    if (Anfang == Text.end())
        return 0;
    const int Erste = Anfang->unicode() - u'0';
    const auto Zweites = Anfang + 1;
    if (Zweites == Text.end() || !IstZiffer(*Zweites))
        return static_cast<qint16>(Erste);
    return static_cast<qint16>(Erste * 10 + Zweites->unicode() - u'0');
}

float NoteAlsZahl(const QString& Note) {
    const QString Ganz = Note.trimmed();
    const qsizetype Plus = Ganz.indexOf(u'+');
    const qsizetype Minus = Ganz.indexOf(u'-');
    QString Rest = Ganz;
    if (Plus > 0)
        Rest = Rest.left(Plus);
    if (Minus > 0)
        Rest = Rest.left(Minus);
    float Wert = std::clamp(ZahlAusText(Rest), 0.0F, 6.0F);
    if (Datenbank.GrenznotenBeruecksichtigen) {
        if (Plus >= 0)
            Wert -= Datenbank.GrenznotenNotenAbstand;
        if (Minus >= 0)
            Wert += Datenbank.GrenznotenNotenAbstand;
    }
    return Wert;
}

QString NameDrehen(const QString& Name) {
    const QString Ganz = OhneRandblanks(Name);
    const qsizetype Blank = NamenUmgekehrt ? Ganz.indexOf(u' ') : Ganz.lastIndexOf(u' ');
    if (Blank < 0)
        return Ganz;
    return Ganz.mid(Blank + 1) + u' ' + Ganz.left(Blank);
}

void KlassenTrennen(const QString& Klassenfeld) {
    QString Rest = Klassenfeld.section(u' ', 0, 0);
    QString Buchstaben;
    while (Rest.size() >= 2 && !IstZiffer(Rest.back())) {
        Buchstaben += Rest.back();
        Rest.chop(1);
    }
    if (Buchstaben.size() >= KlassenTeile.size())
        throw Laufzeitfehler(QCoreApplication::translate("FktSpeziell", "Zu viele Klassen in einem Fach: %1")
                                 .arg(Klassenfeld));
    int Anzahl = 0;
    for (const QChar Buchstabe : Buchstaben)
        KlassenTeile[Anzahl++] = Rest + Buchstabe;
    if (Anzahl == 0)
        KlassenTeile[Anzahl++] = Rest;
    KlassenTeile[Anzahl] = QString();
}
