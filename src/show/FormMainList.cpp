// FormMain: opening a list, the half-minute view of its text, and the
// display reset before a page.
#include "show/FormMain.h"

#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "display/WebBrowser.h"
#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/ListLoader.h"
#include "platform/Basic.h"
#include "platform/ClickLabel.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

namespace lumen {
namespace {

using namespace basic;

constexpr int kListViewSeconds = 31;
constexpr double kOutOfSight = -30000;
constexpr double kBesideText = 100; // twips between the list view and CommandNoText

bool shownOwn(const QWidget* control)
{
    return !control->isHidden();
}

} // namespace

void FormMain::OpenFileList(const QString& fileName)
{
    QString text;
    QString source;
    const int count = prepareWorkingCopy(basics_, fileName, &text, &source);
    if (count < 0)
        return;

    basics_.host().showStop();
    // A list opened at start (the last one, again) opens while the window
    // is still loading: its half-minute view needs the window on show.
    if (!isVisible())
        show();
    setWindowTitle(QStringLiteral("Lumenta_KDR"));
    Picture2->hide();
    Picture3->hide();
    FullOnNext = false;
    NormalOnNext = true;
    for (const char* name : {"FormOption", "FormEdit", "FormComment"})
        forms_.unload(QString::fromLatin1(name));
    if (state_.AutoPageOn)
        stopAutoPage();

    basics_.WaitMilliseconds(100);
    // The whole file is read here, which clears a stop asked for before; the
    // text was read with the count already, unless the count found nothing.
    state_.StopRequested = false;
    if (count == 0) {
        state_.ListFileName = workingCopyName(basics_);
        text = basics_.ReadTextOfFile(source);
    }
    const bool quick = CheckQuiCkWork->isChecked();
    const ListFill fill = fillListArray(basics_, text, count, !quick);
    FileCount = fill.fileCount; // a stop leaves the rows as far as read
    if (fill.stopped)
        return;

    twMove(Picture2, 0, 0, twWidth(Picture1), twHeight(Picture1));
    Picture2->show();
    if (!quick) {
        // The list over the display area, CommandNoText 100 twips beside it.
        CommandNoText->adjustSize();
        twMove(Text1, 0, 0, twWidth(Picture1) - twWidth(CommandNoText) - 2 * kBesideText,
               twHeight(Picture1));
        Text1->setPlainText(listViewText(fill.displayText));
        Text1->show();
    }

    state_.PicNo = 1;
    TextCount->setText(QStringLiteral("1"));
    TextTotal->setText(QString::number(FileCount));
    TextFileName->setText(state_.ListArray.at(kColMain, 1));
    if (!quick) {
        twMove(CommandNoText, twLeft(Text1) + twWidth(Text1) + kBesideText, kBesideText);
        CommandNoText->show();
        CommandNoText->raise();
    }
    Picture1->clearPicture();
    Picture2->clearPicture();

    if (quick) {
        CommandNoText_Click();
    } else {
        // The list stays readable for half a minute, unless CommandNoText ends it.
        noTextWait_ = 1000;
        for (int second = 0; second < kListViewSeconds; ++second)
            basics_.WaitMilliseconds(noTextWait_);
        CommandNoText->hide();
        Text1->hide();
    }

    LabelDo_Click();
    state_.AutoPageOn = false;
    setBackColor(LabelSmall, kColorGrey);
    setBackColor(LabelMax, kColorGrey);
    basics_.host().unloadStop();
}

void FormMain::CommandNoText_Click()
{
    noTextWait_ = 0;
    HScrollPicNom->setPageStep(FileCount >= 11 ? FileCount / 10 : 1);
    HScrollPicNom->setSingleStep(1);
    Text1->hide();
    state_.ListReady = true;
}

void FormMain::CommandOpenFileList_Click()
{
    state_.WebPageShown = false;
    QString start;
    const QString lastList = TrimLineEnds(QString(state_.DirecData.LastListFile));
    if (!basics_.FileExists(lastList)) {
        start = (state_.DirectryLock == 1 ? state_.AccessLockDir : state_.AccessPassDir) +
                QStringLiteral("\\*.lst");
    } else {
        start = FolderOfPath(lastList) + QStringLiteral("*.lst");
    }
    FileSystem& fs = basics_.services().fs;
    const QString startFolder = fs.toNative(FolderOfPath(start));
    const auto chosen = basics_.services().ui.openFileName(
        windowTitle(), startFolder, QStringLiteral("(*.lst)|*.lst|(*.*)|*.*"));
    if (!chosen)
        return; // cancelled
    const QString name = fs.toProgram(*chosen);
    fs.chDir(FolderOfPath(name)); // an accepted dialog moves the current folder
    if (!UCase(name).contains(QLatin1String(".LST")))
        return;
    state_.AccessPassDir = StripTrailingBackslash(fs.curDir());
    basics_.WriteTextToFile(state_.AccessPassDir,
                            state_.ProgramRunDir + QStringLiteral("\\AccessPass.dat"));
    fs.copyFile(name, state_.DataDir + QStringLiteral("\\RunFile.Lst"));
    state_.ForcedDriveFrom.clear();
    state_.ForcedDriveTo.clear();
    state_.StartFileName = name;
    OpenFileList(name);
}

void FormMain::CleareDisp(QString kind)
{
    kind = UCase(Trim(kind));
    const bool all = kind.isEmpty() || kind == QLatin1String("?");
    auto clear = [&](QWidget* surface, const char* keep) {
        return all || (shownOwn(surface) && kind != QLatin1String(keep));
    };
    if (clear(MediaPlayer1, "MPL")) {
        MediaPlayer1->Stop();
        MediaPlayer1->hide();
        MediaPlayer1->Move(kOutOfSight, kOutOfSight);
    }
    if (clear(MediaPlayer2, "MIDI")) {
        MediaPlayer2->Stop();
        MediaPlayer2->hide();
        MediaPlayer2->Move(kOutOfSight, kOutOfSight);
    }
    if (clear(WebBrowser1, "WEB")) {
        WebBrowser1->NavigateAway();
        WebBrowser1->hide();
    }
    if (movie_ && !movie_->isHidden()) {
        movie_->Stop();
        movie_->hide();
    }
    forms_.unload(QStringLiteral("FormCDMusic"));
    if (clear(Text1, "TXT")) {
        Text1->clear();
        Text1->hide();
    }
    if (clear(Picture2, "PIC")) {
        Picture2->clearPicture();
        Picture2->hide();
        twMove(Picture2, twLeft(Picture1), twTop(Picture1), twWidth(Picture1), twHeight(Picture1));
    }
    if (clear(Picture3, "PIC")) {
        Picture3->clearPicture();
        Picture3->hide();
    }
}

void FormMain::LabelDo_Click()
{
    if (TextFileName->text().contains(QLatin1Char(':')))
        TakeMainAction();
}

void FormMain::TextCount_Change()
{
    ScrollGuard = true;
    qint16 page = 0;
    if (!StoreInt16(page, Val(TextCount->text())))
        return; // a number that doesn't fit the page bar is passed over
    HScrollPicNom->setValue(page);
    showNavigatorPage(page);
}

void FormMain::TextTotal_Change()
{
    qint16 total = 0;
    if (StoreInt16(total, Val(TextTotal->text())))
        HScrollPicNom->setMaximum(total);
}

void FormMain::TextHeadName_Change()
{
    TextNum->setText(QStringLiteral("001"));
}

} // namespace lumen
