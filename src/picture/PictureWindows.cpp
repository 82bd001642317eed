#include "picture/PictureWindows.h"

#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/Twips.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace lumen {
namespace {

constexpr int kFrameAllowance = 8; // pixels

} // namespace

QString settingsFile(const ProgramState& state, const QString& name)
{
    return state.ProgramRunDir + QLatin1Char('\\') + name;
}

void turnOriginalSizeOn(FormMain& main)
{
    if (!main.CheckOriginalSize->isChecked())
        main.CheckOriginalSize->click();
}

void placeFirstTime(QWidget* window, Qt::Corner corner, std::optional<int> left)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    // Before its first showing a window knows no frame yet: room is kept
    // for the title bar and borders that the desktop will add.
    const QSize frame = window->frameGeometry().size() == window->size()
                            ? window->size() + QSize(kFrameAllowance, 4 * kFrameAllowance)
                            : window->frameGeometry().size();
    const bool right = corner == Qt::TopRightCorner || corner == Qt::BottomRightCorner;
    const bool bottom = corner == Qt::BottomLeftCorner || corner == Qt::BottomRightCorner;
    int x = right ? area.right() + 1 - frame.width() : area.left();
    if (left)
        x = std::clamp(*left, area.left(), std::max(area.left(), area.right() + 1 - frame.width()));
    window->move(x, bottom ? area.bottom() + 1 - frame.height() : area.top());
}

void placeFromRecord(QWidget* window, qint16 left, qint16 top, Qt::Corner firstPlace)
{
    if (left == 0 && top == 0) {
        placeFirstTime(window, firstPlace);
        return;
    }
    double x = left;
    double y = top;
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen) {
        const QRect area = screen->availableGeometry();
        if (x < 0 || twipsToPixels(x) >= area.right())
            x = 0;
        if (y < 0 || twipsToPixels(y) >= area.bottom())
            y = 0;
        // The frame stays inside the area the desktop leaves free.
        x = std::max(x, double(pixelsToTwips(area.left())));
        y = std::max(y, double(pixelsToTwips(area.top())));
    }
    twMove(window, std::max(x, 0.0), std::max(y, 0.0));
}

RecordPlace recordPlace(const QWidget* window)
{
    using basic::ClampInt16;
    return {ClampInt16(twLeft(window)), ClampInt16(twTop(window)), ClampInt16(twWidth(window)),
            ClampInt16(twHeight(window))};
}

} // namespace lumen
