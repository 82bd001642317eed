// FormMain: the way into bulk work along the list: CommandFileOption beside
// the page's own file commands opens FormFileOption.
#include "show/FormMain.h"

#include "platform/Controls.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>

namespace lumen {

void FormMain::buildBulkCommands()
{
    CommandFileOption =
        commandButton(QStringLiteral("CommandFileOption"), QStringLiteral("ﾌｧｲﾙｵﾌﾟｼｮﾝ"), Frame3);
    // Behind the commands on the page's file (copy, delete, recover).
    if (auto* grid = qobject_cast<QGridLayout*>(Frame3->layout())) {
        if (QLayoutItem* row = grid->itemAtPosition(1, 0)) {
            if (auto* commands = qobject_cast<QBoxLayout*>(row->layout()))
                commands->insertWidget(commands->indexOf(CommandRecov) + 1, CommandFileOption);
        }
    }
    connect(CommandFileOption, &QPushButton::clicked, this,
            [this] { showWindow(QStringLiteral("FormFileOption")); });
}

} // namespace lumen
