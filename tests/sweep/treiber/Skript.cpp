#include "treiber/Skript.h"

namespace {

QChar Entschluesselt(QChar Zeichen) {
    if (Zeichen == u'n')
        return u'\n';
    return Zeichen == u't' ? QChar(u'\t') : Zeichen;
}

/// Takes one word from *Stelle on; nothing if a quotation mark is missing.
std::optional<QString> WortLesen(const QString& Zeile, qsizetype* Stelle) {
    QString Wort;
    if (Zeile[*Stelle] != u'"') {
        while (*Stelle < Zeile.size() && !Zeile[*Stelle].isSpace())
            Wort += Zeile[(*Stelle)++];
        return Wort;
    }
    for (++*Stelle; *Stelle < Zeile.size(); ++*Stelle) {
        if (Zeile[*Stelle] == u'"') {
            ++*Stelle;
            return Wort;
        }
        const bool Maskiert = Zeile[*Stelle] == u'\\' && *Stelle + 1 < Zeile.size();
        Wort += Maskiert ? Entschluesselt(Zeile[++*Stelle]) : Zeile[*Stelle];
    }
    return {};
}

std::optional<QStringList> WorteLesen(const QString& Zeile) {
    QStringList Worte;
    for (qsizetype Stelle = 0; Stelle < Zeile.size();) {
        if (Zeile[Stelle].isSpace()) {
            ++Stelle;
            continue;
        }
        const auto Wort = WortLesen(Zeile, &Stelle);
        if (!Wort)
            return {};
        Worte.append(*Wort);
    }
    return Worte;
}

} // namespace

std::optional<QList<Befehl>> SkriptLesen(const QString& Text, QString* Grund) {
    QList<Befehl> Befehle;
    int Nummer = 0;
    for (const QString& Zeile : Text.split(u'\n')) {
        ++Nummer;
        if (Zeile.trimmed().startsWith(u'#'))
            continue;
        auto Worte = WorteLesen(Zeile);
        if (!Worte) {
            *Grund = QStringLiteral("Zeile %1: Text nicht geschlossen").arg(Nummer);
            return {};
        }
        if (!Worte->isEmpty()) {
            const QString Name = Worte->takeFirst();
            Befehle.append({Nummer, Name, *Worte});
        }
    }
    return Befehle;
}
