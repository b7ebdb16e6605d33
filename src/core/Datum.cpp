#include "core/Datum.h"

#include "core/Sprachregeln.h"
#include "core/Zahlen.h"

#include <QTime>

namespace {

bool IstTrenner(QChar Zeichen) {
    return Zeichen == u'.' || Zeichen == u'/' || Zeichen == u'-' || Zeichen == u' ';
}

bool IstZiffer(QChar Zeichen) {
    return Zeichen >= u'0' && Zeichen <= u'9';
}

/// The runs of digits of a text that holds nothing but these and separators between and behind them; empty
/// for any other text.
QList<QStringView> Zahlenteile(QStringView Text) {
    QList<QStringView> Teile;
    qsizetype Anfang = 0;
    for (qsizetype i = 0; i <= Text.size(); ++i) {
        if (i < Text.size() && IstZiffer(Text[i]))
            continue;
        if (i < Text.size() && !IstTrenner(Text[i]))
            return {};
        if (i > Anfang)
            Teile.append(Text.mid(Anfang, i - Anfang));
        Anfang = i + 1;
    }
    return Teile;
}

/// A year of one or two digits below 30 lies in this century, from 30 in the last one.
int VollesJahr(QStringView Ziffern) {
    const int Jahr = Ziffern.toInt();
    if (Ziffern.size() > 2)
        return Jahr;
    return Jahr < 30 ? 2000 + Jahr : 1900 + Jahr;
}

/// Day and month in the wrong order are put right where only that makes a date: a grade book may come from a
/// system with the other order.
std::optional<QDate> AlsDatum(int Jahr, int Monat, int Tag) {
    if (QDate::isValid(Jahr, Monat, Tag))
        return QDate(Jahr, Monat, Tag);
    if (QDate::isValid(Jahr, Tag, Monat))
        return QDate(Jahr, Tag, Monat);
    return {};
}

/// Which part means what: the locale's order, but a first part of four digits is a year.
QString Folge(const QList<QStringView>& Teile) {
    QString Ergebnis = AktuelleSprachregeln().Folge;
    if (Teile.size() == 2)
        return Ergebnis.remove(u'y');
    return Teile.first().size() == 4 ? QStringLiteral("yMd") : Ergebnis;
}

bool LaengenPassen(const QList<QStringView>& Teile, const QString& Bedeutung) {
    for (qsizetype i = 0; i < Teile.size(); ++i) {
        const qsizetype Laenge = Teile[i].size();
        const bool Passt = Laenge <= 2 || (Bedeutung[i] == u'y' && Laenge == 4);
        if (!Passt)
            return false;
    }
    return true;
}

} // namespace

std::optional<QDate> DatumLesen(const QString& Text, int Vorgabejahr) {
    const QStringView Kern = QStringView(Text).trimmed();
    if (Kern.isEmpty() || !IstZiffer(Kern.front()))
        return {};
    const QList<QStringView> Teile = Zahlenteile(Kern);
    if (Teile.size() != 2 && Teile.size() != 3)
        return {};
    const QString Bedeutung = Folge(Teile);
    if (!LaengenPassen(Teile, Bedeutung))
        return {};
    const int Tag = Teile[Bedeutung.indexOf(u'd')].toInt();
    const int Monat = Teile[Bedeutung.indexOf(u'M')].toInt();
    const int Jahr = Teile.size() == 3 ? VollesJahr(Teile[Bedeutung.indexOf(u'y')]) : Vorgabejahr;
    return AlsDatum(Jahr, Monat, Tag);
}

QString DatumKurz(const QDate& Datum) {
    return Datum.toString(AktuelleSprachregeln().Datumsform);
}

QString ZeitKurz(const QTime& Zeit) {
    return SystemSprache().toString(Zeit, QLocale::ShortFormat);
}

QString SchuljahrAb(int Jahr) {
    return QStringLiteral("%1/%2").arg(Jahr).arg((Jahr + 1) % 100, 2, 10, QLatin1Char('0'));
}

QString Schuljahr(const QDate& Tag) {
    const int Kurz = Tag.year() % 100;
    const int Jahr = Kurz < 81 ? 2000 + Kurz : 1900 + Kurz;
    const bool Vorher = Tag.month() < 8 || (Tag.month() == 8 && Tag.day() < 15);
    return SchuljahrAb(Vorher ? Jahr - 1 : Jahr);
}

bool IstSchuljahr(const QString& Jahr) {
    const int Beginn = QStringView(Jahr).left(4).toInt();
    return Beginn >= ErstesSchuljahr && Beginn <= LetztesSchuljahr && Jahr == SchuljahrAb(Beginn);
}
