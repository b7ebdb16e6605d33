#pragma once

#include <QIcon>

/// An icon of the program by its name, out of the program itself: themes of a bare system have none. Its
/// picture is read when it is first shown, in the scale that the screen needs.
QIcon Sinnbild(const QString& Name);
/// The icon of the program.
QIcon Programmsinnbild();
