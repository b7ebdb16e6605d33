#include "common/Skriptmeldungen.h"

#include <QtTest>

void Skriptmeldungen::ErwarteMeldung(const QString& Text) {
    Erwartet.append({Schritt::Art::Meldung, Text, Antwort::Ok, 0, {}});
}

void Skriptmeldungen::ErwarteFrage(const QString& Text, Antwort Gegeben) {
    Erwartet.append({Schritt::Art::Frage, Text, Gegeben, 0, {}});
}

void Skriptmeldungen::ErwarteAuswahl(const QString& Text, int Index) {
    Erwartet.append({Schritt::Art::Auswahl, Text, Antwort::Ok, Index, {}});
}

void Skriptmeldungen::ErwarteOeffnen(const QString& Titel, const std::optional<Dateiwahl>& Wahl) {
    Erwartet.append({Schritt::Art::Oeffnen, Titel, Antwort::Ok, 0, Wahl});
}

void Skriptmeldungen::ErwarteSpeichern(const QString& Titel, const std::optional<Dateiwahl>& Wahl) {
    Erwartet.append({Schritt::Art::Speichern, Titel, Antwort::Ok, 0, Wahl});
}

QStringList Skriptmeldungen::Offen() const {
    QStringList Texte;
    for (const Schritt& Einer : Erwartet)
        Texte.append(Einer.Text);
    return Texte;
}

void Skriptmeldungen::Vergessen() {
    Erwartet.clear();
    Gezeigt.clear();
    Wuensche.clear();
}

std::optional<Skriptmeldungen::Schritt> Skriptmeldungen::Naechster(Schritt::Art Was, const QString& Text) {
    if (Erwartet.isEmpty() || Erwartet.first().Was != Was || !Text.startsWith(Erwartet.first().Text)) {
        const QString Statt = Erwartet.isEmpty() ? QStringLiteral("nichts") : Erwartet.first().Text;
        QTest::qFail(
            qPrintable(QStringLiteral("unerwartet gefragt: \"%1\", erwartet: \"%2\"").arg(Text, Statt)),
            __FILE__, __LINE__);
        return {};
    }
    return Erwartet.takeFirst();
}

Antwort Skriptmeldungen::Zeigen(const Meldungstext& Meldung) {
    Gezeigt.append(Meldung);
    const bool NurOk = Meldung.Auswahl == Knoepfe::Ok;
    const auto Einer = Naechster(NurOk ? Schritt::Art::Meldung : Schritt::Art::Frage, Meldung.Text);
    if (Einer)
        return Einer->Gegeben;
    return NurOk ? Antwort::Ok : Antwort::Nein;
}

int Skriptmeldungen::Waehlen(const Auswahlfrage& Frage) {
    Gezeigt.append({Frage.Text, Frage.Titel, Knoepfe::Ok, Symbol::Ohne});
    const auto Einer = Naechster(Schritt::Art::Auswahl, Frage.Text);
    return Einer ? Einer->Index : static_cast<int>(Frage.Knoepfe.size()) - 1;
}

std::optional<Dateiwahl> Skriptmeldungen::Oeffnen(const Dateiwunsch& Wunsch) {
    Wuensche.append(Wunsch);
    const auto Einer = Naechster(Schritt::Art::Oeffnen, Wunsch.Titel);
    return Einer ? Einer->Wahl : std::nullopt;
}

std::optional<Dateiwahl> Skriptmeldungen::Speichern(const Dateiwunsch& Wunsch) {
    Wuensche.append(Wunsch);
    const auto Einer = Naechster(Schritt::Art::Speichern, Wunsch.Titel);
    return Einer ? Einer->Wahl : std::nullopt;
}
