// FormMain: the picture in the display area. Picture2 holds the picture at
// its own size (with scroll bars when it doesn't fit and original size is
// asked for); Picture3 shows it scaled down to fit. Lengths are twips; the
// roundings and truncations are as the layout has always had them.
#include "show/FormMain.h"

#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "display/PictureCache.h"
#include "display/WebBrowser.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/ExtTable.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Twips.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <cmath>

namespace lumen {
namespace {

using namespace basic;

constexpr double kTwips = lumen::kTwipsPerPixel; // per pixel, either way

qint32 rounded(double value)
{
    return qint32(RoundHalfEven(value));
}
qint32 truncated(double value)
{
    return qint32(std::trunc(value));
}

// A scroll bar's properties are 16-bit: a value that doesn't fit is an
// overflow, and the statement is passed over.
void setBarValue(QScrollBar* bar, void (QScrollBar::*setter)(int), double value)
{
    qint16 stored = 0;
    if (StoreInt16(stored, value))
        (bar->*setter)(stored);
}

void setCheckColour(QCheckBox* box, qint32 bgr)
{
    setBackColor(box, bgr);
}

} // namespace

QString FormMain::nativeOf(const QString& programPath) const
{
    return basics_.services().fs.toNative(programPath);
}

// ---- DisplayPicturePage ---------------------------------------------------

bool FormMain::loadPageIntoPicture2(const QString& file)
{
    // PNG through the PNG reader, the rest through LoadPicture: both are Qt's
    // image reader here. A picture that can't be read leaves the box empty.
    const QString native = nativeOf(file);
    const QSize size = pictures_->probe(native);
    if (size.isEmpty()) {
        Picture2->clearPicture();
        return false;
    }
    PictureCache* cache = pictures_.get();
    Picture2->setLazyPicture(size, [cache, native] { return cache->full(native); });
    return true;
}

void FormMain::DisplayPicturePage()
{
    CleareDisp(QStringLiteral("PIC"));
    companionRule(true);
    Picture2->hide();
    loadPageIntoPicture2(mainFile());
    PrepareShow();
    if (!CheckOriginalSize->isChecked()) {
        Picture2->hide();
        FitPictureToFrame();
    } else {
        PlaceScrollBars();
    }
    if (HasComment && !HideComment)
        showCommentWindow();
    prepareNextPicture();
}

// ---- PrepareShow ----------------------------------------------------------

void FormMain::PrepareShow()
{
    Picture2->hide();
    ExcessHeight = rounded(twHeight(Picture2) - twHeight(Picture1));
    ExcessWidth = rounded(twWidth(Picture2) - twWidth(Picture1));
    HScrollNeeded = false;
    VScrollNeeded = false;
    if (!Picture2->hasPicture())
        return;

    if (ExcessHeight > 0) {
        // The horizontal twips per pixel here, the vertical in the handler.
        setBarValue(VScroll1, &QScrollBar::setMaximum, truncated(ExcessHeight * 1.1 / kTwips));
        VScroll1->setMinimum(0);
        setBarValue(VScroll1, &QScrollBar::setPageStep, ExcessHeight);
        setBarValue(VScroll1, &QScrollBar::setSingleStep, truncated(ExcessHeight / 100.0));
        twMove(VScroll1, twWidth(Picture1) + twLeft(Picture1), twTop(VScroll1));
        VScroll1->setValue(truncated(VScroll1->maximum() / 2.0));
        VScroll1_Change();
        VScrollNeeded = true;
        setCheckColour(CheckOriginalSize, kColorYellow);
    } else {
        VScroll1->hide();
        ExcessHeight = rounded(twHeight(Picture1) - twHeight(Picture2));
        twMove(Picture2, twLeft(Picture2), truncated(ExcessHeight / 2.0));
        setCheckColour(CheckOriginalSize, kColorGrey);
    }

    if (ExcessWidth > 0) {
        setBarValue(HScroll1, &QScrollBar::setMaximum, truncated(ExcessWidth * 1.1 / kTwips));
        HScroll1->setMinimum(0);
        setBarValue(HScroll1, &QScrollBar::setPageStep, ExcessWidth);
        setBarValue(HScroll1, &QScrollBar::setSingleStep, truncated(ExcessWidth / 100.0));
        twMove(HScroll1, twLeft(HScroll1), twHeight(Picture1) + twTop(Picture1));
        HScroll1->setValue(truncated(HScroll1->maximum() / 2.0));
        HScroll1_Change();
        HScrollNeeded = true;
        setCheckColour(CheckOriginalSize, kColorYellow);
    } else {
        HScroll1->hide();
        ExcessWidth = rounded(twWidth(Picture1) - twWidth(Picture2));
        twMove(Picture2, truncated(ExcessWidth / 2.0), twTop(Picture2));
        // Yellow stays when the height didn't fit: the sign is for either way.
        if (!VScrollNeeded)
            setCheckColour(CheckOriginalSize, kColorGrey);
    }
    Picture2->show();
}

void FormMain::VScroll1_Change()
{
    double top = twTop(Picture1) - VScroll1->value() * kTwips;
    if (top > 0)
        top = 0;
    if (top < -ExcessHeight)
        top = -ExcessHeight;
    twMove(Picture2, twLeft(Picture2), top);
}

void FormMain::HScroll1_Change()
{
    double left = twLeft(Picture1) - HScroll1->value() * kTwips;
    if (left > 0)
        left = 0;
    if (left < -ExcessWidth)
        left = -ExcessWidth;
    twMove(Picture2, left, twTop(Picture2));
}

// ---- Fitting --------------------------------------------------------------

QSize FormMain::fittedSize(const QSize& picture) const
{
    const double width = picture.width() * kTwips;
    const double height = picture.height() * kTwips;
    const double ratioWidth = width / twWidth(Picture1);
    const double ratioHeight = height / twHeight(Picture1);
    if (ratioWidth < 1.0 && ratioHeight < 1.0)
        return {};
    const double fit = ratioWidth <= ratioHeight ? ratioHeight : ratioWidth;
    return {twipsToPixels(width / fit), twipsToPixels(height / fit)};
}

void FormMain::FitPictureToFrame()
{
    HScroll1->hide();
    VScroll1->hide();
    RatioWidth = twWidth(Picture2) / twWidth(Picture1);
    RatioHeight = twHeight(Picture2) / twHeight(Picture1);
    if (RatioWidth < 1.0 && RatioHeight < 1.0) {
        // Small pictures are never enlarged: they stay in Picture2, centred.
        Picture2->show();
        PlaceScrollBars();
        return;
    }
    FitRatio = RatioWidth <= RatioHeight ? RatioHeight : RatioWidth;
    Picture2->hide();
    // Picture2 serves as the measuring rectangle: its size changes, not its picture.
    twMove(Picture2, 0, 0, twWidth(Picture2) / FitRatio, twHeight(Picture2) / FitRatio);
    PrepareShow();
    twMove(Picture3, twLeft(Picture2), twTop(Picture2), twWidth(Picture2), twHeight(Picture2));
    const QString native = nativeOf(mainFile());
    QImage scaled = Picture2->hasPicture() ? pictures_->scaled(native, Picture3->size()) : QImage();
    if (scaled.isNull() && Picture2->hasPicture())
        scaled = Picture2->picture().scaled(Picture3->size(), Qt::IgnoreAspectRatio,
                                            Qt::SmoothTransformation);
    Picture3->setPicture(scaled);
    Picture3->show();
    twResize(Picture2, 0, 0);
}

void FormMain::PlaceScrollBars()
{
    if (PutPictureInImage) {
        twMove(Picture2, 0, 0, 0, 0);
        Picture2->hide();
        const QString native = nativeOf(mainFile());
        Picture3->setPicture(pictures_->full(native));
        twResize(Picture3, Picture3->pictureSize().width() * kTwips,
                 Picture3->pictureSize().height() * kTwips);
        CentrePicture3();
        return;
    }
    twMove(Picture3, 0, 0, 0, 0);
    Picture3->hide();
    HScroll1->hide();
    VScroll1->hide();
    const double scaleWidth = twScaleWidth(this);
    const double scaleHeight = twScaleHeight(this);
    if (HScrollNeeded) {
        HScroll1->show();
        if (!Frame3->isVisibleTo(this))
            twMove(HScroll1, 0, scaleHeight - twHeight(HScroll1), scaleWidth - twWidth(VScroll1),
                   twHeight(HScroll1));
        else
            twMove(HScroll1, twLeft(Picture1),
                   scaleHeight - twHeight(Frame3) - twHeight(HScroll1) - 10,
                   scaleWidth - twWidth(Frame1) - twWidth(VScroll1) - twLeft(Picture1),
                   twHeight(HScroll1));
        HScroll1->raise();
    } else {
        HScroll1->hide();
    }
    if (VScrollNeeded) {
        VScroll1->show();
        if (!Frame1->isVisibleTo(this))
            twMove(VScroll1, scaleWidth - twWidth(VScroll1), 0, twWidth(VScroll1),
                   scaleHeight - twHeight(HScroll1));
        else
            twMove(VScroll1, scaleWidth - twWidth(Frame1) - twWidth(VScroll1),
                   twTop(Frame2) + twHeight(Frame2), twWidth(VScroll1),
                   twTop(Frame3) - (twTop(Frame2) + twHeight(Frame2)) - twHeight(HScroll1));
        VScroll1->raise();
    } else {
        VScroll1->hide();
    }
}

void FormMain::CentrePicture3()
{
    Picture2->hide();
    Picture3->hide();
    ExcessHeight = rounded(twHeight(Picture1) - twHeight(Picture3));
    twMove(Picture3, twLeft(Picture3), truncated(ExcessHeight / 2.0));
    setCheckColour(CheckOriginalSize, kColorGrey);
    ExcessWidth = rounded(twWidth(Picture1) - twWidth(Picture3));
    twMove(Picture3, truncated(ExcessWidth / 2.0), twTop(Picture3));
    Picture3->show();
}

void FormMain::SetWebScrollBars()
{
    ExcessHeight = rounded(twHeight(Picture2) - twHeight(Picture1));
    ExcessWidth = rounded(twWidth(Picture2) - twWidth(Picture1));
    auto bar = [this](QScrollBar* scroll, qint32& excess, double left, double top, bool vertical) {
        if (excess > 0) {
            setBarValue(scroll, &QScrollBar::setMaximum, truncated(excess * 1.1));
            scroll->setMinimum(0);
            setBarValue(scroll, &QScrollBar::setPageStep, excess);
            setBarValue(scroll, &QScrollBar::setSingleStep, truncated(excess / 100.0));
            twMove(scroll, left, top);
            scroll->setValue(truncated(scroll->maximum() / 2.0));
            vertical ? VScroll1_Change() : HScroll1_Change();
            if (!state_.AutoPageOn)
                scroll->show();
            if (scroll->singleStep() > state_.PictureSizeAllowVal) {
                setCheckColour(CheckOriginalSize, kColorYellow);
                LargePictureFlag = !state_.AutoPageOn;
            }
        } else {
            scroll->hide();
            if (vertical) {
                excess = rounded(twHeight(Picture1) - twHeight(Picture2));
                twMove(Picture2, twLeft(Picture2), truncated(excess / 2.0));
            } else {
                excess = rounded(twWidth(Picture1) - twWidth(Picture2));
                twMove(Picture2, truncated(excess / 2.0), twTop(Picture2));
            }
            setCheckColour(CheckOriginalSize, kColorGrey);
        }
    };
    bar(VScroll1, ExcessHeight, twWidth(Picture1) + twLeft(Picture1), twTop(VScroll1), true);
    bar(HScroll1, ExcessWidth, twLeft(HScroll1), twHeight(Picture1) + twTop(Picture1), false);
}

// ---- The page redone for a new size ---------------------------------------

void FormMain::RelayoutCurrentPage()
{
    const QString forced = UCase(Trim(ForcedShowKind)); // SHOW words in any case
    QString kind;
    if (forced == QLatin1String("SHOW_NON"))
        return;
    if (forced == QLatin1String("SHOW_PICTURE"))
        kind = QStringLiteral("PIC");
    else if (forced == QLatin1String("SHOW_TEXT"))
        kind = QStringLiteral("TXT");
    else if (forced == QLatin1String("SHOW_INTEX"))
        kind = QStringLiteral("IE");
    else if (forced == QLatin1String("SHOW_MIDI"))
        kind = QStringLiteral("MIDI");
    else if (forced == QLatin1String("SHOW_MEDIAPL2"))
        kind = QStringLiteral("MEDIAPL2");
    else
        kind = UCase(CheckExtHat(mainFile(), state_.ExtTypeArray, TextAsAvi));

    const double width = twWidth(Picture1);
    const double height = twHeight(Picture1);
    if (kind == QLatin1String("PIC")) {
        twMove(Picture2, 0, 0, 0, 0);
        twMove(Picture3, 0, 0, 0, 0);
        DisplayPicturePage();
    } else if (kind == QLatin1String("TXT") || kind == QLatin1String("SND")) {
        if (kind == QLatin1String("SND"))
            PlaySoundFile(mainFile());
        twMove(Text1, 0, 0, width, height);
    } else if (kind == QLatin1String("IE")) {
        twMove(WebBrowser1, 0, 0, width, height);
    } else if (kind == QLatin1String("MIDI")) {
        twMove(Picture2, 0, 0, width, height);
        twMove(MediaPlayer2, (width - 4300) / 2 + twLeft(Picture2), twTop(Picture2));
    } else if (kind == QLatin1String("AVI") || kind == QLatin1String("MEDIAPL2")) {
        relayoutVideo(kind == QLatin1String("MEDIAPL2"));
    }
}

} // namespace lumen

namespace lumen {

void FormMain::prepareNextPicture()
{
    // The next page's picture (the one before, when the pages go back)
    // decodes off the interface thread at the size it will be shown, while
    // this page is looked at.
    const int page = state_.PicNo + (lastStep_ < 0 ? -1 : 1);
    if (CheckOriginalSize->isChecked() || page < 1 || page > FileCount)
        return;
    const QString next = state_.ListArray.at(kColMain, page);
    if (CheckExtHat(next, state_.ExtTypeArray, TextAsAvi) != QLatin1String("PIC"))
        return;
    const QString native = nativeOf(next);
    const QSize size = fittedSize(pictures_->probe(native));
    if (!size.isEmpty())
        pictures_->prepare(native, size);
}

} // namespace lumen
