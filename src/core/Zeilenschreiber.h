#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

/// Builds the bytes of a tab separated file: Windows-1252, lines ended by CR LF. A character that the code
/// page lacks throws a Laufzeitfehler; what was written is then of no use.
class Zeilenschreiber {
  public:
    Zeilenschreiber() = default;
    /// With room for about so many bytes from the start.
    explicit Zeilenschreiber(qsizetype Erwartet);
    Zeilenschreiber(const Zeilenschreiber&) = delete;
    Zeilenschreiber& operator=(const Zeilenschreiber&) = delete;

    /// Appends a field to the line, behind a tab unless it is the first.
    void Feld(const QString& Text);
    void Feld(qint32 Zahl);
    /// A field that is the name of a column, with a number behind it where there are several.
    void Name(QStringView Text);
    void Name(QStringView Text, int Nummer);
    void ZeileEnden();

    /// A whole line; the bytes are those of the file.
    void Zeile(std::string_view Inhalt);
    void Textzeile(const QString& Inhalt);

    /// What was written. Lines written later don't change it.
    QByteArray Bytes();

  private:
    void Platz(qsizetype Mehr) {
        if (Ende - Stelle < Mehr)
            Wachsen(Mehr);
    }
    void Wachsen(qsizetype Mehr);
    void Textfeld(QStringView Inhalt);
    void Roh(std::string_view Inhalt);
    void Ziffern(qint32 Zahl);

    QByteArray Block; ///< written up to Stelle; behind it room up to Ende
    char* Stelle = nullptr;
    char* Ende = nullptr;
    bool ZeileLeer = true;
};
