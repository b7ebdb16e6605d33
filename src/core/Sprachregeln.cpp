#include "core/Sprachregeln.h"

#include "core/Zahlen.h"

namespace {

const QString Trennzeichen = QStringLiteral("./- ");

/// German where the system names no language.
QLocale OderDeutsch(const QLocale& Sprache) {
    return Sprache.language() == QLocale::C ? QLocale(QLocale::German, QLocale::Germany) : Sprache;
}

/// The short form with a four-digit year, without names of months and without words between the numbers, so
/// that DatumLesen reads what DatumKurz writes in every locale.
QString Vierstellig(const QString& Kurzform) {
    QString Ergebnis;
    QChar Letztes;
    bool Zitat = false;
    for (const QChar Zeichen : Kurzform) {
        if (Zeichen == u'\'')
            Zitat = !Zitat;
        else if (Zitat)
            continue;
        else if (Zeichen == u'y')
            Ergebnis += Letztes == u'y' ? QString() : QStringLiteral("yyyy");
        else if (Zeichen == u'd' || Zeichen == u'M')
            Ergebnis += Ergebnis.endsWith(QString(2, Zeichen)) ? QString() : QString(Zeichen);
        else if (Trennzeichen.contains(Zeichen))
            Ergebnis += Zeichen;
        Letztes = Zeichen;
    }
    return Ergebnis.trimmed();
}

QString FolgeVon(const QString& Form) {
    QString Ergebnis;
    for (const QChar Zeichen : Form)
        if (Zeichen.isLetter() && !Ergebnis.contains(Zeichen))
            Ergebnis += Zeichen;
    return Ergebnis;
}

Sprachregeln& Regeln() {
    static Sprachregeln InKraft(QLocale::system());
    return InKraft;
}

} // namespace

Sprachregeln::Sprachregeln(const QLocale& Vorbild)
    : Sprache(OderDeutsch(Vorbild))
    , Dezimalzeichen(Sprache.decimalPoint().at(0))
    , Datumsform(Vierstellig(Sprache.dateFormat(QLocale::ShortFormat)))
    , Folge(FolgeVon(Datumsform)) {}

const Sprachregeln& AktuelleSprachregeln() {
    return Regeln();
}

const QLocale& SystemSprache() {
    return Regeln().Sprache;
}

void SystemSpracheSetzen(const QLocale& Sprache) {
    Regeln() = Sprachregeln(Sprache);
}
