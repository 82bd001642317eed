// FormMain: whole-screen mode (FILL) and the way back. FILL hides the three
// command frames, so that the page takes the whole window, and hands paging
// to the small navigator that stays on top. Each mode keeps the rectangle
// the window had in it, so that a second switch opens where the last left.
#include "show/FormMain.h"

#include "display/FormRightLeftNorm.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "show/FormOption.h"
#include "state/ProgramState.h"

#include <QGroupBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>

namespace lumen {
namespace {

using basic::ClampInt16;
using basic::RoundHalfEven;

constexpr double kNormalWidth = 12000;
constexpr double kNormalHeight = 8500;
constexpr double kSmallestFill = 500;
constexpr double kNavigatorGap = 300;

struct Rect {
    double left, top, width, height;
};

QSizeF screenTwips()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->geometry().size() : QSize(1024, 768);
    return {pixelsToTwips(size.width()), pixelsToTwips(size.height())};
}

qint32 rounded(double twips)
{
    return qint32(RoundHalfEven(twips));
}

} // namespace

void FormMain::keepRectangle(qint32& left, qint32& top, qint32& width, qint32& height) const
{
    left = rounded(twLeft(this));
    top = rounded(twTop(this));
    width = rounded(twWidth(this));
    height = rounded(twHeight(this));
}

void FormMain::CommandFull_Click()
{
    if (!TextFileName->text().contains(QLatin1Char(':')))
        return;
    keepRectangle(NormalWindowLeft, NormalWindowTop, NormalWindowWidth, NormalWindowHeight);
    DirecDataRecord& record = state_.DirecData;
    record.NormalWindowLeft = ClampInt16(NormalWindowLeft);
    record.NormalWindowTop = ClampInt16(NormalWindowTop);
    record.NormalWindowWidth = ClampInt16(NormalWindowWidth);
    record.NormalWindowHeight = ClampInt16(NormalWindowHeight);
    Frame1->hide();
    Frame2->hide();
    Frame3->hide();

    const QSizeF screen = screenTwips();
    if (auto* navigator =
            static_cast<FormRightLeftNorm*>(forms_.form(QStringLiteral("FormRightLeftNorm")))) {
        navigator->showForm(); // a window that stays on top
        // Value, Max, Min in that order, onto a bar whose range already fits
        // this list (an older list's range would cut the value), and without
        // its change handler turning the page on the way.
        QScrollBar* bar = navigator->HScroll1;
        const QSignalBlocker quiet(bar);
        bar->setRange(HScrollPicNom->minimum(), HScrollPicNom->maximum());
        bar->setValue(HScrollPicNom->value());
        bar->setMaximum(HScrollPicNom->maximum());
        bar->setMinimum(HScrollPicNom->minimum());
        bar->setSingleStep(HScrollPicNom->singleStep());
        bar->setPageStep(HScrollPicNom->pageStep());
        const double width = twWidth(navigator);
        const double height = twHeight(navigator);
        double x = twScaleWidth(this) + twLeft(this) - width - kNavigatorGap;
        double y = twScaleHeight(this) + twTop(this) - height;
        if (x > screen.width() - width || x < 0)
            x = screen.width() - width;
        if (y > screen.height() - height || y < 0)
            y = screen.height() - height;
        twMove(navigator, x, y);
        navigator->setWindowTitle(QStringLiteral("メインビュウワ(%1/%2)")
                                      .arg(HScrollPicNom->value())
                                      .arg(HScrollPicNom->maximum()));
    }

    FillMode = true;
    NormalMode = false;
    Rect r{double(FillWindowLeft), double(FillWindowTop), double(FillWindowWidth),
           double(FillWindowHeight)};
    if (r.left < 0 || r.left > screen.width())
        r.left = 0;
    if (r.height < 0 || r.left > screen.height()) // the left, as it always was
        r.height = 0;
    // The inner size the window has at that rectangle.
    const double frameWidth = twWidth(this) - twScaleWidth(this);
    const double frameHeight = twHeight(this) - twScaleHeight(this);
    const double scaleWidth = qMax(0.0, r.width - frameWidth);
    const double scaleHeight = qMax(0.0, r.height - frameHeight);
    if (scaleWidth != 0 && scaleHeight != 0) {
        if (scaleWidth < kSmallestFill || scaleWidth > screen.width())
            r.width = screen.width();
        if (scaleHeight < kSmallestFill || scaleHeight > screen.height())
            r.height = screen.height();
    } else {
        r.width = screen.width();
        r.height = screen.height();
    }
    setMinimumSize(0, 0);
    inResize_ = true; // one layout, below
    twMove(this, r.left, r.top, r.width, r.height);
    inResize_ = false;
    Form_Resize();
}

void FormMain::FORMNORMALSIZE()
{
    setWindowState(windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    keepRectangle(FillWindowLeft, FillWindowTop, FillWindowWidth, FillWindowHeight);
    Frame1->show();
    Frame2->show();
    Frame3->show();

    const QSizeF screen = screenTwips();
    Rect r{double(NormalWindowLeft), double(NormalWindowTop), double(NormalWindowWidth),
           double(NormalWindowHeight)};
    if (r.left < 0 || r.left > screen.width())
        r.left = 0;
    if (r.height < 0 || r.left > screen.height())
        r.height = 0;
    if (r.width < kNormalWidth)
        r.width = kNormalWidth;
    if (r.height < kNormalHeight)
        r.height = kNormalHeight;
    if (r.width - (twWidth(this) - twScaleWidth(this)) > screen.width())
        r.width = screen.width();
    if (r.height - (twHeight(this) - twScaleHeight(this)) > screen.height())
        r.height = screen.height();
    FillMode = false;
    NormalMode = true;
    inResize_ = true;
    twMove(this, r.left, r.top, r.width, r.height);
    inResize_ = false;
    Form_Resize();
    forms_.unload(QStringLiteral("FormRightLeftNorm"));
    HScrollPicNom->setFocus();
}

void FormMain::stopAutoPage()
{
    if (auto* option = static_cast<FormOption*>(forms_.form(QStringLiteral("FormOption"))))
        option->CommandStop_Click();
}

void FormMain::showNavigatorPage(int page)
{
    if (auto* navigator =
            static_cast<FormRightLeftNorm*>(forms_.existing(QStringLiteral("FormRightLeftNorm"))))
        navigator->setPage(page);
}

} // namespace lumen
