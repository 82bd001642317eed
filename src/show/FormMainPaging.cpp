// FormMain: moving between pages, and copying, deleting and recovering the
// page's file.
#include "show/FormMain.h"

#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/SafeFile.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

using namespace basic;

bool holdsColon(const QLineEdit* box)
{
    return box->text().contains(QLatin1Char(':'));
}

} // namespace

void FormMain::step(int direction)
{
    if (links.hideEditFrames)
        links.hideEditFrames();
    ScrollGuard = true;
    lastStep_ = direction;
    const bool forward = direction > 0;
    if (!StoreInt16(state_.PicNo, double(state_.PicNo) + direction))
        return;
    setBackColor(forward ? LabelSmall : LabelMax, kColorGrey);
    const bool onList = forward ? state_.PicNo <= FileCount : state_.PicNo >= 1;
    if (onList) {
        setBackColor(forward ? LabelMax : LabelSmall, kColorGrey);
        TakeMainAction();
        const FormBase* comment = forms_.existing(QStringLiteral("FormComment"));
        if (backColor(CommandWriteCommentOnPic) == kColorGreen && comment && comment->isVisible() &&
            links.pasteCommentOnPicture)
            links.pasteCommentOnPicture();
        return;
    }
    state_.PicNo = qint16(forward ? FileCount : 1);
    setBackColor(forward ? LabelMax : LabelSmall, kColorRed);
}

void FormMain::CommandRight_Click()
{
    step(+1);
}

void FormMain::CommandLeft_Click()
{
    step(-1);
}

void FormMain::showKey(ShowKey key)
{
    const bool wholeScreen = !CommandLeft->isVisibleTo(this);
    switch (key) {
    case ShowKey::Next:
        if (CommandRight->isEnabled())
            CommandRight_Click();
        break;
    case ShowKey::Previous:
        if (CommandLeft->isEnabled())
            CommandLeft_Click();
        break;
    case ShowKey::First:
    case ShowKey::Last:
        // Through the page bar, as a drag of it to its end would.
        ScrollGuard = false;
        HScrollPicNom->setValue(key == ShowKey::First ? 1 : HScrollPicNom->maximum());
        break;
    case ShowKey::Escape:
        if (!CommandNoText->isHidden())
            CommandNoText_Click();
        else if (wholeScreen)
            FORMNORMALSIZE();
        break;
    }
}

void FormMain::HScrollPicNom_Scroll()
{
    const int value = HScrollPicNom->sliderPosition();
    state_.PicNo = qint16(value);
    if (value >= 1 && value <= FileCount) {
        TextFileName->setText(mainFile());
        TextCount->setText(QString::number(value));
    }
}

void FormMain::HScrollPicNom_Change()
{
    if (!holdsColon(TextFileName))
        return;
    if (ScrollGuard) {
        ScrollGuard = false;
        return;
    }
    Picture3->hide();
    Text1->hide();
    state_.PicNo = qint16(HScrollPicNom->value());
    setWindowTitle(QString());
    CleareDisp(QStringLiteral("PIC"));
    const QString file = mainFile();
    const QString caps = UCase(file);
    // Only a picture is shown from the bar; LabelDo plays the other kinds.
    if (caps.contains(QLatin1String("JPG")) || caps.contains(QLatin1String("BMP")) ||
        caps.contains(QLatin1String("TIF")) || caps.contains(QLatin1String("ICO")) ||
        caps.contains(QLatin1String("PNG"))) {
        if (basics_.FileExists(file))
            DisplayPicturePage();
        else
            setWindowTitle(QStringLiteral("File Not Found"));
    }
    TextFileName->setText(file);
    if (isMaximized())
        setWindowTitle(file);
    TextCount->setText(QString::number(HScrollPicNom->value()));
    CommandNoText->hide();
}

void FormMain::CommandCopy_Click()
{
    if (!holdsColon(TextFileName))
        return;
    setBackColor(CommandCopy, kColorGreen);
    const QString name = Trim(TextFileName->text());
    const QString extension = TextAfterFirstDot(name);
    QString target = state_.DataDir + QLatin1Char('\\') + TextHeadName->text();
    if (!TextNum->text().isEmpty())
        target += QLatin1Char('_') + TextNum->text();
    target += QLatin1Char('.') + extension;
    basics_.services().fs.copyFile(name, target);
    if (!TextNum->text().isEmpty())
        TextNum->setText(Format(Val(TextNum->text()) + 1, QStringLiteral("000")));
    if (!state_.AutoPageOn)
        basics_.services().ui.beep();
    basics_.WaitMilliseconds(300);
    setBackColor(CommandCopy, kColorGrey);
}

void FormMain::CommandDeleate_Click()
{
    if (!holdsColon(TextFileName))
        return;
    setBackColor(CommandDeleate, kColorGreen);
    const QString name = Trim(TextFileName->text());
    const QString extension = TextAfterFirstDot(name);
    if (QStringList{"WRL", "NFF", "XV3", "CO"}.contains(UCase(extension))) {
        basics_.services().ui.msgBox(
            QStringLiteral("複数のﾌｧｲﾙを含むため消去はしません。別の方法で削除してください"));
        setBackColor(CommandDeleate, kColorGrey);
        return;
    }
    const QString undo = state_.ProgramRunDir + QStringLiteral("\\DelTempF.") + extension;
    FileSystem& fs = basics_.services().fs;
    fs.copyFile(name, undo);
    basics_.WriteTextToFile(undo + QLatin1Char(',') + name,
                            state_.ProgramRunDir + QStringLiteral("\\DelTempFName.txt"));
    if (!fs.dir(name).isEmpty())
        basics_.DeleteFileConfirmed(name);
    if (state_.WebPageShown)
        navigateWebAway();
    closeVideo();
    Text1->clear();
    Picture3->clearPicture();
    Picture2->clearPicture();
    basics_.services().ui.beep();
    basics_.WaitMilliseconds(100);
    setBackColor(CommandDeleate, kColorGrey);
}

void FormMain::CommandRecov_Click()
{
    FileSystem& fs = basics_.services().fs;
    const QString recordFile = state_.ProgramRunDir + QStringLiteral("\\DelTempFName.txt");
    const QString record =
        TrimLineEnds(readSettingsFile(fs.toNative(recordFile)).value_or(QString()));
    const FilePair pair = SplitFilePair(record);
    const QString undo = Trim(pair.from);
    const QString original = Trim(pair.to);
    if (undo.isEmpty() || original.isEmpty())
        return;
    setBackColor(CommandRecov, kColorGreen);
    fs.copyFile(undo, original);
    fs.deleteFile(undo);
    fs.deleteFile(recordFile);
    TakeMainAction();
    basics_.services().ui.beep();
    basics_.WaitMilliseconds(100);
    setBackColor(CommandRecov, kColorGrey);
}

} // namespace lumen
