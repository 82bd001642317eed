// FormSelectFile: list files in and out, drops, the locked folder and the
// file manager.
#include "select/FormSelectFile.h"

#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileDrops.h"
#include "platform/FileSystem.h"
#include "platform/FormRegistry.h"
#include "platform/Launcher.h"
#include "platform/TextCodec.h"
#include "platform/UserDialogs.h"
#include "select/RichTextBox.h"
#include "select/SelectionFiles.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QPushButton>

namespace lumen {

namespace {

using basic::Trim;

const QString kCrLf = QStringLiteral("\r\n");
const QString kListFilter = QStringLiteral("(*.lst)|*.lst|(*.*)|*.*");
const QString kNothingChosen = QStringLiteral("対象となるファイルが選択されていません");

} // namespace

void FormSelectFile::CommandOpenf_Click()
{
    FileSystem& fs = basics_.services().fs;
    const auto chosen = basics_.services().ui.openFileName(
        windowTitle(), fs.toNative(listDialogFolder(basics_)), kListFilter);
    if (!chosen)
        return; // cancelled
    fs.chDirToFolderOf(*chosen);
    const QString name = fs.toProgram(*chosen);
    const SelectionList list = readSelectionList(basics_, name);
    state_.StartFileName = name;
    if (list.count > kMostSelectionLines) {
        basics_.services().ui.msgBox(tooManyLinesMessage(list.count));
        return;
    }
    state_.AccessPassDir = StripTrailingBackslash(fs.curDir());
    writeAccessPass(basics_, state_.AccessPassDir);
    SetCommandWords(basics_, list.english ? QStringLiteral("EG") : QStringLiteral("JP"));
    if (links.listOpened)
        links.listOpened(list.english);
    Text1->setText(list.text);
    state_.EditArray.redim(kListColumns, list.count + 10);
    Text1->setSelStart(0);
}

void FormSelectFile::CommandSaveFile_Click()
{
    UserDialogs& ui = basics_.services().ui;
    if (Trim(Text1->text()).isEmpty()) {
        ui.msgBox(kNothingChosen);
        return;
    }
    FileSystem& fs = basics_.services().fs;
    const auto chosen =
        ui.saveFileName(windowTitle(), fs.toNative(listDialogFolder(basics_)), kListFilter);
    if (!chosen)
        return; // cancelled
    fs.chDirToFolderOf(*chosen);
    state_.AccessPassDir = StripTrailingBackslash(fs.curDir());
    writeAccessPass(basics_, state_.AccessPassDir);
    if (links.editorOn && links.editorOn() && links.toStandardText) {
        links.toStandardText();
        basics_.WaitMilliseconds(300);
    }
    const QString file = fs.toProgram(*chosen);
    // Written whole or not at all: a list that can't be written leaves the
    // old file as it was, and the old file is not shown as if it were new.
    if (!basics_.WriteTextToFile(Text1->text(), file)) {
        ui.msgBox(QStringLiteral("ファイルに保存できませんでした。") + kCrLf + file);
        return;
    }
    if (!CheckAddToList->isChecked())
        return;
    SaveLockInfo();
    ShowListOnMain(file);
}

void FormSelectFile::ShowListOnMain(const QString& file)
{
    if (links.showMain)
        links.showMain();
    if (links.clearDisplay)
        links.clearDisplay(QString());
    if (links.openFileList)
        links.openFileList(file);
}

void FormSelectFile::CommandSaveFile_Drop(const QMimeData* dropped)
{
    GetDataAndMakeList(dropped);
    if (!links.quickWork || !links.quickWork())
        return;
    if (links.showMain)
        links.showMain();
    if (links.openFileList)
        links.openFileList(dropListName(basics_));
    if (links.commandFull)
        links.commandFull();
}

void FormSelectFile::GetDataAndMakeList(const QMimeData* dropped)
{
    if (!holdsFiles(dropped) || walking_)
        return;
    state_.StopRequested = false;
    if (FormBase* stop = forms_.form(QStringLiteral("FormStop"))) {
        stop->load();
        const QRect here = frameGeometry();
        stop->move(here.right() + 1 - stop->frameGeometry().width(), here.top());
    }
    basics_.host().showStop();
    FileSystem& fs = basics_.services().fs;
    const TreeLister tree = [this](const QString& folder) { return ListFolder(folder); };
    lastPump_ = basics_.services().clock.tickCount();
    const QStringList lines = dropListLines(basics_, droppedNames(dropped, fs), tree,
                                            [this] { return listingShouldStop(); });
    basics_.WriteTextToFile(lines.join(kCrLf), dropListName(basics_));
    basics_.host().unloadStop();
}

QStringList FormSelectFile::ListFolder(const QString& folder)
{
    // A folder that is gone by now gives nothing, never Dir1's old folder.
    if (!basics_.services().fs.isFolder(folder))
        return QStringList();
    Dir1->setPath(folder);
    QString found;
    FileSelectQuick(QString(), QStringLiteral("INC"), QStringLiteral("DIR"), found);
    return text::splitLines(found);
}

void FormSelectFile::RefreshBoxes()
{
    Drive1->refresh();
    Dir1->refresh();
    File1->refresh();
}

void FormSelectFile::SaveLockInfo()
{
    writeFolderLock(basics_, {state_.AccessLockDir, CheckDirectryLock->isChecked() ? 1 : 0});
}

void FormSelectFile::CommandDirectrySet_Click()
{
    const QString question =
        CheckDirectryLock->isChecked()
            ? QStringLiteral("今のディレクトリーは ") + state_.AccessLockDir +
                  QStringLiteral(" です。")
            : QStringLiteral("今選択されているディレクトリーを優先して開くようにしますか？");
    if (basics_.services().ui.askYesNo(question) != kAnswerYes)
        return;
    state_.AccessLockDir = File1->path();
    CheckDirectryLock->setChecked(true);
    writeFolderLock(basics_, {state_.AccessLockDir, 1});
    basics_.services().ui.beep();
    setBackColor(CommandDirectrySet, kColorGreen);
    basics_.WaitMilliseconds(100);
    setBackColor(CommandDirectrySet, kColorButtonFace);
}

void FormSelectFile::CommandExploler_Click()
{
    basics_.services().launcher.shellExecuteOpen(Dir1->path());
}

} // namespace lumen
