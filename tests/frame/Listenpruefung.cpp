#include "Listenpruefung.h"

#include "controls/Gitter.h"
#include "controls/Kombinationsfeld.h"
#include "core/Definitionen.h"
#include "core/FktSpeziell.h"
#include "grading/Gesamtnoten.h"

#include <QLineEdit>
#include <QWidget>

#include <optional>

namespace {

template <class Art>
const Art& Teil(const QWidget& Fenster, const char* Name) {
    const auto* Gefunden = Fenster.findChild<Art*>(QString::fromUtf8(Name));
    if (!Gefunden)
        qFatal("kein %s", Name);
    return *Gefunden;
}

QString Unterschied(const Gitter& Tabelle, int Zeile, int Spalte, const QString& Erwartet) {
    const QString Gezeigt = Tabelle.TextMatrix(Zeile, Spalte);
    if (Gezeigt == Erwartet)
        return {};
    return QStringLiteral("%1 (%2, %3): zeigt \"%4\", Satz \"%5\"")
        .arg(Tabelle.objectName())
        .arg(Zeile)
        .arg(Spalte)
        .arg(Gezeigt, Erwartet);
}

QString AnzahlUnterschied(const Gitter& Tabelle, int Gezeigt, int Erwartet) {
    if (Gezeigt == Erwartet)
        return {};
    return QStringLiteral("%1: %2 statt %3 Zeilen oder Spalten")
        .arg(Tabelle.objectName())
        .arg(Gezeigt)
        .arg(Erwartet);
}

bool HeuerIn(const Schueler& Einer, const QString& Klasse) {
    return Einer.Klasse == Klasse && Einer.Jahr == Datenbank.AktJahr;
}

int SchuelerZahl(const QString& Klasse) {
    int Zahl = 0;
    for (int i = 0; i < Datenbank.AnzSchueler; ++i)
        Zahl += HeuerIn(Datenbank.Schueler[i], Klasse) ? 1 : 0;
    return Zahl;
}

QList<qint32> FaecherDer(const QString& Klasse) {
    QList<qint32> IDs;
    for (int i = 0; i < Datenbank.AnzFaecher; ++i) {
        if (Datenbank.Faecher[i].Jahr != Datenbank.AktJahr)
            continue;
        KlassenTrennen(Datenbank.Faecher[i].Klasse);
        for (int t = 0; !KlassenTeile[t].isEmpty(); ++t)
            if (KlassenTeile[t] == Klasse) {
                IDs.append(Datenbank.Faecher[i].ID);
                break;
            }
    }
    return IDs;
}

QString SchuelerzeileS(const Gitter& Tabelle, int Zeile, int P, const QString& Klasse) {
    const int Platz = SchuelerIndex(Tabelle.RowData(Zeile));
    if (Platz < 0 || !HeuerIn(Datenbank.Schueler[Platz], Klasse))
        return QStringLiteral("tblSSchueler: Zeile %1 ohne Schüler der Klasse").arg(Zeile);
    const Schueler& Satz = Datenbank.Schueler[Platz];
    QString Fund = Unterschied(Tabelle, Zeile, 0, Satz.Name);
    for (int j = 1; j <= P && Fund.isEmpty(); ++j) {
        const int Note = NotenIndex(Satz.ID, Tabelle.ColData(j));
        Fund = Unterschied(Tabelle, Zeile, j, Note < 0 ? QString() : Datenbank.Noten[Note].Teilnahme);
    }
    for (int k = 1; k <= 14 && Fund.isEmpty(); ++k)
        Fund = Unterschied(Tabelle, Zeile, P + k, Satz.Feld[k]);
    return Fund;
}

QString KopfS(const Gitter& Tabelle, const QList<qint32>& Faecher) {
    const int P = static_cast<int>(Faecher.size());
    QString Fund = AnzahlUnterschied(Tabelle, Tabelle.Cols(), 15 + P);
    for (int j = 1; j <= P && Fund.isEmpty(); ++j) {
        const Fach& Eines = Datenbank.Faecher[FachIndex(Faecher[j - 1])];
        // A title that has just been edited shows its text; the star comes back with the next fill.
        if (Tabelle.TextMatrix(1, j) != Eines.Name)
            Fund = Unterschied(Tabelle, 1, j, Eines.Name + u'*');
    }
    for (int k = 1; k <= 14 && Fund.isEmpty(); ++k)
        Fund = Unterschied(Tabelle, 1, P + k, Datenbank.SchuelerFeldTitel[k]);
    return Fund;
}

QString PruefeS(const QWidget& Fenster) {
    const auto& Tabelle = Teil<Gitter>(Fenster, "tblSSchueler");
    const auto& Klassen = Teil<Kombinationsfeld>(Fenster, "cbSKlasse");
    if (Klassen.ListIndex() < 0)
        return {};
    const QString Klasse = Klassen.currentText();
    const QList<qint32> Faecher = FaecherDer(Klasse);
    QString Fund = KopfS(Tabelle, Faecher);
    if (Fund.isEmpty())
        Fund = AnzahlUnterschied(Tabelle, Tabelle.Rows() - 3, SchuelerZahl(Klasse));
    for (int Zeile = 2; Zeile < Tabelle.Rows() - 1 && Fund.isEmpty(); ++Zeile)
        Fund = SchuelerzeileS(Tabelle, Zeile, static_cast<int>(Faecher.size()), Klasse);
    return Fund;
}

QString NotenzeileWieSatz(const Gitter& Tabelle, int Zeile, qint32 Schueler_ID, qint32 Fach_ID,
                          const QString& Name) {
    const int Platz = NotenIndex(Schueler_ID, Fach_ID);
    if (Platz < 0 || Datenbank.Noten[Platz].Teilnahme != QStringLiteral("ja"))
        return QStringLiteral("%1: Zeile %2 ohne Teilnahme").arg(Tabelle.objectName()).arg(Zeile);
    const Notenzeile& Satz = Datenbank.Noten[Platz];
    const Durchschnitte Beide = DurchschnitteBerechnen(
        Satz.N, HalbjahresbeginnVon(Datenbank.Faecher[FachIndex(Fach_ID)]), AktuelleGesamtregeln());
    QString Fund = Unterschied(Tabelle, Zeile, 0, Name);
    for (int k = 1; k <= 30 && Fund.isEmpty(); ++k)
        Fund = Unterschied(Tabelle, Zeile, k, Satz.N[k]);
    const QString Rest[4] = {Beide.Halbjahr, Satz.Gesamt1, Beide.Jahr, Satz.Gesamt2};
    for (int k = 0; k < 4 && Fund.isEmpty(); ++k)
        Fund = Unterschied(Tabelle, Zeile, 31 + k, Rest[k]);
    return Fund;
}

int Teilnahmen(std::optional<qint32> Schueler_ID, std::optional<qint32> Fach_ID) {
    int Zahl = 0;
    for (int i = 0; i < Datenbank.AnzNoten; ++i) {
        const Notenzeile& Satz = Datenbank.Noten[i];
        const bool Passt =
            (!Schueler_ID || Satz.Schueler_ID == *Schueler_ID) && (!Fach_ID || Satz.Fach_ID == *Fach_ID);
        Zahl += Passt && Satz.Teilnahme == QStringLiteral("ja") ? 1 : 0;
    }
    return Zahl;
}

QString PruefeN1(const QWidget& Fenster) {
    const auto& Tabelle = Teil<Gitter>(Fenster, "tblN1Noten");
    const auto& Faecher = Teil<Kombinationsfeld>(Fenster, "cbN1KlasseFach");
    if (Faecher.ListIndex() < 0)
        return {};
    const qint32 Fach_ID = Faecher.AktDatum();
    QString Fund = AnzahlUnterschied(Tabelle, Tabelle.Rows() - 3, Teilnahmen({}, Fach_ID));
    for (int Zeile = 2; Zeile < Tabelle.Rows() - 1 && Fund.isEmpty(); ++Zeile) {
        const qint32 ID = Tabelle.RowData(Zeile);
        const int Platz = SchuelerIndex(ID);
        Fund = NotenzeileWieSatz(Tabelle, Zeile, ID, Fach_ID,
                                 Platz < 0 ? QString() : Datenbank.Schueler[Platz].Name);
    }
    return Fund;
}

QString PruefeN2(const QWidget& Fenster) {
    const auto& Tabelle = Teil<Gitter>(Fenster, "tblN2Noten");
    const auto& Namen = Teil<Kombinationsfeld>(Fenster, "cbN2Name");
    if (Namen.ListIndex() < 0 || Teil<Kombinationsfeld>(Fenster, "cbN2Klasse").ListIndex() < 0)
        return {};
    const qint32 Schueler_ID = Namen.AktDatum();
    QString Fund = AnzahlUnterschied(Tabelle, Tabelle.Rows() - 3, Teilnahmen(Schueler_ID, {}));
    for (int Zeile = 2; Zeile < Tabelle.Rows() - 1 && Fund.isEmpty(); ++Zeile) {
        const qint32 ID = Tabelle.RowData(Zeile);
        Fund = NotenzeileWieSatz(Tabelle, Zeile, Schueler_ID, ID, Datenbank.Faecher[FachIndex(ID)].Name);
    }
    return Fund;
}

QString PunktezeileWieSatz(const Gitter& Tabelle, int Zeile, qint32 Fach_ID, int Probe_ID) {
    const qint32 ID = Tabelle.TextMatrix(Zeile, 3).toInt();
    QString Name;
    QString Punkte;
    QString Note;
    if (ID <= 1000) {
        const ZSchueler& Satz = Datenbank.ZSchueler[ID];
        if (Satz.Fach_ID != Fach_ID || Satz.Probe_ID != Probe_ID)
            return QStringLiteral("tblPPunkte: Zeile %1 zeigt den Gast einer anderen Probe").arg(Zeile);
        Name = Satz.Name;
        Punkte = Satz.Punkte;
        Note = Satz.Note;
    } else {
        const int Platz = NotenIndex(ID, Fach_ID);
        if (Platz < 0)
            return QStringLiteral("tblPPunkte: Zeile %1 ohne Satz").arg(Zeile);
        const int Schueler = SchuelerIndex(ID);
        Name = Schueler < 0 ? QString() : Datenbank.Schueler[Schueler].Name;
        Punkte = Datenbank.Noten[Platz].P[Probe_ID];
        Note = Datenbank.Noten[Platz].N[Probe_ID];
    }
    // Names may be shown turned round; they are compared by their words.
    QStringList Gezeigt = Tabelle.TextMatrix(Zeile, 0).split(u' ', Qt::SkipEmptyParts);
    QStringList Erwartet = Name.split(u' ', Qt::SkipEmptyParts);
    Gezeigt.sort();
    Erwartet.sort();
    if (Gezeigt != Erwartet)
        return Unterschied(Tabelle, Zeile, 0, Name);
    const QString Fund = Unterschied(Tabelle, Zeile, 1, Punkte);
    return Fund.isEmpty() ? Unterschied(Tabelle, Zeile, 2, Note) : Fund;
}

int GaesteZahl(qint32 Fach_ID, int Probe_ID) {
    int Zahl = 0;
    for (int i = 0; i < Datenbank.AnzZSchueler; ++i)
        Zahl +=
            Datenbank.ZSchueler[i].Fach_ID == Fach_ID && Datenbank.ZSchueler[i].Probe_ID == Probe_ID ? 1 : 0;
    return Zahl;
}

QString FeldUnterschied(const QWidget& Fenster, const QString& Name, const QString& Erwartet) {
    const auto& Feld = Teil<QLineEdit>(Fenster, qPrintable(Name));
    // What is being typed is not yet in the records.
    if (Feld.hasFocus() || Feld.text() == Erwartet)
        return {};
    return QStringLiteral("%1: zeigt \"%2\", Satz \"%3\"").arg(Name, Feld.text(), Erwartet);
}

QString PruefeP(const QWidget& Fenster) {
    const auto& Tabelle = Teil<Gitter>(Fenster, "tblPPunkte");
    const auto& Faecher = Teil<Kombinationsfeld>(Fenster, "cbPKlasseFach");
    if (Faecher.ListIndex() < 0)
        return {};
    const qint32 Fach_ID = Faecher.AktDatum();
    const int Probe_ID = Teil<Kombinationsfeld>(Fenster, "cbPProbe").ListIndex() + 1;
    const Probe& Satz = Datenbank.Faecher[FachIndex(Fach_ID)].Proben[Probe_ID];
    QString Fund = AnzahlUnterschied(Tabelle, Tabelle.Rows() - 2,
                                     Teilnahmen({}, Fach_ID) + GaesteZahl(Fach_ID, Probe_ID));
    for (int Zeile = 1; Zeile < Tabelle.Rows() - 1 && Fund.isEmpty(); ++Zeile)
        Fund = PunktezeileWieSatz(Tabelle, Zeile, Fach_ID, Probe_ID);
    if (Fund.isEmpty())
        Fund = FeldUnterschied(Fenster, QStringLiteral("txtGesamtpunktzahl"), Satz.Gesamtpunktzahl);
    for (int i = 0; i < 5 && Fund.isEmpty(); ++i)
        Fund = FeldUnterschied(Fenster, QStringLiteral("txtNGrenze_%1").arg(i), Satz.NGrenze[i + 1]);
    return Fund.isEmpty() ? FeldUnterschied(Fenster, QStringLiteral("txtPThema"), Satz.Name) : Fund;
}

QString PruefeB(const QWidget& Fenster) {
    const auto& Tabelle = Teil<Gitter>(Fenster, "tblBeurteilungen");
    const auto& Klassen = Teil<Kombinationsfeld>(Fenster, "cbBKlasse");
    if (Klassen.ListIndex() < 0)
        return {};
    const int Zeitraum = Teil<Kombinationsfeld>(Fenster, "cbBHalbjahr").ListIndex();
    QString Fund = AnzahlUnterschied(Tabelle, Tabelle.Rows() - 2, SchuelerZahl(Klassen.currentText()));
    for (int Zeile = 1; Zeile < Tabelle.Rows() - 1 && Fund.isEmpty(); ++Zeile) {
        const int Platz = SchuelerIndex(Tabelle.RowData(Zeile));
        if (Platz < 0)
            return QStringLiteral("tblBeurteilungen: Zeile %1 ohne Schüler").arg(Zeile);
        Fund = Unterschied(Tabelle, Zeile, 0, Datenbank.Schueler[Platz].Name);
        if (Fund.isEmpty())
            Fund = Unterschied(Tabelle, Zeile, 1, Datenbank.Schueler[Platz].Beurteilung[Zeitraum]);
    }
    return Fund;
}

} // namespace

QString ListeGegenRecords(const QWidget& Fenster, int Nummer) {
    switch (Nummer) {
    case 0:
        return PruefeS(Fenster);
    case 1:
        return PruefeP(Fenster);
    case 2:
        return PruefeN1(Fenster);
    case 3:
        return PruefeN2(Fenster);
    default:
        return PruefeB(Fenster);
    }
}
