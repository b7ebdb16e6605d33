#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

/// Builds the bytes of a tab separated file: Windows-1252, lines ended by CR LF. A character that the code
/// page lacks throws a Laufzeitfehler.
class Zeilenschreiber {
  public:
    Zeilenschreiber() = default;
    /// With room for about so many bytes from the start.
    explicit Zeilenschreiber(qsizetype Erwartet);

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

    const QByteArray& Bytes() const { return Geschrieben; }

  private:
    void Trennen();
    void Ziffern(qint32 Zahl);

    QByteArray Geschrieben;
    bool ZeileLeer = true;
};
