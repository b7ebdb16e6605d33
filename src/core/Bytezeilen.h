#pragma once

#include <string_view>

/// Walks over the lines of a text file in memory. A line ends with CR LF, LF or CR; the last one may have no
/// end. Lines are views into the bytes given.
class Bytezeilen {
  public:
    explicit Bytezeilen(std::string_view Bytes)
        : Alles(Bytes)
        , NaechstesLF(Bytes.find('\n')) {}

    bool AmEnde() const { return Stelle >= Alles.size(); }
    /// The next line without its end; at the end of the file an empty one.
    std::string_view Naechste();
    /// True if the line read last had an end of its own: only then it is surely whole in a file that was cut.
    bool ZeileBeendet() const { return Beendet; }

  private:
    std::string_view Alles;
    std::size_t Stelle = 0;
    std::size_t NaechstesLF; ///< at or behind Stelle; kept, or a file of CR would be searched anew every line
    bool Beendet = false;
};
