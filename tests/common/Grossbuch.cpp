#include "common/Grossbuch.h"

#include "core/Definitionen.h"
#include "core/Parametervorgaben.h"

#include <QStringList>

#include <algorithm>

namespace {

const QString Jahr = QStringLiteral("2003/04");
constexpr int KlassengroesseErste = 35;
constexpr int FaecherErste = 10;
constexpr int KlassengroesseVoll = 87; ///< classes of many students and one subject

/// The same numbers on every machine.
class Wuerfel {
  public:
    int operator()(int Seiten) {
        Zustand = Zustand * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((Zustand >> 33) % static_cast<quint64>(Seiten));
    }

  private:
    quint64 Zustand = 20031012;
};

struct Umfang {
    int Klassen;
    int Schueler;
    int Faecher;
    int Noten;
    int Gaeste;
};

/// Students of a class and its subjects: half of the classes have many students and one subject, the others
/// share what is left, so that both arrays fill up while the grade rows just reach their bound.
struct Klassenplan {
    int Schueler;
    int Faecher;
};

Klassenplan PlanFuer(const Umfang& U, int Nummer) {
    if (Nummer == 0)
        return {std::min(KlassengroesseErste, U.Schueler), std::min(FaecherErste, U.Faecher)};
    const int Volle = (U.Klassen - 1) / 2;
    if (Nummer <= Volle)
        return {KlassengroesseVoll, 1};
    const int Uebrige = U.Klassen - 1 - Volle;
    const int Schueler = U.Schueler - KlassengroesseErste - Volle * KlassengroesseVoll;
    const int Faecher = U.Faecher - FaecherErste - Volle;
    const int Platz = Nummer - 1 - Volle;
    return {Schueler * (Platz + 1) / Uebrige - Schueler * Platz / Uebrige,
            Faecher * (Platz + 1) / Uebrige - Faecher * Platz / Uebrige};
}

QString Klassenname(int Nummer) {
    return Nummer == 0 ? QStringLiteral("7a")
                       : QStringLiteral("%1%2").arg(Nummer / 10 + 1).arg(QChar(u'b' + Nummer % 10));
}

const QStringList& Vornamen() {
    static const QStringList Alle{
        QStringLiteral("Anna"),   QStringLiteral("Jörg"),     QStringLiteral("Lena"),
        QStringLiteral("Niklas"), QStringLiteral("Zoë"),      QStringLiteral("Yusuf"),
        QStringLiteral("Käthe"),  QStringLiteral("Matthias"), QStringLiteral("Ömer")};
    return Alle;
}

const QStringList& Nachnamen() {
    static const QStringList Alle{QStringLiteral("Bauer"),   QStringLiteral("Müller"),
                                  QStringLiteral("Groß"),    QStringLiteral("Özdemir"),
                                  QStringLiteral("Schäfer"), QStringLiteral("Huber"),
                                  QStringLiteral("Weiß"),    QStringLiteral("Lindner")};
    return Alle;
}

QString Beurteilungstext(const QString& Vorname, Wuerfel& W) {
    static const QStringList Saetze{
        QStringLiteral(" arbeitet zuverlässig und beteiligt sich rege am Unterricht."),
        QStringLiteral(" liest fließend vor – auch schwierige Texte – und versteht den Inhalt."),
        QStringLiteral(" löst Sachaufgaben selbstständig und erklärt die Lösungswege verständlich."),
        QStringLiteral(" sollte die Hausaufgaben „ordentlicher“ anfertigen und früher beginnen."),
        QStringLiteral(" nimmt Rücksicht auf andere und hilft den Mitschülerinnen gern.")};
    QStringList Zeilen;
    for (int i = 0; i < 5; ++i)
        Zeilen.append(Vorname + Saetze[W(static_cast<int>(Saetze.size()))]);
    return Zeilen.join(QStringLiteral("\r\n"));
}

void ProbenFuellen(Fach& Eines, Wuerfel& W) {
    for (int i = 1; i < Eines.Proben.size(); ++i) {
        Probe& Eine = Eines.Proben[i];
        const int Gesamt = 30 + W(40);
        Eine.Datum = QStringLiteral("%1.%2.2003").arg(1 + W(28)).arg(1 + W(12));
        Eine.Name = QStringLiteral("Bruchrechnen, Teil %1").arg(i);
        Eine.Dateiname = QStringLiteral("probe%1.doc").arg(i);
        Eine.Gesamtpunktzahl = QString::number(Gesamt);
        for (int Note = 1; Note <= 5; ++Note)
            Eine.NGrenze[Note] = QString::number(Gesamt * (6 - Note) / 6);
    }
}

void FachAnlegen(const QString& Klasse, int Nummer, Wuerfel& W) {
    Fach& Neues = Datenbank.Faecher[Datenbank.AnzFaecher];
    Neues.ID = NaechsteFachID++;
    Neues.Name = QStringLiteral("Fach %1").arg(Nummer + 1);
    Neues.Klasse = Klasse;
    Neues.Jahr = Jahr;
    Neues.GrenzeP = Neues.GrenzeE = Neues.GrenzeM = QStringLiteral("6");
    ProbenFuellen(Neues, W);
    ++Datenbank.AnzFaecher;
}

void SchuelerAnlegen(const QString& Klasse, Wuerfel& W) {
    Schueler& Neuer = Datenbank.Schueler[Datenbank.AnzSchueler];
    const QString Vorname = Vornamen()[W(static_cast<int>(Vornamen().size()))];
    Neuer.ID = NaechsteSchuelerID++;
    Neuer.Name = Nachnamen()[W(static_cast<int>(Nachnamen().size()))] + u' ' + Vorname;
    Neuer.Klasse = Klasse;
    Neuer.Jahr = Jahr;
    for (int i = 1; i < Neuer.Feld.size(); ++i)
        Neuer.Feld[i] = QStringLiteral("Wert %1").arg(W(100));
    Neuer.Feld[5] = W(2) == 0 ? QStringLiteral("m") : QStringLiteral("w");
    for (QString& Text : Neuer.Beurteilung)
        Text = Beurteilungstext(Vorname, W);
    ++Datenbank.AnzSchueler;
}

void NotenzeileAnlegen(qint32 FachID, qint32 SchuelerID, Wuerfel& W) {
    Notenzeile& Neue = Datenbank.Noten[Datenbank.AnzNoten];
    Neue.Fach_ID = FachID;
    Neue.Schueler_ID = SchuelerID;
    Neue.Teilnahme = QStringLiteral("ja");
    Neue.Gesamt1 = QString::number(1 + W(6));
    Neue.Gesamt2 = QString::number(1 + W(6));
    for (int i = 1; i < Neue.N.size(); ++i)
        Neue.N[i] = QString::number(1 + W(6)) + (W(3) == 0 ? QStringLiteral("-") : QString());
    for (int i = 1; i < Neue.P.size(); ++i)
        Neue.P[i] = QStringLiteral("%1,5").arg(W(60));
    ++Datenbank.AnzNoten;
}

void KlasseAnlegen(const Umfang& U, int Nummer, Wuerfel& W) {
    const Klassenplan Plan = PlanFuer(U, Nummer);
    const int ErstesFach = Datenbank.AnzFaecher;
    const int ErsterSchueler = Datenbank.AnzSchueler;
    const QString Name = Klassenname(Nummer);
    Datenbank.Klassen[Datenbank.AnzKlassen] = {Jahr, Name};
    ++Datenbank.AnzKlassen;
    for (int i = 0; i < Plan.Faecher; ++i)
        FachAnlegen(Name, i, W);
    for (int i = 0; i < Plan.Schueler; ++i)
        SchuelerAnlegen(Name, W);
    for (int f = ErstesFach; f < Datenbank.AnzFaecher; ++f)
        for (int s = ErsterSchueler; s < Datenbank.AnzSchueler && Datenbank.AnzNoten < U.Noten; ++s)
            NotenzeileAnlegen(Datenbank.Faecher[f].ID, Datenbank.Schueler[s].ID, W);
}

void GaesteAnlegen(const Umfang& U, Wuerfel& W) {
    for (int i = 0; i < U.Gaeste; ++i) {
        const int Fachnummer = W(Datenbank.AnzFaecher);
        Datenbank.ZSchueler[i] = {1 + W(20), Datenbank.Faecher[Fachnummer].ID,
                                  QStringLiteral("Gast %1").arg(i), QString::number(W(40)),
                                  QString::number(1 + W(6))};
        ++Datenbank.AnzZSchueler;
    }
}

void Fuellen(const Umfang& U) {
    Datenbank.AnzSchueler = Datenbank.AnzKlassen = Datenbank.AnzFaecher = 0;
    Datenbank.AnzNoten = Datenbank.AnzZSchueler = 0;
    NaechsteSchuelerID = ErsteSchuelerID;
    NaechsteFachID = ErsteFachID;
    SetzeParameterDefaults();
    Datenbank.AktJahr = Jahr;
    Wuerfel W;
    for (int i = 0; i < U.Klassen; ++i)
        KlasseAnlegen(U, i, W);
    GaesteAnlegen(U, W);
}

} // namespace

void GrossbuchFuellen(int Viertel) {
    const auto Teil = [Viertel](int Alle) { return Alle * Viertel / 4; };
    Fuellen({Teil(101), Teil(5001), Teil(501), Teil(10001), Teil(1001)});
}

void KlassenbuchFuellen() {
    Fuellen({1, KlassengroesseErste, FaecherErste, KlassengroesseErste * FaecherErste, 5});
}
