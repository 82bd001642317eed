#include "select/FormRClick3.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "select/FolderWalk.h"
#include "select/FormSelectFile.h"
#include "select/SelectionFiles.h"
#include "select/UndoStore.h"
#include "state/ProgramState.h"

#include <QGridLayout>
#include <QPushButton>
#include <QStyle>

namespace lumen {

namespace {

using basic::Trim;

} // namespace

FormRClick3::FormRClick3(VeroProcedure_Basical& basics, FormSelectFile& select, QWidget* parent)
    : FormBase(QStringLiteral("FormRClick3"), parent,
               Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , basics_(basics)
    , select_(select)
{
    CommandOpen = commandButton(QStringLiteral("CommandOpen"), QStringLiteral("すぐ見る"), this);
    CommandOpenEdit =
        commandButton(QStringLiteral("CommandOpenEdit"), QStringLiteral("ｴﾃﾞｨﾀｰ"), this);
    CommandDel1 = commandButton(QStringLiteral("CommandDel1"), QStringLiteral("一つ削除"), this);
    CommandRecover =
        commandButton(QStringLiteral("CommandRecover"), QStringLiteral("一つ復元"), this);
    CommandDelAll =
        commandButton(QStringLiteral("CommandDelAll"), QStringLiteral("全部削除"), this);
    CommandRefresh =
        commandButton(QStringLiteral("CommandRefresh"), QStringLiteral("ﾘﾌﾚｯｼｭ"), this);
    CommandClose = commandButton(QStringLiteral("CommandClose"), QString(), this);
    CommandClose->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    grid->addWidget(CommandOpen, 0, 0);
    grid->addWidget(CommandOpenEdit, 0, 1);
    grid->addWidget(CommandDel1, 1, 0);
    grid->addWidget(CommandRecover, 1, 1);
    grid->addWidget(CommandDelAll, 2, 0);
    grid->addWidget(CommandRefresh, 2, 1);
    grid->addWidget(CommandClose, 3, 1, Qt::AlignRight);
    setFixedSize(sizeHint());
    connect(CommandOpen, &QPushButton::clicked, this, &FormRClick3::CommandOpen_Click);
    connect(CommandOpenEdit, &QPushButton::clicked, this, &FormRClick3::CommandOpenEdit_Click);
    connect(CommandDel1, &QPushButton::clicked, this, &FormRClick3::CommandDel1_Click);
    connect(CommandRecover, &QPushButton::clicked, this, &FormRClick3::CommandRecover_Click);
    connect(CommandDelAll, &QPushButton::clicked, this, &FormRClick3::CommandDelAll_Click);
    connect(CommandRefresh, &QPushButton::clicked, this, &FormRClick3::CommandRefresh_Click);
    connect(CommandClose, &QPushButton::clicked, this, [this] { unload(); });
}

void FormRClick3::Form_Load()
{
    // FormEdit2 comes with the program settings; without them the button can't be pressed.
    CommandOpenEdit->setEnabled(bool(select_.links.showEdit2));
}

void FormRClick3::beepUnlessAutoPage()
{
    if (!basics_.state().AutoPageOn)
        basics_.services().ui.beep();
}

void FormRClick3::CommandOpen_Click()
{
    const QString file = Trim(basics_.state().SelectedFile);
    if (file.isEmpty()) {
        basics_.services().ui.msgBox(QStringLiteral("対象となるファイルが選択されていません"));
        return;
    }
    const QString list = dropListName(basics_);
    basics_.WriteTextToFile(file, list);
    // The main window comes forward in place of the selection window.
    select_.hide();
    hide();
    select_.ShowListOnMain(list);
}

void FormRClick3::CommandOpenEdit_Click()
{
    if (select_.links.showEdit2)
        select_.links.showEdit2(frameGeometry().topLeft());
}

void FormRClick3::CommandDel1_Click()
{
    const QString file = Trim(basics_.state().SelectedFile);
    if (file.isEmpty())
        return;
    deleteKeepingUndo(basics_, file);
    select_.File1->refresh();
    beepUnlessAutoPage();
}

void FormRClick3::CommandRecover_Click()
{
    ProgramState& state = basics_.state();
    if (Trim(state.SelectedFile).isEmpty())
        return;
    const QString original = recoverFromUndo(basics_);
    if (!original.isEmpty())
        state.SelectedFile = original;
    select_.File1->refresh();
    beepUnlessAutoPage();
}

void FormRClick3::CommandDelAll_Click()
{
    UserDialogs& ui = basics_.services().ui;
    if (ui.askYesNo(QStringLiteral("ここにある全てのﾌｧｲﾙが消え復元できません。続けますか？")) !=
        kAnswerYes)
        return;
    ProgramState& state = basics_.state();
    state.StopRequested = false;
    FileListBox* files = select_.File1;
    const QString folder = files->path();
    QStringList names;
    for (int i = 0; i < files->count(); ++i)
        names.append(files->item(i)->text());
    FileSystem& fs = basics_.services().fs;
    for (const QString& name : std::as_const(names)) {
        basics_.DoEvents();
        if (state.StopRequested)
            break;
        state.SelectedFile = joinFolderAndName(folder, name);
        if (!fs.dir(state.SelectedFile).isEmpty())
            basics_.DeleteFileConfirmed(state.SelectedFile);
    }
    files->refresh();
    basics_.WaitMilliseconds(100);
    ui.beep();
    state.StopRequested = false;
}

void FormRClick3::CommandRefresh_Click()
{
    basics_.RefreshFileControls();
    update();
}

} // namespace lumen
