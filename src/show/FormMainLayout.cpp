// FormMain's two layouts: the normal one with the three command frames, and
// FILL, where the display area takes the whole window. Lengths are twips.
#include "show/FormMain.h"

#include "display/PictureBox.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FormBase.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "state/ProgramState.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

using basic::RoundHalfEven;

constexpr double kMinWidth = 12000;
constexpr double kMinHeight = 8500;
constexpr double kFrame1Height = 8175;
constexpr double kFrame2Width = 10365;
constexpr double kFrame2Height = 480;
constexpr double kFrame3Height = 1005;

// Visible as the window sees it, whether or not the window itself is shown.
bool shown(const QWidget* control, const QWidget* window)
{
    return control->isVisibleTo(window);
}

} // namespace

void FormMain::resizeEvent(QResizeEvent* event)
{
    FormBase::resizeEvent(event);
    if (!inResize_)
        Form_Resize();
}

bool FormMain::isMaximized() const
{
    return windowState() & Qt::WindowMaximized;
}

void FormMain::Form_Resize()
{
    if (windowState() & Qt::WindowMinimized)
        return;
    inResize_ = true;
    if (shown(CommandLeft, this))
        FormResizeNorMal();
    else
        FormResizeFill();
    inResize_ = false;
}

void FormMain::applySizeLimits()
{
    // The normal layout never gets smaller than 12000 by 8500, frame
    // included, nor larger than the screen's available area: on a small
    // screen the area wins. The minimum size is the inside of that.
    const QSize smallest = QSize(twipsToPixels(kMinWidth), twipsToPixels(kMinHeight))
                               .boundedTo(availableArea().size())
                               .shrunkBy(frameMargins(this))
                               .expandedTo(QSize(0, 0));
    setMinimumSize(smallest);
}

void FormMain::windowFramed()
{
    // The frame's thickness is known only now: the minimum is taken again.
    if (shown(CommandLeft, this))
        applySizeLimits();
}

void FormMain::FormResizeNorMal()
{
    applySizeLimits();
    const QRect area = availableArea();
    const QRect outer = frameRect(this);
    if (twWidth(this) < kMinWidth || twHeight(this) < kMinHeight || outer.width() > area.width() ||
        outer.height() > area.height())
        twResize(this, qMax(double(twWidth(this)), kMinWidth),
                 qMax(double(twHeight(this)), kMinHeight));

    Picture1->show();
    const double scaleWidth = twScaleWidth(this);
    const double scaleHeight = twScaleHeight(this);

    twResize(Frame1, twWidth(Frame1), kFrame1Height);
    twMove(Frame1, scaleWidth - twWidth(Frame1) - 10,
           double(RoundHalfEven((scaleHeight - kFrame1Height) / 2)));

    twResize(Frame2, kFrame2Width, kFrame2Height);
    const qint64 x = RoundHalfEven((scaleWidth - twWidth(Frame1) - kFrame2Width) / 2 + 50);
    if (x > 0) {
        twMove(Frame2, double(x), 10);
        twResize(Frame3, kFrame2Width, kFrame3Height);
        twMove(Frame3, double(x), scaleHeight - twHeight(Frame3) - 10);
    }

    const double belowFrame2 = twTop(Frame2) + twHeight(Frame2);
    double h = double(RoundHalfEven(twTop(Frame3) - belowFrame2 - 40));
    if (HScrollNeeded) {
        twMove(HScroll1, 100, twTop(Frame3) - twHeight(HScroll1) - 20);
        HScroll1->show();
        h = twTop(HScroll1) - belowFrame2 - 40;
    }
    double w = double(RoundHalfEven(twLeft(Frame1) - 100));
    if (VScrollNeeded) {
        twMove(VScroll1, twLeft(Frame1) - twWidth(VScroll1), belowFrame2 + 10);
        VScroll1->show();
        w = twLeft(VScroll1) - 100;
    } else {
        VScroll1->hide();
    }
    twMove(Picture1, 110, belowFrame2, w, h);
    twMove(Picture2, 0, 0, twWidth(Picture1), twHeight(Picture1));
    twResize(VScroll1, twWidth(VScroll1), twHeight(Picture1) - 100);
    twResize(HScroll1, twWidth(Picture1) - 100, twHeight(HScroll1));
    RelayoutCurrentPage();
}

void FormMain::FormResizeFill()
{
    setMinimumSize(0, 0);
    const double w = twScaleWidth(this);
    const double h = twScaleHeight(this);
    for (QWidget* picture : std::initializer_list<QWidget*>{Picture1, Picture2, Picture3})
        twMove(picture, 0, 0, w, h);
    if (TextFileName->text().contains(QLatin1Char(':')))
        RelayoutCurrentPage();
    FormBase* navigator = forms_.form(QStringLiteral("FormRightLeftNorm"));
    if (!state_.InSubMain && !shown(CommandLeft, this) && navigator && !navigator->isVisible()) {
        navigator->setWindowState(Qt::WindowMinimized);
        navigator->showForm();
    }
}

} // namespace lumen
