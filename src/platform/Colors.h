// Colours as the program keeps them: Windows-style BGR integers (0x00BBGGRR)
// and their texts "&H00FF8080&", "&H808040" or decimal "8421504". Values with
// the high bit set (0x80000000 + n) name a system colour of the desktop.
#pragma once

#include <QColor>
#include <QString>

namespace lumen {

inline constexpr qint32 kColorGreen = 0x00FF00;  // 65280: active, running
inline constexpr qint32 kColorYellow = 0x00FFFF; // 65535: something awaits the user
inline constexpr qint32 kColorRed = 0x0000FF;    // 255: stop possible, limit reached
inline constexpr qint32 kColorGrey = 0x808080;   // resting
inline constexpr qint32 kColorButtonFace = qint32(0x8000000F);
inline constexpr qint32 kColorWindowText = qint32(0x80000008);

// A system colour (0x80000000 + n, n a Windows GetSysColor index) comes from
// the application palette (button face: Button, window text: WindowText,
// window: Base, ...); without a QGuiApplication, or for an unknown n, it is
// the Windows default (button face for an unknown n).
QColor colorFromBgr(qint32 bgr);
qint32 bgrFromColor(const QColor& color);
// The numeric value of a colour text ("&H..&", "&H..", decimal), as Val reads
// it; 0 when the value doesn't fit in 32 bits.
qint32 bgrFromText(const QString& text);
// "&H00BBGGRR&" form of a colour.
QString bgrToHexText(qint32 bgr);

} // namespace lumen
