#pragma once

#include <QIcon>

/// An icon of the program by its name, out of the program itself: themes of a bare system have none.
QIcon Sinnbild(const QString& Name);
