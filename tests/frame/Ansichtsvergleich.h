#pragma once

#include <QStringList>

class frmMain;

/// What the grid of the view on top shows and the records say otherwise, one line a difference; empty if both
/// agree. What is computed only (averages, charts) is left to the tests of the views.
QStringList Abweichungen(const frmMain& Fenster);
