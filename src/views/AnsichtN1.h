#pragma once

#include "controls/Ansicht.h"
#include "views/Notenliste.h"

#include <memory>

namespace Ui {
class AnsichtN1;
}

/// All grades of one subject, a student in each row: view N1. What it shares with the list of a student is
/// Notenliste.
class AnsichtN1 final : public Ansicht, private Listenart {
    Q_OBJECT

  public:
    explicit AnsichtN1(QWidget* Eltern = nullptr);
    ~AnsichtN1() override;

    void Fuellen() override;

  private:
    // What is peculiar to the list of a subject.
    QString Kopf() const override { return QStringLiteral("Schüler"); }
    QString Feldname() const override { return QStringLiteral("txtN1Eingabe"); }
    int Zaehlerplatz() const override { return 9; }
    QString Eingabehinweis() const override;
    bool NachNamen() const override { return true; }
    bool Gewaehlt() const override;
    int Stufe() const override;
    std::vector<Notenlistenzeile> Zeilen() const override;
    qint32 Datum(const Notenlistenzeile& Zeile) const override { return Zeile.Schueler_ID; }
    qint32 SchuelerID(qint32 Datum) const override { return Datum; }
    qint32 FachID(qint32 Datum) const override;
    bool NamenAendern(qint32 Datum, const QString& Name) override;
    void AktivSetzen(bool Aktiv) override;
    void ZeileBetreten(qint32 Datum) override;
    void EingabezeileBetreten() override;
    void EingabeAbgebrochen() override;
    bool MitKlassenwahl() const override;
    void Klassenwahl() override;
    void NeueZeile(const QString& Text) override;

    void KnoepfeVerbinden();
    void FachKombinationFuellen();
    void FachGewaehlt();
    void NotenlisteFachFuellen();
    void NeuesFach();
    void FachLoeschen();
    void SchuelerLoeschen();
    void HJGrenzenFestlegen();

    std::unique_ptr<Ui::AnsichtN1> Form;
    Notenliste* Liste = nullptr;
};
