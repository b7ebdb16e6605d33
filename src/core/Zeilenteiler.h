#pragma once

#include "core/Bytezeilen.h"

#include <QByteArray>

/// The lines of a text file in memory, one after the other. A line ends with CR LF, LF or CR; bytes behind
/// the last line end are a line too, nothing behind it is none.
class Zeilenteiler {
  public:
    explicit Zeilenteiler(QByteArrayView Bytes)
        : Zeilen({Bytes.data(), static_cast<std::size_t>(Bytes.size())}) {}

    /// The next line without its end, a view into the bytes. False if there is none; Zeile is then unchanged.
    bool Naechste(QByteArrayView& Zeile) {
        if (Zeilen.AmEnde())
            return false;
        const std::string_view Naechste = Zeilen.Naechste();
        Zeile = QByteArrayView(Naechste.data(), static_cast<qsizetype>(Naechste.size()));
        return true;
    }

  private:
    Bytezeilen Zeilen;
};
