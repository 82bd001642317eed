#include "show/FormOption.h"

#include "display/MediaPanel.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Clock.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/UserDialogs.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>

namespace lumen {
namespace {

using namespace basic;

constexpr int kBarPixels = 200;       // LabelBack, 3000 twips
constexpr int kTimerMs = 1000;        // Timer1
constexpr double kMediumPollMs = 100; // the wait for a medium's end, step by step
constexpr int kTooMuch = 5;           // the bar may run five times its length

ClickLabel* image(const QString& name, QStyle::StandardPixmap pixmap, QWidget* parent)
{
    auto* label = new ClickLabel(name, QString(), parent);
    label->setPixmap(parent->style()->standardIcon(pixmap).pixmap(24, 24));
    return label;
}

// A count as a whole number; one that doesn't fit 32 bits is passed over
// and counts as 0.
int whole(double value)
{
    qint32 stored = 0;
    StoreInt32(stored, value);
    return stored;
}

} // namespace

FormOption::FormOption(VeroProcedure_Basical& basics, FormMain& main, QWidget* parent)
    : FormBase(QStringLiteral("FormOption"), parent, Qt::Tool)
    , basics_(basics)
    , main_(main)
{
    setWindowTitle(QStringLiteral("自動ﾍﾟｰｼﾞ"));
    Frame1 = named<QGroupBox>(QStringLiteral("Frame1"), QStringLiteral("間隔 (秒)"), this);
    Frame1->installEventFilter(this);
    Frame1->setMouseTracking(true); // its hint comes with each move over it
    TextIntervalTime = named<QLineEdit>(QStringLiteral("TextIntervalTime"), Frame1);
    TextIntervalTime->setFixedWidth(64);
    HScroll1 = named<QScrollBar>(QStringLiteral("HScroll1"), Qt::Horizontal, Frame1);
    HScroll1->setRange(0, 60);
    HScroll1->setPageStep(5);

    OptionFowerd =
        named<QRadioButton>(QStringLiteral("OptionFowerd"), QStringLiteral("順方向"), this);
    OptionBack = named<QRadioButton>(QStringLiteral("OptionBack"), QStringLiteral("逆方向"), this);
    OptionLoop = named<QRadioButton>(QStringLiteral("OptionLoop"), QStringLiteral("ﾙｰﾌﾟ"), this);
    OptionFowerd->setChecked(true);
    ImageFowerd = image(QStringLiteral("ImageFowerd"), QStyle::SP_ArrowRight, this);
    ImageBack = image(QStringLiteral("ImageBack"), QStyle::SP_ArrowLeft, this);
    ImageLoop = image(QStringLiteral("ImageLoop"), QStyle::SP_BrowserReload, this);

    CommandStart = commandButton(QStringLiteral("CommandStart"), QStringLiteral("ｽﾀｰﾄ"), this);
    CommandStop = commandButton(QStringLiteral("CommandStop"), QStringLiteral("ｽﾄｯﾌﾟ"), this);

    LabelBack = named<QLabel>(QStringLiteral("LabelBack"), this);
    LabelBack->setFixedSize(kBarPixels, 10);
    setBackColor(LabelBack, kColorGrey);
    LabelTimer = named<QLabel>(QStringLiteral("LabelTimer"), LabelBack);
    LabelTimer->setGeometry(0, 0, 0, 10);
    setBackColor(LabelTimer, kColorGreen);

    Timer1 = named<QTimer>(QStringLiteral("Timer1"), this);
    Timer1->setInterval(kTimerMs);
    layOut();

    connect(CommandStart, &QPushButton::clicked, this, &FormOption::CommandStart_Click);
    connect(CommandStop, &QPushButton::clicked, this, &FormOption::CommandStop_Click);
    connect(Timer1, &QTimer::timeout, this, &FormOption::Timer1_Timer);
    connect(HScroll1, &QScrollBar::valueChanged, this, &FormOption::HScroll1_Change);
    connect(HScroll1, &QScrollBar::sliderMoved, this, &FormOption::HScroll1_Change);
    connect(ImageFowerd, &ClickLabel::clicked, this, [this] { OptionFowerd->setChecked(true); });
    connect(ImageBack, &ClickLabel::clicked, this, [this] { OptionBack->setChecked(true); });
    connect(ImageLoop, &ClickLabel::clicked, this, [this] { OptionLoop->setChecked(true); });
}

void FormOption::layOut()
{
    auto* interval = new QHBoxLayout(Frame1);
    interval->addWidget(TextIntervalTime);
    interval->addWidget(HScroll1, 1);
    auto* directions = new QHBoxLayout;
    for (auto [picture, button] :
         {std::pair{ImageFowerd, OptionFowerd}, std::pair{ImageBack, OptionBack},
          std::pair{ImageLoop, OptionLoop}}) {
        directions->addWidget(picture);
        directions->addWidget(button);
        directions->addSpacing(6);
    }
    auto* commands = new QHBoxLayout;
    commands->addWidget(CommandStart);
    commands->addWidget(CommandStop);
    auto* column = new QVBoxLayout(this);
    column->addWidget(Frame1);
    column->addLayout(directions);
    column->addWidget(LabelBack, 0, Qt::AlignHCenter);
    column->addLayout(commands);
}

void FormOption::Form_Load()
{
    const qint16 kept = basics_.state().DirecData.AutoPageInterval;
    HScroll1->setValue(kept);
    TextIntervalTime->setText(QString::number(kept));
    // Below the main window's command, while the command frames are up.
    if (main_.CommandOption->isVisible()) {
        const QPoint under =
            main_.CommandOption->mapToGlobal(QPoint(0, main_.CommandOption->height() + 4));
        move(under);
    }
}

double FormOption::interval() const
{
    return Val(TextIntervalTime->text());
}

void FormOption::setBarStep(double seconds)
{
    const float full = twWidth(LabelBack);
    BarStep = seconds == 1 ? full : float(full / (seconds - 1));
}

void FormOption::resetBar()
{
    twResize(LabelTimer, 0, twHeight(LabelTimer));
    TickCount = 0;
}

bool FormOption::walkGoesOn(int walk) const
{
    return walk == walks_ && !basics_.services().clock.ending();
}

// ---- The walk ----------------------------------------------------------------

void FormOption::CommandStart_Click()
{
    if (interval() < 0.001)
        TextIntervalTime->setText(QStringLiteral("0.001"));
    ProgramState& state = basics_.state();
    if (!state.ListReady)
        return;
    hide();
    // A hint still waiting out its second (the start was pressed during it)
    // goes now; while the show runs no other comes.
    basics_.services().ui.hideMessage();
    StopPressed = false;
    state.AutoPageOn = true;
    TextIntervalTime->setEnabled(false);
    if (interval() >= 1)
        TextIntervalTime->setText(QString::number(qint64(std::floor(interval()))));
    if (interval() == 0) { // never: the interval is at least 0.001 here
        ZeroInterval = true;
        HScroll1->setEnabled(false);
    } else {
        ZeroInterval = false;
        setBarStep(interval());
    }
    Timer1->stop();
    resetBar();

    const int walk = ++walks_;
    auto count = [this] { return whole(Val(main_.TextCount->text())); };
    auto total = [this] { return whole(Val(main_.TextTotal->text())); };
    if (OptionBack->isChecked()) {
        StoreInt16(state.PicNo, state.PicNo + 1.0);
        for (int row = count(); row >= 1; --row) {
            if (step(row, -1, false, walk) != Step::Next)
                return;
        }
        return;
    }
    if (OptionLoop->isChecked()) {
        while (walkGoesOn(walk)) {
            state.PicNo = 0;
            main_.TextCount->setText(QStringLiteral("1"));
            shownThisRound_ = 0;
            const int last = total();
            if (last < 1) {
                CommandStop_Click();
                return;
            }
            for (int row = 1; row <= last; ++row) {
                const Step next = step(row, +1, true, walk);
                if (next == Step::Leave)
                    return;
                if (next == Step::NextRound)
                    break;
            }
        }
        return;
    }
    StoreInt16(state.PicNo, state.PicNo - 1.0);
    const int last = total();
    for (int row = count(); row <= last; ++row) {
        if (step(row, +1, false, walk) != Step::Next)
            return;
    }
    CommandStop_Click();
}

FormOption::Step FormOption::step(int row, int direction, bool looping, int walk)
{
    ProgramState& state = basics_.state();
    const double total = Val(main_.TextTotal->text());
    if (total < row) {
        CommandStop_Click();
        return Step::Leave;
    }
    // On the last page the walk leaves, window hidden and AutoPageOn still
    // set; a round of the loop begins again (a one-page loop shows its page
    // first, or it would turn without end).
    if (Val(main_.TextCount->text()) >= total && !(looping && shownThisRound_ == 0))
        return looping ? Step::NextRound : Step::Leave;
    if (StopPressed || !walkGoesOn(walk))
        return Step::Leave;

    if (interval() != 0)
        setBarStep(interval());
    setBackColor(main_.CommandOption, kColorGreen);
    state.MediaEnded = false;
    if (direction > 0)
        main_.CommandRight_Click();
    else
        main_.CommandLeft_Click();
    ++shownThisRound_;
    waitForMedium();
    Timer1->start();
    waitOnPage(row, direction < 0 || looping);
    Timer1->stop();
    resetBar();
    return Step::Next;
}

void FormOption::waitForMedium()
{
    // A page's medium plays to its end before the timed wait; only its end
    // (or a failure, which ends it too) frees the walk.
    if (main_.MediaPlayer1->isHidden() && main_.MediaPlayer2->isHidden())
        return;
    const ProgramState& state = basics_.state();
    while (!state.MediaEnded && !basics_.services().clock.ending())
        basics_.WaitMilliseconds(kMediumPollMs);
}

void FormOption::waitOnPage(int row, bool backOrLoop)
{
    if (ZeroInterval) {
        basics_.DoEvents();
        return;
    }
    const QString delayText = basics_.state().ListArray.at(kColDelay, row);
    const double delay = Val(delayText);
    const float full = twWidth(LabelBack);
    if (delay == 9999) {
        basics_.WaitMilliseconds(interval() * 1000);
    } else if (delay == 1) {
        KeptInterval = QString::number(RoundHalfEven(interval()));
        BarStep = full;
        basics_.WaitMilliseconds(1000);
        TextIntervalTime->setText(KeptInterval);
    } else if (delay == 0) {
        KeptInterval = TextIntervalTime->text();
        BarStep = full;
        basics_.DoEvents();
        TextIntervalTime->setText(KeptInterval);
        if (backOrLoop)
            basics_.WaitMilliseconds(interval() * 1000);
    } else if (delay > 1) {
        KeptInterval = TextIntervalTime->text();
        TextIntervalTime->setText(delayText);
        BarStep = float(full / (delay - 1));
        basics_.WaitMilliseconds(delay * 1000);
        TextIntervalTime->setText(KeptInterval);
    }
    // A fraction below 1 or a negative delay: no wait at all.
}

// ---- The bar, the stop and the interval -----------------------------------------

void FormOption::Timer1_Timer()
{
    ++TickCount;
    if (BarStep > 0)
        twResize(LabelTimer, TickCount * double(BarStep), twHeight(LabelTimer));
    if (twWidth(LabelTimer) > kTooMuch * twWidth(LabelBack)) {
        Timer1->stop(); // before the box, so that it shows once
        basics_.services().ui.msgBox(QStringLiteral("What happend? Timer is waiting too much."));
        CommandStop_Click();
    }
}

void FormOption::CommandStop_Click()
{
    ProgramState& state = basics_.state();
    StoreInt16(state.DirecData.AutoPageInterval, interval());
    HScroll1->setEnabled(true);
    TextIntervalTime->setEnabled(true);
    StopPressed = true;
    state.AutoPageOn = false;
    setBackColor(main_.CommandOption, kColorGrey);
    showForm();
}

void FormOption::HScroll1_Change()
{
    TextIntervalTime->setText(QString::number(HScroll1->sliderPosition()));
}

void FormOption::Frame1_MouseMove()
{
    basics_.ShowFloatingMessage(int(twLeft(this) + twLeft(Frame1) - 50),
                                int(twTop(this) + twTop(Frame1)),
                                QStringLiteral(" 0.0～0.9秒はｷｰｲﾝ入力できます "));
}

bool FormOption::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Frame1 && event->type() == QEvent::MouseMove)
        Frame1_MouseMove();
    return FormBase::eventFilter(watched, event);
}

} // namespace lumen
