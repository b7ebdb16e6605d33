#include "frame/Programmstart.h"

#include "core/Dokument.h"
#include "core/Einstellungen.h"
#include "core/Laufzeitfehler.h"
#include "core/Meldungen.h"
#include "frame/Programmname.h"
#include "frame/frmMain.h"
#include "frame/frmSplash.h"

namespace {

constexpr const char* Haftungsausschluss[] = {
    "Die Tafelquell ist intensiv getestet und auf Herz und Nieren geprüft wurden.",
    "Das schließt jedoch nicht aus, dass die Dateien Ihres Rechners durch Defekte, fehlerhafte Software, "
    "Stromausfälle, Viren oder andere Ursachen zerstört werden.",
    "Daher übernehmen wir keine Gewähr dafür, dass die Software in allen Kombinationen und Anwendungen "
    "unterbrechungs- und fehlerfrei arbeitet.",
    "Insbesondere übernehmen wir keine Haftung im Falle eines Datenverlustes. Für eine entsprechende "
    "Sicherung "
    "der Daten ist der Benutzer selbst verantwortlich.",
    "Ferner kann keine Gewähr für das Erreichen eines bestimmten Verwendungszweckes übernommen werden.",
    "Sollten Sie diese Bedingungen nicht anerkennen, dürfen Sie die Tafelquell nicht benutzen und müssen sie "
    "umgehend wieder entfernen (deinstallieren)!",
    "Ansonsten wünschen wir Ihnen viel Spaß und Erfolg bei Ihrer Arbeit mit der Tafelquell!",
};

void HinweisBeimErstenMal() {
    const QString Schluessel = QStringLiteral("ErstesMal");
    if (EinstellungLesen(Schluessel, QStringLiteral("ja")) != QStringLiteral("ja"))
        return;
    QString Text;
    for (const char* Absatz : Haftungsausschluss)
        Text += QString::fromUtf8(Absatz) + u'\r';
    MeldungZeigen(Text, QStringLiteral("Hinweise zum Haftungsausschluss!"));
    EinstellungSchreiben(Schluessel, QStringLiteral("nein"));
}

} // namespace

std::unique_ptr<frmMain> Programmstart() {
    frmSplash Begruessung;
    Begruessung.Zeigen();
    auto Fenster = std::make_unique<frmMain>();
    try {
        Fenster->Laden();
    } catch (const Laufzeitfehler& Fehler) {
        Begruessung.close();
        MeldungZeigen(QStringLiteral("Die Tafelquell kann nicht starten.\n\n") + Fehler.Text(), Programmname,
                      Symbol::Fehler);
        return {};
    }
    Begruessung.close();
    TitelAktualisieren();
    Fenster->show();
    HinweisBeimErstenMal();
    return Fenster;
}
