#pragma once

#include <QString>

/// The rights of an ordinary user while it lives: root may read and write what is closed to all. Without the
/// rights of root the user is one already.
class Unprivilegiert {
  public:
    /// Opens Ordner and all below it to this user first.
    explicit Unprivilegiert(const QString& Ordner);
    ~Unprivilegiert();
    Unprivilegiert(const Unprivilegiert&) = delete;
    Unprivilegiert& operator=(const Unprivilegiert&) = delete;
};
