#pragma once

#include "controls/Ansicht.h"
#include "views/Notenliste.h"

#include <memory>

namespace Ui {
class AnsichtN2;
}

/// All grades of one student, a subject in each row: view N2. What it shares with the list of a subject is
/// Notenliste.
class AnsichtN2 final : public Ansicht, private Listenart {
    Q_OBJECT

  public:
    explicit AnsichtN2(QWidget* Eltern = nullptr);
    ~AnsichtN2() override;

    void Fuellen() override;

  private:
    // What is peculiar to the list of a student.
    QString Kopf() const override { return QStringLiteral("Fach"); }
    QString Feldname() const override { return QStringLiteral("txtN2Eingabe"); }
    int Zaehlerplatz() const override { return 10; }
    QString Eingabehinweis() const override;
    bool NachNamen() const override { return false; }
    bool Gewaehlt() const override;
    int Stufe() const override;
    std::vector<Notenlistenzeile> Zeilen() const override;
    qint32 Datum(const Notenlistenzeile& Zeile) const override { return Zeile.Fach_ID; }
    qint32 SchuelerID(qint32 Datum) const override;
    qint32 FachID(qint32 Datum) const override { return Datum; }
    bool NamenAendern(qint32 Datum, const QString& Name) override;
    void AktivSetzen(bool Aktiv) override;
    void ZeileBetreten(qint32 Datum) override;
    void EingabezeileBetreten() override;
    void EingabeAbgebrochen() override;
    bool MitKlassenwahl() const override { return false; }
    void Klassenwahl() override {}
    void NeueZeile(const QString& Text) override;

    void KombinationenVerbinden();
    void KnoepfeVerbinden();
    void KlasseN2Fuellen();
    void KlasseGewaehlt();
    void NamenlisteFuellen();
    void NameGewaehlt();
    void NameGetippt(const QString& Name);
    void NotenlisteSchuelerFuellen();
    void NeueKlasse();
    void KlasseLoeschen();
    void NeuesFach();
    void FachLoeschen();
    void NeuerSchuelerName();
    void SchuelerLoeschen();

    std::unique_ptr<Ui::AnsichtN2> Form;
    Notenliste* Liste = nullptr;
};
