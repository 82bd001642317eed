#include "start/StateDump.h"

#include "display/PictureBox.h"
#include "fileops/FormFileOption.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "select/RichTextBox.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QSocketNotifier>
#include <QTextBlock>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace lumen {
namespace {

int signalPipe[2] = {-1, -1};

// The controls of picture work that whole-program tests press.
constexpr const char* kPictureWorkControls[] = {"CommandModPic",
                                                "CommandSaveImage",
                                                "CommandWriteCommentOnPic",
                                                "OptionSplineClose",
                                                "CommandStartDrawLine",
                                                "CommandDoSpline",
                                                "CommandStopDrawLine",
                                                "CommandStartPaintColor",
                                                "CommandStopDrawPaint",
                                                "CommandSavePicPNG",
                                                "CommandPast",
                                                "CommandSetText"};

// The controls of the list editor and its way in that whole-program tests press.
constexpr const char* kEditorControls[] = {
    "CommandOpenf", "CommandEditCommand1", "TextWaitTime",
    "CommandAdd",   "CommandUpdate",       "CommandUp",
    "CommandDoun",  "CommandStanderdText", "CommandReplaceEditor"};

// The first lines of the selection's Text1 that are on show, by their
// number in the box: where a test points to click a row of the editor text.
void text1Lines(const QWidget* window, QStringList& lines)
{
    const auto* box = window->findChild<RichTextBox*>(QStringLiteral("Text1"));
    if (!box || !box->isVisible())
        return;
    const QTextDocument* document = box->document();
    for (int line = 0; line < qMin(document->blockCount(), 12); ++line) {
        QTextCursor at(document->findBlockByNumber(line));
        const QRect place = box->cursorRect(at);
        if (!box->viewport()->rect().contains(place.center()))
            continue;
        const QPoint centre = box->viewport()->mapToGlobal(place.center() + QPoint(40, 0));
        lines << QStringLiteral("Line.%1.Text1.%2=%3 %4")
                     .arg(window->objectName())
                     .arg(line)
                     .arg(centre.x())
                     .arg(centre.y());
    }
}

// The controls of bulk work and the bindings that whole-program tests press.
constexpr const char* kBulkControls[] = {
    "CommandFileOption", "OptionAutoRename", "TextNom",     "TextDirectry",  "CommandMakeDirectry",
    "CommandDo",         "CommandOK",        "CommandSkip", "CommandEditor", "CommandEdit"};

void onSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

} // namespace

StateDump::StateDump(Lumenta& app)
    : app_(app)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalPipe) != 0)
        return;
    notifier_ = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this] {
        char byte;
        [[maybe_unused]] const auto read = ::read(signalPipe[0], &byte, 1);
        write();
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGUSR1, &action, nullptr);
}

StateDump::~StateDump()
{
    signal(SIGUSR1, SIG_DFL);
}

QString StateDump::text() const
{
    FormMain& main = app_.formMain();
    QStringList lines;
    lines << QStringLiteral("Caption=") + main.windowTitle();
    for (QLineEdit* box : {main.TextFileName, main.TextCount, main.TextTotal})
        lines << box->objectName() + QLatin1Char('=') + box->text();
    lines << QStringLiteral("PicNo=") + QString::number(app_.state().PicNo);
    lines << QStringLiteral("ListReady=") + (app_.state().ListReady ? "True" : "False");
    lines << QStringLiteral("AutoPageOn=") + (app_.state().AutoPageOn ? "True" : "False");
    // The delay of the page on show, as the list gives it.
    lines << QStringLiteral("PageDelay=") +
                 app_.state().ListArray.at(kColDelay, app_.state().PicNo);
    lines << QStringLiteral("EditorOn=") + (app_.state().EditorOn ? "True" : "False");
    lines << QStringLiteral("EditRow=") + QString::number(app_.state().EditRow);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->objectName().isEmpty())
            continue;
        const QRect place = window->frameGeometry();
        lines << QStringLiteral("Shown=") + window->objectName();
        lines << QStringLiteral("Window.%1=%2 %3 %4 %5")
                     .arg(window->objectName())
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height());
        const auto clickable = [&](const char* name) {
            const auto* button = window->findChild<QWidget*>(QString::fromLatin1(name));
            if (!button || !button->isVisible() || button->window() != window)
                return;
            const QPoint centre = button->mapToGlobal(button->rect().center());
            lines << QStringLiteral("Click.%1.%2=%3 %4")
                         .arg(window->objectName(), QString::fromLatin1(name))
                         .arg(centre.x())
                         .arg(centre.y());
        };
        for (const char* name :
             {"CommandFull", "CommandOption", "CommandExit", "CommandStart", "CommandNoText",
              "LabelDo", "CommandStop", "CommandToNormalSize", "CommandSelectFile",
              "CheckQuiCkWork", "CommandAll", "CommandSaveFile"})
            clickable(name);
        for (const char* name : kPictureWorkControls)
            clickable(name);
        for (const char* name : kEditorControls)
            clickable(name);
        if (window->objectName() == QLatin1String("FormSelectFile"))
            text1Lines(window, lines);
        for (const char* name : kBulkControls)
            clickable(name);
    }
    // The row of the list that bulk work has in hand, 0 when it has none.
    if (auto* bulk =
            static_cast<FormFileOption*>(app_.forms().existing(QStringLiteral("FormFileOption")))) {
        const BulkWalk& walk = bulk->walk();
        lines << QStringLiteral("FileOptionRow=%1").arg(walk.running() ? walk.row() : 0);
    }
    // Where the picture on show lies on the screen, for pointing at its pixels.
    if (main.Picture2->isVisible()) {
        const QPoint corner = main.Picture2->mapToGlobal(QPoint(0, 0));
        lines << QStringLiteral("Place.FormMain.Picture2=%1 %2 %3 %4")
                     .arg(corner.x())
                     .arg(corner.y())
                     .arg(main.Picture2->width())
                     .arg(main.Picture2->height());
    }
    return lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}

void StateDump::write()
{
    const QString file = app_.state().ProgramRunDir + QStringLiteral("\\StateDump.txt");
    writeTextFileSafely(app_.basics().services().fs.toNative(file), text());
}

} // namespace lumen
