#include "core/FktAllgemein.h"

#include "core/Codeseite.h"
#include "core/Datum.h"
#include "core/Laufzeitfehler.h"
#include "core/Meldungen.h"
#include "core/Orte.h"
#include "core/Uhr.h"
#include "core/Zahlen.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <limits>

namespace {

/// The block of one message, lines ended by CR LF.
QString Protokollblock(const QString& Meldung) {
    const QDateTime Zeit = Jetzt();
    const QStringList Zeilen{
        QString(63, u'*'),
        QStringLiteral("Fehlermeldung vom %1 um %2 Uhr:").arg(DatumKurz(Zeit.date()), ZeitKurz(Zeit.time())),
        QString(63, u'='), Meldung, QString()};
    QString Block = Zeilen.join(u'\n') + u'\n';
    Block.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    Block.replace(u'\r', u'\n');
    return Block.replace(u'\n', QStringLiteral("\r\n"));
}

} // namespace

float ZahlAusText(const QString& Text) {
    const auto Zahl = static_cast<float>(ZahlLesen(Text).value_or(0));
    return std::isfinite(Zahl) ? Zahl : 0;
}

qint16 GanzzahlAusText(const QString& Text) {
    const double Ganz = std::nearbyint(ZahlLesen(Text).value_or(0));
    using Grenzen = std::numeric_limits<qint16>;
    const bool Passt = Ganz >= Grenzen::min() && Ganz <= Grenzen::max();
    return Passt ? static_cast<qint16>(Ganz) : qint16(0);
}

QString& TabsErsetzen(QString& Text) {
    return Text.replace(u'\t', u' ');
}

QString OhneRandblanks(const QString& Text) {
    qsizetype Von = 0;
    qsizetype Bis = Text.size();
    while (Von < Bis && Text.at(Von) == u' ')
        ++Von;
    while (Bis > Von && Text.at(Bis - 1) == u' ')
        --Bis;
    return Text.mid(Von, Bis - Von);
}

QString DateiName(const QString& Pfad) {
    return Pfad.mid(qMax(Pfad.lastIndexOf(u'\\'), Pfad.lastIndexOf(u'/')) + 1);
}

bool DateiExistiert(const QString& Pfad) {
    const QFileInfo Datei(Pfad);
    return Datei.exists() && !Datei.isDir();
}

void Fehlermeldung(const QString& Meldung) {
    MeldungZeigen(Meldung);
    Protokollieren(Meldung);
}

void Protokollieren(const QString& Meldung) {
    QFile Protokoll(Programmverzeichnis() + QStringLiteral("/Fehlermeldungen.txt"));
    // A path in the message may hold characters no Windows-1252 file can; they must not cost the whole entry.
    const QByteArray Block = InCodeseite(CodeseiteBereinigt(Protokollblock(Meldung)));
    const bool Geschrieben =
        Protokoll.open(QIODevice::Append) && Protokoll.write(Block) == Block.size() && Protokoll.flush();
    if (!Geschrieben)
        throw Laufzeitfehler(QCoreApplication::translate(
                                 "FktAllgemein", "Das Fehlerprotokoll %1 konnte nicht geschrieben werden: %2")
                                 .arg(Protokoll.fileName(), Protokoll.errorString()));
}
