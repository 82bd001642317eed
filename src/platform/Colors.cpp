#include "platform/Colors.h"

#include "platform/Basic.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace lumen {

namespace {

// The desktop's colours by Windows system colour index (GetSysColor): the
// palette role that plays the part on this desktop, and the Windows default
// for when there is no desktop to ask.
struct SystemColor {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    QRgb windowsDefault;
};

constexpr auto A = QPalette::Active;
constexpr auto I = QPalette::Inactive;
constexpr auto D = QPalette::Disabled;

constexpr std::array<SystemColor, 25> kSystemColors{{
    {A, QPalette::Button, 0xC8C8C8},          // 0 scroll bar
    {A, QPalette::Shadow, 0x000000},          // 1 desktop
    {A, QPalette::Highlight, 0x99B4D1},       // 2 active caption
    {I, QPalette::Highlight, 0xBFCDDB},       // 3 inactive caption
    {A, QPalette::Window, 0xF0F0F0},          // 4 menu
    {A, QPalette::Base, 0xFFFFFF},            // 5 window
    {A, QPalette::Shadow, 0x646464},          // 6 window frame
    {A, QPalette::WindowText, 0x000000},      // 7 menu text
    {A, QPalette::WindowText, 0x000000},      // 8 window text
    {A, QPalette::HighlightedText, 0x000000}, // 9 caption text
    {A, QPalette::Window, 0xB4B4B4},          // 10 active border
    {I, QPalette::Window, 0xF4F7FC},          // 11 inactive border
    {A, QPalette::Dark, 0xABABAB},            // 12 application workspace
    {A, QPalette::Highlight, 0x0078D7},       // 13 highlight
    {A, QPalette::HighlightedText, 0xFFFFFF}, // 14 highlighted text
    {A, QPalette::Button, 0xF0F0F0},          // 15 button face
    {A, QPalette::Dark, 0xA0A0A0},            // 16 button shadow
    {D, QPalette::Text, 0x6D6D6D},            // 17 grey text
    {A, QPalette::ButtonText, 0x000000},      // 18 button text
    {I, QPalette::HighlightedText, 0x000000}, // 19 inactive caption text
    {A, QPalette::Light, 0xFFFFFF},           // 20 button highlight
    {A, QPalette::Shadow, 0x696969},          // 21 3D dark shadow
    {A, QPalette::Midlight, 0xE3E3E3},        // 22 3D light
    {A, QPalette::ToolTipText, 0x000000},     // 23 tooltip text
    {A, QPalette::ToolTipBase, 0xFFFFE1},     // 24 tooltip background
}};

constexpr int kButtonFaceIndex = 15;

QColor systemColor(quint32 index)
{
    const SystemColor& entry =
        index < kSystemColors.size() ? kSystemColors[index] : kSystemColors[kButtonFaceIndex];
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return QGuiApplication::palette().color(entry.group, entry.role);
    return QColor::fromRgb(entry.windowsDefault);
}

} // namespace

QColor colorFromBgr(qint32 bgr)
{
    const auto value = quint32(bgr);
    if (value & 0x80000000u)
        return systemColor(value & 0x7FFFFFFFu);
    return QColor(int(value & 0xFF), int((value >> 8) & 0xFF), int((value >> 16) & 0xFF));
}

qint32 bgrFromColor(const QColor& color)
{
    const QRgb rgb = color.rgb();
    return qint32(quint32(qRed(rgb)) | quint32(qGreen(rgb)) << 8 | quint32(qBlue(rgb)) << 16);
}

qint32 bgrFromText(const QString& text)
{
    qint32 bgr = 0;
    basic::StoreInt32(bgr, basic::Val(text)); // a value past 32 bits leaves 0
    return bgr;
}

QString bgrToHexText(qint32 bgr)
{
    return u"&H" + QString::number(quint32(bgr), 16).toUpper().rightJustified(8, u'0') + u'&';
}

} // namespace lumen
