#include "select/FormRClick2.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "select/FormSelectFile.h"
#include "select/SelectionFiles.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace lumen {

FormRClick2::FormRClick2(VeroProcedure_Basical& basics, FormSelectFile& select, QWidget* parent)
    : FormBase(QStringLiteral("FormRClick2"), parent, Qt::Tool)
    , basics_(basics)
    , select_(select)
{
    setWindowTitle(QStringLiteral("ﾃﾞｨﾚｸﾄﾘｰ検出"));
    TextSerchWord = named<QLineEdit>(QStringLiteral("TextSerchWord"), this);
    CheckNotInclude =
        named<QCheckBox>(QStringLiteral("CheckNotInclude"), QStringLiteral("含まない"), this);
    Label1 = named<QLabel>(QStringLiteral("Label1"), QStringLiteral("ﾃﾞｨﾚｸﾄﾘｰ名も検索対象"), this);
    CommandCheckAndSelect =
        commandButton(QStringLiteral("CommandCheckAndSelect"), QStringLiteral("検出/選ぶ"), this);
    CommandCheckAndSee =
        commandButton(QStringLiteral("CommandCheckAndSee"), QStringLiteral("検出/すぐ見る"), this);
    CommandSelectAll =
        commandButton(QStringLiteral("CommandSelectAll"), QStringLiteral("全て/選ぶ"), this);
    CommandSenShow =
        commandButton(QStringLiteral("CommandSenShow"), QStringLiteral("全て/すぐ見る"), this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(2);
    grid->addWidget(TextSerchWord, 0, 0, 1, 2);
    grid->addWidget(CheckNotInclude, 1, 0);
    grid->addWidget(Label1, 1, 1);
    grid->addWidget(CommandCheckAndSelect, 2, 0);
    grid->addWidget(CommandCheckAndSee, 2, 1);
    grid->addWidget(CommandSelectAll, 3, 0);
    grid->addWidget(CommandSenShow, 3, 1);
    connect(CommandCheckAndSelect, &QPushButton::clicked, this,
            &FormRClick2::CommandCheckAndSelect_Click);
    connect(CommandCheckAndSee, &QPushButton::clicked, this,
            &FormRClick2::CommandCheckAndSee_Click);
    connect(CommandSelectAll, &QPushButton::clicked, this, &FormRClick2::CommandSelectAll_Click);
    connect(CommandSenShow, &QPushButton::clicked, this, &FormRClick2::CommandSenShow_Click);
}

QString FormRClick2::listTree(bool byWord)
{
    // The pop-up has done its part once a listing starts.
    hide();
    const QString word = byWord ? TextSerchWord->text() : QString();
    const QString mode =
        byWord && CheckNotInclude->isChecked() ? QStringLiteral("EXC") : QStringLiteral("INC");
    QString found;
    select_.FileSelectQuick(word, mode, QStringLiteral("DIR"), found);
    return found;
}

void FormRClick2::showAtOnce(const QString& found)
{
    if (basic::Trim(found).isEmpty())
        return;
    const QString list = dropListName(basics_);
    QString text = found;
    if (text.endsWith(QStringLiteral("\r\n")))
        text.chop(2); // the write puts the last line end back
    basics_.WriteTextToFile(text, list);
    select_.SaveLockInfo();
    select_.ShowListOnMain(list);
}

void FormRClick2::CommandCheckAndSelect_Click()
{
    listTree(true);
}

void FormRClick2::CommandCheckAndSee_Click()
{
    showAtOnce(listTree(true));
}

void FormRClick2::CommandSelectAll_Click()
{
    listTree(false);
}

void FormRClick2::CommandSenShow_Click()
{
    showAtOnce(listTree(false));
}

} // namespace lumen
