#include "select/FormGiveFilter.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Controls.h"
#include "platform/UserDialogs.h"
#include "select/SelectFilter.h"
#include "state/ProgramState.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace lumen {

FormGiveFilter::FormGiveFilter(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormGiveFilter"), parent, Qt::Tool)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("ﾜｰﾄﾞによる検出"));
    TextFilter = named<QLineEdit>(QStringLiteral("TextFilter"), this);
    CommandFined = commandButton(QStringLiteral("CommandFined"), QStringLiteral("先頭検出"), this);
    CommandNext = commandButton(QStringLiteral("CommandNext"), QStringLiteral("次検出"), this);
    CommandBack = commandButton(QStringLiteral("CommandBack"), QStringLiteral("前検出"), this);
    auto* grid = new QGridLayout(this);
    grid->addWidget(TextFilter, 0, 0, 1, 3);
    grid->addWidget(CommandFined, 1, 0);
    grid->addWidget(CommandBack, 1, 1);
    grid->addWidget(CommandNext, 1, 2);
    resize(320, sizeHint().height());
    connect(CommandFined, &QPushButton::clicked, this, &FormGiveFilter::CommandFined_Click);
    connect(CommandNext, &QPushButton::clicked, this, &FormGiveFilter::CommandNext_Click);
    connect(CommandBack, &QPushButton::clicked, this, &FormGiveFilter::CommandBack_Click);
}

void FormGiveFilter::Form_Load()
{
    setWindowTitle(QStringLiteral(" ﾜｰﾄﾞによるﾌｧｲﾙ検出 "));
}

int FormGiveFilter::current() const
{
    return links.currentPage ? links.currentPage() : 0;
}

void FormGiveFilter::CommandFined_Click()
{
    search(1, 1, true);
}

void FormGiveFilter::CommandNext_Click()
{
    search(current() + 1, 1, false);
}

void FormGiveFilter::CommandBack_Click()
{
    search(current() - 1, -1, false);
}

void FormGiveFilter::search(int from, int step, bool changeFirst)
{
    const int last = links.pageCount ? links.pageCount() : 0;
    const int row = findRowByWord(basics_.state().ListArray, TextFilter->text(), from, step, last);
    basics_.services().ui.beep();
    if (row == 0) {
        setWindowTitle(QStringLiteral("Not Found"));
        return;
    }
    setWindowTitle(QStringLiteral("Got"));
    if (links.setPageBar)
        links.setPageBar(row);
    if (changeFirst && links.pageBarChange)
        links.pageBarChange();
    if (links.takeMainAction)
        links.takeMainAction();
}

} // namespace lumen
