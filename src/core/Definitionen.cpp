#include "core/Definitionen.h"

#include <QCoreApplication>

namespace {

/// Storage of the big arrays: zero pages until touched, and not torn down at exit, where walking half a
/// million empty texts would only delay the end of the program.
template <class T>
union Dauerhaft {
    T Wert;
    constexpr Dauerhaft()
        : Wert() {}
    constexpr ~Dauerhaft() {} // NOLINT(modernize-use-equals-default): a default one would be deleted
};

constinit Dauerhaft<Notendatenbank> DatenbankSpeicher;
constinit Dauerhaft<Reihe<Schueler, 5001>> FremdSchuelerSpeicher;
constinit Dauerhaft<Reihe<Lernbereich, 100>> LernbereicheSpeicher;

} // namespace

constinit Notendatenbank& Datenbank = DatenbankSpeicher.Wert;
constinit Reihe<Schueler, 5001>& FremdSchueler = FremdSchuelerSpeicher.Wert;
qint16 AnzFremdSchueler = 0;

qint32 NaechsteSchuelerID = ErsteSchuelerID;
qint32 NaechsteFachID = ErsteFachID;

bool DatenGeaendert = false;
bool FormulierungenGeaendert = false;

qint32 AktSchuelerID = 0;
qint32 AktFachID = 0;
qint32 AktProbe = 0;
QString AktKlasse;

bool GridEreignisseAktiv = true;
bool FormularBereit = false;
const QString Programmtitel = QStringLiteral("Tafelquell 3.1");

Reihe<qint16, 12> EingabeZaehler;

bool DialogErgebnis = false;
QString NeueKlasseName;
QString NeuesFachName;
bool WizardZurueck = false;
qint16 LetzteKlassenWahl = 0;
int ZSchuelerArt = 0;
bool NamenUmgekehrt = false;

qint16 MaxNote = 6;
QString Notenformat = QStringLiteral("0.0");
Reihe<Reihe<float, 5>, 5> EigeneVerteilung;
Reihe<Reihe<float, 5>, 5> GaussVerteilung;
Reihe<Reihe<float, 5>, 201> BLLVVerteilung;
Reihe<QString, 14> Probenbezeichnung;
Reihe<QString, 14> ExtemporalenBezeichnung;

Reihe<qint16, 7> NotenAnzahl;
Reihe<qint16, 401> PunkteVerteilung;

constinit Reihe<Lernbereich, 100>& Lernbereiche = LernbereicheSpeicher.Wert;
qint16 AnzLernbereiche = 0;

void IndexFehler(int Index, std::size_t Anzahl) {
    throw Laufzeitfehler(
        QCoreApplication::translate("Reihe", "Index außerhalb des gültigen Bereichs: %1 (erlaubt 0 bis %2)")
            .arg(Index)
            .arg(Anzahl - 1));
}
