#include "editor/FormReplaceEdit.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"
#include "select/FormSelectFile.h"
#include "select/RichTextBox.h"
#include "state/ProgramState.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lumen {

FormReplaceEdit::FormReplaceEdit(VeroProcedure_Basical& basics, FormSelectFile& select)
    : FormBase(QStringLiteral("FormReplaceEdit"), &select, Qt::Dialog)
    , basics_(basics)
    , select_(select)
    , model_(basics.services().ui)
{
    setWindowTitle(QStringLiteral("ﾃﾞｨﾚｸﾄﾘｰの入れ替え"));
    Text1 = named<QLineEdit>(QStringLiteral("Text1"), this);
    Text2 = named<QLineEdit>(QStringLiteral("Text2"), this);
    CommandReplace = commandButton(QStringLiteral("CommandReplace"), QStringLiteral("入替"), this);
    CommandUndo = commandButton(QStringLiteral("CommandUndo"), QStringLiteral("復元"), this);
    CommandExit = commandButton(QStringLiteral("CommandExit"), QStringLiteral("終了"), this);
    layOut();
    connect(CommandReplace, &QPushButton::clicked, this, &FormReplaceEdit::CommandReplace_Click);
    connect(CommandUndo, &QPushButton::clicked, this, &FormReplaceEdit::CommandUndo_Click);
    connect(CommandExit, &QPushButton::clicked, this, &FormReplaceEdit::CommandExit_Click);
    connect(select_.Text1, &QPlainTextEdit::selectionChanged, this,
            &FormReplaceEdit::selectionChosen);
}

void FormReplaceEdit::layOut()
{
    const auto label = [this](const char* text) {
        auto* shown = new QLabel(QString::fromUtf8(text), this);
        shown->setWordWrap(true);
        return shown;
    };
    auto* grid = new QGridLayout;
    grid->addWidget(label("ﾏｳｽを使い､ﾃｷｽﾄの中から変更部分を選択してください"), 0, 0);
    grid->addWidget(Text1, 1, 0);
    grid->addWidget(label("ﾏｳｽを使い､ﾃﾞｨﾚｸﾄﾘｰﾎﾞｯｸｽで新しいﾃﾞｨﾚｸﾄﾘｰを選んでください "
                          "又は直接変更したい文字を入力してください"),
                    2, 0);
    grid->addWidget(Text2, 3, 0);
    auto* commands = new QHBoxLayout;
    commands->addWidget(CommandReplace);
    commands->addWidget(CommandUndo);
    commands->addStretch(1);
    commands->addWidget(CommandExit);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(grid);
    whole->addWidget(label("ﾄﾞﾗｲﾌﾞ記号 *：Lumentaを起動させたドライブに置き換わる"));
    whole->addWidget(label("ﾄﾞﾗｲﾌﾞ記号 ?：実行時にﾄﾞﾗｲﾌﾞを指定できる。"));
    whole->addWidget(label("例：　c: を *:　に置きかえる。"));
    whole->addLayout(commands);
    Text1->setMinimumWidth(420);
}

void FormReplaceEdit::Form_Load()
{
    const ProgramState& state = basics_.state();
    if (!basics_.FolderExists(state.ProgramRunDir))
        basics_.MakeFolderTree(state.ProgramRunDir);
    const DirecDataRecord& record = state.DirecData;
    if (basic::Trim(FixedText(record.CommentFontName)).isEmpty())
        return;
    for (QLineEdit* box : {Text1, Text2})
        box->setFont(fontFrom(box->font(), FixedText(record.DispFontName),
                              basic::Val(FixedText(record.DispFontSize))));
}

void FormReplaceEdit::Form_Unload(bool&)
{
    // However the window goes, the selection stops passing folders to it.
    basics_.state().ReplaceOpen = false;
}

void FormReplaceEdit::open()
{
    basics_.state().ReplaceOpen = true;
    showForm();
    activateWindow();
}

void FormReplaceEdit::folderChosen(const QString& folder)
{
    if (basics_.state().ReplaceOpen)
        Text2->setText(folder);
}

void FormReplaceEdit::selectionChosen()
{
    if (!basics_.state().ReplaceOpen || !isVisible())
        return;
    const QString chosen = select_.Text1->selText();
    // One piece of a line: a selection over line ends is no text to find.
    if (!chosen.isEmpty() && !chosen.contains(QLatin1Char('\n')))
        Text1->setText(chosen);
}

void FormReplaceEdit::CommandReplace_Click()
{
    RichTextBox* text = select_.Text1;
    text->setText(model_.CommandReplace(text->text(), Text1->text(), Text2->text()));
}

void FormReplaceEdit::CommandUndo_Click()
{
    select_.Text1->setText(model_.CommandUndo());
}

void FormReplaceEdit::CommandExit_Click()
{
    basics_.state().ReplaceOpen = false;
    unload();
}

} // namespace lumen
