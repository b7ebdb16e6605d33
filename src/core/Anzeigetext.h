#pragma once

#include <QString>

#include <string_view>

/// Text of a file for a box. A damaged file may hold one line of many megabytes: its first 1000 characters
/// tell enough, and " …" that there are more.
QString Anzeigetext(std::string_view Bytes);
