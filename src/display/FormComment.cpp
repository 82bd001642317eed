#include "display/FormComment.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "state/ProgramState.h"

#include <QLabel>
#include <QMouseEvent>

#include <cmath>

namespace lumen {
namespace {

using namespace basic;

constexpr double kDesignFontSize = 9;
constexpr int kDesignWidth = 200; // pixels
constexpr int kDesignHeight = 60;
constexpr double kLabelStart = 100; // twips
constexpr double kHugMargin = 200;  // twips
constexpr double kDragThreshold = 10;
constexpr int kAboveBottom = 30; // pixels between the window and the display area's bottom

float twips(qreal pixels)
{
    return float(pixels * kTwipsPerPixel);
}

} // namespace

FormComment::FormComment(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormComment"), parent, Qt::Tool | Qt::FramelessWindowHint)
    , basics_(basics)
    , forms_(forms)
{
    Label1 = named<QLabel>(QStringLiteral("Label1"), QStringLiteral("ｺｺﾆ コメント"), this);
    Label1->setFont(fontFrom(Label1->font(), QStringLiteral("MS UI Gothic"), kDesignFontSize));
    Label1->setCursor(Qt::SizeAllCursor);
    Label1->adjustSize();
    Label1->installEventFilter(this);
    resize(kDesignWidth, kDesignHeight);
}

void FormComment::Form_Load()
{
    DirecDataRecord& record = basics_.state().DirecData;
    const QString fontName = FixedText(record.CommentFontName);
    const QString fontSize = FixedText(record.CommentFontSize);
    const QString ground = FixedText(record.CommentBackColor);
    const QString letters = FixedText(record.CommentForeColor);

    Label1->setFont(fontFrom(Label1->font(), fontName, 0));
    if (IsNumeric(fontSize))
        Label1->setFont(fontFrom(Label1->font(), QString(), Val(fontSize)));
    if (IsNumeric(ground))
        setBackColor(this, bgrFromText(ground));
    if (IsNumeric(letters))
        setForeColor(Label1, bgrFromText(letters));
    Label1->adjustSize();

    ClickGuard = 0;
    placed_ = false;
    twMove(Label1, kLabelStart, kLabelStart);
    bringToFront();

    record.CommentFontName = fontName;
    record.CommentFontSize = fontSize;
    record.CommentBackColor = ground;
    record.CommentForeColor = letters;
}

void FormComment::setCommentText(const QString& text)
{
    load();
    Label1->setText(text);
    Label1->adjustSize();
}

QString FormComment::commentText() const
{
    return Label1->text();
}

void FormComment::showOver(const QRect& displayArea)
{
    load();
    if (!placed_) {
        placed_ = true;
        const QSize outer = frameRect(this).size();
        const QPoint at(displayArea.center().x() - outer.width() / 2,
                        displayArea.bottom() - kAboveBottom - outer.height());
        twMove(this, pixelsToTwips(at.x()), pixelsToTwips(at.y()));
    }
    showForm();
}

void FormComment::Form_Resize()
{
    twMove(Label1, (twScaleWidth(this) - twWidth(Label1)) / 2,
           (twScaleHeight(this) - twHeight(Label1)) / 2);
}

void FormComment::Label1_MouseDown(Qt::MouseButton, float x, float y)
{
    Dragging = true;
    StoreInt16(DragStartX, x);
    StoreInt16(DragStartY, y);
}

void FormComment::Label1_MouseMove(Qt::MouseButtons buttons, float x, float y)
{
    if (!buttons.testFlag(Qt::LeftButton) || !Dragging)
        return;
    const double distance =
        std::pow(std::pow(DragStartX - x, 2) + std::pow(DragStartY - y, 2), 0.5);
    if (distance > kDragThreshold)
        twMove(this, twLeft(this) - (DragStartX - x), twTop(this) - (DragStartY - y));
    bringToFront();
}

void FormComment::Label1_Click()
{
    if (ClickGuard == 2) {
        ClickGuard = 0;
        return;
    }
    // The frame's own thickness is added back, so that the inside fits the label.
    const float frameWidth = twWidth(this) - twScaleWidth(this);
    const float frameHeight = twHeight(this) - twScaleHeight(this);
    twMove(this, twLeft(this), twTop(this), twWidth(Label1) + frameWidth + kHugMargin,
           twHeight(Label1) + frameHeight + kHugMargin);
}

void FormComment::Label1_MouseUp(Qt::MouseButton button, float x, float y)
{
    if (button == Qt::RightButton) {
        if (FormBase* popup = forms_.form(QStringLiteral("FormOmake"))) {
            popup->load();
            twMove(popup, twLeft(this) + x, twTop(this) + y);
            popup->showForm();
        }
    }
    bringToFront();
}

void FormComment::resizeEvent(QResizeEvent* event)
{
    FormBase::resizeEvent(event);
    Form_Resize();
}

bool FormComment::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != Label1)
        return FormBase::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        Label1_MouseDown(mouse->button(), twips(mouse->position().x()),
                         twips(mouse->position().y()));
        break;
    }
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        Label1_MouseMove(mouse->buttons(), twips(mouse->position().x()),
                         twips(mouse->position().y()));
        break;
    }
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        Label1_MouseUp(mouse->button(), twips(mouse->position().x()), twips(mouse->position().y()));
        // A click is a left press and release over the label.
        if (mouse->button() == Qt::LeftButton &&
            Label1->rect().contains(mouse->position().toPoint()))
            Label1_Click();
        break;
    }
    default:
        break;
    }
    return FormBase::eventFilter(watched, event);
}

void FormComment::bringToFront()
{
    raise();
    Q_EMIT cameToFront();
}

} // namespace lumen
