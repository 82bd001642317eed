// FormModPic: the start and "OK" commands, the mouse on Picture2, the curve
// drawing and the fills.
#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "picture/Canvas.h"
#include "picture/FloodFill.h"
#include "picture/FormModPic.h"
#include "picture/FormSaveImage.h"
#include "picture/PictureWindows.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"

#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>

namespace lumen {
namespace {

using namespace basic;

constexpr float kCurveStep = 0.05f;
constexpr float kMarkHalf = 3;
constexpr float kMarkSize = 6;

QRgb rgbOf(qint32 bgr)
{
    return colorFromBgr(bgr).rgb();
}

} // namespace

FormSaveImage* FormModPic::saveImage()
{
    return static_cast<FormSaveImage*>(forms_.form(QStringLiteral("FormSaveImage")));
}

bool FormModPic::curveOn() const
{
    return OptionSplineOpen->isChecked() || OptionSplineClose->isChecked();
}

bool FormModPic::isGreen(const QPushButton* button) const
{
    return backColor(button) == kColorGreen;
}

void FormModPic::resetButtons()
{
    for (QPushButton* button :
         {CommandStartDrawLine, CommandPickColLine, CommandPickColFill, CommandStartPaintColor})
        setBackColor(button, kColorButtonFace);
}

float FormModPic::inScale(float twips) const
{
    return picture_->drawSettings().ScaleMode == kScalePixels ? twips / kTwipsPerPixel : twips;
}

void FormModPic::applyPen()
{
    // DrawWidth takes 1 to 32767; another value is refused and the old stays.
    DrawSettings& settings = picture_->drawSettings();
    settings.ForeColor = backColor(LabelLineColor);
    qint16 width = 0;
    if (StoreInt16(width, Val(ComboLineSize->currentText())) && width >= 1)
        settings.DrawWidth = width;
}

void FormModPic::drawOnPicture(const std::function<void(Canvas&)>& draw)
{
    Canvas canvas(picture_->surface(), picture_->drawSettings());
    draw(canvas);
    picture_->surfaceChanged();
}

// ---- Commands -------------------------------------------------------------

void FormModPic::MakeNewLine()
{
    curve.clear();
    DragPoint = -1;
}

void FormModPic::CommandStartDrawLine_Click()
{
    DrawSettings& settings = picture_->drawSettings();
    settings.ScaleMode = kScalePixels;
    settings.DrawMode = kDrawCopyPen;
    settings.FillStyle = kFillTransparent;
    // Line work stays over the picture until its "OK".
    picture_->setAutoRedraw(false);
    setBackColor(CommandStartDrawLine, kColorYellow);
    basics_.WaitMilliseconds(300);
    setBackColor(CommandStartDrawLine, kColorGreen);
    for (QPushButton* other : {CommandPickColLine, CommandPickColFill, CommandStartPaintColor})
        setBackColor(other, kColorButtonFace);
    DrawToolBusy = false;
    CommandStopDrawLine->setEnabled(true);
    CommandDoSpline->setEnabled(false);
    if (curveOn())
        MakeNewLine();
}

void FormModPic::CommandDoSpline_Click()
{
    if (curveOn()) {
        picture_->Refresh();
        if (!OptionSplineClose->isChecked())
            WriteCurve(QStringLiteral("ALL"));
        else
            WriteCurve2(QStringLiteral("ALL"));
    }
    CommandStopDrawLine->setEnabled(true);
}

void FormModPic::fixDrawing()
{
    if (FormSaveImage* store = saveImage())
        store->SaveKariPic();
    basics_.WaitMilliseconds(100);
    const QString bitmap = settingsFile(basics_.state(), QStringLiteral("LastPic0.bmp"));
    if (basics_.FileExists(bitmap)) {
        const QImage undoBase = basics_.LoadPictureByPNGObject(bitmap);
        if (!undoBase.isNull())
            picture_->setPicture(undoBase);
    }
    resetButtons();
    CommandDoSpline->setEnabled(false);
}

void FormModPic::CommandStopDrawLine_Click()
{
    if (curveOn()) {
        // The final curve, without its marks.
        picture_->Refresh();
        if (!OptionSplineClose->isChecked())
            WriteCurve(QStringLiteral("LINEONLY"));
        else
            WriteCurve2(QStringLiteral("LINEONLY"));
    }
    fixDrawing();
}

void FormModPic::CommandPickColLine_Click()
{
    for (QPushButton* other : {CommandStartDrawLine, CommandPickColFill, CommandStartPaintColor})
        setBackColor(other, kColorButtonFace);
    setBackColor(CommandPickColLine, kColorGreen);
}

void FormModPic::CommandPickColFill_Click()
{
    for (QPushButton* other : {CommandStartDrawLine, CommandPickColLine, CommandStartPaintColor})
        setBackColor(other, kColorButtonFace);
    setBackColor(CommandPickColFill, kColorGreen);
}

void FormModPic::CommandStartPaintColor_Click()
{
    DrawSettings& settings = picture_->drawSettings();
    settings.ScaleMode = kScalePixels;
    settings.FillColor = backColor(LabelPastColor);
    settings.FillStyle = kFillSolid;
    // A fill goes into the picture, over what is seen now.
    picture_->setAutoRedraw(true);
    setBackColor(CommandStartPaintColor, kColorGreen);
    for (QPushButton* other : {CommandStartDrawLine, CommandPickColLine, CommandPickColFill})
        setBackColor(other, kColorButtonFace);
}

void FormModPic::CommandStopDrawPaint_Click()
{
    fixDrawing();
}

// ---- The curve ------------------------------------------------------------

void FormModPic::DrawCurve(PictureBox* target, float start, float end, float step)
{
    target->Refresh();
    drawOnPicture([&](Canvas& canvas) { traceCurve(canvas, curve, start, end, step); });
}

void FormModPic::WriteCurve(const QString& mode)
{
    curve.CurveNewLine = false;
    CommandStopDrawLine->setEnabled(true);
    drawCurveStep(false, UCase(mode) == QLatin1String("ALL") ? QStringLiteral("ALL")
                                                             : QStringLiteral("LINEONLY"));
}

void FormModPic::WriteCurve2(const QString& mode)
{
    curve.CurveNewLine = false;
    CommandStopDrawLine->setEnabled(true);
    drawCurveStep(true, UCase(mode) == QLatin1String("ALL") ? QStringLiteral("ALL")
                                                            : QStringLiteral("LINEONLY"));
}

void FormModPic::drawCurveStep(bool closed, const QString& mode)
{
    if (curve.CurveLastPoint < 0)
        return;
    applyPen();
    main_.setCursor(Qt::WaitCursor);
    qint16 order = 0;
    if (StoreInt16(order, Val(ComboMarumeKeisuu->currentText())))
        curve.CurveOrder = order;
    curve.CurveMaxT = curve.maxT(closed);
    DrawCurve(picture_, 0, curve.CurveMaxT, kCurveStep);
    if (mode == QLatin1String("ALL")) {
        drawOnPicture([this](Canvas& canvas) {
            for (int i = 0; i <= curve.CurveLastPoint; ++i)
                canvas.Box(curve.pointX(i) - kMarkHalf, curve.pointY(i) - kMarkHalf, kMarkSize,
                           kMarkSize);
        });
    }
    main_.unsetCursor();
}

// ---- The mouse on Picture2 ------------------------------------------------

void FormModPic::Picture2_MouseDown(Qt::MouseButton button, float xTwips, float yTwips)
{
    if (!isLoaded() || button != Qt::LeftButton)
        return;
    const float x = inScale(xTwips);
    const float y = inScale(yTwips);
    if (isGreen(CommandPickColLine)) {
        pickColour(LabelLineColor, CommandPickColLine, x, y);
    } else if (isGreen(CommandPickColFill)) {
        pickColour(LabelPastColor, CommandPickColFill, x, y);
    } else if (isGreen(CommandStartPaintColor)) {
        paintAt(x, y);
    } else if (isGreen(CommandStartDrawLine)) {
        if (!curveOn())
            shapeDown(x, y);
        else
            pointDown(x, y);
    }
}

void FormModPic::Picture2_MouseMove(Qt::MouseButtons buttons, float xTwips, float yTwips)
{
    if (!isLoaded() || !(buttons & Qt::LeftButton) || !isGreen(CommandStartDrawLine))
        return;
    const float x = inScale(xTwips);
    const float y = inScale(yTwips);
    if (!curveOn()) {
        shapeMove(x, y);
        return;
    }
    if (curve.CurveNewLine || DragPoint < 0)
        return;
    // The mark follows the pointer: drawn again at its old place, and at the new.
    const int i = DragPoint;
    drawOnPicture([&](Canvas& canvas) {
        canvas.Box(curve.pointX(i) - kMarkHalf, curve.pointY(i) - kMarkHalf, kMarkSize, kMarkSize);
        curve.setPoint(i, x, y);
        canvas.Box(x - kMarkHalf, y - kMarkHalf, kMarkSize, kMarkSize);
    });
}

void FormModPic::Picture2_MouseUp(Qt::MouseButton button, float xTwips, float yTwips)
{
    if (!isLoaded() || button != Qt::LeftButton || !isGreen(CommandStartDrawLine))
        return;
    const float x = inScale(xTwips);
    const float y = inScale(yTwips);
    if (!curveOn()) {
        shapeUp(x, y);
        return;
    }
    if (curve.CurveNewLine || DragPoint < 0)
        return;
    picture_->drawSettings().DrawMode = SavedDrawMode;
    curve.setPoint(DragPoint, x, y);
    DragPoint = -1;
    if (!OptionSplineClose->isChecked())
        WriteCurve(QStringLiteral("ALL"));
    else
        WriteCurve2(QStringLiteral("ALL"));
}

void FormModPic::pointDown(float x, float y)
{
    if (curve.CurveNewLine) {
        curve.addPoint(x, y);
        applyPen();
        drawOnPicture([&](Canvas& canvas) {
            canvas.Box(x - kMarkHalf, y - kMarkHalf, kMarkSize, kMarkSize);
        });
        if (curve.CurveLastPoint >= 3)
            CommandDoSpline->setEnabled(true);
        return;
    }
    // Editing: the first point within 3 pixels both ways is grabbed.
    for (int i = 0; i <= curve.CurveLastPoint; ++i) {
        if (std::fabs(curve.pointX(i) - x) < 3 && std::fabs(curve.pointY(i) - y) < 3) {
            DragPoint = qint16(i);
            DrawSettings& settings = picture_->drawSettings();
            SavedDrawMode = settings.DrawMode;
            settings.DrawMode = kDrawInvert;
            curve.setPoint(i, x, y);
            drawOnPicture([&](Canvas& canvas) {
                canvas.Box(x - kMarkHalf, y - kMarkHalf, kMarkSize, kMarkSize);
            });
            return;
        }
    }
}

// ---- Pen, line and circle -------------------------------------------------

void FormModPic::shapeDown(float x, float y)
{
    LineStartX = x;
    LineStartY = y;
    SavedDrawMode = picture_->drawSettings().DrawMode;
    bandShown_ = false;
    applyPen(); // the pen draws in the chosen colour from its first move
}

void FormModPic::drawShape(float toX, float toY)
{
    drawOnPicture([&](Canvas& canvas) {
        if (OptionCir->isChecked()) {
            const double dx = toX - LineStartX;
            const double dy = toY - LineStartY;
            const auto radius = float(std::pow(std::pow(dx, 2) + std::pow(dy, 2), 0.5));
            canvas.Circle(LineStartX, LineStartY, radius);
        } else {
            canvas.Line(LineStartX, LineStartY, toX, toY);
        }
    });
}

void FormModPic::shapeMove(float x, float y)
{
    if (OptionPen->isChecked()) {
        drawShape(x, y);
        LineStartX = x;
        LineStartY = y;
        return;
    }
    // The rubber band, in xor: drawn again where it was, it goes.
    picture_->drawSettings().DrawMode = kDrawXorPen;
    if (bandShown_)
        drawShape(bandX_, bandY_);
    drawShape(x, y);
    bandX_ = x;
    bandY_ = y;
    bandShown_ = true;
}

void FormModPic::shapeUp(float x, float y)
{
    if (bandShown_)
        drawShape(bandX_, bandY_);
    bandShown_ = false;
    picture_->drawSettings().DrawMode = SavedDrawMode;
    applyPen();
    drawShape(x, y);
}

// ---- Colours and fills ----------------------------------------------------

void FormModPic::pickColour(ClickLabel* target, QPushButton* pick, float x, float y)
{
    QImage seen = picture_->Image();
    const qint32 colour = Canvas(seen, picture_->drawSettings()).Point(x, y);
    if (colour >= 0)
        setBackColor(target, colour);
    setBackColor(pick, kColorButtonFace);
}

void FormModPic::paintAt(float x, float y)
{
    DrawSettings& settings = picture_->drawSettings();
    settings.FillStyle = kFillSolid;
    settings.FillColor = backColor(LabelPastColor);
    qint32 px = 0;
    qint32 py = 0;
    if (StoreInt32(px, x) && StoreInt32(py, y)) {
        const QRgb border = rgbOf(backColor(LabelLineColor));
        const QRgb fill = rgbOf(settings.FillColor);
        QImage& surface = picture_->surface();
        if (OptionWakunaiChikan->isChecked())
            ExtFloodFill(surface, px, py, border, fill, FillType::Border);
        if (OptionIroChikan->isChecked())
            ExtFloodFill(surface, px, py, border, fill, FillType::Surface);
    }
    settings.FillStyle = kFillTransparent;
    picture_->Refresh();
}

} // namespace lumen
