#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace torvane {

/// Text of bytes in Windows-1252, the code page of every file that the editor shares with the game. The five
/// bytes without a character (0x81, 0x8D, 0x8F, 0x90, 0x9D) become the control characters of the same code,
/// so that any bytes come back unchanged from `toCodePage`.
QString fromCodePage(QByteArrayView bytes);

/// Bytes of text in Windows-1252. A character that the code page lacks becomes one "?", also one outside the
/// basic plane. Never fails.
QByteArray toCodePage(QStringView text);

} // namespace torvane
