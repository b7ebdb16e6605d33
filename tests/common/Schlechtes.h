#pragma once

#include <QByteArray>

// Bytes that come with the wrong program, the wrong system or a damaged medium.

/// Latin text as an editor saves it in UTF-8, without and with its mark, and in UTF-16.
QByteArray InUtf8(const QByteArray& Bytes);
QByteArray InUtf8MitMarke(const QByteArray& Bytes);
QByteArray InUtf16(const QByteArray& Bytes);

/// The same lines with other ends.
QByteArray MitEnden(const QByteArray& Bytes, const QByteArray& Ende);

/// One line of this many bytes is enough to fill the memory of a careless reader. The long form of 300 MB
/// runs only where TAFELQUELL_LANG is set: it takes some gigabytes of memory.
inline constexpr int LangeZeile = 40 << 20;
inline constexpr int SehrLangeZeile = 300 << 20;
bool LangeFormGewuenscht();

#define NUR_IN_DER_LANGEN_FORM()                                                                             \
    if (!LangeFormGewuenscht())                                                                              \
    QSKIP("takes gigabytes of memory: set TAFELQUELL_LANG to run it")
