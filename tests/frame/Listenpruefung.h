#pragma once

#include <QString>

class QWidget;

/// Compares what the lists of a view (0..4, the tabs of the main window) show with what the records hold,
/// worked out here a second time. Empty if they agree, else the first difference.
QString ListeGegenRecords(const QWidget& Fenster, int Nummer);
