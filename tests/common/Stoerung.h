#pragma once

#include <QStringList>

/// A table of system calls with a fault in it. The calls of the modules under test are counted from 1; at the
/// planned one the fault strikes.
struct Stoerung {
    enum class Art {
        Keine,         ///< only counts
        Fehler,        ///< the call fails with Fehlernummer, and does nothing
        Kurz,          ///< a read or write takes only a part
        Absturz,       ///< the process ends before the call
        HalberAbsturz, ///< a write takes a part, then the process ends; another call as Absturz
    };
    Art Was = Art::Keine;
    int Stelle = 0;       ///< number of the call that is struck
    bool Dauernd = false; ///< and all that follow
    int Fehlernummer = 0;
    bool NurDieser = false; ///< of those that follow, only calls of the same name: a full disc still deletes
};

/// Thrown in the place of a call where the process ends. Up to the catch only descriptors are closed, as the
/// system does for a dead process.
struct Abgestuerzt {};

/// While it lives, the table of calls is the one with the fault.
class Stoertafel {
  public:
    explicit Stoertafel(const Stoerung& Plan);
    ~Stoertafel();
    Stoertafel(const Stoertafel&) = delete;
    Stoertafel& operator=(const Stoertafel&) = delete;

    static int Gezaehlt();
    static QStringList Namen(); ///< of the calls counted, in order
    static bool Getroffen();    ///< the fault has struck
    static bool Tot();          ///< the process has ended, also where nothing was thrown
};
