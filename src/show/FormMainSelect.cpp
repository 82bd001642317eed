// FormMain: the ways into the file selection: the buttons that open the
// selection window and the search of the loaded list, and files dropped
// from the file manager on CommandOpenFileList.
#include "show/FormMain.h"

#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileDrops.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QTimer>

namespace lumen {

namespace {

constexpr int kDragColourMs = 1000;

} // namespace

void FormMain::buildSelectCommands()
{
    CommandSelectFile =
        commandButton(QStringLiteral("CommandSelectFile"), QStringLiteral("ﾌｧｲﾙ選択"), Frame1);
    CommandGiveFilter =
        commandButton(QStringLiteral("CommandGiveFilter"), QStringLiteral("ﾜｰﾄﾞ検出"), Frame1);
    // Under the list commands of the column.
    if (auto* column = qobject_cast<QBoxLayout*>(Frame1->layout())) {
        const int below = column->indexOf(CheckQuiCkWork) + 1;
        column->insertWidget(below, CommandSelectFile);
        column->insertWidget(below + 1, CommandGiveFilter);
    }
    connect(CommandSelectFile, &QPushButton::clicked, this,
            [this] { showWindow(QStringLiteral("FormSelectFile")); });
    connect(CommandGiveFilter, &QPushButton::clicked, this,
            [this] { showWindow(QStringLiteral("FormGiveFilter")); });

    auto* drops = new FileDropTarget(CommandOpenFileList);
    drops->entered = [this] {
        setBackColor(CommandOpenFileList, kColorYellow);
        QTimer::singleShot(kDragColourMs, CommandOpenFileList,
                           [this] { setBackColor(CommandOpenFileList, kColorGrey); });
    };
    drops->dropped = [this](const QMimeData* dropped) {
        if (links.dropOnOpenFileList)
            links.dropOnOpenFileList(dropped);
    };
}

} // namespace lumen
