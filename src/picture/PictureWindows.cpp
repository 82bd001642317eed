#include "picture/PictureWindows.h"

#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/Twips.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QScreen>

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

void placeFromRecord(QWidget* window, qint16 left, qint16 top, Qt::Corner firstPlace)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) {
        twMove(window, std::max<qint16>(left, 0), std::max<qint16>(top, 0));
        return;
    }
    const QRect area = screen->availableGeometry();
    if (left == 0 && top == 0) {
        // Before its first showing a window knows no frame yet: room is kept
        // for the title bar and borders that the desktop will add.
        const QSize frame = window->frameGeometry().size() == window->size()
                                ? window->size() + QSize(kFrameAllowance, 4 * kFrameAllowance)
                                : window->frameGeometry().size();
        const bool right = firstPlace == Qt::TopRightCorner || firstPlace == Qt::BottomRightCorner;
        const bool bottom =
            firstPlace == Qt::BottomLeftCorner || firstPlace == Qt::BottomRightCorner;
        window->move(right ? area.right() + 1 - frame.width() : area.left(),
                     bottom ? area.bottom() + 1 - frame.height() : area.top());
        return;
    }
    double x = left;
    double y = top;
    if (x < 0 || twipsToPixels(x) >= area.right())
        x = 0;
    if (y < 0 || twipsToPixels(y) >= area.bottom())
        y = 0;
    // The frame stays inside the area the desktop leaves free.
    x = std::max(x, double(pixelsToTwips(area.left())));
    y = std::max(y, double(pixelsToTwips(area.top())));
    twMove(window, x, y);
}

RecordPlace recordPlace(const QWidget* window)
{
    using basic::ClampInt16;
    return {ClampInt16(twLeft(window)), ClampInt16(twTop(window)), ClampInt16(twWidth(window)),
            ClampInt16(twHeight(window))};
}

} // namespace lumen
