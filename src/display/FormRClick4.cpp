#include "display/FormRClick4.h"

#include "display/PopupSupport.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Launcher.h"
#include "platform/SafeFile.h"
#include "platform/Twips.h"
#include "platform/UserDialogs.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

namespace lumen {
namespace {

constexpr int kOpened = 42; // the desktop's opener took the file

} // namespace

FormRClick4::FormRClick4(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent)
    : FormBase(QStringLiteral("FormRClick4"), parent,
               Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , basics_(basics)
    , forms_(forms)
{
    CommandSetFont =
        commandButton(QStringLiteral("CommandSetFont"), QStringLiteral("ﾌｫﾝﾄ/ｶﾗｰ"), this);
    CommandSmall = commandButton(QStringLiteral("CommandSmall"), QStringLiteral("画面縮小"), this);
    CommandBig = commandButton(QStringLiteral("CommandBig"), QStringLiteral("画面拡大"), this);
    CommandOpenSee =
        commandButton(QStringLiteral("CommandOpenSee"), QStringLiteral("すぐ見る"), this);
    CommandToFile = commandButton(QStringLiteral("CommandToFile"), QStringLiteral("Save"), this);
    CommandClose = commandButton(QStringLiteral("CommandClose"), QString(), this);
    CommandClose->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    grid->addWidget(CommandSetFont, 0, 0, 1, 2);
    grid->addWidget(CommandSmall, 1, 0);
    grid->addWidget(CommandBig, 1, 1);
    grid->addWidget(CommandOpenSee, 2, 0);
    grid->addWidget(CommandToFile, 2, 1);
    grid->addWidget(CommandClose, 3, 1, Qt::AlignRight);
    setFixedSize(sizeHint());

    connect(CommandSetFont, &QPushButton::clicked, this, &FormRClick4::CommandSetFont_Click);
    connect(CommandSmall, &QPushButton::clicked, this, &FormRClick4::CommandSmall_Click);
    connect(CommandBig, &QPushButton::clicked, this, &FormRClick4::CommandBig_Click);
    connect(CommandOpenSee, &QPushButton::clicked, this, &FormRClick4::CommandOpenSee_Click);
    connect(CommandToFile, &QPushButton::clicked, this, &FormRClick4::CommandToFile_Click);
    connect(CommandClose, &QPushButton::clicked, this, &FormRClick4::CommandClose_Click);
}

void FormRClick4::showAt(double leftTwips, double topTwips)
{
    showFormAt(this, leftTwips, topTwips);
}

QString FormRClick4::fileOnShow() const
{
    return currentFile ? basic::Trim(currentFile()) : QString();
}

void FormRClick4::CommandSetFont_Click()
{
    openFontAndColor(forms_, QStringLiteral("TEXT"), twLeft(this) + twWidth(this), twTop(this));
    unload();
}

void FormRClick4::CommandSmall_Click()
{
    resizeMainBy(-kSizeStep);
}

void FormRClick4::CommandBig_Click()
{
    resizeMainBy(kSizeStep);
}

// The main window keeps its left top corner and grows or shrinks by one step
// each way, never below the smallest size nor beyond the screen.
void FormRClick4::resizeMainBy(double step)
{
    QWidget* window = mainWindow ? mainWindow() : nullptr;
    if (!window)
        return;
    if (window->isMaximized() || window->isFullScreen())
        window->showNormal();
    double width = qMax<double>(twWidth(window) + step, kSmallestWidth);
    double height = qMax<double>(twHeight(window) + step, kSmallestHeight);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        width = qMin<double>(width, pixelsToTwips(screen->geometry().width()));
        height = qMin<double>(height, pixelsToTwips(screen->geometry().height()));
    }
    twMove(window, twLeft(window), twTop(window), width, height);
}

void FormRClick4::CommandOpenSee_Click()
{
    unload();
    const QString file = fileOnShow();
    const Services& services = basics_.services();
    if (file.isEmpty() || services.launcher.shellExecuteOpen(file) != kOpened)
        services.ui.beep();
}

void FormRClick4::CommandToFile_Click()
{
    unload();
    const Services& services = basics_.services();
    FileSystem& fs = services.fs;
    const auto chosen =
        services.ui.saveFileName(QStringLiteral("Save"), dialogStartFolder(fs, fileOnShow()),
                                 QStringLiteral("(*.txt)|*.txt|(*.*)|*.*"));
    if (!chosen)
        return;
    fs.chDirToFolderOf(*chosen);
    // Text files of the program end their lines with CR LF.
    QString text = shownText ? shownText() : QString();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    if (!writeTextFileSafely(*chosen, text))
        services.ui.beep();
}

void FormRClick4::CommandClose_Click()
{
    unload();
}

} // namespace lumen
