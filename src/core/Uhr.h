#pragma once

#include <QDateTime>

// The one place that asks for the time. Tests set it.

QDateTime Jetzt();
QDate Heute();

/// Makes the clock stand at Zeit; an invalid time sets it back to the system's.
void UhrStellen(const QDateTime& Zeit);
