#include "display/FormRClick5.h"

#include "display/PopupSupport.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Launcher.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QGridLayout>
#include <QPushButton>
#include <QStyle>

namespace lumen {
namespace {

const QString kAllFiles = QStringLiteral("(*.*)|*.*");

} // namespace

FormRClick5::FormRClick5(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormRClick5"), parent,
               Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , basics_(basics)
{
    CommandShowAutoRun =
        commandButton(QStringLiteral("CommandShowAutoRun"), QStringLiteral("Auto"), this);
    CommandRecover = commandButton(QStringLiteral("CommandRecover"), QStringLiteral("復元"), this);
    CommandDeleat = commandButton(QStringLiteral("CommandDeleat"), QStringLiteral("削除"), this);
    CommandOpenEdit =
        commandButton(QStringLiteral("CommandOpenEdit"), QStringLiteral("ｴﾃﾞｨﾀｰ"), this);
    CommandSave = commandButton(QStringLiteral("CommandSave"), QStringLiteral("Save"), this);
    CommandOpenSee = commandButton(QStringLiteral("CommandOpenSee"), QStringLiteral("Open"), this);
    CommandClose = commandButton(QStringLiteral("CommandClose"), QString(), this);
    CommandClose->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    grid->addWidget(CommandShowAutoRun, 0, 0, 1, 2);
    grid->addWidget(CommandRecover, 1, 0);
    grid->addWidget(CommandDeleat, 1, 1);
    grid->addWidget(CommandOpenEdit, 2, 0, 1, 2);
    grid->addWidget(CommandSave, 3, 0);
    grid->addWidget(CommandOpenSee, 3, 1);
    grid->addWidget(CommandClose, 4, 1, Qt::AlignRight);
    setFixedSize(sizeHint());

    connect(CommandShowAutoRun, &QPushButton::clicked, this,
            &FormRClick5::CommandShowAutoRun_Click);
    connect(CommandRecover, &QPushButton::clicked, this, &FormRClick5::CommandRecover_Click);
    connect(CommandDeleat, &QPushButton::clicked, this, &FormRClick5::CommandDeleat_Click);
    connect(CommandOpenEdit, &QPushButton::clicked, this, &FormRClick5::CommandOpenEdit_Click);
    connect(CommandSave, &QPushButton::clicked, this, &FormRClick5::CommandSave_Click);
    connect(CommandOpenSee, &QPushButton::clicked, this, &FormRClick5::CommandOpenSee_Click);
    connect(CommandClose, &QPushButton::clicked, this, &FormRClick5::CommandClose_Click);
}

void FormRClick5::showAt(double leftTwips, double topTwips)
{
    showFormAt(this, leftTwips, topTwips);
}

QString FormRClick5::fileOnShow() const
{
    return currentFile ? basic::Trim(currentFile()) : QString();
}

// The popup steps aside before the main window acts (a question may follow).
void FormRClick5::closeAndRun(const std::function<void()>& action)
{
    unload();
    if (action)
        action();
}

void FormRClick5::CommandShowAutoRun_Click()
{
    closeAndRun(openAutoPage);
}

void FormRClick5::CommandRecover_Click()
{
    closeAndRun(recover);
}

void FormRClick5::CommandDeleat_Click()
{
    closeAndRun(deleteFile);
}

// The picture editor of the settings, with the page's file: "editor file".
void FormRClick5::CommandOpenEdit_Click()
{
    unload();
    const Services& services = basics_.services();
    const QString editor = basic::Trim(FixedText(basics_.state().DirecData.PictureEditorPath));
    const QString file = fileOnShow();
    const QString commandLine = file.isEmpty() ? editor : editor + QLatin1Char(' ') + file;
    if (editor.isEmpty() || !services.launcher.shell(commandLine))
        services.ui.beep();
}

// A copy of the page's file, where the user says.
void FormRClick5::CommandSave_Click()
{
    unload();
    const Services& services = basics_.services();
    FileSystem& fs = services.fs;
    const QString file = fileOnShow();
    if (file.isEmpty() || !basics_.FileExists(file)) {
        services.ui.beep();
        return;
    }
    const auto chosen =
        services.ui.saveFileName(QStringLiteral("Save"), fs.toNative(file), kAllFiles);
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    if (!fs.copyFile(file, fs.toProgram(*chosen)))
        services.ui.beep();
}

void FormRClick5::CommandOpenSee_Click()
{
    unload();
    const Services& services = basics_.services();
    FileSystem& fs = services.fs;
    const auto chosen = services.ui.openFileName(QStringLiteral("Open"),
                                                 dialogStartFolder(fs, fileOnShow()), kAllFiles);
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    if (open)
        open(fs.toProgram(*chosen));
}

void FormRClick5::CommandClose_Click()
{
    unload();
}

} // namespace lumen
