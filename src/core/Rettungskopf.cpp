#include "core/Rettungskopf.h"

#include "core/Pruefsumme.h"

#include <QList>

namespace {

constexpr qsizetype LaengsterKopf = 32 * 1024; // a path of PATH_MAX bytes, each written as %XX, fits

const QByteArray Kennung = QByteArrayLiteral("Tafelquell-Rettungskopie 1");
// World time: a local one may not exist where the file is read.
const QString Zeitformat = QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'");

/// The lines in their order; each stands exactly once.
enum Zeile {
    Datei,
    Geraet,
    Inode,
    Laenge,
    Summe,
    Neu,
    VorherLaenge,
    VorherSumme,
    Zeit,
    Rechner,
    Prozess,
    Anzahl
};
const QList<QByteArray> Namen{"Datei",      "Geraet",    "Inode",        "Laenge",
                              "Pruefsumme", "NeueDatei", "VorherLaenge", "VorherPruefsumme",
                              "Zeit",       "Rechner",   "Prozess"};
const QByteArray Kopfsumme = QByteArrayLiteral("Kopfpruefsumme");

/// A path may hold any byte but NUL: line ends and "%" are written as %XX.
QByteArray Zeilenfest(const QByteArray& Bytes) {
    QByteArray Fest;
    for (const char Zeichen : Bytes) {
        if (static_cast<uchar>(Zeichen) < 0x20 || Zeichen == '%' || Zeichen == 0x7F)
            Fest += '%' + QByteArray::number(static_cast<uchar>(Zeichen), 16).rightJustified(2, '0');
        else
            Fest += Zeichen;
    }
    return Fest;
}

QByteArray Hex(quint32 Wert) {
    return QByteArray::number(Wert, 16).rightJustified(8, '0');
}

QList<QByteArray> Werte(const Rettungskopf& Kopf) {
    return {Zeilenfest(Kopf.Ziel),
            QByteArray::number(Kopf.Geraet),
            QByteArray::number(Kopf.Inode),
            QByteArray::number(Kopf.Inhalt.Laenge),
            Hex(Kopf.Inhalt.Summe),
            Kopf.NeueDatei ? "ja" : "nein",
            QByteArray::number(Kopf.Vorher.Laenge),
            Hex(Kopf.Vorher.Summe),
            Kopf.Zeit.toUTC().toString(Zeitformat).toLatin1(),
            Zeilenfest(Kopf.Rechner),
            QByteArray::number(Kopf.Prozess)};
}

/// Values of the lines between the first and the one with the checksum; nothing if a name is wrong.
std::optional<QList<QByteArray>> WerteLesen(const QList<QByteArray>& Zeilen) {
    if (Zeilen.size() != Anzahl + 1 || Zeilen.first() != Kennung)
        return {};
    QList<QByteArray> Gelesen;
    for (int i = 0; i < Anzahl; ++i) {
        const QByteArray Vorsatz = Namen[i] + ": ";
        if (!Zeilen[i + 1].startsWith(Vorsatz))
            return {};
        Gelesen.append(Zeilen[i + 1].mid(Vorsatz.size()));
    }
    return Gelesen;
}

Rettungskopf KopfAus(const QList<QByteArray>& Wert) {
    Rettungskopf Kopf;
    Kopf.Ziel = QByteArray::fromPercentEncoding(Wert[Datei]);
    Kopf.Geraet = Wert[Geraet].toULongLong();
    Kopf.Inode = Wert[Inode].toULongLong();
    Kopf.Inhalt = {Wert[Laenge].toLongLong(), Wert[Summe].toUInt(nullptr, 16)};
    Kopf.NeueDatei = Wert[Neu] == "ja";
    Kopf.Vorher = {Wert[VorherLaenge].toLongLong(), Wert[VorherSumme].toUInt(nullptr, 16)};
    Kopf.Zeit = QDateTime::fromString(QString::fromLatin1(Wert[Zeit]), Zeitformat);
    Kopf.Zeit.setTimeSpec(Qt::UTC);
    Kopf.Rechner = QByteArray::fromPercentEncoding(Wert[Rechner]);
    Kopf.Prozess = Wert[Prozess].toLongLong();
    return Kopf;
}

} // namespace

QByteArray RettungskopfBytes(const Rettungskopf& Kopf) {
    QByteArray Bytes = Kennung + '\n';
    const QList<QByteArray> Alle = Werte(Kopf);
    for (int i = 0; i < Anzahl; ++i)
        Bytes += Namen[i] + ": " + Alle[i] + '\n';
    return Bytes + Kopfsumme + ": " + Hex(Pruefsumme(Bytes.constData(), Bytes.size())) + "\n\n";
}

std::optional<GelesenerKopf> RettungskopfLesen(const QByteArray& Bytes) {
    const qsizetype Leerzeile = Bytes.left(LaengsterKopf).indexOf("\n\n");
    if (Leerzeile < 0 || !Bytes.startsWith(Kennung))
        return {};
    const QByteArray Ganz = Bytes.left(Leerzeile + 2);
    const qsizetype Letzte = Ganz.lastIndexOf('\n', Leerzeile - 1) + 1;
    const auto Wert = WerteLesen(Ganz.left(qMax<qsizetype>(Letzte - 1, 0)).split('\n'));
    if (!Wert)
        return {};
    // Whatever reads as the same head but is spelled otherwise was not written by this program.
    const Rettungskopf Kopf = KopfAus(*Wert);
    if (RettungskopfBytes(Kopf) != Ganz || !Kopf.Ziel.startsWith('/') || Kopf.Ziel.contains('\0'))
        return {};
    return GelesenerKopf{Kopf, Ganz.size()};
}

std::optional<Rettungsinhalt> RettungsinhaltLesen(const QByteArray& Bytes) {
    const auto Gelesen = RettungskopfLesen(Bytes);
    if (!Gelesen)
        return {};
    const QByteArray Inhalt = Bytes.mid(Gelesen->Ende);
    if (MarkeVon(Inhalt) != Gelesen->Kopf.Inhalt)
        return {};
    return Rettungsinhalt{Gelesen->Kopf, Inhalt};
}
