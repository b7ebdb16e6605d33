#pragma once

#include <QString>

#include <stdexcept>

/// A failure while the program runs: a bound passed, a text that is no number where one must be, a file that
/// does not give what it should. Whoever starts an operation catches it (the load, a command, the event loop)
/// and reports it; the operation that failed has then changed nothing, unless its contract says otherwise.
class Laufzeitfehler : public std::runtime_error {
  public:
    explicit Laufzeitfehler(const QString& Text)
        : std::runtime_error(Text.toStdString()) {}

    /// The reason in German, fit for a message box.
    QString Text() const { return QString::fromUtf8(what()); }
};
