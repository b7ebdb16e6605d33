#pragma once

#include <QByteArray>

#include <cstring>

/// The lines of a text file in memory, one after the other. A line ends with CR LF, LF or CR; bytes behind
/// the last line end are a line too, nothing behind it is none.
class Zeilenteiler {
  public:
    explicit Zeilenteiler(QByteArrayView Bytes)
        : Stelle(Bytes.data())
        , Ende(Bytes.data() + Bytes.size()) {}

    /// The next line without its end, a view into the bytes. False if there is none; Zeile is then unchanged.
    bool Naechste(QByteArrayView& Zeile) {
        if (Stelle == Ende)
            return false;
        const char* const Anfang = Stelle;
        const char* const Umbruch = Zeilenende();
        Zeile = QByteArrayView(Anfang, Umbruch - Anfang);
        Stelle = Umbruch;
        if (Stelle != Ende && *Stelle == '\r')
            ++Stelle;
        if (Stelle != Ende && *Stelle == '\n' && (Stelle == Umbruch || *Umbruch == '\r'))
            ++Stelle;
        return true;
    }

  private:
    /// The next line end. A file of ours has LF in every line, so the search for it is the fast one, and a
    /// CR is only looked for in front of it.
    const char* Zeilenende() const {
        const auto* const Lf = static_cast<const char*>(std::memchr(Stelle, '\n', Laenge(Ende)));
        const char* const Grenze = Lf ? Lf : Ende;
        const auto* const Cr = static_cast<const char*>(std::memchr(Stelle, '\r', Laenge(Grenze)));
        return Cr ? Cr : Grenze;
    }

    std::size_t Laenge(const char* Bis) const { return static_cast<std::size_t>(Bis - Stelle); }

    const char* Stelle;
    const char* Ende;
};
